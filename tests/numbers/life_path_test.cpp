#include "core/digits.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using longhand::Decimal;
using ::testing::PrintToString;

constexpr std::array<std::u16string_view, 12> monthNames{
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December"};

class LifePath : public FreshStore {
protected:
    struct Result {
        int number, daySum;
        bool operator==(const Result &) const = default;
    };

    static Result Of(std::u16string day, std::u16string month, std::u16string year) {
        Born(std::move(day), std::move(month), std::move(year));
        CalcLifePath();
        return {store.LifePathNumber, store.LifePathDaySum};
    }

    static int NumberOf(std::u16string day, std::u16string month, std::u16string year) {
        return Of(std::move(day), std::move(month), std::move(year)).number;
    }
};

TEST_F(LifePath, OfDatesWorkedByHand) {
    struct Date {
        std::u16string day, month, year;
        int number, daySum;
    };
    const Date dates[] = {
        {u"29", u"November", u"1999", 5, 11}, // 2 + 2 + 10 = 14
        {u"2", u"January", u"2006", 11, 2},   // 2 + 1 + 8 = 11, which stays
        {u"9", u"September", u"1993", 22, 9}, // 9 + 9 + 4 = 22, which stays
        {u"9", u"September", u"1900", 1, 9},  // 9 + 9 + 1 = 19, 10, 1
        {u"9", u"September", u"1999", 1, 9},  // 9 + 9 + 10 = 28, 10, 1
        {u"19", u"December", u"1985", 9, 10}, // 1 + 3 + 5
        {u"31", u"October", u"1909", 6, 4},   // 4 + 1 + 10 = 15
        {u"11", u"January", u"1900", 4, 2},   // 2 + 1 + 1: day 11 is no master number
        {u"29", u"January", u"1900", 4, 11},  // 2 + 1 + 1: nor is its digit sum here
        {u"1", u"January", u"2009", 4, 1},    // 1 + 1 + 2: nor the 11 of the year
        {u"1", u"January", u"1993", 6, 1},    // 1 + 1 + 4: nor its 22
        {u"31", u"February", u"2000", 8, 4},  // 4 + 2 + 2: no calendar is asked
        {u"1", u"November", u"1900", 4, 1},   // 1 + 2 + 1: November is 2, never 11
    };
    for (const Date &date : dates)
        EXPECT_EQ(Of(date.day, date.month, date.year), (Result{date.number, date.daySum}))
            << PrintToString(date.day) << PrintToString(date.month) << PrintToString(date.year);
}

TEST_F(LifePath, OfEveryDateThatCanBeChosen) {
    int leastTotal = 99, greatestTotal = 0, leastDay = 99, greatestDay = 0;
    int leastYear = 99, greatestYear = 0, leastDaySum = 99, greatestDaySum = 0;
    std::set<int> numbers;
    int dates = 0;
    for (int year = 1900; year <= 2050; ++year) {
        const int yearSum = year / 1000 + year / 100 % 10 + year / 10 % 10 + year % 10; // 2 to 28
        const int yearCounts = yearSum / 10 + yearSum % 10;
        leastYear = std::min(leastYear, yearCounts);
        greatestYear = std::max(greatestYear, yearCounts);
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day) {
                const int daySum = day / 10 + day % 10; // 1 to 11
                const int dayCounts = daySum / 10 + daySum % 10;
                const int total = dayCounts + (month - 1) % 9 + 1 + yearCounts;
                // No digit sum of a total up to 28 exceeds 10, so its folds end on the
                // remainder of nine.
                const int number = total == 11 || total == 22 ? total : (total - 1) % 9 + 1;

                ASSERT_EQ(Of(Decimal(day), std::u16string(monthNames[std::size_t(month - 1)]),
                             Decimal(year)),
                          (Result{number, daySum}))
                    << year << '-' << month << '-' << day;

                leastTotal = std::min(leastTotal, total);
                greatestTotal = std::max(greatestTotal, total);
                leastDay = std::min(leastDay, dayCounts);
                greatestDay = std::max(greatestDay, dayCounts);
                leastDaySum = std::min<int>(leastDaySum, store.LifePathDaySum);
                greatestDaySum = std::max<int>(greatestDaySum, store.LifePathDaySum);
                numbers.insert(store.LifePathNumber);
                ++dates;
            }
        }
    }
    EXPECT_EQ(dates, 31 * 12 * 151);
    EXPECT_EQ(leastTotal, 3);
    EXPECT_EQ(greatestTotal, 28);
    EXPECT_EQ(leastDay, 1);
    EXPECT_EQ(greatestDay, 9);
    EXPECT_EQ(leastDaySum, 1);
    EXPECT_EQ(greatestDaySum, 11);
    EXPECT_EQ(leastYear, 1);
    EXPECT_EQ(greatestYear, 10);
    EXPECT_EQ(numbers, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22})); // and never 10
}

TEST_F(LifePath, TakesTheMonthByItsEnglishNameAlone) {
    constexpr int values[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3};
    for (std::size_t month = 0; month < 12; ++month)
        EXPECT_EQ(NumberOf(u"", std::u16string(monthNames[month]), u""), values[month]);
    for (const std::u16string other : {u"january", u"JANUARY", u" January", u"January ", u"Jan",
                                       u"Januar", u"janvier", u"1", u"10", u""})
        EXPECT_EQ(NumberOf(u"2", other, u"1900"), 3) << PrintToString(other); // 2 + 0 + 1
}

TEST_F(LifePath, DoesNotLookAtTheLetterThatIsLeft) {
    for (const std::u16string left : {u"1", u"3", u"9", u"10", u"A"}) {
        store.ScratchLetter = left;
        EXPECT_EQ(NumberOf(u"2", u"October", u"1900"), 4) << PrintToString(left); // 2 + 1 + 1
        EXPECT_EQ(NumberOf(u"2", u"octobre", u"1900"), 3) << PrintToString(left);
        EXPECT_EQ(store.ScratchLetter, left);
    }
}

// Texts that no list offers, for the branches which dates cannot reach.

TEST_F(LifePath, FoldsDayAndYearOnceAndForgetsTheMiddle) {
    // 13 nines and a 6 add up to 123, which folds to 4.
    EXPECT_EQ(Of(std::u16string(13, u'9') + u"6", u"", u""), (Result{4, 123}));
    EXPECT_EQ(NumberOf(u"", u"", std::u16string(13, u'9') + u"6"), 4);
    // 199 adds up to 19 and folds to 10, which no second fold touches: 10 + 1 = 11.
    EXPECT_EQ(Of(u"199", u"January", u""), (Result{11, 19}));
    EXPECT_EQ(NumberOf(u"", u"January", u"199"), 11);
}

TEST_F(LifePath, KeepsAMasterNumberInTheDigitSumOfTheTotal) {
    EXPECT_EQ(NumberOf(u"199", u"September", u"1999"), 11); // 10 + 9 + 10 = 29, 11
    // Eleven nines add up to 99 and fold to 18; 2999 to 29 and 11: 18 + 9 + 11 = 38, 11.
    EXPECT_EQ(NumberOf(std::u16string(11, u'9'), u"September", u"2999"), 11);
    EXPECT_EQ(NumberOf(u"199", u"August", u"1999"), 1);     // 28, 10, 1
    EXPECT_EQ(NumberOf(u"2999", u"September", u"1999"), 3); // 11 + 9 + 10 = 30
    // 18 + 9 + 18 = 45, the greatest total of all.
    EXPECT_EQ(NumberOf(std::u16string(11, u'9'), u"September", std::u16string(11, u'9')), 9);
    // 18 + 3 + 18 = 39: digit sum 12, folded to 3.
    EXPECT_EQ(NumberOf(std::u16string(11, u'9'), u"March", std::u16string(11, u'9')), 3);
}

TEST_F(LifePath, TakesAnEmptyTextAsNothing) {
    EXPECT_EQ(Of(u"", u"January", u"1985"), (Result{6, 0}));
    EXPECT_EQ(Of(u"29", u"January", u""), (Result{3, 11}));
    EXPECT_EQ(Of(u"29", u"", u"1985"), (Result{7, 11}));
}

TEST_F(LifePath, OfNothingIs0WithoutAReading) {
    EXPECT_EQ(Of(u"", u"", u""), (Result{0, 0}));
    EXPECT_EQ(store.LifePathText, u"");
    EXPECT_TRUE(IsTextOf(store.LifePathAbout, "LifePathAbout"));
}

TEST_F(LifePath, SelectsTheReadingOfItsNumber) {
    constexpr int16 numbers[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
    for (const int16 number : numbers) {
        // A year of 1 and no month leave the day to make the number, up to 18 + 1.
        std::u16string day = Decimal(number - 1), month = u"", year = u"1";
        if (number == 11)
            day = u"19", month = u"September"; // 1 + 9 + 1
        if (number == 22)
            day = u"9", month = u"September", year = u"4";
        ASSERT_EQ(NumberOf(day, month, year), number);
        EXPECT_TRUE(IsReadingOf(store.LifePathText, number, "LifePathText"));
        EXPECT_EQ(store.LifePathText, Row(readings::lifePath.rows, number));
        EXPECT_TRUE(IsTextOf(store.LifePathAbout, "LifePathAbout"));
    }
    EXPECT_EQ(readings::lifePath.size(), std::size(numbers));
}

TEST_F(LifePath, WritesItsFourSlotsAndNoOther) {
    const ReadingStore before = store = MarkedStore();
    Of(u"29", u"November", u"1999");
    EXPECT_EQ(Changed(before, store),
              (SlotNames{"LifePathNumber", "LifePathDaySum", "LifePathText", "LifePathAbout"}));
}

TEST_F(LifePath, DoesNotLookAtTheName) {
    Named(u"OAK", u"", u"RIVER");
    const Result oak = Of(u"29", u"November", u"1999");
    Named(std::u16string(40000, u'9'), u"", u"");
    EXPECT_EQ(Of(u"29", u"November", u"1999"), oak);
}

TEST_F(LifePath, IsTheSameWhenItIsRunAgain) {
    Of(u"29", u"November", u"1999");
    const ReadingStore first = store;
    CalcLifePath();
    CalcLifePath();
    EXPECT_EQ(Changed(first, store), SlotNames{});
}

TEST_F(LifePath, FailsAtACharacterThatIsNoDigitAndKeepsItsSlots) {
    Of(u"29", u"November", u"1999");
    const ReadingStore before = store;
    for (const std::u16string text : {u"x", u"2x", u"x2", u"1 2", u" 1", u"1 ", u"-1", u"+1",
                                      u"1.5", u"\u0661", u"\uFF11", u"\U0001F600"}) {
        Born(text, u"May", u"1990");
        EXPECT_THROW(CalcLifePath(), RuntimeFailure) << PrintToString(text);
        Born(u"7", u"May", text);
        EXPECT_THROW(CalcLifePath(), RuntimeFailure) << PrintToString(text);
        Born(u"7", u"May", u"199" + text);
        EXPECT_THROW(CalcLifePath(), RuntimeFailure) << PrintToString(text);
        EXPECT_EQ(Changed(before, store), SlotNames{}) << PrintToString(text);
    }
}

TEST_F(LifePath, FailsWhenADigitSumLeavesTheInt16Range) {
    const std::u16string nines(3640, u'9'); // 32760, which folds to 3
    EXPECT_EQ(Of(nines, u"", u"1"), (Result{4, 32760}));
    EXPECT_EQ(Of(nines + u"7", u"", u""), (Result{1, 32767})); // 3 + 7 = 10; its sum is 1
    const ReadingStore before = store;
    for (const std::u16string &digits : {nines + u"8", nines + u"9"}) {
        Born(digits, u"May", u"1990");
        EXPECT_THROW(CalcLifePath(), RuntimeFailure);
        Born(u"7", u"May", digits);
        EXPECT_THROW(CalcLifePath(), RuntimeFailure);
        EXPECT_EQ(Changed(before, store), SlotNames{});
    }
}

TEST_F(LifePath, OfThreePeopleKeepsTheTextUnderA0) {
    Of(u"29", u"November", u"1999");
    EXPECT_EQ(store.LifePathText, Row(readings::lifePath.rows, 5));

    store.LifePathAbout.clear();
    EXPECT_EQ(Of(u"", u"", u""), (Result{0, 0}));
    EXPECT_EQ(store.LifePathText, Row(readings::lifePath.rows, 5)); // the first person's
    EXPECT_TRUE(IsTextOf(store.LifePathAbout, "LifePathAbout"));

    EXPECT_EQ(Of(u"9", u"September", u"1993"), (Result{22, 9}));
    EXPECT_EQ(store.LifePathText, Row(readings::lifePath.rows, 22));
}

} // namespace
} // namespace modReadings
