#include "tools/number_rows.h"

#include "core/clock.h"
#include "report/person.h"
#include "tests/tools/batch_answers.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

using modReadings::Captured;
using modReadings::UserProfile;

namespace {

/// The captions of topics with one number, and their columns.
constexpr std::pair<std::u16string_view, const char *> oneNumber[]{
    {u"Personal Month", "personal_month"},
    {u"Birthday Number", "birthday"},
    {u"Hidden Passion Number", "hidden_passion"},
    {u"Life Path Periods", "life_path_period"},
    {u"Personal Year", "personal_year"},
    {u"Subconscious Self Number", "subconscious_self"},
    {u"Life Path Number", "life_path"},
    {u"Destiny / Expressions Number", "destiny"},
    {u"Karmic Debt Numbers", "karmic_debt"},
    {u"Balance Number", "balance"},
    {u"Personal Day", "personal_day"},
    {u"Rational Thought Number", "rational_thought"},
    {u"H/P Bridge Number", "hp_bridge"},
    {u"L/E Bridge Number", "le_bridge"},
    {u"Essence", "essence"},
    {u"Realization / Maturity Number", "realization"},
    {u"Inner Dreams / Personality Number", "inner_dreams"},
    {u"Soul Urge / Heart's Desire Number", "soul_urge"}};

class NumberRows : public ::testing::Test {
protected:
    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
    const UserProfile ann_ = Captured({"Ann", {}, "Lee", "March", "7", "1990"});
};

// After the second run of each calculator: Karmic Debt and H/P Bridge differ from the pass.
TEST_F(NumberRows, AreThoseThatClicksOnTheTopicsShow) {
    for (const char *first : {"Ann", "Clara Jane", "Mary Ann 7", "Yvy", "Zoë"})
        for (const auto &[day, month, year] : {std::tuple("7", "March", "1990"),
                                               {"29", "December", "1985"},
                                               {"13", "October", "2050"},
                                               {"19", "June", "1900"}}) {
            const UserProfile person = Captured({first, "X", "Lee", month, day, year});
            const PersonReading reading = ReadPerson(person, AllCaptions());
            const QJsonObject row = ParseObject(NumbersAsJson(person, {}));
            for (const auto &[caption, column] : oneNumber) {
                const auto topic =
                    std::ranges::find(reading.topics, caption, &TopicReading::caption);
                ASSERT_NE(topic, reading.topics.end());
                EXPECT_TRUE(row[column].isDouble()) << column;
                EXPECT_EQ(QString::number(row[column].toInt(-1)).toStdU16String(), topic->number)
                    << column << " of " << first;
            }
            const auto text = [&](std::u16string_view caption) {
                return QString::fromStdU16String(
                    std::ranges::find(reading.topics, caption, &TopicReading::caption)->number);
            };
            EXPECT_EQ(row["karmic_lessons"].toString(), text(u"Karmic Lessons Number").trimmed());
            EXPECT_EQ(row["plane"].toString(), text(u"Planes Of Expression / Personal Aspects"));
            QStringList challenges;
            for (int index = 1; index <= 4; ++index) {
                const QString name = "challenge_" + QString::number(index);
                EXPECT_TRUE(row[name].isDouble());
                challenges << QString::number(row[name].toInt(-1));
            }
            EXPECT_EQ(challenges.join(' '), text(u"Challenge Number"));
            // The pinnacles and the shares stand in the readings.
            const QString all = QString::fromStdString(ReadingAsText(reading));
            for (const auto &[ordinal, name] : {std::pair("First", "pinnacle_1"),
                                                {"Second", "pinnacle_2"},
                                                {"Third", "pinnacle_3"},
                                                {"Fourth", "pinnacle_4"}}) {
                const qsizetype line = all.indexOf(QString(ordinal) + " Pinnacle from");
                ASSERT_GE(line, 0);
                EXPECT_TRUE(all.sliced(line, all.indexOf('\n', line) - line)
                                .endsWith(" is " + QString::number(row[name].toInt(-1))) ||
                            all.sliced(line, all.indexOf('\n', line) - line)
                                .endsWith(" is  " + QString::number(row[name].toInt(-1))));
            }
            for (const auto &[plane, name] : {std::pair("Mental", "mental_percent"),
                                              {"Physical", "physical_percent"},
                                              {"Emotional", "emotional_percent"},
                                              {"Intuitive", "intuitive_percent"}})
                EXPECT_TRUE(all.contains(QString(plane) + " Ability " +
                                         QString::number(row[name].toInt(-1)) + " - "))
                    << name << row[name].toInt(-1);
        }
}

TEST_F(NumberRows, OfJsonHaveThePersonTheLineAndTheFurtherMembers) {
    const std::string row = NumbersAsJson(ann_, {12, R"({"id":1.50})"});
    EXPECT_TRUE(row.starts_with(
        R"({"first":"ANN","middle":"","last":"LEE","month":"March","day":7,"year":1990,)"
        R"("today":"2026-11-16","line":12,"input":{"id":1.50},"personal_month":)"))
        << row;
    EXPECT_TRUE(row.ends_with("}\n"));
    EXPECT_FALSE(ParseObject(NumbersAsJson(ann_, {})).contains("line"));
}

TEST_F(NumberRows, HaveAsManyFieldsAsTheHeader) {
    for (const auto &[format, separator] : {std::pair(Format::Csv, ','), {Format::Tsv, '\t'}}) {
        const QStringList header =
            QString::fromStdString(HeaderRow(format)).chopped(1).split(separator);
        EXPECT_EQ(header.size(), 8 + 32 + 2);
        EXPECT_EQ(header.first(8), (QStringList{"line", "first", "middle", "last", "month", "day",
                                                "year", "today"}));
        const QStringList row =
            QString::fromStdString(NumbersAsRow(format, ann_, {3, {}})).chopped(1).split(separator);
        ASSERT_EQ(row.size(), header.size());
        EXPECT_EQ(row.first(8),
                  (QStringList{"3", "ANN", "", "LEE", "March", "7", "1990", "2026-11-16"}));
        const QJsonObject object = ParseObject(NumbersAsJson(ann_, {}));
        for (qsizetype column = 8; column < 40; ++column)
            EXPECT_EQ(row[column], object[header[column]].toVariant().toString()) << column;
        EXPECT_EQ(row.last(2), (QStringList{"", ""}));
        const QStringList error = QString::fromStdString(ErrorAsRow(format, {4, {}}, "no day"))
                                      .chopped(1)
                                      .split(separator);
        ASSERT_EQ(error.size(), header.size());
        EXPECT_EQ(error.front(), "4");
        EXPECT_EQ(error.back(), "no day");
        EXPECT_EQ(error.count(QString()), header.size() - 2);
    }
}

TEST_F(NumberRows, QuoteInCsvAloneAndStayOneLine) {
    const UserProfile odd =
        Captured({u"A\n\u202E\tb"_s, "say \"x\"", "Lee, Jr", "March", "7", "1990"});
    const std::string csv = NumbersAsRow(Format::Csv, odd, {3, R"({"id":"a,b"})"});
    EXPECT_TRUE(csv.starts_with("3,A\\n\\x202E\\tB,\"SAY \"\"X\"\"\",\"LEE, JR\",March,")) << csv;
    EXPECT_TRUE(csv.ends_with(",\"{\"\"id\"\":\"\"a,b\"\"}\",\n")) << csv;
    const std::string tsv = NumbersAsRow(Format::Tsv, odd, {3, R"({"id":"a,b"})"});
    EXPECT_TRUE(tsv.starts_with("3\tA\\n\\x202E\\tB\tSAY \"X\"\tLEE, JR\tMarch\t")) << tsv;
    EXPECT_TRUE(tsv.ends_with("\t{\"id\":\"a,b\"}\t\n")) << tsv;
    for (const std::string &row : {csv, tsv})
        EXPECT_EQ(std::ranges::count(row, '\n'), 1);
    // A mark of byte order is a character of a name like any other.
    UserProfile marked = odd;
    marked.FirstName = u"\uFEFFANN";
    EXPECT_TRUE(NumbersAsRow(Format::Csv, marked, {3, {}})
                    .starts_with("3,\xEF\xBB\xBF"
                                 "ANN,"));
}

} // namespace
