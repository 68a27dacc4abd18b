#include "core/clock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>

namespace modReadings {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

TEST(FixedClock, ShowsYearMonthAndDayOfItsDate) {
    const FixedClock clock(year(2026) / 11 / 16);
    EXPECT_EQ(Clock::Year(), 2026);
    EXPECT_EQ(Clock::Month(), 11);
    EXPECT_EQ(Clock::Day(), 16);
    EXPECT_EQ(Clock::Date(), year(2026) / 11 / 16);
}

TEST(FixedClock, CanBeSetToAnotherDate) {
    FixedClock clock(year(2026) / 11 / 16);
    clock.Set(year(1900) / 1 / 1);
    EXPECT_EQ(Clock::Date(), year(1900) / 1 / 1);
    EXPECT_EQ(Clock::Year(), 1900);
}

TEST(FixedClock, AdvancesByWholeDays) {
    FixedClock clock(year(2026) / 12 / 31);
    clock.Advance(1);
    EXPECT_EQ(Clock::Date(), year(2027) / 1 / 1);
    clock.Advance(-1);
    EXPECT_EQ(Clock::Date(), year(2026) / 12 / 31);
    clock.Set(year(2028) / 2 / 28);
    clock.Advance(1);
    EXPECT_EQ(Clock::Date(), year(2028) / 2 / 29); // a leap year
    clock.Advance(366);
    EXPECT_EQ(Clock::Date(), year(2029) / 3 / 1);
}

TEST(FixedClock, ShowsEveryDayOfALeapYear) {
    FixedClock clock(year(2028) / 1 / 1);
    constexpr int monthLengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int16 monthNumber = 0;
    for (const int length : monthLengths) {
        ++monthNumber;
        for (int dayNumber = 1; dayNumber <= length; ++dayNumber) {
            EXPECT_EQ(Clock::Year(), 2028);
            EXPECT_EQ(Clock::Month(), monthNumber);
            EXPECT_EQ(Clock::Day(), dayNumber);
            clock.Advance(1);
        }
    }
    EXPECT_EQ(Clock::Date(), year(2029) / 1 / 1);
}

/// Shows the next day at every look.
class HastyClock final : public Clock {
public:
    explicit HastyClock(year_month_day first) : next_(first), before_(Install(this)) {}
    ~HastyClock() override { Install(before_); }
    HastyClock(const HastyClock &) = delete;
    HastyClock &operator=(const HastyClock &) = delete;

private:
    year_month_day Now() const override {
        const year_month_day shown{next_};
        next_ += days(1);
        return shown;
    }

    mutable sys_days next_;
    const Clock *const before_;
};

TEST(Clock, ReadsYearMonthAndDayByCallsOfTheirOwn) {
    const HastyClock clock(year(2026) / 12 / 31);
    EXPECT_EQ(Clock::Day(), 31);
    EXPECT_EQ(Clock::Month(), 1);   // already past midnight
    EXPECT_EQ(Clock::Year(), 2027); // and another day on
    EXPECT_EQ(Clock::Date(), year(2027) / 1 / 3);
}

TEST(FixedClock, GivesWayToTheClockBeforeIt) {
    const FixedClock outer(year(1900) / 1 / 1);
    {
        const FixedClock inner(year(2026) / 11 / 16);
        EXPECT_EQ(Clock::Year(), 2026);
    }
    EXPECT_EQ(Clock::Date(), year(1900) / 1 / 1);
}

year_month_day LocalDate() {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return {year(local.tm_year + 1900), month(static_cast<unsigned>(local.tm_mon + 1)),
            day(static_cast<unsigned>(local.tm_mday))};
}

TEST(Clock, IsTheSystemClockAgainWhenAFixedOneIsGone) {
    { const FixedClock clock(year(1900) / 1 / 1); }
    const year_month_day before = LocalDate();
    const year_month_day shown = Clock::Date();
    const year_month_day after = LocalDate();
    EXPECT_TRUE(before <= shown && shown <= after);
}

/// Sets the time zone of the process for as long as it lives.
class TimeZone {
public:
    explicit TimeZone(const char *zone) {
        if (const char *old = std::getenv("TZ"))
            old_ = old;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone() {
        if (old_.empty())
            unsetenv("TZ");
        else
            setenv("TZ", old_.c_str(), 1);
        tzset();
    }
    TimeZone(const TimeZone &) = delete;
    TimeZone &operator=(const TimeZone &) = delete;

private:
    std::string old_;
};

year_month_day DateIn(const char *zone) {
    const TimeZone there(zone);
    return Clock::Date();
}

TEST(Clock, ShowsTheLocalDate) {
    // 26 hours lie between these two zones, so they never share a date.
    const sys_days west = DateIn("WEST12");
    const sys_days east = DateIn("EAST-14");
    EXPECT_GE(east - west, days(1));
    EXPECT_LE(east - west, days(2));
}

} // namespace
} // namespace modReadings
