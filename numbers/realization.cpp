#include "core/digits.h"
#include "core/reading_store.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

namespace {

/// Digit sum, a stop at 11 and 22, else one fold. The stop looks at the digit sum and
/// not at the sum itself, and stays so: 11 + 11 = 22 gives 4, 22 + 7 = 29 gives 11.
int16 ReduceMaturitySum(std::u16string_view text) {
    const int16 sum = DigitSum(text);
    return sum == 11 || sum == 22 ? sum : Fold(sum);
}

} // namespace

void CalcRealization() {
    // Both numbers have always been worked out by now; one is 0 for a name without a
    // letter. Number and About keep what they hold.
    if (store.LifePathNumber == 0 || store.DestinyNumber == 0) {
        store.RealizationText = readings::realizationRefusal;
        return;
    }
    store.RealizationNumber =
        ReduceMaturitySum(DecimalText(Add(store.LifePathNumber, store.DestinyNumber)));
    SelectReading(store.RealizationText, store.RealizationNumber, readings::realization);
    store.RealizationAbout = readings::realizationAbout;
}

} // namespace modReadings
