#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

// The bridge of each gap from 0 to 22; a master number is a gap like any other.
constexpr int bridgeOfGap[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4};

/// What one of the two bridges reads and writes.
struct Bridge {
    const char *word;
    Calculator calculate;
    int16 ReadingStore::*one, ReadingStore::*other, ReadingStore::*number;
    std::u16string ReadingStore::*text;

    friend void PrintTo(const Bridge &bridge, std::ostream *out) { *out << bridge.word; }
};

using S = ReadingStore;

class Bridges : public FreshStore, public ::testing::WithParamInterface<Bridge> {
protected:
    const Bridge &bridge = GetParam();

    /// Runs the bridge between two numbers; gives its number. The two are put back.
    int Between(int one, int other) const {
        const int16 before[] = {store.*bridge.one, store.*bridge.other};
        store.*bridge.one = static_cast<int16>(one);
        store.*bridge.other = static_cast<int16>(other);
        const bool finished = Attempt(bridge.calculate);
        store.*bridge.one = before[0];
        store.*bridge.other = before[1];
        if (!finished)
            throw RuntimeFailure("the bridge failed");
        return store.*bridge.number;
    }
    ::testing::AssertionResult ShowsReadingOf(int number) const {
        return IsReadingOf(store.*bridge.text, number, bridge.word + std::string("Text"));
    }
};

INSTANTIATE_TEST_SUITE_P(
    Both, Bridges,
    ::testing::Values(Bridge{"HPBridge", CalcHPBridge, &S::SoulUrgeNumber, &S::InnerDreamsNumber,
                             &S::HPBridgeNumber, &S::HPBridgeText},
                      Bridge{"LEBridge", CalcLEBridge, &S::DestinyNumber, &S::LifePathNumber,
                             &S::LEBridgeNumber, &S::LEBridgeText}));

TEST_P(Bridges, AllPairsOfCoreNumbers) {
    constexpr int coreNumbers[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
    for (const int one : coreNumbers) {
        for (const int other : coreNumbers) {
            const int expected = bridgeOfGap[one > other ? one - other : other - one];
            SlotNames slots = SlotsOf({bridge.word});
            if (expected == 9) // no reading of its own
                slots.erase(bridge.word + std::string("Text"));
            EXPECT_EQ(WrittenBy([&] { EXPECT_EQ(Between(one, other), expected); }), slots)
                << one << " and " << other;
            if (expected != 9) {
                EXPECT_TRUE(ShowsReadingOf(expected)) << one << " and " << other;
            }
        }
    }
}

TEST_P(Bridges, NineKeepsTheReadingOfThePersonBefore) {
    EXPECT_EQ(Between(2, 11), 9);
    EXPECT_EQ(store.*bridge.text, u""); // nobody was there before
    EXPECT_EQ(Between(9, 6), 3);
    EXPECT_EQ(Between(11, 2), 9);
    EXPECT_EQ(Between(4, 22), 9);
    EXPECT_TRUE(ShowsReadingOf(3));
    EXPECT_EQ(Between(8, 1), 7);
    EXPECT_TRUE(ShowsReadingOf(7));
}

TEST_P(Bridges, GapBeyondTheRangeLeavesAllSlotsAlone) {
    EXPECT_EQ(WrittenBeforeFailure([&] { Between(32767, -1); }), SlotNames{});
    EXPECT_EQ(WrittenBeforeFailure([&] { Between(-32768, 0); }),
              SlotNames{});           // has no absolute value
    EXPECT_EQ(Between(-32767, 0), 7); // 32767 with digits 25
}

class BridgesInAPass : public FreshStore {
protected:
    static void ExpectHP(int number, int reading) {
        EXPECT_EQ(store.HPBridgeNumber, number);
        EXPECT_TRUE(IsReadingOf(store.HPBridgeText, reading, "HPBridgeText"));
        EXPECT_TRUE(IsTextOf(store.HPBridgeAbout, "HPBridgeAbout"));
    }
};

TEST_F(BridgesInAPass, NineShowsTheReadingOfTheStaleNumbers) {
    Born(u"29", u"December", u"1985");

    // BE ORR: the vowels make 5 + 6 = 11, the consonants 2 + 9 + 9 = 20 and so 2.
    Named(u"BE", u"", u"ORR");
    RunAllCalculators();
    ExpectHP(0, 0); // the pass came by before both
    CalcHPBridge();
    ExpectHP(9, 0);

    // ANN LEE: the vowels make 1 + 5 + 5 = 11, the consonants 5 + 5 + 3 = 13 and so 4.
    Named(u"ANN", u"", u"LEE");
    RunAllCalculators();
    ExpectHP(9, 0); // of BE ORR
    CalcHPBridge();
    ExpectHP(7, 7);

    // BO LEE: the vowels make 6 + 5 + 5 = 16 and so 7, the consonants 2 + 3 = 5.
    Named(u"BO", u"", u"LEE");
    RunAllCalculators();
    ExpectHP(7, 7); // of ANN LEE
    Named(u"BE", u"", u"ORR");
    RunAllCalculators();
    ExpectHP(2, 2); // of BO LEE, whose topic was never looked at
    CalcHPBridge();
    ExpectHP(9, 2);
}

} // namespace
} // namespace modReadings
