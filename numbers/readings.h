#pragma once

// The prose of the program: one table of readings per topic, the Abouts, and the other
// fixed texts. The texts themselves stand in numbers/readings/, one file per topic, as
// paragraphs divided by "\r\n"; a calculator picks a row by its number.

#include "core/int16.h"
#include "core/tracing.h"

#include <span>
#include <string>
#include <string_view>

namespace modReadings {

/// One row of a table: the text that stands for a number.
struct Reading {
    int16 number;
    std::u16string_view text;
};

using ReadingTable = std::span<const Reading>;

/// The texts of one topic.
struct Prose {
    ReadingTable rows;
    std::u16string_view about;
};

/// Replaces `slot` by the reading of `number`. Without a row for the number the slot
/// keeps what it holds: there is no default reading.
inline void SelectReading(std::u16string &slot, int16 number, ReadingTable table) {
    for (const Reading &reading : table) {
        if (reading.number == number) {
            slot = reading.text;
            return;
        }
    }
    TraceLeft(u"reading", slot);
}

namespace readings {

extern const Prose lifePath, destiny, soulUrge, innerDreams, birthday, karmicLessons, hiddenPassion;

extern const Prose personalYear, personalMonth, personalDay, essence;
extern const Prose lifePathPeriods;
extern const std::u16string_view periodStage1, periodStage2, periodStage3;
extern const Prose pinnacle;  ///< shared by the four pinnacles
extern const Prose challenge; ///< shared by the four challenges

extern const Prose karmicDebt, balance, subconsciousSelf, rationalThought;
extern const Prose hpBridge, leBridge;
extern const Prose realization;
extern const std::u16string_view realizationRefusal; ///< shown while Life Path or Destiny is 0
extern const std::u16string_view planesAbout;        ///< the planes have no readings of their own

} // namespace readings

} // namespace modReadings
