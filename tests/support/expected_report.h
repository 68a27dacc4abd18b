#pragma once

// The report as it has to be, written down a second time and independently of the table that
// the program renders from: the captions, headings and blocks of the 22 topics. What stands
// between the literals comes from the store as it is.

#include "core/reading_store.h"
#include "core/text.h"
#include "core/user_profile.h"
#include "report/report.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace modReadings {

/// One write behind the heading: a literal and a slot, then line breaks.
struct ExpectedBlock {
    std::u16string ReadingStore::*slot = nullptr;
    int breaks = 0;
    std::u16string_view before;
};

struct ExpectedTopic {
    std::u16string_view caption;
    std::u16string_view heading;
    /// What stands behind the heading: nothing, a number, a text, or the birth day as a number.
    std::variant<std::monostate, int16 ReadingStore::*, std::u16string ReadingStore::*,
                 std::u16string UserProfile::*>
        number;
    std::array<ExpectedBlock, 9> blocks; ///< up to the first without a slot

    /// The text behind the heading. BirthDay must be a number.
    std::u16string NumberText() const {
        if (const auto *slot = std::get_if<int16 ReadingStore::*>(&number))
            return DecimalText(store.**slot);
        if (const auto *slot = std::get_if<std::u16string ReadingStore::*>(&number))
            return store.**slot;
        if (const auto *slot = std::get_if<std::u16string UserProfile::*>(&number))
            return DecimalText(NumberFromText(profile.**slot));
        return {};
    }
};

/// The 22 topics in the order of the tree.
inline constexpr std::array<ExpectedTopic, 22> treeTopics = [] {
    using S = ReadingStore;
    const auto standard = [](std::u16string S::*about, std::u16string S::*text) {
        return std::array<ExpectedBlock, 9>{{{about, 2, {}}, {text, 0, {}}}};
    };
    return std::array<ExpectedTopic, 22>{{
        {u"Personal Month", u"Your Personal Month is: ", &S::PersonalMonthNumber,
         standard(&S::PersonalMonthAbout, &S::PersonalMonthText)},
        {u"Hidden Passion Number", u"Your Hidden Passion Number is: ", &S::HiddenPassionNumber,
         standard(&S::HiddenPassionAbout, &S::HiddenPassionText)},
        {u"Life Path Periods",
         u"Your Current LifePath Period Number is: ",
         &S::LifePathPeriodsNumber,
         {{{&S::LifePathPeriodsAbout, 2, {}},
           {&S::LifePathPeriodsText, 2, {}},
           {&S::PeriodLine1, 1, {}},
           {&S::PeriodStage1, 2, {}},
           {&S::PeriodLine2, 1, {}},
           {&S::PeriodStage2, 2, {}},
           {&S::PeriodLine3, 1, {}},
           {&S::PeriodStage3, 0, {}}}}},
        {u"Personal Year", u"Your Personal Year Number is: ", &S::PersonalYearNumber,
         standard(&S::PersonalYearAbout, &S::PersonalYearText)},
        {u"Pinnacle Phases",
         u"Pinnacle Phases",
         {},
         {{{&S::PinnacleAbout, 2, {}},
           {&S::PinnacleLabel1, 1, {}},
           {&S::PinnacleText1, 2, {}},
           {&S::PinnacleLabel2, 1, {}},
           {&S::PinnacleText2, 2, {}},
           {&S::PinnacleLabel3, 1, {}},
           {&S::PinnacleText3, 2, {}},
           {&S::PinnacleLabel4, 1, {}},
           {&S::PinnacleText4, 0, {}}}}},
        {u"Subconscious Self Number", u"Your Subconscious Self Number is: ",
         &S::SubconsciousSelfNumber, standard(&S::SubconsciousSelfAbout, &S::SubconsciousSelfText)},
        {u"Life Path Number", u"Your Life Path Number is: ", &S::LifePathNumber,
         standard(&S::LifePathAbout, &S::LifePathText)},
        {u"Destiny / Expressions Number", u"Your Destiny Or Expression Number is: ",
         &S::DestinyNumber, standard(&S::DestinyAbout, &S::DestinyText)},
        {u"Karmic Lessons Number", u"Your Karmic Lessons Number is: ", &S::KarmicLessonsNumber,
         standard(&S::KarmicLessonsAbout, &S::KarmicLessonsText)},
        {u"Birthday Number", u"Your BirthDay Number is: ", &UserProfile::BirthDay,
         standard(&S::BirthdayAbout, &S::BirthdayText)},
        {u"Challenge Number",
         u"Your Challenge Number is: ",
         &S::ChallengeNumber,
         {{{&S::ChallengeAbout, 2, {}},
           {&S::ChallengeLabel1, 1, {}},
           {&S::ChallengeText1, 2, {}},
           {&S::ChallengeLabel2, 1, {}},
           {&S::ChallengeText2, 2, {}},
           {&S::ChallengeLabel3, 1, {}},
           {&S::ChallengeText3, 2, {}},
           {&S::ChallengeLabel4, 1, {}},
           {&S::ChallengeText4, 0, {}}}}},
        {u"Karmic Debt Numbers", u"Your Karmic Debt Number is: ", &S::KarmicDebtNumber,
         standard(&S::KarmicDebtAbout, &S::KarmicDebtText)},
        {u"Balance Number", u"Your Balance Number is: ", &S::BalanceNumber,
         standard(&S::BalanceAbout, &S::BalanceText)},
        {u"Personal Day", u"Your Personal Day is: ", &S::PersonalDayNumber,
         standard(&S::PersonalDayAbout, &S::PersonalDayText)},
        {u"Rational Thought Number", u"Your Rational Thought Number is: ",
         &S::RationalThoughtNumber, standard(&S::RationalThoughtAbout, &S::RationalThoughtText)},
        {u"H/P Bridge Number", u"Your HP Bridge Number is: ", &S::HPBridgeNumber,
         standard(&S::HPBridgeAbout, &S::HPBridgeText)},
        {u"L/E Bridge Number", u"Your LE Bridge Number is: ", &S::LEBridgeNumber,
         standard(&S::LEBridgeAbout, &S::LEBridgeText)},
        {u"Essence", u"Your Essence Number is: ", &S::EssenceNumber,
         standard(&S::EssenceAbout, &S::EssenceText)},
        {u"Realization / Maturity Number", u"Your Realization Or Maturity Number is: ",
         &S::RealizationNumber, standard(&S::RealizationAbout, &S::RealizationText)},
        {u"Inner Dreams / Personality Number", u"Your Inner Dreams Or Personality Number is: ",
         &S::InnerDreamsNumber, standard(&S::InnerDreamsAbout, &S::InnerDreamsText)},
        {u"Planes Of Expression / Personal Aspects",
         u"Your Planes of Expression is towards ",
         &S::PlanesNumber,
         {{{&S::PlanesText, 2, u"Your Personal Aspects: "}, {&S::PlanesAbout, 0, {}}}}},
        {u"Soul Urge / Heart's Desire Number", u"Your Soul Urge Or Heart's Desire Number is: ",
         &S::SoulUrgeNumber, standard(&S::SoulUrgeAbout, &S::SoulUrgeText)},
    }};
}();

/// The same in the order of the pass and of the Comprehensive Reading, where the tenth comes
/// second.
inline constexpr auto passTopics = [] {
    auto topics = treeTopics;
    std::rotate(topics.begin() + 1, topics.begin() + 9, topics.begin() + 10);
    return topics;
}();
static_assert(passTopics[1].caption == u"Birthday Number");
static_assert(passTopics[10].caption == u"Challenge Number");

/// The caption of the whole report, which is no topic, and the title that the report has.
inline constexpr std::u16string_view comprehensiveCaption = u"Comprehensive Reading";
inline constexpr std::u16string_view comprehensiveTitle = u"Orravane Comprehensive Reading";

/// The topic with this caption. Throws std::invalid_argument where there is none.
inline const ExpectedTopic &ExpectedTopicOf(std::u16string_view caption) {
    const auto *topic = std::ranges::find(treeTopics, caption, &ExpectedTopic::caption);
    if (topic == treeTopics.end())
        throw std::invalid_argument("no such topic");
    return *topic;
}

/// The page of a topic by itself: a bold heading and the blocks. The last block has at least
/// `closingBreaks`.
inline Report ExpectedPage(const ExpectedTopic &topic, int closingBreaks = 0) {
    Report report{{std::u16string(topic.heading) + topic.NumberText() + u"\r\n\r\n", true}};
    for (std::size_t index = 0; index < topic.blocks.size() && topic.blocks[index].slot; ++index) {
        const ExpectedBlock &block = topic.blocks[index];
        const bool last = index + 1 == topic.blocks.size() || !topic.blocks[index + 1].slot;
        Run run{std::u16string(block.before) + store.*block.slot};
        for (int left = last ? std::max(block.breaks, closingBreaks) : block.breaks; left > 0;
             --left)
            run.text += u"\r\n";
        report.push_back(run);
    }
    return report;
}

inline Report ExpectedPage(std::u16string_view caption) {
    return ExpectedPage(ExpectedTopicOf(caption));
}

/// The whole report: the title, then the pages of the topics, each ending in two line breaks.
inline Report ExpectedComprehensiveReading() {
    Report report{{std::u16string(comprehensiveTitle) + u"\r\n\r\n", true}};
    for (const ExpectedTopic &topic : passTopics)
        for (const Run &run : ExpectedPage(topic, 2))
            report.push_back(run);
    return report;
}

} // namespace modReadings
