#include "report/html_writer.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace modReadings {

namespace {

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// ASCII that stands for itself.
constexpr bool IsPlain(char16_t unit) {
    return (unit >= 0x20) & (unit < 0x7F) & (unit != u'&') & (unit != u'<') & (unit != u'>') &
           (unit != u'"');
}

constexpr bool IsAllowed(char32_t character) {
    return character >= 0x20 && !(character >= 0x7F && character < 0xA0) &&
           !(character >= 0xD800 && character < 0xE000) &&
           !(character >= 0xFDD0 && character <= 0xFDEF) && (character & 0xFFFE) != 0xFFFE;
}

} // namespace

HtmlWriter &HtmlWriter::operator<<(int number) {
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    out_.append(digits, end);
    return *this;
}

void HtmlWriter::PutCharacter(char32_t character) {
    if (character == U'\t' || character == U'\r' || character == U'\n')
        character = U' ';
    if (!IsAllowed(character))
        character = 0xFFFD;
    if (character < 0x80) {
        switch (character) {
        case U'&':
            out_ += "&amp;";
            return;
        case U'<':
            out_ += "&lt;";
            return;
        case U'>':
            out_ += "&gt;";
            return;
        case U'"':
            out_ += "&quot;";
            return;
        default:
            out_ += static_cast<char>(character);
            return;
        }
    }
    const auto trail = [&](int shift) {
        out_ += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x800) {
        out_ += static_cast<char>(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            out_ += static_cast<char>(0xE0 | (character >> 12));
        } else {
            out_ += static_cast<char>(0xF0 | (character >> 18));
            trail(12);
        }
        trail(6);
    }
    trail(0);
}

HtmlWriter &HtmlWriter::operator<<(std::u16string_view text) {
    // Nearly all of a report is plain ASCII: blocks of it are narrowed at once.
    constexpr std::size_t block = 16;
    std::size_t at = 0;
    while (at < text.size()) {
        if (text.size() - at >= block) {
            char narrow[block];
            bool plain = true;
            for (std::size_t index = 0; index < block; ++index) {
                const char16_t unit = text[at + index];
                plain &= IsPlain(unit);
                narrow[index] = static_cast<char>(unit);
            }
            if (plain) {
                out_.append(narrow, block);
                at += block;
                continue;
            }
        }
        const std::size_t end = std::min(text.size(), at + block);
        while (at < end) {
            const char16_t unit = text[at++];
            if (IsHighSurrogate(unit) && at < text.size() && IsLowSurrogate(text[at])) {
                const char16_t low = text[at++];
                PutCharacter(0x10000U + ((static_cast<char32_t>(unit) - 0xD800U) << 10) +
                             (static_cast<char32_t>(low) - 0xDC00U));
            } else {
                PutCharacter(unit);
            }
        }
    }
    return *this;
}

} // namespace modReadings
