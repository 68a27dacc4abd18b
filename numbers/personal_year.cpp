#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/digit_walk.h"
#include "numbers/readings.h"

namespace modReadings {

// A routine of its own and no variation of month and day: the month is looked up by its
// name alone, and the number is a text that is written twice.
void CalcPersonalYear() {
    const int16 day = Fold(WalkDigits(profile.BirthDay));
    const int16 month = EnglishMonthValue(profile.BirthMonth);

    // The birth year has no influence on the result, but its digits are walked all the
    // same: a character that is no digit ends the calculator here.
    WalkDigits(profile.BirthYear);

    const int16 birth = Fold(Add(day, month));
    const std::u16string currentYear = DecimalText(Clock::Year());
    store.PersonalYearNumber = DecimalText(Add(ReduceDigitString(currentYear), birth));
    store.PersonalYearNumber = DecimalText(ReduceDigitString(store.PersonalYearNumber));

    SelectReading(store.PersonalYearText, NumberFromText(store.PersonalYearNumber),
                  readings::personalYear.rows);
    store.PersonalYearAbout = readings::personalYear.about;
}

} // namespace modReadings
