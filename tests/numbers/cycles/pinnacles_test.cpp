#include "core/months.h"
#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>

namespace modReadings {
namespace {

using longhand::Decimal;
using namespace std::chrono_literals;

/// The four labels of a value, from the first pinnacle to the fourth.
struct LabelRow {
    int value;
    std::array<std::u16string_view, 4> labels;
};

// The third label of 4 has two blanks before its number, that of 22 one.
constexpr LabelRow labelRows[] = {
    {1,
     {u"First Pinnacle from age 0-35 years is 1", u"Second Pinnacle from age 36-44 is 1",
      u"Third Pinnacle from age 45-53 is 1", u"Fourth Pinnacle from age 54 & beyond is 1"}},
    {2,
     {u"First Pinnacle from age 0-34 years is 2", u"Second Pinnacle from age 35-43 is 2",
      u"Third Pinnacle from age 44-52 is 2", u"Fourth Pinnacle from age 53 & beyond is 2"}},
    {3,
     {u"First Pinnacle from age 0-33 years is 3", u"Second Pinnacle from age 34-42 is 3",
      u"Third Pinnacle from age 43-51 is 3", u"Fourth Pinnacle from age 52 & beyond is 3"}},
    {4,
     {u"First Pinnacle from age 0-32 years is 4", u"Second Pinnacle from age 33-41 is 4",
      u"Third Pinnacle from age 42-50 is  4", u"Fourth Pinnacle from age 51 & beyond is 4"}},
    {5,
     {u"First Pinnacle from age 0-31 years is 5", u"Second Pinnacle from age 32-40 is 5",
      u"Third Pinnacle from age 41-49 is 5", u"Fourth Pinnacle from age 50 & beyond is 5"}},
    {6,
     {u"First Pinnacle from age 0-30 years is 6", u"Second Pinnacle from age 31-39 is 6",
      u"Third Pinnacle from age 40-48 is 6", u"Fourth Pinnacle from age 49 & beyond is 6"}},
    {7,
     {u"First Pinnacle from age 0-29 years is 7", u"Second Pinnacle from age 30-38 is 7",
      u"Third Pinnacle from age 39-47 is 7", u"Fourth Pinnacle from age 48 & beyond is 7"}},
    {8,
     {u"First Pinnacle from age 0-28 years is 8", u"Second Pinnacle from age 29-37 is 8",
      u"Third Pinnacle from age 38-46 is 8", u"Fourth Pinnacle from age 47 & beyond is 8"}},
    {9,
     {u"First Pinnacle from age 0-27 years is 9", u"Second Pinnacle from age 28-36 is 9",
      u"Third Pinnacle from age 37-45 is 9", u"Fourth Pinnacle from age 46 & beyond is 9"}},
    {11,
     {u"First Pinnacle from age 0-34 years is 11", u"Second Pinnacle from age 35-43 is 11",
      u"Third Pinnacle from age 44-52 is 11", u"Fourth Pinnacle from age 53 & beyond is 11"}},
    {22,
     {u"First Pinnacle from age 0-32 years is 22", u"Second Pinnacle from age 33-41 is 22",
      u"Third Pinnacle from age 42-50 is 22", u"Fourth Pinnacle from age 51 & beyond is 22"}},
};

struct PinnacleSlots {
    int16 ReadingStore::*number;
    std::u16string ReadingStore::*label;
    std::u16string ReadingStore::*text;
};

constexpr std::array<PinnacleSlots, 4> pinnacles{{
    {&ReadingStore::PinnacleNumber1, &ReadingStore::PinnacleLabel1, &ReadingStore::PinnacleText1},
    {&ReadingStore::PinnacleNumber2, &ReadingStore::PinnacleLabel2, &ReadingStore::PinnacleText2},
    {&ReadingStore::PinnacleNumber3, &ReadingStore::PinnacleLabel3, &ReadingStore::PinnacleText3},
    {&ReadingStore::PinnacleNumber4, &ReadingStore::PinnacleLabel4, &ReadingStore::PinnacleText4},
}};

std::u16string_view LabelOf(std::size_t position, int value) {
    for (const LabelRow &row : labelRows)
        if (row.value == value)
            return row.labels[position];
    return u"no such value";
}

/// What a sum of day, month and year comes down to: 11 and 22 stay, and stay too where
/// they are the digit sum. The sums have four digits and a digit sum of 28 at most, so
/// all others come down to their digital root.
int Reduced(int sum) {
    const int digits = sum / 1000 + sum / 100 % 10 + sum / 10 % 10 + sum % 10;
    if (sum == 11 || sum == 22)
        return sum;
    if (digits == 11 || digits == 22)
        return digits;
    return 1 + (sum - 1) % 9;
}

class Pinnacles : public FreshStore {
protected:
    static std::array<int, 4> Numbers() {
        return {store.PinnacleNumber1, store.PinnacleNumber2, store.PinnacleNumber3,
                store.PinnacleNumber4};
    }
    using Four = std::array<int, 4>;

    /// Whether labels and texts are those of the four numbers.
    static void ExpectRowsOf(const Four &numbers) {
        for (std::size_t position = 0; position < 4; ++position) {
            EXPECT_EQ(store.*pinnacles[position].label, LabelOf(position, numbers[position]));
            EXPECT_TRUE(
                IsReadingOf(store.*pinnacles[position].text, numbers[position], "PinnacleText"));
        }
    }
};

TEST_F(Pinnacles, BornOn7March1990) {
    Born(u"7", u"March", u"1990");
    CalcPinnacles();
    // 10; 1997 with digits 26; 1 + 8; 1993 with digits 22, which stays.
    EXPECT_EQ(Numbers(), (Four{1, 8, 9, 22}));
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-35 years is 1");
    EXPECT_EQ(store.PinnacleLabel2, u"Second Pinnacle from age 29-37 is 8");
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 37-45 is 9");
    EXPECT_EQ(store.PinnacleLabel4, u"Fourth Pinnacle from age 51 & beyond is 22");
    ExpectRowsOf({1, 8, 9, 22});
}

TEST_F(Pinnacles, BornOn29December1985) {
    Born(u"29", u"December", u"1985");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{5, 7, 3, 8})); // 32; 2014; 12; 1988 with digits 26
    ExpectRowsOf({5, 7, 3, 8});
}

TEST_F(Pinnacles, LinesOfOnePersonNeedNotJoin) {
    Born(u"7", u"March", u"1991"); // 10; 1998 with digits 27
    CalcPinnacles();
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-35 years is 1");
    EXPECT_EQ(store.PinnacleLabel2, u"Second Pinnacle from age 28-36 is 9");
}

TEST_F(Pinnacles, ThirdLineOfFourHasTwoBlanks) {
    Born(u"1", u"January", u"1999");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{2, 2, 4, 2})); // 2; 2000; 4; 2000
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 42-50 is  4");
}

TEST_F(Pinnacles, FirstAndSecondOf11MakeAThirdOf22) {
    Born(u"8", u"March", u"2001");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{11, 11, 22, 6})); // 11; 2009 with digits 11; 22; 2004
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-34 years is 11");
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 42-50 is 22");
    ExpectRowsOf({11, 11, 22, 6});
}

TEST_F(Pinnacles, MasterNumbersStayAsASumAndAsADigitSum) {
    struct Expected {
        const char16_t *day, *month;
        int first;
    };
    constexpr Expected expected[] = {
        {u"8", u"March", 11},     // 11 itself
        {u"20", u"February", 22}, // 22 itself
        {u"27", u"February", 11}, // 29 with digits 11
        {u"31", u"July", 11},     // 38 with digits 11
        {u"10", u"October", 11},  // October counts 1
        {u"31", u"September", 4}, // 40
        {u"19", u"January", 2},   // 20
    };
    for (const Expected &row : expected) {
        Born(row.day, row.month, u"1990");
        CalcPinnacles();
        EXPECT_EQ(store.PinnacleNumber1, row.first);
    }
}

TEST_F(Pinnacles, AllDatesOfTheListsAndAll44Lines) {
    std::array<std::set<int>, 4> seen;
    for (int year = 1900; year <= 2050; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int monthValue = month <= 9 ? month : month - 9;
            for (int day = 1; day <= 31; ++day) {
                Born(Decimal(day),
                     std::u16string(englishMonths[static_cast<std::size_t>(month - 1)]),
                     Decimal(year));
                CalcPinnacles();
                const int first = Reduced(monthValue + day);
                const int second = Reduced(day + year);
                const Four expected{first, second, Reduced(first + second),
                                    Reduced(monthValue + year)};
                ASSERT_EQ(Numbers(), expected) << day << '.' << month << '.' << year;
                for (std::size_t position = 0; position < 4; ++position) {
                    const int value = expected[position];
                    ASSERT_EQ(store.*pinnacles[position].label, LabelOf(position, value));
                    ASSERT_TRUE(Opens(store.*pinnacles[position].text, "PinnacleText", value));
                    seen[position].insert(value);
                }
            }
        }
    }
    const std::set<int> all{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
    for (const std::set<int> &values : seen)
        EXPECT_EQ(values, all);
}

TEST_F(Pinnacles, EachValueHasItsReadingInEachPlace) {
    for (const LabelRow &row : labelRows) {
        // Without a month the first pinnacle is the day alone and the fourth the year.
        const std::u16string day = Decimal(row.value);
        Born(day, u"no month", u"0");
        CalcPinnacles(); // d, d, 2 d and 0
        EXPECT_EQ(store.PinnacleNumber1, row.value);
        EXPECT_EQ(store.PinnacleLabel1, row.labels[0]);
        EXPECT_TRUE(IsReadingOf(store.PinnacleText1, row.value, "PinnacleText"));
        EXPECT_EQ(store.PinnacleNumber2, row.value);
        EXPECT_EQ(store.PinnacleLabel2, row.labels[1]);
        EXPECT_TRUE(IsReadingOf(store.PinnacleText2, row.value, "PinnacleText"));

        Born(u"0", u"no month", day);
        CalcPinnacles(); // 0, y, y and y
        EXPECT_EQ(store.PinnacleNumber3, row.value);
        EXPECT_EQ(store.PinnacleLabel3, row.labels[2]);
        EXPECT_TRUE(IsReadingOf(store.PinnacleText3, row.value, "PinnacleText"));
        EXPECT_EQ(store.PinnacleNumber4, row.value);
        EXPECT_EQ(store.PinnacleLabel4, row.labels[3]);
        EXPECT_TRUE(IsReadingOf(store.PinnacleText4, row.value, "PinnacleText"));
    }
}

TEST_F(Pinnacles, AboutHasItsTwoParagraphs) {
    Born(u"7", u"March", u"1990");
    CalcPinnacles();
    EXPECT_TRUE(IsTextOf(store.PinnacleAbout, "PinnacleAbout"));
}

TEST_F(Pinnacles, WritesItsOwnSlotsAndNoOthers) {
    Born(u"7", u"March", u"1990");
    const ReadingStore marked = MarkedStore();
    store = marked;
    CalcPinnacles();
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"PinnacleNumber1", "PinnacleNumber2", "PinnacleNumber3", "PinnacleNumber4",
                         "PinnacleLabel1", "PinnacleLabel2", "PinnacleLabel3", "PinnacleLabel4",
                         "PinnacleText1", "PinnacleText2", "PinnacleText3", "PinnacleText4",
                         "PinnacleAbout"}));
    EXPECT_EQ(profile.BirthDay, u"7");
    EXPECT_EQ(profile.BirthMonth, u"March");
    EXPECT_EQ(profile.BirthYear, u"1990");

    const ReadingStore once = store;
    clock.Set(1950y / 1 / 1); // neither the clock nor the age has a say
    CalcPinnacles();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(Pinnacles, BirthYearInTheFutureChangesNothing) {
    Born(u"7", u"March", u"2050");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{1, 5, 6, 1})); // 10; 2057 with digits 14; 6; 2053 with digits 10
    ExpectRowsOf({1, 5, 6, 1});
}

TEST_F(Pinnacles, BlanksAroundTheTextsAreTrimmed) {
    Born(u"  7 ", u" March  ", u" 1990 ");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{1, 8, 9, 22}));
}

TEST_F(Pinnacles, DayThatTheMonthDoesNotHaveCountsLikeAnyOther) {
    Born(u"31", u"February", u"1990");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{6, 5, 11, 3})); // 33; 2021; 11; 1992 with digits 21
    ExpectRowsOf({6, 5, 11, 3});
}

TEST_F(Pinnacles, UnknownMonthNameCountsNothing) {
    for (const char16_t *month : {u"mars", u"M\u00E4rz", u"march", u""}) {
        Born(u"7", month, u"1990");
        CalcPinnacles();
        EXPECT_EQ(Numbers(), (Four{7, 8, 6, 1})); // 7; 1997; 15; 1990 with digits 19
        ExpectRowsOf({7, 8, 6, 1});
    }
}

TEST_F(Pinnacles, NameThatEndsInADigitBendsTheMonthFromTheNextRunOn) {
    Born(u"7", u"March", u"1990");
    Named(u"JOHN", u"", u"SMITH2");
    RunAllCalculators(); // the pinnacles come before the first walk over the name
    EXPECT_EQ(Numbers(), (Four{1, 8, 9, 22}));
    CalcPinnacles();                          // the 2 stands for February, which comes before March
    EXPECT_EQ(Numbers(), (Four{9, 8, 8, 3})); // 9; 1997; 17; 1992 with digits 21
}

TEST_F(Pinnacles, ValueWithoutARowLeavesOnlyItsOwnLineAndReading) {
    Born(u"7", u"March", u"1990");
    CalcPinnacles();
    const std::u16string label = store.PinnacleLabel1;
    const std::u16string text = store.PinnacleText1;

    store.PinnacleAbout.clear();
    Born(u"0", u"mars", u"1990");
    CalcPinnacles();
    EXPECT_EQ(Numbers(), (Four{0, 1, 1, 1}));
    EXPECT_TRUE(IsTextOf(store.PinnacleAbout, "PinnacleAbout"));
    EXPECT_EQ(store.PinnacleLabel1, label);
    EXPECT_EQ(store.PinnacleText1, text);
    EXPECT_EQ(store.PinnacleLabel2, u"Second Pinnacle from age 36-44 is 1");
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 45-53 is 1");
    EXPECT_EQ(store.PinnacleLabel4, u"Fourth Pinnacle from age 54 & beyond is 1");
    EXPECT_TRUE(IsReadingOf(store.PinnacleText4, 1, "PinnacleText"));

    Born(u"29", u"December", u"1985");
    CalcPinnacles();
    ExpectRowsOf({5, 7, 3, 8});
}

TEST_F(Pinnacles, TextThatIsNoNumberLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    for (const char16_t *bad : {u"x", u"7x", u"", u"   ", u"1 2", u"7.5", u"40000"}) {
        store = marked;
        Born(bad, u"March", u"1990");
        EXPECT_THROW(CalcPinnacles(), RuntimeFailure);
        Born(u"7", u"March", bad);
        EXPECT_THROW(CalcPinnacles(), RuntimeFailure);
        EXPECT_EQ(ChangedSince(marked), SlotNames{});
    }
}

TEST_F(Pinnacles, NegativeSumFailsBeforeAnythingIsWritten) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    Born(u"-9", u"March", u"1990"); // -6, which fails at its minus sign
    EXPECT_THROW(CalcPinnacles(), RuntimeFailure);
    EXPECT_EQ(ChangedSince(marked), SlotNames{});
}

TEST_F(Pinnacles, OverflowLeavesTheNumbersBeforeItNew) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    Born(u"1", u"March", u"32767");
    EXPECT_THROW(CalcPinnacles(), RuntimeFailure); // 1 + 32767
    EXPECT_EQ(ChangedSince(marked), SlotNames{"PinnacleNumber1"});
    EXPECT_EQ(store.PinnacleNumber1, 4);

    store = marked;
    Born(u"1", u"March", u"32766");
    EXPECT_THROW(CalcPinnacles(), RuntimeFailure); // 3 + 32766
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"PinnacleNumber1", "PinnacleNumber2", "PinnacleNumber3"}));
    EXPECT_EQ(store.PinnacleNumber2, 7);  // 32767 with digits 25
    EXPECT_EQ(store.PinnacleNumber3, 11); // 4 + 7
}

} // namespace
} // namespace modReadings
