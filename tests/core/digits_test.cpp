#include "core/digits.h"

#include "tests/support/longhand.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace modReadings {
namespace {

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

// By the number itself.
constexpr Reduction keepMasterTable[] = {{0, 0},   {1, 1},    {2, 2},   {3, 3},   {4, 4},  {5, 5},
                                         {6, 6},   {7, 7},    {8, 8},   {9, 9},   {10, 1}, {11, 11},
                                         {19, 1},  {22, 22},  {29, 11}, {38, 11}, {49, 4}, {199, 1},
                                         {299, 2}, {499, 22}, {2999, 2}};

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
    // By digit sum. 123 folds to 1 + 3, while its digits add up to 6.
    constexpr Reduction table[] = {{0, 0},  {9, 9},  {10, 1}, {11, 2},  {19, 1},  {22, 4}, {28, 1},
                                   {29, 2}, {38, 2}, {99, 9}, {100, 1}, {199, 1}, {123, 4}};
    for (const Reduction &row : table)
        EXPECT_EQ(ReduceDigitString(DigitsWithSum(row.from)), row.result) << "sum " << row.from;
    for (int sum = 0; sum <= 2000; ++sum)
        ASSERT_EQ(ReduceDigitString(DigitsWithSum(sum)), longhand::Fold(longhand::Fold(sum)));
}

TEST(ReduceDigitString, FailsAtACharacterThatIsNoDigit) {
    using namespace std::string_view_literals;
    for (const std::u16string_view text :
         {u" "sv, u"1 2"sv, u" 1"sv, u"1 "sv, u"-1"sv, u"+1"sv, u"1.5"sv, u"x"sv, u"19x9"sv, u"/"sv,
          u":"sv, u"\u00B2"sv, u"\u0661"sv, u"\uFF11"sv, u"1\0"sv, u"\U0001F600"sv})
        EXPECT_THROW(ReduceDigitString(text), RuntimeFailure)
            << ::testing::PrintToString(std::u16string(text));
}

TEST(ReduceDigitString, OverflowsBeyond3640Nines) {
    const std::u16string nines(3640, u'9');        // 32760
    EXPECT_EQ(ReduceDigitString(nines), 3);        // 3 + 0
    EXPECT_EQ(ReduceDigitString(nines + u"7"), 1); // 32767: 3 + 7 = 10, 1
    EXPECT_THROW(ReduceDigitString(nines + u"8"), RuntimeFailure);
}

TEST(ReduceNumberAndKeepMaster, AgreeWithPaperForEveryNumber) {
    for (int value = 0; value <= 32767; ++value) {
        auto number = static_cast<int16>(value);
        ASSERT_EQ(ReduceNumber(number), longhand::Fold(longhand::Fold(longhand::DigitSum(value))));
        ASSERT_EQ(ReduceKeepMaster(number), longhand::KeepMaster(value)) << value;
        ASSERT_EQ(number, longhand::KeepMaster(value)) << value;
    }
}

TEST(ReduceKeepMaster, FailsAtAMinusSignAsTheOthersDoAndLeavesTheNumber) {
    for (const int16 negative : std::initializer_list<int16>{-1, -11, -22, -2999, -32768}) {
        int16 number = negative;
        EXPECT_THROW(ReduceKeepMaster(number), RuntimeFailure);
        EXPECT_EQ(number, negative);
        EXPECT_THROW(ReduceNumber(negative), RuntimeFailure);
        EXPECT_THROW(Fold(negative), RuntimeFailure);
    }
}

} // namespace
} // namespace modReadings
