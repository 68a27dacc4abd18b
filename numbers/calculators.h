#pragma once

// The 22 calculators, one per topic.
//
// A calculator takes nothing and returns nothing: it reads the profile (and some the
// slots of others), works out its number, chooses the reading and leaves number, text
// and About in its slots of the store. A number without a row leaves the text as it
// was, which is how an earlier person's text can stand beside a new number. Where a
// conversion or an overflow fails, RuntimeFailure leaves the calculator at once and
// what it has written stays.

namespace modReadings {

// From the whole name and the birth date.

/// 1 to 9, 11 or 22 from day, month and year. Writes all its slots after the last
/// conversion that can fail.
void CalcLifePath();

/// The total of the whole name, reduced: 1 to 9, 11, 22, or 0 without a letter. Leaves
/// ScratchLetter on the last character walked. Fails on a total or length over int16.
void CalcDestiny();

/// As CalcDestiny, over the vowels; Y counts only in a name without any other vowel.
void CalcSoulUrge();

/// As CalcDestiny, over the consonants; Y always counts.
void CalcInnerDreams();

/// The reading of the day of birth, 1 to 31, unreduced. Fails on a day that is no number.
void CalcBirthday();

/// The values 1 to 9 that no letter of the name stands for, and a reading for each.
void CalcKarmicLessons();

/// The chart value of the most frequent character of the name. A winner without a value
/// leaves number and reading to the run before.
void CalcHiddenPassion();

// From the birth date and the clock.

/// 1 to 9, as text. Fails on a birth year with a character that is no digit, though the
/// year does not enter the result.
void CalcPersonalYear();

/// 1 to 9 for the current month.
void CalcPersonalMonth();

/// 1 to 9 for the current day.
void CalcPersonalDay();

/// The three periods of a life, with the index of the one now running. A negative age
/// leaves the index alone.
void CalcLifePathPeriods();

/// Four pinnacles, 1 to 9, 11 or 22, each with a line of ages and a reading.
void CalcPinnacles();

/// Four challenges, 0 to 8 (9 has no row and can only come from an unknown month name).
void CalcChallenges();

/// 0 to 9 from the letters in force at the present age. Does not return for a positive
/// age and a name without a letter of its chart: the walk has no guard, on purpose.
void CalcEssence();

// From other results, or from parts of the name.

/// 13, 14, 16, 19 or 0: the last of five sources whose raw value is one of the four.
void CalcKarmicDebt();

/// 0 to 9 from the three initials.
void CalcBalance();

/// How many of the values 1 to 9 the name holds, 0 to 9.
void CalcSubconsciousSelf();

/// 0 to 9, 11 or 22 from the first name and the day of birth.
void CalcRationalThought();

/// The gap between Soul Urge and Inner Dreams, reduced to 0 to 9.
void CalcHPBridge();

/// The gap between Life Path and Destiny, reduced to 0 to 9.
void CalcLEBridge();

/// Life Path plus Destiny, reduced to 1 to 9 or 11. Refuses while either is 0.
void CalcRealization();

/// The shares of the four planes in the name, rated, and the plane that dominates.
/// Fails on an empty name and on more than 327 letters of one plane.
void CalcPlanes();

} // namespace modReadings
