#pragma once

// Every slot of the store by its name, so that a test can say which slots a calculator
// wrote and which it left alone.

#include "core/reading_store.h"
#include "core/runtime_failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace modReadings {

template <typename Type> struct Slot {
    const char *name;
    Type ReadingStore::*member;
};

#define SLOT(name)                                                                                 \
    { #name, &ReadingStore::name }

inline constexpr Slot<int16> numberSlots[] = {SLOT(PersonalMonthNumber),
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
                                              SLOT(PeriodRoot)};

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

using SlotNames = std::set<std::string>;

/// The names of the slots that `choose(a, b)` picks by their two values.
template <typename Choose>
SlotNames SlotsWhere(const ReadingStore &a, const ReadingStore &b, Choose choose) {
    SlotNames names;
    for (const auto &[name, member] : numberSlots)
        if (choose(a.*member, b.*member))
            names.insert(name);
    for (const auto &[name, member] : textSlots)
        if (choose(a.*member, b.*member))
            names.insert(name);
    return names;
}

/// The names of the slots in which the two stores differ.
inline SlotNames Changed(const ReadingStore &a, const ReadingStore &b) {
    return SlotsWhere(a, b, [](const auto &left, const auto &right) { return left != right; });
}

/// The names of the slots that are alike in both stores.
inline SlotNames Kept(const ReadingStore &a, const ReadingStore &b) {
    return SlotsWhere(a, b, [](const auto &left, const auto &right) { return left == right; });
}

/// The slots whose names begin with one of these.
inline SlotNames SlotsOf(std::initializer_list<std::string_view> beginnings) {
    SlotNames all = SlotsWhere(store, store, [](const auto &, const auto &) { return true; });
    std::erase_if(all, [&](const std::string &name) {
        return std::ranges::none_of(beginnings, [&](auto part) { return name.starts_with(part); });
    });
    return all;
}

/// The slots in which the store differs from `before`. ScratchIndex is left out: it is the
/// index of whatever walk came last and no result.
inline SlotNames ChangedSince(const ReadingStore &before) {
    SlotNames changed = Changed(before, store);
    changed.erase("ScratchIndex");
    return changed;
}

/// A store in which every slot holds something of its own that no calculator writes, so
/// that each write shows. The numbers are positive, for a calculator that reads one of them
/// has to be able to fold it. ScratchLetter becomes a text that is no month's number.
inline ReadingStore MarkedStore() {
    ReadingStore marked;
    int16 mark = 5000;
    for (const auto &[name, member] : numberSlots)
        marked.*member = mark++;
    for (const auto &[name, member] : textSlots)
        marked.*member =
            u"old " + std::u16string(name, name + std::char_traits<char>::length(name));
    return marked;
}

/// The slots that `calculate` writes in a marked store.
template <typename Calculate> SlotNames WrittenBy(Calculate calculate) {
    const ReadingStore marked = store = MarkedStore();
    calculate();
    return ChangedSince(marked);
}

/// The slots that `calculate` writes in a marked store before it fails, as it must.
template <typename Calculate> SlotNames WrittenBeforeFailure(Calculate calculate) {
    return WrittenBy([&] { EXPECT_THROW(calculate(), RuntimeFailure); });
}

} // namespace modReadings
