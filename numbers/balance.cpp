#include "core/digits.h"
#include "core/letters.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcBalance() {
    const auto initial = [](std::u16string_view name) { return LetterValue(name.substr(0, 1)); };

    const int16 first = Traced(u"first initial", initial(profile.FirstName));
    const int16 middle = Traced(u"middle initial", initial(profile.MiddleName));
    const int16 last = Traced(u"last initial", initial(profile.LastName));

    store.BalanceNumber = Traced(u"Balance Number", ReduceNumber(Total(first, middle, last)));
    // 0 has no reading: the text of the last name that had one stays.
    SelectReading(store.BalanceText, store.BalanceNumber, readings::balance.rows);
    store.BalanceAbout = readings::balance.about;
}

} // namespace modReadings
