#include "core/proceed_pass.h"

#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>
#include <string>

namespace modReadings {
namespace {

using std::chrono::year;

class ProceedPass : public FreshStore {
protected:
    // No vowel but Y: the raw sum of Soul Urge is 14, that of Destiny and of Inner Dreams
    // 30. Soul Urge 5, Inner Dreams 3.
    static void SkyLynn() {
        Named(u"SKY", u"", u"LYNN");
        Born(u"2", u"January", u"1990");
    }

    static void AnnLee() {
        Named(u"ANN", u"", u"LEE");
        Born(u"7", u"May", u"1990");
    }

    /// The slots that the pass leaves as they were.
    static SlotNames KeptByThePass() {
        const ReadingStore before = store = MarkedStore();
        RunAllCalculators();
        return Kept(before, store);
    }
};

TEST_F(ProceedPass, HasItsTwentyTwoCalculatorsInTheirOrder) {
    const std::array<Calculator, 22> expected{
        CalcPersonalMonth, CalcBirthday,      CalcHiddenPassion,    CalcLifePathPeriods,
        CalcPersonalYear,  CalcPinnacles,     CalcSubconsciousSelf, CalcLifePath,
        CalcDestiny,       CalcKarmicLessons, CalcChallenges,       CalcKarmicDebt,
        CalcBalance,       CalcPersonalDay,   CalcRationalThought,  CalcHPBridge,
        CalcLEBridge,      CalcEssence,       CalcRealization,      CalcInnerDreams,
        CalcPlanes,        CalcSoulUrge};
    EXPECT_EQ(passOrder, expected);
}

TEST_F(ProceedPass, WritesEverySlotButTheFlagThatAnotherNameRaises) {
    OakRiver();
    EXPECT_EQ(KeptByThePass(), SlotNames{"YUsedAsVowel"});
}

// What reads before it is written.

TEST_F(ProceedPass, DebtAndHPBridgeRestOnTheNamesOfThePersonBefore) {
    SkyLynn();
    RunAllCalculators();
    EXPECT_EQ(store.SoulUrgeRaw, 14);
    EXPECT_EQ(store.KarmicDebtNumber, 0); // on zeros in the first pass
    EXPECT_EQ(store.HPBridgeNumber, 0);
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 14);
    EXPECT_EQ(store.HPBridgeNumber, 2); // 5 - 3

    OakRiver();
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 14); // still Soul Urge 14 of the first person
    EXPECT_TRUE(IsReadingOf(store.KarmicDebtText, 14, "KarmicDebtText"));
    EXPECT_EQ(store.HPBridgeNumber, 2);

    // Two people on, nothing of the first is left.
    AnnLee();
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 0); // Oak River: 21 and 24
    EXPECT_EQ(store.HPBridgeNumber, 3);   // 3 and 6
    CalcKarmicDebt();
    EXPECT_EQ(store.KarmicDebtNumber, 13); // Inner Dreams: N N L
    CalcHPBridge();
    EXPECT_EQ(store.HPBridgeNumber, 7); // Soul Urge 11, Inner Dreams 4
}

TEST_F(ProceedPass, DebtSeesWhatThisPassHasWrittenBeforeIt) {
    AnnLee();
    profile.BirthDay = u"16"; // written second
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 16);

    store = {};
    Named(u"R", u"R", u"A"); // Destiny, written ninth: 19
    profile.BirthDay = u"2";
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 19);
}

TEST_F(ProceedPass, LEBridgeAndRealizationAreRightInTheFirstPass) {
    OakRiver();
    RunAllCalculators();
    EXPECT_EQ(store.LEBridgeNumber, 8);
    EXPECT_EQ(store.RealizationNumber, 1);
    SkyLynn(); // Life Path: 2 + 1 + 10 = 13, so 4. Destiny: 30, so 3
    RunAllCalculators();
    EXPECT_EQ(store.LEBridgeNumber, 1);
    EXPECT_EQ(store.RealizationNumber, 7);
}

TEST_F(ProceedPass, MonthsBeforeTheNameWalksSeeTheNameBefore) {
    OakRiver();
    profile.LastName = u"RIVER5";
    RunAllCalculators();
    EXPECT_EQ(store.PersonalMonthNumber, 8); // nothing walked yet: December counts 3
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PinnacleNumber1, 5);   // 3 + 29
    EXPECT_EQ(store.PersonalDayNumber, 8); // after the walk of Destiny: 2 + 5 + 7 + 2 + 1 = 17
    EXPECT_EQ(store.PersonalYearNumber, u"6");
    EXPECT_EQ(store.LifePathNumber, 1);

    RunAllCalculators();
    EXPECT_EQ(store.PersonalMonthNumber, 1); // 2 + 5 + 2 + 1
    EXPECT_EQ(store.PeriodNumber1, 5);
    EXPECT_EQ(store.PinnacleNumber1, 7); // 5 + 29
    EXPECT_EQ(store.PersonalDayNumber, 8);
    EXPECT_EQ(store.PersonalYearNumber, u"6"); // these three never look at the letter
    EXPECT_EQ(store.LifePathNumber, 1);
    EXPECT_EQ(store.ChallengeNumber, u"1 3 2 2");

    Named(u"SKY", u"", u"LYNN");
    Born(u"7", u"October", u"1990");
    RunAllCalculators();
    EXPECT_EQ(store.PersonalMonthNumber, 6); // 7 + 5 + 2 + 1, the 5 of the person before
    EXPECT_EQ(store.PeriodNumber1, 5);
    EXPECT_EQ(store.PersonalDayNumber, 9); // 7 + 1 + 7 + 2 + 1 = 18: own name walked by now
    CalcPersonalMonth();
    EXPECT_EQ(store.PersonalMonthNumber, 2); // 7 + 1 + 2 + 1 = 11
}

// Calculators that fail.

TEST_F(ProceedPass, ABirthDayThatIsNoNumberStopsOnlyWhatReadsIt) {
    AnnLee();
    profile.BirthDay = u"1x";
    const auto kept = KeptByThePass();

    // The month of the periods is written before the day fails.
    EXPECT_EQ(kept, SlotsOf({"PersonalMonth", "Birthday", "LifePath", "PeriodNumber2",
                             "PeriodNumber3", "PeriodRoot", "PeriodLine", "PeriodStage",
                             "PersonalYear", "Pinnacle", "Challenge", "BirthDayValue", "KarmicDebt",
                             "PersonalDay", "RationalThought", "Current", "YUsedAsVowel"}));
    EXPECT_EQ(store.PeriodNumber1, 5);   // May
    EXPECT_EQ(store.SoulUrgeNumber, 11); // the last of all still runs
}

TEST_F(ProceedPass, ABirthYearThatIsNoNumberStopsOnlyWhatReadsIt) {
    OakRiver();
    profile.BirthYear = u"19x5";
    const auto kept = KeptByThePass();

    // Month and day of the periods are written before the year fails.
    EXPECT_EQ(kept, SlotsOf({"PeriodNumber3", "PeriodRoot", "PeriodLine", "PeriodStage", "LifePath",
                             "PersonalYear", "Pinnacle", "Challenge", "Essence", "YUsedAsVowel"}));
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodNumber2, 2);
}

TEST_F(ProceedPass, ANameTooLongToCountStopsOnlyWhatWalksIt) {
    OakRiver();
    profile.FirstName = std::u16string(40000, u'A');
    const auto kept = KeptByThePass();
    for (const std::string word : {"HiddenPassion", "Destiny", "InnerDreams", "SoulUrge"})
        for (const char *const slot : {"Number", "Text", "About"})
            EXPECT_TRUE(kept.contains(word + slot)) << word << slot;
    EXPECT_TRUE(kept.contains("RationalThoughtNumber"));
    EXPECT_TRUE(kept.contains("PlanesText"));
    EXPECT_EQ(store.KarmicLessonsNumber, u""); // emptied before it failed
    EXPECT_EQ(store.LifePathNumber, 1);
    EXPECT_EQ(store.BalanceNumber, 1); // A 1 + R 9 = 10
}

TEST_F(ProceedPass, RecoversWithTheNextPerson) {
    OakRiver();
    RunAllCalculators();
    RunAllCalculators();
    const ReadingStore good = store;

    Named(std::u16string(40000, u'Z'), u"", u"");
    Born(u"x", u"May", u"y");
    RunAllCalculators();

    OakRiver();
    RunAllCalculators();
    RunAllCalculators();
    EXPECT_EQ(Changed(good, store), SlotNames{});
}

// Passes one after another.

TEST_F(ProceedPass, IsTheSameWhenItIsRunOnceMore) {
    for (const auto person : {OakRiver, SkyLynn, AnnLee}) {
        store = {};
        person();
        RunAllCalculators();
        const ReadingStore first = store;
        RunAllCalculators();
        const ReadingStore second = store;
        RunAllCalculators();
        EXPECT_EQ(Changed(second, store), SlotNames{});
        // The first differs by nothing but the two that run too early.
        for (const std::string &slot : Changed(first, second))
            EXPECT_TRUE(slot.starts_with("KarmicDebt") || slot.starts_with("HPBridge")) << slot;
    }
}

TEST_F(ProceedPass, KeepsOfOnePersonWhatTheNextDoesNotAssign) {
    OakRiver();
    RunAllCalculators();
    const ReadingStore oak = store;

    // No letter of the chart. Born after today, for the Essence of such a name would
    // never end at a positive age.
    Named(u"123", u"", u"-");
    Born(u"7", u"March", u"2030");
    RunAllCalculators();

    const SlotNames kept = Kept(oak, store);
    for (const char *const slot :
         {"DestinyText", "SoulUrgeText", "InnerDreamsText", "BalanceText", "EssenceText",
          "HiddenPassionNumber", "HiddenPassionText", // the 1 has won and has no value
          "LifePathPeriodsNumber",                    // a negative age is in no period
          "PlanesNumber",                             // four shares of 0 are a tie
          "RealizationNumber"})                       // a request instead
        EXPECT_TRUE(kept.contains(slot)) << slot;
    EXPECT_EQ(store.DestinyNumber + store.SoulUrgeNumber + store.InnerDreamsNumber +
                  store.BalanceNumber + store.EssenceNumber,
              0);
    EXPECT_EQ(store.KarmicLessonsNumber, u" 1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(store.LifePathNumber, 6); // 7 + 3 + 5
}

TEST_F(ProceedPass, OnlyFiveCalculatorsFollowTheClock) {
    OakRiver();
    RunAllCalculators();
    RunAllCalculators();
    const ReadingStore before = store;
    clock.Set(year(2065) / 3 / 5); // age 80
    RunAllCalculators();

    EXPECT_EQ(store.PersonalMonthNumber, 3);   // 2 + 3 + 3 + 4 = 12
    EXPECT_EQ(store.PersonalYearNumber, u"9"); // 5 + 4
    EXPECT_EQ(store.PersonalDayNumber, 8);     // 2 + 3 + 5 + 3 + 4 = 17
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
    EXPECT_EQ(store.EssenceNumber, 2); // K, which takes OAK to 81, and R: 11
    EXPECT_EQ(Changed(before, store),
              (SlotNames{"PersonalMonthNumber", "PersonalMonthText", "PersonalYearNumber",
                         "PersonalYearText", "PersonalDayNumber", "PersonalDayText",
                         "LifePathPeriodsNumber", "EssenceNumber", "EssenceText", "CurrentDayText",
                         "CurrentYearText"}));

    clock.Set(year(2026) / 11 / 16);
    RunAllCalculators();
    EXPECT_EQ(Changed(before, store), SlotNames{});
}

TEST_F(ProceedPass, ChecksNoCalendar) {
    Named(u"OAK", u"", u"RIVER");
    Born(u"31", u"February", u"2000");
    RunAllCalculators();
    EXPECT_EQ(store.LifePathNumber, 8); // 4 + 2 + 2
    EXPECT_TRUE(IsReadingOf(store.BirthdayText, 31, "BirthdayText"));
    EXPECT_EQ(store.PeriodNumber2, 4);
    EXPECT_EQ(store.PeriodRoot, 8);
    EXPECT_EQ(store.PersonalMonthNumber, 9); // 4 + 2 + 2 + 1
    EXPECT_EQ(store.PinnacleNumber1, 6);     // 33
    EXPECT_EQ(store.ChallengeNumber, u"2 2 0 0");
}

TEST_F(ProceedPass, CountsAMonthInAnotherLanguageAsNothing) {
    OakRiver();
    for (const char16_t *month :
         {u"d\u00E9cembre", u"Dezember", u"december", u"DECEMBER", u"12", u""}) {
        profile.BirthMonth = month;
        RunAllCalculators();
        EXPECT_EQ(store.LifePathNumber, 7);        // 2 + 0 + 5
        EXPECT_EQ(store.PersonalMonthNumber, 5);   // 2 + 0 + 2 + 1
        EXPECT_EQ(store.PersonalDayNumber, 3);     // 2 + 0 + 7 + 2 + 1 = 12
        EXPECT_EQ(store.PersonalYearNumber, u"3"); // 2 + 0 + 1
        EXPECT_EQ(store.PeriodNumber1, 0);
        EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 29 is 0"); // root 2 + 5
        EXPECT_EQ(store.PinnacleNumber1, 11);                                     // 29
        EXPECT_EQ(store.ChallengeNumber, u"2 3 1 5");
    }
}

} // namespace
} // namespace modReadings
