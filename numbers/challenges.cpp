#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/digit_walk.h"
#include "numbers/readings.h"

namespace modReadings {

namespace {

// A gap of 9 comes only from a month in another language. It has neither line nor
// reading, and both slots keep what they hold.
void AssignChallenge(std::u16string_view ordinal, int16 value, std::u16string &label,
                     std::u16string &text) {
    if (value <= 8)
        label = std::u16string(ordinal) + u" Challenge Number is " + DecimalText(value);
    SelectReading(text, value, readings::challenge.rows);
}

} // namespace

void CalcChallenges() {
    const int16 day = Fold(WalkDigits(profile.BirthDay)); // one fold is enough for any day
    const int16 month = EnglishMonthValue(profile.BirthMonth);
    const int16 year = Fold(Fold(WalkDigits(profile.BirthYear)));

    const int16 first = Absolute(Subtract(month, day));
    const int16 second = Absolute(Subtract(year, day));
    const int16 third = Absolute(Subtract(first, second));
    const int16 fourth = Absolute(Subtract(year, month));

    store.ChallengeNumber = DecimalText(first) + u' ' + DecimalText(second) + u' ' +
                            DecimalText(third) + u' ' + DecimalText(fourth);
    AssignChallenge(u"First", first, store.ChallengeLabel1, store.ChallengeText1);
    AssignChallenge(u"Second", second, store.ChallengeLabel2, store.ChallengeText2);
    AssignChallenge(u"Third", third, store.ChallengeLabel3, store.ChallengeText3);
    AssignChallenge(u"Fourth", fourth, store.ChallengeLabel4, store.ChallengeText4);
    store.ChallengeAbout = readings::challenge.about; // speaks of three challenges; four are made
}

} // namespace modReadings
