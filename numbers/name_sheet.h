#pragma once

// The whole name letter by letter, as Destiny, Soul Urge and Inner Dreams count it: what a
// practitioner writes down first, and what a picture of the name draws. All of it is what these
// three calculators tell of their work (core/trace.h).

#include "core/trace.h"
#include "core/user_profile.h"

#include <vector>

namespace modReadings {

/// On which side a letter counts. Destiny counts every letter but those that are not counted.
enum class LetterKind {
    Vowel,     ///< A, E, I, O, U: in the Soul Urge
    Consonant, ///< every other letter, Y among them: in the Inner Dreams
    YAsVowel,  ///< Y of a name without a vowel: in the Soul Urge and in the Inner Dreams
    NotCounted ///< without a value: a blank, a hyphen, a digit, a letter with an accent
};

struct NameLetter {
    NamePart part;
    char16_t character; ///< one UTF-16 unit; those beyond U+FFFF are two, neither counted
    int16 value;        ///< 1 to 9, or 0 where it is not counted
    LetterKind kind;

    friend bool operator==(const NameLetter &, const NameLetter &) = default;
};

/// A sum over letters and how it reduces to a number of the report.
struct NameSum {
    int16 raw;                      ///< the sum of the values
    std::vector<Trace::Step> steps; ///< from the sum to the number; none for a sum up to 9
    int16 number;                   ///< 1 to 9, 11 or 22; 0 where no letter counts
};

struct NameSheet {
    std::vector<NameLetter> letters; ///< of the first, the middle and the last name
    NameSum destiny;                 ///< over all letters
    NameSum soulUrge;                ///< over the vowels, or over every Y where there are none
    NameSum innerDreams;             ///< over the consonants
};

/// The sheet of the present profile. Runs the three calculators, which leave what a pass over
/// that profile has left. The letters are empty for a name that is too long for its sums, which
/// no program but the window reads.
NameSheet ReadNameSheet();

} // namespace modReadings
