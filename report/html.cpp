#include "report/html.h"

#include "report/html_writer.h"
#include "report/report.h"

namespace modReadings {

namespace {

/// The paragraphs of `text`, which has line breaks between them.
void WriteParagraphs(HtmlWriter &html, std::u16string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find(lineBreak);
        html << "<p>" << text.substr(0, end) << "</p>\n";
        text.remove_prefix(end == text.npos ? text.size() : end + lineBreak.size());
    }
}

void WritePicture(HtmlWriter &html, const PictureText &text) {
    html << "<figure id=\"" << text.id << "\">\n<figcaption><h3>" << text.title << "</h3>\n<p>"
         << text.legend << "</p>\n<p>" << text.words << "</p></figcaption>\n</figure>\n";
}

void WriteTopic(HtmlWriter &html, const DocumentTopic &topic) {
    html << "<section id=\"" << topic.id << "\">\n<h3>" << topic.heading << "</h3>\n";
    if (!topic.speaksOf.empty())
        html << "<p>For " << topic.speaksOf << "</p>\n";
    for (const DocumentPart &part : topic.parts) {
        html << "<div id=\"" << std::string_view(part.id) << "\">\n";
        if (!part.label.empty())
            html << "<h4>" << part.label << (part.inForce ? " <em>in force today</em>" : "")
                 << "</h4>\n";
        if (!part.sameAs.empty())
            html << "<p>The reading stands under <a href=\"#" << std::string_view(part.sameAs)
                 << "\">" << part.sameAsLabel << "</a>.</p>\n";
        WriteParagraphs(html, part.text);
        html << "</div>\n";
    }
    html << "</section>\n";
}

} // namespace

std::string ToHtml(const Document &document) {
    HtmlWriter html;
    html << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>"
         << document.name << "</title>\n</head>\n<body>\n<header>\n<h1><bdi>" << document.name
         << "</bdi></h1>\n<p>Born " << document.born << "</p>\n<p>Read for " << document.readFor
         << "</p>\n</header>\n<main>\n<h2>All numbers at a glance</h2>\n<table>\n";
    for (const NumberGroup &group : document.glance)
        for (const NumberRow &row : group.rows)
            html << "<tr><th scope=\"row\"><a href=\"#" << row.id << "\">" << row.caption
                 << "</a></th><td>" << row.number << "</td><td>" << row.remark << "</td></tr>\n";
    html << "</table>\n<h2>In force today</h2>\n<ul>\n";
    for (const InForce &each : document.today)
        html << "<li><a href=\"#" << std::string_view(each.id) << "\">" << each.what << "</a> "
             << each.number << ", " << each.when << "</li>\n";
    html << "</ul>\n<h2>Pictures</h2>\n";
    for (const PictureText *text :
         {&document.values.text, &document.life.text, &document.time.text, &document.planes.text})
        WritePicture(html, *text);
    html << "<h2>The readings</h2>\n";
    for (const DocumentTopic &topic : document.topics)
        WriteTopic(html, topic);
    html << "</main>\n</body>\n</html>\n";
    return html.Take();
}

} // namespace modReadings
