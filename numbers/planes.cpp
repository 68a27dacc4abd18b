#include "numbers/planes.h"

#include "core/reading_store.h"
#include "core/text.h"
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
    const auto count = std::ranges::count_if(name, [letters](char16_t character) {
        return letters.find(character) != std::u16string_view::npos;
    });
    // The length counts every character, also those of no plane.
    return Divide(Multiply(ToInt16(count), 100), length);
}

/// Strict comparison with each of the others: a tie has no rule and no winner.
bool Dominates(int16 share, int16 a, int16 b, int16 c) {
    return share > a && share > b && share > c;
}

void Rate(std::u16string &rating, int16 share, int16 weakUpTo, int16 averageUpTo) {
    if (share <= weakUpTo)
        rating = u"Weak";
    else if (share <= averageUpTo)
        rating = u"Average";
    else
        rating = u"Strong";
}

/// The Physical row has its own ladder: the lower limit of "Average" is compared with
/// the mental share, so that a physical share of 18 to 23 beside a mental one below 18
/// meets no band, and the rating of an earlier run stays. A quirk that must survive.
void RatePhysical() {
    if (store.PhysicalPercent <= 17)
        store.PhysicalRating = u"Weak";
    else if (store.MentalPercent >= 18 && store.PhysicalPercent <= 23)
        store.PhysicalRating = u"Average";
    else if (store.PhysicalPercent >= 24)
        store.PhysicalRating = u"Strong";
}

std::u16string Line(const std::u16string &label, int16 percent, const std::u16string &rating) {
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
    store.MentalPercent = Share(name, mentalPlane.letters, length);
    store.PhysicalPercent = Share(name, physicalPlane.letters, length);
    store.EmotionalPercent = Share(name, emotionalPlane.letters, length);
    store.IntuitivePercent = Share(name, intuitivePlane.letters, length);

    const int16 mental = store.MentalPercent;
    const int16 physical = store.PhysicalPercent;
    const int16 emotional = store.EmotionalPercent;
    const int16 intuitive = store.IntuitivePercent;
    if (Dominates(mental, physical, emotional, intuitive))
        store.PlanesNumber = mentalPlane.name;
    else if (Dominates(physical, mental, emotional, intuitive))
        store.PlanesNumber = physicalPlane.name;
    else if (Dominates(emotional, mental, physical, intuitive))
        store.PlanesNumber = emotionalPlane.name;
    else if (Dominates(intuitive, mental, physical, emotional))
        store.PlanesNumber = intuitivePlane.name;

    Rate(store.MentalRating, mental, 25, 32);
    RatePhysical();
    Rate(store.EmotionalRating, emotional, 20, 34);
    Rate(store.IntuitiveRating, intuitive, 11, 17);

    store.PlanesText = Line(store.MentalLabel, mental, store.MentalRating) + u" \r\n" +
                       Line(store.PhysicalLabel, physical, store.PhysicalRating) + u" \r\n" +
                       Line(store.EmotionalLabel, emotional, store.EmotionalRating) + u" \r\n" +
                       Line(store.IntuitiveLabel, intuitive, store.IntuitiveRating);
    store.PlanesAbout = readings::planesAbout;
}

} // namespace modReadings
