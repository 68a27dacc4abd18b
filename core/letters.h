#pragma once

// The Pythagorean letter chart, the only copy of it, and the sums over a name.
// Only the capitals A to Z have a value; every other character counts 0.

#include "core/int16.h"
#include "core/tracing.h"

#include <array>
#include <bitset>
#include <string_view>

namespace modReadings {

/// The letters of the values 1 to 9, in this order.
inline constexpr std::array<std::u16string_view, 9> letterChart{
    u"JAS", u"KBT", u"LCU", u"MDV", u"NEW", u"OFX", u"PGY", u"QHZ", u"RI"};

namespace detail {
consteval std::array<int16, 26> ValuesByLetter() {
    std::array<int16, 26> values{};
    for (std::size_t row = 0; row < letterChart.size(); ++row)
        for (const char16_t letter : letterChart[row])
            values[static_cast<std::size_t>(letter - u'A')] = static_cast<int16>(row + 1);
    return values;
}
inline constexpr std::array<int16, 26> valuesByLetter = ValuesByLetter();
} // namespace detail

/// The chart value of one character: 1 to 9, or 0 for anything but a capital A to Z.
constexpr int16 ChartValue(char16_t character) {
    if (character < u'A' || character > u'Z')
        return 0;
    return detail::valuesByLetter[static_cast<std::size_t>(character - u'A')];
}

/// The chart value of a text that is one letter: 1 to 9. Gives 0 for the empty text,
/// for more than one character and for any character without a value. Never fails.
constexpr int16 LetterValue(std::u16string_view letter) {
    if (letter.size() != 1)
        return 0;
    const int16 value = ChartValue(letter.front());
    TraceLetter(letter.front(), value, true, value);
    return value;
}

/// Which of the values 1 to 9 the characters of `name` have, however often: bit 5 is set
/// when one has the value 5. Bit 0 is set when a character has no value. Never fails.
inline std::bitset<10> PresentValues(std::u16string_view name) {
    std::bitset<10> present;
    for (const char16_t character : name) {
        const int16 value = ChartValue(character);
        present.set(static_cast<std::size_t>(value));
        TraceLetter(character, value, true, value);
    }
    return present;
}

/// The sum of the chart values of all characters of `name`. Throws RuntimeFailure when
/// it leaves the int16 range.
constexpr int16 NameLetterSum(std::u16string_view name) {
    int16 sum = 0;
    for (const char16_t character : name) {
        const int16 value = ChartValue(character);
        sum = Add(sum, value);
        TraceLetter(character, value, true, sum);
    }
    return sum;
}

} // namespace modReadings
