#pragma once

// The Proceed pass over the calculators: which ones there are and in which order they
// run. The order is declared here and nowhere else; the Comprehensive Reading follows it.
//
// The order is not sorted by what reads what. CalcKarmicDebt and CalcHPBridge run before
// CalcInnerDreams and CalcSoulUrge, whose results they read, and so work on the values of
// the pass before. No user sees that: every display of a topic runs its calculator again
// on the filled store. Neither the order nor the second run may be optimised away.

#include <array>

namespace modReadings {

/// A calculator: reads the profile and the store, writes its own slots of the store,
/// and may throw RuntimeFailure, having written some of them.
using Calculator = void (*)();

/// All 22 calculators in the order of the pass.
extern const std::array<Calculator, 22> passOrder;

/// Runs every calculator once, in order. One that fails is abandoned by itself; the
/// others run all the same. Throws nothing.
void RunAllCalculators();

} // namespace modReadings
