#pragma once

// A document of any person, for the targets that read documents back: first, middle and last
// name, month, day and year of birth and the day of the reading, with "|" between them.

#include "report/document.h"
#include "report/person.h"
#include "tests/fuzz/days.h"
#include "tests/fuzz/fuzz.h"
#include "tools/people.h"
#include "tools/refusal.h"

#include "core/clock.h"

#include <algorithm>
#include <optional>

/// The document, or nothing for a person whom the report tool refuses or who would take long.
inline std::optional<modReadings::Document> DocumentOf(std::string_view bytes) {
    std::vector<std::string_view> parts = Pieces(bytes.substr(0, 2000), '|');
    parts.resize(7);
    const auto text = [&](std::size_t index) {
        return QStringView(AnyUnits(parts[index])).toString();
    };
    const std::chrono::year_month_day day = DayFrom(parts[6], 28);
    const modReadings::FixedClock clock{day};
    try {
        const modReadings::UserProfile person =
            CheckPerson({text(0), text(1), text(2), text(3), text(4), text(5)});
        if (!IsReadSoon(person, day))
            return std::nullopt;
        return modReadings::MakeDocument(
            person, {AnyUnits(parts[0]), AnyUnits(parts[1]), AnyUnits(parts[2])}, day);
    } catch (const Refusal &) {
        return std::nullopt;
    }
}

/// Whether a text is of printable ASCII, with single blanks between words.
template <typename Text> bool IsShownAsItStands(Text text) {
    bool behindBlank = true; // the beginning counts as one, and so does the end
    for (const auto unit : text) {
        if (unit < 0x20 || unit > 0x7E || (unit == ' ' && behindBlank))
            return false;
        behindBlank = unit == ' ';
    }
    return text.empty() || !behindBlank;
}

/// What a document shows of a text: every kind of blank is a blank, and stretches of them are
/// one, as every reader shows them; what no document can hold is U+FFFD.
inline std::string Shown(std::u16string_view text) {
    if (IsShownAsItStands(text))
        return {text.begin(), text.end()};
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
inline std::string Shown(std::string_view text) {
    return IsShownAsItStands(text) ? std::string(text) : Shown(AnyUnits(text));
}
