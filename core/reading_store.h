#pragma once

// Every result of every topic, as slots that the calculators write and the rendering
// reads. A topic's entry is a Number, a Text and an About under one topic word.
//
// At process start every text is empty and every number 0. Nothing ever clears the
// store: a calculator overwrites the slots of the branches it takes and leaves the
// others, so a slot can keep what the person before left in it. That is intended.

#include "core/int16.h"

#include <string>

namespace modReadings {

struct ReadingStore {
    int16 PersonalMonthNumber = 0;
    std::u16string PersonalMonthText, PersonalMonthAbout;

    std::u16string BirthdayText, BirthdayAbout; // the heading shows BirthDay itself

    int16 HiddenPassionNumber = 0;
    std::u16string HiddenPassionText, HiddenPassionAbout;

    int16 LifePathPeriodsNumber = 0; ///< index of the period now running, 1 to 3, not its number
    std::u16string LifePathPeriodsText;
    std::u16string PeriodLine1, PeriodStage1, PeriodLine2, PeriodStage2, PeriodLine3, PeriodStage3;
    std::u16string LifePathPeriodsAbout;

    std::u16string PersonalYearNumber; ///< a text, unlike its two siblings
    std::u16string PersonalYearText, PersonalYearAbout;

    int16 PinnacleNumber1 = 0, PinnacleNumber2 = 0, PinnacleNumber3 = 0, PinnacleNumber4 = 0;
    std::u16string PinnacleLabel1, PinnacleLabel2, PinnacleLabel3, PinnacleLabel4;
    std::u16string PinnacleText1, PinnacleText2, PinnacleText3, PinnacleText4;
    std::u16string PinnacleAbout;

    int16 SubconsciousSelfNumber = 0;
    std::u16string SubconsciousSelfText, SubconsciousSelfAbout;

    int16 LifePathNumber = 0;
    std::u16string LifePathText, LifePathAbout;

    int16 DestinyNumber = 0;
    std::u16string DestinyText, DestinyAbout;

    std::u16string KarmicLessonsNumber; ///< missing values, each behind a blank, the first too
    std::u16string KarmicLessonsText, KarmicLessonsAbout;

    std::u16string ChallengeNumber; ///< the four values with a blank between them
    std::u16string ChallengeLabel1, ChallengeLabel2, ChallengeLabel3, ChallengeLabel4;
    std::u16string ChallengeText1, ChallengeText2, ChallengeText3, ChallengeText4;
    std::u16string ChallengeAbout;

    int16 KarmicDebtNumber = 0; ///< 13, 14, 16, 19 or 0
    std::u16string KarmicDebtText, KarmicDebtAbout;

    int16 BalanceNumber = 0;
    std::u16string BalanceText, BalanceAbout;

    int16 PersonalDayNumber = 0;
    std::u16string PersonalDayText, PersonalDayAbout;

    int16 RationalThoughtNumber = 0;
    std::u16string RationalThoughtText, RationalThoughtAbout;

    int16 HPBridgeNumber = 0;
    std::u16string HPBridgeText, HPBridgeAbout;

    int16 LEBridgeNumber = 0;
    std::u16string LEBridgeText, LEBridgeAbout;

    int16 EssenceNumber = 0;
    std::u16string EssenceText, EssenceAbout;

    int16 RealizationNumber = 0;
    std::u16string RealizationText, RealizationAbout;

    int16 InnerDreamsNumber = 0;
    std::u16string InnerDreamsText, InnerDreamsAbout;

    std::u16string PlanesNumber; ///< the word of the dominant plane
    std::u16string PlanesText;   ///< the block of four lines
    std::u16string PlanesAbout;

    int16 SoulUrgeNumber = 0;
    std::u16string SoulUrgeText, SoulUrgeAbout;

    // Raw sums, which CalcKarmicDebt compares with its four numbers.
    int16 LifePathDaySum = 0; ///< digit sum of BirthDay alone
    int16 DestinyRaw = 0;
    int16 SoulUrgeRaw = 0;
    int16 InnerDreamsRaw = 0;
    int16 BirthdayRaw = 0; ///< BirthDay as a number

    // The four planes; ratings survive a run that does not assign them.
    std::u16string MentalLabel, PhysicalLabel, EmotionalLabel, IntuitiveLabel;
    int16 MentalPercent = 0, PhysicalPercent = 0, EmotionalPercent = 0, IntuitivePercent = 0;
    std::u16string MentalRating, PhysicalRating, EmotionalRating, IntuitiveRating;

    // Scratch slots, used in place of locals. They carry no result, but their values
    // survive from run to run, and MonthNumber reads ScratchLetter.
    int16 ScratchIndex = 0;
    std::u16string ScratchLetter; ///< last character of the latest name walk
    int16 ScratchSum = 0;
    int16 YUsedAsVowel = 0; ///< -1 once CalcSoulUrge has counted a Y; read nowhere
    std::u16string CurrentDayText, CurrentYearText;
    int16 BirthDayValue = 0;
    int16 PeriodNumber1 = 0, PeriodNumber2 = 0, PeriodNumber3 = 0; ///< reduced month, day, year
    int16 PeriodRoot = 0;
    std::u16string MissingDigitsScratch; ///< empty between runs of CalcSubconsciousSelf
};

/// The one store of the process.
inline ReadingStore store;

} // namespace modReadings
