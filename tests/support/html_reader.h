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

struct HtmlElement {
    std::string name; ///< empty for a piece of text
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<HtmlElement> children;
    std::string text; ///< of a piece of text, in UTF-8

    /// The value of an attribute, or nullptr.
    const std::string *Attribute(std::string_view wanted) const {
        for (const auto &[each, value] : attributes)
            if (each == wanted)
                return &value;
        return nullptr;
    }

    /// The first element with this id, itself among them, or nullptr.
    const HtmlElement *WithId(std::string_view id) const {
        const std::string *mine = Attribute("id");
        if (mine != nullptr && *mine == id)
            return this;
        for (const HtmlElement &child : children)
            if (const HtmlElement *found = child.WithId(id))
                return found;
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
        if (name == "style")
            return {};
        std::string all = text;
        for (const HtmlElement &child : children)
            all += child.Text();
        return all;
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
        reader.Take("\n");
        if (reader.at_ != file.size())
            reader.Fail("something behind the end");
        for (const std::string &link : reader.links_)
            if (!reader.ids_.contains(link))
                reader.Fail("a link to nothing, " + link);
        return html;
    }

private:
    explicit HtmlReader(std::string_view file) : file_(file) {}

    [[noreturn]] void Fail(const std::string &what) const {
        throw std::runtime_error("HTML: " + what + " at " + std::to_string(at_));
    }

    bool Take(std::string_view what) {
        if (!file_.substr(at_).starts_with(what))
            return false;
        at_ += what.size();
        return true;
    }

    char Peek() const { return at_ < file_.size() ? file_[at_] : '\0'; }

    std::string Name() {
        const std::size_t begin = at_;
        const auto isName = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                   c == '-' || c == ':';
        };
        while (isName(Peek()))
            ++at_;
        if (at_ == begin || !(file_[begin] >= 'a' && file_[begin] <= 'z'))
            Fail("a name that is none");
        return std::string(file_.substr(begin, at_ - begin));
    }

    /// Text up to one of `ends`.
    std::string Characters(std::string_view ends) {
        std::string text;
        while (at_ < file_.size() && ends.find(file_[at_]) == std::string_view::npos) {
            const char c = file_[at_];
            if (c == '&') {
                text += Reference();
                continue;
            }
            if (c == '<' || c == '>' || (static_cast<unsigned char>(c) < 0x20 && c != '\n') ||
                c == 0x7F)
                Fail("a character that has to be written out");
            text += c;
            ++at_;
        }
        return text;
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
        if (!Take("<"))
            Fail("no element");
        HtmlElement element;
        element.name = Name();
        foreign = foreign || element.name == "svg";
        if (element.name == "script" || element.name == "iframe" || element.name == "object" ||
            element.name == "embed" || element.name == "base" || element.name == "link")
            Fail("the element " + element.name);
        while (Take(" ") || Peek() == '\n') {
            Take("\n");
            Attribute(element);
        }
        if (Take("/>")) {
            if (!foreign)
                Fail("an end of its own on " + element.name);
            return element;
        }
        if (!Take(">"))
            Fail("a broken tag " + element.name);
        constexpr std::string_view withoutEnd[] = {"meta", "br", "hr", "wbr", "col"};
        if (std::ranges::find(withoutEnd, element.name) != std::end(withoutEnd))
            return element;
        const std::string end = "</" + element.name + ">";
        if (element.name == "style") {
            const std::size_t stop = file_.find("</", at_);
            const std::string_view style = file_.substr(at_, stop - at_);
            if (stop == std::string_view::npos || style.find("url(") != style.npos ||
                style.find("@import") != style.npos || style.find('<') != style.npos)
                Fail("a style that loads something or has no end");
            at_ = stop;
        }
        while (!Take(end)) {
            if (at_ == file_.size())
                Fail(element.name + " has no end");
            if (Peek() == '<') {
                if (file_.substr(at_).starts_with("</"))
                    Fail("an end within " + element.name);
                element.children.push_back(Element(foreign));
            } else {
                HtmlElement &piece = element.children.emplace_back();
                piece.text = Characters("<");
            }
        }
        return element;
    }

    void Attribute(HtmlElement &element) {
        const std::string name = Name();
        if (element.Attribute(name) != nullptr)
            Fail("an attribute twice, " + name);
        std::string value;
        if (Take("=\"")) {
            value = Characters("\"");
            if (!Take("\""))
                Fail("an attribute without end");
        }
        if (name == "id" && (!ids_.insert(value).second || value.empty()))
            Fail("an id twice, " + value);
        if (name == "href" || name == "xlink:href") {
            if (!value.starts_with('#'))
                Fail("a link to elsewhere, " + value);
            links_.push_back(value.substr(1));
        }
        if (name == "src" || name == "srcset" || name == "action" || name == "poster" ||
            name == "data" || name.starts_with("on") ||
            (name == "style" && value.find("url(") != std::string::npos))
            Fail("the attribute " + name);
        element.attributes.emplace_back(name, std::move(value));
    }

    std::string_view file_;
    std::size_t at_ = 0;
    std::set<std::string> ids_;
    std::vector<std::string> links_;
};
