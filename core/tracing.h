#pragma once

// How the calculators and their arithmetic tell what they do; core/trace.h says what becomes of
// it. While no TraceRecorder is alive each of these calls is one test of a pointer. They change
// nothing of the calculation, and in a constant expression they do nothing.
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

// Out of line, so that a calculator that nobody traces stays small. (A label is a pointer for the
// same reason: a view would take its length at each call.)
void AddLine(const char16_t *label, int16 value, bool left);
void AddLine(const char16_t *label, std::u16string_view value, bool left);
void AddLetter(char16_t character, int16 value, bool admitted, int16 total);
void AddStep(Trace::StepKind kind, std::u16string_view from, int16 result,
             std::initializer_list<int16> terms);
void AddStep(Trace::StepKind kind, int16 from, int16 result, std::initializer_list<int16> terms);
void AddDigitSum(std::u16string_view digits, int16 sum);
void AddDigitSum(int16 value, int16 sum);

} // namespace detail

/// Whether somebody records.
constexpr bool Tracing() { return !std::is_constant_evaluated() && detail::recorder != nullptr; }

/// Gives `value`, a number or a text, to which the steps and letters since the last line came.
/// `label` lives as long as the program.
inline int16 Traced(const char16_t *label, int16 value) {
    if (Tracing()) [[unlikely]]
        detail::AddLine(label, value, false);
    return value;
}

inline std::u16string_view Traced(const char16_t *label, std::u16string_view value) {
    if (Tracing()) [[unlikely]]
        detail::AddLine(label, value, false);
    return value;
}

/// No branch assigned the slot `value`, which holds what it held.
template <typename Value> void TraceLeft(const char16_t *label, const Value &value) {
    if (Tracing()) [[unlikely]]
        detail::AddLine(label, value, true);
}

/// A character was looked at; see Trace::Letter. It is counted if the topic admits it and it has a
/// value.
constexpr void TraceLetter(char16_t character, int16 value, bool admitted, int16 total) {
    if (Tracing()) [[unlikely]]
        detail::AddLetter(character, value, admitted, total);
}

/// A step was made; see Trace::Step. `from` is a text or a number, `terms` are numbers.
template <typename From, typename... Terms>
constexpr void TraceStep(Trace::StepKind kind, From from, int16 result, Terms... terms) {
    if (Tracing()) [[unlikely]]
        detail::AddStep(kind, from, result, {terms...});
}

/// The digits of `from`, a text or a number, were added up.
template <typename From> constexpr void TraceDigitSum(From from, int16 sum) {
    if (Tracing()) [[unlikely]]
        detail::AddDigitSum(from, sum);
}

} // namespace modReadings
