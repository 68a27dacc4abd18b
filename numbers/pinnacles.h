#pragma once

// The ages of the pinnacles, for those who draw them.

#include "numbers/ages.h"

#include <cstddef>
#include <optional>

namespace modReadings {

/// The ages in the line of the pinnacle at `position`, 0 to 3, that has this value. None for
/// a value without a line.
std::optional<Ages> AgesOfPinnacle(std::size_t position, int16 value);

} // namespace modReadings
