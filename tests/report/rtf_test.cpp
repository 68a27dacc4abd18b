#include "report/rtf.h"

#include "report/rendering.h"
#include "tests/support/expected_report.h"
#include "tests/support/fresh_store.h"
#include "tests/support/report_text.h"
#include "tests/support/rtf_reader.h"

namespace modReadings {
namespace {

constexpr std::string_view tail = "\\par\r\n}\r\n";

/// What stands between the head of the file and its end.
std::string BodyOf(const Report &report) {
    const std::string file = ToRtf(report);
    const std::size_t head = ToRtf({}).size() - tail.size();
    EXPECT_TRUE(file.ends_with(tail));
    return file.substr(head, file.size() - tail.size() - head);
}

void ExpectShown(const Report &report) {
    RtfDocument document;
    ASSERT_NO_THROW(document = RtfReader::Read(ToRtf(report)));
    const std::vector<RtfCharacter> expected = ShownCharacters(report);
    std::u16string text;
    for (const RtfCharacter &character : expected)
        text += character.unit;
    ASSERT_EQ(Readable(document.Text()), Readable(text));
    for (std::size_t index = 0; index < expected.size(); ++index)
        ASSERT_TRUE(document.characters[index] == expected[index]) << "character " << index;
}

TEST(Rtf, OfNothingIsOneEmptyParagraphInFontAndInk) {
    EXPECT_EQ(ToRtf({}), "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 "
                         "Verdana;}}\r\n{\\colortbl ;\\red128\\green0\\blue128;}\r\n"
                         "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs18 \\par\r\n}\r\n");
    ExpectShown({});
}

TEST(Rtf, WritesEachCharacterInItsWay) {
    std::u16string printable;
    for (char16_t unit = 0x21; unit < 0x7F; ++unit)
        if (unit != u'\\' && unit != u'{' && unit != u'}')
            printable += unit;
    const std::pair<std::u16string, std::string> texts[] = {
        {printable, std::string(printable.begin(), printable.end())},
        {u"{a}\\b", "\\{a\\}\\\\b"},
        {u"a\tb", "a\\tab b"},
        {u" a b   c ", " a b \\'20\\'20c "}, // readers make one of blanks that stand together
        // Latin-1 stands behind its number for old readers.
        {u"\u00E9\u00FF\u00A0", "\\u233\\'e9\\u255\\'ff\\u160\\'a0"},
        // All else is a signed number with a question mark.
        {u"\u20AC\u0159\u0905\u009F", "\\u8364?\\u345?\\u2309?\\u159?"},
        {u"\u7FFF\u8000\uFFFD", "\\u32767?\\u-32768?\\u-3?"},
        {u"\U0001F600", "\\u-10179?\\u-8704?"}, // D83D and DE00, each less 65536
        {u"\x7F\x01", "\\u127?\\u1?"},
        // Line breaks of all kinds end paragraphs.
        {u"a\r\nb\nc\rd", "a\\par\r\nb\\par\r\nc\\par\r\nd"},
        {u"\r\n\n\r\r\r\n", "\\par\r\n\\par\r\n\\par\r\n\\par\r\n\\par\r\n"},
    };
    for (const auto &[text, body] : texts) {
        EXPECT_EQ(BodyOf({{text}}), body);
        ExpectShown({{text}});
    }
}

TEST(Rtf, SwitchesBoldWhereItChanges) {
    const Report report{{u"plain"}, {u"bold\r\n", true}, {u" too", true}, {u"", false}, {u" x"}};
    EXPECT_EQ(BodyOf(report), "plain\\b bold\\par\r\n too\\b0  x");
    ExpectShown(report);
    EXPECT_EQ(BodyOf({{u"a "}, {u" b", true}}), "a \\b \\'20b"); // blanks on both sides of a run
    EXPECT_EQ(BodyOf({{u"", true}, {u"text"}}), "\\b \\b0 text");
}

TEST(Rtf, EveryUnitComesBackFromAReader) {
    std::u16string all;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
        if (unit != u'\r' && unit != u'\n')
            all += static_cast<char16_t>(unit);
    ASSERT_EQ(all.size(), 65534U);
    ExpectShown({{all}});
}

TEST(Rtf, NothingRunsIntoControlWords) {
    ExpectShown({{u" one", true}, {u"  two "}, {u" ", true}, {u"line\r\n indented\r\n  more"}});
    ExpectShown({{u"1 first", true}, {u"-2 second"}, {u"abc", true}, {u"\t x\u20AC x\u00E9 x"}});
    ExpectShown({{u"a\r\nbold\r\n12\r\n-3"}, {u"\u20AC5\u20AC-5\u20ACx\u00E90\t7"}});
    ExpectShown({{u"}}}{\\par\\b bold{\\'e9}"}});
}

TEST(Rtf, HasTheFontThatIsAskedForAndNoNameBreaksTheFile) {
    const RtfDocument other = RtfReader::Read(ToRtf({}, {"DejaVu Sans", 24}));
    EXPECT_EQ(other.fonts, std::vector<std::string>{"DejaVu Sans"});
    EXPECT_EQ(other.halfPoints, 24);
    const RtfDocument broken = RtfReader::Read(ToRtf({}, {"A;B}{C\\par\n\xC3\xA9 D", 18}));
    EXPECT_EQ(broken.fonts, std::vector<std::string>{"ABCpar D"});
    EXPECT_EQ(broken.Text(), u"\n");
}

class RtfOfReport : public FreshStore {};

TEST_F(RtfOfReport, ComesBackRunByRun) {
    OakRiver();
    ExpectShown(RenderComprehensiveReading());
}

} // namespace
} // namespace modReadings
