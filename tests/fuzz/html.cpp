// Documents as HTML, taken back by a strict reader.

#include "report/html.h"
#include "tests/fuzz/document_of.h"
#include "tests/support/html_reader.h"

#include <map>

namespace {

using namespace modReadings;

/// The elements of a document that have an id.
using Places = std::map<std::string_view, const HtmlElement *>;

void Collect(const HtmlElement &element, Places &places) {
    if (const std::string *id = element.Attribute("id"))
        places.emplace(*id, &element);
    for (const HtmlElement &child : element.children)
        Collect(child, places);
}

void Run(std::string_view bytes) {
    const auto document = DocumentOf(bytes);
    if (!document)
        return;
    const std::string file = ToHtml(*document);
    Require(IsUtf8(file), "a document is UTF-8", file);
    if (!isThorough) // to read it takes as long as to make it
        return;
    HtmlElement html;
    try {
        html = HtmlReader::Read(file);
    } catch (const std::runtime_error &trouble) {
        Require(false, trouble.what(), bytes);
    }
    const HtmlElement *title = html.Named("title");
    const HtmlElement *heading = html.Named("h1");
    const std::string name = Shown(document->name);
    // The title of a window has no markup that would end what a mark of direction begins.
    const auto turns = [](char16_t unit) {
        return unit == 0x61C || unit == 0x200E || unit == 0x200F ||
               (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    };
    Require(title != nullptr && !title->Text().empty() &&
                std::ranges::none_of(AnyUnits(title->Text()), turns),
            "the title does not turn what stands around it", bytes);
    Require(heading != nullptr && Shown(heading->Text()) == name, "the heading is the name", bytes);
    if (!isExhaustive)
        return;

    Places places;
    Collect(html, places);
    const std::string text = Shown(html.Text());
    for (const std::u16string &date : {document->born, document->readFor})
        Require(text.find(Shown(date)) != std::string::npos, "the dates are there", bytes);
    for (const DocumentTopic &topic : document->topics) {
        const auto section = places.find(topic.id);
        Require(section != places.end(), "a topic has its place", topic.id);
        const std::string within = Shown(section->second->Text());
        Require(within.find(Shown(topic.heading)) != std::string::npos, "a topic has its heading",
                topic.id);
        std::size_t at = 0;
        for (const DocumentPart &part : topic.parts) {
            Require(part.id.empty() || places.contains(part.id), "a part has its place", part.id);
            const std::string paragraphs = Utf8(part.text);
            for (const std::string_view piece : Pieces(paragraphs, '\n')) {
                const std::size_t found = within.find(Shown(piece), at);
                Require(found != std::string::npos, "a topic has its paragraphs in order", piece);
                at = found;
            }
        }
    }
    for (const NumberGroup &group : document->glance)
        for (const NumberRow &row : group.rows)
            Require(places.contains(row.id), "a row leads to its topic", row.id);
}

const FuzzTarget target("html", Run);

} // namespace
