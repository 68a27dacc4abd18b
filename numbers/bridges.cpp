#include "core/digits.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

namespace {

/// The gap between two core numbers, reduced. A gap of 9 has no reading, and the text
/// of an earlier run stays under it.
void Bridge(int16 one, int16 other, int16 &number, std::u16string &text, ReadingTable table) {
    number = Traced(u"bridge", ReduceNumber(Gap(one, other)));
    SelectReading(text, number, table);
}

} // namespace

// In the pass this runs before the two numbers that it reads are there; see
// core/proceed_pass.h. The trace that remains is the text under a gap of 9: the pass has
// put the reading of the stale numbers there, on the first Proceed that of 0.
void CalcHPBridge() {
    const int16 soulUrge = Traced(u"Soul Urge Number", store.SoulUrgeNumber);
    const int16 innerDreams = Traced(u"Inner Dreams Number", store.InnerDreamsNumber);
    Bridge(soulUrge, innerDreams, store.HPBridgeNumber, store.HPBridgeText,
           readings::hpBridge.rows);
    store.HPBridgeAbout = readings::hpBridge.about;
}

void CalcLEBridge() {
    const int16 destiny = Traced(u"Destiny Number", store.DestinyNumber);
    const int16 lifePath = Traced(u"Life Path Number", store.LifePathNumber);
    Bridge(destiny, lifePath, store.LEBridgeNumber, store.LEBridgeText, readings::leBridge.rows);
    store.LEBridgeAbout = readings::leBridge.about;
}

} // namespace modReadings
