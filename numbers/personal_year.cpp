#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/digit_walk.h"
#include "numbers/readings.h"

namespace modReadings {

// A routine of its own and no variation of month and day: the month is looked up by its
// name alone, and the number is a text that is written twice.
void CalcPersonalYear() {
    const int16 day = Traced(u"day of birth", Fold(WalkDigits(profile.BirthDay)));
    const int16 month = Traced(u"month of birth", EnglishMonthValue(profile.BirthMonth));

    // The birth year has no influence on the result, but its digits are walked all the
    // same: a character that is no digit ends the calculator here.
    Traced(u"year of birth, without effect", WalkDigits(profile.BirthYear));

    const int16 birth = Traced(u"day and month", Fold(Total(day, month)));
    const std::u16string currentYear = DecimalText(Clock::Year());
    const int16 year = Traced(u"current year", ReduceDigitString(currentYear));
    store.PersonalYearNumber = DecimalText(Total(year, birth));
    store.PersonalYearNumber = DecimalText(ReduceDigitString(store.PersonalYearNumber));
    Traced(u"Personal Year", store.PersonalYearNumber);

    SelectReading(store.PersonalYearText, NumberFromText(store.PersonalYearNumber),
                  readings::personalYear.rows);
    store.PersonalYearAbout = readings::personalYear.about;
}

} // namespace modReadings
