#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/name_total.h"

namespace modReadings {

void CalcDestiny() {
    constexpr LetterFilter everyLetter = [](char16_t) { return true; };

    store.ScratchSum = 0;
    // One total over three walks: no name is reduced by itself.
    WalkLetters(profile.FirstName, everyLetter);
    WalkLetters(profile.MiddleName, everyLetter);
    WalkLetters(profile.LastName, everyLetter);
    StoreNameTotal({store.DestinyNumber, store.DestinyRaw, store.DestinyText, store.DestinyAbout,
                    readings::destiny});
}

} // namespace modReadings
