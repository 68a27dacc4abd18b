#include "report/html_writer.h"

#include "report/utf8.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace modReadings {

namespace {

/// Whether a character of ASCII stands for itself.
constexpr auto standsForItself = [] {
    std::array<bool, 128> table{};
    for (std::size_t unit = 0; unit < table.size(); ++unit)
        table[unit] = unit >= 0x20 && unit <= 0x7E && unit != '&' && unit != '<' && unit != '>' &&
                      unit != '"';
    return table;
}();

constexpr bool StandsForItself(char16_t unit) {
    return unit < standsForItself.size() && standsForItself[unit];
}

// Nearly all of a report stands for itself. It is narrowed sixteen units at a time, in the
// vectors that GCC and clang have for every processor.
constexpr std::size_t blockSize = 16;
using Units [[gnu::vector_size(blockSize)]] = std::uint16_t;
using Bytes [[gnu::vector_size(blockSize)]] = std::int8_t;

/// Writes a block of `text` as bytes, and returns whether all of it stands for itself. What is
/// written has no meaning otherwise.
bool NarrowBlock(const char16_t *text, char *out) {
    using BothUnits [[gnu::vector_size(2 * blockSize)]] = std::uint16_t;
    BothUnits both;
    std::memcpy(&both, text, sizeof both);
    const Bytes bytes = __builtin_convertvector(both, Bytes);
    std::memcpy(out, &bytes, sizeof bytes);

    Units halves[2];
    std::memcpy(halves, text, sizeof halves);
    const Units beyondAscii = (halves[0] | halves[1]) & 0xFF80;
    // As numbers: clang 14 ends itself over a vector that is compared with a character. All bytes
    // beyond 0x7F are negative.
    constexpr int firstPrinted = 0x20;
    constexpr int lastOfAscii = 0x7F;
    constexpr int ampersand = '&';
    constexpr int less = '<';
    constexpr int greater = '>';
    constexpr int quotationMark = '"';
    const Bytes others = (bytes < firstPrinted) | (bytes == lastOfAscii) | (bytes == ampersand) |
                         (bytes == less) | (bytes == greater) | (bytes == quotationMark) |
                         std::bit_cast<Bytes>(beyondAscii);
    std::uint64_t lanes[2];
    std::memcpy(lanes, &others, sizeof lanes);
    return (lanes[0] | lanes[1]) == 0;
}

} // namespace

void HtmlWriter::Grow(std::size_t more) {
    constexpr std::size_t first = std::size_t{160} * 1024; // more than most documents have
    out_.resize(std::max({first, 2 * out_.size(), used_ + more}));
}

void HtmlWriter::PutCharacter(char32_t character, std::string_view newLine) {
    switch (character) {
    case U'\r':
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
    EncodeUtf8(character, [this](char byte) { *this << byte; });
}

void HtmlWriter::PutText(std::u16string_view text, std::string_view newLine) {
    std::size_t at = 0;
    while (at < text.size()) {
        Reserve(text.size() - at);
        char *out = out_.data() + used_;
        while (text.size() - at >= blockSize && NarrowBlock(text.data() + at, out)) {
            at += blockSize;
            out += blockSize;
        }
        while (at < text.size() && StandsForItself(text[at]))
            *out++ = static_cast<char>(text[at++]);
        used_ = static_cast<std::size_t>(out - out_.data());
        if (at == text.size())
            break;
        if (text.substr(at).starts_with(u"\r\n"))
            ++at; // both are one line break
        PutCharacter(DecodeUtf16(text, at), newLine);
    }
}

} // namespace modReadings
