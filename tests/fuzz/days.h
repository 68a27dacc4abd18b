#pragma once

// The day on which a person is read, and how long that takes.

#include "core/runtime_failure.h"
#include "core/text.h"
#include "core/user_profile.h"

#include <algorithm>
#include <chrono>
#include <string_view>

/// A day of the years 1 to 9999, at most the `last` of its month, for any text; "2026-11-21" is
/// that day.
inline std::chrono::year_month_day DayFrom(std::string_view text, unsigned last) {
    const auto number = [&](std::size_t at, std::size_t count) {
        unsigned value = 0;
        for (const char digit : text.substr(std::min(at, text.size()), count))
            value = value * 10 + static_cast<unsigned char>(digit) % 16 % 10;
        return value;
    };
    return std::chrono::year(static_cast<int>(std::max(number(0, 4), 1U))) /
           std::chrono::month(std::clamp(number(5, 2), 1U, 12U)) /
           std::chrono::day(std::clamp(number(8, 2), 1U, last));
}

/// Whether a person is read soon on this day. The Essence goes through a name again and again until
/// the age is reached: where a name has a single letter, of the value 1, it looks at age times
/// length characters. A document asks for it for nine years, an explanation writes down each look.
/// With 200,000 of them, such as 400 characters and 500 years, all of that takes about a second
/// with the sanitizers.
inline bool IsReadSoon(const modReadings::UserProfile &person, std::chrono::year_month_day day) {
    constexpr std::size_t mostLooks = 200'000;
    const std::size_t length =
        person.FirstName.size() + person.MiddleName.size() + person.LastName.size();
    std::size_t age = 0;
    try {
        const int born = modReadings::NumberFromText(modReadings::TrimBlanks(person.BirthYear));
        age = static_cast<std::size_t>(std::max(static_cast<int>(day.year()) - born, 0));
    } catch (const modReadings::RuntimeFailure &) { // no year, no age
    }
    return age * length <= mostLooks;
}
