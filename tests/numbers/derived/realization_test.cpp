#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

constexpr std::u16string_view request =
    u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
    u"Please calculate these two figures first";

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
    constexpr int coreNumbers[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
    std::set<int> reached;
    for (const int lifePath : coreNumbers) {
        for (const int destiny : coreNumbers) {
            const SlotNames written = WrittenBy([&] { Of(lifePath, destiny); });
            if (lifePath == 0 || destiny == 0) {
                EXPECT_EQ(written,
                          (SlotNames{"LifePathNumber", "DestinyNumber", "RealizationText"}));
                EXPECT_EQ(store.RealizationText, request);
                continue;
            }
            // Of two digits at most, so only a digit sum of 11 is kept; 29 alone has that.
            const int sum = lifePath + destiny;
            const int expected = sum == 29 ? 11 : longhand::DigitalRoot(sum);
            EXPECT_EQ(store.RealizationNumber, expected) << lifePath << " and " << destiny;
            EXPECT_TRUE(IsReadingOf(store.RealizationText, expected, "RealizationText"));
            EXPECT_TRUE(IsTextOf(store.RealizationAbout, "RealizationAbout"));
            reached.insert(expected);
        }
    }
    EXPECT_EQ(reached, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 11}));
}

TEST_F(Realization, StopLooksAtTheDigitSumAndNotAtTheSum) {
    EXPECT_EQ(Of(22, 7), 11); // 29
    EXPECT_EQ(Of(11, 11), 4); // 22
    EXPECT_EQ(Of(9, 2), 2);   // 11
    EXPECT_EQ(Of(22, 6), 1);  // 28, 10
}

TEST_F(Realization, NumbersThatNoPairReaches) {
    EXPECT_EQ(Of(498, 1), 22); // 499 has the digit sum 22
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 22, "RealizationText"));
    // 199 has the digit sum 19 and folds once, to 10, which has no row.
    EXPECT_EQ(Of(198, 1), 10);
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 22, "RealizationText"));

    EXPECT_EQ(WrittenBeforeFailure([] { Of(32767, 1); }),
              (SlotNames{"LifePathNumber", "DestinyNumber"})); // by the test
}

TEST_F(Realization, OfANameOfDigitsIsTheRequest) {
    Named(u"12", u"", u"34");
    Born(u"29", u"December", u"1985");
    CalcLifePath();
    CalcDestiny();
    CalcRealization();
    EXPECT_EQ(store.LifePathNumber, 1); // 2 + 3 + 5 = 10
    EXPECT_EQ(store.DestinyNumber, 0);
    EXPECT_EQ(store.RealizationNumber, 0);
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_EQ(store.RealizationAbout, u"");
}

TEST_F(Realization, RequestKeepsNumberAndAboutOfThePersonBefore) {
    EXPECT_EQ(Of(5, 0), 0);
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_EQ(store.RealizationAbout, u""); // no valid name has been read yet

    EXPECT_EQ(Of(22, 7), 11);
    EXPECT_EQ(Of(5, 0), 11);
    EXPECT_EQ(store.RealizationText, request);
    EXPECT_TRUE(IsTextOf(store.RealizationAbout, "RealizationAbout"));

    EXPECT_EQ(Of(9, 9), 9);
    EXPECT_TRUE(IsReadingOf(store.RealizationText, 9, "RealizationText"));
}

} // namespace
} // namespace modReadings
