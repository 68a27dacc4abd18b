#pragma once

// The names with which CalcEssence never returns, for programs that have to know it
// before they start the calculator.

#include "core/int16.h"
#include "core/user_profile.h"

#include <optional>

namespace modReadings {

/// What a trace calls the years that the letters make up to the end of a name.
inline constexpr const char16_t *essenceYearsLabel = u"years of the letters";

/// The first of the names of `person` that would keep CalcEssence walking for ever at
/// `age`, in whole years: at a positive age a name without a single letter that counts.
/// F does not count in a last name. An empty middle name is not walked and is never the
/// answer. None where the calculator comes to its end.
std::optional<NamePart> EndlessName(const UserProfile &person, int16 age);

} // namespace modReadings
