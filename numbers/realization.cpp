#include "core/digits.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcRealization() {
    // Both numbers have always been worked out by now; one is 0 for a name without a
    // letter. Number and About keep what they hold.
    const int16 lifePath = Traced(u"Life Path Number", store.LifePathNumber);
    const int16 destiny = Traced(u"Destiny Number", store.DestinyNumber);
    if (lifePath == 0 || destiny == 0) {
        store.RealizationText = readings::realizationRefusal;
        TraceLeft(u"Realization Number", store.RealizationNumber);
        return;
    }
    // The total itself is no master number, on purpose: 11 + 11 = 22 gives 4.
    store.RealizationNumber =
        Traced(u"Realization Number", FoldSumKeepMaster(Total(lifePath, destiny)));
    SelectReading(store.RealizationText, store.RealizationNumber, readings::realization.rows);
    store.RealizationAbout = readings::realization.about;
}

} // namespace modReadings
