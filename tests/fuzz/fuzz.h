#pragma once

// What the fuzz targets share. A target takes any bytes and makes an input of them, has the
// program work on it, and holds the result against a property that has to hold for every input.
// Where it does not, the process ends, and the bytes are the finding.
//
// Each target is a source of its own that registers itself. With clang it becomes a program of
// libFuzzer, which looks for new inputs; everywhere else replay.cpp gives it the inputs of the
// corpus.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// Makes `run` known by its name, which is also that of its corpus and its dictionary.
class FuzzTarget {
public:
    FuzzTarget(const char *name, void (*run)(std::string_view)) : name_(name), run_(run) {
        All().push_back(*this);
    }

    std::string_view Name() const { return name_; }
    void Run(std::string_view bytes) const { run_(bytes); }

    static std::vector<FuzzTarget> &All() {
        static std::vector<FuzzTarget> all;
        return all;
    }

private:
    std::string_view name_;
    void (*run_)(std::string_view);
};

/// Whether a target also does what takes much longer than the rest: with libFuzzer it does so for
/// one input in four, and what takes longest for one in four of these. Replayed inputs get it all.
inline bool isThorough = true;
inline bool isExhaustive = true;

/// Ends the process unless `holds`. `what` is the property, `shown` what stands against it.
inline void Require(bool holds, const char *what, std::string_view shown = {}) {
    if (holds)
        return;
    const std::string beginning(shown.substr(0, 2000));
    std::fprintf(stderr, "DOES NOT HOLD: %s\n%s\n", what, beginning.c_str());
    std::abort();
}

/// `bytes` cut at each `separator`; one more piece than there are separators.
inline std::vector<std::string_view> Pieces(std::string_view bytes, char separator) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const std::size_t end = bytes.find(separator);
        pieces.push_back(bytes.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        bytes.remove_prefix(end + 1);
    }
}

/// The stretch of ASCII that `text` begins with; empty where it begins with something else.
template <typename Text> Text AsciiAtTheBeginning(Text text) {
    std::size_t end = 0;
    while (end < text.size() &&
           static_cast<std::make_unsigned_t<typename Text::value_type>>(text[end]) < 0x80)
        ++end;
    return text.substr(0, end);
}

/// A text of any UTF-16 units, so that an input can be read as UTF-8 where it is: halves of
/// surrogate pairs can be spelled as if they were characters, and a byte that begins no
/// character is the unit of its number.
inline std::u16string AnyUnits(std::string_view bytes) {
    std::u16string units;
    units.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        if (const auto ascii = AsciiAtTheBeginning(bytes.substr(at)); !ascii.empty()) {
            units.append(ascii.begin(), ascii.end());
            at += ascii.size();
            continue;
        }
        const auto byte = [&](std::size_t offset) -> unsigned {
            return at + offset < bytes.size() ? static_cast<unsigned char>(bytes[at + offset]) : 0U;
        };
        const auto follows = [&](std::size_t count) {
            for (std::size_t offset = 1; offset <= count; ++offset)
                if ((byte(offset) & 0xC0U) != 0x80U)
                    return false;
            return true;
        };
        const unsigned first = byte(0);
        if (first >= 0xC2 && first < 0xE0 && follows(1)) {
            units += static_cast<char16_t>((first & 0x1FU) << 6 | (byte(1) & 0x3FU));
            at += 2;
        } else if (first >= 0xE0 && first < 0xF0 && follows(2)) {
            units += static_cast<char16_t>((first & 0xFU) << 12 | (byte(1) & 0x3FU) << 6 |
                                           (byte(2) & 0x3FU));
            at += 3;
        } else if (first >= 0xF0 && first < 0xF5 && follows(3)) {
            const unsigned character = (first & 0x7U) << 18 | (byte(1) & 0x3FU) << 12 |
                                       (byte(2) & 0x3FU) << 6 | (byte(3) & 0x3FU);
            if (character < 0x10000 || character > 0x10FFFF) {
                units += static_cast<char16_t>(first);
                ++at;
                continue;
            }
            units += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
            at += 4;
        } else {
            units += static_cast<char16_t>(first);
            ++at;
        }
    }
    return units;
}

/// Whether a surrogate stands at `index` of `text` without its partner.
inline bool IsLoneSurrogate(std::u16string_view text, std::size_t index) {
    const auto high = [&](std::size_t at) {
        return at < text.size() && text[at] >= 0xD800 && text[at] < 0xDC00;
    };
    const auto low = [&](std::size_t at) {
        return at < text.size() && text[at] >= 0xDC00 && text[at] < 0xE000;
    };
    return high(index) ? !low(index + 1) : low(index) && (index == 0 || !high(index - 1));
}

/// `text` in UTF-8; a surrogate without its partner becomes U+FFFD. The program's own way is
/// what is tried, so this one is the targets' own.
inline std::string Utf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (const auto ascii = AsciiAtTheBeginning(text.substr(index)); !ascii.empty()) {
            bytes.append(ascii.begin(), ascii.end());
            index += ascii.size() - 1;
            continue;
        }
        char32_t character = text[index];
        if (IsLoneSurrogate(text, index))
            character = 0xFFFD;
        else if (character >= 0xD800 && character < 0xDC00)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++index] - 0xDC00U);
        const auto put = [&](char32_t byte) { bytes += static_cast<char>(byte); };
        if (character < 0x800) {
            put(0xC0 | character >> 6);
            put(0x80 | (character & 0x3F));
        } else if (character < 0x10000) {
            put(0xE0 | character >> 12);
            put(0x80 | (character >> 6 & 0x3F));
            put(0x80 | (character & 0x3F));
        } else {
            put(0xF0 | character >> 18);
            put(0x80 | (character >> 12 & 0x3F));
            put(0x80 | (character >> 6 & 0x3F));
            put(0x80 | (character & 0x3F));
        }
    }
    return bytes;
}

/// Whether `bytes` are UTF-8: nothing cut short, nothing longer than it need be, no surrogate.
inline bool IsUtf8(std::string_view bytes) {
    for (;;) {
        bytes.remove_prefix(AsciiAtTheBeginning(bytes).size());
        if (bytes.empty())
            return true;
        std::size_t end = 1;
        while (end < bytes.size() && static_cast<unsigned char>(bytes[end]) >= 0x80)
            ++end;
        // What is anything else comes back as something else.
        if (Utf8(AnyUnits(bytes.substr(0, end))) != bytes.substr(0, end))
            return false;
        bytes.remove_prefix(end);
    }
}

/// Whether a terminal would only show `bytes`, which are UTF-8, and do nothing: no control
/// character, no separator of lines, no mark of direction.
inline bool IsQuiet(std::string_view bytes) {
    for (const char16_t unit : AnyUnits(bytes))
        if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x61C || unit == 0x200E ||
            unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
            (unit >= 0x2066 && unit <= 0x2069))
            return false;
    return true;
}
