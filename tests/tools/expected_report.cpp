#include "tests/tools/expected_report.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "report/rendering.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>

using namespace modReadings;

namespace {

std::u16string Text16(const QJsonValue &value) { return value.toString().toStdU16String(); }

QStringList Sorted(QStringList keys) {
    keys.sort();
    return keys;
}

} // namespace

std::string Utf8(std::u16string_view text) { return QStringView(text).toUtf8().toStdString(); }

std::vector<std::u16string> AllTopics() {
    std::vector<std::u16string> captions;
    for (const Heading &heading : headings)
        captions.emplace_back(heading.caption);
    return captions;
}

std::vector<Runs> ExpectedRuns(const Person &person, std::chrono::year_month_day today,
                               const std::vector<std::u16string> &captions) {
    const FixedClock clock(today);
    profile = {};
    store = {};
    CaptureProfile(person);
    RunAllCalculators();

    std::vector<Runs> expected;
    for (const std::u16string &caption : captions) {
        RunList pane;
        if (caption == comprehensiveReading) {
            RenderComprehensiveReading(pane);
        } else if (const Topic *topic = FindTopic(caption)) {
            RunAndRenderTopic(pane, *topic);
        } else {
            ADD_FAILURE() << "no topic " << Utf8(caption);
        }
        expected.push_back(pane.TakeRuns());
    }
    return expected;
}

std::u16string TextOf(const Runs &runs) {
    std::u16string text;
    for (const Run &run : runs)
        text += run.text;
    return text;
}

std::u16string PlainBreaks(std::u16string_view text) {
    std::u16string plain;
    for (std::size_t index = 0; index < text.size(); ++index)
        if (text.substr(index, 2) != u"\r\n")
            plain += text[index];
    return plain;
}

Arguments PersonOptions(const Person &person) {
    Arguments options{
        "--first", person.firstName.toStdString(),  "--last", person.lastName.toStdString(),
        "--month", person.birthMonth.toStdString(), "--day",  person.birthDay.toStdString(),
        "--year",  person.birthYear.toStdString()};
    if (!person.middleName.isNull())
        options.insert(options.end(), {"--middle", person.middleName.toStdString()});
    return options;
}

QJsonObject ParseObject(const std::string &bytes) {
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromStdString(bytes), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError)
        << error.errorString().toStdString() << " at " << error.offset;
    EXPECT_TRUE(document.isObject()) << bytes.substr(0, 200);
    return document.object();
}

std::vector<TopicAsJson> TopicsOf(const QJsonObject &report) {
    EXPECT_EQ(report.keys(),
              Sorted({"first", "middle", "last", "month", "day", "year", "today", "topics"}));
    EXPECT_TRUE(report["topics"].isArray());
    std::vector<TopicAsJson> topics;
    for (const QJsonValue value : report["topics"].toArray()) {
        const QJsonObject topic = value.toObject();
        EXPECT_EQ(topic.keys(), Sorted({"caption", "number", "runs"}));
        EXPECT_TRUE(topic["caption"].isString());
        EXPECT_TRUE(topic["number"].isString());
        EXPECT_TRUE(topic["runs"].isArray());
        TopicAsJson read{Text16(topic["caption"]), Text16(topic["number"]), {}};
        for (const QJsonValue element : topic["runs"].toArray()) {
            const QJsonObject run = element.toObject();
            EXPECT_EQ(run.keys(), Sorted({"text", "bold"}));
            EXPECT_TRUE(run["text"].isString());
            EXPECT_TRUE(run["bold"].isBool());
            read.runs.push_back({Text16(run["text"]), run["bold"].toBool(), {}});
        }
        topics.push_back(std::move(read));
    }
    return topics;
}

void ExpectTopics(const QJsonObject &report, const std::vector<std::u16string> &captions,
                  const std::vector<Runs> &expected) {
    const std::vector<TopicAsJson> topics = TopicsOf(report);
    ASSERT_EQ(topics.size(), captions.size());
    for (std::size_t index = 0; index < captions.size(); ++index) {
        const TopicAsJson &topic = topics[index];
        SCOPED_TRACE(Utf8(captions[index]));
        EXPECT_EQ(Utf8(topic.caption), Utf8(captions[index]));
        ASSERT_EQ(topic.runs.size(), expected[index].size());
        for (std::size_t run = 0; run < topic.runs.size(); ++run) {
            SCOPED_TRACE(run);
            EXPECT_EQ(Utf8(topic.runs[run].text), Utf8(expected[index][run].text));
            EXPECT_EQ(topic.runs[run].bold, expected[index][run].bold);
        }
        // The heading is its literal, the number behind it and two line breaks.
        const auto heading = std::ranges::find(headings, captions[index], &Heading::caption);
        if (heading != headings.end()) {
            EXPECT_EQ(Utf8(topic.runs.front().text),
                      Utf8(heading->literal + topic.number + u"\r\n\r\n"));
        } else {
            EXPECT_EQ(Utf8(topic.number), "");
        }
    }
}

std::string NumberIn(const QJsonObject &report, const char *caption) {
    for (const TopicAsJson &topic : TopicsOf(report))
        if (Utf8(topic.caption) == caption)
            return Utf8(topic.number);
    ADD_FAILURE() << "no topic " << caption;
    return {};
}

std::string RunIn(const QJsonObject &report, const char *caption, std::size_t index) {
    for (const TopicAsJson &topic : TopicsOf(report)) {
        if (Utf8(topic.caption) != caption)
            continue;
        if (index < topic.runs.size())
            return Utf8(topic.runs[index].text);
    }
    ADD_FAILURE() << "no run " << index << " of " << caption;
    return {};
}
