#pragma once

// A strict reader of HTML, as far as a document of ours uses it. It knows nothing of how the
// program writes: it follows the rules of the format, refuses what a browser would mend, and
// refuses whatever would run or be loaded.

#include <algorithm>
#include <cstdint>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// An element; the names in it are views of the file that was read.
struct HtmlElement {
    std::string_view name; ///< empty for a piece of text
    std::vector<std::pair<std::string_view, std::string>> attributes;
    std::vector<HtmlElement> children;
    std::string text; ///< of a piece of text, in UTF-8

    /// The value of an attribute, or nullptr.
    const std::string *Attribute(std::string_view wanted) const {
        for (const auto &[each, value] : attributes)
            if (each == wanted)
                return &value;
        return nullptr;
    }

    /// The first element of this name, itself among them, or nullptr.
    const HtmlElement *Named(std::string_view wanted) const {
        if (name == wanted)
            return this;
        for (const HtmlElement &child : children)
            if (const HtmlElement *found = child.Named(wanted))
                return found;
        return nullptr;
    }

    /// All text within, without that of a style.
    std::string Text() const {
        std::string all;
        AppendText(all);
        return all;
    }

private:
    void AppendText(std::string &all) const {
        if (name == "style")
            return;
        all += text;
        for (const HtmlElement &child : children)
            child.AppendText(all);
    }
};

class HtmlReader {
public:
    /// Reads a whole file; gives the element `html`. Throws std::runtime_error where it is not
    /// what the format says, has one id twice, links to a place that it has not, or would load
    /// or run something.
    static HtmlElement Read(std::string_view file) {
        HtmlReader reader(file);
        if (!reader.Take("<!DOCTYPE html>\n"))
            reader.Fail("no document type");
        HtmlElement html = reader.Element(false);
        if (html.name != "html")
            reader.Fail("no html");
        reader.Take('\n');
        if (reader.at_ != file.size())
            reader.Fail("something behind the end");
        for (const std::string &link : reader.links_)
            if (!reader.ids_.contains(link))
                reader.Fail("a link to nothing, " + link);
        return html;
    }

private:
    explicit HtmlReader(std::string_view file) : file_(file) {}

    [[noreturn]] void Fail(std::string what, std::string_view name = {}) const {
        throw std::runtime_error("HTML: " + what.append(name.empty() ? "" : " ").append(name) +
                                 " at " + std::to_string(at_));
    }

    bool Take(char what) {
        if (at_ == file_.size() || file_[at_] != what)
            return false;
        ++at_;
        return true;
    }

    bool Take(std::string_view what) {
        if (file_.compare(at_, what.size(), what) != 0)
            return false;
        at_ += what.size();
        return true;
    }

    char Peek() const { return at_ < file_.size() ? file_[at_] : '\0'; }

    std::string_view Name() {
        const std::size_t begin = at_;
        const auto isName = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                   c == '-' || c == ':';
        };
        while (isName(Peek()))
            ++at_;
        if (at_ == begin || !(file_[begin] >= 'a' && file_[begin] <= 'z'))
            Fail("a name that is none");
        return file_.substr(begin, at_ - begin);
    }

    /// Text up to `end`.
    std::string Characters(char end) {
        std::string text;
        for (;;) {
            // What stands for itself, in one piece.
            const std::size_t begin = at_;
            while (at_ < file_.size() && file_[at_] != end && StandsForItself(file_[at_]))
                ++at_;
            text += file_.substr(begin, at_ - begin);
            if (at_ == file_.size() || file_[at_] == end)
                return text;
            if (file_[at_] != '&')
                Fail("a character that has to be written out");
            text += Reference();
        }
    }

    static bool StandsForItself(char c) {
        return c != '&' && c != '<' && c != '>' && c != 0x7F &&
               (static_cast<unsigned char>(c) >= 0x20 || c == '\n');
    }

    std::string Reference() {
        for (const auto &[name, text] : {std::pair("&amp;", "&"),
                                         {"&lt;", "<"},
                                         {"&gt;", ">"},
                                         {"&quot;", "\""},
                                         {"&#39;", "'"},
                                         {"&nbsp;", "\u00A0"}})
            if (Take(name))
                return text;
        Fail("an unknown reference");
    }

    HtmlElement Element(bool foreign) {
        if (!Take('<'))
            Fail("no element");
        HtmlElement element;
        element.name = Name();
        foreign = foreign || element.name == "svg";
        if (element.name == "script" || element.name == "iframe" || element.name == "object" ||
            element.name == "embed" || element.name == "base" || element.name == "link")
            Fail("the element", element.name);
        constexpr std::size_t usualAttributes = 6;
        if (Peek() != '>')
            element.attributes.reserve(usualAttributes);
        while (Take(' ') || Peek() == '\n') {
            Take('\n');
            Attribute(element);
        }
        if (Take("/>")) {
            if (!foreign)
                Fail("an end of its own on", element.name);
            return element;
        }
        if (!Take('>'))
            Fail("a broken tag", element.name);
        constexpr std::string_view withoutEnd[] = {"meta", "br", "hr", "wbr", "col"};
        if (std::ranges::find(withoutEnd, element.name) != std::end(withoutEnd))
            return element;
        if (element.name == "style") {
            const std::size_t stop = file_.find("</", at_);
            const std::string_view style = file_.substr(at_, stop - at_);
            if (stop == std::string_view::npos || Loads(style) || style.find('<') != style.npos)
                Fail("a style that loads something or has no end");
            at_ = stop;
        }
        while (!Take("</")) {
            if (at_ == file_.size())
                Fail("no end", element.name);
            if (Peek() == '<')
                element.children.push_back(Element(foreign));
            else
                element.children.emplace_back().text = Characters('<');
        }
        if (!Take(element.name) || !Take('>'))
            Fail("another end than that of", element.name);
        return element;
    }

    void Attribute(HtmlElement &element) {
        const std::string_view name = Name();
        if (element.Attribute(name) != nullptr)
            Fail("twice the attribute", name);
        std::string value;
        if (Take("=\"")) {
            value = Characters('"');
            if (!Take('"'))
                Fail("an attribute without end");
        }
        if (name == "id" && (!ids_.insert(value).second || value.empty()))
            Fail("an id twice, " + value);
        if (name == "href" || name == "xlink:href") {
            if (!value.starts_with('#'))
                Fail("a link to elsewhere, " + value);
            links_.push_back(value.substr(1));
        }
        constexpr std::string_view loadsOrLeads[] = {
            "src",  "srcset",     "action",     "formaction", "poster",  "data",
            "ping", "background", "http-equiv", "srcdoc",     "manifest"};
        if (std::ranges::find(loadsOrLeads, name) != std::end(loadsOrLeads) ||
            name.starts_with("on") || Loads(value))
            Fail("the attribute", name);
        element.attributes.emplace_back(name, std::move(value));
    }

    /// Whether a style, or the value of an attribute that takes a part of one, asks for something
    /// that stands elsewhere.
    static bool Loads(std::string_view style) {
        if (style.find('(') == style.npos && style.find('@') == style.npos)
            return false;
        for (std::size_t at = style.find("url("); at != style.npos; at = style.find("url(", at + 1))
            if (!style.substr(at + 4).starts_with('#'))
                return true;
        return style.find("image-set(") != style.npos || style.find("src(") != style.npos ||
               style.find("@import") != style.npos;
    }

    std::string_view file_;
    std::size_t at_ = 0;
    std::set<std::string> ids_;
    std::vector<std::string> links_;
};
