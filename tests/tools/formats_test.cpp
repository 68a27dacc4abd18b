#include "tools/formats.h"

#include "core/clock.h"
#include "report/person.h"
#include "tests/support/rtf_reader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using modReadings::BookEntry;
using modReadings::RtfReader;

namespace {

/// A reading of two topics, the first of which ends without a line break.
PersonReading TwoTopics() {
    return {{u"ANN", u"", u"LEE \"É\"", u"March", u"7", u"1990"},
            std::chrono::year(2026) / 3 / 5,
            {{u"One", u" 3 7", {{u"Heading: 3\r\n\r\n", true}, {u"Text\r\nof it", false}}},
             {u"Two", u"", {{u"Other\r\n\r\n", true}, {u"", false}}}}};
}

/// All that can be read of a person, by every caption.
PersonReading Everything() {
    const modReadings::FixedClock clock(std::chrono::year(2026) / 11 / 16);
    std::vector<std::u16string_view> captions = AllCaptions();
    captions.push_back(KnownCaption(u"Comprehensive Reading"));
    return ReadPerson(modReadings::Captured({"Zoë", {}, "Strauß 😀", "May", "29", "1985"}),
                      captions);
}

TEST(ReadingAsText, HasPlainBreaksAndAnEmptyLineBetweenTopics) {
    EXPECT_EQ(ReadingAsText(TwoTopics()), "Heading: 3\n\nText\nof it\n\nOther\n\n");
    EXPECT_EQ(ReadingAsText({}), "");
}

TEST(ReadingAsJson, HasThePersonTheDayAndTheRuns) {
    EXPECT_EQ(
        ReadingAsJson(TwoTopics()),
        R"({"first":"ANN","middle":"","last":"LEE \"É\"","month":"March","day":7,)"
        R"("year":1990,"today":"2026-03-05","topics":[)"
        R"({"caption":"One","number":" 3 7","runs":[)"
        R"({"text":"Heading: 3\r\n\r\n","bold":true},{"text":"Text\r\nof it","bold":false}]},)"
        R"({"caption":"Two","number":"","runs":[)"
        R"({"text":"Other\r\n\r\n","bold":true},{"text":"","bold":false}]}]})"
        "\n");
}

TEST(ReadingAsJson, WritesTheDayWithFourDigitsOfTheYear) {
    PersonReading reading = TwoTopics();
    reading.day = std::chrono::year(26) / 12 / 31;
    reading.topics.clear();
    EXPECT_NE(ReadingAsJson(reading).find(R"("today":"0026-12-31","topics":[])"),
              std::string::npos);
}

TEST(ReadingAsJson, EscapesWhatANameMayHold) {
    PersonReading reading = TwoTopics();
    reading.person.FirstName = u"AN\"N\\\t\x7F\x01\n😀";
    EXPECT_TRUE(ReadingAsJson(reading).starts_with("{\"first\":\"AN\\\"N\\\\\\t\x7F\\u0001\\n😀\""));
}

// What an independent reader of JSON gets back is the reading.
TEST(ReadingAsJson, ComesBackRunByRun) {
    const PersonReading reading = Everything();
    const QJsonArray topics =
        QJsonDocument::fromJson(QByteArray::fromStdString(ReadingAsJson(reading)))["topics"]
            .toArray();
    ASSERT_EQ(static_cast<std::size_t>(topics.size()), reading.topics.size());
    for (std::size_t index = 0; index < reading.topics.size(); ++index) {
        const QJsonValue topic = topics[static_cast<qsizetype>(index)];
        EXPECT_EQ(topic["caption"].toString().toStdU16String(), reading.topics[index].caption);
        EXPECT_EQ(topic["number"].toString().toStdU16String(), reading.topics[index].number);
        modReadings::Report report;
        for (const QJsonValue run : topic["runs"].toArray())
            report.push_back({run["text"].toString().toStdU16String(), run["bold"].toBool()});
        EXPECT_TRUE(report == reading.topics[index].report) << index;
    }
}

TEST(ReadingAsRtf, ShowsEveryTopicByItself) {
    PersonReading one = Everything();
    for (const TopicReading &topic : Everything().topics) {
        one.topics = {topic};
        EXPECT_TRUE(RtfReader::Read(ReadingAsRtf(one)).characters == ShownCharacters(topic.report));
    }
}

TEST(ReadingAsRtf, IsOneDocumentWithAnEmptyLineBetweenTopics) {
    const std::string rtf = ReadingAsRtf(TwoTopics());
    EXPECT_EQ(RtfReader::Read(rtf).Text(), u"Heading: 3\n\nText\nof it\n\nOther\n\n\n");
}

TEST(ReadingAs, ChoosesAmongTheFormats) {
    const PersonReading reading = TwoTopics();
    EXPECT_EQ(ReadingAs(Format::Text, reading), ReadingAsText(reading));
    EXPECT_EQ(ReadingAs(Format::Json, reading), ReadingAsJson(reading));
    EXPECT_EQ(ReadingAs(Format::Rtf, reading), ReadingAsRtf(reading));
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

TEST(BookAsJson, ComesBackEntryByEntry) {
    std::vector<BookEntry> book = modReadings::Book();
    book.push_back({"Zero", 0, u"é\r\n\"😀"});
    const std::string bytes = BookAsJson(book);
    EXPECT_TRUE(bytes.ends_with("]\n"));
    const QJsonArray json = QJsonDocument::fromJson(QByteArray::fromStdString(bytes)).array();
    ASSERT_EQ(static_cast<std::size_t>(json.size()), book.size());
    for (std::size_t index = 0; index < book.size(); ++index) {
        const auto &[slot, number, text] = book[index];
        EXPECT_EQ(json[static_cast<qsizetype>(index)].toObject(),
                  (QJsonObject{{"slot", QString::fromStdString(slot)},
                               {"number", number ? QJsonValue(int{*number}) : QJsonValue()},
                               {"text", QString::fromStdU16String(text)}}));
    }
}

} // namespace
