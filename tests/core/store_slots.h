#pragma once

// Every slot of the store by its name, so that a test can say which slots a calculator
// wrote and which it left alone.

#include "core/reading_store.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace modReadings {

template <typename Type> struct Slot {
    const char *name;
    Type ReadingStore::*member;
};

#define SLOT(name)                                                                                 \
    { #name, &ReadingStore::name }

inline constexpr Slot<int16> numberSlots[] = {
    SLOT(PersonalMonthNumber),
    SLOT(HiddenPassionNumber),
    SLOT(LifePathPeriodsNumber),
    SLOT(PinnacleNumber1),
    SLOT(PinnacleNumber2),
    SLOT(PinnacleNumber3),
    SLOT(PinnacleNumber4),
    SLOT(SubconsciousSelfNumber),
    SLOT(LifePathNumber),
    SLOT(DestinyNumber),
    SLOT(KarmicDebtNumber),
    SLOT(BalanceNumber),
    SLOT(PersonalDayNumber),
    SLOT(RationalThoughtNumber),
    SLOT(HPBridgeNumber),
    SLOT(LEBridgeNumber),
    SLOT(EssenceNumber),
    SLOT(RealizationNumber),
    SLOT(InnerDreamsNumber),
    SLOT(SoulUrgeNumber),
    SLOT(LifePathDaySum),
    SLOT(DestinyRaw),
    SLOT(SoulUrgeRaw),
    SLOT(InnerDreamsRaw),
    SLOT(BirthdayRaw),
    SLOT(MentalPercent),
    SLOT(PhysicalPercent),
    SLOT(EmotionalPercent),
    SLOT(IntuitivePercent),
    SLOT(ScratchIndex),
    SLOT(ScratchSum),
    SLOT(YUsedAsVowel),
    SLOT(BirthDayValue),
    SLOT(PeriodNumber1),
    SLOT(PeriodNumber2),
    SLOT(PeriodNumber3),
    SLOT(PeriodRoot),
};

inline constexpr Slot<std::u16string> textSlots[] = {
    SLOT(PersonalMonthText),     SLOT(PersonalMonthAbout),   SLOT(BirthdayText),
    SLOT(BirthdayAbout),         SLOT(HiddenPassionText),    SLOT(HiddenPassionAbout),
    SLOT(LifePathPeriodsText),   SLOT(PeriodLine1),          SLOT(PeriodStage1),
    SLOT(PeriodLine2),           SLOT(PeriodStage2),         SLOT(PeriodLine3),
    SLOT(PeriodStage3),          SLOT(LifePathPeriodsAbout), SLOT(PersonalYearNumber),
    SLOT(PersonalYearText),      SLOT(PersonalYearAbout),    SLOT(PinnacleLabel1),
    SLOT(PinnacleLabel2),        SLOT(PinnacleLabel3),       SLOT(PinnacleLabel4),
    SLOT(PinnacleText1),         SLOT(PinnacleText2),        SLOT(PinnacleText3),
    SLOT(PinnacleText4),         SLOT(PinnacleAbout),        SLOT(SubconsciousSelfText),
    SLOT(SubconsciousSelfAbout), SLOT(LifePathText),         SLOT(LifePathAbout),
    SLOT(DestinyText),           SLOT(DestinyAbout),         SLOT(KarmicLessonsNumber),
    SLOT(KarmicLessonsText),     SLOT(KarmicLessonsAbout),   SLOT(ChallengeNumber),
    SLOT(ChallengeLabel1),       SLOT(ChallengeLabel2),      SLOT(ChallengeLabel3),
    SLOT(ChallengeLabel4),       SLOT(ChallengeText1),       SLOT(ChallengeText2),
    SLOT(ChallengeText3),        SLOT(ChallengeText4),       SLOT(ChallengeAbout),
    SLOT(KarmicDebtText),        SLOT(KarmicDebtAbout),      SLOT(BalanceText),
    SLOT(BalanceAbout),          SLOT(PersonalDayText),      SLOT(PersonalDayAbout),
    SLOT(RationalThoughtText),   SLOT(RationalThoughtAbout), SLOT(HPBridgeText),
    SLOT(HPBridgeAbout),         SLOT(LEBridgeText),         SLOT(LEBridgeAbout),
    SLOT(EssenceText),           SLOT(EssenceAbout),         SLOT(RealizationText),
    SLOT(RealizationAbout),      SLOT(InnerDreamsText),      SLOT(InnerDreamsAbout),
    SLOT(PlanesNumber),          SLOT(PlanesText),           SLOT(PlanesAbout),
    SLOT(SoulUrgeText),          SLOT(SoulUrgeAbout),        SLOT(MentalLabel),
    SLOT(PhysicalLabel),         SLOT(EmotionalLabel),       SLOT(IntuitiveLabel),
    SLOT(MentalRating),          SLOT(PhysicalRating),       SLOT(EmotionalRating),
    SLOT(IntuitiveRating),       SLOT(ScratchLetter),        SLOT(CurrentDayText),
    SLOT(CurrentYearText),       SLOT(MissingDigitsScratch),
};

#undef SLOT

namespace detail {

struct Anything {
    template <typename Type> operator Type() const; // NOLINT: takes any member's place
};

/// Whether the store has at least this many members.
template <std::size_t... Index> consteval bool HasMembers(std::index_sequence<Index...>) {
    return requires { ReadingStore{((void)Index, Anything{})...}; };
}

inline constexpr std::size_t slotCount = std::size(numberSlots) + std::size(textSlots);
static_assert(HasMembers(std::make_index_sequence<slotCount>()), "a slot is listed twice");
static_assert(!HasMembers(std::make_index_sequence<slotCount + 1>()), "a slot is not listed");

} // namespace detail

/// The names of the slots that `choose(before, after)` picks by their two values.
template <typename Choose>
std::vector<std::string> SlotsWhere(const ReadingStore &a, const ReadingStore &b, Choose choose) {
    std::vector<std::string> names;
    for (const auto &slot : numberSlots)
        if (choose(a.*slot.member, b.*slot.member))
            names.emplace_back(slot.name);
    for (const auto &slot : textSlots)
        if (choose(a.*slot.member, b.*slot.member))
            names.emplace_back(slot.name);
    std::ranges::sort(names);
    return names;
}

/// The names, sorted, of the slots in which the two stores differ.
inline std::vector<std::string> Changed(const ReadingStore &a, const ReadingStore &b) {
    return SlotsWhere(a, b, [](const auto &left, const auto &right) { return left != right; });
}

/// The names, sorted, of the slots that are alike in both stores.
inline std::vector<std::string> Kept(const ReadingStore &a, const ReadingStore &b) {
    return SlotsWhere(a, b, [](const auto &left, const auto &right) { return left == right; });
}

/// Names as a test lists them, sorted.
inline std::vector<std::string> Slots(std::vector<std::string> names) {
    std::ranges::sort(names);
    return names;
}

/// A store whose every slot holds what no calculator writes.
inline ReadingStore Marked() {
    ReadingStore marked;
    for (const auto &slot : numberSlots)
        marked.*slot.member = 777;
    for (const auto &slot : textSlots)
        marked.*slot.member = u"left by an earlier run";
    return marked;
}

} // namespace modReadings
