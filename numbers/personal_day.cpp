#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcPersonalDay() {
    const int16 birthDay = Traced(u"day of birth", ReduceDigitString(profile.BirthDay));
    const int16 birthMonth = Traced(u"month of birth", MonthNumber(profile.BirthMonth));
    store.CurrentDayText = DecimalText(Clock::Day());
    const int16 currentMonth = Clock::Month();
    store.CurrentYearText = DecimalText(Clock::Year());
    const int16 day = Traced(u"current day", ReduceDigitString(store.CurrentDayText));
    const int16 month = Traced(u"current month", ReduceNumber(currentMonth));
    const int16 year = Traced(u"current year", ReduceDigitString(store.CurrentYearText));

    store.PersonalDayNumber =
        Traced(u"Personal Day", ReduceNumber(Total(birthDay, birthMonth, day, month, year)));
    SelectReading(store.PersonalDayText, store.PersonalDayNumber, readings::personalDay.rows);
    store.PersonalDayAbout = readings::personalDay.about;
}

} // namespace modReadings
