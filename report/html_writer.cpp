#include "report/html_writer.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

namespace modReadings {

namespace {

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

constexpr bool IsAllowed(char32_t character) {
    return character >= 0x20 && !(character >= 0x7F && character < 0xA0) &&
           !(character >= 0xD800 && character < 0xE000) &&
           !(character >= 0xFDD0 && character <= 0xFDEF) && (character & 0xFFFE) != 0xFFFE;
}

// Nearly all of a report is ASCII that stands for itself, and is narrowed sixteen units at a time,
// in the vectors that GCC and clang have for every processor.
constexpr std::size_t blockSize = 16;
using Units [[gnu::vector_size(blockSize)]] = std::uint16_t;
using Bytes [[gnu::vector_size(blockSize / 2)]] = std::uint8_t;

constexpr bool StandsForItself(char16_t unit) {
    return unit >= 0x20 && unit <= 0x7E && unit != u'&' && unit != u'<' && unit != u'>' &&
           unit != u'"';
}

/// The same for a vector: a lane is 0 where the unit stands for itself.
auto Others(const Units &units) {
    return (units < 0x20) | (units > 0x7E) | (units == u'&') | (units == u'<') | (units == u'>') |
           (units == u'"');
}

/// Writes a block as bytes. Gives false, having written nothing, where one of its units does
/// not stand for itself.
bool NarrowBlock(const char16_t *text, char *out) {
    Units first;
    Units second;
    std::memcpy(&first, text, sizeof first);
    std::memcpy(&second, text + blockSize / 2, sizeof second);
    const auto others = Others(first) | Others(second);
    std::uint64_t halves[2];
    static_assert(sizeof halves == sizeof others);
    std::memcpy(halves, &others, sizeof halves);
    if ((halves[0] | halves[1]) != 0)
        return false;
    const Bytes bytes[2] = {__builtin_convertvector(first, Bytes),
                            __builtin_convertvector(second, Bytes)};
    std::memcpy(out, bytes, sizeof bytes);
    return true;
}

} // namespace

void HtmlWriter::Grow(std::size_t more) {
    constexpr std::size_t first = 160 * 1024; // more than most documents have
    out_.resize(std::max({first, 2 * out_.size(), used_ + more}));
}

std::string HtmlWriter::Take() {
    out_.resize(used_);
    return std::move(out_);
}

HtmlWriter &HtmlWriter::operator<<(int number) {
    constexpr std::size_t most = 12;
    Reserve(most);
    char *const begin = out_.data() + used_;
    used_ += static_cast<std::size_t>(std::to_chars(begin, begin + most, number).ptr - begin);
    return *this;
}

void HtmlWriter::PutCharacter(char32_t character, std::string_view lineBreak) {
    switch (character) {
    case U'\r':
        return; // a line break ends in "\n"
    case U'\n':
        *this << lineBreak;
        return;
    case U'&':
        *this << "&amp;";
        return;
    case U'<':
        *this << "&lt;";
        return;
    case U'>':
        *this << "&gt;";
        return;
    case U'"':
        *this << "&quot;";
        return;
    default:
        break;
    }
    if (character == U'\t')
        character = U' ';
    if (!IsAllowed(character))
        character = 0xFFFD;
    const auto trail = [&](int shift) {
        *this << static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        *this << static_cast<char>(character);
    } else if (character < 0x800) {
        *this << static_cast<char>(0xC0 | (character >> 6));
        trail(0);
    } else if (character < 0x10000) {
        *this << static_cast<char>(0xE0 | (character >> 12));
        trail(6);
        trail(0);
    } else {
        *this << static_cast<char>(0xF0 | (character >> 18));
        trail(12);
        trail(6);
        trail(0);
    }
}

void HtmlWriter::Put(std::u16string_view text, std::string_view lineBreak) {
    std::size_t at = 0;
    while (at < text.size()) {
        Reserve(text.size() - at);
        while (text.size() - at >= blockSize &&
               NarrowBlock(text.data() + at, out_.data() + used_)) {
            at += blockSize;
            used_ += blockSize;
        }
        const std::size_t end = std::min(text.size(), at + blockSize);
        while (at < end) {
            const char16_t unit = text[at++];
            if (StandsForItself(unit)) {
                out_[used_++] = static_cast<char>(unit); // there is room for all that is left
                continue;
            }
            char32_t character = unit;
            if (IsHighSurrogate(unit) && at < text.size() && IsLowSurrogate(text[at]))
                character = 0x10000U + ((character - 0xD800U) << 10) +
                            (static_cast<char32_t>(text[at++]) - 0xDC00U);
            PutCharacter(character, lineBreak);
            Reserve(text.size() - at);
        }
    }
}

} // namespace modReadings
