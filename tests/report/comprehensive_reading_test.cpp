#include "core/proceed_pass.h"
#include "numbers/readings.h"
#include "report/rendering.h"
#include "tests/report/expected_report.h"
#include "tests/report/report_text.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_rows.h"

namespace modReadings {
namespace {

const ReportRun title{u"Orravane Comprehensive Reading\r\n\r\n", true, {128, 0, 128}};

ReportRuns Rendered() {
    RunList pane;
    RenderComprehensiveReading(pane);
    return pane.Runs();
}

std::vector<std::u16string> BoldLines(const ReportRuns &runs) {
    std::vector<std::u16string> lines;
    for (const ReportRun &run : runs)
        if (run.bold)
            lines.push_back(run.text);
    return lines;
}

/// OAK RIVER, born on 29 December 1985, read on 16 November 2026.
class ComprehensiveReading : public FreshStore {
protected:
    ComprehensiveReading() {
        Named(u"OAK", u"", u"RIVER");
        Born(u"29", u"December", u"1985");
        RunAllCalculators();
    }
};

TEST_F(ComprehensiveReading, HasTheTitleAndTheTwentyTwoHeadingsInTheOrderOfThePass) {
    const std::vector<std::u16string> expected{
        u"Orravane Comprehensive Reading",
        u"Your Personal Month is: 8",                 // 2 + 3 + 2 + 1
        u"Your BirthDay Number is: 29",               // the day itself
        u"Your Hidden Passion Number is: 9",          // R stands twice
        u"Your Current LifePath Period Number is: 2", // root 1, age 41
        u"Your Personal Year Number is: 6",           // 2 + 3 = 5, and 1 for 2026
        u"Pinnacle Phases",
        u"Your Subconscious Self Number is: 6",            // the values 1 2 4 5 6 9
        u"Your Life Path Number is: 1",                    // 2 + 3 + 5 = 10
        u"Your Destiny Or Expression Number is: 9",        // 45
        u"Your Karmic Lessons Number is:  3 7 8",          // the values that are missing
        u"Your Challenge Number is: 1 3 2 2",              // |3-2| |5-2| |1-3| |5-3|
        u"Your Karmic Debt Number is: 0",                  // 11 45 21 24 29: none of the four
        u"Your Balance Number is: 6",                      // O and R, 6 + 9 = 15
        u"Your Personal Day is: 6",                        // 2 + 3 + 7 + 2 + 1 = 15
        u"Your Rational Thought Number is: 11",            // 2 and OAK, which is 9
        u"Your HP Bridge Number is: 3",                    // 3 and 6
        u"Your LE Bridge Number is: 8",                    // 9 and 1
        u"Your Essence Number is: 6",                      // O (6) and R (9) at the age of 41: 15
        u"Your Realization Or Maturity Number is: 1",      // 1 + 9 = 10
        u"Your Inner Dreams Or Personality Number is: 6",  // K R V R, 24
        u"Your Planes of Expression is towards Emotional", // O R I R: half of the letters
        u"Your Soul Urge Or Heart's Desire Number is: 3",  // O A I E, 21
    };
    std::vector<std::u16string> lines = BoldLines(Rendered());
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t index = 0; index < lines.size(); ++index)
        EXPECT_EQ(lines[index], expected[index] + u"\r\n\r\n");
}

TEST_F(ComprehensiveReading, IsThePagesOfTheTopicsEachEndingInTwoLineBreaks) {
    const ReportRuns runs = Rendered();
    ReportRuns expected{title};
    for (const std::u16string_view caption : readingOrder)
        for (const ReportRun &run : ExpectedSection(caption))
            expected.push_back(run);
    EXPECT_EQ(runs, expected);
}

TEST_F(ComprehensiveReading, BeginsWithTheTitleAnEmptyLineAndThePersonalMonth) {
    RunList pane;
    RenderComprehensiveReading(pane);
    EXPECT_TRUE(pane.Text().starts_with(
        u"Orravane Comprehensive Reading\r\n\r\nYour Personal Month is: 8\r\n\r\n"));
}

TEST_F(ComprehensiveReading, EndsInTwoLineBreaksBehindTheSoulUrge) {
    RunList pane;
    RenderComprehensiveReading(pane);
    EXPECT_TRUE(pane.Text().ends_with(store.SoulUrgeText + u"\r\n\r\n"));
    EXPECT_FALSE(store.SoulUrgeText.ends_with(u"\r\n"));
    EXPECT_EQ(pane.Runs().back().text, store.SoulUrgeText + u"\r\n\r\n");
}

TEST_F(ComprehensiveReading, TwiceIsTheSameAndNotTwiceTheText) {
    RunList pane;
    RenderComprehensiveReading(pane);
    const ReportRuns first = pane.Runs();
    RenderComprehensiveReading(pane);
    EXPECT_EQ(pane.Runs(), first);
}

TEST_F(ComprehensiveReading, ReplacesATopicAndIsReplacedByOne) {
    RunList pane;
    RenderTopic(pane, *FindTopic(u"Essence"));
    RenderComprehensiveReading(pane);
    EXPECT_EQ(pane.Runs().front(), title);
    RenderTopic(pane, *FindTopic(u"Essence"));
    EXPECT_EQ(pane.Runs(), ExpectedPage(u"Essence"));
}

TEST_F(ComprehensiveReading, RunsEachCalculatorBeforeItsTopicIsWritten) {
    const ReportRuns complete = Rendered();
    store.PersonalMonthText = u"stale";
    store.KarmicDebtText = u"stale";
    store.PinnacleText4 = u"stale";
    store.SoulUrgeText = u"stale";
    EXPECT_EQ(Rendered(), complete);
}

TEST_F(ComprehensiveReading, ReadsTheCapturedProfileAndDoesNotChangeIt) {
    const ReportRuns runs = Rendered();
    EXPECT_EQ(profile.FirstName, u"OAK");
    EXPECT_EQ(profile.MiddleName, u"");
    EXPECT_EQ(profile.LastName, u"RIVER");
    EXPECT_EQ(profile.BirthMonth, u"December");
    EXPECT_EQ(profile.BirthDay, u"29");
    EXPECT_EQ(profile.BirthYear, u"1985");
}

TEST_F(ComprehensiveReading, GoesOnBehindCalculatorsThatGiveUp) {
    const std::vector<std::u16string> before = BoldLines(Rendered());
    profile.BirthDay = u"x"; // most of the date calculators stop at once
    const std::vector<std::u16string> after = BoldLines(Rendered());
    std::vector<std::u16string> expected = before;
    // The heading of Birthday is missing. The numbers of the others stay as they were.
    std::erase(expected, u"Your BirthDay Number is: 29\r\n\r\n");
    EXPECT_EQ(after, expected);
    EXPECT_EQ(after.size(), 22U);
}

TEST_F(ComprehensiveReading, EndsWithBoldOff) {
    RunList pane;
    RenderComprehensiveReading(pane);
    pane.SetSelectedText(u"|");
    EXPECT_EQ(pane.Runs().back(), (ReportRun{u"|", false, {128, 0, 128}}));
}

class ComprehensiveReadingBeforeAnyPass : public FreshStore {};

TEST_F(ComprehensiveReadingBeforeAnyPass, IsTheReportOfAnEmptyProfile) {
    // What each calculator makes of empty texts on 16 November 2026. Those that cannot do
    // without a birth day, a birth year or a letter leave their slots empty.
    const std::u16string lessons = [] {
        std::u16string text;
        for (int16 value = 1; value <= 9; ++value)
            text += u"\r\n" + DecimalText(value) + u"\r\n" + Row(readings::karmicLessons.rows, value);
        return text;
    }();
    const auto noChallenge = Row(readings::challenge.rows, 0);
    const auto about = [](std::u16string_view text) { return std::u16string(text) + u"\r\n\r\n"; };

    std::u16string expected = u"Orravane Comprehensive Reading\r\n\r\n";
    expected += u"Your Personal Month is: 3\r\n\r\n" + about(readings::personalMonth.about) +
                Row(readings::personalMonth.rows, 3) + u"\r\n\r\n"; // 0 + 0 + 2 + 1
    expected += u"\r\n\r\n\r\n\r\n";                           // Birthday
    expected += u"Your Hidden Passion Number is: 0\r\n\r\n" + about(readings::hiddenPassion.about) +
                u"\r\n\r\n";
    // The stages of life are set before the birth year fails; About, text and lines are not.
    expected += u"Your Current LifePath Period Number is: 0\r\n\r\n\r\n\r\n\r\n\r\n";
    expected += u"\r\n" + about(readings::periodStage1) + u"\r\n" + about(readings::periodStage2) +
                u"\r\n" + about(readings::periodStage3);
    expected += u"Your Personal Year Number is: 1\r\n\r\n" + about(readings::personalYear.about) +
                Row(readings::personalYear.rows, 1) + u"\r\n\r\n"; // 0 + 0 + 1
    expected += u"Pinnacle Phases\r\n\r\n\r\n\r\n"
                u"\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    expected += u"Your Subconscious Self Number is: 0\r\n\r\n" +
                about(readings::subconsciousSelf.about) +
                u"This number is not valid for this name.\r\n\r\n";
    expected +=
        u"Your Life Path Number is: 0\r\n\r\n" + about(readings::lifePath.about) + u"\r\n\r\n";
    expected += u"Your Destiny Or Expression Number is: 0\r\n\r\n" + about(readings::destiny.about) +
                u"\r\n\r\n";
    expected += u"Your Karmic Lessons Number is:  1 2 3 4 5 6 7 8 9\r\n\r\n" +
                about(readings::karmicLessons.about) + lessons + u"\r\n\r\n";
    expected += u"Your Challenge Number is: 0 0 0 0\r\n\r\n" + about(readings::challenge.about) +
                u"First Challenge Number is 0\r\n" + noChallenge + u"\r\n\r\n" +
                u"Second Challenge Number is 0\r\n" + noChallenge + u"\r\n\r\n" +
                u"Third Challenge Number is 0\r\n" + noChallenge + u"\r\n\r\n" +
                u"Fourth Challenge Number is 0\r\n" + noChallenge + u"\r\n\r\n";
    expected += u"Your Karmic Debt Number is: 0\r\n\r\n\r\n\r\n\r\n\r\n";
    expected += u"Your Balance Number is: 0\r\n\r\n" + about(readings::balance.about) + u"\r\n\r\n";
    expected += u"Your Personal Day is: 1\r\n\r\n" + about(readings::personalDay.about) +
                Row(readings::personalDay.rows, 1) + u"\r\n\r\n"; // 0 + 0 + 7 + 2 + 1 = 10
    expected += u"Your Rational Thought Number is: 0\r\n\r\n" +
                about(readings::rationalThought.about) + u"\r\n\r\n";
    expected += u"Your HP Bridge Number is: 0\r\n\r\n" + about(readings::hpBridge.about) +
                Row(readings::hpBridge.rows, 0) + u"\r\n\r\n";
    expected += u"Your LE Bridge Number is: 0\r\n\r\n" + about(readings::leBridge.about) +
                Row(readings::leBridge.rows, 0) + u"\r\n\r\n";
    expected += u"Your Essence Number is: 0\r\n\r\n\r\n\r\n\r\n\r\n";
    expected += u"Your Realization Or Maturity Number is: 0\r\n\r\n\r\n\r\n"
                u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
                u"Please calculate these two figures first\r\n\r\n";
    expected += u"Your Inner Dreams Or Personality Number is: 0\r\n\r\n" +
                about(readings::innerDreams.about) + u"\r\n\r\n";
    expected += u"Your Planes of Expression is towards \r\n\r\nYour Personal Aspects: "
                u"\r\n\r\n\r\n\r\n";
    expected += u"Your Soul Urge Or Heart's Desire Number is: 0\r\n\r\n" +
                about(readings::soulUrge.about) + u"\r\n\r\n";

    RunList pane;
    RenderComprehensiveReading(pane);
    EXPECT_EQ(Readable(pane.Text()), Readable(expected));
}

TEST_F(ComprehensiveReadingBeforeAnyPass, HasNoBirthdayHeadingAndIsInInkThroughout) {
    const ReportRuns runs = Rendered();
    EXPECT_EQ(BoldLines(runs).size(), 22U); // the title and 21 topics
    for (const ReportRun &run : runs)
        EXPECT_EQ(run.ink, (Ink{128, 0, 128}));
}

TEST_F(ComprehensiveReadingBeforeAnyPass, TwiceIsTheSame) {
    const ReportRuns first = Rendered();
    EXPECT_EQ(Rendered(), first);
}

} // namespace
} // namespace modReadings
