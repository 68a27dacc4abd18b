#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <array>

namespace modReadings {

namespace {

constexpr std::array<int16, 4> debts{13, 14, 16, 19};

/// One of the five places where a debt can show. `values` are compared with 13, 14, 16
/// and 19 in turn.
struct Source {
    std::array<int16, 4> values;
    std::u16string_view name;
    const char16_t *label; ///< in a trace
};

} // namespace

// In the pass this runs before CalcInnerDreams and CalcSoulUrge and sees their raw sums
// of the pass before; it is right when a display of the topic runs it again.
void CalcKarmicDebt() {
    store.BirthDayValue = NumberFromText(profile.BirthDay);

    const auto all = [](int16 value) { return std::array<int16, 4>{value, value, value, value}; };
    // The first source is the digit sum of the day alone and cannot reach 13 with a day
    // of the list; its tests stay. The last compares 13 with another slot than the rest.
    const std::array<Source, 5> sources{{
        {all(store.LifePathDaySum), u"LifePath", u"digit sum of the day"},
        {all(store.DestinyRaw), u"Destiny", u"Destiny, unreduced"},
        {all(store.SoulUrgeRaw), u"SoulUrge", u"Soul Urge, unreduced"},
        {all(store.InnerDreamsRaw), u"InnerDream", u"Inner Dreams, unreduced"},
        {{store.BirthDayValue, store.BirthdayRaw, store.BirthdayRaw, store.BirthdayRaw},
         u"BirthDay",
         u"day of birth"},
    }};

    int16 debt = 0;
    for (const Source &source : sources) { // always all five: the last hit wins
        Traced(source.label, source.values.front());
        for (std::size_t index = 0; index < debts.size(); ++index) {
            if (source.values[index] != debts[index])
                continue;
            store.KarmicDebtText += u"Your Karmic Debt Number is " + DecimalText(debts[index]) +
                                    u" and it is present in " + std::u16string(source.name) +
                                    u" Number.";
            debt = debts[index];
            break;
        }
    }
    if (store.KarmicDebtText.empty())
        store.KarmicDebtText = u"Your Karmic Debt Number is not applicable.";

    store.KarmicDebtNumber = Traced(u"Karmic Debt Number", debt);
    // The reading replaces all that was built above: no user ever sees those messages.
    SelectReading(store.KarmicDebtText, debt, readings::karmicDebt.rows);
    store.KarmicDebtAbout = readings::karmicDebt.about;
}

} // namespace modReadings
