#pragma once

// The ages of the Life Path Periods, for those who draw them.

#include "numbers/ages.h"

#include <array>
#include <optional>

namespace modReadings {

/// The ages of the three periods of a root (PeriodRoot of the store). None for a root without
/// a row.
std::optional<std::array<Ages, 3>> AgesOfPeriods(int16 root);

} // namespace modReadings
