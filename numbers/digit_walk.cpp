#include "numbers/digit_walk.h"

#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"

namespace modReadings {

int16 WalkDigits(std::u16string_view text) {
    const int16 length = Length(text);
    int16 sum = 0;
    store.ScratchIndex = 0;
    while (store.ScratchIndex < length) {
        const char16_t character = text[static_cast<std::size_t>(store.ScratchIndex)];
        ++store.ScratchIndex;
        sum = Add(sum, DigitValue(character));
    }
    TraceDigitSum(text, sum);
    return sum;
}

} // namespace modReadings
