#pragma once

// UTF-8 for documents, of texts that come from anywhere.

#include <cstddef>
#include <string>
#include <string_view>

namespace modReadings {

/// The character of `text` at `at`, which moves behind it. What separates lines, and a tab, is a
/// blank. What a document cannot hold (control characters, characters that are none, half a
/// surrogate pair) is U+FFFD.
constexpr char32_t NextCharacter(std::u16string_view text, std::size_t &at) {
    char32_t character = text[at++];
    if (character >= 0xD800 && character < 0xDC00 && at < text.size() && text[at] >= 0xDC00 &&
        text[at] < 0xE000)
        character = 0x10000 + ((character - 0xD800) << 10) + (text[at++] - 0xDC00U);
    if (character == U'\t' || character == U'\r' || character == U'\n' || character == 0x2028 ||
        character == 0x2029)
        return U' ';
    const bool allowed = character >= 0x20 && !(character >= 0x7F && character < 0xA0) &&
                         !(character >= 0xD800 && character < 0xE000) &&
                         !(character >= 0xFDD0 && character <= 0xFDEF) &&
                         (character & 0xFFFE) != 0xFFFE;
    return allowed ? character : char32_t{0xFFFD};
}

/// Appends `character` to `out`.
constexpr void AppendUtf8(std::string &out, char32_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
        return;
    }
    const auto trail = [&](int shift) {
        out += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x800) {
        out += static_cast<char>(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            out += static_cast<char>(0xE0 | (character >> 12));
        } else {
            out += static_cast<char>(0xF0 | (character >> 18));
            trail(12);
        }
        trail(6);
    }
    trail(0);
}

} // namespace modReadings
