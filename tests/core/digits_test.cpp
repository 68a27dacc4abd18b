#include "core/digits.h"

#include "tests/support/longhand.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace modReadings {
namespace {

using ::testing::PrintToString;

// Pure arithmetic is tested while it compiles: these cannot be skipped.

static_assert(DigitSum(u"") == 0);
static_assert(DigitSum(u"0000") == 0);
static_assert(DigitSum(u"123") == 6);
static_assert(DigitSum(u"1999") == 28);
static_assert(DigitSum(int16{0}) == 0);
static_assert(DigitSum(int16{123}) == 6);
static_assert(DigitSum(int16{32767}) == 25);

static_assert(Fold(0) == 0);
static_assert(Fold(9) == 9);
static_assert(Fold(10) == 1);
static_assert(Fold(28) == 10); // one fold, not a loop
static_assert(Fold(123) == 4); // the 2 is forgotten: no digit sum
static_assert(Fold(199) == 10);
static_assert(Fold(2999) == 11);
static_assert(Fold(32767) == 10);

static_assert(ReduceDigitString(u"") == 0);
static_assert(ReduceDigitString(u"2007") == 9);
static_assert(ReduceDigitString(u"0") == 0 && ReduceDigitString(u"1") == 1);
static_assert(ReduceDigitString(u"2") == 2 && ReduceDigitString(u"3") == 3);
static_assert(ReduceDigitString(u"4") == 4 && ReduceDigitString(u"5") == 5);
static_assert(ReduceDigitString(u"6") == 6 && ReduceDigitString(u"7") == 7);
static_assert(ReduceDigitString(u"8") == 8 && ReduceDigitString(u"9") == 9);
static_assert(ReduceDigitString(u"19") == 1);                      // 10, 1
static_assert(ReduceDigitString(u"29") == 2);                      // 11, 2: no stop at 11
static_assert(ReduceDigitString(u"199") == 1);                     // 19, 10, 1
static_assert(ReduceDigitString(u"1993") == 4);                    // 22, 4: nor at 22
static_assert(ReduceDigitString(u"1999") == 1);                    // 28, 10, 1
static_assert(ReduceDigitString(u"2999") == 2);                    // 29, 11, 2
static_assert(ReduceDigitString(u"29999") == 2);                   // 38, 11, 2
static_assert(ReduceDigitString(u"99999999999") == 9);             // 99, 18, 9
static_assert(ReduceDigitString(u"199999999999") == 1);            // 100, 1
static_assert(ReduceDigitString(u"69999999999999") == 4);          // 123, 4
static_assert(ReduceDigitString(u"19999999999999999999999") == 1); // 199, 10, 1

/// A text of digits with the given sum: as many nines as fit, then the rest.
std::u16string DigitsWithSum(int sum) {
    std::u16string digits(static_cast<std::size_t>(sum / 9), u'9');
    return digits + static_cast<char16_t>(u'0' + sum % 9);
}

struct Reduction {
    int16 from, result;
};

// By digit sum.
constexpr Reduction digitStringTable[] = {
    {0, 0},  {1, 1},  {2, 2},   {3, 3},   {4, 4},   {5, 5},  {6, 6},  {7, 7},
    {8, 8},  {9, 9},  {10, 1},  {11, 2},  {19, 1},  {22, 4}, {28, 1}, {29, 2},
    {38, 2}, {99, 9}, {100, 1}, {199, 1}, {123, 4}, // folds to 1 + 3, while its digits add up to 6
};

// By the number itself.
constexpr Reduction keepMasterTable[] = {
    {0, 0},   {1, 1},   {2, 2},  {3, 3},   {4, 4},   {5, 5},    {6, 6},
    {7, 7},   {8, 8},   {9, 9},  {10, 1},  {11, 11}, {19, 1},   {22, 22},
    {29, 11}, {38, 11}, {49, 4}, {199, 1}, {299, 2}, {499, 22}, {2999, 2},
};

consteval bool KeepMasterTableHolds() {
    for (const Reduction &row : keepMasterTable) {
        int16 number = row.from;
        if (ReduceKeepMaster(number) != row.result || number != row.result)
            return false;
    }
    return true;
}
static_assert(KeepMasterTableHolds());

TEST(ReduceDigitString, FoldsTheDigitSumTwice) {
    for (const Reduction &row : digitStringTable)
        EXPECT_EQ(ReduceDigitString(DigitsWithSum(row.from)), row.result) << "sum " << row.from;
}

TEST(ReduceDigitString, AgreesWithPaperForEverySum) {
    for (int sum = 0; sum <= 2000; ++sum) {
        const int16 reduced = ReduceDigitString(DigitsWithSum(sum));
        ASSERT_EQ(reduced, longhand::Fold(longhand::Fold(sum))) << sum;
        ASSERT_TRUE(reduced >= 0 && reduced <= 9) << sum;
    }
}

TEST(ReduceDigitString, FailsAtACharacterThatIsNoDigit) {
    using namespace std::string_view_literals;
    for (const std::u16string_view text :
         {u" "sv, u"1 2"sv, u" 1"sv, u"1 "sv, u"-1"sv, u"+1"sv, u"1.5"sv, u"x"sv, u"19x9"sv, u"/"sv,
          u":"sv, u"\u00B2"sv, u"\u0661"sv, u"\uFF11"sv, u"1\0"sv, u"\U0001F600"sv})
        EXPECT_THROW(ReduceDigitString(text), RuntimeFailure)
            << PrintToString(std::u16string(text));
}

TEST(ReduceDigitString, OverflowsBeyond3640Nines) {
    const std::u16string nines(3640, u'9');        // 32760
    EXPECT_EQ(ReduceDigitString(nines), 3);        // 3 + 0
    EXPECT_EQ(ReduceDigitString(nines + u"7"), 1); // 32767: 3 + 7 = 10, 1
    EXPECT_THROW(ReduceDigitString(nines + u"8"), RuntimeFailure);
    EXPECT_THROW(ReduceDigitString(nines + u"9"), RuntimeFailure);
}

TEST(ReduceNumber, ReducesTheDecimalTextOfANumber) {
    for (int value = 0; value <= 32767; ++value) {
        const int sum = longhand::DigitSum(value);
        ASSERT_EQ(ReduceNumber(static_cast<int16>(value)), longhand::Fold(longhand::Fold(sum)))
            << value;
    }
}

TEST(ReduceNumber, FailsAtAMinusSign) {
    EXPECT_THROW(ReduceNumber(-1), RuntimeFailure);
    EXPECT_THROW(ReduceNumber(-32768), RuntimeFailure);
}

TEST(Fold, FailsAtAMinusSign) {
    EXPECT_THROW(Fold(-1), RuntimeFailure);
    EXPECT_THROW(Fold(-32768), RuntimeFailure);
}

TEST(ReduceKeepMaster, WritesItsArgumentAndReturnsTheSameValue) {
    int16 number = 2999;
    EXPECT_EQ(ReduceKeepMaster(number), 2); // digit sum 29 folds to 11 and on to 2
    EXPECT_EQ(number, 2);
}

TEST(ReduceKeepMaster, AgreesWithPaperForEveryNumber) {
    for (int value = 0; value <= 32767; ++value) {
        auto number = static_cast<int16>(value);
        const int16 result = ReduceKeepMaster(number);
        ASSERT_EQ(result, longhand::KeepMaster(value)) << value;
        ASSERT_EQ(number, result) << value;
        ASSERT_TRUE((result >= 0 && result <= 9) || result == 11 || result == 22) << value;
    }
}

TEST(ReduceKeepMaster, FailsAtAMinusSignAndLeavesTheNumber) {
    for (const int16 negative : std::initializer_list<int16>{-1, -11, -22, -2999, -32768}) {
        int16 number = negative;
        EXPECT_THROW(ReduceKeepMaster(number), RuntimeFailure);
        EXPECT_EQ(number, negative);
    }
}

} // namespace
} // namespace modReadings
