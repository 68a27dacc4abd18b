#pragma once

// The arithmetic once more, as one would do it on paper, for tests that hold the program's
// own against it.

#include <array>
#include <string>
#include <string_view>

namespace longhand {

/// The months that a date can have.
inline constexpr std::array<std::u16string_view, 12> months{
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December"};

/// The name of the month 1 to 12, and an unknown one for 0.
inline std::u16string Month(int month) {
    return month == 0 ? u"Nivose" : std::u16string(months.at(static_cast<std::size_t>(month - 1)));
}

/// A number in decimal.
inline std::u16string Decimal(int value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

/// The value of a letter, 0 for any other character.
constexpr int ValueOf(char16_t character) {
    constexpr std::string_view valuesOfAlphabet = "12345678912345678912345678"; // A to Z
    if (character < u'A' || character > u'Z')
        return 0;
    return valuesOfAlphabet[static_cast<std::size_t>(character - u'A')] - '0';
}

inline int DigitSum(int value) {
    int sum = 0;
    for (const char digit : std::to_string(value))
        sum += digit - '0';
    return sum;
}

inline int Fold(int value) {
    const std::string text = std::to_string(value);
    return text.size() == 1 ? value : (text.front() - '0') + (text.back() - '0');
}

inline int KeepMaster(int value) {
    if (value == 11 || value == 22)
        return value;
    const int sum = DigitSum(value);
    return sum == 11 || sum == 22 ? sum : Fold(Fold(sum));
}

/// What a number comes down to when its digits are added until one is left.
constexpr int DigitalRoot(int value) { return value == 0 ? 0 : 1 + (value - 1) % 9; }

} // namespace longhand
