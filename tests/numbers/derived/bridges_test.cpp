#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <ostream>

namespace modReadings {
namespace {

// The numbers that the four core topics can have, 0 for a name without a letter.
constexpr int16 coreNumbers[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};

// The bridge of each gap from 0 to 22; a master number is a gap like any other.
constexpr int bridgeOfGap[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4};

/// What one of the two bridges reads and writes.
struct Bridge {
    const char *title;
    void (*calculate)();
    int16 ReadingStore::*one;
    int16 ReadingStore::*other;
    int16 ReadingStore::*number;
    std::u16string ReadingStore::*text;
    SlotNames slots;
    const char *textSlot;
};

void PrintTo(const Bridge &bridge, std::ostream *out) { *out << bridge.title; }

const Bridge bridges[] = {
    {"HP",
     CalcHPBridge,
     &ReadingStore::SoulUrgeNumber,
     &ReadingStore::InnerDreamsNumber,
     &ReadingStore::HPBridgeNumber,
     &ReadingStore::HPBridgeText,
     {"HPBridgeNumber", "HPBridgeText", "HPBridgeAbout"},
     "HPBridgeText"},
    {"LE",
     CalcLEBridge,
     &ReadingStore::DestinyNumber,
     &ReadingStore::LifePathNumber,
     &ReadingStore::LEBridgeNumber,
     &ReadingStore::LEBridgeText,
     {"LEBridgeNumber", "LEBridgeText", "LEBridgeAbout"},
     "LEBridgeText"},
};

class Bridges : public FreshStore, public ::testing::WithParamInterface<Bridge> {
protected:
    /// Runs the bridge between two numbers; gives its number.
    int Between(int one, int other) {
        store.*GetParam().one = static_cast<int16>(one);
        store.*GetParam().other = static_cast<int16>(other);
        GetParam().calculate();
        return store.*GetParam().number;
    }
    static ::testing::AssertionResult ShowsReadingOf(int number) {
        return IsReadingOf(store.*GetParam().text, number, GetParam().textSlot);
    }
};

TEST_P(Bridges, AllPairsOfCoreNumbers) {
    const ReadingStore marked = MarkedStore();
    for (const int16 one : coreNumbers) {
        for (const int16 other : coreNumbers) {
            const int expected = bridgeOfGap[one > other ? one - other : other - one];
            store = marked;
            EXPECT_EQ(Between(one, other), expected) << one << " and " << other;
            SlotNames written = GetParam().slots;
            if (expected == 9) { // no reading of its own
                written.erase(GetParam().textSlot);
            } else {
                EXPECT_TRUE(ShowsReadingOf(expected)) << one << " and " << other;
            }
            store.*GetParam().one = marked.*GetParam().one;
            store.*GetParam().other = marked.*GetParam().other;
            EXPECT_EQ(ChangedSince(marked), written) << one << " and " << other;
        }
    }
}

TEST_P(Bridges, EqualNumbers) {
    EXPECT_EQ(Between(5, 5), 0);
    EXPECT_TRUE(ShowsReadingOf(0));
}

TEST_P(Bridges, OrderDoesNotMatter) {
    EXPECT_EQ(Between(3, 7), 4);
    EXPECT_TRUE(ShowsReadingOf(4));
    EXPECT_EQ(Between(7, 3), 4);
    EXPECT_TRUE(ShowsReadingOf(4));
}

TEST_P(Bridges, GapsOfTwoDigits) {
    EXPECT_EQ(Between(22, 1), 3);  // 21
    EXPECT_EQ(Between(11, 1), 1);  // 10
    EXPECT_EQ(Between(22, 3), 1);  // 19
    EXPECT_EQ(Between(22, 11), 2); // 11
    EXPECT_EQ(Between(22, 2), 2);  // 20
    EXPECT_EQ(Between(22, 9), 4);  // 13
    EXPECT_EQ(Between(22, 4), 9);  // 18
    EXPECT_EQ(Between(11, 2), 9);
    EXPECT_EQ(Between(22, 0), 4);
}

TEST_P(Bridges, NineKeepsTheReadingOfThePersonBefore) {
    EXPECT_EQ(Between(2, 11), 9);
    EXPECT_EQ(store.*GetParam().text, u""); // nobody was there before

    EXPECT_EQ(Between(9, 6), 3);
    EXPECT_TRUE(ShowsReadingOf(3));

    EXPECT_EQ(Between(11, 2), 9);
    EXPECT_TRUE(ShowsReadingOf(3));

    EXPECT_EQ(Between(4, 22), 9);
    EXPECT_TRUE(ShowsReadingOf(3));

    EXPECT_EQ(Between(8, 1), 7);
    EXPECT_TRUE(ShowsReadingOf(7));
}

TEST_P(Bridges, RunAgainGivesTheSame) {
    Between(22, 1);
    const ReadingStore once = store;
    GetParam().calculate();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_P(Bridges, GapBeyondTheRangeLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_THROW(Between(32767, -1), RuntimeFailure);
    EXPECT_THROW(Between(-32768, 0), RuntimeFailure); // has no absolute value
    store.*GetParam().one = marked.*GetParam().one;
    store.*GetParam().other = marked.*GetParam().other;
    EXPECT_EQ(ChangedSince(marked), SlotNames{});
    EXPECT_EQ(Between(-32767, 0), 7); // 32767 with digits 25
}

INSTANTIATE_TEST_SUITE_P(Both, Bridges, ::testing::ValuesIn(bridges));

class BridgesInAPass : public FreshStore {};

TEST_F(BridgesInAPass, NineShowsTheReadingOfTheStaleNumbers) {
    Born(u"29", u"December", u"1985");

    // BE ORR: the vowels make 5 + 6 = 11, the consonants 2 + 9 + 9 = 20 and so 2.
    Named(u"BE", u"", u"ORR");
    RunAllCalculators();
    ASSERT_EQ(store.SoulUrgeNumber, 11);
    ASSERT_EQ(store.InnerDreamsNumber, 2);
    EXPECT_EQ(store.HPBridgeNumber, 0); // the pass came by before both
    EXPECT_TRUE(IsReadingOf(store.HPBridgeText, 0, "HPBridgeText"));
    CalcHPBridge();
    EXPECT_EQ(store.HPBridgeNumber, 9);
    EXPECT_TRUE(IsReadingOf(store.HPBridgeText, 0, "HPBridgeText"));

    // ANN LEE: the vowels make 1 + 5 + 5 = 11, the consonants 5 + 5 + 3 = 13 and so 4.
    Named(u"ANN", u"", u"LEE");
    RunAllCalculators();
    EXPECT_EQ(store.HPBridgeNumber, 9); // of BE ORR
    EXPECT_TRUE(IsReadingOf(store.HPBridgeText, 0, "HPBridgeText"));
    CalcHPBridge();
    EXPECT_EQ(store.HPBridgeNumber, 7);
    EXPECT_TRUE(IsReadingOf(store.HPBridgeText, 7, "HPBridgeText"));

    // BO LEE: the vowels make 6 + 5 + 5 = 16 and so 7, the consonants 2 + 3 = 5.
    Named(u"BO", u"", u"LEE");
    RunAllCalculators();
    EXPECT_EQ(store.HPBridgeNumber, 7); // of ANN LEE
    Named(u"BE", u"", u"ORR");
    RunAllCalculators();
    EXPECT_EQ(store.HPBridgeNumber, 2); // of BO LEE, whose topic was never looked at
    CalcHPBridge();
    EXPECT_EQ(store.HPBridgeNumber, 9);
    EXPECT_TRUE(IsReadingOf(store.HPBridgeText, 2, "HPBridgeText"));
}

TEST_F(BridgesInAPass, LifePathAndDestinyAreCurrent) {
    Born(u"9", u"September", u"1993"); // 22
    Named(u"BE", u"", u"ORR");         // 31 and so 4
    RunAllCalculators();
    ASSERT_EQ(store.LifePathNumber, 22);
    ASSERT_EQ(store.DestinyNumber, 4);
    EXPECT_EQ(store.LEBridgeNumber, 9); // 18
    EXPECT_EQ(store.LEBridgeText, u"");

    Born(u"2", u"January", u"2006"); // 11
    RunAllCalculators();
    EXPECT_EQ(store.LEBridgeNumber, 7);
    EXPECT_TRUE(IsReadingOf(store.LEBridgeText, 7, "LEBridgeText"));

    Born(u"9", u"September", u"1993");
    RunAllCalculators();
    EXPECT_EQ(store.LEBridgeNumber, 9);
    EXPECT_TRUE(IsReadingOf(store.LEBridgeText, 7, "LEBridgeText"));
}

TEST_F(BridgesInAPass, Abouts) {
    CalcHPBridge();
    CalcLEBridge();
    EXPECT_EQ(store.HPBridgeAbout,
              u"This number is like a bridge between what you really are and what others think you "
              u"are. This number helps to make others understand you much better. It also improves "
              u"our relationships. This number thus is like a bridge between how you think you are "
              u"projecting yourself and the way people see you. This will help improve your "
              u"relationships and let others see the real you.");
    EXPECT_TRUE(IsTextOf(store.LEBridgeAbout, "LEBridgeAbout"));
}

} // namespace
} // namespace modReadings
