#include "core/int16.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace modReadings {
namespace {

constexpr int16 lowest = -32768;
constexpr int16 highest = 32767;

static_assert(std::is_signed_v<int16> && sizeof(int16) == 2);

static_assert(ToInt16(0) == 0);
static_assert(ToInt16(32767) == highest);
static_assert(ToInt16(-32768) == lowest);

static_assert(Add(int16{5}) == 5);
static_assert(Add(32766, 1) == highest);
static_assert(Add(-32767, -1) == lowest);
static_assert(Add(highest, lowest) == -1);
static_assert(Add(1, 2, 3, 4, 5) == 15);

static_assert(Subtract(lowest, 0) == lowest);
static_assert(Subtract(-1, highest) == lowest);
static_assert(Subtract(-1, lowest) == highest);
static_assert(Subtract(3, 7) == -4);

static_assert(Multiply(327, 100) == 32700);
static_assert(Multiply(-256, 128) == lowest);
static_assert(Multiply(181, 181) == 32761);
static_assert(Multiply(0, lowest) == 0);

static_assert(Divide(7, 2) == 3);
static_assert(Divide(-7, 2) == -3); // towards zero, not down
static_assert(Divide(7, -2) == -3);
static_assert(Divide(-7, -2) == 3);
static_assert(Divide(0, 5) == 0);
static_assert(Divide(lowest, 1) == lowest);

static_assert(Absolute(0) == 0);
static_assert(Absolute(-9) == 9);
static_assert(Absolute(9) == 9);
static_assert(Absolute(-32767) == highest);

static_assert(Add(highest, -1, 1) == highest);
static_assert(Add(20000, -20000, 20000) == 20000);

TEST(Int16, RefusesWhatDoesNotFit) {
    for (const std::int64_t value :
         {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{65536}, // would wrap to 0
          std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()})
        EXPECT_THROW(ToInt16(value), RuntimeFailure) << value;

    EXPECT_THROW(Add(highest, 1), RuntimeFailure);
    EXPECT_THROW(Add(lowest, -1), RuntimeFailure);
    EXPECT_THROW(Add(lowest, lowest), RuntimeFailure);
    EXPECT_THROW(Add(highest, 1, -1), RuntimeFailure); // the end would fit, the way there does not
    EXPECT_THROW(Add(20000, 20000, -20000), RuntimeFailure);

    EXPECT_THROW(Subtract(lowest, 1), RuntimeFailure);
    EXPECT_THROW(Subtract(0, lowest), RuntimeFailure);
    EXPECT_THROW(Subtract(highest, -1), RuntimeFailure);

    EXPECT_THROW(Multiply(328, 100), RuntimeFailure); // 32800
    EXPECT_THROW(Multiply(256, 128), RuntimeFailure); // 32768
    EXPECT_THROW(Multiply(-182, 182), RuntimeFailure);
    EXPECT_THROW(Multiply(lowest, -1), RuntimeFailure);

    EXPECT_THROW(Divide(1, 0), RuntimeFailure);
    EXPECT_THROW(Divide(0, 0), RuntimeFailure);
    EXPECT_THROW(Divide(lowest, -1), RuntimeFailure);

    EXPECT_THROW(Absolute(lowest), RuntimeFailure);
}

} // namespace
} // namespace modReadings
