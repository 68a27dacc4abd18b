#pragma once

// The sums and differences that a number is made of, which a trace shows.

#include "core/int16.h"
#include "core/tracing.h"

#include <concepts>

namespace modReadings {

/// Checked sum of all arguments, as Add makes it.
constexpr int16 Total(int16 first, std::same_as<int16> auto... rest) {
    const int16 sum = Add(first, rest...);
    TraceStep(Trace::StepKind::Sum, u"", sum, first, rest...);
    return sum;
}

/// Checked difference, which may be below 0.
constexpr int16 Difference(int16 minuend, int16 subtrahend) {
    const int16 difference = Subtract(minuend, subtrahend);
    TraceStep(Trace::StepKind::Difference, u"", difference, minuend, subtrahend);
    return difference;
}

/// How far two numbers lie apart, checked.
constexpr int16 Gap(int16 one, int16 other) {
    const int16 gap = Absolute(Subtract(one, other));
    TraceStep(Trace::StepKind::Gap, u"", gap, one, other);
    return gap;
}

} // namespace modReadings
