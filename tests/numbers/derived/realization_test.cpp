#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

constexpr int16 coreNumbers[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};

constexpr std::u16string_view request =
    u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
    u"Please calculate these two figures first";

/// The number for each sum that two core numbers can make.
int NumberOfSum(int sum) {
    switch (sum) {
    case 10: // digit sum 1
    case 19: // digit sum 10
    case 28: // digit sum 10
        return 1;
    case 2:
    case 11: // the sum itself is not looked at
    case 20:
        return 2;
    case 3:
    case 12:
    case 30:
        return 3;
    case 4:
    case 13:
    case 22: // the sum itself is not looked at
    case 31:
        return 4;
    case 5:
    case 14:
    case 23:
        return 5;
    case 6:
    case 15:
    case 24:
    case 33:
        return 6;
    case 7:
    case 16:
    case 25:
        return 7;
    case 8:
    case 17:
    case 26:
    case 44:
        return 8;
    case 9:
    case 18:
    case 27:
        return 9;
    case 29: // digit sum 11, the only master number that a pair reaches
        return 11;
    default:
        ADD_FAILURE() << "no pair makes " << sum;
        return -1;
    }
}

class Realization : public FreshStore {
protected:
    static int Of(int lifePath, int destiny) {
        store.LifePathNumber = static_cast<int16>(lifePath);
        store.DestinyNumber = static_cast<int16>(destiny);
        CalcRealization();
        return store.RealizationNumber;
    }
};

TEST_F(Realization, AllPairsOfCoreNumbers) {
    const ReadingStore marked = MarkedStore();
    std::set<int> reached;
    for (const int16 lifePath : coreNumbers) {
        for (const int16 destiny : coreNumbers) {
            store = marked;
            const int number = Of(lifePath, destiny);
            SlotNames written{"LifePathNumber", "DestinyNumber", "RealizationText"};
            if (lifePath == 0 || destiny == 0) {
                EXPECT_EQ(number, marked.RealizationNumber);
                EXPECT_EQ(store.RealizationText, request);
            } else {
                const int expected = NumberOfSum(lifePath + destiny);
                EXPECT_EQ(number, expected) << lifePath << " and " << destiny;
                EXPECT_TRUE(IsReadingOf(store.RealizationText, expected, "RealizationText"));
                written.insert({"RealizationNumber", "RealizationAbout"});
                reached.insert(number);
            }
            EXPECT_EQ(ChangedSince(marked), written) << lifePath << " and " << destiny;
        }
    }
    EXPECT_EQ(reached, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 11}));
}

TEST_F(Realization, StopLooksAtTheDigitSumAndNotAtTheSum) {
    EXPECT_EQ(Of(22, 7), 11); // 29
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 11, "RealizationText"));
    EXPECT_EQ(Of(11, 11), 4); // 22
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 4, "RealizationText"));
    EXPECT_EQ(Of(9, 2), 2);  // 11
    EXPECT_EQ(Of(9, 9), 9);  // 18
    EXPECT_EQ(Of(22, 6), 1); // 28, 10
    EXPECT_EQ(Of(11, 8), 1); // 19, 10
}

TEST_F(Realization, NumbersThatNoPairReaches) {
    EXPECT_EQ(Of(498, 1), 22); // 499 has the digit sum 22
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 22, "RealizationText"));

    // 199 has the digit sum 19 and folds once, to 10, which has no row.
    EXPECT_EQ(Of(198, 1), 10);
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 22, "RealizationText"));
}

TEST_F(Realization, NameOfDigitsAsksForTheTwoFigures) {
    Named(u"007", u"", u"42");
    Born(u"29", u"December", u"1985");
    CalcLifePath();
    CalcDestiny();
    ASSERT_EQ(store.DestinyNumber, 0);
    CalcRealization();
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_EQ(store.RealizationNumber, 0);
    EXPECT_EQ(store.RealizationAbout, u"");
}

TEST_F(Realization, RequestKeepsNumberAndAboutOfThePersonBefore) {
    EXPECT_EQ(Of(5, 0), 0);
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_EQ(store.RealizationAbout, u""); // no valid name has been read yet

    EXPECT_EQ(Of(22, 7), 11);
    const std::u16string about = store.RealizationAbout;
    EXPECT_FALSE(about.empty());

    EXPECT_EQ(Of(5, 0), 11);
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_EQ(store.RealizationAbout, about);

    EXPECT_EQ(Of(0, 5), 11);
    EXPECT_EQ(store.RealizationText, request);

    EXPECT_EQ(Of(9, 9), 9);
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 9, "RealizationText"));
}

TEST_F(Realization, IsCurrentWithinThePass) {
    Born(u"9", u"September", u"1993"); // Life Path 22
    Named(u"BE", u"", u"ORR");         // Destiny 31 and so 4
    RunAllCalculators();
    EXPECT_EQ(store.RealizationNumber, 8); // 26
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 8, "RealizationText"));
    const ReadingStore once = store;
    CalcRealization();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(Realization, OverflowLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_THROW(Of(32767, 1), RuntimeFailure);
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"LifePathNumber", "DestinyNumber"})); // the test's
}

TEST_F(Realization, AboutIsOneParagraph) {
    Of(9, 9);
    EXPECT_TRUE(IsTextOf(store.RealizationAbout, "RealizationAbout"));
}

} // namespace
} // namespace modReadings
