#include "core/clock.h"

#include <ctime>
#include <utility>

namespace modReadings {

namespace {

class SystemClock final : public Clock {
    std::chrono::year_month_day Now() const override {
        const std::time_t now = std::time(nullptr);
        // localtime shares its result between threads; only one thread of a program asks.
        const std::tm local = *std::localtime(&now);
        return {std::chrono::year(local.tm_year + 1900),
                std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                std::chrono::day(static_cast<unsigned>(local.tm_mday))};
    }
};

const SystemClock systemClock;
const Clock *current = nullptr;

} // namespace

const Clock *Clock::Install(const Clock *clock) { return std::exchange(current, clock); }

std::chrono::year_month_day Clock::Date() {
    const Clock &clock = current != nullptr ? *current : systemClock;
    return clock.Now();
}

int16 Clock::Year() { return ToInt16(static_cast<int>(Date().year())); }

int16 Clock::Month() { return static_cast<int16>(static_cast<unsigned>(Date().month())); }

int16 Clock::Day() { return static_cast<int16>(static_cast<unsigned>(Date().day())); }

} // namespace modReadings
