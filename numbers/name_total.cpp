#include "numbers/name_total.h"

#include "core/digits.h"
#include "core/letters.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"

namespace modReadings {

void WalkLetters(std::u16string_view text, LetterFilter admits) {
    const int16 length = Length(text);
    store.ScratchIndex = 0;
    while (store.ScratchIndex < length) {
        const char16_t character = text[static_cast<std::size_t>(store.ScratchIndex)];
        ++store.ScratchIndex;
        store.ScratchLetter.assign(1, character);
        const bool admitted = admits(character);
        if (admitted)
            store.ScratchSum = Add(store.ScratchSum, ChartValue(character));
        TraceLetter(character, ChartValue(character), admitted, store.ScratchSum);
    }
}

void StoreNameTotal(const NameTotalEntry &entry) {
    entry.raw = Traced(nameTotalLabel, store.ScratchSum);
    entry.number = Traced(nameNumberLabel, ReduceKeepMaster(store.ScratchSum));
    SelectReading(entry.text, entry.number, entry.prose.rows);
    entry.about = entry.prose.about;
}

} // namespace modReadings
