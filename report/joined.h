#pragma once

// Texts put together of pieces: texts, and numbers in decimal.

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>
#include <string_view>

namespace modReadings {

namespace joining {

inline std::size_t MostUnitsOf(std::u16string_view text) { return text.size(); }
inline std::size_t MostUnitsOf(int) { return 11; }

inline void AppendPiece(std::u16string &text, std::u16string_view piece) { text += piece; }
/// A literal, whose length the compiler knows.
template <std::size_t size>
void AppendPiece(std::u16string &text, const char16_t (&literal)[size]) {
    text.append(literal, size - 1);
}
inline void AppendPiece(std::u16string &text, int number) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    std::for_each(digits, end, [&](char digit) { text += static_cast<char16_t>(digit); });
}

} // namespace joining

/// Appends the pieces to `text`, one behind the other.
template <typename... Pieces> void Append(std::u16string &text, const Pieces &...pieces) {
    (joining::AppendPiece(text, pieces), ...);
}

/// The pieces as one text.
template <typename... Pieces> std::u16string Joined(const Pieces &...pieces) {
    std::u16string text;
    text.reserve((joining::MostUnitsOf(pieces) + ...));
    Append(text, pieces...);
    return text;
}

} // namespace modReadings
