#include "core/months.h"

#include "core/reading_store.h"
#include "core/text.h"

namespace modReadings {

int16 MonthNumber(std::u16string_view monthName) {
    for (std::size_t index = 0; index < englishMonths.size(); ++index) {
        // The letter is a single character, so "10", "11" and "12" never equal it.
        if (monthName == englishMonths[index] ||
            store.ScratchLetter == DecimalText(static_cast<int16>(index + 1)))
            return MonthValue(index);
    }
    return 0;
}

} // namespace modReadings
