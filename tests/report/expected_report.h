#pragma once

// The pages of the 22 topics as they have to be, block by block, written down a second
// time and independently of the table that the program renders from. The texts between
// the literals come from the store as it stands.

#include "core/reading_store.h"
#include "core/text.h"
#include "core/user_profile.h"
#include "report/run_list.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace modReadings {

/// One write: a text and the line breaks behind it.
struct ExpectedBlock {
    std::u16string text;
    int breaks;
};

/// The captions of the tree's 22 topics, in the order of the tree.
inline constexpr std::array<std::u16string_view, 22> treeOrder{
    u"Personal Month",
    u"Hidden Passion Number",
    u"Life Path Periods",
    u"Personal Year",
    u"Pinnacle Phases",
    u"Subconscious Self Number",
    u"Life Path Number",
    u"Destiny / Expressions Number",
    u"Karmic Lessons Number",
    u"Birthday Number",
    u"Challenge Number",
    u"Karmic Debt Numbers",
    u"Balance Number",
    u"Personal Day",
    u"Rational Thought Number",
    u"H/P Bridge Number",
    u"L/E Bridge Number",
    u"Essence",
    u"Realization / Maturity Number",
    u"Inner Dreams / Personality Number",
    u"Planes Of Expression / Personal Aspects",
    u"Soul Urge / Heart's Desire Number"};

/// The same captions in the order of the Comprehensive Reading, where the tenth comes second.
inline constexpr auto readingOrder = [] {
    auto order = treeOrder;
    std::rotate(order.begin() + 1, order.begin() + 9, order.begin() + 10);
    return order;
}();
static_assert(readingOrder[1] == u"Birthday Number" && readingOrder[10] == u"Challenge Number");

/// The blocks of a topic's page, the bold heading first. BirthDay must be a number.
inline std::vector<ExpectedBlock> ExpectedBlocks(std::u16string_view caption) {
    const ReadingStore &s = store;
    const auto standard = [](std::u16string heading, const std::u16string &about,
                             const std::u16string &text) -> std::vector<ExpectedBlock> {
        return {{std::move(heading), 2}, {about, 2}, {text, 0}};
    };

    if (caption == u"Personal Month")
        return standard(u"Your Personal Month is: " + DecimalText(s.PersonalMonthNumber),
                        s.PersonalMonthAbout, s.PersonalMonthText);
    if (caption == u"Hidden Passion Number")
        return standard(u"Your Hidden Passion Number is: " + DecimalText(s.HiddenPassionNumber),
                        s.HiddenPassionAbout, s.HiddenPassionText);
    if (caption == u"Life Path Periods")
        return {
            {u"Your Current LifePath Period Number is: " + DecimalText(s.LifePathPeriodsNumber), 2},
            {s.LifePathPeriodsAbout, 2},
            {s.LifePathPeriodsText, 2},
            {s.PeriodLine1, 1},
            {s.PeriodStage1, 2},
            {s.PeriodLine2, 1},
            {s.PeriodStage2, 2},
            {s.PeriodLine3, 1},
            {s.PeriodStage3, 0}};
    if (caption == u"Personal Year")
        return standard(u"Your Personal Year Number is: " + s.PersonalYearNumber,
                        s.PersonalYearAbout, s.PersonalYearText);
    if (caption == u"Pinnacle Phases")
        return {{u"Pinnacle Phases", 2}, {s.PinnacleAbout, 2},  {s.PinnacleLabel1, 1},
                {s.PinnacleText1, 2},    {s.PinnacleLabel2, 1}, {s.PinnacleText2, 2},
                {s.PinnacleLabel3, 1},   {s.PinnacleText3, 2},  {s.PinnacleLabel4, 1},
                {s.PinnacleText4, 0}};
    if (caption == u"Subconscious Self Number")
        return standard(u"Your Subconscious Self Number is: " +
                            DecimalText(s.SubconsciousSelfNumber),
                        s.SubconsciousSelfAbout, s.SubconsciousSelfText);
    if (caption == u"Life Path Number")
        return standard(u"Your Life Path Number is: " + DecimalText(s.LifePathNumber),
                        s.LifePathAbout, s.LifePathText);
    if (caption == u"Destiny / Expressions Number")
        return standard(u"Your Destiny Or Expression Number is: " + DecimalText(s.DestinyNumber),
                        s.DestinyAbout, s.DestinyText);
    if (caption == u"Karmic Lessons Number")
        return standard(u"Your Karmic Lessons Number is: " + s.KarmicLessonsNumber,
                        s.KarmicLessonsAbout, s.KarmicLessonsText);
    if (caption == u"Birthday Number")
        return standard(u"Your BirthDay Number is: " +
                            DecimalText(NumberFromText(profile.BirthDay)),
                        s.BirthdayAbout, s.BirthdayText);
    if (caption == u"Challenge Number")
        return {{u"Your Challenge Number is: " + s.ChallengeNumber, 2},
                {s.ChallengeAbout, 2},
                {s.ChallengeLabel1, 1},
                {s.ChallengeText1, 2},
                {s.ChallengeLabel2, 1},
                {s.ChallengeText2, 2},
                {s.ChallengeLabel3, 1},
                {s.ChallengeText3, 2},
                {s.ChallengeLabel4, 1},
                {s.ChallengeText4, 0}};
    if (caption == u"Karmic Debt Numbers")
        return standard(u"Your Karmic Debt Number is: " + DecimalText(s.KarmicDebtNumber),
                        s.KarmicDebtAbout, s.KarmicDebtText);
    if (caption == u"Balance Number")
        return standard(u"Your Balance Number is: " + DecimalText(s.BalanceNumber), s.BalanceAbout,
                        s.BalanceText);
    if (caption == u"Personal Day")
        return standard(u"Your Personal Day is: " + DecimalText(s.PersonalDayNumber),
                        s.PersonalDayAbout, s.PersonalDayText);
    if (caption == u"Rational Thought Number")
        return standard(u"Your Rational Thought Number is: " + DecimalText(s.RationalThoughtNumber),
                        s.RationalThoughtAbout, s.RationalThoughtText);
    if (caption == u"H/P Bridge Number")
        return standard(u"Your HP Bridge Number is: " + DecimalText(s.HPBridgeNumber),
                        s.HPBridgeAbout, s.HPBridgeText);
    if (caption == u"L/E Bridge Number")
        return standard(u"Your LE Bridge Number is: " + DecimalText(s.LEBridgeNumber),
                        s.LEBridgeAbout, s.LEBridgeText);
    if (caption == u"Essence")
        return standard(u"Your Essence Number is: " + DecimalText(s.EssenceNumber), s.EssenceAbout,
                        s.EssenceText);
    if (caption == u"Realization / Maturity Number")
        return standard(u"Your Realization Or Maturity Number is: " +
                            DecimalText(s.RealizationNumber),
                        s.RealizationAbout, s.RealizationText);
    if (caption == u"Inner Dreams / Personality Number")
        return standard(u"Your Inner Dreams Or Personality Number is: " +
                            DecimalText(s.InnerDreamsNumber),
                        s.InnerDreamsAbout, s.InnerDreamsText);
    if (caption == u"Planes Of Expression / Personal Aspects")
        return {{u"Your Planes of Expression is towards " + s.PlanesNumber, 2},
                {u"Your Personal Aspects: " + s.PlanesText, 2},
                {s.PlanesAbout, 0}};
    if (caption == u"Soul Urge / Heart's Desire Number")
        return standard(u"Your Soul Urge Or Heart's Desire Number is: " +
                            DecimalText(s.SoulUrgeNumber),
                        s.SoulUrgeAbout, s.SoulUrgeText);
    throw std::invalid_argument("no such topic");
}

/// Blocks as runs: the first one bold, all of them in magenta.
inline std::vector<Run> RunsOf(const std::vector<ExpectedBlock> &blocks) {
    std::vector<Run> runs;
    for (const ExpectedBlock &block : blocks) {
        Run run{block.text, runs.empty(), {128, 0, 128}};
        for (int written = 0; written < block.breaks; ++written)
            run.text += u"\r\n";
        runs.push_back(run);
    }
    return runs;
}

/// The page of a topic by itself.
inline std::vector<Run> ExpectedPage(std::u16string_view caption) {
    return RunsOf(ExpectedBlocks(caption));
}

/// The same within the Comprehensive Reading, where the last block has two line breaks.
inline std::vector<Run> ExpectedSection(std::u16string_view caption) {
    std::vector<ExpectedBlock> blocks = ExpectedBlocks(caption);
    blocks.back().breaks = 2;
    return RunsOf(blocks);
}

} // namespace modReadings
