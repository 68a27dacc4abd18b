#include "core/proceed_pass.h"
#include "report/rendering.h"
#include "report/rtf.h"
#include "tests/report/expected_report.h"
#include "tests/report/report_text.h"
#include "tests/support/fresh_store.h"
#include "tests/support/rtf_reader.h"

#include <gtest/gtest.h>

namespace modReadings {
namespace {

constexpr Ink magenta{128, 0, 128};

std::size_t CountOf(std::string_view part, std::string_view text) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size()))
        ++count;
    return count;
}

/// What stands between the head of the file and its end, for one plain black run.
std::string BodyOf(std::u16string_view text) {
    const ReportRuns runs{{std::u16string(text), false, {}}};
    const std::string file = ToRtf(runs);
    const std::string empty = ToRtf({});
    // Head and end are those of a file without text, plus the blank that ends the head.
    const std::size_t tail = std::string_view("\\par\r\n}\r\n").size();
    const std::size_t head = empty.size() - tail + 1;
    EXPECT_TRUE(file.ends_with("\\par\r\n}\r\n"));
    return file.substr(head, file.size() - tail - head);
}

void ExpectShown(const ReportRuns &runs) {
    RtfDocument document;
    ASSERT_NO_THROW(document = RtfReader::Read(ToRtf(runs)));
    const std::vector<RtfCharacter> expected = ShownCharacters(runs);
    ASSERT_EQ(Readable(document.Text()), [&] {
        std::u16string text;
        for (const RtfCharacter &character : expected)
            text += character.unit;
        return Readable(text);
    }());
    for (std::size_t index = 0; index < expected.size(); ++index)
        ASSERT_TRUE(document.characters[index] == expected[index]) << "character " << index;
}

TEST(Rtf, NothingIsOneEmptyParagraph) {
    const std::string file = ToRtf({});
    EXPECT_TRUE(file.starts_with("{\\rtf1\\ansi"));
    EXPECT_EQ(RtfReader::Read(file).Text(), u"\n");
    EXPECT_EQ(CountOf("\\par\r\n", file), 1U);
}

TEST(Rtf, BracesAndBackslashesAreEscaped) {
    EXPECT_EQ(BodyOf(u"{a}\\b"), "\\{a\\}\\\\b");
    ExpectShown({{u"}}}{\\par\\b bold{\\'e9}", false, {}}});
}

TEST(Rtf, PlainTextStandsAsItIs) {
    std::u16string printable;
    for (char16_t unit = 0x20; unit < 0x7F; ++unit)
        if (unit != u'\\' && unit != u'{' && unit != u'}')
            printable += unit;
    EXPECT_EQ(BodyOf(printable), std::string(printable.begin(), printable.end()));
}

TEST(Rtf, ATabIsATab) { EXPECT_EQ(BodyOf(u"a\tb"), "a\\tab b"); }

TEST(Rtf, CharactersOfLatin1StandBehindTheirNumberForOldReaders) {
    EXPECT_EQ(BodyOf(u"\u00E9"), "\\u233\\'e9");
    EXPECT_EQ(BodyOf(u"\u00FF"), "\\u255\\'ff");
    EXPECT_EQ(BodyOf(u"\u00A0"), "\\u160\\'a0");
}

TEST(Rtf, OtherCharactersAreSignedNumbersWithAQuestionMark) {
    EXPECT_EQ(BodyOf(u"\u20AC"), "\\u8364?");                // euro sign
    EXPECT_EQ(BodyOf(u"\u0159"), "\\u345?");                 // r with caron
    EXPECT_EQ(BodyOf(u"\u0905"), "\\u2309?");                // Devanagari a
    EXPECT_EQ(BodyOf(u"\u7FFF"), "\\u32767?");               // the last without a sign
    EXPECT_EQ(BodyOf(u"\u8000"), "\\u-32768?");              // the first with one
    EXPECT_EQ(BodyOf(u"\uFFFD"), "\\u-3?");                  // 65533 - 65536
    EXPECT_EQ(BodyOf(u"\U0001F600"), "\\u-10179?\\u-8704?"); // D83D and DE00, each less 65536
}

TEST(Rtf, EveryUnitComesBackFromAReader) {
    std::u16string all;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
        if (unit != u'\r' && unit != u'\n')
            all += static_cast<char16_t>(unit);
    ASSERT_EQ(all.size(), 65534U);
    ExpectShown({{all, false, magenta}});
}

TEST(Rtf, TheFileIsPlainAscii) {
    const ReportRuns runs{{u"\u00E9\u20AC\U0001F600\x7F\x01", true, magenta}};
    for (const char character : ToRtf(runs))
        EXPECT_TRUE(character == '\r' || character == '\n' ||
                    (character >= 0x20 && character < 0x7F));
}

TEST(Rtf, LineBreaksOfAllKindsEndParagraphs) {
    const auto paragraphs = [](std::u16string text) {
        return RtfReader::Read(ToRtf(ReportRuns{{std::move(text), false, {}}})).Text();
    };
    EXPECT_EQ(paragraphs(u"a\r\nb"), u"a\nb\n");
    EXPECT_EQ(paragraphs(u"a\nb"), u"a\nb\n");
    EXPECT_EQ(paragraphs(u"a\rb"), u"a\nb\n");
    EXPECT_EQ(paragraphs(u"a\r\n\r\nb"), u"a\n\nb\n");
    EXPECT_EQ(paragraphs(u"a\n\rb"), u"a\n\nb\n");
    EXPECT_EQ(paragraphs(u"a\r\r\nb"), u"a\n\nb\n");
    EXPECT_EQ(paragraphs(u"\r\na"), u"\na\n");
}

TEST(Rtf, TheLastParagraphHasItsEndMarkAndSoHasAnEmptyOne) {
    const auto marks = [](std::u16string text) {
        return CountOf("\\par\r\n", ToRtf(ReportRuns{{std::move(text), false, {}}}));
    };
    EXPECT_EQ(marks(u"one"), 1U);
    EXPECT_EQ(marks(u"one\r\n"), 2U); // the second paragraph is empty
    EXPECT_EQ(marks(u"one\r\n\r\n"), 3U);
    EXPECT_EQ(marks(u"\r\n\r\n"), 3U);
}

TEST(Rtf, BoldIsSwitchedWhereItChanges) {
    const ReportRuns runs{{u"plain", false, {}},
                          {u"bold", true, {}},
                          {u"bold too", true, {}},
                          {u"plain again", false, {}}};
    const std::string file = ToRtf(runs);
    EXPECT_NE(file.find("\\b boldbold too\\b0 plain again"), std::string::npos);
    ExpectShown(runs);
}

TEST(Rtf, BoldAcrossLineBreaksStaysBold) {
    ExpectShown({{u"Heading\r\nsecond line\r\n\r\n", true, magenta}, {u"text", false, magenta}});
}

TEST(Rtf, TheColourTableBeginsWithTheInkOfTheReports) {
    const std::string file = ToRtf({});
    EXPECT_NE(file.find("{\\colortbl ;\\red128\\green0\\blue128;}"), std::string::npos);
    EXPECT_EQ(RtfReader::Read(file).colors, std::vector<Ink>{magenta});
}

TEST(Rtf, OtherColoursJoinTheTableOnceInTheirOrder) {
    const ReportRuns runs{{u"a", false, {255, 0, 0}},
                          {u"b", false, magenta},
                          {u"c", false, {0, 0, 255}},
                          {u"d", true, {255, 0, 0}}};
    EXPECT_EQ(RtfReader::Read(ToRtf(runs)).colors,
              (std::vector<Ink>{magenta, {255, 0, 0}, {0, 0, 255}}));
    ExpectShown(runs);
}

TEST(Rtf, BlackIsTheReadersOwnColour) {
    const ReportRuns runs{
        {u"black", false, {}}, {u"ink", false, magenta}, {u"black again", false, {}}};
    EXPECT_NE(ToRtf(runs).find("\\cf1 ink\\cf0 black again"), std::string::npos);
    EXPECT_EQ(CountOf("\\red0\\green0\\blue0", ToRtf(runs)), 0U);
    ExpectShown(runs);
}

TEST(Rtf, BlanksSurviveBehindControlWords) {
    ExpectShown({{u" one", true, magenta}, {u"  two ", false, {}}, {u" ", true, {}}});
    ExpectShown({{u"line\r\n indented\r\n  more", false, magenta}});
    ExpectShown({{u"\t x\u20AC x\u00E9 x", false, {}}});
}

TEST(Rtf, DigitsSignsAndLettersDoNotRunIntoControlWords) {
    ExpectShown({{u"1 first", true, {}}, {u"-2 second", false, {}}, {u"abc", true, magenta}});
    ExpectShown({{u"a\r\nbold\r\n12\r\n-3", false, {}}});
    ExpectShown({{u"\u20AC5\u20AC-5\u20ACx\u00E90\t7", false, {}}});
}

TEST(Rtf, EmptyRunsLeaveNoText) {
    const ReportRuns runs{{u"", true, {1, 2, 3}},
                          {u"text", false, {}},
                          {u"", true, magenta},
                          {u"more", false, {}},
                          {u"", true, {}}};
    EXPECT_EQ(RtfReader::Read(ToRtf(runs)).Text(), u"textmore\n");
    ExpectShown(runs);
    ExpectShown({{u"", false, {}}});
}

TEST(Rtf, HasTheFontThatIsAskedFor) {
    const RtfDocument plain = RtfReader::Read(ToRtf({}));
    EXPECT_EQ(plain.fonts, std::vector<std::string>{"Verdana"});
    EXPECT_EQ(plain.halfPoints, 18);
    const RtfDocument other = RtfReader::Read(ToRtf({}, {"DejaVu Sans", 24}));
    EXPECT_EQ(other.fonts, std::vector<std::string>{"DejaVu Sans"});
    EXPECT_EQ(other.halfPoints, 24);
}

TEST(Rtf, AFontNameCannotBreakTheFile) {
    const RtfDocument document = RtfReader::Read(ToRtf({}, {"A;B}{C\\par\n\xC3\xA9 D", 18}));
    EXPECT_EQ(document.fonts, std::vector<std::string>{"ABCpar D"});
    EXPECT_EQ(document.Text(), u"\n");
}

class RtfOfReport : public FreshStore {};

TEST_F(RtfOfReport, EveryTopicAndTheWholeReportComeBackRunByRun) {
    Named(u"OAK", u"", u"RIVER");
    Born(u"29", u"December", u"1985");
    RunAllCalculators();
    RunList pane;
    for (const std::u16string_view caption : treeOrder) {
        RenderTopic(pane, *FindTopic(caption));
        ExpectShown(pane.Runs());
    }
    RenderComprehensiveReading(pane);
    ExpectShown(pane.Runs());
}

} // namespace
} // namespace modReadings
