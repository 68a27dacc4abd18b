#include "core/proceed_pass.h"
#include "report/topics.h"
#include "tests/report/expected_report.h"
#include "tests/report/fake_report_window.h"
#include "tests/report/report_text.h"
#include "tests/support/fresh_store.h"

#include <map>

namespace modReadings {
namespace {

using Calls = std::vector<std::string>;

/// The About slot of each topic: it is empty in a fresh store, and a run of the topic's
/// calculator, and of no other, fills it.
const std::map<std::u16string_view, TextSlot> aboutSlots{
    {u"Personal Month", &ReadingStore::PersonalMonthAbout},
    {u"Hidden Passion Number", &ReadingStore::HiddenPassionAbout},
    {u"Life Path Periods", &ReadingStore::LifePathPeriodsAbout},
    {u"Personal Year", &ReadingStore::PersonalYearAbout},
    {u"Pinnacle Phases", &ReadingStore::PinnacleAbout},
    {u"Subconscious Self Number", &ReadingStore::SubconsciousSelfAbout},
    {u"Life Path Number", &ReadingStore::LifePathAbout},
    {u"Destiny / Expressions Number", &ReadingStore::DestinyAbout},
    {u"Karmic Lessons Number", &ReadingStore::KarmicLessonsAbout},
    {u"Birthday Number", &ReadingStore::BirthdayAbout},
    {u"Challenge Number", &ReadingStore::ChallengeAbout},
    {u"Karmic Debt Numbers", &ReadingStore::KarmicDebtAbout},
    {u"Balance Number", &ReadingStore::BalanceAbout},
    {u"Personal Day", &ReadingStore::PersonalDayAbout},
    {u"Rational Thought Number", &ReadingStore::RationalThoughtAbout},
    {u"H/P Bridge Number", &ReadingStore::HPBridgeAbout},
    {u"L/E Bridge Number", &ReadingStore::LEBridgeAbout},
    {u"Essence", &ReadingStore::EssenceAbout},
    {u"Realization / Maturity Number", &ReadingStore::RealizationAbout},
    {u"Inner Dreams / Personality Number", &ReadingStore::InnerDreamsAbout},
    {u"Planes Of Expression / Personal Aspects", &ReadingStore::PlanesAbout},
    {u"Soul Urge / Heart's Desire Number", &ReadingStore::SoulUrgeAbout}};

/// The captions of the topics whose calculators have run on a store that was fresh.
std::vector<std::u16string> TopicsThatRan() {
    std::vector<std::u16string> ran;
    for (const std::u16string_view caption : treeOrder)
        if (!(store.*aboutSlots.at(caption)).empty())
            ran.emplace_back(caption);
    return ran;
}

class Dispatch : public FreshStore {
protected:
    Dispatch() {
        Named(u"OAK", u"", u"RIVER");
        Born(u"29", u"December", u"1985");
    }

    FakeReportWindow window;
};

/// The topic by its place in the tree, from 1.
class DispatchOfTopic : public Dispatch, public testing::WithParamInterface<std::size_t> {
protected:
    const std::u16string_view caption_ = treeOrder.at(GetParam() - 1);
};

TEST_P(DispatchOfTopic, ValidatesRunsItsCalculatorAloneAndShowsItsPage) {
    // Without these two the Realization calculator refuses and leaves its About alone.
    store.LifePathNumber = 1;
    store.DestinyNumber = 9;

    EXPECT_EQ(window.Click(caption_), (Calls{"ValidateInputs", "WriteReport", "ShowReportPage"}));
    EXPECT_EQ(TopicsThatRan(), std::vector<std::u16string>{std::u16string(caption_)});
    EXPECT_EQ(window.pane.Runs(), ExpectedPage(caption_));
}

TEST_P(DispatchOfTopic, DoesNothingOnInputsThatAreNotValid) {
    window.pane.SetSelectedText(u"the report before");
    window.inputsAreValid = false;

    EXPECT_EQ(window.Click(caption_), Calls{"ValidateInputs"});
    EXPECT_TRUE(TopicsThatRan().empty());
    EXPECT_EQ(window.pane.Text(), u"the report before");
}

TEST_P(DispatchOfTopic, ClickedTwiceGivesTheSameTextOnce) {
    RunAllCalculators();
    window.Click(caption_);
    const ReportRuns first = window.pane.Runs();
    window.Click(caption_);
    EXPECT_EQ(window.pane.Runs(), first);
}

TEST_P(DispatchOfTopic, InAnotherCaseIsNoTopic) {
    std::u16string shouted(caption_);
    std::u16string whispered(caption_);
    for (char16_t &letter : shouted)
        letter = letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - 32) : letter;
    for (char16_t &letter : whispered)
        letter = letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter + 32) : letter;

    EXPECT_EQ(window.Click(shouted), Calls{"ValidateInputs"});
    EXPECT_EQ(window.Click(whispered), Calls{"ValidateInputs"});
    EXPECT_TRUE(TopicsThatRan().empty());
    EXPECT_TRUE(window.pane.Runs().empty());
}

INSTANTIATE_TEST_SUITE_P(AllTopics, DispatchOfTopic,
                         testing::Range(std::size_t{1}, treeOrder.size() + 1));

TEST_F(Dispatch, ComprehensiveReadingValidatesAndRunsAllTopics) {
    EXPECT_EQ(window.Click(u"Comprehensive Reading"),
              (Calls{"ValidateInputs", "WriteReport", "ShowReportPage"}));
    EXPECT_EQ(TopicsThatRan().size(), 22U);
}

TEST_F(Dispatch, ComprehensiveReadingDoesNothingOnInputsThatAreNotValid) {
    window.pane.SetSelectedText(u"the report before");
    window.inputsAreValid = false;
    EXPECT_EQ(window.Click(u"Comprehensive Reading"), Calls{"ValidateInputs"});
    EXPECT_TRUE(TopicsThatRan().empty());
    EXPECT_EQ(window.pane.Text(), u"the report before");
}

TEST_F(Dispatch, UserAndHelpNodesTurnThePageWithoutValidation) {
    for (const bool valid : {true, false}) {
        window.inputsAreValid = valid;
        EXPECT_EQ(window.Click(u"User Information"), Calls{"ShowInputPage"});
        EXPECT_EQ(window.Click(u"Enter The Information"), Calls{"ShowInputPage"});
        EXPECT_EQ(window.Click(u"Help"), Calls{"ShowHelpPage"});
    }
}

TEST_F(Dispatch, ResetShowsTheInputPageAndThenResetsIt) {
    window.inputsAreValid = false;
    EXPECT_EQ(window.Click(u"Reset"), (Calls{"ShowInputPage", "ResetInputs"}));
}

TEST_F(Dispatch, ResetLeavesReportProfileAndStoreAlone) {
    RunAllCalculators();
    window.Click(u"Destiny / Expressions Number");
    const ReportRuns report = window.pane.Runs();
    window.Click(u"Reset");
    EXPECT_EQ(window.pane.Runs(), report);
    EXPECT_EQ(profile.LastName, u"RIVER");
    EXPECT_EQ(profile.BirthDay, u"29");
    EXPECT_EQ(store.DestinyNumber, 9); // 6 + 1 + 2 + 9 + 9 + 4 + 5 + 9 = 45, 4 + 5
}

TEST_F(Dispatch, NumerologyRootValidatesAndDoesNothingElse) {
    for (const bool valid : {true, false}) {
        window.inputsAreValid = valid;
        EXPECT_EQ(window.Click(u"Numerology"), Calls{"ValidateInputs"});
    }
    EXPECT_TRUE(TopicsThatRan().empty());
    EXPECT_TRUE(window.pane.Runs().empty());
}

TEST_F(Dispatch, PageNodesInAnotherCaseOrSpellingOnlyValidate) {
    for (const std::u16string_view caption :
         {u"reset", u"RESET", u"Reset ", u"user information", u"Enter the Information", u"help",
          u"HELP", u"comprehensive reading", u"numerology", u"", u"N1", u"UserInfo",
          u"Destiny / Expression Number", u"Planes of Expression / Personal Aspects"})
        EXPECT_EQ(window.Click(caption), Calls{"ValidateInputs"})
            << testing::PrintToString(std::u16string(caption));
    EXPECT_TRUE(TopicsThatRan().empty());
}

// --- The run on every click

/// SKY LYNN, born on 2 June 1990. The vowels are the two Y: Soul Urge 7 + 7 = 14, which
/// reduces to 5. Inner Dreams and Destiny are 1 + 2 + 7 + 3 + 7 + 5 + 5 = 30, so 3.
class ClickAfterAPass : public FreshStore {
protected:
    ClickAfterAPass() {
        Named(u"SKY", u"", u"LYNN");
        Born(u"2", u"June", u"1990");
        RunAllCalculators();
    }

    /// OAK RIVER, born on 2 June 1990: Soul Urge 21 and 3, Inner Dreams 24 and 6, Destiny 45.
    static void ProceedWithTheSecondPerson() {
        Named(u"OAK", u"", u"RIVER");
        RunAllCalculators();
    }

    FakeReportWindow window;
};

TEST_F(ClickAfterAPass, CorrectsTheKarmicDebt) {
    EXPECT_EQ(store.KarmicDebtNumber, 0) << "the pass itself sees no Soul Urge yet";
    window.Click(u"Karmic Debt Numbers");
    EXPECT_EQ(store.KarmicDebtNumber, 14);
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your Karmic Debt Number is: 14\r\n\r\n");
    EXPECT_TRUE(window.pane.Runs().at(2).text.starts_with(
        u"You don't like to follow conventions and want to try different and innovative ways"));
}

TEST_F(ClickAfterAPass, CorrectsTheKarmicDebtOfASecondPerson) {
    ProceedWithTheSecondPerson();
    EXPECT_EQ(store.KarmicDebtNumber, 14) << "the pass sees the first person's Soul Urge";
    window.Click(u"Karmic Debt Numbers");
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your Karmic Debt Number is: 0\r\n\r\n");
    EXPECT_EQ(window.pane.Runs().at(2).text, u"Not Applicable");
}

TEST_F(ClickAfterAPass, CorrectsTheHPBridge) {
    EXPECT_EQ(store.HPBridgeNumber, 0) << "the pass itself sees two zeros";
    window.Click(u"H/P Bridge Number");
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your HP Bridge Number is: 2\r\n\r\n"); // 5 - 3
    EXPECT_TRUE(window.pane.Runs().at(2).text.starts_with(
        u"People with bridge number 2 need to show patience in their work"));
}

TEST_F(ClickAfterAPass, CorrectsTheHPBridgeOfASecondPerson) {
    ProceedWithTheSecondPerson();
    EXPECT_EQ(store.HPBridgeNumber, 2) << "the pass sees the first person's two numbers";
    window.Click(u"H/P Bridge Number");
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your HP Bridge Number is: 3\r\n\r\n"); // 6 - 3
    EXPECT_TRUE(window.pane.Runs().at(2).text.starts_with(
        u"People with this bridge number get easily frustrated by failures."));
}

TEST_F(ClickAfterAPass, TheComprehensiveReadingCorrectsBothToo) {
    ProceedWithTheSecondPerson();
    window.Click(u"Comprehensive Reading");
    const std::u16string text = window.pane.Text();
    EXPECT_NE(text.find(u"\r\nYour Karmic Debt Number is: 0\r\n"), std::u16string::npos);
    EXPECT_NE(text.find(u"\r\nYour HP Bridge Number is: 3\r\n"), std::u16string::npos);
}

TEST_F(ClickAfterAPass, AGapWithoutAReadingKeepsTheTextOfTheRunBefore) {
    // The gap of 1 and 7 is 6 and has a reading. The gap of 2 and 11 is 9 and has none, so
    // the page shows the reading of 6 again.
    store.SoulUrgeNumber = 1;
    store.InnerDreamsNumber = 7;
    window.Click(u"H/P Bridge Number");
    const std::u16string readingOfSix = window.pane.Runs().at(2).text;
    ASSERT_TRUE(readingOfSix.starts_with(u"You should value and strive for congenial"));

    store.SoulUrgeNumber = 2;
    store.InnerDreamsNumber = 11;
    window.Click(u"H/P Bridge Number");
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your HP Bridge Number is: 9\r\n\r\n");
    EXPECT_EQ(window.pane.Runs().at(2).text, readingOfSix);
}

TEST_F(ClickAfterAPass, FollowsTheClock) {
    // Born on 2 June: 2 + 6, then the month and the year 2026, which is 1.
    window.Click(u"Personal Month"); // November counts 2: 2 + 6 + 2 + 1 = 11, so 2
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your Personal Month is: 2\r\n\r\n");
    clock.Set(std::chrono::year(2026) / 12 / 1); // December counts 3: 12, so 3
    window.Click(u"Personal Month");
    EXPECT_EQ(window.pane.Runs().at(0).text, u"Your Personal Month is: 3\r\n\r\n");
}

// --- Clicks before any pass

class ClickBeforeAnyPass : public FreshStore {
protected:
    FakeReportWindow window;
};

TEST_F(ClickBeforeAnyPass, PersonalMonthFollowsFromTodayAlone) {
    window.Click(u"Personal Month"); // 0 + 0 + 2 for November + 1 for 2026
    EXPECT_EQ(window.calls.back(), "ShowReportPage");
    const ReportRuns &runs = window.pane.Runs();
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].text, u"Your Personal Month is: 3\r\n\r\n");
    EXPECT_TRUE(runs[1].text.starts_with(u"Personal month number tells about the general trends"));
    EXPECT_TRUE(runs[2].text.starts_with(u"This is the month to explore your creative side."));
}

TEST_F(ClickBeforeAnyPass, BirthdayHoldsJustTwoLineBreaks) {
    EXPECT_EQ(window.Click(u"Birthday Number"),
              (Calls{"ValidateInputs", "WriteReport", "ShowReportPage"}));
    EXPECT_EQ(window.pane.Text(), u"\r\n\r\n");
    for (const ReportRun &run : window.pane.Runs())
        EXPECT_FALSE(run.bold);
}

TEST_F(ClickBeforeAnyPass, CalculatorsThatGiveUpLeaveTheirPagesEmptyButWritten) {
    window.Click(u"Planes Of Expression / Personal Aspects"); // a share of no letters at all
    EXPECT_EQ(window.pane.Text(),
              u"Your Planes of Expression is towards \r\n\r\nYour Personal Aspects: \r\n\r\n");
    window.Click(u"Essence"); // there is no birth year
    EXPECT_EQ(window.pane.Text(), u"Your Essence Number is: 0\r\n\r\n\r\n\r\n");
    window.Click(u"Karmic Debt Numbers"); // there is no birth day
    EXPECT_EQ(window.pane.Text(), u"Your Karmic Debt Number is: 0\r\n\r\n\r\n\r\n");
    window.Click(u"Pinnacle Phases"); // neither day nor year: ten empty blocks with their breaks
    EXPECT_EQ(window.pane.Text(), u"Pinnacle Phases\r\n\r\n\r\n\r\n"
                                  u"\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
    EXPECT_EQ(window.calls.back(), "ShowReportPage");
}

TEST_F(ClickBeforeAnyPass, KarmicLessonsMissAllNineValues) {
    window.Click(u"Karmic Lessons Number");
    // One blank from the literal, one in front of the first digit.
    EXPECT_EQ(window.pane.Runs().at(0).text,
              u"Your Karmic Lessons Number is:  1 2 3 4 5 6 7 8 9\r\n\r\n");
}

TEST_F(ClickBeforeAnyPass, RealizationAsksForItsTwoNumbers) {
    window.Click(u"Realization / Maturity Number");
    EXPECT_EQ(window.pane.Text(),
              u"Your Realization Or Maturity Number is: 0\r\n\r\n\r\n\r\n"
              u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
              u"Please calculate these two figures first");
}

} // namespace
} // namespace modReadings
