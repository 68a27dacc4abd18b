#include "core/letters.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <bitset>

namespace modReadings {

void CalcSubconsciousSelf() {
    const std::bitset<10> present = PresentValues(WholeName());

    // The list is built and thrown away; only the count matters.
    int16 count = 0;
    for (int16 value = 1; value <= 9; ++value) {
        if (!present.test(static_cast<std::size_t>(value)))
            continue;
        store.MissingDigitsScratch += u' ' + DecimalText(value);
        ++count;
    }

    Traced(u"values in the name", store.MissingDigitsScratch);
    store.SubconsciousSelfNumber = // also where the reading refuses it
        Traced(u"Subconscious Self Number", count);
    SelectReading(store.SubconsciousSelfText, count, readings::subconsciousSelf.rows);
    store.SubconsciousSelfAbout = readings::subconsciousSelf.about;
    store.MissingDigitsScratch.clear();
}

} // namespace modReadings
