#pragma once

// The one failure of the arithmetic and the calculators, and the one place that catches it.
//
// A calculator that fails is abandoned where it stands: what it has written stays
// written. The event procedure that called it goes on with its next statement, so
// every statement of an event procedure that can fail is its own call of Attempt.

#include <stdexcept>
#include <utility>

namespace modReadings {

/// Thrown when a result leaves the 16-bit range, a character is no digit, a text is
/// no number, or a divisor is 0. Caught by Attempt and by nothing else.
class RuntimeFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

namespace detail {
/// Tells a trace, if one is recorded (core/trace.h).
void AddFailure(const RuntimeFailure &failure);
} // namespace detail

/// Runs one statement of an event procedure. Returns false when it was abandoned by a
/// RuntimeFailure; nobody is told, the caller simply goes on.
template <typename Statement> bool Attempt(Statement &&statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const RuntimeFailure &failure) {
        detail::AddFailure(failure);
        return false;
    }
}

} // namespace modReadings
