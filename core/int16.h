#pragma once

// Signed 16-bit integers with checked arithmetic: every operation that would leave
// -32768..32767 throws RuntimeFailure instead of wrapping. The operators of the
// language promote to int, so results of plain arithmetic go through ToInt16.

#include "core/runtime_failure.h"

#include <cstdint>
#include <limits>

namespace modReadings {

using int16 = std::int16_t;

/// `value` as int16. Throws RuntimeFailure outside -32768..32767.
constexpr int16 ToInt16(std::int64_t value) {
    if (value < std::numeric_limits<int16>::min() || value > std::numeric_limits<int16>::max())
        throw RuntimeFailure("overflow");
    return static_cast<int16>(value);
}

/// Checked sum of all arguments, added from left to right, each step checked.
template <typename... Rest> constexpr int16 Add(int16 first, Rest... rest) {
    int16 sum = first;
    ((sum = ToInt16(std::int64_t{sum} + rest)), ...);
    return sum;
}

/// Checked difference.
constexpr int16 Subtract(int16 minuend, int16 subtrahend) {
    return ToInt16(std::int64_t{minuend} - subtrahend);
}

/// Checked product.
constexpr int16 Multiply(int16 a, int16 b) { return ToInt16(std::int64_t{a} * b); }

/// Quotient truncated towards zero. Throws RuntimeFailure when the divisor is 0.
constexpr int16 Divide(int16 dividend, int16 divisor) {
    if (divisor == 0)
        throw RuntimeFailure("division by zero");
    return ToInt16(std::int64_t{dividend} / divisor);
}

/// Checked absolute value: -32768 has none and throws.
constexpr int16 Absolute(int16 value) { return value < 0 ? Subtract(0, value) : value; }

} // namespace modReadings
