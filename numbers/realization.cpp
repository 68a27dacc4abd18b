#include "core/digits.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

namespace {

/// The digit sum of `total`, which stays if it is 11 or 22 and is folded once otherwise.
/// `total` itself may be 11 or 22 and is summed all the same, on purpose: 11 + 11 = 22
/// gives 4, 22 + 7 = 29 gives 11.
int16 ReduceMaturitySum(int16 total) {
    const int16 sum = DigitSum(total);
    return StaysMaster(sum) ? sum : Fold(sum);
}

} // namespace

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
    store.RealizationNumber =
        Traced(u"Realization Number", ReduceMaturitySum(Total(lifePath, destiny)));
    SelectReading(store.RealizationText, store.RealizationNumber, readings::realization.rows);
    store.RealizationAbout = readings::realization.about;
}

} // namespace modReadings
