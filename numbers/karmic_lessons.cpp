#include "core/letters.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <bitset>

namespace modReadings {

void CalcKarmicLessons() {
    store.KarmicLessonsNumber.clear();
    store.KarmicLessonsText.clear();

    const std::u16string name = WholeName();
    Length(name); // fails on a name too long to count, with both slots empty

    const std::bitset<10> present = PresentValues(name);
    for (int16 value = 1; value <= 9; ++value) {
        if (present.test(static_cast<std::size_t>(value)))
            continue;
        const std::u16string digit = DecimalText(value);
        // A blank in front of every digit, the first too: the list goes behind its
        // heading as it stands.
        store.KarmicLessonsNumber += u' ' + digit;
        std::u16string lesson;
        SelectReading(lesson, value, readings::karmicLessons.rows);
        store.KarmicLessonsText += u"\r\n" + digit + u"\r\n" + lesson;
    }
    Traced(u"missing values", store.KarmicLessonsNumber);
    store.KarmicLessonsAbout = readings::karmicLessons.about;
}

} // namespace modReadings
