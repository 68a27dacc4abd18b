#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
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
    else
        TraceLeft(u"its line", label);
    SelectReading(text, value, readings::challenge.rows);
}

} // namespace

void CalcChallenges() {
    // One fold is enough for any day.
    const int16 day = Traced(u"day of birth", Fold(WalkDigits(profile.BirthDay)));
    const int16 month = Traced(u"month of birth", EnglishMonthValue(profile.BirthMonth));
    const int16 year = Traced(u"year of birth", Fold(Fold(WalkDigits(profile.BirthYear))));

    const int16 first = Traced(u"first challenge", Gap(month, day));
    const int16 second = Traced(u"second challenge", Gap(year, day));
    const int16 third = Traced(u"third challenge", Gap(first, second));
    const int16 fourth = Traced(u"fourth challenge", Gap(year, month));

    store.ChallengeNumber = DecimalText(first) + u' ' + DecimalText(second) + u' ' +
                            DecimalText(third) + u' ' + DecimalText(fourth);
    AssignChallenge(u"First", first, store.ChallengeLabel1, store.ChallengeText1);
    AssignChallenge(u"Second", second, store.ChallengeLabel2, store.ChallengeText2);
    AssignChallenge(u"Third", third, store.ChallengeLabel3, store.ChallengeText3);
    AssignChallenge(u"Fourth", fourth, store.ChallengeLabel4, store.ChallengeText4);
    store.ChallengeAbout = readings::challenge.about; // speaks of three challenges; four are made
}

} // namespace modReadings
