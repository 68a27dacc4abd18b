#include "core/digits.h"
#include "core/letters.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcBalance() {
    const auto initial = [](std::u16string_view name) { return LetterValue(name.substr(0, 1)); };

    store.BalanceNumber = ReduceNumber(
        Add(initial(profile.FirstName), initial(profile.MiddleName), initial(profile.LastName)));
    // 0 has no reading: the text of the last name that had one stays.
    SelectReading(store.BalanceText, store.BalanceNumber, readings::balance.rows);
    store.BalanceAbout = readings::balance.about;
}

} // namespace modReadings
