#pragma once

// What the report tool has to know of the Essence before it starts: for which names the
// walk of CalcEssence would never end.

#include <string_view>

namespace modReadings {

/// Whether a character of a first or middle name lasts any years.
bool LastsInFirstName(char16_t character);

/// The same for a last name, where F lasts none.
bool LastsInLastName(char16_t character);

} // namespace modReadings
