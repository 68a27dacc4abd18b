#include "core/digits.h"
#include "core/letters.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcRationalThought() {
    const int16 day = Traced(u"day of birth", ReduceDigitString(TrimBlanks(profile.BirthDay)));
    const int16 name = Traced(u"first name", NameLetterSum(TrimBlanks(profile.FirstName)));
    int16 total = Total(day, name);
    const int16 number = Traced(u"Rational Thought Number", ReduceKeepMaster(total));

    // Unlike in other topics a number without a row empties the text.
    std::u16string text;
    SelectReading(text, number, readings::rationalThought.rows);
    store.RationalThoughtNumber = number;
    store.RationalThoughtText = text;
    store.RationalThoughtAbout = readings::rationalThought.about;
}

} // namespace modReadings
