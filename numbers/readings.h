#pragma once

// The prose of the program: one table of readings per topic, the Abouts, and the other
// fixed texts. The texts themselves stand in numbers/readings/, one file per topic, as
// paragraphs divided by "\r\n"; a calculator picks a row by its number.

#include "core/int16.h"

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

/// Replaces `slot` by the reading of `number`. Without a row for the number the slot
/// keeps what it holds: there is no default reading.
inline void SelectReading(std::u16string &slot, int16 number, ReadingTable table) {
    for (const Reading &reading : table) {
        if (reading.number == number) {
            slot = reading.text;
            return;
        }
    }
}

namespace readings {

extern const ReadingTable lifePath;
extern const std::u16string_view lifePathAbout;
extern const ReadingTable destiny;
extern const std::u16string_view destinyAbout;
extern const ReadingTable soulUrge;
extern const std::u16string_view soulUrgeAbout;
extern const ReadingTable innerDreams;
extern const std::u16string_view innerDreamsAbout;
extern const ReadingTable birthday;
extern const std::u16string_view birthdayAbout;
extern const ReadingTable karmicLessons;
extern const std::u16string_view karmicLessonsAbout;
extern const ReadingTable hiddenPassion;
extern const std::u16string_view hiddenPassionAbout;

extern const ReadingTable personalYear;
extern const std::u16string_view personalYearAbout;
extern const ReadingTable personalMonth;
extern const std::u16string_view personalMonthAbout;
extern const ReadingTable personalDay;
extern const std::u16string_view personalDayAbout;
extern const ReadingTable lifePathPeriods;
extern const std::u16string_view lifePathPeriodsAbout;
extern const std::u16string_view periodStage1, periodStage2, periodStage3;
extern const ReadingTable pinnacle; ///< shared by the four pinnacles
extern const std::u16string_view pinnacleAbout;
extern const ReadingTable challenge; ///< shared by the four challenges
extern const std::u16string_view challengeAbout;
extern const ReadingTable essence;
extern const std::u16string_view essenceAbout;

extern const ReadingTable karmicDebt;
extern const std::u16string_view karmicDebtAbout;
extern const ReadingTable balance;
extern const std::u16string_view balanceAbout;
extern const ReadingTable subconsciousSelf;
extern const std::u16string_view subconsciousSelfAbout;
extern const ReadingTable rationalThought;
extern const std::u16string_view rationalThoughtAbout;
extern const ReadingTable hpBridge;
extern const std::u16string_view hpBridgeAbout;
extern const ReadingTable leBridge;
extern const std::u16string_view leBridgeAbout;
extern const ReadingTable realization;
extern const std::u16string_view realizationAbout;
extern const std::u16string_view realizationRefusal; ///< shown while Life Path or Destiny is 0

/// One part of PlanesAbout and how many line breaks stand behind it.
struct AboutPart {
    std::u16string_view text;
    int breaks;
};
extern const std::span<const AboutPart> planesAboutParts;

} // namespace readings

/// PlanesAbout, put together from its parts.
std::u16string PlanesAboutText();

} // namespace modReadings
