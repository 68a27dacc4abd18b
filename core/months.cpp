#include "core/months.h"

#include "core/reading_store.h"
#include "core/text.h"

namespace modReadings {

int16 MonthNumber(std::u16string_view monthName) {
    using enum Trace::StepKind;
    for (std::size_t index = 0; index < englishMonths.size(); ++index) {
        const int16 value = MonthValue(index);
        if (monthName == englishMonths[index]) {
            TraceStep(Month, monthName, value);
            return value;
        }
        // The letter is a single character, so "10", "11" and "12" never equal it.
        if (store.ScratchLetter == DecimalText(static_cast<int16>(index + 1))) {
            TraceStep(MonthByDigit, monthName, value, static_cast<int16>(index + 1));
            return value;
        }
    }
    TraceStep(Month, monthName, int16{0});
    return 0;
}

} // namespace modReadings
