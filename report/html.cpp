#include "report/html.h"

#include "document_style.h"
#include "emblem.h"
#include "report/html_pictures.h"
#include "report/html_writer.h"
#include "report/rendering.h"
#include "report/utf8.h"

#include <cstdio>

namespace modReadings {

namespace {

constexpr std::u16string_view picturesTitle = u"Pictures";
constexpr std::u16string_view readingsTitle = u"Readings";

/// Whether it turns the direction of what follows, beyond the text that it belongs to.
constexpr bool IsMarkOfDirection(char16_t unit) {
    return unit == 0x061C || unit == 0x200E || unit == 0x200F ||
           (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

/// `name` for a place that knows only plain text and has little room: without marks of
/// direction and cut where it is long.
std::u16string ShortName(std::u16string_view name) {
    constexpr std::size_t most = 60;
    std::u16string text;
    for (const char16_t unit : name) {
        if (text.size() == most) {
            if (text.back() >= 0xD800 && text.back() < 0xDC00)
                text.pop_back();
            return text + u'\u2026';
        }
        if (!IsMarkOfDirection(unit))
            text += unit;
    }
    return text;
}

/// `text` within quotation marks of CSS. All but letters, digits and blanks of ASCII is written
/// by its number, so that nothing in it can end the style.
void WriteCssString(HtmlWriter &html, std::u16string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = DecodeUtf16(text, at);
        if (character == U' ' || (character >= U'0' && character <= U'9') ||
            (character >= U'A' && character <= U'Z') || (character >= U'a' && character <= U'z')) {
            html << static_cast<char>(character);
            continue;
        }
        char number[16];
        std::snprintf(number, sizeof number, "\\%X ", // the blank ends the number
                      static_cast<unsigned>(MayStandInDocument(character) ? character : 0xFFFD));
        html << std::string_view(number);
    }
}

/// The class of the heading for a name of this length, whose letters are smaller.
std::string_view ClassFor(std::u16string_view name) {
    if (name.size() > 400)
        return " class=\"endless\"";
    return name.size() > 48 ? " class=\"long\"" : "";
}

/// The paragraphs of `text`, which has line breaks between them.
void WriteParagraphs(HtmlWriter &html, std::u16string_view text) {
    if (text.empty())
        return;
    html << "<p>";
    html.Lines(text, "</p>\n<p>");
    html << "</p>\n";
}

void WriteLink(HtmlWriter &html, std::string_view id, std::u16string_view text) {
    html << "<a href=\"#" << id << "\">" << text << "</a>";
}

void WriteEntry(HtmlWriter &html, std::string_view id, std::u16string_view text) {
    html << "<li>";
    WriteLink(html, id, text);
    html << "</li>\n";
}

void WriteContents(HtmlWriter &html, const Document &document) {
    html << "<nav id=\"contents\" aria-labelledby=\"contents-title\">\n"
            "<h2 id=\"contents-title\">Contents</h2>\n<ol>\n"
            "<li><a href=\"#glance\">"
         << glanceTitle << "</a></li>\n<li><a href=\"#today\">" << todayTitle
         << "</a></li>\n<li><a href=\"#pictures\">" << picturesTitle << "</a>\n<ol>\n";
    for (const PictureText *text : PicturesOf(document))
        WriteEntry(html, text->id, text->title);
    html << "</ol></li>\n<li><a href=\"#readings\">" << readingsTitle
         << "</a>\n"
            "<ol id=\"contents-of-readings\">\n";
    for (const DocumentTopic &topic : document.topics)
        WriteEntry(html, topic.id, topic.caption);
    html << "</ol></li>\n</ol>\n</nav>\n";
}

void WriteGlance(HtmlWriter &html, const Document &document) {
    html << "<section id=\"glance\">\n<h2 id=\"glance-title\">" << glanceTitle
         << "</h2>\n"
            "<table aria-labelledby=\"glance-title\">\n<thead><tr><th scope=\"col\">Topic</th>"
            "<th scope=\"col\" class=\"number\">Number</th></tr></thead>\n";
    for (const NumberGroup &group : document.glance) {
        html << "<tbody>\n<tr class=\"group\"><th colspan=\"2\" scope=\"rowgroup\">" << group.title
             << "</th></tr>\n";
        for (const NumberRow &row : group.rows) {
            html << "<tr><th scope=\"row\">";
            WriteLink(html, row.id, row.caption);
            if (!row.remark.empty())
                html << " <span class=\"remark\">" << row.remark << "</span>";
            html << "</th><td>"
                 << (row.number.empty() ? std::u16string_view(u"\u2013")
                                        : std::u16string_view(row.number))
                 << "</td></tr>\n";
        }
        html << "</tbody>\n";
    }
    html << "</table>\n</section>\n";
}

void WriteToday(HtmlWriter &html, const Document &document) {
    html << "<section id=\"today\">\n<h2>" << todayTitle << "</h2>\n<p>" << document.todayNote
         << "</p>\n<table class=\"today\" aria-label=\"" << todayTitle
         << "\">\n<thead><tr>"
            "<th scope=\"col\">Topic</th><th scope=\"col\" class=\"number\">Number</th></tr>"
            "</thead>\n<tbody>\n";
    for (const InForce &each : document.today) {
        html << "<tr><th scope=\"row\">";
        WriteLink(html, each.id, each.what);
        html << " <span class=\"remark\">" << each.when << "</span></th><td><span class=\"disc\">"
             << each.number << "</span></td></tr>\n";
    }
    html << "</tbody>\n</table>\n</section>\n";
}

template <typename Picture> void WritePicture(HtmlWriter &html, const Picture &picture) {
    const PictureText &text = picture.text;
    html << "<figure id=\"" << text.id << "\">\n<figcaption><h3 id=\"" << text.id << "-title\">"
         << text.title << "</h3>\n<p>" << text.legend << (text.note.empty() ? "" : " ") << text.note
         << "</p></figcaption>\n";
    Draw(html, picture);
    html << "<p class=\"words\" id=\"" << text.id << "-words\"><b>In words.</b> " << text.words
         << "</p>\n</figure>\n";
}

void WriteTopic(HtmlWriter &html, const DocumentTopic &topic) {
    html << "<section class=\"topic\" id=\"" << topic.id << "\">\n<h3>" << topic.heading
         << "</h3>\n";
    if (!topic.speaksOf.empty())
        html << "<p class=\"when\"><span class=\"mark\">in force today</span> It speaks of "
             << topic.speaksOf << ".</p>\n";
    for (const DocumentPart &part : topic.parts) {
        html << (part.explains ? "<div class=\"part about\"" : "<div class=\"part\"");
        if (!part.id.empty())
            html << " id=\"" << std::string_view(part.id) << '"';
        html << ">\n";
        if (!part.label.empty())
            html << "<h4>" << part.label
                 << (part.inForce ? " <span class=\"mark\">in force today</span></h4>\n"
                                  : "</h4>\n");
        if (!part.sameAs.empty()) {
            html << "<p class=\"same\">Its reading is printed above, under ";
            WriteLink(html, part.sameAs, part.sameAsLabel);
            html << ".</p>\n";
        }
        WriteParagraphs(html, part.text);
        html << "</div>\n";
    }
    html << "</section>\n";
}

} // namespace

std::string ToHtml(const Document &document) {
    const std::u16string shortName = ShortName(document.name);
    static HtmlWriter html; // keeps its memory from one document to the next
    html.Clear();
    html << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<meta name=\"color-scheme\" content=\"light dark\">\n<title>"
         << shortName << " \u2013 " << comprehensiveReadingTitle << ", " << document.readFor
         << "</title>\n<meta name=\"author\" content=\"Orravane\">\n"
            "<meta name=\"generator\" content=\"Orravane\">\n"
            "<meta name=\"description\" content=\"A numerology report for "
         << shortName << ", born " << document.born << ", read for " << document.readFor
         << ".\">\n<meta name=\"keywords\" content=\"numerology, Pythagorean letter chart, "
            "Life Path, Destiny, Soul Urge, Inner Dreams, Pinnacles, Personal Year, Essence\">\n"
            "<style>\n"
         << documentStyle << "@page {\n  @top-left { content: \"";
    WriteCssString(html, shortName);
    html << "\"; }\n  @top-right { content: \"";
    WriteCssString(html, document.readFor);
    html << "\"; }\n}\n</style>\n</head>\n<body>\n<a class=\"skip\" href=\"#main\">Skip the "
            "contents</a>\n"
            "<header class=\"cover\">\n"
         << emblem << "<p class=\"kicker\">" << comprehensiveReadingTitle << "</p>\n<h1"
         << ClassFor(document.name) << "><bdi>" << document.name
         << "</bdi></h1>\n<dl><dt>Born</dt><dd>" << document.born << "</dd>\n<dt>Read for</dt><dd>"
         << document.readFor << "</dd></dl>\n</header>\n<div class=\"page\">\n";
    WriteContents(html, document);
    html << "<main id=\"main\">\n";
    WriteGlance(html, document);
    WriteToday(html, document);
    html << "<section id=\"pictures\">\n<h2>" << picturesTitle << "</h2>\n";
    WritePicture(html, document.letters);
    WritePicture(html, document.values);
    WritePicture(html, document.life);
    WritePicture(html, document.time);
    WritePicture(html, document.planes);
    html << "</section>\n<section id=\"readings\">\n<h2>" << readingsTitle << "</h2>\n";
    for (const DocumentTopic &topic : document.topics)
        WriteTopic(html, topic);
    html << "</section>\n</main>\n<footer>" << comprehensiveReadingTitle << " for <bdi>"
         << shortName << "</bdi>, " << document.readFor << ".</footer>\n</div>\n</body>\n</html>\n";
    return std::string(html.Written());
}

} // namespace modReadings
