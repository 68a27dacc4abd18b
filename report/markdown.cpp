#include "report/markdown.h"

#include "report/report.h"
#include "report/utf8.h"

namespace modReadings {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool IsPunctuation(char c) { return c > ' ' && c < 0x7F && !IsDigit(c) && !IsLetter(c); }

/// The character of `text` at `at`, which moves behind it, as Markdown can hold it: what
/// separates lines, and a tab, is a blank.
char32_t NextCharacter(std::u16string_view text, std::size_t &at) {
    const char32_t character = DecodeUtf16(text, at);
    if (character == U'\t' || character == U'\r' || character == U'\n' || character == 0x2028 ||
        character == 0x2029)
        return U' ';
    return MayStandInDocument(character) ? character : char32_t{0xFFFD};
}

/// `text` with a backslash before each character of ASCII of which `isMarkup` says so.
template <typename IsMarkup> std::string Escaped(std::u16string_view text, IsMarkup isMarkup) {
    std::string escaped;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = NextCharacter(text, at);
        if (character < 0x80 && isMarkup(static_cast<char>(character)))
            escaped += '\\';
        EncodeUtf8(character, [&escaped](char byte) { escaped += byte; });
    }
    return escaped;
}

/// Text of our own, which stays readable: only what is markup within a line is escaped.
std::string Text(std::u16string_view text) {
    return Escaped(text, [](char c) {
        return std::string_view("\\`*_[]<>$~^@|{}&#").find(c) != std::string_view::npos;
    });
}

/// Text that somebody has typed: all that could be markup is escaped. Quotation marks and dashes
/// stay as they are.
std::string Typed(std::u16string_view text) { return Escaped(text, IsPunctuation); }

/// Text as a paragraph: what would be a list or a line at its beginning is escaped too.
std::string Paragraph(std::u16string_view text) {
    std::string paragraph = Text(text);
    std::size_t mark = paragraph.starts_with('(') ? 1 : 0;
    while (mark < paragraph.size() && (IsDigit(paragraph[mark]) || IsLetter(paragraph[mark])))
        ++mark;
    const bool isNumber = mark + 1 < paragraph.size() && paragraph[mark + 1] == ' ' &&
                          (paragraph[mark] == '.' || paragraph[mark] == ')');
    if (isNumber)
        paragraph.insert(mark, 1, '\\');
    else if (!paragraph.empty() &&
             std::string_view("-+=:%").find(paragraph[0]) != std::string::npos)
        paragraph.insert(0, 1, '\\');
    return paragraph + "\n\n";
}

/// A text of Markdown as a value of the metadata.
std::string Quoted(std::string_view markdown) {
    std::string quoted = "\"";
    for (const char c : markdown) {
        if (c == '\\' || c == '"')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::string Heading(int level, const std::string &text, std::string_view id) {
    return std::string(static_cast<std::size_t>(level), '#') + ' ' + text + " {#" +
           std::string(id) + "}\n\n";
}

std::string Link(const std::string &text, std::string_view id) {
    return '[' + text + "](#" + std::string(id) + ')';
}

std::string Paragraphs(std::u16string_view text) {
    std::string paragraphs;
    while (!text.empty()) {
        const std::size_t end = text.find(lineBreak);
        if (end != 0)
            paragraphs += Paragraph(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + lineBreak.size());
    }
    return paragraphs;
}

std::string GlanceTable(const NumberGroup &group) {
    // The dashes share the width of the page out among the columns.
    std::string table = "**" + Text(group.title) +
                        "**\n\n"
                        "| Topic | Number | |\n"
                        "|:-------------------------|:-------------|:--------------------|\n";
    for (const NumberRow &row : group.rows)
        table += "| " + Link(Text(row.caption), row.id) + " | " +
                 (row.number.empty() ? std::string("\u2013") : Text(row.number)) + " | " +
                 Text(row.remark) + " |\n";
    return table + '\n';
}

std::string TopicSection(const DocumentTopic &topic) {
    std::string text = Heading(2, Text(topic.heading), topic.id);
    if (!topic.speaksOf.empty())
        text += "*It speaks of " + Text(topic.speaksOf) + ", which is in force today.*\n\n";
    for (const DocumentPart &part : topic.parts) {
        if (!part.label.empty())
            text +=
                Heading(3, Text(part.label) + (part.inForce ? " (in force today)" : ""), part.id);
        if (!part.sameAs.empty())
            text +=
                "The reading stands under " + Link(Text(part.sameAsLabel), part.sameAs) + ".\n\n";
        text += Paragraphs(part.text);
    }
    return text;
}

} // namespace

std::string ToMarkdown(const Document &document) {
    std::string markdown = "---\nlang: en\ntitle: " + Quoted(Typed(document.name)) +
                           "\nsubtitle: " + Quoted("Born " + Text(document.born)) +
                           "\ndate: " + Quoted("Read for " + Text(document.readFor)) + "\n---\n\n";

    markdown += Heading(1, Text(glanceTitle), "glance");
    for (const NumberGroup &group : document.glance)
        markdown += GlanceTable(group);

    markdown += Heading(1, Text(todayTitle), "today") + Paragraphs(document.todayNote);
    for (const InForce &each : document.today)
        markdown += "- " + Link(Text(each.what), each.id) + ' ' + Text(each.number) + ", " +
                    Text(each.when) + '\n';
    markdown += '\n';

    markdown += Heading(1, "The pictures in words", "pictures");
    for (const PictureText *picture : PicturesOf(document))
        markdown += Heading(2, Text(picture->title), picture->id) + Paragraphs(picture->words);

    markdown += Heading(1, "The readings", "readings");
    for (const DocumentTopic &topic : document.topics)
        markdown += TopicSection(topic);
    return markdown;
}

} // namespace modReadings
