#pragma once

// Years of age as the lines of periods and pinnacles name them.

#include "core/int16.h"

#include <limits>
#include <string_view>

namespace modReadings {

/// From one age to another, both included.
struct Ages {
    static constexpr int16 open = std::numeric_limits<int16>::max();

    int16 from = 0;
    int16 to = open; ///< `open` where no end is named

    constexpr bool Hold(int16 age) const { return age >= from && age <= to; }
    constexpr bool IsOpen() const { return to == open; }

    friend constexpr bool operator==(const Ages &, const Ages &) = default;
};

/// The ages that a line names behind the word "age", such as 36 to 44 in "Second Pinnacle from
/// age 36-44 is ". A line that names only one has no end. The line has to have the word.
constexpr Ages AgesNamedIn(std::u16string_view line) {
    constexpr std::u16string_view word = u"age ";
    std::size_t at = line.find(word) + word.size();
    const auto number = [&] {
        int16 value = 0;
        for (; at < line.size() && line[at] >= u'0' && line[at] <= u'9'; ++at)
            value = static_cast<int16>(value * 10 + line[at] - u'0');
        return value;
    };
    Ages ages{number()};
    while (at < line.size() && (line[at] == u' ' || line[at] == u'-'))
        ++at;
    if (at < line.size() && line[at] >= u'0' && line[at] <= u'9')
        ages.to = number();
    return ages;
}

} // namespace modReadings
