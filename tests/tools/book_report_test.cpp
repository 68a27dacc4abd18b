#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"

#include "numbers/book.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

QJsonArray BookAsJson() {
    const Finished run = RunProgram({"--book", "--format", "json"});
    ExpectGood(run);
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromStdString(run.out), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    EXPECT_TRUE(document.isArray());
    return document.array();
}

std::set<int> Numbers(int first, int last, std::set<int> more = {}) {
    for (int number = first; number <= last; ++number)
        more.insert(number);
    return more;
}

/// The numbers that have a reading, by the slot that shows it.
std::map<std::string, std::set<int>> Tables() {
    const std::set<int> masters = Numbers(1, 9, {11, 22});
    return {
        {"LifePathText", masters},
        {"DestinyText", masters},
        {"SoulUrgeText", masters},
        {"InnerDreamsText", masters},
        {"BirthdayText", Numbers(1, 31)},
        {"KarmicLessonsText", Numbers(1, 9)},
        {"HiddenPassionText", Numbers(1, 9)},
        {"PersonalYearText", Numbers(1, 9)},
        {"PersonalMonthText", Numbers(1, 9)},
        {"PersonalDayText", Numbers(1, 9)},
        {"LifePathPeriodsText", masters},
        {"PinnacleText", masters},
        {"ChallengeText", Numbers(0, 8)},
        {"EssenceText", masters},
        {"KarmicDebtText", {0, 13, 14, 16, 19}},
        {"BalanceText", Numbers(1, 9)},
        {"SubconsciousSelfText", Numbers(0, 9)},
        {"RationalThoughtText", masters},
        {"HPBridgeText", Numbers(0, 8)},
        {"LEBridgeText", Numbers(0, 8)},
        {"RealizationText", masters},
    };
}

TEST(BookReport, IsAnArrayOfSlotNumberAndText) {
    const QJsonArray book = BookAsJson();
    EXPECT_FALSE(book.isEmpty());
    for (const QJsonValue value : book) {
        ASSERT_TRUE(value.isObject());
        const QJsonObject entry = value.toObject();
        EXPECT_EQ(entry.keys(), (QStringList{"number", "slot", "text"}));
        EXPECT_TRUE(entry["slot"].isString());
        EXPECT_TRUE(entry["number"].isDouble() || entry["number"].isNull());
        EXPECT_TRUE(entry["text"].isString());
        EXPECT_FALSE(entry["text"].toString().isEmpty());
    }
}

TEST(BookReport, HasEveryReadingOnce) {
    std::map<std::string, std::set<int>> tables;
    for (const QJsonValue value : BookAsJson()) {
        const QJsonObject entry = value.toObject();
        if (entry["number"].isNull())
            continue;
        const std::string slot = entry["slot"].toString().toStdString();
        EXPECT_TRUE(tables[slot].insert(entry["number"].toInt(-1)).second)
            << slot << ' ' << entry["number"].toInt();
    }
    EXPECT_EQ(tables, Tables());
}

TEST(BookReport, HasEveryFixedText) {
    std::set<std::string> fixed;
    for (const QJsonValue value : BookAsJson())
        if (value.toObject()["number"].isNull())
            fixed.insert(value.toObject()["slot"].toString().toStdString());
    for (const char *slot : {"LifePathAbout",      "DestinyAbout",          "SoulUrgeAbout",
                             "InnerDreamsAbout",   "BirthdayAbout",         "KarmicLessonsAbout",
                             "HiddenPassionAbout", "PersonalYearAbout",     "PersonalMonthAbout",
                             "PersonalDayAbout",   "LifePathPeriodsAbout",  "PinnacleAbout",
                             "ChallengeAbout",     "EssenceAbout",          "KarmicDebtAbout",
                             "BalanceAbout",       "SubconsciousSelfAbout", "RationalThoughtAbout",
                             "HPBridgeAbout",      "LEBridgeAbout",         "RealizationAbout",
                             "PlanesAbout",        "PeriodStage1",          "PeriodStage2",
                             "PeriodStage3",       "RealizationText"}) // the refusal
        EXPECT_TRUE(fixed.contains(slot)) << slot;
}

std::string TextOf(const QJsonArray &book, const char *slot, const QJsonValue &number) {
    for (const QJsonValue value : book)
        if (value.toObject()["slot"].toString() == slot && value.toObject()["number"] == number)
            return value.toObject()["text"].toString().toStdString();
    ADD_FAILURE() << "no " << slot;
    return {};
}

TEST(BookReport, HasTheTextsAsTheReportShowsThem) {
    const QJsonArray book = BookAsJson();
    EXPECT_EQ(TextOf(book, "KarmicDebtText", 0), "Not Applicable");
    EXPECT_EQ(TextOf(book, "SubconsciousSelfText", 2), "This number is not valid for this name.");
    EXPECT_EQ(TextOf(book, "RealizationText", QJsonValue::Null),
              "Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
              "Please calculate these two figures first");
    EXPECT_EQ(TextOf(book, "PersonalMonthAbout", QJsonValue::Null),
              "Personal month number tells about the general trends, lessons to be learnt, "
              "difficulties to be faced and the rewards we will get in a particular month.");
    EXPECT_TRUE(
        TextOf(book, "LifePathText", 22).starts_with("It is the most powerful life path number."));
    EXPECT_NE(TextOf(book, "LifePathText", 22).find("\r\n"), std::string::npos);
    EXPECT_NE(TextOf(book, "PlanesAbout", QJsonValue::Null)
                  .find("\r\n\r\nPlanes of expression: Mental (mind): \r\n"),
              std::string::npos);
    EXPECT_TRUE(TextOf(book, "PlanesAbout", QJsonValue::Null).ends_with("\r\n\r\n"));
}

// Every reading that a report can show stands in the book, letter by letter.
TEST(BookReport, HasTheReadingsOfAReport) {
    const QJsonArray book = BookAsJson();
    const Finished run =
        RunProgram({"--first", "Anna", "--last", "Smith", "--month", "12", "--day", "29", "--year",
                    "1985", "--today", "2026-11-16", "--format", "json"});
    ExpectGood(run);
    const QJsonObject report = ParseObject(run.out);
    EXPECT_EQ(RunIn(report, "Personal Day", 2), TextOf(book, "PersonalDayText", 6));
    EXPECT_EQ(RunIn(report, "Birthday Number", 2), TextOf(book, "BirthdayText", 29));
    EXPECT_EQ(RunIn(report, "Soul Urge / Heart's Desire Number", 2),
              TextOf(book, "SoulUrgeText", 11));
    EXPECT_EQ(RunIn(report, "Essence", 1), TextOf(book, "EssenceAbout", {}) + "\r\n\r\n");
    EXPECT_EQ(RunIn(report, "Pinnacle Phases", 9), TextOf(book, "PinnacleText", 8));
    EXPECT_EQ(RunIn(report, "Challenge Number", 9), TextOf(book, "ChallengeText", 2));
    EXPECT_EQ(RunIn(report, "Life Path Periods", 8), TextOf(book, "PeriodStage3", {}));
}

TEST(BookReport, IsTheProgramsBookEntryByEntry) {
    const QJsonArray json = BookAsJson();
    const std::vector<modReadings::BookEntry> book = modReadings::Book();
    ASSERT_EQ(static_cast<std::size_t>(json.size()), book.size());
    for (std::size_t index = 0; index < book.size(); ++index) {
        const QJsonObject entry = json[static_cast<qsizetype>(index)].toObject();
        EXPECT_EQ(entry["slot"].toString().toStdString(), book[index].slot);
        EXPECT_EQ(entry["number"], book[index].number ? QJsonValue(int(*book[index].number))
                                                      : QJsonValue(QJsonValue::Null));
        EXPECT_EQ(entry["text"].toString().toStdString(), Utf8(book[index].text));
    }
}

TEST(BookReport, HasTheSameTextsInTheSameOrderAsText) {
    const Finished run = RunProgram({"--book"});
    ExpectGood(run);
    EXPECT_EQ(RunProgram({"--book", "--format", "text"}).out, run.out);
    EXPECT_EQ(run.out.find('\r'), std::string::npos);
    EXPECT_TRUE(run.out.ends_with('\n'));

    // Each entry: its slot and number on a line, then its text, a line break behind it.
    std::size_t at = 0;
    for (const QJsonValue value : BookAsJson()) {
        const QJsonObject entry = value.toObject();
        std::string title = entry["slot"].toString().toStdString();
        if (!entry["number"].isNull())
            title += ' ' + std::to_string(entry["number"].toInt());
        const std::string block =
            title + '\n' + Utf8(PlainBreaks(entry["text"].toString().toStdU16String())) + '\n';
        ASSERT_EQ(run.out.find(block, at), at) << title;
        at = std::min(run.out.find_first_not_of('\n', at + block.size()), run.out.size());
    }
    EXPECT_EQ(at, run.out.size());
}

} // namespace
