#include "core/runtime_failure.h"

#include "core/int16.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace modReadings {
namespace {

TEST(Attempt, TellsThatAStatementCameToItsEnd) {
    int runs = 0;
    EXPECT_TRUE(Attempt([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
}

TEST(Attempt, AbandonsAStatementWhereItFailsAndKeepsWhatItWrote) {
    int16 first = 1, second = 2;
    EXPECT_FALSE(Attempt([&] {
        first = 10;
        second = Add(32767, first);
    }));
    EXPECT_EQ(first, 10);
    EXPECT_EQ(second, 2);
}

TEST(Attempt, SwallowsNothingButRuntimeFailure) {
    EXPECT_THROW(Attempt([] { throw std::runtime_error("other"); }), std::runtime_error);
    EXPECT_THROW(Attempt([] { throw 1; }), int);
}

} // namespace
} // namespace modReadings
