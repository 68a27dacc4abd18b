#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

// Neither ReduceDigitString nor ReduceKeepMaster nor MonthNumber serves here: day and
// year fold once where those fold twice, and ScratchLetter has no say in the month.
void CalcLifePath() {
    const int16 daySum = DigitSum(profile.BirthDay);
    const int16 day = Traced(u"day of birth", Fold(daySum));
    const int16 month = Traced(u"month of birth", EnglishMonthValue(profile.BirthMonth));
    // A single fold, on purpose: 1999 has the digit sum 28 and enters as 10.
    const int16 year = Traced(u"year of birth", Fold(DigitSum(profile.BirthYear)));

    const int16 total = Total(day, month, year);
    const int16 number = StaysMaster(total) ? total : FoldSumKeepMaster(total);

    store.LifePathNumber = Traced(u"Life Path Number", number);
    store.LifePathDaySum = daySum; // of the day alone, not of the date
    SelectReading(store.LifePathText, number, readings::lifePath.rows);
    store.LifePathAbout = readings::lifePath.about;
}

} // namespace modReadings
