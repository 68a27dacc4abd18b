#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"
#include "tests/tools/rtf_reader.h"

#include <gtest/gtest.h>

#include <algorithm>

using modReadings::Person;

namespace {

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

std::u16string TextOf(const std::vector<ShownCharacter> &shown) {
    std::u16string text;
    for (const ShownCharacter &character : shown)
        text += character.unit;
    return text;
}

/// The characters that are no line break, bold ones as they are, others with a mark.
std::u16string Marked(const Runs &runs) {
    std::u16string marked;
    for (const auto &run : runs)
        for (const char16_t unit : run.text)
            if (unit != u'\r' && unit != u'\n')
                marked += run.bold ? std::u16string{u'*', unit} : std::u16string{unit};
    return marked;
}

std::u16string Marked(const std::vector<ShownCharacter> &shown) {
    std::u16string marked;
    for (const ShownCharacter &character : shown)
        if (character.unit != u'\n')
            marked += character.bold ? std::u16string{u'*', character.unit}
                                     : std::u16string{character.unit};
    return marked;
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
    const std::vector<ShownCharacter> shown = ReadRtf(Rtf({Caption()}));
    // The last paragraph has its end mark too.
    EXPECT_EQ(Utf8(TextOf(shown)), Utf8(PlainBreaks(::TextOf(runs)) + u'\n'));
    EXPECT_EQ(Utf8(Marked(shown)), Utf8(Marked(runs)));
}

TEST_P(OneTopicAsRtf, IsMagentaInPlainAscii) {
    const std::string rtf = Rtf({Caption()});
    for (const ShownCharacter &character : ReadRtf(rtf)) {
        if (character.unit == u'\n')
            continue;
        ASSERT_EQ(character.red, 128);
        ASSERT_EQ(character.green, 0);
        ASSERT_EQ(character.blue, 128);
    }
    EXPECT_TRUE(std::ranges::all_of(
        rtf, [](char c) { return (c >= 0x20 && c < 0x7F) || c == '\r' || c == '\n'; }));
    for (std::size_t at = rtf.find('\n'); at != std::string::npos; at = rtf.find('\n', at + 1))
        ASSERT_EQ(rtf[at - 1], '\r');
}

INSTANTIATE_TEST_SUITE_P(AllCaptions, OneTopicAsRtf, testing::Range<std::size_t>(0, 23));

TEST(RtfReport, IsOneDocumentOfAllTopicsByDefault) {
    const std::string rtf = Rtf({});
    EXPECT_EQ(rtf, Rtf(AllTopics()));
    const std::vector<ShownCharacter> shown = ReadRtf(rtf);

    Runs all;
    const std::u16string text = TextOf(shown);
    std::u16string_view rest = text;
    for (const Runs &runs : ExpectedRuns(anna, today, AllTopics())) {
        all.insert(all.end(), runs.begin(), runs.end());
        // One page behind the other with at least one empty line between.
        const std::u16string page = PlainBreaks(::TextOf(runs));
        ASSERT_TRUE(rest.starts_with(page)) << Utf8(rest.substr(0, 200));
        const std::size_t next = std::min(rest.find_first_not_of(u'\n', page.size()), rest.size());
        const std::size_t end = page.find_last_not_of(u'\n') + 1;
        EXPECT_GE(next - end, next == rest.size() ? 1U : 2U);
        rest.remove_prefix(next);
    }
    EXPECT_EQ(Utf8(rest), "");
    EXPECT_EQ(Utf8(Marked(shown)), Utf8(Marked(all)));
}

TEST(RtfReport, SaysWhatTheTextSays) {
    Arguments options = PersonOptions(anna);
    options.insert(options.end(), {"--today", "2026-11-16"});
    const Finished text = RunProgram(options);
    ExpectGood(text);
    std::u16string words = TextOf(ReadRtf(Rtf({})));
    std::erase(words, u'\n');
    std::string plain = text.out;
    std::erase(plain, '\n');
    EXPECT_EQ(Utf8(words), plain);
}

// The reader itself: characters that are escaped, stand-ins, groups.
TEST(RtfReader, ShowsWhatAWordProcessorShows) {
    const std::vector<ShownCharacter> shown = ReadRtf(
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Verdana;}}\r\n{\\colortbl ;\\red1\\green2\\blue3;}"
        "\\uc1\\pard a\\b\\cf1  b\\b0{\\b c}\\{\\\\\\u233\\'e9\\u-10179?\\u-8704?\\par\r\n}\r\n");
    EXPECT_EQ(Utf8(TextOf(shown)), "a bc{\\é😀\n");
    EXPECT_EQ(Utf8(Marked(shown)), "a* *b*c{\\é😀");
    EXPECT_EQ(shown[0].red, -1);
    EXPECT_EQ(shown[2].blue, 3);
}

} // namespace
