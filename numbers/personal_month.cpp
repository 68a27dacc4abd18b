#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcPersonalMonth() {
    const int16 birthDay = Traced(u"day of birth", ReduceDigitString(profile.BirthDay));
    const int16 birthMonth = Traced(u"month of birth", MonthNumber(profile.BirthMonth));
    const int16 month = Traced(u"current month", ReduceNumber(Clock::Month()));
    store.CurrentYearText = DecimalText(Clock::Year());
    const int16 year = Traced(u"current year", ReduceDigitString(store.CurrentYearText));

    store.PersonalMonthNumber =
        Traced(u"Personal Month", ReduceNumber(Total(birthDay, birthMonth, month, year)));
    SelectReading(store.PersonalMonthText, store.PersonalMonthNumber, readings::personalMonth.rows);
    store.PersonalMonthAbout = readings::personalMonth.about;
}

} // namespace modReadings
