#include "core/months.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>
#include <cstdlib>

namespace modReadings {
namespace {

using longhand::Decimal;
using namespace std::chrono_literals;

// Position, then value.
constexpr std::array<std::array<std::u16string_view, 9>, 4> labels{{
    {u"First Challenge Number is 0", u"First Challenge Number is 1", u"First Challenge Number is 2",
     u"First Challenge Number is 3", u"First Challenge Number is 4", u"First Challenge Number is 5",
     u"First Challenge Number is 6", u"First Challenge Number is 7",
     u"First Challenge Number is 8"},
    {u"Second Challenge Number is 0", u"Second Challenge Number is 1",
     u"Second Challenge Number is 2", u"Second Challenge Number is 3",
     u"Second Challenge Number is 4", u"Second Challenge Number is 5",
     u"Second Challenge Number is 6", u"Second Challenge Number is 7",
     u"Second Challenge Number is 8"},
    {u"Third Challenge Number is 0", u"Third Challenge Number is 1", u"Third Challenge Number is 2",
     u"Third Challenge Number is 3", u"Third Challenge Number is 4", u"Third Challenge Number is 5",
     u"Third Challenge Number is 6", u"Third Challenge Number is 7",
     u"Third Challenge Number is 8"},
    {u"Fourth Challenge Number is 0", u"Fourth Challenge Number is 1",
     u"Fourth Challenge Number is 2", u"Fourth Challenge Number is 3",
     u"Fourth Challenge Number is 4", u"Fourth Challenge Number is 5",
     u"Fourth Challenge Number is 6", u"Fourth Challenge Number is 7",
     u"Fourth Challenge Number is 8"},
}};

struct ChallengeSlots {
    std::u16string ReadingStore::*label;
    std::u16string ReadingStore::*text;
};

constexpr std::array<ChallengeSlots, 4> challenges{{
    {&ReadingStore::ChallengeLabel1, &ReadingStore::ChallengeText1},
    {&ReadingStore::ChallengeLabel2, &ReadingStore::ChallengeText2},
    {&ReadingStore::ChallengeLabel3, &ReadingStore::ChallengeText3},
    {&ReadingStore::ChallengeLabel4, &ReadingStore::ChallengeText4},
}};

class Challenges : public FreshStore {
protected:
    /// Whether label and text at each of the four positions, counted from 0, are those
    /// of the value.
    static void ExpectRow(std::size_t position, int value) {
        EXPECT_EQ(store.*challenges[position].label,
                  labels[position][static_cast<std::size_t>(value)]);
        EXPECT_TRUE(IsReadingOf(store.*challenges[position].text, value, "ChallengeText"));
    }
    static void ExpectRows(int first, int second, int third, int fourth) {
        ExpectRow(0, first);
        ExpectRow(1, second);
        ExpectRow(2, third);
        ExpectRow(3, fourth);
    }
};

TEST_F(Challenges, BornOn29December1985) {
    Born(u"29", u"December", u"1985"); // 2, 3 and 5
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"1 3 2 2");
    EXPECT_EQ(store.ChallengeLabel1, u"First Challenge Number is 1");
    EXPECT_EQ(store.ChallengeLabel2, u"Second Challenge Number is 3");
    EXPECT_EQ(store.ChallengeLabel3, u"Third Challenge Number is 2");
    EXPECT_EQ(store.ChallengeLabel4, u"Fourth Challenge Number is 2");
    ExpectRows(1, 3, 2, 2);
}

TEST_F(Challenges, BornOn7March1990) {
    Born(u"7", u"March", u"1990"); // 7, 3 and 1
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"4 6 2 2");
    ExpectRows(4, 6, 2, 2);
    EXPECT_EQ(store.ChallengeText3, store.ChallengeText4); // the value alone chooses
}

TEST_F(Challenges, EqualDayAndMonthShowTheRowOfZero) {
    Born(u"3", u"March", u"1990");
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"0 2 2 2");
    ExpectRows(0, 2, 2, 2);
    Born(u"1", u"October", u"1990"); // October counts 1 and so does 1990
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"0 0 0 0");
    ExpectRows(0, 0, 0, 0);
}

TEST_F(Challenges, DayIsFoldedOnceAndTheYearTwice) {
    struct Expected {
        const char16_t *day, *year, *number;
    };
    constexpr Expected expected[] = {
        {u"19", u"1990", u"2 0 2 2"},  // 10 folds to 1
        {u"28", u"1990", u"2 0 2 2"},  // 10 folds to 1
        {u"29", u"1990", u"1 1 0 2"},  // 11 folds to 2
        {u"7", u"1999", u"4 6 2 2"},   // 28, 10, 1
        {u"7", u"1993", u"4 3 1 1"},   // 22, 4
        {u"199", u"1990", u"7 9 2 2"}, // no day of the list: 19 folds to 10 and stays there
    };
    for (const Expected &row : expected) {
        Born(row.day, u"March", row.year);
        CalcChallenges();
        EXPECT_EQ(store.ChallengeNumber, row.number);
    }
}

TEST_F(Challenges, SixHasItsStrayBlank) {
    Born(u"7", u"March", u"1990");
    CalcChallenges();
    EXPECT_NE(store.ChallengeText2.find(u"You don 't have a broad vision"), std::u16string::npos);
}

TEST_F(Challenges, AboutHasItsThreeParagraphs) {
    Born(u"7", u"March", u"1990");
    CalcChallenges();
    EXPECT_TRUE(IsTextOf(store.ChallengeAbout, "ChallengeAbout"));
}

TEST_F(Challenges, AllDatesOfTheListsAndAll36Lines) {
    std::array<std::set<int>, 4> seen;
    for (int year = 1900; year <= 2050; ++year) {
        const int y = 1 + (year - 1) % 9;
        for (int month = 1; month <= 12; ++month) {
            const int m = 1 + (month - 1) % 9;
            for (int day = 1; day <= 31; ++day) {
                const int d = 1 + (day - 1) % 9;
                Born(Decimal(day),
                     std::u16string(englishMonths[static_cast<std::size_t>(month - 1)]),
                     Decimal(year));
                CalcChallenges();
                const int first = std::abs(m - d);
                const int second = std::abs(y - d);
                const std::array<int, 4> expected{first, second, std::abs(first - second),
                                                  std::abs(y - m)};
                std::string number;
                for (std::size_t position = 0; position < 4; ++position) {
                    const int value = expected[position];
                    number += (position == 0 ? "" : " ") + std::to_string(value);
                    ASSERT_EQ(store.*challenges[position].label,
                              labels[position][static_cast<std::size_t>(value)])
                        << day << '.' << month << '.' << year;
                    ASSERT_TRUE(Opens(store.*challenges[position].text, "ChallengeText", value));
                    seen[position].insert(value);
                }
                ASSERT_EQ(store.ChallengeNumber, std::u16string(number.begin(), number.end()));
            }
        }
    }
    const std::set<int> all{0, 1, 2, 3, 4, 5, 6, 7, 8};
    for (const std::set<int> &values : seen)
        EXPECT_EQ(values, all);
}

TEST_F(Challenges, EachValueHasItsReadingInEachPlace) {
    for (int value = 0; value <= 8; ++value) {
        // Day 0 and year 0 make first and fourth the month; second stays 0 and third the first.
        Born(u"0",
             value == 0 ? u"no month"
                        : std::u16string(englishMonths[static_cast<std::size_t>(value - 1)]),
             u"0");
        CalcChallenges();
        EXPECT_EQ(store.ChallengeNumber,
                  Decimal(value) + u" 0 " + Decimal(value) + u" " + Decimal(value));
        ExpectRows(value, 0, value, value);

        Born(u"0", u"no month", Decimal(value));
        CalcChallenges();
        EXPECT_EQ(store.ChallengeNumber,
                  u"0 " + Decimal(value) + u" " + Decimal(value) + u" " + Decimal(value));
        ExpectRows(0, value, value, value);
    }
}

TEST_F(Challenges, WritesItsOwnSlotsAndNoOthers) {
    Born(u"7", u"March", u"1990");
    const ReadingStore marked = MarkedStore();
    store = marked;
    CalcChallenges();
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"ChallengeNumber", "ChallengeLabel1", "ChallengeLabel2", "ChallengeLabel3",
                         "ChallengeLabel4", "ChallengeText1", "ChallengeText2", "ChallengeText3",
                         "ChallengeText4", "ChallengeAbout"}));
    const ReadingStore once = store;
    clock.Set(1950y / 1 / 1);
    CalcChallenges();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(Challenges, UnknownMonthNameCountsNothing) {
    for (const char16_t *month : {u"mars", u"M\u00E4rz", u"march", u"MARCH", u" March", u""}) {
        Born(u"7", month, u"1990"); // 7, 0 and 1
        CalcChallenges();
        EXPECT_EQ(store.ChallengeNumber, u"7 6 1 1");
        ExpectRows(7, 6, 1, 1);
    }
}

TEST_F(Challenges, NineHasNoRowInAnyPlace) {
    const ReadingStore marked = MarkedStore();

    store = marked;
    Born(u"9", u"mars", u"1990"); // 9, 0 and 1
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"9 8 1 1");
    EXPECT_EQ(store.ChallengeLabel1, marked.ChallengeLabel1);
    EXPECT_EQ(store.ChallengeText1, marked.ChallengeText1);
    ExpectRow(1, 8);
    ExpectRow(2, 1);
    ExpectRow(3, 1);

    store = marked;
    Born(u"1", u"mars", u"2007"); // 1, 0 and 9
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"1 8 7 9");
    ExpectRow(0, 1);
    ExpectRow(1, 8);
    ExpectRow(2, 7);
    EXPECT_EQ(store.ChallengeLabel4, marked.ChallengeLabel4);
    EXPECT_EQ(store.ChallengeText4, marked.ChallengeText4);

    store = marked;
    Born(u"27", u"mars", u"2007"); // 9, 0 and 9
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"9 0 9 9");
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"ChallengeNumber", "ChallengeLabel2",
                                               "ChallengeText2", "ChallengeAbout"}));
    ExpectRow(1, 0);

    store = marked;
    Born(u"9", u"September", u""); // 9, 9 and 0, which no year of the list makes
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"0 9 9 9");
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"ChallengeNumber", "ChallengeLabel1",
                                               "ChallengeText1", "ChallengeAbout"}));
}

TEST_F(Challenges, NineKeepsTheLineAndTheReadingOfThePersonBefore) {
    Born(u"7", u"March", u"1990");
    CalcChallenges();
    ASSERT_EQ(store.ChallengeNumber, u"4 6 2 2");

    Born(u"9", u"mars", u"2007");
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"9 0 9 9");
    ExpectRows(4, 0, 2, 2); // only the second is this person's own

    Born(u"9", u"mars", u"1990");
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"9 8 1 1");
    ExpectRows(4, 8, 1, 1); // the first is still that of two persons before

    Born(u"29", u"December", u"1985");
    CalcChallenges();
    ExpectRows(1, 3, 2, 2);
}

TEST_F(Challenges, NineInAFreshStoreLeavesAGap) {
    Born(u"9", u"mars", u"2007");
    CalcChallenges();
    EXPECT_EQ(store.ChallengeLabel1, u"");
    EXPECT_EQ(store.ChallengeText1, u"");
    EXPECT_EQ(store.ChallengeLabel4, u"");
}

TEST_F(Challenges, NameThatEndsInADigitHasNoSay) {
    Named(u"JOHN", u"", u"SMITH5");
    CalcDestiny();
    ASSERT_EQ(store.ScratchLetter, u"5");
    Born(u"29", u"December", u"1985");
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"1 3 2 2");
}

TEST_F(Challenges, DayThatTheMonthDoesNotHaveCountsLikeAnyOther) {
    Born(u"31", u"February", u"1990"); // 4, 2 and 1
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"2 3 1 1");
    ExpectRows(2, 3, 1, 1);
}

TEST_F(Challenges, BirthYearInTheFutureChangesNothing) {
    Born(u"7", u"March", u"2050"); // 7, 3 and 7
    CalcChallenges();
    EXPECT_EQ(store.ChallengeNumber, u"4 0 4 4");
    ExpectRows(4, 0, 4, 4);
}

TEST_F(Challenges, CharacterThatIsNoDigitLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    // 3641 nines sum up to 32769.
    for (const std::u16string &bad :
         {std::u16string(u"x"), std::u16string(u"7x"), std::u16string(u" 7"),
          std::u16string(u"1 2"), std::u16string(u"-7"), std::u16string(3641, u'9')}) {
        store = marked;
        Born(bad, u"March", u"1990");
        EXPECT_THROW(CalcChallenges(), RuntimeFailure);
        Born(u"7", u"March", bad);
        EXPECT_THROW(CalcChallenges(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), SlotNames{});
    }
}

} // namespace
} // namespace modReadings
