#pragma once

// The digit sum that some calculators take themselves, with the store's ScratchIndex as
// the index of the walk.

#include "core/int16.h"

#include <string_view>

namespace modReadings {

/// The sum of the digits of `text`. Leaves ScratchIndex on the position last looked
/// at, counted from 1, or on 0 for the empty text. Throws RuntimeFailure at a character that is no
/// digit, on a text longer than int16 can count, or when the sum overflows.
int16 WalkDigits(std::u16string_view text);

} // namespace modReadings
