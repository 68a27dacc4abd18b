#pragma once

// A document of any person, for the targets that read documents back: first, middle and last
// name, month, day and year of birth and the day of the reading, with "|" between them.

#include "report/document.h"
#include "report/person.h"
#include "tests/fuzz/fuzz.h"
#include "tools/people.h"
#include "tools/refusal.h"

#include "core/clock.h"

#include <algorithm>
#include <optional>

/// The document, or nothing for a person whom the report tool refuses.
inline std::optional<modReadings::Document> DocumentOf(std::string_view bytes) {
    std::vector<std::string_view> parts = Pieces(bytes.substr(0, 2000), '|');
    parts.resize(7);
    const auto text = [&](std::size_t index) {
        return QStringView(AnyUnits(parts[index])).toString();
    };
    const auto number = [&](std::size_t at, std::size_t count) {
        unsigned value = 0;
        for (const char digit : parts[6].substr(std::min(at, parts[6].size()), count))
            value = value * 10 + static_cast<unsigned char>(digit) % 16 % 10;
        return value;
    };
    const std::chrono::year_month_day day =
        std::chrono::year(static_cast<int>(std::max(number(0, 4), 1U))) /
        std::chrono::month(std::clamp(number(5, 2), 1U, 12U)) /
        std::chrono::day(std::clamp(number(8, 2), 1U, 28U));
    const modReadings::FixedClock clock{day};
    try {
        const modReadings::UserProfile person =
            CheckPerson({text(0), text(1), text(2), text(3), text(4), text(5)});
        return modReadings::MakeDocument(
            person, {AnyUnits(parts[0]), AnyUnits(parts[1]), AnyUnits(parts[2])}, day);
    } catch (const Refusal &) {
        return std::nullopt;
    }
}

/// What a document shows of a text: every kind of blank is a blank, and stretches of them are
/// one, as every reader shows them; what no document can hold is U+FFFD.
inline std::string Shown(std::u16string_view text) {
    std::u16string shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char16_t unit = text[at];
        if (unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n' || unit == 0x2028 ||
            unit == 0x2029)
            unit = u' ';
        else if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || IsLoneSurrogate(text, at) ||
                 (unit >= 0xFDD0 && unit <= 0xFDEF) || unit >= 0xFFFE)
            unit = 0xFFFD;
        if (unit >= 0xD800 && unit < 0xDC00 && at + 1 < text.size()) {
            const char16_t low = text[++at];
            const bool isNone = (((unit - 0xD800U) << 10 | (low - 0xDC00U)) & 0xFFFEU) == 0xFFFE;
            shown += isNone ? u"\uFFFD" : std::u16string{unit, low};
        } else if (unit != u' ' || shown.empty() || shown.back() != u' ') {
            shown += unit;
        }
    }
    const std::size_t begin = shown.find_first_not_of(u' ');
    if (begin == std::u16string::npos)
        return {};
    return Utf8(std::u16string_view(shown).substr(begin, shown.find_last_not_of(u' ') + 1 - begin));
}

/// The same for a text that is UTF-8 already.
inline std::string Shown(std::string_view text) { return Shown(AnyUnits(text)); }
