#pragma once

// A clock that moves while a calculator looks at it.

#include "core/clock.h"

#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace modReadings {

/// Shows another date at each look, and stays on the last.
class SteppingClock final : public Clock {
public:
    /// There is at least one date.
    explicit SteppingClock(std::vector<std::chrono::year_month_day> dates)
        : dates_(std::move(dates)), before_(Install(this)) {}
    ~SteppingClock() override { Install(before_); }
    SteppingClock(const SteppingClock &) = delete;
    SteppingClock &operator=(const SteppingClock &) = delete;

    /// From now on these dates.
    void Show(std::vector<std::chrono::year_month_day> dates) {
        dates_ = std::move(dates);
        next_ = 0;
    }

private:
    std::chrono::year_month_day Now() const override {
        return next_ + 1 < dates_.size() ? dates_[next_++] : dates_.back();
    }

    std::vector<std::chrono::year_month_day> dates_;
    mutable std::size_t next_ = 0;
    const Clock *const before_;
};

} // namespace modReadings
