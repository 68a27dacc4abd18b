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

/// 1 to 9, 11 or 22 from a date of the lists; 0, without a reading, where none of the
/// three counts anything, as with texts that are empty. Fails on a character of day or
/// year that is no digit and on a digit sum over int16, before it writes anything.
void CalcLifePath();

/// The total of the whole name, reduced: 1 to 9, 11, 22, or 0 without a letter, which has
/// no reading. Leaves ScratchLetter on the last character walked. Fails on a total over
/// int16, or on the length of one of the three names, with only scratch slots written.
void CalcDestiny();

/// As CalcDestiny, over the vowels; Y counts only in a name without any other vowel. The
/// length that can fail is that of the whole name.
void CalcSoulUrge();

/// As CalcDestiny, over the consonants; Y always counts. The length that can fail is that
/// of the whole name.
void CalcInnerDreams();

/// The reading of the day of birth, 1 to 31, unreduced; another number has none. Fails on
/// a day that is no number, before it writes anything.
void CalcBirthday();

/// The values 1 to 9 that no letter of the name stands for, and a reading for each; both
/// slots are empty where none is missing. Fails on a length over int16, and has then
/// emptied the two and left the About.
void CalcKarmicLessons();

/// The chart value of the most frequent character of the name. A winner without a value
/// leaves number and reading to the run before. Fails on a length over int16, before it
/// writes anything.
void CalcHiddenPassion();

// From the birth date and the clock.

/// 1 to 9, as text. Fails on a character of the birth day that is no digit, and on one of
/// the birth year too, though the year does not enter the result; only ScratchIndex is
/// written then.
void CalcPersonalYear();

/// 1 to 9 for the current month. Fails on a character of the birth day that is no digit,
/// before it writes anything.
void CalcPersonalMonth();

/// 1 to 9 for the current day. Fails as CalcPersonalMonth does.
void CalcPersonalDay();

/// The three periods of a life, each with a number from 0 to 9, and the index of the one
/// now running, 1 to 3. A negative age leaves the index alone. Fails on a character of the
/// birth day that is no digit, when PeriodNumber1 is written, and on one of the year, when
/// PeriodNumber2 is written too. Fails on a year that is empty or over int16, when all
/// three numbers and the three stages are written.
void CalcLifePathPeriods();

/// Four pinnacles, 1 to 9, 11 or 22, each with a line of ages and a reading. A 0, which
/// no date of the lists makes, has neither and leaves both alone. Fails on a day or year
/// that is no number, before it writes anything. Where the sum of one pinnacle is over
/// int16 or below 0, the numbers of the pinnacles before it are already written, and
/// everything else is as it was.
void CalcPinnacles();

/// Four challenges, 0 to 8, each with a line and a reading. A value above 8, which takes an
/// unknown month name or a text that no list offers, has neither and leaves both alone.
/// Fails on a character of day or year that is no digit, with only ScratchIndex written.
void CalcChallenges();

/// 0 to 9 from the letters in force at the present age. 0 has no reading; it comes before
/// birth, and in the year of birth where no letter of the name counts.
/// Fails on a birth year that is no number, or that makes an age over int16, before it
/// writes anything. Does not return for a positive age and a name without a letter of its
/// chart: the walk has no guard, on purpose.
void CalcEssence();

// From other results, or from parts of the name.

/// 13, 14, 16, 19 or 0: the last of five sources whose raw value is one of the four. Fails
/// on a birth day that is no number, before it writes anything.
void CalcKarmicDebt();

/// 0 to 9 from the three initials; 0 has no reading. Never fails.
void CalcBalance();

/// How many of the values 1 to 9 the name holds, 0 to 9. Never fails.
void CalcSubconsciousSelf();

/// 1 to 9, 11 or 22 from the first name and the day of birth; 0, where neither counts
/// anything, empties the text. Fails on a character of the day that is no digit and on a
/// total over int16, before it writes anything.
void CalcRationalThought();

/// The gap between Soul Urge and Inner Dreams, as they stand in the store, reduced to 0 to 9. 9 has
/// no reading and leaves the text alone. Never fails.
void CalcHPBridge();

/// The same of Life Path and Destiny.
void CalcLEBridge();

/// Life Path plus Destiny, reduced to 1 to 9 or 11. Refuses while either is 0, and
/// then leaves number and About alone.
void CalcRealization();

/// The shares of the four planes in the name, rated, and the plane that dominates.
/// Fails on an empty name and on a length over int16; the four labels are written then.
/// Fails on more than 327 letters of one plane; the shares of the planes before that one
/// are written then too.
void CalcPlanes();

} // namespace modReadings
