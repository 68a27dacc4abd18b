#include "numbers/planes.h"

#include "core/reading_store.h"
#include "core/text.h"
#include "core/tracing.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <algorithm>

namespace modReadings {

namespace {

constexpr const Plane &mentalPlane = planes[0];
constexpr const Plane &physicalPlane = planes[1];
constexpr const Plane &emotionalPlane = planes[2];
constexpr const Plane &intuitivePlane = planes[3];

int16 Share(const std::u16string &name, std::u16string_view letters, int16 length) {
    std::ptrdiff_t count = 0;
    for (const char16_t character : name) {
        const bool ofThisPlane = letters.find(character) != std::u16string_view::npos;
        count += ofThisPlane ? 1 : 0;
        TraceLetter(character, 1, ofThisPlane, static_cast<int16>(count));
    }
    // The length counts every character, also those of no plane.
    const int16 share = Divide(Multiply(ToInt16(count), 100), length);
    TraceStep(Trace::StepKind::Share, u"", share, static_cast<int16>(count), length);
    return share;
}

/// Strict comparison with each of the others: a tie has no rule and no winner.
bool Dominates(int16 share, int16 a, int16 b, int16 c) {
    return share > a && share > b && share > c;
}

/// The word of the plane that dominates by the shares in the store; empty for a tie.
std::u16string_view DominantPlane() {
    const int16 mental = store.MentalPercent;
    const int16 physical = store.PhysicalPercent;
    const int16 emotional = store.EmotionalPercent;
    const int16 intuitive = store.IntuitivePercent;
    if (Dominates(mental, physical, emotional, intuitive))
        return mentalPlane.name;
    if (Dominates(physical, mental, emotional, intuitive))
        return physicalPlane.name;
    if (Dominates(emotional, mental, physical, intuitive))
        return emotionalPlane.name;
    if (Dominates(intuitive, mental, physical, emotional))
        return intuitivePlane.name;
    return {};
}

std::u16string_view Rating(int16 share, int16 weakUpTo, int16 averageUpTo) {
    if (share <= weakUpTo)
        return u"Weak";
    return share <= averageUpTo ? u"Average" : u"Strong";
}

/// The Physical row has its own ladder: the lower limit of "Average" is compared with
/// the mental share, so that a physical share of 18 to 23 beside a mental one below 18
/// meets no band, and the rating of an earlier run stays. A quirk that must survive.
/// Empty for no band.
std::u16string_view PhysicalRating() {
    if (store.PhysicalPercent <= 17)
        return u"Weak";
    if (store.MentalPercent >= 18 && store.PhysicalPercent <= 23)
        return u"Average";
    if (store.PhysicalPercent >= 24)
        return u"Strong";
    return {};
}

/// Leaves the slot alone for an empty word.
void AssignWord(std::u16string &slot, const char16_t *label, std::u16string_view word) {
    if (word.empty())
        TraceLeft(label, slot);
    else
        slot = Traced(label, word);
}

std::u16string LineOf(const std::u16string &label, int16 percent, const std::u16string &rating) {
    return label + DecimalText(percent) + u" - " + rating;
}

} // namespace

// No slot is cleared first: a tie leaves the plane of the person before, and the
// physical rating can be left likewise.
void CalcPlanes() {
    store.MentalLabel = mentalPlane.label;
    store.PhysicalLabel = physicalPlane.label;
    store.EmotionalLabel = emotionalPlane.label;
    store.IntuitiveLabel = intuitivePlane.label;

    const std::u16string name = WholeName();
    const int16 length = Length(name);
    store.MentalPercent = Traced(u"mental share", Share(name, mentalPlane.letters, length));
    store.PhysicalPercent = Traced(u"physical share", Share(name, physicalPlane.letters, length));
    store.EmotionalPercent =
        Traced(u"emotional share", Share(name, emotionalPlane.letters, length));
    store.IntuitivePercent =
        Traced(u"intuitive share", Share(name, intuitivePlane.letters, length));

    AssignWord(store.PlanesNumber, u"dominant plane", DominantPlane());
    store.MentalRating = Traced(u"mental rating", Rating(store.MentalPercent, 25, 32));
    AssignWord(store.PhysicalRating, u"physical rating", PhysicalRating());
    store.EmotionalRating = Traced(u"emotional rating", Rating(store.EmotionalPercent, 20, 34));
    store.IntuitiveRating = Traced(u"intuitive rating", Rating(store.IntuitivePercent, 11, 17));

    store.PlanesText =
        LineOf(store.MentalLabel, store.MentalPercent, store.MentalRating) + u" \r\n" +
        LineOf(store.PhysicalLabel, store.PhysicalPercent, store.PhysicalRating) + u" \r\n" +
        LineOf(store.EmotionalLabel, store.EmotionalPercent, store.EmotionalRating) + u" \r\n" +
        LineOf(store.IntuitiveLabel, store.IntuitivePercent, store.IntuitiveRating);
    store.PlanesAbout = readings::planesAbout;
}

} // namespace modReadings
