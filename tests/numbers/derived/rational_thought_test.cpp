#include "core/letters.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
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
        return store.RationalThoughtNumber;
    }
};

TEST_F(RationalThought, DayAndFirstName) {
    EXPECT_EQ(Of(u"29", u"BEN"), 5); // 11, 2; 2 + 5 + 5 = 12; 14
    EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, 5, "RationalThoughtText"));
    EXPECT_EQ(Of(u"9", u"BOB"), 1); // 9 + 10 = 19, 10
    EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, 1, "RationalThoughtText"));
    EXPECT_EQ(Of(u"2", u"I"), 11); // 2 + 9
    EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, 11, "RationalThoughtText"));
}

TEST_F(RationalThought, DayDoesNotKeepAMasterNumber) {
    EXPECT_EQ(Of(u"29", u"I"), 11); // 2 + 9 and not 11 + 9
    EXPECT_EQ(Of(u"11", u"A"), 3);  // 2 + 1
    EXPECT_EQ(Of(u"22", u"A"), 5);  // 4 + 1
}

TEST_F(RationalThought, MasterNumbersStayAsTheTotalAndAsItsDigitSum) {
    EXPECT_EQ(Of(u"4", u"RI"), 22); // 4 + 18
    EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, 22, "RationalThoughtText"));
    EXPECT_EQ(Of(u"2", u"III"), 11);                   // 29
    EXPECT_EQ(Of(u"2", u"IRIR"), 11);                  // 38
    EXPECT_EQ(Of(u"4", std::u16string(55, u'I')), 22); // 4 + 495 = 499 with digits 22
    EXPECT_EQ(Of(u"2", std::u16string(33, u'R')), 2);  // 2 + 297 = 299 with digits 20
    EXPECT_EQ(Of(u"2", std::u16string(333, u'R')), 2); // 2999: 29, which folds to 11 and 2
}

TEST_F(RationalThought, EveryTotalUpTo49) {
    constexpr int expected[] = {0, 1, 2, 3, 4,  5,  6, 7, 8, 9, 1, 11, 3,  4,  5, 6, 7,
                                8, 9, 1, 2, 3,  22, 5, 6, 7, 8, 9, 1,  11, 3,  4, 5, 6,
                                7, 8, 9, 1, 11, 3,  4, 5, 6, 7, 8, 9,  1,  11, 3, 4};
    static_assert(std::size(expected) == 50);
    for (std::size_t total = 0; total < 50; ++total) {
        EXPECT_EQ(Of(u"0", std::u16string(total, u'A')), expected[total]) << total;
        if (total > 0) {
            EXPECT_TRUE(
                IsReadingOf(store.RationalThoughtText, expected[total], "RationalThoughtText"));
        }
        if (total > 9) { // the same total with a day in it
            EXPECT_EQ(Of(u"18", std::u16string(total - 9, u'S')), expected[total]) << total;
        }
    }
}

TEST_F(RationalThought, OnlyTheFirstNameCounts) {
    profile.MiddleName = u"ZOE";
    profile.LastName = u"RIVER";
    EXPECT_EQ(Of(u"29", u"BEN"), 5);
}

TEST_F(RationalThought, BlanksAroundDayAndNameAreTrimmed) { EXPECT_EQ(Of(u"  29 ", u" BEN  "), 5); }

TEST_F(RationalThought, OtherCharactersOfTheNameAddNothing) {
    EXPECT_EQ(Of(u"29", u"B-E 9N\u00C9'ben"), 5);
}

TEST_F(RationalThought, NumberWithoutARowEmptiesTheText) {
    EXPECT_EQ(Of(u"29", u"BEN"), 5);
    ASSERT_FALSE(store.RationalThoughtText.empty());
    EXPECT_EQ(Of(u"", u"007"), 0);
    EXPECT_EQ(store.RationalThoughtText, u"");
    EXPECT_FALSE(store.RationalThoughtAbout.empty());
    EXPECT_EQ(Of(u"29", u"BEN"), 5);
    EXPECT_TRUE(IsReadingOf(store.RationalThoughtText, 5, "RationalThoughtText"));

    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_EQ(Of(u"0", u""), 0);
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"RationalThoughtNumber", "RationalThoughtText", "RationalThoughtAbout"}));
    EXPECT_EQ(store.RationalThoughtText, u"");
}

TEST_F(RationalThought, WritesItsOwnSlotsAndNoOthers) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_EQ(Of(u"2", u"I"), 11);
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"RationalThoughtNumber", "RationalThoughtText", "RationalThoughtAbout"}));
    EXPECT_EQ(profile.FirstName, u"I");
    EXPECT_EQ(profile.BirthDay, u"2");
    const ReadingStore once = store;
    CalcRationalThought();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(RationalThought, AboutStandsWordForWord) {
    Of(u"2", u"I");
    EXPECT_EQ(
        store.RationalThoughtAbout,
        u"This number reveals how your mind works in different situations of life. By knowing "
        u"your way of thought people can get an idea about your personality. This number "
        u"also reveals about your level of intelligence and ability for logical thinking.");
}

TEST_F(RationalThought, DayThatIsNoNumberLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    for (const char16_t *day : {u"x", u"2x", u"2 9", u"-2"})
        EXPECT_THROW(Of(day, u"BEN"), RuntimeFailure);
    EXPECT_EQ(ChangedSince(marked), SlotNames{});
}

TEST_F(RationalThought, OverflowLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_THROW(Of(u"1", std::u16string(3641, u'I')), RuntimeFailure); // 32769 in the name
    EXPECT_THROW(Of(u"8", std::u16string(3640, u'I')), RuntimeFailure); // 32760 and 8
    EXPECT_EQ(ChangedSince(marked), SlotNames{});
    EXPECT_EQ(Of(u"7", std::u16string(3640, u'I')), 7); // 32767 with digits 25
}

TEST_F(RationalThought, SumOfTheLettersOfAName) {
    EXPECT_EQ(NameLetterSum(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"), 126); // 45 + 45 + 36
    EXPECT_EQ(NameLetterSum(u"BEN"), 12);
    EXPECT_EQ(NameLetterSum(u"ben -1\u00C9"), 0);
    EXPECT_EQ(NameLetterSum(u""), 0);
}

} // namespace
} // namespace modReadings
