#include "core/reading_store.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/name_total.h"

namespace modReadings {

void CalcSoulUrge() {
    const std::u16string name = WholeName();

    store.ScratchSum = 0;
    WalkLetters(name, IsVowel);
    // One vowel anywhere in the whole name shuts Y out everywhere: the test is on the
    // total, not on syllables or single names. CalcInnerDreams counts the same Y again.
    if (store.ScratchSum == 0) {
        Traced(u"sum of A, E, I, O, U", store.ScratchSum);
        if (name.find(u'Y') != std::u16string::npos)
            store.YUsedAsVowel = -1; // never cleared, read nowhere
        WalkLetters(name, [](char16_t letter) { return letter == u'Y'; });
    }
    StoreNameTotal({store.SoulUrgeNumber, store.SoulUrgeRaw, store.SoulUrgeText,
                    store.SoulUrgeAbout, readings::soulUrge});
}

} // namespace modReadings
