#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcPersonalMonth() {
    const int16 birthDay = ReduceDigitString(profile.BirthDay);
    const int16 birthMonth = MonthNumber(profile.BirthMonth);
    const int16 month = ReduceNumber(Clock::Month());
    store.CurrentYearText = DecimalText(Clock::Year());
    const int16 year = ReduceDigitString(store.CurrentYearText);

    store.PersonalMonthNumber = ReduceNumber(Add(birthDay, birthMonth, month, year));
    SelectReading(store.PersonalMonthText, store.PersonalMonthNumber, readings::personalMonth.rows);
    store.PersonalMonthAbout = readings::personalMonth.about;
}

} // namespace modReadings
