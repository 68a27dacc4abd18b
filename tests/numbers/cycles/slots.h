#pragma once

// Every slot of the store by its name, so that a test can say which slots a run has
// written and, above all, which it has not.

#include "core/reading_store.h"

#include <set>
#include <string>

namespace modReadings {

struct NumberSlot {
    const char *name;
    int16 ReadingStore::*member;
};
struct TextSlot {
    const char *name;
    std::u16string ReadingStore::*member;
};

#define ORRAVANE_SLOT(slot)                                                                        \
    { #slot, &ReadingStore::slot }

inline constexpr NumberSlot numberSlots[] = {
    ORRAVANE_SLOT(PersonalMonthNumber),   ORRAVANE_SLOT(HiddenPassionNumber),
    ORRAVANE_SLOT(LifePathPeriodsNumber), ORRAVANE_SLOT(PinnacleNumber1),
    ORRAVANE_SLOT(PinnacleNumber2),       ORRAVANE_SLOT(PinnacleNumber3),
    ORRAVANE_SLOT(PinnacleNumber4),       ORRAVANE_SLOT(SubconsciousSelfNumber),
    ORRAVANE_SLOT(LifePathNumber),        ORRAVANE_SLOT(DestinyNumber),
    ORRAVANE_SLOT(KarmicDebtNumber),      ORRAVANE_SLOT(BalanceNumber),
    ORRAVANE_SLOT(PersonalDayNumber),     ORRAVANE_SLOT(RationalThoughtNumber),
    ORRAVANE_SLOT(HPBridgeNumber),        ORRAVANE_SLOT(LEBridgeNumber),
    ORRAVANE_SLOT(EssenceNumber),         ORRAVANE_SLOT(RealizationNumber),
    ORRAVANE_SLOT(InnerDreamsNumber),     ORRAVANE_SLOT(SoulUrgeNumber),
    ORRAVANE_SLOT(LifePathDaySum),        ORRAVANE_SLOT(DestinyRaw),
    ORRAVANE_SLOT(SoulUrgeRaw),           ORRAVANE_SLOT(InnerDreamsRaw),
    ORRAVANE_SLOT(BirthdayRaw),           ORRAVANE_SLOT(MentalPercent),
    ORRAVANE_SLOT(PhysicalPercent),       ORRAVANE_SLOT(EmotionalPercent),
    ORRAVANE_SLOT(IntuitivePercent),      ORRAVANE_SLOT(ScratchSum),
    ORRAVANE_SLOT(YUsedAsVowel),          ORRAVANE_SLOT(BirthDayValue),
    ORRAVANE_SLOT(PeriodNumber1),         ORRAVANE_SLOT(PeriodNumber2),
    ORRAVANE_SLOT(PeriodNumber3),         ORRAVANE_SLOT(PeriodRoot),
};

inline constexpr TextSlot textSlots[] = {
    ORRAVANE_SLOT(PersonalMonthText),    ORRAVANE_SLOT(PersonalMonthAbout),
    ORRAVANE_SLOT(BirthdayText),         ORRAVANE_SLOT(BirthdayAbout),
    ORRAVANE_SLOT(HiddenPassionText),    ORRAVANE_SLOT(HiddenPassionAbout),
    ORRAVANE_SLOT(LifePathPeriodsText),  ORRAVANE_SLOT(PeriodLine1),
    ORRAVANE_SLOT(PeriodStage1),         ORRAVANE_SLOT(PeriodLine2),
    ORRAVANE_SLOT(PeriodStage2),         ORRAVANE_SLOT(PeriodLine3),
    ORRAVANE_SLOT(PeriodStage3),         ORRAVANE_SLOT(LifePathPeriodsAbout),
    ORRAVANE_SLOT(PersonalYearNumber),   ORRAVANE_SLOT(PersonalYearText),
    ORRAVANE_SLOT(PersonalYearAbout),    ORRAVANE_SLOT(PinnacleLabel1),
    ORRAVANE_SLOT(PinnacleLabel2),       ORRAVANE_SLOT(PinnacleLabel3),
    ORRAVANE_SLOT(PinnacleLabel4),       ORRAVANE_SLOT(PinnacleText1),
    ORRAVANE_SLOT(PinnacleText2),        ORRAVANE_SLOT(PinnacleText3),
    ORRAVANE_SLOT(PinnacleText4),        ORRAVANE_SLOT(PinnacleAbout),
    ORRAVANE_SLOT(SubconsciousSelfText), ORRAVANE_SLOT(SubconsciousSelfAbout),
    ORRAVANE_SLOT(LifePathText),         ORRAVANE_SLOT(LifePathAbout),
    ORRAVANE_SLOT(DestinyText),          ORRAVANE_SLOT(DestinyAbout),
    ORRAVANE_SLOT(KarmicLessonsNumber),  ORRAVANE_SLOT(KarmicLessonsText),
    ORRAVANE_SLOT(KarmicLessonsAbout),   ORRAVANE_SLOT(ChallengeNumber),
    ORRAVANE_SLOT(ChallengeLabel1),      ORRAVANE_SLOT(ChallengeLabel2),
    ORRAVANE_SLOT(ChallengeLabel3),      ORRAVANE_SLOT(ChallengeLabel4),
    ORRAVANE_SLOT(ChallengeText1),       ORRAVANE_SLOT(ChallengeText2),
    ORRAVANE_SLOT(ChallengeText3),       ORRAVANE_SLOT(ChallengeText4),
    ORRAVANE_SLOT(ChallengeAbout),       ORRAVANE_SLOT(KarmicDebtText),
    ORRAVANE_SLOT(KarmicDebtAbout),      ORRAVANE_SLOT(BalanceText),
    ORRAVANE_SLOT(BalanceAbout),         ORRAVANE_SLOT(PersonalDayText),
    ORRAVANE_SLOT(PersonalDayAbout),     ORRAVANE_SLOT(RationalThoughtText),
    ORRAVANE_SLOT(RationalThoughtAbout), ORRAVANE_SLOT(HPBridgeText),
    ORRAVANE_SLOT(HPBridgeAbout),        ORRAVANE_SLOT(LEBridgeText),
    ORRAVANE_SLOT(LEBridgeAbout),        ORRAVANE_SLOT(EssenceText),
    ORRAVANE_SLOT(EssenceAbout),         ORRAVANE_SLOT(RealizationText),
    ORRAVANE_SLOT(RealizationAbout),     ORRAVANE_SLOT(InnerDreamsText),
    ORRAVANE_SLOT(InnerDreamsAbout),     ORRAVANE_SLOT(PlanesNumber),
    ORRAVANE_SLOT(PlanesText),           ORRAVANE_SLOT(PlanesAbout),
    ORRAVANE_SLOT(SoulUrgeText),         ORRAVANE_SLOT(SoulUrgeAbout),
    ORRAVANE_SLOT(MentalLabel),          ORRAVANE_SLOT(PhysicalLabel),
    ORRAVANE_SLOT(EmotionalLabel),       ORRAVANE_SLOT(IntuitiveLabel),
    ORRAVANE_SLOT(MentalRating),         ORRAVANE_SLOT(PhysicalRating),
    ORRAVANE_SLOT(EmotionalRating),      ORRAVANE_SLOT(IntuitiveRating),
    ORRAVANE_SLOT(ScratchLetter),        ORRAVANE_SLOT(CurrentDayText),
    ORRAVANE_SLOT(CurrentYearText),      ORRAVANE_SLOT(MissingDigitsScratch),
};

#undef ORRAVANE_SLOT

using SlotNames = std::set<std::string>;

/// The slots in which `store` differs from `before`. ScratchIndex is left out: it is the
/// index of whatever walk came last and no result.
inline SlotNames ChangedSince(const ReadingStore &before) {
    SlotNames changed;
    for (const auto &[name, member] : numberSlots)
        if (store.*member != before.*member)
            changed.insert(name);
    for (const auto &[name, member] : textSlots)
        if (store.*member != before.*member)
            changed.insert(name);
    return changed;
}

/// A store in which every slot holds something that no calculator writes, so that each
/// write shows. ScratchLetter becomes a text that is no month's number.
inline ReadingStore MarkedStore() {
    ReadingStore marked;
    int16 mark = -7000;
    for (const auto &[name, member] : numberSlots)
        marked.*member = mark--;
    for (const auto &[name, member] : textSlots)
        marked.*member =
            u"old " + std::u16string(name, name + std::char_traits<char>::length(name));
    return marked;
}

} // namespace modReadings
