#pragma once

// The four planes and the letters that belong to each.

#include <array>
#include <string_view>

namespace modReadings {

struct Plane {
    std::u16string_view name;    ///< the word of the dominant plane
    std::u16string_view label;   ///< in the line of its share
    std::u16string_view letters; ///< capitals; every letter belongs to one plane
};

/// In the order of their lines.
inline constexpr std::array<Plane, 4> planes{{{u"Mental", u"Mental Ability ", u"HAJNPGL"},
                                              {u"Physical", u"Physical Ability ", u"WEDM"},
                                              {u"Emotional", u"Emotional Ability ", u"ROIZBSTX"},
                                              {u"Intuitive", u"Intuitive Ability ", u"FKQUYCV"}}};

} // namespace modReadings
