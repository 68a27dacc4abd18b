// What all 22 calculators have in common.

#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <string>
#include <vector>

namespace modReadings {
namespace {

using ::testing::PrintToString;
using Texts = std::vector<std::u16string>;

class Calculators : public FreshStore {};

TEST_F(Calculators, WriteTheirOwnSlotsAndTheSameOnesAgain) {
    const struct {
        Calculator calculate;
        SlotNames slots;
    } calculators[] = {
        {CalcPersonalMonth, SlotsOf({"PersonalMonth", "CurrentYear"})},
        {CalcBirthday, SlotsOf({"Birthday"})},
        {CalcHiddenPassion, SlotsOf({"HiddenPassion"})},
        {CalcLifePathPeriods, SlotsOf({"LifePathPeriods", "Period"})},
        {CalcPersonalYear, SlotsOf({"PersonalYear"})}, // its year is a local
        {CalcPinnacles, SlotsOf({"Pinnacle"})},
        {CalcSubconsciousSelf, SlotsOf({"SubconsciousSelf", "MissingDigits"})},
        {CalcLifePath,
         SlotsOf({"LifePathNumber", "LifePathDaySum", "LifePathText", "LifePathAbout"})},
        {CalcDestiny, SlotsOf({"Destiny", "ScratchLetter", "ScratchSum"})},
        {CalcKarmicLessons, SlotsOf({"KarmicLessons"})},
        {CalcChallenges, SlotsOf({"Challenge"})},
        {CalcKarmicDebt, SlotsOf({"KarmicDebt", "BirthDayValue"})},
        {CalcBalance, SlotsOf({"Balance"})},
        {CalcPersonalDay, SlotsOf({"PersonalDay", "Current"})},
        {CalcRationalThought, SlotsOf({"RationalThought"})},
        {CalcHPBridge, SlotsOf({"HPBridge"})},
        {CalcLEBridge, SlotsOf({"LEBridge"})},
        {CalcEssence, SlotsOf({"Essence"})},
        {CalcRealization, SlotsOf({"Realization"})},
        {CalcInnerDreams, SlotsOf({"InnerDreams", "ScratchLetter", "ScratchSum"})},
        {CalcPlanes, SlotsOf({"Planes", "Mental", "Physical", "Emotional", "Intuitive"})},
        {CalcSoulUrge, SlotsOf({"SoulUrge", "ScratchLetter", "ScratchSum"})},
    };
    ASSERT_EQ(std::size(calculators), passOrder.size());
    OakRiver();
    for (std::size_t index = 0; index < passOrder.size(); ++index) {
        const auto &[calculate, slots] = calculators[index];
        ASSERT_EQ(calculate, passOrder[index]);
        EXPECT_EQ(WrittenBy(calculate), slots);
        for (const auto &[name, member] : textSlots)
            if (slots.contains(name) && std::string_view(name).ends_with("About")) {
                EXPECT_TRUE(IsTextOf(store.*member, name));
            }
        const ReadingStore once = store;
        calculate();
        EXPECT_EQ(Changed(once, store), SlotNames{}) << PrintToString(slots);
    }
}

TEST_F(Calculators, LeaveTheProfileAsItIs) {
    // Those that trim run with blanks. Those that walk the digits fail at them and run without.
    for (const auto &[day, year] : {std::pair{u" 31", u"2000 "}, {u"31", u"2000"}}) {
        Named(u"MARY ANN ", u"\u00C9X-1", u"LEE7");
        Born(day, u" February", year);
        const UserProfile before = profile;
        for (const Calculator calculate : passOrder) {
            const bool finished = Attempt(calculate);
            EXPECT_TRUE(finished || day[0] == u' ');
        }
        for (const auto slot :
             {&UserProfile::FirstName, &UserProfile::MiddleName, &UserProfile::LastName,
              &UserProfile::BirthMonth, &UserProfile::BirthDay, &UserProfile::BirthYear})
            EXPECT_EQ(profile.*slot, before.*slot);
    }
}

TEST_F(Calculators, FailAtABirthDayOrYearThatTheyCannotRead) {
    // Walked digit by digit; the last one sums up to 32769.
    const Texts noDigits{u"x",
                         u"2x",
                         u"x2",
                         u"1 2",
                         u"-1",
                         u"+1",
                         u"1.5",
                         u"\u0661",
                         u"\uFF11",
                         u"\U0001F600",
                         std::u16string(3641, u'9')};
    const Texts blanks{u" 1", u"1 "}; // which those that trim let pass
    // Read as one number.
    const Texts noNumber{u"",  u"x",   u"1x",     u"x1",    u"1 2",
                         u"-", u"1.5", u"\u0661", u"32768", u"40000"};
    const auto day = &UserProfile::BirthDay, year = &UserProfile::BirthYear;
    const struct {
        Calculator calculate;
        std::u16string UserProfile::*text;
        std::vector<Texts> bad;
        SlotNames written = {};
    } failures[] = {
        {CalcPersonalMonth, day, {noDigits, blanks}},
        {CalcPersonalDay, day, {noDigits, blanks}},
        {CalcPersonalYear, day, {noDigits, blanks}},
        {CalcPersonalYear, year, {noDigits, blanks}},
        {CalcLifePath, day, {noDigits, blanks}},
        {CalcLifePath, year, {noDigits, blanks}},
        {CalcChallenges, day, {noDigits, blanks}},
        {CalcChallenges, year, {noDigits, blanks}},
        {CalcLifePathPeriods, day, {noDigits, blanks}, {"PeriodNumber1"}},
        {CalcLifePathPeriods, year, {noDigits, blanks}, {"PeriodNumber1", "PeriodNumber2"}},
        {CalcRationalThought, day, {noDigits}},
        {CalcBirthday, day, {noNumber}},
        {CalcKarmicDebt, day, {noNumber}},
        {CalcPinnacles, day, {noNumber, {u"   "}}},
        {CalcPinnacles, year, {noNumber, {u"   "}}},
        {CalcEssence, year, {noNumber, {u"   ", u"-32000"}}}, // an age over int16
    };
    for (const auto &[calculate, text, bad, written] : failures) {
        for (const Texts &texts : bad) {
            for (const std::u16string &value : texts) {
                OakRiver();
                profile.*text = value;
                EXPECT_EQ(WrittenBeforeFailure(calculate), written)
                    << &calculate - &failures[0].calculate << PrintToString(value.substr(0, 20));
            }
        }
    }
}

} // namespace
} // namespace modReadings
