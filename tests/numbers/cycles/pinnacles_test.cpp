#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "numbers/pinnacles.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::Month;

using Four = std::array<int, 4>;

/// The line of a value in one of the four places. The age at which its first pinnacle ends is
/// 36 less the value, or less its digit sum for the master numbers; each later one lasts nine
/// years.
std::u16string LineOf(std::size_t place, int value) {
    const int ends = value == 11 ? 34 : value == 22 ? 32 : 36 - value;
    const std::u16string number = Decimal(value);
    switch (place) {
    case 0:
        return u"First Pinnacle from age 0-" + Decimal(ends) + u" years is " + number;
    case 1:
        return u"Second Pinnacle from age " + Decimal(ends + 1) + u"-" + Decimal(ends + 9) +
               u" is " + number;
    case 2:
        return u"Third Pinnacle from age " + Decimal(ends + 10) + u"-" + Decimal(ends + 18) +
               (value == 4 ? u" is  " : u" is ") + number; // two blanks before the 4
    default:
        return u"Fourth Pinnacle from age " + Decimal(ends + 19) + u" & beyond is " + number;
    }
}

class Pinnacles : public FreshStore {
protected:
    static Four Of(std::u16string day, std::u16string month, std::u16string year) {
        Born(std::move(day), std::move(month), std::move(year));
        CalcPinnacles();
        return {store.PinnacleNumber1, store.PinnacleNumber2, store.PinnacleNumber3,
                store.PinnacleNumber4};
    }

    /// Whether lines and readings are those of the four numbers.
    static void ExpectRowsOf(const Four &numbers) {
        const std::u16string *labels[] = {&store.PinnacleLabel1, &store.PinnacleLabel2,
                                          &store.PinnacleLabel3, &store.PinnacleLabel4};
        const std::u16string *texts[] = {&store.PinnacleText1, &store.PinnacleText2,
                                         &store.PinnacleText3, &store.PinnacleText4};
        for (std::size_t place = 0; place < 4; ++place) {
            EXPECT_EQ(*labels[place], LineOf(place, numbers[place]));
            EXPECT_TRUE(Opens(*texts[place], "PinnacleText", numbers[place]));
        }
    }
};

TEST_F(Pinnacles, BornOn7March1990) {
    // 10; 1997 with digits 26; 1 + 8; 1993 with digits 22, which stays.
    EXPECT_EQ(Of(u"7", u"March", u"1990"), (Four{1, 8, 9, 22}));
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-35 years is 1");
    EXPECT_EQ(store.PinnacleLabel2, u"Second Pinnacle from age 29-37 is 8");
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 37-45 is 9");
    EXPECT_EQ(store.PinnacleLabel4, u"Fourth Pinnacle from age 51 & beyond is 22");
    ExpectRowsOf({1, 8, 9, 22});
    EXPECT_EQ(Of(u"  7 ", u" March  ", u" 1990 "), (Four{1, 8, 9, 22})); // blanks are trimmed
    // 32; 2014; 12; 1988 with digits 26
    EXPECT_EQ(Of(u"29", u"December", u"1985"), (Four{5, 7, 3, 8}));
}

TEST_F(Pinnacles, LinesOfOnePersonNeedNotJoin) {
    Of(u"7", u"March", u"1991"); // 10; 1998 with digits 27
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-35 years is 1");
    EXPECT_EQ(store.PinnacleLabel2, u"Second Pinnacle from age 28-36 is 9");
}

TEST_F(Pinnacles, ThirdLineOfFourHasTwoBlanks) {
    EXPECT_EQ(Of(u"1", u"January", u"1999"), (Four{2, 2, 4, 2})); // 2; 2000; 4; 2000
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 42-50 is  4");
}

TEST_F(Pinnacles, MasterNumbersStayAsASumAndAsADigitSum) {
    // 11; 2009 with digits 11; 22; 2004
    EXPECT_EQ(Of(u"8", u"March", u"2001"), (Four{11, 11, 22, 6}));
    EXPECT_EQ(store.PinnacleLabel1, u"First Pinnacle from age 0-34 years is 11");
    EXPECT_EQ(store.PinnacleLabel3, u"Third Pinnacle from age 42-50 is 22");
    const struct {
        const char16_t *day, *month;
        int first;
    } dates[] = {
        {u"20", u"February", 22}, // 22 itself
        {u"27", u"February", 11}, // 29 with digits 11
        {u"31", u"July", 11},     // 38 with digits 11
        {u"10", u"October", 11},  // October counts 1
        {u"31", u"September", 4}, // 40
        {u"19", u"January", 2},   // 20
    };
    for (const auto &[day, month, first] : dates)
        EXPECT_EQ(Of(day, month, u"1990")[0], first);
}

TEST_F(Pinnacles, UnknownMonthLeavesTheDayAloneAndTheYearAlone) {
    // 29 with digits 11; 2014; 11 + 7 = 18; 1985 with digits 23.
    EXPECT_EQ(Of(u"29", u"d\u00E9cembre", u"1985"), (Four{11, 7, 9, 5}));
    ExpectRowsOf({11, 7, 9, 5});
}

TEST_F(Pinnacles, AllDatesOfTheListsAndAll44Lines) {
    using longhand::KeepMaster;
    std::array<std::set<int>, 4> seen;
    int dates = 0;
    for (int year = 1900; year <= 2050; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int monthValue = month <= 9 ? month : month - 9;
            for (int day = 1; day <= 31; ++day) {
                const int first = KeepMaster(monthValue + day), second = KeepMaster(day + year);
                const Four expected{first, second, KeepMaster(first + second),
                                    KeepMaster(monthValue + year)};
                ASSERT_EQ(Of(Decimal(day), Month(month), Decimal(year)), expected)
                    << day << '.' << month << '.' << year;
                if (++dates % 7 != 0) // one in seven is enough for the texts
                    continue;
                ExpectRowsOf(expected);
                for (std::size_t place = 0; place < 4; ++place)
                    seen[place].insert(expected[place]);
            }
        }
    }
    for (const std::set<int> &values : seen)
        EXPECT_EQ(values, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22}));
}

TEST_F(Pinnacles, NameThatEndsInADigitBendsTheMonthFromTheNextRunOn) {
    Named(u"JOHN", u"", u"SMITH2");
    Born(u"7", u"March", u"1990");
    RunAllCalculators(); // the pinnacles come before the first walk over the name
    EXPECT_EQ(store.PinnacleNumber1, 1);
    // The 2 stands for February, which comes before March: 9; 1997; 17; 1992 with digits 21.
    EXPECT_EQ(Of(u"7", u"March", u"1990"), (Four{9, 8, 8, 3}));
}

// What stands in the lines, and nothing else.
static_assert(AgesNamedIn(u"First Pinnacle from age 0-35 years is ") == Ages{0, 35});
static_assert(AgesNamedIn(u"Fourth Pinnacle from age 54 & beyond is ") == Ages{54, Ages::open});
static_assert(AgesNamedIn(u"Life Path Period 2 from age 27 - 53 is ") == Ages{27, 53});
static_assert(AgesNamedIn(u"Life Path Period 3 from age 54 on is ") == Ages{54, Ages::open});
static_assert(Ages{30, 38}.Hold(30) && Ages{30, 38}.Hold(38));
static_assert(!Ages{30, 38}.Hold(29) && !Ages{30, 38}.Hold(39));

TEST(PinnacleAges, AreThoseOfTheLineOfPositionAndValue) {
    EXPECT_EQ(AgesOfPinnacle(0, 9), (Ages{0, 27}));
    EXPECT_EQ(AgesOfPinnacle(1, 5), (Ages{32, 40}));
    EXPECT_EQ(AgesOfPinnacle(2, 22), (Ages{42, 50}));
    EXPECT_EQ(AgesOfPinnacle(3, 11), (Ages{53, Ages::open}));
    EXPECT_EQ(AgesOfPinnacle(0, 10), std::nullopt);
}

TEST_F(Pinnacles, ValueWithoutARowLeavesOnlyItsOwnLineAndReading) {
    Born(u"0", u"mars", u"1990");
    SlotNames written = SlotsOf({"Pinnacle"});
    written.erase("PinnacleLabel1");
    written.erase("PinnacleText1");
    EXPECT_EQ(WrittenBy(CalcPinnacles), written);
    EXPECT_EQ(store.PinnacleNumber1, 0);
    EXPECT_TRUE(IsTextOf(store.PinnacleAbout, "PinnacleAbout"));
}

TEST_F(Pinnacles, OverflowLeavesTheNumbersBeforeItNew) {
    Born(u"-9", u"March", u"1990"); // -6, which fails at its minus sign
    EXPECT_EQ(WrittenBeforeFailure(CalcPinnacles), SlotNames{});

    Born(u"1", u"March", u"32767"); // 1 + 32767
    EXPECT_EQ(WrittenBeforeFailure(CalcPinnacles), SlotNames{"PinnacleNumber1"});
    EXPECT_EQ(store.PinnacleNumber1, 4);

    Born(u"1", u"March", u"32766"); // 3 + 32766
    EXPECT_EQ(WrittenBeforeFailure(CalcPinnacles),
              (SlotNames{"PinnacleNumber1", "PinnacleNumber2", "PinnacleNumber3"}));
    EXPECT_EQ(store.PinnacleNumber2, 7);  // 32767 with digits 25
    EXPECT_EQ(store.PinnacleNumber3, 11); // 4 + 7
}

} // namespace
} // namespace modReadings
