#pragma once

// A strict reader of Markdown, as far as a document of ours uses it: metadata, headings with
// identifiers, tables, lists and paragraphs; within a line links, bold and italic. It knows
// nothing of how the program writes. Whatever could be markup has to be one of these, or stand
// behind a backslash.

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct MarkdownBlock {
    enum class Kind { Heading, Row, Item, Paragraph };

    Kind kind = Kind::Paragraph;
    int level = 0;                  ///< of a heading
    std::string id;                 ///< of a heading; may be empty
    std::vector<std::string> texts; ///< the cells of a row; otherwise one
};

struct MarkdownDocument {
    std::vector<std::pair<std::string, std::string>> metadata; ///< the values as they are read
    std::vector<MarkdownBlock> blocks;

    /// A value of the metadata, or nullptr.
    const std::string *Metadata(std::string_view wanted) const {
        for (const auto &[name, value] : metadata)
            if (name == wanted)
                return &value;
        return nullptr;
    }
};

class MarkdownReader {
public:
    /// Reads a whole file. Throws std::runtime_error where it has markup that none is meant to
    /// be, one identifier twice, or a link to a place that it has not.
    static MarkdownDocument Read(std::string_view file) {
        MarkdownReader reader;
        reader.ReadAll(file);
        return std::move(reader.document_);
    }

private:
    [[noreturn]] static void Fail(const std::string &what, std::string_view line) {
        throw std::runtime_error("Markdown: " + what + " in: " + std::string(line));
    }

    void ReadAll(std::string_view file) {
        std::vector<std::string_view> lines;
        for (;;) {
            const std::size_t end = file.find('\n');
            lines.push_back(file.substr(0, end));
            if (end == std::string_view::npos)
                break;
            file.remove_prefix(end + 1);
        }
        if (!lines.back().empty())
            Fail("no line break at the end", lines.back());
        std::size_t at = 0;
        if (lines[0] == "---") {
            for (at = 1; at < lines.size() && lines[at] != "---"; ++at)
                ReadMetadata(lines[at]);
            if (at++ == lines.size())
                Fail("metadata without end", "");
        }
        for (bool behindBlank = true; at < lines.size(); ++at) {
            const std::string_view line = lines[at];
            if (!line.empty())
                ReadLine(line, behindBlank);
            behindBlank = line.empty();
        }
        for (const std::string &link : links_)
            if (!ids_.contains(link))
                Fail("a link to nothing", link);
    }

    /// A name and a value in quotation marks or of plain characters.
    void ReadMetadata(std::string_view line) {
        const std::size_t colon = line.find(": ");
        if (colon == std::string_view::npos)
            Fail("metadata that are none", line);
        std::string_view given = line.substr(colon + 2);
        std::string value;
        if (given.starts_with('"')) {
            if (given.size() < 2 || !given.ends_with('"'))
                Fail("a value without end", line);
            given = given.substr(1, given.size() - 2);
            for (std::size_t at = 0; at < given.size(); ++at) {
                if (given[at] == '"')
                    Fail("a quotation mark within a value", line);
                if (given[at] == '\\' &&
                    (++at == given.size() || (given[at] != '\\' && given[at] != '"')))
                    Fail("an unknown escape", line);
                value += given[at];
            }
        } else {
            value = given;
        }
        document_.metadata.emplace_back(line.substr(0, colon), Inline(value));
    }

    void ReadLine(std::string_view line, bool behindBlank) {
        using Kind = MarkdownBlock::Kind;
        MarkdownBlock block;
        if (line.starts_with('#')) {
            if (!behindBlank)
                Fail("a heading within a paragraph", line);
            block.kind = Kind::Heading;
            block.level = static_cast<int>(line.find_first_not_of('#'));
            line.remove_prefix(static_cast<std::size_t>(block.level));
            if (!line.starts_with(' '))
                Fail("a heading that is none", line);
            line.remove_prefix(1);
            if (line.ends_with('}')) {
                const std::size_t mark = line.rfind(" {#");
                if (mark == std::string_view::npos)
                    Fail("a broken identifier", line);
                block.id = line.substr(mark + 3, line.size() - mark - 4);
                if (block.id.empty() || !std::ranges::all_of(block.id, IsOfId) ||
                    !ids_.insert(block.id).second)
                    Fail("an identifier that is none or stands there twice", line);
                line = line.substr(0, mark);
            }
            block.texts = {Inline(line)};
        } else if (line.starts_with('|')) {
            block.kind = Kind::Row;
            if (!line.ends_with('|'))
                Fail("a row without end", line);
            if (line.find_first_not_of("|:-") == std::string_view::npos)
                return; // the line below the head of a table
            block.texts = Cells(line);
        } else if (line.starts_with("- ")) {
            block.kind = Kind::Item;
            block.texts = {Inline(line.substr(2))};
        } else {
            if (!behindBlank)
                Fail("a paragraph of two lines", line);
            if (IsSomethingElse(line))
                Fail("a paragraph that is something else", line);
            block.texts = {Inline(line)};
        }
        document_.blocks.push_back(std::move(block));
    }

    static bool IsOfId(char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
    }

    /// Whether a line begins as a list, a quotation, a definition, a table or code does.
    static bool IsSomethingElse(std::string_view line) {
        if (line.starts_with("    ") || line.starts_with('\t') ||
            std::string_view("-+=:>%").find(line.front()) != std::string_view::npos)
            return true;
        std::size_t at = line.front() == '(' ? 1 : 0;
        const std::size_t begin = at;
        const auto isCounter = [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        };
        while (at < line.size() && isCounter(line[at]))
            ++at;
        return at > begin && at + 1 < line.size() && (line[at] == '.' || line[at] == ')') &&
               line[at + 1] == ' ';
    }

    std::vector<std::string> Cells(std::string_view line) {
        std::vector<std::string> cells;
        std::size_t begin = 1;
        for (std::size_t at = 1; at < line.size(); ++at) {
            if (line[at] == '\\') {
                ++at;
            } else if (line[at] == '|') {
                std::string_view cell = line.substr(begin, at - begin);
                while (cell.starts_with(' '))
                    cell.remove_prefix(1);
                while (cell.ends_with(' ') && !cell.ends_with("\\ "))
                    cell.remove_suffix(1);
                cells.push_back(Inline(cell));
                begin = at + 1;
            }
        }
        return cells;
    }

    /// The text of a line, of which what is markup is taken off.
    std::string Inline(std::string_view line) {
        std::string text;
        bool bold = false;
        bool italic = false;
        for (std::size_t at = 0; at < line.size(); ++at) {
            const char c = line[at];
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
                Fail("a control character", line);
            if (c == '\\') {
                if (++at == line.size() || !IsPunctuation(line[at]))
                    Fail("a backslash that means something else", line);
                text += line[at];
            } else if (c == '[') {
                const std::size_t end = EndOfLink(line, at);
                text += Inline(line.substr(at + 1, end - at - 1));
                const std::size_t close = line.find(')', end);
                if (!line.substr(end).starts_with("](#") || close == std::string_view::npos)
                    Fail("a link that is none", line);
                links_.emplace_back(line.substr(end + 3, close - end - 3));
                at = close;
            } else if (c == '*') {
                if (line.substr(at).starts_with("**")) {
                    bold = !bold;
                    ++at;
                } else {
                    italic = !italic;
                }
            } else if (std::string_view("`_]<>$~^@|{}&#").find(c) != std::string_view::npos) {
                Fail("markup that is not meant", line);
            } else {
                text += c;
            }
        }
        if (bold || italic)
            Fail("bold or italic without end", line);
        return text;
    }

    static std::size_t EndOfLink(std::string_view line, std::size_t begin) {
        for (std::size_t at = begin + 1; at < line.size(); ++at) {
            if (line[at] == '\\')
                ++at;
            else if (line[at] == ']')
                return at;
            else if (line[at] == '[')
                break;
        }
        Fail("a link without end", line);
    }

    static bool IsPunctuation(char c) {
        return c > ' ' && c < 0x7F && !(c >= '0' && c <= '9') && !(c >= 'a' && c <= 'z') &&
               !(c >= 'A' && c <= 'Z');
    }

    MarkdownDocument document_;
    std::set<std::string> ids_;
    std::vector<std::string> links_;
};
