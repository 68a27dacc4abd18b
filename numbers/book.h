#pragma once

// Every reading and fixed text that the program holds, for proofreading.

#include "core/int16.h"

#include <optional>
#include <string>
#include <vector>

namespace modReadings {

struct BookEntry {
    std::string slot;            ///< the slot that shows the text
    std::optional<int16> number; ///< the number that selects it; none for a fixed text
    std::u16string text;
};

/// The whole book. PinnacleText and ChallengeText stand once each, for the table that
/// their four positions share.
std::vector<BookEntry> Book();

} // namespace modReadings
