#pragma once

// The sums and differences that a number is made of, which a trace shows.

#include "core/int16.h"
#include "core/tracing.h"

namespace modReadings {

/// Checked sum of all arguments, as Add makes it.
template <typename... Rest> constexpr int16 Total(int16 first, Rest... rest) {
    const int16 sum = Add(first, rest...);
    TraceStep(Trace::StepKind::Sum, u"", {first, rest...}, sum);
    return sum;
}

/// Checked difference, which may be below 0.
constexpr int16 Difference(int16 minuend, int16 subtrahend) {
    const int16 difference = Subtract(minuend, subtrahend);
    TraceStep(Trace::StepKind::Difference, u"", {minuend, subtrahend}, difference);
    return difference;
}

/// How far two numbers lie apart, checked.
constexpr int16 Gap(int16 one, int16 other) {
    const int16 gap = Absolute(Subtract(one, other));
    TraceStep(Trace::StepKind::Gap, u"", {one, other}, gap);
    return gap;
}

} // namespace modReadings
