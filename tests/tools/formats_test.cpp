#include "tools/formats.h"

#include "core/clock.h"
#include "report/person.h"
#include "tests/support/rtf_reader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(HeadOf, HasTheNameAsItIs) {
    modReadings::UserProfile person{u"\uFEFFANN\n", u"M", u"\uFEFFLEE", u"March", u"7", u"1990"};
    EXPECT_EQ(HeadOf(person, std::chrono::year(2026) / 11 / 21).front().text,
              u"\uFEFFANN\\n M \uFEFFLEE");
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
    EXPECT_TRUE(
        ReadingAsJson(reading).starts_with("{\"first\":\"AN\\\"N\\\\\\t\\u007F\\u0001\\n😀\""));
}

// JSON is looked at on terminals too. What is no control and turns no direction stays as it is.
TEST(ReadingAsJson, EscapesWhatMightActOnATerminal) {
    PersonReading reading = TwoTopics();
    reading.person.LastName = u"\x7E\x7F\x80\x9B\x9F\xA0\x61C\x61D\x200D\x200E\x200F\x2010"
                              u"\x2028\x2029\x202A\x202E\x202F\x2065\x2066\x2069\x206A";
    EXPECT_NE(ReadingAsJson(reading).find(
                  "\"last\":\"~\\u007F\\u0080\\u009B\\u009F\u00A0\\u061C\u061D\u200D"
                  "\\u200E\\u200F\u2010\\u2028\\u2029\\u202A\\u202E\u202F\u2065\\u2066"
                  "\\u2069\u206A\","),
              std::string::npos)
        << ReadingAsJson(reading);
    EXPECT_NE(ErrorAsJson({1, {}}, "a\u202Eb").find("a\\u202Eb"), std::string::npos);
    const QJsonObject object =
        QJsonDocument::fromJson(QByteArray::fromStdString(ReadingAsJson(reading))).object();
    EXPECT_EQ(object["last"].toString().toStdU16String(), reading.person.LastName);
}

// Every control character, with more behind it than the fast way of the library looks at once.
TEST(ReadingAsJson, IsValidWhateverANameHolds) {
    for (char16_t control = 0; control < 0x20; ++control) {
        const std::u16string name =
            std::u16string(u"A") + control + u"]0;x" + std::u16string(40, u'N');
        PersonReading reading = TwoTopics();
        reading.person.FirstName = reading.person.MiddleName = reading.person.LastName = name;
        const QString text = QString::fromStdU16String(name);
        const LineFacts line{7, {}};
        for (const std::string &json :
             {ReadingAsJson(reading), ErrorAsJson(line, text.toStdString())}) {
            EXPECT_TRUE(std::ranges::none_of(json.substr(0, json.size() - 1), [](char c) {
                return static_cast<unsigned char>(c) < 0x20;
            })) << int(control);
            const QJsonObject object =
                QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
            for (const char *member : {"first", "middle", "last", "error"})
                if (object.contains(member)) {
                    EXPECT_EQ(object[member].toString(), text);
                }
            EXPECT_TRUE(object.contains("first") || object.contains("error")) << int(control);
        }
    }
}

TEST(ReadingAsJson, HasTheLineAndTheFurtherMembersOfAPersonInABatch) {
    PersonReading reading = TwoTopics();
    reading.topics.clear();
    EXPECT_TRUE(ReadingAsJson(reading, {12, R"({"id":1.50})"})
                    .ends_with(R"("today":"2026-03-05","line":12,"input":{"id":1.50},"topics":[]})"
                               "\n"));
    EXPECT_TRUE(ReadingAsJson(reading, {3'000'000'000, {}})
                    .ends_with(R"("today":"2026-03-05","line":3000000000,"topics":[]})"
                               "\n"));
    EXPECT_EQ(ErrorAsJson({12, R"({"id":[1]})"}, "no"),
              R"({"line":12,"error":"no","input":{"id":[1]}})"
              "\n");
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
    EXPECT_EQ(ErrorAsJson({12, {}}, "not \"this\"\nnor that"),
              R"({"line":12,"error":"not \"this\"\nnor that"})"
              "\n");
    EXPECT_EQ(ErrorAsJson({3'000'000'000, {}}, "é"), "{\"line\":3000000000,\"error\":\"é\"}\n");
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
