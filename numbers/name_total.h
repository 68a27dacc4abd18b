#pragma once

// The rule that Destiny, Soul Urge and Inner Dreams share: total the chart values of the
// letters that a filter admits, keep that total as the raw value, reduce it once. The
// three differ in their letters alone, and in the second pass of Soul Urge.

#include "core/int16.h"
#include "numbers/readings.h"

#include <string>
#include <string_view>

namespace modReadings {

/// Whether a letter counts; no more than that, a filter writes nothing.
using LetterFilter = bool (*)(char16_t);

/// A, E, I, O or U. Y is none here.
constexpr bool IsVowel(char16_t letter) {
    return std::u16string_view(u"AEIOU").find(letter) != std::u16string_view::npos;
}

/// Walks `text` and adds the value of each letter that `admits` to ScratchSum. Leaves
/// ScratchLetter on the last character and ScratchIndex on its position, counted from 1;
/// an empty text leaves ScratchLetter as it was and ScratchIndex on 0. Throws RuntimeFailure on a
/// total or a length beyond int16, in the latter case before the first character.
void WalkLetters(std::u16string_view text, LetterFilter admits);

/// The slots of one of the three topics, and its prose.
struct NameTotalEntry {
    int16 &number;
    int16 &raw;
    std::u16string &text;
    std::u16string &about;
    const Prose &prose;
};

/// What a trace calls the total and the number.
inline constexpr const char16_t *nameTotalLabel = u"sum of the letters";
inline constexpr const char16_t *nameNumberLabel = u"number";

/// Takes ScratchSum as the finished total: writes raw value, number, reading and About.
/// ScratchSum is left reduced.
void StoreNameTotal(const NameTotalEntry &entry);

} // namespace modReadings
