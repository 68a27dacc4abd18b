#pragma once

// The Proceed pass over the calculators: which ones there are and in which order they
// run. The order is declared here and nowhere else; the Comprehensive Reading follows it.
//
// The order is not sorted by what reads what. CalcKarmicDebt and CalcHPBridge run before
// CalcInnerDreams and CalcSoulUrge, whose results they read, and so work on the values of
// the pass before. A click on a topic and the Comprehensive Reading put that right: they
// run the calculator again on the filled store. Two traces of the pass remain in sight.
// Proceed writes the Personal Month page without such a run, as it came out before the
// names were walked; and an H/P gap of 9, which has no reading, shows the one that the
// pass chose by the values before. Neither the order nor the second run may be optimised
// away.

#include <array>
#include <cstddef>

namespace modReadings {

/// A calculator: reads the profile and the store, writes its own slots of the store,
/// and may throw RuntimeFailure, having written some of them.
using Calculator = void (*)();

/// How many calculators there are, and so how many topics.
inline constexpr std::size_t calculatorCount = 22;

/// All calculators in the order of the pass.
extern const std::array<Calculator, calculatorCount> passOrder;

/// Runs every calculator once, in order. One that fails is abandoned by itself; the
/// others run all the same. Throws nothing.
void RunAllCalculators();

} // namespace modReadings
