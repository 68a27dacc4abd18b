#pragma once

// How the calculators and their arithmetic tell what they do; core/trace.h says what becomes of
// it. While no TraceRecorder is alive each of these calls is one test of a pointer. They change
// nothing of the calculation, and at compile time they are not there.
//
// The arithmetic tells its steps by itself. A calculator gives each value that a reader should
// see a name, by Traced around the expression that makes it:
//
//     const int16 day = Traced(u"day of birth", Fold(DigitSum(profile.BirthDay)));
//
// Where none of its branches assigns a slot, it says so by TraceLeft.

#include "core/trace.h"

#include <initializer_list>
#include <type_traits>

namespace modReadings {

namespace detail {

inline TraceRecorder *recorder = nullptr; ///< the one that is alive

void AddDigitSum(std::u16string_view digits, int16 sum);
void AddStep(Trace::StepKind kind, std::u16string_view from, std::initializer_list<int16> terms,
             int16 result);
void AddStep(Trace::StepKind kind, int16 from, std::initializer_list<int16> terms, int16 result);

} // namespace detail

/// Whether somebody records.
constexpr bool Tracing() { return !std::is_constant_evaluated() && detail::recorder != nullptr; }

/// Gives `value`, to which the steps and letters since the last line came.
inline int16 Traced(std::u16string_view label, int16 value) {
    if (Tracing()) [[unlikely]]
        detail::recorder->Close(label, value, false);
    return value;
}

/// The same for a text.
inline std::u16string_view Traced(std::u16string_view label, std::u16string_view value) {
    if (Tracing()) [[unlikely]]
        detail::recorder->Close(label, std::u16string(value), false);
    return value;
}

/// No branch assigned the slot `value`, which holds what it held.
template <typename Value> void TraceLeft(std::u16string_view label, const Value &value) {
    if (Tracing()) [[unlikely]]
        detail::recorder->Close(label, value, true);
}

/// A character was looked at; see Trace::Letter.
constexpr void TraceLetter(char16_t character, int16 value, bool counted, int16 total) {
    if (Tracing()) [[unlikely]]
        detail::recorder->Add(Trace::Letter{character, value, counted, total});
}

/// A step was made; see Trace::Step. `from` is a text or a number.
template <typename From>
constexpr void TraceStep(Trace::StepKind kind, From from, std::initializer_list<int16> terms,
                         int16 result) {
    if (Tracing()) [[unlikely]]
        detail::AddStep(kind, from, terms, result);
}

/// The digits of a text were added up.
constexpr void TraceDigitSum(std::u16string_view digits, int16 sum) {
    if (Tracing()) [[unlikely]]
        detail::AddDigitSum(digits, sum);
}

} // namespace modReadings
