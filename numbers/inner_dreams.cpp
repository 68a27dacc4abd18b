#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/name_total.h"

namespace modReadings {

void CalcInnerDreams() {
    store.ScratchSum = 0;
    // Y counts 7 in every name, also where CalcSoulUrge takes it for a vowel.
    WalkLetters(WholeName(), [](char16_t letter) { return !IsVowel(letter); });
    StoreNameTotal({store.InnerDreamsNumber, store.InnerDreamsRaw, store.InnerDreamsText,
                    store.InnerDreamsAbout, readings::innerDreams});
}

} // namespace modReadings
