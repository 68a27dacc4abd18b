#pragma once

// The character that decides on the Hidden Passion, for those who show it.

#include <cstddef>
#include <string_view>

namespace modReadings {

struct FrequentCharacter {
    char16_t character = 0;
    std::ptrdiff_t count = 0; ///< 0 only for the empty name
};

/// The character that occurs most often in `name`, whatever character it is; of those that
/// occur equally often the one that comes first.
FrequentCharacter MostFrequentCharacter(std::u16string_view name);

} // namespace modReadings
