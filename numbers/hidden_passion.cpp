#include "numbers/hidden_passion.h"

#include "core/letters.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <algorithm>

namespace modReadings {

// Counts characters and never values: letters of one value are not pooled, and a blank,
// a hyphen or a digit competes like any letter.
FrequentCharacter MostFrequentCharacter(std::u16string_view name) {
    FrequentCharacter best;
    for (const char16_t character : name) {
        const auto count = std::count(name.begin(), name.end(), character);
        if (count > best.count) // strictly: of equals the earlier one wins
            best = {character, count};
    }
    return best;
}

void CalcHiddenPassion() {
    const std::u16string name = WholeName();
    Length(name); // fails on a name too long to count, before anything is written

    // A winner without a value, or no character at all, leaves the number of the run
    // before, which then selects its reading again.
    if (const int16 value = ChartValue(MostFrequentCharacter(name).character); value != 0)
        store.HiddenPassionNumber = value;
    SelectReading(store.HiddenPassionText, store.HiddenPassionNumber, readings::hiddenPassion.rows);
    store.HiddenPassionAbout = readings::hiddenPassion.about;
}

} // namespace modReadings
