#include "report/rendering.h"
#include "report/run_list.h"
#include "report/topics.h"
#include "tests/report/expected_report.h"
#include "tests/report/report_text.h"
#include "tests/support/fresh_store.h"

namespace modReadings {
namespace {

constexpr Ink magenta{128, 0, 128};

ReportRuns Rendered(std::u16string_view caption) {
    RunList pane;
    RenderTopic(pane, *FindTopic(caption));
    return pane.Runs();
}

/// A store in which every slot that a page can show holds a text or number of its own,
/// so that none can stand in for another.
class TopicRendering : public FreshStore {
protected:
    TopicRendering() {
        profile.BirthDay = u"29";
        ReadingStore &s = store;
        s.PersonalMonthNumber = 101;
        s.PersonalMonthAbout = u"About Personal Month";
        s.PersonalMonthText = u"Text Personal Month";
        s.BirthdayAbout = u"About Birthday";
        s.BirthdayText = u"Text Birthday";
        s.HiddenPassionNumber = 102;
        s.HiddenPassionAbout = u"About Hidden Passion";
        s.HiddenPassionText = u"Text Hidden Passion";
        s.LifePathPeriodsNumber = 103;
        s.LifePathPeriodsAbout = u"About Periods";
        s.LifePathPeriodsText = u"Text Periods";
        s.PeriodLine1 = u"Line 1";
        s.PeriodStage1 = u"Stage 1";
        s.PeriodLine2 = u"Line 2";
        s.PeriodStage2 = u"Stage 2";
        s.PeriodLine3 = u"Line 3";
        s.PeriodStage3 = u"Stage 3";
        s.PersonalYearNumber = u"year text";
        s.PersonalYearAbout = u"About Personal Year";
        s.PersonalYearText = u"Text Personal Year";
        s.PinnacleAbout = u"About Pinnacles";
        s.PinnacleLabel1 = u"Pinnacle label 1";
        s.PinnacleText1 = u"Pinnacle text 1";
        s.PinnacleLabel2 = u"Pinnacle label 2";
        s.PinnacleText2 = u"Pinnacle text 2";
        s.PinnacleLabel3 = u"Pinnacle label 3";
        s.PinnacleText3 = u"Pinnacle text 3";
        s.PinnacleLabel4 = u"Pinnacle label 4";
        s.PinnacleText4 = u"Pinnacle text 4";
        s.SubconsciousSelfNumber = 104;
        s.SubconsciousSelfAbout = u"About Subconscious Self";
        s.SubconsciousSelfText = u"Text Subconscious Self";
        s.LifePathNumber = 105;
        s.LifePathAbout = u"About Life Path";
        s.LifePathText = u"Text Life Path";
        s.DestinyNumber = 106;
        s.DestinyAbout = u"About Destiny";
        s.DestinyText = u"Text Destiny";
        s.KarmicLessonsNumber = u" 3 7 8";
        s.KarmicLessonsAbout = u"About Karmic Lessons";
        s.KarmicLessonsText = u"\r\n3\r\nText Karmic Lessons";
        s.ChallengeNumber = u"1 3 2 2";
        s.ChallengeAbout = u"About Challenges";
        s.ChallengeLabel1 = u"Challenge label 1";
        s.ChallengeText1 = u"Challenge text 1";
        s.ChallengeLabel2 = u"Challenge label 2";
        s.ChallengeText2 = u"Challenge text 2";
        s.ChallengeLabel3 = u"Challenge label 3";
        s.ChallengeText3 = u"Challenge text 3";
        s.ChallengeLabel4 = u"Challenge label 4";
        s.ChallengeText4 = u"Challenge text 4";
        s.KarmicDebtNumber = 107;
        s.KarmicDebtAbout = u"About Karmic Debt";
        s.KarmicDebtText = u"Text Karmic Debt";
        s.BalanceNumber = 108;
        s.BalanceAbout = u"About Balance";
        s.BalanceText = u"Text Balance";
        s.PersonalDayNumber = 109;
        s.PersonalDayAbout = u"About Personal Day";
        s.PersonalDayText = u"Text Personal Day";
        s.RationalThoughtNumber = 110;
        s.RationalThoughtAbout = u"About Rational Thought";
        s.RationalThoughtText = u"Text Rational Thought";
        s.HPBridgeNumber = 111;
        s.HPBridgeAbout = u"About HP Bridge";
        s.HPBridgeText = u"Text HP Bridge";
        s.LEBridgeNumber = 112;
        s.LEBridgeAbout = u"About LE Bridge";
        s.LEBridgeText = u"Text LE Bridge";
        s.EssenceNumber = 113;
        s.EssenceAbout = u"About Essence";
        s.EssenceText = u"Text Essence";
        s.RealizationNumber = 114;
        s.RealizationAbout = u"About Realization";
        s.RealizationText = u"Text Realization";
        s.InnerDreamsNumber = 115;
        s.InnerDreamsAbout = u"About Inner Dreams";
        s.InnerDreamsText = u"Text Inner Dreams";
        s.PlanesNumber = u"Emotional";
        s.PlanesAbout = u"About Planes";
        s.PlanesText = u"Planes line 1 \r\nPlanes line 2";
        s.SoulUrgeNumber = 116;
        s.SoulUrgeAbout = u"About Soul Urge";
        s.SoulUrgeText = u"Text Soul Urge";
    }
};

struct StandardPage {
    std::u16string_view caption;
    std::u16string heading;
    std::u16string about;
    std::u16string text;
};

TEST_F(TopicRendering, TheEighteenStandardPages) {
    const std::vector<StandardPage> pages{
        {u"Personal Month", u"Your Personal Month is: 101", u"About Personal Month",
         u"Text Personal Month"},
        {u"Hidden Passion Number", u"Your Hidden Passion Number is: 102", u"About Hidden Passion",
         u"Text Hidden Passion"},
        {u"Personal Year", u"Your Personal Year Number is: year text", u"About Personal Year",
         u"Text Personal Year"},
        {u"Subconscious Self Number", u"Your Subconscious Self Number is: 104",
         u"About Subconscious Self", u"Text Subconscious Self"},
        {u"Life Path Number", u"Your Life Path Number is: 105", u"About Life Path",
         u"Text Life Path"},
        {u"Destiny / Expressions Number", u"Your Destiny Or Expression Number is: 106",
         u"About Destiny", u"Text Destiny"},
        {u"Karmic Lessons Number", u"Your Karmic Lessons Number is:  3 7 8",
         u"About Karmic Lessons", u"\r\n3\r\nText Karmic Lessons"},
        {u"Birthday Number", u"Your BirthDay Number is: 29", u"About Birthday", u"Text Birthday"},
        {u"Karmic Debt Numbers", u"Your Karmic Debt Number is: 107", u"About Karmic Debt",
         u"Text Karmic Debt"},
        {u"Balance Number", u"Your Balance Number is: 108", u"About Balance", u"Text Balance"},
        {u"Personal Day", u"Your Personal Day is: 109", u"About Personal Day",
         u"Text Personal Day"},
        {u"Rational Thought Number", u"Your Rational Thought Number is: 110",
         u"About Rational Thought", u"Text Rational Thought"},
        {u"H/P Bridge Number", u"Your HP Bridge Number is: 111", u"About HP Bridge",
         u"Text HP Bridge"},
        {u"L/E Bridge Number", u"Your LE Bridge Number is: 112", u"About LE Bridge",
         u"Text LE Bridge"},
        {u"Essence", u"Your Essence Number is: 113", u"About Essence", u"Text Essence"},
        {u"Realization / Maturity Number", u"Your Realization Or Maturity Number is: 114",
         u"About Realization", u"Text Realization"},
        {u"Inner Dreams / Personality Number", u"Your Inner Dreams Or Personality Number is: 115",
         u"About Inner Dreams", u"Text Inner Dreams"},
        {u"Soul Urge / Heart's Desire Number", u"Your Soul Urge Or Heart's Desire Number is: 116",
         u"About Soul Urge", u"Text Soul Urge"},
    };
    ASSERT_EQ(pages.size(), 18U);
    for (const StandardPage &page : pages)
        EXPECT_EQ(Rendered(page.caption), (ReportRuns{{page.heading + u"\r\n\r\n", true, magenta},
                                                      {page.about + u"\r\n\r\n", false, magenta},
                                                      {page.text, false, magenta}}));
}

TEST_F(TopicRendering, LifePathPeriods) {
    EXPECT_EQ(Rendered(u"Life Path Periods"),
              (ReportRuns{{u"Your Current LifePath Period Number is: 103\r\n\r\n", true, magenta},
                          {u"About Periods\r\n\r\n", false, magenta},
                          {u"Text Periods\r\n\r\n", false, magenta},
                          {u"Line 1\r\n", false, magenta},
                          {u"Stage 1\r\n\r\n", false, magenta},
                          {u"Line 2\r\n", false, magenta},
                          {u"Stage 2\r\n\r\n", false, magenta},
                          {u"Line 3\r\n", false, magenta},
                          {u"Stage 3", false, magenta}}));
}

TEST_F(TopicRendering, PinnaclePhases) {
    EXPECT_EQ(Rendered(u"Pinnacle Phases"),
              (ReportRuns{{u"Pinnacle Phases\r\n\r\n", true, magenta},
                          {u"About Pinnacles\r\n\r\n", false, magenta},
                          {u"Pinnacle label 1\r\n", false, magenta},
                          {u"Pinnacle text 1\r\n\r\n", false, magenta},
                          {u"Pinnacle label 2\r\n", false, magenta},
                          {u"Pinnacle text 2\r\n\r\n", false, magenta},
                          {u"Pinnacle label 3\r\n", false, magenta},
                          {u"Pinnacle text 3\r\n\r\n", false, magenta},
                          {u"Pinnacle label 4\r\n", false, magenta},
                          {u"Pinnacle text 4", false, magenta}}));
}

TEST_F(TopicRendering, ChallengeNumber) {
    EXPECT_EQ(Rendered(u"Challenge Number"),
              (ReportRuns{{u"Your Challenge Number is: 1 3 2 2\r\n\r\n", true, magenta},
                          {u"About Challenges\r\n\r\n", false, magenta},
                          {u"Challenge label 1\r\n", false, magenta},
                          {u"Challenge text 1\r\n\r\n", false, magenta},
                          {u"Challenge label 2\r\n", false, magenta},
                          {u"Challenge text 2\r\n\r\n", false, magenta},
                          {u"Challenge label 3\r\n", false, magenta},
                          {u"Challenge text 3\r\n\r\n", false, magenta},
                          {u"Challenge label 4\r\n", false, magenta},
                          {u"Challenge text 4", false, magenta}}));
}

TEST_F(TopicRendering, PlanesHaveTheirAboutAtTheEnd) {
    EXPECT_EQ(
        Rendered(u"Planes Of Expression / Personal Aspects"),
        (ReportRuns{
            {u"Your Planes of Expression is towards Emotional\r\n\r\n", true, magenta},
            {u"Your Personal Aspects: Planes line 1 \r\nPlanes line 2\r\n\r\n", false, magenta},
            {u"About Planes", false, magenta}}));
}

TEST_F(TopicRendering, ReadsTheStoreAndRunsNothing) {
    for (const std::u16string_view caption : treeOrder)
        EXPECT_EQ(Rendered(caption), ExpectedPage(caption));
    EXPECT_EQ(store.PersonalMonthNumber, 101);
    EXPECT_EQ(store.DestinyNumber, 106);
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
}

TEST_F(TopicRendering, KarmicLessonsWithoutALessonEndInTheBlankOfTheLiteral) {
    store.KarmicLessonsNumber.clear();
    EXPECT_EQ(Rendered(u"Karmic Lessons Number").at(0).text,
              u"Your Karmic Lessons Number is: \r\n\r\n");
}

TEST_F(TopicRendering, NumbersAreDecimalWithoutBlankOrZeroInFront) {
    for (const auto &[number, text] : std::vector<std::pair<int16, std::u16string>>{
             {0, u"0"}, {9, u"9"}, {22, u"22"}, {32767, u"32767"}, {-1, u"-1"}}) {
        store.EssenceNumber = number;
        EXPECT_EQ(Rendered(u"Essence").at(0).text,
                  u"Your Essence Number is: " + text + u"\r\n\r\n");
    }
}

TEST_F(TopicRendering, TheBirthDayGoesThroughANumber) {
    for (const auto &[day, shown] : std::vector<std::pair<std::u16string, std::u16string>>{
             {u"1", u"1"}, {u"31", u"31"}, {u"07", u"7"}, {u"0", u"0"}, {u"-3", u"-3"}}) {
        profile.BirthDay = day;
        EXPECT_EQ(Rendered(u"Birthday Number").at(0),
                  (ReportRun{u"Your BirthDay Number is: " + shown + u"\r\n\r\n", true, magenta}));
    }
}

TEST_F(TopicRendering, ABirthDayThatIsNoNumberLosesTheWholeHeading) {
    for (const std::u16string_view day : {u"", u"x", u"2x", u"2 9", u"32768"}) {
        profile.BirthDay = day;
        EXPECT_EQ(WithoutEmptyRuns(Rendered(u"Birthday Number")),
                  (ReportRuns{{u"About Birthday\r\n\r\n", false, magenta},
                              {u"Text Birthday", false, magenta}}))
            << testing::PrintToString(std::u16string(day));
    }
}

TEST_F(TopicRendering, ATopicAfterAnotherLeavesNoTraceOfIt) {
    for (const std::u16string_view earlier : treeOrder) {
        for (const std::u16string_view later : treeOrder) {
            RunList pane;
            RenderTopic(pane, *FindTopic(earlier));
            RenderTopic(pane, *FindTopic(later));
            EXPECT_EQ(pane.Runs(), ExpectedPage(later));
        }
    }
}

TEST_F(TopicRendering, TakesNothingFromWhatThePaneHeldOrWasSetTo) {
    for (const std::u16string_view caption : treeOrder) {
        RunList pane;
        pane.SetColor({255, 0, 0});
        pane.SetBold(true);
        pane.SetSelectedText(u"red and bold");
        pane.SetBold(false);
        RenderTopic(pane, *FindTopic(caption));
        EXPECT_EQ(pane.Runs(), ExpectedPage(caption));
    }
}

TEST_F(TopicRendering, EndsWithBoldOffAndTheCaretAtTheEnd) {
    for (const std::u16string_view caption : treeOrder) {
        RunList pane;
        RenderTopic(pane, *FindTopic(caption));
        const std::u16string text = pane.Text();
        pane.SetSelectedText(u"|");
        EXPECT_EQ(pane.Text(), text + u"|");
        EXPECT_EQ(pane.Runs().back(), (ReportRun{u"|", false, magenta}));
    }
}

TEST_F(TopicRendering, RunningFirstRewritesTheSlots) {
    Named(u"OAK", u"", u"RIVER");
    RunList pane;
    RunAndRenderTopic(pane, *FindTopic(u"Destiny / Expressions Number"));
    EXPECT_EQ(pane.Runs().at(0).text, u"Your Destiny Or Expression Number is: 9\r\n\r\n");
    EXPECT_NE(store.DestinyText, u"Text Destiny");
    EXPECT_EQ(store.HiddenPassionText, u"Text Hidden Passion"); // nothing else ran
}

TEST_F(FreshStore, PlanesThatTieLeaveTheirHeadingAtTheBlankOfTheLiteral) {
    Named(u"A", u"", u"E"); // half of the name mental, half physical
    RunList pane;
    RunAndRenderTopic(pane, *FindTopic(u"Planes Of Expression / Personal Aspects"));
    const ReportRuns runs = pane.Runs();
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0],
              (ReportRun{u"Your Planes of Expression is towards \r\n\r\n", true, magenta}));
    // 50 is strong for both; 0 is weak.
    EXPECT_EQ(runs[1], (ReportRun{u"Your Personal Aspects: Mental Ability 50 - Strong \r\n"
                                  u"Physical Ability 50 - Strong \r\n"
                                  u"Emotional Ability 0 - Weak \r\n"
                                  u"Intuitive Ability 0 - Weak\r\n\r\n",
                                  false, magenta}));
    EXPECT_EQ(runs[2], (ReportRun{store.PlanesAbout, false, magenta}));
}

TEST_F(TopicRendering, ACalculatorThatGivesUpIsWrittenFromTheSlotsAsTheyStand) {
    profile.BirthYear = u"19x5"; // the first thing that Essence looks at
    RunList pane;
    RunAndRenderTopic(pane, *FindTopic(u"Essence"));
    EXPECT_EQ(pane.Runs(), (ReportRuns{{u"Your Essence Number is: 113\r\n\r\n", true, magenta},
                                       {u"About Essence\r\n\r\n", false, magenta},
                                       {u"Text Essence", false, magenta}}));
}

} // namespace
} // namespace modReadings
