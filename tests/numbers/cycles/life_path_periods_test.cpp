#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "numbers/life_path_periods.h"
#include "numbers/readings.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::Month;

class LifePathPeriods : public FreshStore {
protected:
    /// Runs the calculator on a person; gives the root.
    static int Of(std::u16string day, std::u16string month, std::u16string year) {
        Born(std::move(day), std::move(month), std::move(year));
        CalcLifePathPeriods();
        return store.PeriodRoot;
    }

    /// The index of the period that runs at an age, or -7 where none is written.
    int IndexAt(int age) {
        clock.Set(std::chrono::year(1990 + age) / 6 / 15);
        store.LifePathPeriodsNumber = -7;
        CalcLifePathPeriods();
        return store.LifePathPeriodsNumber;
    }
};

using LifePathPeriodsRow = LifePathPeriods;

TEST_F(LifePathPeriodsRow, HasItsAgesLinesAndReading) {
    const struct {
        int root;
        const char16_t *firstEnds, *secondBegins, *secondEnds, *thirdBegins;
    } rows[] = {{1, u"26", u"27", u"53", u"54"}, {2, u"25", u"26", u"52", u"53"},
                {3, u"24", u"25", u"51", u"52"}, {4, u"23", u"24", u"59", u"60"},
                {5, u"31", u"32", u"58", u"59"}, {6, u"30", u"31", u"57", u"58"},
                {7, u"29", u"30", u"56", u"57"}, {8, u"28", u"29", u"55", u"56"},
                {9, u"27", u"28", u"54", u"55"}};
    const auto number = [](std::u16string_view age) {
        return (age[0] - u'0') * 10 + age[1] - u'0';
    };
    for (const auto &[root, firstEnds, secondBegins, secondEnds, thirdBegins] : rows) {
        // March 1990 counts 3 and 1 (19, 10, 1), so the root is the day and 4 more.
        const std::u16string day = Decimal(root > 4 ? root - 4 : root + 5);
        EXPECT_EQ(Of(day, u"March", u"1990"), root);
        for (int age = -60; age <= 150; ++age)
            EXPECT_EQ(IndexAt(age), age < 0                     ? -7
                                    : age <= number(firstEnds)  ? 1
                                    : age <= number(secondEnds) ? 2
                                                                : 3)
                << "root " << root << ", age " << age;
        const std::u16string period = u"Life Path Period ", to = u" - ", is = u" is ";
        EXPECT_EQ(store.PeriodLine1, period + u"1 from age 0 - " + firstEnds + is + u"3");
        EXPECT_EQ(store.PeriodLine2,
                  period + u"2 from age " + secondBegins + to + secondEnds + is + day);
        EXPECT_EQ(store.PeriodLine3, period + u"3 from age " + thirdBegins + u" on is 1");
        EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, root, "LifePathPeriodsText"));
    }
}

TEST_F(LifePathPeriods, BornOn7March1990) {
    EXPECT_EQ(Of(u"7", u"March", u"1990"), 2);
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodNumber2, 7);
    EXPECT_EQ(store.PeriodNumber3, 1);
    EXPECT_EQ(store.LifePathPeriodsNumber, 2); // 36, in 26 to 52; not the period's number 7
    EXPECT_EQ(store.PeriodLine2, u"Life Path Period 2 from age 26 - 52 is 7");
    for (const auto &[text, slot] : {std::pair{&store.PeriodStage1, "PeriodStage1"},
                                     {&store.PeriodStage2, "PeriodStage2"},
                                     {&store.PeriodStage3, "PeriodStage3"}})
        EXPECT_TRUE(IsTextOf(*text, slot));
}

TEST_F(LifePathPeriods, SumOf11Gives2AndSumOf22Gives4WhateverTheLifePathSays) {
    EXPECT_EQ(Of(u"2", u"January", u"2006"), 2); // 2 + 1 + 8
    CalcLifePath();
    EXPECT_EQ(store.LifePathNumber, 11);
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 2, "LifePathPeriodsText"));

    EXPECT_EQ(Of(u"9", u"September", u"1993"), 4); // 9 + 9 + 4
    CalcLifePath();
    EXPECT_EQ(store.LifePathNumber, 22);
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 4, "LifePathPeriodsText"));
}

TEST_F(LifePathPeriods, RowsOf11And22HaveReadingsThatNoDateReaches) {
    ASSERT_EQ(readings::lifePathPeriods.rows.size(), 11u);
    for (const Reading &reading : readings::lifePathPeriods.rows)
        EXPECT_TRUE(IsReadingOf(reading.text, reading.number, "LifePathPeriodsText"));
    for (int year = 1900; year <= 2050; ++year)
        for (int day = 1; day <= 31; ++day)
            for (int month = 1; month <= 12; ++month)
                // Two digits at most on the way, so digits may be added in any order.
                ASSERT_EQ(Of(Decimal(day), Month(month), Decimal(year)),
                          longhand::DigitalRoot(day + month + year))
                    << day << '.' << month << '.' << year;
}

TEST_F(LifePathPeriods, AgeTurnsOnTheFirstOfJanuary) {
    Born(u"6", u"March", u"1990"); // root 1
    clock.Set(std::chrono::year(2016) / 12 / 31);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 1); // 26
    clock.Advance(1);
    CalcLifePathPeriods();
    EXPECT_EQ(store.LifePathPeriodsNumber, 2); // 27
}

TEST_F(LifePathPeriods, UnbornPersonKeepsTheIndexOfThePersonBefore) {
    Of(u"29", u"December", u"1985");
    ASSERT_EQ(store.LifePathPeriodsNumber, 2);

    EXPECT_EQ(Of(u"7", u"March", u"2050"), 8); // 7 + 3 + 7 = 17
    EXPECT_EQ(store.LifePathPeriodsNumber, 2);
    EXPECT_EQ(store.PeriodLine3, u"Life Path Period 3 from age 56 on is 7");
    EXPECT_TRUE(IsReadingOf(store.LifePathPeriodsText, 8, "LifePathPeriodsText"));

    Of(u"1", u"January", u"1900"); // 126 years old
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
    Of(u"7", u"March", u"2027");
    EXPECT_EQ(store.LifePathPeriodsNumber, 3);
    Of(u"7", u"March", u"2026"); // born this year
    EXPECT_EQ(store.LifePathPeriodsNumber, 1);
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
}

TEST_F(LifePathPeriods, DateThatCountsNothingHasNoRow) {
    for (const char16_t *day : {u"0", u"00", u""}) {
        Born(day, u"mars", u"0000");
        EXPECT_EQ(WrittenBy(CalcLifePathPeriods),
                  SlotsOf({"PeriodNumber", "PeriodRoot", "PeriodStage", "LifePathPeriodsAbout"}));
        EXPECT_EQ(store.PeriodRoot, 0);
    }
}

TEST_F(LifePathPeriods, BadYearLeavesTheFirstTwoNumbersNew) {
    Born(u"7", u"March", u"19x0");
    EXPECT_EQ(WrittenBeforeFailure(CalcLifePathPeriods),
              (SlotNames{"PeriodNumber1", "PeriodNumber2"}));
    EXPECT_EQ(store.PeriodNumber1, 3);
    EXPECT_EQ(store.PeriodNumber2, 7);
    // The digits of these can be added; the empty text and 40000 are no 16-bit number.
    for (const char16_t *year : {u"", u"40000"}) {
        Born(u"7", u"March", year);
        EXPECT_EQ(WrittenBeforeFailure(CalcLifePathPeriods),
                  SlotsOf({"PeriodNumber", "PeriodStage"}));
    }
}

TEST(LifePathPeriodsAges, AreThoseOfTheRootsRow) {
    EXPECT_EQ(AgesOfPeriods(1), (std::array<Ages, 3>{{{0, 26}, {27, 53}, {54, Ages::open}}}));
    EXPECT_EQ(AgesOfPeriods(4), (std::array<Ages, 3>{{{0, 23}, {24, 59}, {60, Ages::open}}}));
    EXPECT_EQ(AgesOfPeriods(0), std::nullopt);
}

} // namespace
} // namespace modReadings
