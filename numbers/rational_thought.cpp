#include "core/digits.h"
#include "core/letters.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcRationalThought() {
    const int16 day = ReduceDigitString(TrimBlanks(profile.BirthDay));
    int16 total = Add(day, NameLetterSum(TrimBlanks(profile.FirstName)));
    const int16 number = ReduceKeepMaster(total);

    // Unlike in other topics a number without a row empties the text.
    std::u16string text;
    SelectReading(text, number, readings::rationalThought.rows);
    store.RationalThoughtNumber = number;
    store.RationalThoughtText = text;
    store.RationalThoughtAbout = readings::rationalThought.about;
}

} // namespace modReadings
