#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

class RationalThought : public FreshStore {
protected:
    static int Of(std::u16string day, std::u16string first) {
        profile.BirthDay = std::move(day);
        profile.FirstName = std::move(first);
        CalcRationalThought();
        if (store.RationalThoughtNumber != 0) {
            EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, store.RationalThoughtNumber,
                                    "RationalThoughtText"));
        }
        return store.RationalThoughtNumber;
    }
};

TEST_F(RationalThought, IsTheDayReducedAndTheFirstNameAlone) {
    profile.MiddleName = u"ZOE";
    profile.LastName = u"RIVER";
    EXPECT_EQ(Of(u"29", u"BEN"), 5);                   // 11, 2; 2 + 5 + 5 = 12; 14
    EXPECT_EQ(Of(u"  29 ", u" BEN  "), 5);             // blanks are trimmed
    EXPECT_EQ(Of(u"29", u"B-E 9N\u00C9'ben"), 5);      // what is no letter adds nothing
    EXPECT_EQ(Of(u"9", u"BOB"), 1);                    // 9 + 10 = 19, 10
    EXPECT_EQ(Of(u"29", u"I"), 11);                    // 2 + 9 and not 11 + 9
    EXPECT_EQ(Of(u"11", u"A"), 3);                     // 2 + 1
    EXPECT_EQ(Of(u"22", u"A"), 5);                     // 4 + 1
    EXPECT_EQ(Of(u"4", u"RI"), 22);                    // 4 + 18, which stays
    EXPECT_EQ(Of(u"2", u"III"), 11);                   // 29
    EXPECT_EQ(Of(u"4", std::u16string(55, u'I')), 22); // 4 + 495 = 499 with digits 22
    EXPECT_EQ(Of(u"2", std::u16string(333, u'R')), 2); // 2999: 29, which folds to 11 and 2
    for (int total = 0; total < 400; ++total) {
        const auto letters = static_cast<std::size_t>(total);
        EXPECT_EQ(Of(u"0", std::u16string(letters, u'A')), longhand::KeepMaster(total));
        EXPECT_EQ(Of(u"18", std::u16string(letters, u'S')), longhand::KeepMaster(total + 9));
    }
}

TEST_F(RationalThought, NumberWithoutARowEmptiesTheText) {
    EXPECT_EQ(Of(u"29", u"BEN"), 5);
    store.RationalThoughtAbout.clear();
    EXPECT_EQ(Of(u"", u"007"), 0);
    EXPECT_EQ(store.RationalThoughtText, u"");
    EXPECT_TRUE(IsTextOf(store.RationalThoughtAbout, "RationalThoughtAbout"));
}

TEST_F(RationalThought, OverflowLeavesAllSlotsAlone) {
    const std::u16string most(3640, u'I');
    EXPECT_EQ(WrittenBeforeFailure([&] { Of(u"1", most + u"I"); }),
              SlotNames{});                                                // 32769 in the name
    EXPECT_EQ(WrittenBeforeFailure([&] { Of(u"8", most); }), SlotNames{}); // 32760 and 8
    EXPECT_EQ(Of(u"7", most), 7);                                          // 32767 with digits 25
}

} // namespace
} // namespace modReadings
