#pragma once

// What the formats of a document share: UTF-16 taken apart, UTF-8 put together, and what no
// document may hold.

#include <cstddef>
#include <string_view>

namespace modReadings {

/// The character of `text` at `at`, which is less than its size and moves behind the character.
/// Half a surrogate pair stays what it is.
constexpr char32_t DecodeUtf16(std::u16string_view text, std::size_t &at) {
    const char32_t unit = text[at++];
    if (unit < 0xD800 || unit >= 0xDC00 || at == text.size() || text[at] < 0xDC00 ||
        text[at] >= 0xE000)
        return unit;
    return 0x10000U + ((unit - 0xD800U) << 10) + (char32_t{text[at++]} - 0xDC00U);
}

/// False for control characters, halves of surrogate pairs, and what is no character. U+FFFD
/// stands in their place.
constexpr bool MayStandInDocument(char32_t character) {
    return character >= 0x20 && !(character >= 0x7F && character < 0xA0) &&
           !(character >= 0xD800 && character < 0xE000) &&
           !(character >= 0xFDD0 && character <= 0xFDEF) && (character & 0xFFFE) != 0xFFFE;
}

/// Calls `put` with each byte of `character`.
template <typename Put> constexpr void EncodeUtf8(char32_t character, Put put) {
    const auto trail = [&](int shift) {
        put(static_cast<char>(0x80 | ((character >> shift) & 0x3F)));
    };
    if (character < 0x80) {
        put(static_cast<char>(character));
    } else if (character < 0x800) {
        put(static_cast<char>(0xC0 | (character >> 6)));
        trail(0);
    } else if (character < 0x10000) {
        put(static_cast<char>(0xE0 | (character >> 12)));
        trail(6);
        trail(0);
    } else {
        put(static_cast<char>(0xF0 | (character >> 18)));
        trail(12);
        trail(6);
        trail(0);
    }
}

} // namespace modReadings
