#pragma once

// The Proceed pass: all calculators, once each, in one fixed order. The Comprehensive
// Reading follows the same order.
//
// The order is not sorted by what reads what. CalcKarmicDebt and CalcHPBridge run before
// CalcInnerDreams and CalcSoulUrge, whose results they read. In the pass they therefore
// work with the values of the previous pass. A click on a topic and the Comprehensive
// Reading put that right: they run the calculator again when the store is full.
//
// Two effects of the order can be seen in the window. Proceed shows the Personal Month
// without a second run. It was worked out at the start of the pass, when ScratchLetter
// still held the last letter of the previous person (see core/months.h). And an H/P gap
// of 9, which has no reading, keeps the reading that the pass chose from the old values.
// Neither the order nor the second run may be optimised away.

#include <array>
#include <cstddef>

namespace modReadings {

/// A calculator: reads the profile and the store, writes its own slots of the store,
/// and may throw RuntimeFailure, having written some of them.
using Calculator = void (*)();

/// How many calculators there are, and so how many topics.
inline constexpr std::size_t calculatorCount = 22;

/// All calculators in the order of the pass. Defined in numbers/, which knows them.
extern const std::array<Calculator, calculatorCount> passOrder;

/// Runs every calculator once, in order. One that fails is abandoned by itself; the
/// others run all the same. Throws nothing.
void RunAllCalculators();

} // namespace modReadings
