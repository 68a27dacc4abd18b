#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>

namespace modReadings {
namespace {

// The four sums, in the order of the tests. The birth day comes behind them and stands in
// two places: 13 is looked for in the day that this run reads, the other three in
// BirthdayRaw.
constexpr std::array<int16 ReadingStore::*, 4> sums{
    &ReadingStore::LifePathDaySum, &ReadingStore::DestinyRaw, &ReadingStore::SoulUrgeRaw,
    &ReadingStore::InnerDreamsRaw};

constexpr std::array<int16, 4> debts{13, 14, 16, 19};

class KarmicDebt : public FreshStore {
protected:
    KarmicDebt() { profile.BirthDay = u"2"; }

    static void BornOnThe(int day) {
        profile.BirthDay = longhand::Decimal(day);
        store.BirthdayRaw = static_cast<int16>(day);
    }

    static void ExpectDebt(int number) {
        EXPECT_EQ(store.KarmicDebtNumber, number);
        EXPECT_TRUE(IsReadingOf(store.KarmicDebtText, number, "KarmicDebtText"));
        if (number == 0) {
            EXPECT_EQ(store.KarmicDebtText, u"Not Applicable");
        }
    }
};

TEST_F(KarmicDebt, EachSourceWithEachOfTheFourNumbers) {
    for (const auto source : sums) {
        for (const int16 debt : debts) {
            store = {};
            store.*source = debt;
            CalcKarmicDebt();
            ExpectDebt(debt);
        }
    }
    for (const int16 debt : debts) {
        store = {};
        BornOnThe(debt);
        CalcKarmicDebt();
        ExpectDebt(debt);
        EXPECT_EQ(store.BirthDayValue, debt);
    }
}

TEST_F(KarmicDebt, LastSourceThatHitsWins) {
    // Every source holds 5, which is no debt, or one of the four: 5 to the power of 5.
    constexpr std::array<int16, 5> values{5, 13, 14, 16, 19};
    for (int combination = 0; combination < 5 * 5 * 5 * 5 * 5; ++combination) {
        store = {};
        int16 expected = 0;
        int rest = combination;
        for (const auto source : sums) {
            const int16 value = values[static_cast<std::size_t>(rest % 5)];
            rest /= 5;
            store.*source = value;
            if (value != 5)
                expected = value;
        }
        const int16 day = values[static_cast<std::size_t>(rest)];
        BornOnThe(day);
        if (day != 5)
            expected = day;
        CalcKarmicDebt();
        ASSERT_EQ(store.KarmicDebtNumber, expected) << combination;
        ASSERT_TRUE(IsReadingOf(store.KarmicDebtText, expected, "KarmicDebtText")) << combination;
    }
}

TEST_F(KarmicDebt, BirthDayOutranksTheName) {
    store.DestinyRaw = 19;
    BornOnThe(16);
    CalcKarmicDebt();
    ExpectDebt(16);
}

TEST_F(KarmicDebt, SoulUrgeOutranksDestinyAndNothingOfItShows) {
    store.DestinyRaw = 14;
    store.SoulUrgeRaw = 19;
    BornOnThe(2);
    CalcKarmicDebt();
    ExpectDebt(19);
    EXPECT_EQ(store.KarmicDebtText.find(u"present in"), std::u16string::npos);
}

TEST_F(KarmicDebt, BirthDayOf13IsTakenFromTheProfileAndTheOthersFromTheSlot) {
    profile.BirthDay = u"13";
    store.BirthdayRaw = 2;
    CalcKarmicDebt();
    ExpectDebt(13);

    profile.BirthDay = u"2";
    store.BirthdayRaw = 13;
    CalcKarmicDebt();
    ExpectDebt(0);

    for (const int16 debt : {int16{14}, int16{16}, int16{19}}) {
        profile.BirthDay = u"2";
        store.BirthdayRaw = debt;
        CalcKarmicDebt();
        ExpectDebt(debt);

        BornOnThe(debt);
        store.BirthdayRaw = 2;
        CalcKarmicDebt();
        ExpectDebt(0);

        // The four values of one source exclude each other, and 13 comes first.
        profile.BirthDay = u"13";
        store.BirthdayRaw = debt;
        CalcKarmicDebt();
        ExpectDebt(13);
    }
}

TEST_F(KarmicDebt, OnlyTheExactSumsCount) {
    // 31 and 40 come down to 4 as 13 does, and still are none.
    for (const int sum :
         {0, 1, 4, 5, 7, 10, 11, 12, 15, 17, 18, 20, 31, 40, 41, 59, 113, -13, -19}) {
        for (const auto source : sums)
            store.*source = static_cast<int16>(sum);
        store.BirthdayRaw = static_cast<int16>(sum);
        CalcKarmicDebt();
        ExpectDebt(0);
    }
}

TEST_F(KarmicDebt, EveryDayOfTheMonth) {
    Named(u"A", u"", u"B"); // sums of 3, 1 and 2
    for (int day = 1; day <= 31; ++day) {
        BornOnThe(day);
        profile.BirthMonth = u"December";
        profile.BirthYear = u"1985";
        CalcLifePath();
        CalcBirthday();
        CalcDestiny();
        CalcSoulUrge();
        CalcInnerDreams();
        // The day's digit sum stays below 13, so this source is silent for any day.
        EXPECT_LE(store.LifePathDaySum, 11);
        CalcKarmicDebt();
        ExpectDebt(day == 13 || day == 14 || day == 16 || day == 19 ? day : 0);
    }
}

TEST_F(KarmicDebt, BornOnThe29th) {
    Named(u"A", u"", u"B");
    Born(u"29", u"December", u"1985");
    CalcLifePath();
    CalcBirthday();
    EXPECT_EQ(store.LifePathDaySum, 11);
    EXPECT_EQ(store.BirthdayRaw, 29);
    CalcKarmicDebt();
    ExpectDebt(0);
}

TEST_F(KarmicDebt, RunAgainAppendsNothing) {
    store.SoulUrgeRaw = 14;
    CalcKarmicDebt();
    const ReadingStore once = store;
    CalcKarmicDebt();
    CalcKarmicDebt();
    EXPECT_EQ(ChangedSince(once), SlotNames{});

    store.SoulUrgeRaw = 0;
    CalcKarmicDebt();
    ExpectDebt(0);
    CalcKarmicDebt();
    ExpectDebt(0);
}

TEST_F(KarmicDebt, PassSeesTheNameSumsOfThePersonBefore) {
    // SKY LYNN has no vowel but two Y, which sum up to 14 as Soul Urge. All its letters
    // sum up to 30, as Destiny and as Inner Dreams.
    Named(u"SKY", u"", u"LYNN");
    Born(u"2", u"December", u"1985");
    RunAllCalculators();
    ExpectDebt(0); // Soul Urge was 0 when the pass came by
    CalcKarmicDebt();
    ExpectDebt(14);

    Named(u"A", u"", u"B");
    RunAllCalculators();
    ExpectDebt(14); // still SKY LYNN's
    CalcKarmicDebt();
    ExpectDebt(0);

    Named(u"SKY", u"", u"LYNN");
    Born(u"19", u"December", u"1985");
    RunAllCalculators();
    ExpectDebt(19); // the day is this pass's own
    CalcKarmicDebt();
    ExpectDebt(19);
}

TEST_F(KarmicDebt, AboutBeginsAndEnds) {
    CalcKarmicDebt();
    EXPECT_TRUE(IsTextOf(store.KarmicDebtAbout, "KarmicDebtAbout"));
    EXPECT_TRUE(store.KarmicDebtAbout.ends_with(
        u"In numerological terms this burden is called a Karmic Debt."));
}

TEST_F(KarmicDebt, WritesItsOwnSlotsAndNoOthers) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    CalcKarmicDebt();
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"BirthDayValue", "KarmicDebtNumber",
                                               "KarmicDebtText", "KarmicDebtAbout"}));
    EXPECT_EQ(store.BirthDayValue, 2);
    ExpectDebt(0); // whatever text stood there before is gone
}

TEST_F(KarmicDebt, DayThatIsNoNumberLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    store.SoulUrgeRaw = 14; // would be a hit
    const ReadingStore before = store;
    for (const char16_t *day : {u"x", u"2x", u"", u"1 3", u"40000"}) {
        profile.BirthDay = day;
        EXPECT_THROW(CalcKarmicDebt(), RuntimeFailure);
    }
    EXPECT_EQ(ChangedSince(before), SlotNames{});
}

} // namespace
} // namespace modReadings
