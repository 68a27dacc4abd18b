#include "tools/formats.h"

#include "core/clock.h"
#include "core/user_profile.h"

#include <gtest/gtest.h>

using modReadings::BookEntry;
using modReadings::profile;
using modReadings::Run;

namespace {

std::vector<TopicReading> TwoTopics() {
    return {{u"One", u" 3 7", {{u"Heading: 3\r\n\r\n", true, {}}, {u"Text\r\nof it", false, {}}}},
            {u"Two", u"", {{u"Other\r\n\r\n", true, {}}, {u"", false, {}}}}};
}

TEST(ToUtf8, EncodesEveryPlane) {
    EXPECT_EQ(ToUtf8(u""), "");
    EXPECT_EQ(ToUtf8(u"plain text"), "plain text");
    EXPECT_EQ(ToUtf8(u"\x7F\x80é€😀"), "\x7F\xC2\x80\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(std::u16string_view(u"A\0B", 3)), std::string("A\0B", 3));
}

TEST(ToUtf8, ReplacesASurrogateWithoutItsPartner) {
    const std::string replacement = "\xEF\xBF\xBD"; // U+FFFD
    EXPECT_EQ(ToUtf8(std::u16string{u'A', 0xD83D, u'B'}), "A" + replacement + "B");
    EXPECT_EQ(ToUtf8(std::u16string{u'A', 0xDE00}), "A" + replacement);
    EXPECT_EQ(ToUtf8(std::u16string{0xD83D}), replacement);
    EXPECT_EQ(ToUtf8(std::u16string{0xDE00, 0xD83D}), replacement + replacement);
}

TEST(ReadingsAsText, HasPlainBreaksAndAnEmptyLineBetweenTopics) {
    EXPECT_EQ(ReadingsAsText(TwoTopics()), "Heading: 3\n\nText\nof it\n\nOther\n\n");
    EXPECT_EQ(ReadingsAsText({}), "");
}

TEST(ReadingsAsText, EndsInALineBreakAlways) {
    const std::vector<TopicReading> one{{u"One", u"", {{u"Text", false, {}}}}};
    EXPECT_EQ(ReadingsAsText(one), "Text\n");
}

class FormatsOfAPerson : public testing::Test {
protected:
    FormatsOfAPerson() { profile = {u"ANN", u"", u"LEE \"É\"", u"March", u"7", u"1990"}; }
    ~FormatsOfAPerson() override { profile = {}; }

    modReadings::FixedClock clock{std::chrono::year(2026) / 3 / 5};
};

TEST_F(FormatsOfAPerson, JsonHasThePersonTheDayAndTheRuns) {
    EXPECT_EQ(
        ReadingsAsJson(TwoTopics()),
        R"({"first":"ANN","middle":"","last":"LEE \"É\"","month":"March","day":7,)"
        R"("year":1990,"today":"2026-03-05","topics":[)"
        R"({"caption":"One","number":" 3 7","runs":[)"
        R"({"text":"Heading: 3\r\n\r\n","bold":true},{"text":"Text\r\nof it","bold":false}]},)"
        R"({"caption":"Two","number":"","runs":[)"
        R"({"text":"Other\r\n\r\n","bold":true},{"text":"","bold":false}]}]})"
        "\n");
}

TEST_F(FormatsOfAPerson, JsonWritesTheDayWithFourDigitsOfTheYear) {
    clock.Set(std::chrono::year(26) / 12 / 31);
    EXPECT_NE(ReadingsAsJson({}).find(R"("today":"0026-12-31","topics":[])"), std::string::npos);
}

TEST_F(FormatsOfAPerson, OneFunctionChoosesAmongTheFormats) {
    const auto topics = TwoTopics();
    EXPECT_EQ(ReadingsAs(Format::Text, topics), ReadingsAsText(topics));
    EXPECT_EQ(ReadingsAs(Format::Json, topics), ReadingsAsJson(topics));
    EXPECT_EQ(ReadingsAs(Format::Rtf, topics), ReadingsAsRtf(topics));
    EXPECT_TRUE(ReadingsAsRtf(topics).starts_with("{\\rtf1"));
}

TEST(ErrorAsJson, IsAnObjectInOneLine) {
    EXPECT_EQ(ErrorAsJson(12, "not \"this\"\nnor that"),
              R"({"line":12,"error":"not \"this\"\nnor that"})"
              "\n");
    EXPECT_EQ(ErrorAsJson(3'000'000'000, "é"), "{\"line\":3000000000,\"error\":\"é\"}\n");
}

TEST(BookAsText, NamesSlotAndNumberOverEachText) {
    const std::vector<BookEntry> book{{"OneText", 11, u"First\r\nline é"},
                                      {"OneAbout", std::nullopt, u"About"}};
    EXPECT_EQ(BookAsText(book), "OneText 11\nFirst\nline é\n\nOneAbout\nAbout\n");
    EXPECT_EQ(BookAsText({}), "");
}

TEST(BookAsJson, HasNullForAFixedText) {
    const std::vector<BookEntry> book{{"OneText", 0, u"First\r\nline"},
                                      {"OneAbout", std::nullopt, u"é"}};
    std::string json = BookAsJson(book);
    std::erase_if(json, [](char c) { return c == ' ' || c == '\n'; });
    EXPECT_EQ(json, R"([{"slot":"OneText","number":0,"text":"First\r\nline"},)"
                    R"({"slot":"OneAbout","number":null,"text":"é"}])");
}

} // namespace
