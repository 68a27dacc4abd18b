#include "tests/support/rtf_reader.h"
#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace modReadings;

namespace {

constexpr Ink magenta{128, 0, 128};
constexpr std::chrono::year_month_day today = std::chrono::year(2026) / 11 / 16;

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};

std::string Rtf(const std::vector<std::u16string> &captions) {
    Arguments options = PersonOptions(anna);
    options.insert(options.end(), {"--today", "2026-11-16", "--format", "rtf"});
    for (const std::u16string &caption : captions)
        options.insert(options.end(), {"--topic", Utf8(caption)});
    const Finished run = RunProgram(options);
    ExpectGood(run);
    return run.out;
}

/// The bold characters that are no line break, in their order.
std::string Emphasis(const std::vector<RtfCharacter> &characters) {
    std::u16string bold;
    for (const RtfCharacter &character : characters)
        if (character.bold && character.unit != u'\n')
            bold += character.unit;
    return Utf8(bold);
}

/// Every topic by itself and the Comprehensive Reading.
class OneTopicAsRtf : public testing::TestWithParam<std::size_t> {
protected:
    std::u16string Caption() const {
        return GetParam() < headings.size() ? headings[GetParam()].caption : comprehensiveReading;
    }
};

TEST_P(OneTopicAsRtf, ShowsItsPage) {
    const Runs runs = ExpectedRuns(anna, today, {Caption()}).front();
    const RtfDocument shown = RtfReader::Read(Rtf({Caption()}));
    // The last paragraph has its end mark too.
    EXPECT_EQ(Utf8(shown.Text()), Utf8(PlainBreaks(TextOf(runs)) + u'\n'));
    EXPECT_TRUE(shown.characters == ShownCharacters(runs)) << "weight or colour";
}

TEST_P(OneTopicAsRtf, IsMagentaInPlainAscii) {
    const std::string rtf = Rtf({Caption()});
    for (const RtfCharacter &character : RtfReader::Read(rtf).characters)
        ASSERT_TRUE(character.unit == u'\n' || character.ink == magenta);
    EXPECT_TRUE(std::ranges::all_of(
        rtf, [](char c) { return (c >= 0x20 && c < 0x7F) || c == '\r' || c == '\n'; }));
    for (std::size_t at = rtf.find('\n'); at != std::string::npos; at = rtf.find('\n', at + 1))
        ASSERT_EQ(rtf[at - 1], '\r');
}

INSTANTIATE_TEST_SUITE_P(AllCaptions, OneTopicAsRtf, testing::Range<std::size_t>(0, 23));

TEST(RtfReport, IsOneDocumentOfAllTopicsByDefault) {
    const std::string rtf = Rtf({});
    EXPECT_EQ(rtf, Rtf(AllTopics()));
    const RtfDocument shown = RtfReader::Read(rtf);

    Runs all;
    const std::u16string text = shown.Text();
    std::u16string_view rest = text;
    for (const Runs &runs : ExpectedRuns(anna, today, AllTopics())) {
        all.insert(all.end(), runs.begin(), runs.end());
        // One page behind the other with at least one empty line between.
        const std::u16string page = PlainBreaks(TextOf(runs));
        ASSERT_TRUE(rest.starts_with(page)) << Utf8(rest.substr(0, 200));
        const std::size_t next = std::min(rest.find_first_not_of(u'\n', page.size()), rest.size());
        const std::size_t end = page.find_last_not_of(u'\n') + 1;
        EXPECT_GE(next - end, next == rest.size() ? 1U : 2U);
        rest.remove_prefix(next);
    }
    EXPECT_EQ(Utf8(rest), "");
    EXPECT_EQ(Emphasis(shown.characters), Emphasis(ShownCharacters(all)));
}

TEST(RtfReport, SaysWhatTheTextSays) {
    Arguments options = PersonOptions(anna);
    options.insert(options.end(), {"--today", "2026-11-16"});
    const Finished text = RunProgram(options);
    ExpectGood(text);
    std::u16string words = RtfReader::Read(Rtf({})).Text();
    std::erase(words, u'\n');
    std::string plain = text.out;
    std::erase(plain, '\n');
    EXPECT_EQ(Utf8(words), plain);
}

// The reader itself: characters that are escaped, stand-ins, groups.
TEST(RtfReader, ShowsWhatAWordProcessorShows) {
    const RtfDocument shown = RtfReader::Read(
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Verdana;}}\r\n{\\colortbl ;\\red1\\green2\\blue3;}"
        "\\uc1\\pard a\\b\\cf1  b\\b0{\\b c}\\{\\\\\\u233\\'e9\\u-10179?\\u-8704?\\par\r\n}\r\n");
    EXPECT_EQ(Utf8(shown.Text()), "a bc{\\é😀\n");
    EXPECT_EQ(Emphasis(shown.characters), " bc");
    EXPECT_EQ(shown.characters[0].ink, Ink{});
    EXPECT_EQ(shown.characters[2].ink, (Ink{1, 2, 3}));
}

} // namespace
