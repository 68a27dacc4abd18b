#include "core/clock.h"

#include "tests/support/stepping_clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace modReadings {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

TEST(FixedClock, CanBeSetAndAdvanced) {
    FixedClock clock(year(2026) / 11 / 16);
    EXPECT_EQ(Clock::Date(), year(2026) / 11 / 16);
    clock.Set(year(2026) / 12 / 31);
    clock.Advance(1);
    EXPECT_EQ(Clock::Date(), year(2027) / 1 / 1);
    clock.Advance(-1);
    EXPECT_EQ(Clock::Date(), year(2026) / 12 / 31);
}

TEST(FixedClock, ShowsYearMonthAndDayOfEveryDayOfALeapYear) {
    FixedClock clock(year(2028) / 1 / 1);
    constexpr int monthLengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= monthLengths[month - 1]; ++day) {
            EXPECT_EQ(Clock::Year(), 2028);
            EXPECT_EQ(Clock::Month(), month);
            EXPECT_EQ(Clock::Day(), day);
            clock.Advance(1);
        }
    }
    EXPECT_EQ(Clock::Date(), year(2029) / 1 / 1);
}

TEST(FixedClock, GivesWayToTheClockBeforeIt) {
    const FixedClock outer(year(1900) / 1 / 1);
    {
        const FixedClock inner(year(2026) / 11 / 16);
        EXPECT_EQ(Clock::Year(), 2026);
    }
    EXPECT_EQ(Clock::Date(), year(1900) / 1 / 1);
}

TEST(Clock, ReadsYearMonthAndDayByCallsOfTheirOwn) {
    const SteppingClock clock(
        {year(2026) / 12 / 31, year(2027) / 1 / 1, year(2027) / 1 / 2, year(2027) / 1 / 3});
    EXPECT_EQ(Clock::Day(), 31);
    EXPECT_EQ(Clock::Month(), 1);   // already past midnight
    EXPECT_EQ(Clock::Year(), 2027); // and another day on
    EXPECT_EQ(Clock::Date(), year(2027) / 1 / 3);
}

/// Puts the process into a time zone; null takes it out of that again.
void SetZone(const char *zone) {
#ifdef _WIN32
    _putenv_s("TZ", zone != nullptr ? zone : "");
#else
    if (zone != nullptr)
        setenv("TZ", zone, 1);
    else
        unsetenv("TZ");
#endif
    tzset();
}

/// The system clock's date in a time zone, which is set back behind it.
year_month_day DateIn(const char *zone) {
    const char *const old = std::getenv("TZ");
    const std::string before = old != nullptr ? old : "";
    SetZone(zone);
    const year_month_day date = Clock::Date();
    SetZone(old != nullptr ? before.c_str() : nullptr);
    return date;
}

TEST(Clock, IsTheSystemsLocalOneWhereNoOtherIsFixed) {
    { const FixedClock clock(year(1900) / 1 / 1); }
    const auto localDate = [] {
        const std::time_t now = std::time(nullptr);
        const std::tm local = *std::localtime(&now);
        return sys_days(year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday);
    };
    const sys_days before = localDate();
    const sys_days shown = Clock::Date();
    EXPECT_TRUE(before <= shown && shown <= localDate());

    // 26 hours lie between these two zones, so they never share a date.
    const sys_days west = DateIn("WST12"), east = DateIn("EST-14");
    EXPECT_TRUE(east - west == days(1) || east - west == days(2));
}

} // namespace
} // namespace modReadings
