#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/stepping_clock.h"
#include "tests/support/store_slots.h"

#include <set>

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::DigitalRoot;
using longhand::Month;
using namespace std::chrono_literals;
using std::chrono::December;
using std::chrono::January;
using std::chrono::year_month_day;

// All values of these topics have two digits at most on their way, where a fold is a digit
// sum and the digital root is the number.

class PersonalCycles : public FreshStore {
protected:
    static void Expect(int year, int month, int day) {
        CalcPersonalYear();
        CalcPersonalMonth();
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalYearNumber, Decimal(year))
            << ::testing::PrintToString(profile.BirthDay + u' ' + profile.BirthMonth);
        EXPECT_EQ(store.PersonalMonthNumber, month);
        EXPECT_EQ(store.PersonalDayNumber, day);
        EXPECT_TRUE(Opens(store.PersonalYearText, "PersonalYearText", year));
        EXPECT_TRUE(Opens(store.PersonalMonthText, "PersonalMonthText", month));
        EXPECT_TRUE(Opens(store.PersonalDayText, "PersonalDayText", day));
    }
};

// The clock stands on 16 November 2026: day 16 gives 7, month 11 gives 2, year 2026 gives
// 10 and then 1.

TEST_F(PersonalCycles, OfDatesWorkedByHand) {
    Born(u"29", u"December", u"1985"); // 11 folds to 2, and 3 for December
    Expect(6, 8, 6);                   // 5 + 1; 5 + 2 + 1; 5 + 7 + 2 + 1 = 15
    EXPECT_EQ(store.CurrentDayText, u"16");
    EXPECT_EQ(store.CurrentYearText, u"2026");
    Born(u"", u"December", u""); // empty texts are walks of nothing
    Expect(4, 6, 4);
    for (const char16_t *year : {u"1900", u"2025", u"2026", u"2050"}) { // has no say
        Born(u"7", u"March", year);
        Expect(2, 4, 2); // 10, 1 and 1; 10 + 2 + 1 = 13; 10 + 7 + 2 + 1 = 20
    }
}

TEST_F(PersonalCycles, EachBirthMonthCountsReduced) {
    // Born on the 1st: the fold of 1 + m, plus 1, for the year, 1 + m + 2 + 1 for the month,
    // 1 + m + 7 + 2 + 1 for the day. October to December count 1, 2 and 3.
    constexpr int expected[12][3] = {{3, 5, 3}, {4, 6, 4}, {5, 7, 5}, {6, 8, 6},
                                     {7, 9, 7}, {8, 1, 8}, {9, 2, 9}, {1, 3, 1},
                                     {2, 4, 2}, {3, 5, 3}, {4, 6, 4}, {5, 7, 5}};
    for (int month = 1; month <= 12; ++month) {
        Born(u"1", Month(month), u"1985");
        const auto &[year, monthNumber, day] = expected[month - 1];
        Expect(year, monthNumber, day);
    }
}

TEST_F(PersonalCycles, NameThatEndsInADigitBendsMonthAndDayButNotTheYear) {
    // Born on the 29th, after a walk that ended on 5: January to April count 1 to 4, all
    // later months 5. The year looks the name of the month up and nothing else.
    constexpr int expected[13][3] = {{3, 1, 8}, {4, 6, 4}, {5, 7, 5}, {6, 8, 6}, {7, 9, 7},
                                     {8, 1, 8}, {9, 1, 8}, {1, 1, 8}, {2, 1, 8}, {3, 1, 8},
                                     {4, 1, 8}, {5, 1, 8}, {6, 1, 8}};
    Named(u"JOHN", u"", u"SMITH5");
    CalcDestiny();
    for (int month = 0; month <= 12; ++month) { // even an unknown name meets the 5
        Born(u"29", Month(month), u"1985");
        const auto &[year, monthNumber, day] = expected[month];
        Expect(year, monthNumber, day);
    }
}

TEST_F(PersonalCycles, AllBirthdaysOnAllKindsOfDaysFollowTheClock) {
    std::set<int> years, months, days;
    for (int day = 1; day <= 31; ++day) {
        for (int month = 0; month <= 12; ++month) { // 0 is an unknown name
            Born(Decimal(day), Month(month), u"1985");
            for (int step = 0; step < 24; ++step) { // 17 days apart, across a new year
                clock.Set(2026y / January / 9);
                clock.Advance(17 * step);
                const int birth = day + month;
                const int thisYear = Clock::Year();
                const int thisMonth = thisYear + Clock::Month();
                Expect(DigitalRoot(birth + thisYear), DigitalRoot(birth + thisMonth),
                       DigitalRoot(birth + thisMonth + Clock::Day()));
                years.insert(store.PersonalYearNumber.front() - u'0');
                months.insert(store.PersonalMonthNumber);
                days.insert(store.PersonalDayNumber);
            }
        }
    }
    const std::set<int> all{1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(years, all);
    EXPECT_EQ(months, all);
    EXPECT_EQ(days, all);
    EXPECT_GT(Clock::Year(), 2026);
}

TEST_F(PersonalCycles, DayIsReadBeforeTheMonthAndTheMonthBeforeTheYear) {
    Born(u"29", u"December", u"1985");
    const year_month_day eve = 2026y / December / 31, morning = 2027y / January / 1;
    {
        const SteppingClock midnight({eve, morning});
        CalcPersonalMonth();
        EXPECT_EQ(store.PersonalMonthNumber, 1); // 2 + 3, December 3, 2027 2: 10
    }
    {
        const SteppingClock midnight({eve, morning});
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalDayNumber, 3); // 2 + 3, day 31 4, January 1, 2027 2: 12
    }
    const SteppingClock midnight({eve, eve, morning});
    CalcPersonalDay();
    EXPECT_EQ(store.PersonalDayNumber, 5); // 2 + 3, 31 4, December 3, 2027 2: 14
    EXPECT_EQ(store.CurrentDayText, u"31");
    EXPECT_EQ(store.CurrentYearText, u"2027");
}

TEST_F(PersonalCycles, BadBirthYearStopsThePersonalYearThoughItDoesNotEnter) {
    // 3641 nines sum up to 32769.
    for (const std::u16string &year :
         {std::u16string(u"19x5"), std::u16string(u"1985 "), std::u16string(3641, u'9')}) {
        Born(u"29", u"December", year);
        EXPECT_EQ(WrittenBeforeFailure(CalcPersonalYear), SlotNames{});
        CalcPersonalMonth(); // the other two never look at it
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalMonthNumber, 8);
        EXPECT_EQ(store.PersonalDayNumber, 6);
    }
    Born(u"29", u"December", std::u16string(3640, u'9'));
    Expect(6, 8, 6);
}

} // namespace
} // namespace modReadings
