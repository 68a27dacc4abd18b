#include "report/html_writer.h"

#include "report/utf8.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

namespace modReadings {

namespace {

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
    // As whole numbers: clang 14 ends itself over a vector that is compared with a char16_t.
    constexpr int ampersand = u'&';
    constexpr int less = u'<';
    constexpr int greater = u'>';
    constexpr int quotationMark = u'"';
    return (units < 0x20) | (units > 0x7E) | (units == ampersand) | (units == less) |
           (units == greater) | (units == quotationMark);
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
    constexpr std::size_t first = std::size_t{160} * 1024; // more than most documents have
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

void HtmlWriter::PutCharacter(char32_t character, std::string_view newLine) {
    switch (character) {
    case U'\r':
        return; // a line break ends in "\n"
    case U'\n':
        *this << newLine;
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
    if (!MayStandInDocument(character))
        character = 0xFFFD;
    PutUtf8(character, [this](char byte) { *this << byte; });
}

void HtmlWriter::Put(std::u16string_view text, std::string_view newLine) {
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
            if (StandsForItself(text[at])) {
                // there is room for all that is left
                out_[used_++] = static_cast<char>(text[at++]);
                continue;
            }
            const char32_t character = TakeCharacter(text, at);
            PutCharacter(character, newLine);
            Reserve(text.size() - at);
        }
    }
}

} // namespace modReadings
