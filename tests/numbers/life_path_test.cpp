#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"

#include <set>
#include <string>

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::Month;
using ::testing::PrintToString;

class LifePath : public FreshStore {
protected:
    using Result = std::pair<int, int>; ///< number and digit sum of the day

    static Result Of(std::u16string day, std::u16string month, std::u16string year) {
        Born(std::move(day), std::move(month), std::move(year));
        CalcLifePath();
        return {store.LifePathNumber, store.LifePathDaySum};
    }

    struct Date {
        std::u16string day, month, year;
        int number, daySum;
    };
    static void Expect(std::initializer_list<Date> dates) {
        for (const Date &date : dates)
            EXPECT_EQ(Of(date.day, date.month, date.year), (Result{date.number, date.daySum}))
                << PrintToString(date.day) << PrintToString(date.month) << PrintToString(date.year);
    }
};

TEST_F(LifePath, OfDatesWorkedByHand) {
    Expect({{u"29", u"November", u"1999", 5, 11}, // 2 + 2 + 10 = 14
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
            {u"", u"January", u"1985", 6, 0},     // an empty text counts nothing
            {u"29", u"January", u"", 3, 11},
            {u"29", u"", u"1985", 7, 11}});
}

TEST_F(LifePath, OfEveryDateThatCanBeChosen) {
    std::set<int> numbers, daySums;
    for (int year = 1900; year <= 2050; ++year) {
        const int yearCounts = longhand::Fold(longhand::DigitSum(year)); // 1 to 10
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day) {
                const int daySum = day / 10 + day % 10; // 1 to 11
                const int total = longhand::Fold(daySum) + (month - 1) % 9 + 1 + yearCounts;
                const int number =
                    total == 11 || total == 22 ? total : longhand::DigitalRoot(total);
                ASSERT_EQ(Of(Decimal(day), Month(month), Decimal(year)), (Result{number, daySum}))
                    << year << '-' << month << '-' << day;
                ASSERT_TRUE(Opens(store.LifePathText, "LifePathText", number));
                numbers.insert(store.LifePathNumber);
                daySums.insert(store.LifePathDaySum);
            }
        }
    }
    EXPECT_EQ(numbers, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22})); // and never 10
    EXPECT_EQ(*daySums.rbegin(), 11); // so it cannot be a Karmic Debt
}

TEST_F(LifePath, TakesTheMonthByItsEnglishNameAlone) {
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(Of(u"", Month(month), u"").first, (month - 1) % 9 + 1);
    for (const std::u16string other : {u"january", u"JANUARY", u" January", u"January ", u"Jan",
                                       u"Januar", u"janvier", u"1", u"10", u""})
        EXPECT_EQ(Of(u"2", other, u"1900").first, 3) << PrintToString(other); // 2 + 0 + 1
}

TEST_F(LifePath, DoesNotLookAtTheLetterThatIsLeft) {
    for (const std::u16string left : {u"1", u"3", u"9", u"10", u"A"}) {
        store.ScratchLetter = left;
        EXPECT_EQ(Of(u"2", u"October", u"1900").first, 4) << PrintToString(left); // 2 + 1 + 1
        EXPECT_EQ(Of(u"2", u"octobre", u"1900").first, 3) << PrintToString(left);
    }
}

// Texts that no list offers, for the branches which dates cannot reach.

TEST_F(LifePath, FoldsDayAndYearOnceAndForgetsTheMiddle) {
    // 13 nines and a 6 add up to 123, which folds to 4. 199 adds up to 19 and folds to 10,
    // which no second fold touches: 10 + 1 = 11.
    const std::u16string to123 = std::u16string(13, u'9') + u"6", to99(11, u'9');
    Expect({{to123, u"", u"", 4, 123},
            {u"", u"", to123, 4, 0},
            {u"199", u"January", u"", 11, 19},
            {u"", u"January", u"199", 11, 0},
            // A master number stays as the digit sum of the total too.
            {u"199", u"September", u"1999", 11, 19}, // 10 + 9 + 10 = 29, 11
            {to99, u"September", u"2999", 11, 99},   // 18 + 9 + 11 = 38, 11
            {u"199", u"August", u"1999", 1, 19},     // 28, 10, 1
            {u"2999", u"September", u"1999", 3, 29}, // 11 + 9 + 10 = 30
            {to99, u"September", to99, 9, 99},       // 18 + 9 + 18 = 45, the greatest of all
            // 32760 folds to 3; 32767 to 10, and that has the digit sum 1.
            {std::u16string(3640, u'9'), u"", u"1", 4, 32760},
            {std::u16string(3640, u'9') + u"7", u"", u"", 1, 32767}});
}

TEST_F(LifePath, OfNothingIs0WithoutAReading) {
    EXPECT_EQ(Of(u"", u"", u""), (Result{0, 0}));
    EXPECT_EQ(store.LifePathText, u"");
    EXPECT_TRUE(IsTextOf(store.LifePathAbout, "LifePathAbout"));
}

TEST_F(LifePath, OfThreePeopleKeepsTheTextUnderA0) {
    Of(u"29", u"November", u"1999");
    store.LifePathAbout.clear();
    EXPECT_EQ(Of(u"", u"", u""), (Result{0, 0}));
    EXPECT_TRUE(IsReadingOf(store.LifePathText, 5, "LifePathText")); // the first person's
    EXPECT_TRUE(IsTextOf(store.LifePathAbout, "LifePathAbout"));

    EXPECT_EQ(Of(u"9", u"September", u"1993"), (Result{22, 9}));
    EXPECT_TRUE(IsReadingOf(store.LifePathText, 22, "LifePathText"));
}

} // namespace
} // namespace modReadings
