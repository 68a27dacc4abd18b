#include "report/topics.h"

#include "core/text.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"

#include <algorithm>

namespace modReadings {

namespace {

using S = ReadingStore;

/// The 17 topics of the common form: About, an empty line, Text.
constexpr Topic Standard(std::u16string_view caption, std::u16string_view heading,
                         HeadingNumber number, Calculator calculate, TextSlot about,
                         TextSlot text) {
    return {caption, heading, number, calculate, {{{about, 2, {}, true}, {text, 0, {}}}}};
}

constexpr std::array topics{
    Standard(u"Personal Month", u"Your Personal Month is: ", &S::PersonalMonthNumber,
             CalcPersonalMonth, &S::PersonalMonthAbout, &S::PersonalMonthText),
    Standard(u"Hidden Passion Number", u"Your Hidden Passion Number is: ", &S::HiddenPassionNumber,
             CalcHiddenPassion, &S::HiddenPassionAbout, &S::HiddenPassionText),
    Topic{u"Life Path Periods",
          u"Your Current LifePath Period Number is: ",
          &S::LifePathPeriodsNumber,
          CalcLifePathPeriods,
          {{{&S::LifePathPeriodsAbout, 2, {}, true},
            {&S::LifePathPeriodsText, 2, {}},
            {&S::PeriodLine1, 1, {}},
            {&S::PeriodStage1, 2, {}},
            {&S::PeriodLine2, 1, {}},
            {&S::PeriodStage2, 2, {}},
            {&S::PeriodLine3, 1, {}},
            {&S::PeriodStage3, 0, {}}}}},
    Standard(u"Personal Year", u"Your Personal Year Number is: ", &S::PersonalYearNumber,
             CalcPersonalYear, &S::PersonalYearAbout, &S::PersonalYearText),
    Topic{u"Pinnacle Phases",
          u"Pinnacle Phases",
          NoNumber{},
          CalcPinnacles,
          {{{&S::PinnacleAbout, 2, {}, true},
            {&S::PinnacleLabel1, 1, {}},
            {&S::PinnacleText1, 2, {}},
            {&S::PinnacleLabel2, 1, {}},
            {&S::PinnacleText2, 2, {}},
            {&S::PinnacleLabel3, 1, {}},
            {&S::PinnacleText3, 2, {}},
            {&S::PinnacleLabel4, 1, {}},
            {&S::PinnacleText4, 0, {}}}}},
    Standard(u"Subconscious Self Number", u"Your Subconscious Self Number is: ",
             &S::SubconsciousSelfNumber, CalcSubconsciousSelf, &S::SubconsciousSelfAbout,
             &S::SubconsciousSelfText),
    Standard(u"Life Path Number", u"Your Life Path Number is: ", &S::LifePathNumber, CalcLifePath,
             &S::LifePathAbout, &S::LifePathText),
    Standard(u"Destiny / Expressions Number", u"Your Destiny Or Expression Number is: ",
             &S::DestinyNumber, CalcDestiny, &S::DestinyAbout, &S::DestinyText),
    Topic{u"Karmic Lessons Number",
          u"Your Karmic Lessons Number is: ",
          &S::KarmicLessonsNumber,
          CalcKarmicLessons,
          {{{&S::KarmicLessonsAbout, 2, {}, true}, {&S::KarmicLessonsText, 0, {}, false, true}}}},
    Standard(u"Birthday Number", u"Your BirthDay Number is: ", BirthDayAsNumber{}, CalcBirthday,
             &S::BirthdayAbout, &S::BirthdayText),
    Topic{u"Challenge Number",
          u"Your Challenge Number is: ",
          &S::ChallengeNumber,
          CalcChallenges,
          {{{&S::ChallengeAbout, 2, {}, true},
            {&S::ChallengeLabel1, 1, {}},
            {&S::ChallengeText1, 2, {}},
            {&S::ChallengeLabel2, 1, {}},
            {&S::ChallengeText2, 2, {}},
            {&S::ChallengeLabel3, 1, {}},
            {&S::ChallengeText3, 2, {}},
            {&S::ChallengeLabel4, 1, {}},
            {&S::ChallengeText4, 0, {}}}}},
    Standard(u"Karmic Debt Numbers", u"Your Karmic Debt Number is: ", &S::KarmicDebtNumber,
             CalcKarmicDebt, &S::KarmicDebtAbout, &S::KarmicDebtText),
    Standard(u"Balance Number", u"Your Balance Number is: ", &S::BalanceNumber, CalcBalance,
             &S::BalanceAbout, &S::BalanceText),
    Standard(u"Personal Day", u"Your Personal Day is: ", &S::PersonalDayNumber, CalcPersonalDay,
             &S::PersonalDayAbout, &S::PersonalDayText),
    Standard(u"Rational Thought Number", u"Your Rational Thought Number is: ",
             &S::RationalThoughtNumber, CalcRationalThought, &S::RationalThoughtAbout,
             &S::RationalThoughtText),
    Standard(u"H/P Bridge Number", u"Your HP Bridge Number is: ", &S::HPBridgeNumber, CalcHPBridge,
             &S::HPBridgeAbout, &S::HPBridgeText),
    Standard(u"L/E Bridge Number", u"Your LE Bridge Number is: ", &S::LEBridgeNumber, CalcLEBridge,
             &S::LEBridgeAbout, &S::LEBridgeText),
    Standard(u"Essence", u"Your Essence Number is: ", &S::EssenceNumber, CalcEssence,
             &S::EssenceAbout, &S::EssenceText),
    Standard(u"Realization / Maturity Number", u"Your Realization Or Maturity Number is: ",
             &S::RealizationNumber, CalcRealization, &S::RealizationAbout, &S::RealizationText),
    Standard(u"Inner Dreams / Personality Number", u"Your Inner Dreams Or Personality Number is: ",
             &S::InnerDreamsNumber, CalcInnerDreams, &S::InnerDreamsAbout, &S::InnerDreamsText),
    // The one topic with its About at the end.
    Topic{
        u"Planes Of Expression / Personal Aspects",
        u"Your Planes of Expression is towards ",
        &S::PlanesNumber,
        CalcPlanes,
        {{{&S::PlanesText, 2, u"Your Personal Aspects: "}, {&S::PlanesAbout, 0, {}, true, true}}}},
    Standard(u"Soul Urge / Heart's Desire Number", u"Your Soul Urge Or Heart's Desire Number is: ",
             &S::SoulUrgeNumber, CalcSoulUrge, &S::SoulUrgeAbout, &S::SoulUrgeText),
};
static_assert(topics.size() == calculatorCount);

struct NumberText {
    std::u16string operator()(NoNumber) const { return {}; }
    std::u16string operator()(BirthDayAsNumber) const {
        return DecimalText(NumberFromText(profile.BirthDay));
    }
    std::u16string operator()(NumberSlot slot) const { return DecimalText(store.*slot); }
    std::u16string operator()(TextSlot slot) const { return store.*slot; }
};

} // namespace

std::span<const Topic> Topics() { return topics; }

const Topic *FindTopic(std::u16string_view caption) {
    const auto found = std::ranges::find(topics, caption, &Topic::caption);
    return found == topics.end() ? nullptr : &*found;
}

const Topic &TopicOf(Calculator calculate) {
    return *std::ranges::find(topics, calculate, &Topic::calculate);
}

std::u16string HeadingNumberText(const Topic &topic) {
    return std::visit(NumberText{}, topic.number);
}

} // namespace modReadings
