// Documents as Markdown, taken back by a strict reader.

#include "report/markdown.h"
#include "tests/fuzz/document_of.h"
#include "tests/support/markdown_reader.h"

namespace {

using namespace modReadings;

void Run(std::string_view bytes) {
    const auto document = DocumentOf(bytes);
    if (!document)
        return;
    const std::string file = ToMarkdown(*document);
    Require(IsUtf8(file), "a document is UTF-8", file);
    using Kind = MarkdownBlock::Kind;
    MarkdownDocument read;
    try {
        read = MarkdownReader::Read(file);
    } catch (const std::runtime_error &trouble) {
        Require(false, trouble.what(), bytes);
    }
    const std::string *title = read.Metadata("title");
    Require(title != nullptr && Shown(*title) == Shown(document->name), "the title is the name",
            bytes);

    std::size_t rows = 0;
    for (const NumberGroup &group : document->glance)
        rows += group.rows.size() + 1; // and the head of each table
    Require(rows == static_cast<std::size_t>(
                        std::ranges::count(read.blocks, Kind::Row, &MarkdownBlock::kind)),
            "the tables have all rows", bytes);
    if (!isThorough)
        return;

    // The readings in their order, each block where it has to be.
    auto at = read.blocks.begin();
    const auto next = [&](const char *what, auto is) {
        at = std::find_if(at, read.blocks.end(), is);
        Require(at != read.blocks.end(), what, bytes);
        ++at;
    };
    for (const DocumentTopic &topic : document->topics) {
        const std::string heading = Shown(topic.heading);
        next("a topic has its heading", [&](const MarkdownBlock &block) {
            return block.kind == Kind::Heading && block.id == topic.id &&
                   Shown(block.texts[0]) == heading;
        });
        for (const DocumentPart &part : topic.parts) {
            const std::string paragraphs = Utf8(part.text);
            for (const std::string_view piece : Pieces(paragraphs, '\n'))
                if (const std::string paragraph = Shown(piece); !paragraph.empty())
                    next("a topic has its paragraphs in order", [&](const MarkdownBlock &block) {
                        return block.kind == Kind::Paragraph && Shown(block.texts[0]) == paragraph;
                    });
        }
    }
}

const FuzzTarget target("markdown", Run);

} // namespace
