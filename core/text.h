#pragma once

// Texts as the calculators see them: UTF-16 units, as the window's boxes hold them.
// A blank is U+0020 and nothing else; tabs and exotic spaces are ordinary characters.

#include "core/int16.h"

#include <string>
#include <string_view>

namespace modReadings {

/// `text` without the blanks (U+0020 only) at both ends.
constexpr std::u16string_view TrimBlanks(std::u16string_view text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

/// The number of characters of `text`. Throws RuntimeFailure beyond int16.
constexpr int16 Length(std::u16string_view text) {
    return ToInt16(static_cast<std::int64_t>(text.size()));
}

/// The number that one decimal digit stands for, 0 to 9. Throws RuntimeFailure for
/// every other character, a blank among them.
constexpr int16 DigitValue(char16_t character) {
    if (character < u'0' || character > u'9')
        throw RuntimeFailure("not a digit");
    return static_cast<int16>(character - u'0');
}

/// A whole text as a number: decimal digits with an optional sign. Throws
/// RuntimeFailure for anything else, for the empty text and outside the int16 range.
constexpr int16 NumberFromText(std::u16string_view text) {
    const bool negative = text.starts_with(u'-');
    if (negative || text.starts_with(u'+'))
        text.remove_prefix(1);
    if (text.empty())
        throw RuntimeFailure("not a number");
    std::int64_t value = 0;
    for (const char16_t character : text) {
        value = value * 10 + DigitValue(character);
        if (value > 32768) // one more than the largest int16, which a minus sign brings in range
            throw RuntimeFailure("overflow");
    }
    return ToInt16(negative ? -value : value);
}

/// `value` in decimal, without leading blank or zero.
inline std::u16string DecimalText(int16 value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

} // namespace modReadings
