#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

namespace modReadings {

void CalcBirthday() {
    const int16 day = Traced(u"day of birth", NumberFromText(profile.BirthDay));
    SelectReading(store.BirthdayText, day, readings::birthday.rows);
    store.BirthdayRaw = day; // kept whether or not the day has a reading
    store.BirthdayAbout = readings::birthday.about;
}

} // namespace modReadings
