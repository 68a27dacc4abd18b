#include "core/digits.h"

#include <gtest/gtest.h>

namespace modReadings {
namespace {

// Pure arithmetic is tested while it compiles: these cannot be skipped.
static_assert(ReduceDigitString(u"") == 0);
static_assert(ReduceDigitString(u"2007") == 9);
static_assert(ReduceDigitString(u"1999") == 1); // 28, 10, 1
static_assert(ReduceDigitString(u"29") == 2);   // no stop at 11

TEST(ReduceKeepMaster, WritesItsArgumentAndReturnsTheSameValue) {
    int16 number = 2999;
    EXPECT_EQ(ReduceKeepMaster(number), 2); // digit sum 29 folds to 11 and on to 2
    EXPECT_EQ(number, 2);
}

} // namespace
} // namespace modReadings
