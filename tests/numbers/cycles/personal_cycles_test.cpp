#include "core/months.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <vector>

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::DigitalRoot;
using namespace std::chrono_literals;
using std::chrono::December;
using std::chrono::January;
using std::chrono::year_month_day;

// All values of these topics have two digits at most on their way, where a fold is a digit
// sum and the digital root is the number.

/// A clock that shows another date at each look and stays on the last.
class SteppingClock final : public Clock {
public:
    explicit SteppingClock(std::vector<year_month_day> dates)
        : dates_(std::move(dates)), before_(Install(this)) {}
    ~SteppingClock() override { Install(before_); }
    SteppingClock(const SteppingClock &) = delete;
    SteppingClock &operator=(const SteppingClock &) = delete;

private:
    year_month_day Now() const override {
        const year_month_day date = dates_[next_];
        if (next_ + 1 < dates_.size())
            ++next_;
        return date;
    }

    std::vector<year_month_day> dates_;
    mutable std::size_t next_ = 0;
    const Clock *const before_;
};

class PersonalCycles : public FreshStore {
protected:
    static void CalcAll() {
        CalcPersonalYear();
        CalcPersonalMonth();
        CalcPersonalDay();
    }

    /// Walks a name, which leaves its last character behind.
    static void WalkName(std::u16string last) {
        Named(u"JOHN", u"", std::move(last));
        CalcDestiny();
    }
};

// The clock stands on 16 November 2026: day 16 gives 7, month 11 gives 2, year 2026 gives
// 10 and then 1.

TEST_F(PersonalCycles, BornOn29December1985) {
    Born(u"29", u"December", u"1985");
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 8);   // 2 + 3 + 2 + 1
    EXPECT_EQ(store.PersonalDayNumber, 6);     // 2 + 3 + 7 + 2 + 1 = 15
    EXPECT_EQ(store.PersonalYearNumber, u"6"); // 11 folds to 2, and 3; 5 + 1
    EXPECT_TRUE(IsReadingOf(store.PersonalMonthText, 8, "PersonalMonthText"));
    EXPECT_TRUE(IsReadingOf(store.PersonalDayText, 6, "PersonalDayText"));
    EXPECT_TRUE(IsReadingOf(store.PersonalYearText, 6, "PersonalYearText"));
}

TEST_F(PersonalCycles, BornOn7March1990) {
    Born(u"7", u"March", u"1990");
    CalcAll();
    EXPECT_EQ(store.PersonalYearNumber, u"2"); // 7 + 3 = 10, 1; 1 + 1
    EXPECT_EQ(store.PersonalMonthNumber, 4);   // 7 + 3 + 2 + 1 = 13
    EXPECT_EQ(store.PersonalDayNumber, 2);     // 7 + 3 + 7 + 2 + 1 = 20
}

TEST_F(PersonalCycles, AboutsStandWordForWord) {
    Born(u"7", u"March", u"1990");
    CalcAll();
    EXPECT_EQ(store.PersonalYearAbout,
              u"This number describes the pattern of the particular year. Each year of your life "
              u"is different in one way or the other from the other years of your life. There are "
              u"basically nine personal years in the life of a person. It coincides with the "
              u"calendar year.");
    EXPECT_EQ(store.PersonalMonthAbout,
              u"Personal month number tells about the general trends, lessons to be learnt, "
              u"difficulties to be faced and the rewards we will get in a particular month.");
    EXPECT_EQ(store.PersonalDayAbout,
              u"You have to be aware and careful since the things done on this day will lay the "
              u"foundation for the days to come. The work you do, your thoughts during the day "
              u"will set the platform for the days to come. You will have to pay close attention "
              u"to the activities of the day.");
}

TEST_F(PersonalCycles, WriteTheirOwnSlotsAndNoOthers) {
    Born(u"29", u"December", u"1985");
    const UserProfile captured = profile;
    const ReadingStore marked = MarkedStore();

    store = marked;
    CalcPersonalYear(); // its year is a local, the scratch slot stays
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"PersonalYearNumber", "PersonalYearText", "PersonalYearAbout"}));

    store = marked;
    CalcPersonalMonth();
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"PersonalMonthNumber", "PersonalMonthText",
                                               "PersonalMonthAbout", "CurrentYearText"}));
    EXPECT_EQ(store.CurrentYearText, u"2026");

    store = marked;
    CalcPersonalDay();
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"PersonalDayNumber", "PersonalDayText", "PersonalDayAbout",
                         "CurrentDayText", "CurrentYearText"}));
    EXPECT_EQ(store.CurrentDayText, u"16");
    EXPECT_EQ(store.CurrentYearText, u"2026");

    EXPECT_EQ(profile.BirthDay, captured.BirthDay);
    EXPECT_EQ(profile.BirthMonth, captured.BirthMonth);
    EXPECT_EQ(profile.BirthYear, captured.BirthYear);
}

TEST_F(PersonalCycles, RunAgainGivesTheSame) {
    Born(u"29", u"December", u"1985");
    CalcAll();
    const ReadingStore once = store;
    CalcAll();
    CalcAll();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(PersonalCycles, EachBirthMonthCountsReduced) {
    struct Expected {
        const char16_t *month;
        int personalMonth, personalDay;
        const char16_t *personalYear;
    };
    // Born on the 1st: 1 + m + 2 + 1 for the month, 1 + m + 7 + 2 + 1 for the day, and
    // the fold of 1 + m, plus 1, for the year. October to December count 1, 2 and 3.
    constexpr Expected expected[] = {
        {u"January", 5, 3, u"3"}, {u"February", 6, 4, u"4"}, {u"March", 7, 5, u"5"},
        {u"April", 8, 6, u"6"},   {u"May", 9, 7, u"7"},      {u"June", 1, 8, u"8"},
        {u"July", 2, 9, u"9"},    {u"August", 3, 1, u"1"},   {u"September", 4, 2, u"2"},
        {u"October", 5, 3, u"3"}, {u"November", 6, 4, u"4"}, {u"December", 7, 5, u"5"},
    };
    for (const Expected &row : expected) {
        Born(u"1", row.month, u"1985");
        CalcAll();
        EXPECT_EQ(store.PersonalMonthNumber, row.personalMonth)
            << ::testing::PrintToString(profile.BirthMonth);
        EXPECT_EQ(store.PersonalDayNumber, row.personalDay);
        EXPECT_EQ(store.PersonalYearNumber, row.personalYear);
    }
}

TEST_F(PersonalCycles, EachCurrentMonthCountsReduced) {
    Born(u"9", u"September", u"1985");
    // 9 + 9 + c + 1 is 20 to 28 for January to September, then 20, 21 and 22 again.
    constexpr int expected[] = {2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4};
    for (unsigned month = 1; month <= 12; ++month) {
        clock.Set(2026y / std::chrono::month(month) / 1);
        CalcPersonalMonth();
        EXPECT_EQ(store.PersonalMonthNumber, expected[month - 1]) << "month " << month;
        CalcPersonalDay(); // the 1st adds 1
        EXPECT_EQ(store.PersonalDayNumber, DigitalRoot(expected[month - 1] + 1));
    }
}

TEST_F(PersonalCycles, DayThatTheMonthDoesNotHaveCountsLikeAnyOther) {
    Born(u"31", u"February", u"1985");
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 9);   // 4 + 2 + 2 + 1
    EXPECT_EQ(store.PersonalDayNumber, 7);     // 4 + 2 + 7 + 2 + 1 = 16
    EXPECT_EQ(store.PersonalYearNumber, u"7"); // 4 + 2, and 1
}

TEST_F(PersonalCycles, YearOfBirthHasNoSay) {
    for (const char16_t *year : {u"1900", u"1990", u"2025", u"2026", u"2027", u"2050"}) {
        Born(u"7", u"March", year);
        CalcAll();
        EXPECT_EQ(store.PersonalMonthNumber, 4);
        EXPECT_EQ(store.PersonalDayNumber, 2);
        EXPECT_EQ(store.PersonalYearNumber, u"2");
    }
}

TEST_F(PersonalCycles, UnknownMonthNameCountsNothing) {
    for (const char16_t *month : {u"Januar", u"janvier", u"M\u00E4rz", u"d\u00E9cembre", u"january",
                                  u"DECEMBER", u"Dec", u"12", u""}) {
        Born(u"29", month, u"1985");
        CalcAll();
        EXPECT_EQ(store.PersonalMonthNumber, 5);   // 2 + 0 + 2 + 1
        EXPECT_EQ(store.PersonalDayNumber, 3);     // 2 + 0 + 7 + 2 + 1 = 12
        EXPECT_EQ(store.PersonalYearNumber, u"3"); // 2 + 0, and 1
    }
}

TEST_F(PersonalCycles, NameThatEndsInADigitBendsMonthAndDayButNotTheYear) {
    struct Expected {
        int personalMonth, personalDay;
        const char16_t *personalYear;
    };
    // Born on the 29th, after a walk that ended on 5: January to April count 1 to 4, all
    // later months 5. The year looks the name of the month up and nothing else.
    constexpr Expected expected[] = {
        {6, 4, u"4"}, {7, 5, u"5"}, {8, 6, u"6"}, {9, 7, u"7"}, {1, 8, u"8"}, {1, 8, u"9"},
        {1, 8, u"1"}, {1, 8, u"2"}, {1, 8, u"3"}, {1, 8, u"4"}, {1, 8, u"5"}, {1, 8, u"6"},
    };
    WalkName(u"SMITH5");
    for (std::size_t month = 0; month < 12; ++month) {
        Born(u"29", std::u16string(englishMonths[month]), u"1985");
        CalcAll();
        EXPECT_EQ(store.PersonalMonthNumber, expected[month].personalMonth) << month;
        EXPECT_EQ(store.PersonalDayNumber, expected[month].personalDay) << month;
        EXPECT_EQ(store.PersonalYearNumber, expected[month].personalYear) << month;
    }

    Born(u"29", u"janvier", u"1985");
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 1); // even an unknown name meets the 5
    EXPECT_EQ(store.PersonalYearNumber, u"3");

    WalkName(u"SMITH"); // ends in a letter again
    Born(u"29", u"December", u"1985");
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 8);
    EXPECT_EQ(store.PersonalDayNumber, 6);
}

TEST_F(PersonalCycles, FollowTheClockAcrossNewYearButOnlyWhenRunAgain) {
    Born(u"29", u"December", u"1985");
    clock.Set(2026y / December / 31);
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 9);   // 2 + 3 + 3 + 1
    EXPECT_EQ(store.PersonalDayNumber, 4);     // 2 + 3 + 4 + 3 + 1 = 13
    EXPECT_EQ(store.PersonalYearNumber, u"6"); // 5 + 1

    const ReadingStore oldYear = store;
    clock.Advance(1);
    EXPECT_EQ(ChangedSince(oldYear), SlotNames{});

    CalcAll();                                 // 2027 gives 11 and then 2
    EXPECT_EQ(store.PersonalMonthNumber, 8);   // 2 + 3 + 1 + 2
    EXPECT_EQ(store.PersonalDayNumber, 9);     // 2 + 3 + 1 + 1 + 2
    EXPECT_EQ(store.PersonalYearNumber, u"7"); // 5 + 2
    EXPECT_EQ(store.CurrentDayText, u"1");
    EXPECT_EQ(store.CurrentYearText, u"2027");
    EXPECT_TRUE(IsReadingOf(store.PersonalMonthText, 8, "PersonalMonthText"));
    EXPECT_TRUE(IsReadingOf(store.PersonalDayText, 9, "PersonalDayText"));
    EXPECT_TRUE(IsReadingOf(store.PersonalYearText, 7, "PersonalYearText"));
}

TEST_F(PersonalCycles, MonthAndYearMayComeFromEitherSideOfMidnight) {
    Born(u"29", u"December", u"1985");
    const SteppingClock midnight({2026y / December / 31, 2027y / January / 1});
    CalcPersonalMonth();
    EXPECT_EQ(store.PersonalMonthNumber, 1); // 2 + 3, December 3, 2027 2: 10
    EXPECT_EQ(store.CurrentYearText, u"2027");
}

TEST_F(PersonalCycles, DayIsReadBeforeTheMonthAndTheMonthBeforeTheYear) {
    Born(u"29", u"December", u"1985");
    {
        const SteppingClock midnight({2026y / December / 31, 2027y / January / 1});
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalDayNumber, 3); // 2 + 3, day 31 4, January 1, 2027 2: 12
    }
    {
        const SteppingClock midnight(
            {2026y / December / 31, 2026y / December / 31, 2027y / January / 1});
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalDayNumber, 5); // 2 + 3, 31 4, December 3, 2027 2: 14
    }
    EXPECT_EQ(store.CurrentDayText, u"31");
    EXPECT_EQ(store.CurrentYearText, u"2027");
}

TEST_F(PersonalCycles, CharacterInTheDayThatIsNoDigitLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    for (const char16_t *day : {u"2x", u"x", u" 9", u"1 9", u"-9", u"\u0663"}) {
        Born(day, u"December", u"1985");
        store = marked;
        EXPECT_THROW(CalcPersonalYear(), RuntimeFailure);
        EXPECT_THROW(CalcPersonalMonth(), RuntimeFailure);
        EXPECT_THROW(CalcPersonalDay(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), SlotNames{});
    }
}

TEST_F(PersonalCycles, BadBirthYearStopsThePersonalYearThoughItDoesNotEnter) {
    const ReadingStore marked = MarkedStore();
    // 3641 nines sum up to 32769.
    for (const std::u16string &year :
         {std::u16string(u"19x5"), std::u16string(u"1985 "), std::u16string(3641, u'9')}) {
        Born(u"29", u"December", year);
        store = marked;
        EXPECT_THROW(CalcPersonalYear(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), SlotNames{});
        CalcPersonalMonth(); // the other two never look at it
        CalcPersonalDay();
        EXPECT_EQ(store.PersonalMonthNumber, 8);
        EXPECT_EQ(store.PersonalDayNumber, 6);
    }
    Born(u"29", u"December", std::u16string(3640, u'9'));
    CalcPersonalYear();
    EXPECT_EQ(store.PersonalYearNumber, u"6");
}

TEST_F(PersonalCycles, EmptyTextsAreWalksOfNothing) {
    Born(u"", u"December", u"");
    CalcAll();
    EXPECT_EQ(store.PersonalMonthNumber, 6);   // 0 + 3 + 2 + 1
    EXPECT_EQ(store.PersonalDayNumber, 4);     // 0 + 3 + 7 + 2 + 1 = 13
    EXPECT_EQ(store.PersonalYearNumber, u"4"); // 0 + 3, and 1
}

TEST_F(PersonalCycles, AllBirthdaysGiveOneToNineAndTheReadingOfTheNumber) {
    std::set<int> years, months, days;
    for (int day = 1; day <= 31; ++day) {
        for (int month = 0; month <= 12; ++month) { // 0 is an unknown name
            const std::u16string name =
                month == 0 ? u"Nivose"
                           : std::u16string(englishMonths[static_cast<std::size_t>(month - 1)]);
            Born(Decimal(day), name, u"1985");
            for (const year_month_day today :
                 {2026y / January / 1, 2026y / December / 31, 1999y / std::chrono::August / 29,
                  2000y / std::chrono::February / 29, 2050y / std::chrono::October / 10}) {
                clock.Set(today);
                CalcAll();
                const int birth = day + month;
                const int thisYear = static_cast<int>(today.year());
                const int thisMonth = static_cast<int>(static_cast<unsigned>(today.month()));
                const int thisDay = static_cast<int>(static_cast<unsigned>(today.day()));
                const int expectedYear = DigitalRoot(birth + thisYear);
                const int expectedMonth = DigitalRoot(birth + thisYear + thisMonth);
                const int expectedDay = DigitalRoot(birth + thisYear + thisMonth + thisDay);
                ASSERT_EQ(store.PersonalYearNumber.size(), 1u);
                ASSERT_EQ(store.PersonalYearNumber.front() - u'0', expectedYear)
                    << day << '.' << month << " in " << thisYear;
                ASSERT_EQ(store.PersonalMonthNumber, expectedMonth) << day << '.' << month;
                ASSERT_EQ(store.PersonalDayNumber, expectedDay) << day << '.' << month;
                ASSERT_TRUE(IsReadingOf(store.PersonalYearText, expectedYear, "PersonalYearText"));
                ASSERT_TRUE(
                    IsReadingOf(store.PersonalMonthText, expectedMonth, "PersonalMonthText"));
                ASSERT_TRUE(IsReadingOf(store.PersonalDayText, expectedDay, "PersonalDayText"));
                years.insert(expectedYear);
                months.insert(expectedMonth);
                days.insert(expectedDay);
            }
        }
    }
    const std::set<int> all{1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(years, all);
    EXPECT_EQ(months, all);
    EXPECT_EQ(days, all);
}

} // namespace
} // namespace modReadings
