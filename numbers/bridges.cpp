#include "core/digits.h"
#include "core/reading_store.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

namespace {

/// The gap between two core numbers, reduced. A gap of 9 has no reading, and the text
/// of an earlier run stays under it.
void Bridge(int16 minuend, int16 subtrahend, int16 &number, std::u16string &text,
            ReadingTable table) {
    number = ReduceNumber(Absolute(Subtract(minuend, subtrahend)));
    SelectReading(text, number, table);
}

} // namespace

// In the pass this runs before the two numbers that it reads are there; see
// core/proceed_pass.h. The trace that remains is the text under a gap of 9: the pass has
// put the reading of the stale numbers there, on the first Proceed that of 0.
void CalcHPBridge() {
    Bridge(store.SoulUrgeNumber, store.InnerDreamsNumber, store.HPBridgeNumber, store.HPBridgeText,
           readings::hpBridge.rows);
    store.HPBridgeAbout = readings::hpBridge.about;
}

void CalcLEBridge() {
    Bridge(store.DestinyNumber, store.LifePathNumber, store.LEBridgeNumber, store.LEBridgeText,
           readings::leBridge.rows);
    store.LEBridgeAbout = readings::leBridge.about;
}

} // namespace modReadings
