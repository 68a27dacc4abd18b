// Names as people and machines give them: other alphabets, signs, and far too many letters.

#include "tests/support/rtf_reader.h"
#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"

#include <gtest/gtest.h>

using modReadings::Person;

namespace {

constexpr std::chrono::year_month_day today = std::chrono::year(2026) / 11 / 16;

QJsonObject Report(const Person &person) {
    Arguments options = PersonOptions(person);
    options.insert(options.end(), {"--today", "2026-11-16", "--format", "json"});
    const Finished run = RunProgram(options);
    ExpectGood(run);
    const QJsonObject report = ParseObject(run.out);
    ExpectTopics(report, AllTopics(), ExpectedRuns(person, today, AllTopics()));
    return report;
}

TEST(UnusualNames, KeepAccentsWithoutCountingThem) {
    const QJsonObject report = Report({"José", {}, "müller", "March", "7", "1990"});
    EXPECT_EQ(report["first"], "JOSÉ");
    EXPECT_EQ(report["last"], "MÜLLER");
    // J 1, O 6, S 1: 8. M 4, L 3, L 3, E 5, R 9: 24. Together 32.
    EXPECT_EQ(NumberIn(report, "Destiny / Expressions Number"), "5");
    EXPECT_EQ(NumberIn(report, "Soul Urge / Heart's Desire Number"), "11"); // O and E
}

TEST(UnusualNames, CountASharpSAsTwoLetters) {
    // Z 8, O 6: 14. S T R A U S S 1 2 9 1 3 1 1: 18. Together 32.
    const QJsonObject report = Report({"Zoë", {}, "Strauß", "March", "7", "1990"});
    EXPECT_EQ(report["first"], "ZOË");
    EXPECT_EQ(report["last"], "STRAUSS");
    EXPECT_EQ(NumberIn(report, "Destiny / Expressions Number"), "5");
    EXPECT_EQ(NumberIn(report, "Hidden Passion Number"), "1"); // S three times
}

TEST(UnusualNames, CountALigatureAsItsLetters) {
    // F I 6 9 and O: 21 in the first name, and A 1: 22.
    const QJsonObject report = Report({"ﬁo", {}, "a", "March", "7", "2026"});
    EXPECT_EQ(report["first"], "FIO");
    EXPECT_EQ(NumberIn(report, "Destiny / Expressions Number"), "22");
}

// An emoji is two units, each of which counts in the length of the name.
TEST(UnusualNames, TakeEmoji) {
    const QJsonObject report = Report({"Ann😀", {}, "Lee🎉", "March", "7", "1990"});
    EXPECT_EQ(report["first"], "ANN😀");
    EXPECT_EQ(report["last"], "LEE🎉");
    EXPECT_EQ(NumberIn(report, "Destiny / Expressions Number"), "6"); // 11 + 13
    // Of ten units four are mental and two physical.
    EXPECT_EQ(RunIn(report, "Planes Of Expression / Personal Aspects", 1),
              "Your Personal Aspects: Mental Ability 40 - Strong \r\n"
              "Physical Ability 20 - Average \r\nEmotional Ability 0 - Weak \r\n"
              "Intuitive Ability 0 - Weak\r\n\r\n");
}

TEST(UnusualNames, MayHoldQuotesBackslashesAndControlCharacters) {
    const QJsonObject report =
        Report({"An\"n\\", "\t\x7F\x01 a", "L{e}e\n\r", "March", "7", "1990"});
    EXPECT_EQ(report["first"], "AN\"N\\");
    EXPECT_EQ(report["middle"], "\t\x7F\x01 A"); // blanks alone are trimmed, a tab is none
    EXPECT_EQ(report["last"], "L{E}E\n\r");
}

TEST(UnusualNames, AreTheSameInABatch) {
    std::string input;
    std::string expected;
    for (const Person &person :
         {Person{"José", {}, "müller", "March", "7", "1990"},
          Person{"Ann😀", "ß", "Lee🎉", "March", "7", "1990"},
          Person{"An\"n\\", "\t\x7F\x01 a", "L{e}e\n\r", "March", "7", "1990"}}) {
        input += AsJson(person);
        Arguments options = PersonOptions(person);
        options.insert(options.end(), {"--today", "2026-11-16", "--format", "json"});
        expected += RunProgram(options).out;
    }
    const Finished run = RunProgram(BatchOptions(), input);
    ExpectGood(run);
    EXPECT_EQ(run.out, expected);
}

class LongName : public testing::Test {
protected:
    const QString letters = QString(40'000, QLatin1Char('a'));
    const QString capitals = QString(40'000, QLatin1Char('A'));
};

// 40,000 letters are more than a number of the report can count: their calculators give
// up and leave their topics as they are in a fresh store, and all others go on.
TEST_F(LongName, LeavesTheTopicsThatCountItEmpty) {
    const QJsonObject report = Report({letters, {}, "Lee", "January", "1", "1990"});
    EXPECT_EQ(report["first"], capitals);
    const auto number = [&](const char *caption) { return NumberIn(report, caption); };
    const auto unread = [&](const char *caption, const char *heading) {
        EXPECT_EQ(RunIn(report, caption, 0), heading);
        EXPECT_EQ(RunIn(report, caption, 1), "\r\n\r\n") << caption; // no About either
        EXPECT_EQ(RunIn(report, caption, 2), "") << caption;
    };
    unread("Hidden Passion Number", "Your Hidden Passion Number is: 0\r\n\r\n");
    unread("Destiny / Expressions Number", "Your Destiny Or Expression Number is: 0\r\n\r\n");
    unread("Karmic Lessons Number", "Your Karmic Lessons Number is: \r\n\r\n");
    unread("Rational Thought Number", "Your Rational Thought Number is: 0\r\n\r\n");
    unread("Inner Dreams / Personality Number",
           "Your Inner Dreams Or Personality Number is: 0\r\n\r\n");
    unread("Soul Urge / Heart's Desire Number",
           "Your Soul Urge Or Heart's Desire Number is: 0\r\n\r\n");
    EXPECT_EQ(number("Planes Of Expression / Personal Aspects"), "");
    EXPECT_EQ(RunIn(report, "Planes Of Expression / Personal Aspects", 1),
              "Your Personal Aspects: \r\n\r\n");

    EXPECT_EQ(number("Personal Month"), "5"); // 1 + 1 + 2 + 1
    EXPECT_EQ(number("Personal Day"), "3");   // 1 + 1 + 7 + 2 + 1 = 12
    EXPECT_EQ(number("Personal Year"), "3");
    EXPECT_EQ(number("Birthday Number"), "1");
    EXPECT_EQ(number("Life Path Periods"), "2");        // root 3, age 36
    EXPECT_EQ(number("Subconscious Self Number"), "3"); // 1 3 5
    EXPECT_EQ(number("Life Path Number"), "3");         // 1 + 1 + 10 = 12
    EXPECT_EQ(number("Challenge Number"), "0 0 0 0");
    EXPECT_EQ(number("Karmic Debt Numbers"), "0");
    EXPECT_EQ(number("Balance Number"), "4"); // A and L
    EXPECT_EQ(number("H/P Bridge Number"), "0");
    EXPECT_EQ(number("L/E Bridge Number"), "3");
    // The 37th A is still taken at 36; LEE is 13 years and ends with E at 39.
    EXPECT_EQ(number("Essence"), "6");
    EXPECT_EQ(number("Realization / Maturity Number"), "0");
    EXPECT_TRUE(RunIn(report, "Realization / Maturity Number", 2)
                    .starts_with("Your Maturity Number is dependent on"));
}

TEST_F(LongName, MayBeTheMiddleOrTheLastOne) {
    const QJsonObject middle = Report({"Ann", letters, "Lee", "January", "1", "1990"});
    EXPECT_EQ(middle["middle"], capitals);
    EXPECT_EQ(NumberIn(middle, "Rational Thought Number"), "3"); // 1 + 11 = 12
    EXPECT_EQ(NumberIn(middle, "Destiny / Expressions Number"), "0");
    EXPECT_EQ(NumberIn(middle, "Balance Number"), "5"); // A, A and L
    const QJsonObject last = Report({"Ann", {}, letters, "January", "1", "1990"});
    EXPECT_EQ(last["last"], capitals);
    EXPECT_EQ(NumberIn(last, "Rational Thought Number"), "3");
    EXPECT_EQ(NumberIn(last, "Destiny / Expressions Number"), "0");
}

TEST_F(LongName, IsReadInEveryFormat) {
    const Person person{letters, letters, letters, "January", "1", "1990"};
    Arguments options = PersonOptions(person);
    options.insert(options.end(), {"--today", "2026-11-16", "--topic", "Comprehensive Reading"});
    const auto runs = ExpectedRuns(person, today, {comprehensiveReading}).front();
    const Finished text = RunProgram(options);
    ExpectGood(text);
    EXPECT_EQ(text.out, Utf8(PlainBreaks(TextOf(runs))));

    options.insert(options.end(), {"--format", "rtf"});
    const Finished rtf = RunProgram(options);
    ExpectGood(rtf);
    const std::u16string shown = modReadings::RtfReader::Read(rtf.out).Text();
    EXPECT_EQ(Utf8(shown), Utf8(PlainBreaks(TextOf(runs)) + u'\n'));
}

TEST_F(LongName, LeavesNothingForTheNextPersonOfABatch) {
    const Person ann{"Ann", {}, "Lee", "January", "1", "1990"};
    const Finished run = RunProgram(
        BatchOptions(),
        AsJson(ann) + AsJson({letters, {}, "Lee", "January", "1", "1990"}) + AsJson(ann));
    ExpectGood(run);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[2], lines[0]);
    EXPECT_EQ(NumberIn(ParseObject(lines[0]), "Destiny / Expressions Number"), "6"); // 11 + 13
    EXPECT_EQ(NumberIn(ParseObject(lines[1]), "Destiny / Expressions Number"), "0");
}

TEST_F(LongName, IsRefusedWhereNoneOfItsSignsCounts) {
    const std::string signs(40'000, '-');
    ExpectRefused(RunProgram({"--first", signs, "--last", "Lee", "--month", "1", "--day", "1",
                              "--year", "1990", "--today", "2026-11-16"}),
                  {"--first"});
}

} // namespace
