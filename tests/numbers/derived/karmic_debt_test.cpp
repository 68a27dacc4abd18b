#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"

#include <array>

namespace modReadings {
namespace {

// The four sums, in the order of the tests. The birth day comes behind them and stands in
// two places: 13 is looked for in the day that this run reads, the other three in
// BirthdayRaw.
constexpr std::array<int16 ReadingStore::*, 4> sums{
    &ReadingStore::LifePathDaySum, &ReadingStore::DestinyRaw, &ReadingStore::SoulUrgeRaw,
    &ReadingStore::InnerDreamsRaw};

class KarmicDebt : public FreshStore {
protected:
    static void BornOnThe(int day, int raw) {
        profile.BirthDay = longhand::Decimal(day);
        store.BirthdayRaw = static_cast<int16>(raw);
    }

    /// Whether a run finds this debt.
    static void Expect(int number) {
        CalcKarmicDebt();
        ASSERT_EQ(store.KarmicDebtNumber, number);
        ASSERT_TRUE(IsReadingOf(store.KarmicDebtText, number, "KarmicDebtText"));
        EXPECT_EQ(store.KarmicDebtText == u"Not Applicable", number == 0);
    }
};

TEST_F(KarmicDebt, LastSourceThatHitsWins) {
    // Every source holds 5, which is no debt, or one of the four: 5 to the power of 5.
    constexpr std::array<int16, 5> values{5, 13, 14, 16, 19};
    for (int combination = 0; combination < 5 * 5 * 5 * 5 * 5; ++combination) {
        SCOPED_TRACE(combination);
        store = {};
        int expected = 0, rest = combination;
        for (const auto source : sums) {
            store.*source = values[static_cast<std::size_t>(rest % 5)];
            rest /= 5;
            if (store.*source != 5)
                expected = store.*source;
        }
        const int16 day = values[static_cast<std::size_t>(rest)];
        BornOnThe(day, day);
        Expect(day != 5 ? day : expected);
        EXPECT_EQ(store.BirthDayValue, day);
    }
}

TEST_F(KarmicDebt, BirthDayOf13IsTakenFromTheProfileAndTheOthersFromTheSlot) {
    BornOnThe(13, 2);
    Expect(13);
    BornOnThe(2, 13);
    Expect(0);
    for (const int debt : {14, 16, 19}) {
        BornOnThe(2, debt);
        Expect(debt);
        BornOnThe(debt, 2);
        Expect(0);
        BornOnThe(13, debt); // the four values of one source exclude each other; 13 comes first
        Expect(13);
    }
}

TEST_F(KarmicDebt, OnlyTheExactSumsCount) {
    // 31 and 40 come down to 4 as 13 does, and still are none.
    for (const int16 sum : std::initializer_list<int16>{0, 1, 4, 5, 7, 10, 11, 12, 15, 17, 18, 20,
                                                        31, 40, 41, 59, 113, -13, -19}) {
        for (const auto source : sums)
            store.*source = sum;
        BornOnThe(2, sum);
        Expect(0);
    }
}

TEST_F(KarmicDebt, EveryDayOfTheMonth) {
    Named(u"A", u"", u"B"); // sums of 3, 1 and 2
    for (int day = 1; day <= 31; ++day) {
        Born(longhand::Decimal(day), u"December", u"1985");
        CalcLifePath();
        CalcBirthday();
        CalcDestiny();
        CalcSoulUrge();
        CalcInnerDreams();
        // The day's digit sum stays below 13, so this source is silent for any day.
        EXPECT_LE(store.LifePathDaySum, 11);
        Expect(day == 13 || day == 14 || day == 16 || day == 19 ? day : 0);
    }
}

TEST_F(KarmicDebt, PassSeesTheNameSumsOfThePersonBefore) {
    // SKY LYNN has no vowel but two Y, which sum up to 14 as Soul Urge. All its letters
    // sum up to 30, as Destiny and as Inner Dreams.
    Born(u"2", u"December", u"1985");
    Named(u"SKY", u"", u"LYNN");
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 0); // Soul Urge was 0 when the pass came by
    Expect(14);
    Named(u"A", u"", u"B");
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 14); // still SKY LYNN's
    Expect(0);
    Born(u"19", u"December", u"1985");
    RunAllCalculators();
    EXPECT_EQ(store.KarmicDebtNumber, 19); // the day is this pass's own
}

} // namespace
} // namespace modReadings
