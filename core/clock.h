#pragma once

// The local clock. Year, month and day are separate calls, and each reads the time at the
// moment of the call: around midnight they can belong to different days. Everything that
// depends on today asks here. A test, or the report tool's --today, can put another clock
// in place.

#include "core/int16.h"

#include <chrono>

namespace modReadings {

class Clock {
public:
    virtual ~Clock() = default;

    static int16 Year();  ///< full year, such as 2026
    static int16 Month(); ///< 1 to 12
    static int16 Day();   ///< 1 to 31

    /// The whole date, for uses that need one consistent day.
    static std::chrono::year_month_day Date();

protected:
    /// The date that this clock shows now.
    virtual std::chrono::year_month_day Now() const = 0;

    /// Puts `clock` in place of the present one, which is returned; nullptr stands for the
    /// system clock. The clock must live until it is replaced.
    static const Clock *Install(const Clock *clock);
};

/// A clock that stands still on one date for as long as it lives, then gives way to the
/// clock before it.
class FixedClock final : public Clock {
public:
    explicit FixedClock(std::chrono::year_month_day date) : date_(date), before_(Install(this)) {}
    ~FixedClock() override { Install(before_); }
    FixedClock(const FixedClock &) = delete;
    FixedClock &operator=(const FixedClock &) = delete;

    /// Moves the clock to another date.
    void Set(std::chrono::year_month_day date) { date_ = date; }

    /// Moves the clock by whole days, backwards with a negative number.
    void Advance(int days) { date_ = std::chrono::sys_days(date_) + std::chrono::days(days); }

private:
    std::chrono::year_month_day Now() const override { return date_; }

    std::chrono::year_month_day date_;
    const Clock *const before_;
};

} // namespace modReadings
