#include "report/markdown.h"

#include <gtest/gtest.h>

using namespace modReadings;

namespace {

/// The least that a document can be.
Document Empty() {
    Document document;
    document.name = u"Ann Lee";
    document.born = u"March 7, 1990";
    document.readFor = u"November 16, 2026";
    for (PictureText *picture : {&document.letters.text, &document.values.text, &document.life.text,
                                 &document.time.text, &document.planes.text})
        *picture = {"place", u"Title", u"Legend", u"Words."};
    return document;
}

/// What ToMarkdown writes up to the headings of `level` 1.
std::string Metadata(const Document &document) {
    const std::string markdown = ToMarkdown(document);
    return markdown.substr(0, markdown.find("\n# "));
}

/// What it writes below the last heading of level 1.
std::string Readings(const Document &document) {
    const std::string markdown = ToMarkdown(document);
    const std::string heading = "# The readings {#readings}\n\n";
    return markdown.substr(markdown.find(heading) + heading.size());
}

TEST(Markdown, BeginsWithWhoIsReadAndWhen) {
    EXPECT_EQ(Metadata(Empty()), "---\nlang: en\ntitle: \"Ann Lee\"\n"
                                 "subtitle: \"Born March 7, 1990\"\n"
                                 "date: \"Read for November 16, 2026\"\n---\n");
}

// Every mark of ASCII has a backslash before it, and each backslash is doubled within the
// quotation marks of the metadata.
TEST(Markdown, TakesNothingInANameForMarkup) {
    Document document = Empty();
    document.name = u"*a* _b_ \"O'N\" \\ <i>&amp; [x](#y) `c` --- {d}|~^$@#";
    EXPECT_NE(
        Metadata(document).find(
            R"(title: "\\*a\\* \\_b\\_ \\\"O\\'N\\\" \\\\ \\<i\\>\\&amp\\; \\[x\\]\\(\\#y\\) )"
            R"(\\`c\\` \\-\\-\\- \\{d\\}\\|\\~\\^\\$\\@\\#")"
            "\nsubtitle: "),
        std::string::npos)
        << Metadata(document);
    document.name = u"a\nb\x85\x2028\U0001F600\xD800z";
    EXPECT_TRUE(Metadata(document).find("\"a b\xEF\xBF\xBD \xF0\x9F\x98\x80\xEF\xBF\xBDz\"") !=
                std::string::npos)
        << Metadata(document);
}

TEST(Markdown, TellsThePicturesInWords) {
    const std::string markdown = ToMarkdown(Empty());
    std::size_t pictures = 0;
    for (std::size_t at = 0;
         (at = markdown.find("## Title {#place}\n\nWords.\n\n", at)) != std::string::npos; ++at)
        ++pictures;
    EXPECT_EQ(pictures, 5U);
}

TEST(Markdown, HasATableRowForEveryNumberAndALineForWhatIsInForce) {
    Document document = Empty();
    document.glance.push_back(
        {u"From the name", {{u"Balance Number", "balance-number", u"7", u"a | b"}}});
    document.today.push_back({u"First Pinnacle", u"5", u"from age 0 to 31", "pinnacles-2"});
    const std::string markdown = ToMarkdown(document);
    EXPECT_NE(markdown.find("\n\n**From the name**\n\n| Topic | Number | |\n"), std::string::npos);
    EXPECT_NE(markdown.find("\n| [Balance Number](#balance-number) | 7 | a \\| b |\n\n"),
              std::string::npos)
        << markdown;
    EXPECT_NE(markdown.find("# In force today {#today}\n\n- [First Pinnacle](#pinnacles-2) 5, from "
                            "age 0 to 31\n\n"),
              std::string::npos)
        << markdown;
}

TEST(Markdown, HasTheReadingsWithTheirHeadings) {
    Document document = Empty();
    DocumentTopic &topic = document.topics.emplace_back();
    topic.heading = u"Your Personal Month is: 8";
    topic.id = "personal-month";
    topic.speaksOf = u"November 2026";
    topic.parts.resize(3);
    topic.parts[0].text = u"It isn't *new*.\r\n1. one (two)\r\n- a dash";
    topic.parts[1].label = u"Pinnacle 1";
    topic.parts[1].id = "p-1";
    topic.parts[1].inForce = true;
    topic.parts[1].text = u"Text.";
    topic.parts[2].label = u"Pinnacle 2";
    topic.parts[2].id = "p-2";
    topic.parts[2].sameAs = "p-1";
    topic.parts[2].sameAsLabel = u"Pinnacle 1";
    EXPECT_EQ(Readings(document), "## Your Personal Month is: 8 {#personal-month}\n\n"
                                  "*It speaks of November 2026, which is in force today.*\n\n"
                                  "It isn't \\*new\\*.\n\n1\\. one (two)\n\n\\- a dash\n\n"
                                  "### Pinnacle 1 (in force today) {#p-1}\n\nText.\n\n"
                                  "### Pinnacle 2 {#p-2}\n\n"
                                  "The reading stands under [Pinnacle 1](#p-1).\n\n");
}

} // namespace
