#include "core/months.h"
#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <ostream>

namespace modReadings {
namespace {

using longhand::Decimal;
using namespace std::chrono_literals;
using std::chrono::December;

/// One row of the age table, with the lines of a person born in March 1990, whose month
/// counts 3 and whose year counts 1 (19, 10, 1), on a day that makes the root.
struct AgeRow {
    int root;
    const char16_t *day;
    int firstEnds, secondEnds;
    const char16_t *line1, *line2, *line3;
};

void PrintTo(const AgeRow &row, std::ostream *out) { *out << "Root" << row.root; }

// The root is the day and 4 more: 6 + 4 = 10 gives 1, 7 + 4 = 11 gives 2 and so on.
constexpr AgeRow ageRows[] = {
    {1, u"6", 26, 53, u"Life Path Period 1 from age 0 - 26 is 3",
     u"Life Path Period 2 from age 27 - 53 is 6", u"Life Path Period 3 from age 54 on is 1"},
    {2, u"7", 25, 52, u"Life Path Period 1 from age 0 - 25 is 3",
     u"Life Path Period 2 from age 26 - 52 is 7", u"Life Path Period 3 from age 53 on is 1"},
    {3, u"8", 24, 51, u"Life Path Period 1 from age 0 - 24 is 3",
     u"Life Path Period 2 from age 25 - 51 is 8", u"Life Path Period 3 from age 52 on is 1"},
    {4, u"9", 23, 59, u"Life Path Period 1 from age 0 - 23 is 3",
     u"Life Path Period 2 from age 24 - 59 is 9", u"Life Path Period 3 from age 60 on is 1"},
    {5, u"1", 31, 58, u"Life Path Period 1 from age 0 - 31 is 3",
     u"Life Path Period 2 from age 32 - 58 is 1", u"Life Path Period 3 from age 59 on is 1"},
    {6, u"2", 30, 57, u"Life Path Period 1 from age 0 - 30 is 3",
     u"Life Path Period 2 from age 31 - 57 is 2", u"Life Path Period 3 from age 58 on is 1"},
    {7, u"3", 29, 56, u"Life Path Period 1 from age 0 - 29 is 3",
     u"Life Path Period 2 from age 30 - 56 is 3", u"Life Path Period 3 from age 57 on is 1"},
    {8, u"4", 28, 55, u"Life Path Period 1 from age 0 - 28 is 3",
     u"Life Path Period 2 from age 29 - 55 is 4", u"Life Path Period 3 from age 56 on is 1"},
    {9, u"5", 27, 54, u"Life Path Period 1 from age 0 - 27 is 3",
     u"Life Path Period 2 from age 28 - 54 is 5", u"Life Path Period 3 from age 55 on is 1"},
};

class LifePathPeriods : public FreshStore {
protected:
    /// Runs the calculator in a year in which a person born in 1990 has this age.
    void CalcAtAge(int age) {
        clock.Set(std::chrono::year(1990 + age) / 6 / 15);
        CalcLifePathPeriods();
    }
};

class LifePathPeriodsRow : public LifePathPeriods, public ::testing::WithParamInterface<AgeRow> {};

TEST_P(LifePathPeriodsRow, LinesAndReading) {
    const AgeRow &row = GetParam();
    Born(row.day, u"March", u"1990");
    CalcLifePathPeriods();
    EXPECT_EQ(store.PeriodRoot, row.root);
    EXPECT_EQ(store.PeriodLine1, row.line1);
    EXPECT_EQ(store.PeriodLine2, row.line2);
    EXPECT_EQ(store.PeriodLine3, row.line3);
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, row.root, "LifePathPeriodsText"));
}

TEST_P(LifePathPeriodsRow, EdgesOfThePeriods) {
    const AgeRow &row = GetParam();
    Born(row.day, u"March", u"1990");

    CalcAtAge(0);
    EXPECT_EQ(store.LifePathPeriodsNumber, 1);
    store.LifePathPeriodsNumber = 0;
    CalcAtAge(row.firstEnds);
    EXPECT_EQ(store.LifePathPeriodsNumber, 1);
    CalcAtAge(row.firstEnds + 1);
    EXPECT_EQ(store.LifePathPeriodsNumber, 2);
    store.LifePathPeriodsNumber = 0;
    CalcAtAge(row.secondEnds);
    EXPECT_EQ(store.LifePathPeriodsNumber, 2);
    CalcAtAge(row.secondEnds + 1);
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
    store.LifePathPeriodsNumber = 0;
    CalcAtAge(150);
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
}

TEST_P(LifePathPeriodsRow, EveryAge) {
    const AgeRow &row = GetParam();
    Born(row.day, u"March", u"1990");
    for (int age = -60; age <= 150; ++age) {
        store.LifePathPeriodsNumber = -7;
        CalcAtAge(age);
        int expected = -7; // a negative age writes no index
        if (age >= 0)
            expected = age <= row.firstEnds ? 1 : age <= row.secondEnds ? 2 : 3;
        EXPECT_EQ(store.LifePathPeriodsNumber, expected) << "age " << age;
        EXPECT_EQ(store.PeriodLine1, row.line1) << "age " << age;
        EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, row.root, "LifePathPeriodsText"));
    }
}

INSTANTIATE_TEST_SUITE_P(AllRoots, LifePathPeriodsRow, ::testing::ValuesIn(ageRows));

TEST_F(LifePathPeriods, BornOn29December1985) {
    Born(u"29", u"December", u"1985");
    CalcLifePathPeriods();
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodNumber2, 2);         // 11, 2
    EXPECT_EQ(store.PeriodNumber3, 5);         // 23, 5
    EXPECT_EQ(store.PeriodRoot, 1);            // 10
    EXPECT_EQ(store.LifePathPeriodsNumber, 2); // 41, in 27 to 53
    EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 26 is 3");
    EXPECT_EQ(store.PeriodLine2, u"Life Path Period 2 from age 27 - 53 is 2");
    EXPECT_EQ(store.PeriodLine3, u"Life Path Period 3 from age 54 on is 5");
}

TEST_F(LifePathPeriods, BornOn7March1990) {
    Born(u"7", u"March", u"1990");
    CalcLifePathPeriods();
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodNumber2, 7);
    EXPECT_EQ(store.PeriodNumber3, 1);
    EXPECT_EQ(store.PeriodRoot, 2);
    EXPECT_EQ(store.LifePathPeriodsNumber, 2); // 36, in 26 to 52; not the period's number 7
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 2, "LifePathPeriodsText"));
}

TEST_F(LifePathPeriods, FixedTextsStandWordForWord) {
    Born(u"7", u"March", u"1990");
    CalcLifePathPeriods();
    EXPECT_EQ(store.PeriodStage1,
              u"This is the first stage of a person's life. It starts with your birth goes on till "
              u"your mid-life. This is a development phase. These are the basic, foundational "
              u"years of a person's life. In this period the foundations for your future years are "
              u"laid.");
    EXPECT_EQ(store.PeriodStage2,
              u"The middle stage of a person's life is divided into two parts. This period extends "
              u"the midlife of a person. This is the most important period since most of "
              u"significant events of a person's life happen in this period. In this period your "
              u"full concentration falls on your family and your profession. You go through "
              u"different experiences of life and prepare yourself for life's final stages.");
    EXPECT_EQ(store.PeriodStage3,
              u"This is the last and final stage of a person's life. In this period you need to "
              u"analyze whatever you have experienced and learnt in the previous two periods. This "
              u"is the time for some reflection. In this time you are likely to settle all the "
              u"differences and lead a peaceful and calm life.");
    EXPECT_EQ(store.LifePathPeriodsAbout,
              u"Our life is divided into three parts. The first part is the first stage of a "
              u"person's life. This is the developmental stage of a person's life. The second "
              u"stage helps to understand yourself and develop your creative talents. Having gone "
              u"through the various experiences in the third stage you are a wise person with "
              u"great understanding about people and situations.");
}

TEST_F(LifePathPeriods, WritesItsOwnSlotsAndNoOthers) {
    Born(u"7", u"March", u"1990");
    const ReadingStore marked = MarkedStore();
    store = marked;
    CalcLifePathPeriods();
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"PeriodNumber1", "PeriodNumber2", "PeriodNumber3", "PeriodRoot",
                         "LifePathPeriodsNumber", "LifePathPeriodsText", "LifePathPeriodsAbout",
                         "PeriodLine1", "PeriodLine2", "PeriodLine3", "PeriodStage1",
                         "PeriodStage2", "PeriodStage3"}));
    const ReadingStore once = store;
    CalcLifePathPeriods();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(LifePathPeriods, SumOf11Gives2AndSumOf22Gives4WhateverTheLifePathSays) {
    Born(u"2", u"January", u"2006"); // 2 + 1 + 8
    CalcLifePath();
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathNumber, 11);
    EXPECT_EQ(store.PeriodRoot, 2);
    EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 25 is 1");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 2, "LifePathPeriodsText"));

    Born(u"9", u"September", u"1993"); // 9 + 9 + 4
    CalcLifePath();
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathNumber, 22);
    EXPECT_EQ(store.PeriodRoot, 4);
    EXPECT_EQ(store.PeriodLine2, u"Life Path Period 2 from age 24 - 59 is 9");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 4, "LifePathPeriodsText"));
}

TEST_F(LifePathPeriods, RowsOf11And22HaveReadingsThatNoDateReaches) {
    ASSERT_EQ(readings::lifePathPeriods.size(), 11u);
    for (const Reading &reading : readings::lifePathPeriods.rows)
        EXPECT_TRUE(IsReadingOf(reading.text, reading.number, "LifePathPeriodsText"));
    EXPECT_EQ(readings::lifePathPeriods.rows[9].number, 11);
    EXPECT_EQ(readings::lifePathPeriods.rows[10].number, 22);

    std::set<int> roots;
    for (int year = 1900; year <= 2050; ++year) {
        for (int day = 1; day <= 31; ++day) {
            for (int month = 1; month <= 12; ++month) {
                Born(Decimal(day),
                     std::u16string(englishMonths[static_cast<std::size_t>(month - 1)]),
                     Decimal(year));
                CalcLifePathPeriods();
                // Two digits at most on the way, so digits may be added in any order.
                const int root = 1 + (day + month + year - 1) % 9;
                ASSERT_EQ(store.PeriodRoot, root) << day << '.' << month << '.' << year;
                roots.insert(root);
            }
        }
    }
    EXPECT_EQ(roots, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(LifePathPeriods, AgeTurnsOnTheFirstOfJanuary) {
    Born(u"6", u"March", u"1990"); // root 1
    clock.Set(2016y / December / 31);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 1); // 26
    clock.Advance(1);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 2); // 27
    clock.Set(2017y / December / 31);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 2);

    Born(u"6", u"December", u"1990"); // 6 + 3 + 1 makes root 1 too, and months do not enter
    clock.Set(2044y / std::chrono::January / 1);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 3); // 54
}

TEST_F(LifePathPeriods, BirthYearBeforeAtAndAfterTheCurrentOne) {
    Born(u"1", u"March", u"2025"); // 1 + 3 + 9, root 4
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 1);

    store.LifePathPeriodsNumber = 0;
    Born(u"1", u"March", u"2026"); // 1 + 3 + 1, root 5
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 1);
    EXPECT_EQ(store.PeriodLine3, u"Life Path Period 3 from age 59 on is 1");

    store.LifePathPeriodsNumber = 0;
    Born(u"1", u"March", u"2027"); // 1 + 3 + 2, root 6
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 0); // not born yet
    EXPECT_EQ(store.PeriodLine3, u"Life Path Period 3 from age 58 on is 2");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 6, "LifePathPeriodsText"));
}

TEST_F(LifePathPeriods, UnbornPersonKeepsTheIndexOfThePersonBefore) {
    Born(u"29", u"December", u"1985");
    CalcLifePathPeriods();
    ASSERT_EQ(store.LifePathPeriodsNumber, 2);

    Born(u"7", u"March", u"2050"); // 7 + 3 + 7 = 17, root 8
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 2);
    EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 28 is 3");
    EXPECT_EQ(store.PeriodLine2, u"Life Path Period 2 from age 29 - 55 is 7");
    EXPECT_EQ(store.PeriodLine3, u"Life Path Period 3 from age 56 on is 7");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 8, "LifePathPeriodsText"));

    Born(u"1", u"January", u"1900"); // 1 + 1 + 1, root 3, and 126 years old
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);

    Born(u"7", u"March", u"2050");
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
}

TEST_F(LifePathPeriods, DayThatTheMonthDoesNotHaveCountsLikeAnyOther) {
    Born(u"31", u"February", u"1990");
    CalcLifePathPeriods();
    EXPECT_EQ(store.PeriodNumber2, 4);
    EXPECT_EQ(store.PeriodRoot, 7); // 2 + 4 + 1
    EXPECT_EQ(store.PeriodLine2, u"Life Path Period 2 from age 30 - 56 is 4");
}

TEST_F(LifePathPeriods, UnknownMonthNameClosesTheFirstLineInZero) {
    for (const char16_t *month : {u"mars", u"M\u00E4rz", u"march", u"MARCH", u""}) {
        Born(u"7", month, u"1990");
        CalcLifePathPeriods();
        EXPECT_EQ(store.PeriodNumber1, 0);
        EXPECT_EQ(store.PeriodRoot, 8); // 7 + 1
        EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 28 is 0");
    }
}

TEST_F(LifePathPeriods, NameThatEndsInADigitMovesTheRootFromTheNextRunOn) {
    Born(u"7", u"March", u"1990");
    Named(u"JOHN", u"", u"SMITH2");
    RunAllCalculators(); // the periods come before the first walk over the name
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodRoot, 2);

    CalcLifePathPeriods(); // the 2 stands for February, which comes before March
    EXPECT_EQ(store.PeriodNumber1, 2);
    EXPECT_EQ(store.PeriodRoot, 1);
    EXPECT_EQ(store.PeriodLine1, u"Life Path Period 1 from age 0 - 26 is 2");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 1, "LifePathPeriodsText"));
}

TEST_F(LifePathPeriods, DateThatCountsNothingHasNoRow) {
    const ReadingStore marked = MarkedStore();
    for (const char16_t *day : {u"0", u"00", u""}) {
        Born(day, u"mars", u"0000");
        store = marked;
        CalcLifePathPeriods();
        EXPECT_EQ(store.PeriodRoot, 0);
        EXPECT_EQ(
            ChangedSince(marked),
            (SlotNames{"PeriodNumber1", "PeriodNumber2", "PeriodNumber3", "PeriodRoot",
                       "PeriodStage1", "PeriodStage2", "PeriodStage3", "LifePathPeriodsAbout"}));
    }
}

TEST_F(LifePathPeriods, BadDayLeavesOnlyTheFirstNumberNew) {
    const ReadingStore marked = MarkedStore();
    for (const char16_t *day : {u"x", u"2x", u" 7", u"1 2", u"-7"}) {
        Born(day, u"March", u"1990");
        store = marked;
        EXPECT_THROW(CalcLifePathPeriods(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), SlotNames{"PeriodNumber1"});
        EXPECT_EQ(store.PeriodNumber1, 3);
    }
}

TEST_F(LifePathPeriods, BadYearLeavesTheFirstTwoNumbersNew) {
    const ReadingStore marked = MarkedStore();
    for (const char16_t *year : {u"19x0", u"MCMXC", u"1990 ", u"-1990"}) {
        Born(u"7", u"March", year);
        store = marked;
        EXPECT_THROW(CalcLifePathPeriods(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), (SlotNames{"PeriodNumber1", "PeriodNumber2"}));
        EXPECT_EQ(store.PeriodNumber1, 3);
        EXPECT_EQ(store.PeriodNumber2, 7);
    }
}

TEST_F(LifePathPeriods, YearOfDigitsThatIsNoNumberFailsAtTheAge) {
    const ReadingStore marked = MarkedStore();
    // The digits of both can be added; the empty text and 40000 are no 16-bit number.
    for (const char16_t *year : {u"", u"40000"}) {
        Born(u"7", u"March", year);
        store = marked;
        EXPECT_THROW(CalcLifePathPeriods(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked),
                  (SlotNames{"PeriodNumber1", "PeriodNumber2", "PeriodNumber3", "PeriodStage1",
                             "PeriodStage2", "PeriodStage3"}));
    }
    EXPECT_EQ(store.PeriodNumber3, 4);
}

} // namespace
} // namespace modReadings
