#include "numbers/hidden_passion.h"

#include "core/letters.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
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
        TraceLetter(character, 1, true, static_cast<int16>(count));
    }
    return best;
}

void CalcHiddenPassion() {
    const std::u16string name = WholeName();
    Length(name); // fails on a name too long to count, before anything is written

    const char16_t best = MostFrequentCharacter(name).character;
    Traced(u"most frequent", std::u16string_view(&best, name.empty() ? 0 : 1));

    // A winner without a value, or no character at all, leaves the number of the run
    // before, which then selects its reading again.
    if (const int16 value = ChartValue(best); value != 0)
        store.HiddenPassionNumber = Traced(u"Hidden Passion Number", value);
    else
        TraceLeft(u"Hidden Passion Number", store.HiddenPassionNumber);
    SelectReading(store.HiddenPassionText, store.HiddenPassionNumber, readings::hiddenPassion.rows);
    store.HiddenPassionAbout = readings::hiddenPassion.about;
}

} // namespace modReadings
