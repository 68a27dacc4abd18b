#include "report/rendering.h"
#include "tests/support/expected_report.h"
#include "tests/support/fresh_store.h"
#include "tests/support/report_text.h"
#include "tests/support/store_slots.h"

#include <vector>

namespace modReadings {
namespace {

using ::testing::PrintToString;

static_assert(TopicInk.red == 128 && TopicInk.green == 0 && TopicInk.blue == 128);
static_assert(lineBreak == u"\r\n");

std::u16string Shown(const ExpectedTopic &topic) { return std::u16string(topic.caption); }

/// The Planes alone have their About at the end.
const std::u16string &AboutOf(const ExpectedTopic &topic) {
    return topic.number == treeTopics[20].number ? store.PlanesAbout
                                                 : store.*topic.blocks.front().slot;
}

/// The bold runs of a report, which are the title and the headings.
std::vector<std::u16string> Headings(const Report &report) {
    std::vector<std::u16string> headings;
    for (const ReportRun &run : report)
        if (run.bold)
            headings.push_back(run.text);
    return headings;
}

TEST(ReportRuns, AreWrittenInOneEachWithTheBreaksBehindThem) {
    Report report;
    AppendBlock(report, u"one");
    BoldHeading(report, u"Your Number is: 7");
    AppendBlock(report, u"two", 1);
    AppendBlock(report, u"before ", u"three", 2);
    AppendBlock(report, u"");
    EXPECT_EQ(report, (Report{{u"one"},
                              {u"Your Number is: 7\r\n\r\n", true},
                              {u"two\r\n"},
                              {u"before three\r\n\r\n"},
                              {u""}}));
    EXPECT_EQ(TextOf(report), u"oneYour Number is: 7\r\n\r\ntwo\r\nbefore three\r\n\r\n");
    EXPECT_EQ(TextOf({}), u"");
}

/// A store in which every slot holds something of its own, so that none can stand in for
/// another.
class TopicRendering : public FreshStore {
protected:
    TopicRendering() {
        OakRiver();
        store = MarkedStore();
    }
};

TEST_F(TopicRendering, OfEachTopicIsItsHeadingAndItsBlocksAsTheStoreHoldsThem) {
    const ReadingStore before = store;
    for (const ExpectedTopic &topic : treeTopics)
        EXPECT_EQ(RenderTopic(*FindTopic(topic.caption)), ExpectedPage(topic));
    EXPECT_EQ(Changed(before, store), SlotNames{}); // nothing has run
}

TEST_F(TopicRendering, TheBirthDayGoesThroughANumberOrTheHeadingIsMissing) {
    const std::pair<std::u16string, std::u16string> days[] = {
        {u"1", u"1"}, {u"31", u"31"}, {u"07", u"7"}, {u"0", u"0"},  {u"-3", u"-3"},
        {u"", u""},   {u"x", u""},    {u"2x", u""},  {u"2 9", u""}, {u"32768", u""}};
    for (const auto &[day, shown] : days) {
        profile.BirthDay = day;
        Report expected{{u"old BirthdayAbout\r\n\r\n"}, {u"old BirthdayText"}};
        if (!shown.empty())
            expected.insert(expected.begin(),
                            {u"Your BirthDay Number is: " + shown + u"\r\n\r\n", true});
        EXPECT_EQ(RenderTopic(*FindTopic(u"Birthday Number")), expected) << PrintToString(day);
    }
}

TEST_F(TopicRendering, AfterARunShowsWhatItsCalculatorAloneHasWritten) {
    for (const ExpectedTopic &topic : treeTopics) {
        store = {};
        // Without these two the Realization refuses and leaves its About alone.
        store.LifePathNumber = 1;
        store.DestinyNumber = 9;
        const Report report = RunAndRenderTopic(*FindTopic(topic.caption));
        EXPECT_EQ(report, ExpectedPage(topic));
        for (const ExpectedTopic &other : treeTopics)
            EXPECT_EQ(AboutOf(other).empty(), other.caption != topic.caption)
                << PrintToString(Shown(topic)) << PrintToString(Shown(other));
    }
}

TEST_F(TopicRendering, OfACalculatorThatGivesUpIsWrittenFromTheSlotsAsTheyStand) {
    profile.BirthYear = u"19x5"; // the first thing that Essence looks at
    const Report before = ExpectedPage(u"Essence");
    EXPECT_EQ(RunAndRenderTopic(*FindTopic(u"Essence")), before);
}

/// SKY LYNN, born on 2 June 1990. The vowels are the two Y: Soul Urge 7 + 7 = 14, which
/// reduces to 5. Inner Dreams and Destiny are 1 + 2 + 7 + 3 + 7 + 5 + 5 = 30, so 3.
class ClickAfterAPass : public FreshStore {
protected:
    ClickAfterAPass() {
        Named(u"SKY", u"", u"LYNN");
        Born(u"2", u"June", u"1990");
        RunAllCalculators();
    }

    static std::u16string HeadingOf(std::u16string_view caption) {
        return RunAndRenderTopic(*FindTopic(caption)).front().text;
    }
};

TEST_F(ClickAfterAPass, PutsTheTwoTopicsRightThatThePassRunsTooEarly) {
    EXPECT_EQ(store.KarmicDebtNumber, 0);
    EXPECT_EQ(store.HPBridgeNumber, 0);
    EXPECT_EQ(HeadingOf(u"Karmic Debt Numbers"), u"Your Karmic Debt Number is: 14\r\n\r\n");
    EXPECT_EQ(HeadingOf(u"H/P Bridge Number"), u"Your HP Bridge Number is: 2\r\n\r\n"); // 5 - 3

    Named(u"OAK", u"", u"RIVER"); // Soul Urge 21 and 3, Inner Dreams 24 and 6, Destiny 45
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 14) << "the pass sees the first person's numbers";
    EXPECT_EQ(store.HPBridgeNumber, 2);
    const std::vector<std::u16string> headings = Headings(RenderComprehensiveReading());
    EXPECT_EQ(headings.at(12), u"Your Karmic Debt Number is: 0\r\n\r\n");
    EXPECT_EQ(headings.at(16), u"Your HP Bridge Number is: 3\r\n\r\n");
}

TEST_F(ClickAfterAPass, FollowsTheClock) {
    // Born on 2 June: 2 + 6, then the month and the year 2026, which is 1.
    EXPECT_EQ(HeadingOf(u"Personal Month"), u"Your Personal Month is: 2\r\n\r\n"); // 11
    clock.Set(std::chrono::year(2026) / 12 / 1); // December counts 3: 12
    EXPECT_EQ(HeadingOf(u"Personal Month"), u"Your Personal Month is: 3\r\n\r\n");
}

class ClickBeforeAnyPass : public FreshStore {};

TEST_F(ClickBeforeAnyPass, BirthdayHoldsJustTwoLineBreaks) {
    EXPECT_EQ(RunAndRenderTopic(*FindTopic(u"Birthday Number")), (Report{{u"\r\n\r\n"}, {u""}}));
}

class ComprehensiveReading : public FreshStore {
protected:
    /// Title and headings with these numbers, in the order of the pass.
    static std::vector<std::u16string> TitleAnd(const std::vector<std::u16string> &numbers) {
        std::vector<std::u16string> lines{u"Orravane Comprehensive Reading\r\n\r\n"};
        for (std::size_t index = 0; index < numbers.size(); ++index)
            lines.push_back(std::u16string(passTopics.at(index).heading) + numbers[index] +
                            u"\r\n\r\n");
        return lines;
    }
};

TEST_F(ComprehensiveReading, IsTheTitleAndThePagesInTheOrderOfThePass) {
    OakRiver();
    RunAllCalculators();
    const Report report = RenderComprehensiveReading();
    EXPECT_EQ(report, ExpectedComprehensiveReading());
    EXPECT_EQ(Headings(report),
              TitleAnd({u"8",         // 2 + 3 + 2 + 1
                        u"29",        // the day itself
                        u"9",         // R stands twice
                        u"2",         // root 1, age 41
                        u"6",         // 2 + 3 = 5, and 1 for 2026
                        u"",          // the pinnacles have four numbers
                        u"6",         // the values 1 2 4 5 6 9
                        u"1",         // 2 + 3 + 5 = 10
                        u"9",         // 45
                        u" 3 7 8",    // the values that are missing
                        u"1 3 2 2",   // |3-2| |5-2| |1-3| |5-3|
                        u"0",         // 11 45 21 24 29: none of the four debts
                        u"6",         // O and R, 6 + 9 = 15
                        u"6",         // 2 + 3 + 7 + 2 + 1 = 15
                        u"11",        // 2 and OAK, which is 9
                        u"3",         // 3 and 6
                        u"8",         // 9 and 1
                        u"6",         // O (6) and R (9) at the age of 41: 15
                        u"1",         // 1 + 9 = 10
                        u"6",         // K R V R, 24
                        u"Emotional", // O R I R: half of the letters
                        u"3"}));      // O A I E, 21

    const ReadingStore once = store;
    store.PersonalMonthText = store.KarmicDebtText = store.PinnacleText4 = store.SoulUrgeText =
        u"stale"; // each calculator runs before its topic is written
    EXPECT_EQ(RenderComprehensiveReading(), report);
    EXPECT_EQ(Changed(once, store), SlotNames{});
}

TEST_F(ComprehensiveReading, GoesOnBehindCalculatorsThatGiveUp) {
    OakRiver();
    RunAllCalculators();
    std::vector<std::u16string> expected = Headings(RenderComprehensiveReading());
    profile.BirthDay = u"x"; // most of the date calculators stop at once
    // The heading of Birthday is missing. The numbers of the others stay as they were.
    std::erase(expected, u"Your BirthDay Number is: 29\r\n\r\n");
    EXPECT_EQ(Headings(RenderComprehensiveReading()), expected);
    EXPECT_EQ(expected.size(), 22U);
}

TEST_F(ComprehensiveReading, BeforeAnyPassIsTheReportOfAnEmptyProfile) {
    // What each calculator makes of empty texts on 16 November 2026: 0 + 0 + 2 + 1 for the
    // month, 0 + 0 + 1 for the year, 0 + 0 + 7 + 2 + 1 = 10 for the day.
    std::vector<std::u16string> expected =
        TitleAnd({u"3",       u"",  u"0", u"0", u"1", u"",  u"0", u"0", u"0", u" 1 2 3 4 5 6 7 8 9",
                  u"0 0 0 0", u"0", u"0", u"1", u"0", u"0", u"0", u"0", u"0", u"0",
                  u"",        u"0"});
    expected.erase(expected.begin() + 2); // Birthday has no heading
    const Report report = RenderComprehensiveReading();
    EXPECT_EQ(Headings(report), expected);
    EXPECT_EQ(RenderComprehensiveReading(), report);

    // Those that cannot do without a birth day, a birth year or a letter have no About.
    std::vector<std::u16string> withoutAbout;
    for (const ExpectedTopic &topic : passTopics)
        if (AboutOf(topic).empty())
            withoutAbout.push_back(Shown(topic));
    EXPECT_EQ(withoutAbout,
              (std::vector<std::u16string>{u"Birthday Number", u"Life Path Periods",
                                           u"Pinnacle Phases", u"Karmic Debt Numbers", u"Essence",
                                           u"Realization / Maturity Number",
                                           u"Planes Of Expression / Personal Aspects"}));

    profile.BirthDay = u"0"; // for the expected heading alone
    Report written = ExpectedComprehensiveReading();
    written.erase(written.begin() + 4); // title, the three runs of the Personal Month
    EXPECT_EQ(report, written);
}

} // namespace
} // namespace modReadings
