#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

constexpr std::u16string_view refusal = u"This number is not valid for this name.";

class SubconsciousSelf : public FreshStore {
protected:
    static int Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcSubconsciousSelf();
        EXPECT_EQ(store.MissingDigitsScratch, u"");
        return store.SubconsciousSelfNumber;
    }
};

TEST_F(SubconsciousSelf, EveryCount) {
    const std::u16string letters = u"ABCDEFGHI"; // the values 1 to 9
    for (std::size_t count = 0; count <= 9; ++count) {
        const int number = static_cast<int>(count);
        EXPECT_EQ(Of(letters.substr(0, count), u"", u""), number);
        EXPECT_TRUE(IsReadingOf(store.SubconsciousSelfText, number, "SubconsciousSelfText"));
        if (count < 3) {
            EXPECT_EQ(store.SubconsciousSelfText, refusal);
        }
    }
}

TEST_F(SubconsciousSelf, AnnLee) {
    EXPECT_EQ(Of(u"ANN", u"", u"LEE"), 3); // 1, 5 and 3: N and E share the 5
    EXPECT_TRUE(IsReadingOf(store.SubconsciousSelfText, 3, "SubconsciousSelfText"));
}

TEST_F(SubconsciousSelf, AnnaShowsItsNumberAboveTheRefusal) {
    EXPECT_EQ(Of(u"ANNA", u"", u""), 2);
    EXPECT_EQ(store.SubconsciousSelfText, refusal);
}

TEST_F(SubconsciousSelf, AllThreeNamesCount) {
    EXPECT_EQ(Of(u"ABC", u"DEF", u"GHI"), 9);
    EXPECT_TRUE(IsReadingOf(store.SubconsciousSelfText, 9, "SubconsciousSelfText"));
    EXPECT_EQ(Of(u"ABC", u"", u"GHI"), 6);
    EXPECT_EQ(Of(u"", u"DEF", u""), 3);
}

TEST_F(SubconsciousSelf, EachLetterStandsForItsValue) {
    const std::u16string_view groups[] = {u"AJS", u"BKT", u"CLU", u"DMV", u"ENW",
                                          u"FOX", u"GPY", u"HQZ", u"IR"};
    for (const std::u16string_view group : groups) {
        std::u16string others;
        for (const std::u16string_view other : groups)
            if (other != group)
                others += other;
        EXPECT_EQ(Of(others, u"", u""), 8);
        for (const char16_t letter : group)
            EXPECT_EQ(Of(others, u"", std::u16string(1, letter)), 9);
        // How often a value occurs does not matter.
        EXPECT_EQ(Of(std::u16string(group), std::u16string(group), u""), 1);
    }
}

TEST_F(SubconsciousSelf, OtherCharactersRaiseNoFlag) {
    EXPECT_EQ(Of(u"A-1 '.9", u"\u00C9\u00D6\u00DF", u"bcd"), 1);
    EXPECT_EQ(Of(u"007", u"", u"--"), 0);
    EXPECT_EQ(store.SubconsciousSelfText, refusal);
    EXPECT_EQ(Of(u"", u"", u""), 0);
}

TEST_F(SubconsciousSelf, RefusalReplacesTheReadingOfThePersonBefore) {
    EXPECT_EQ(Of(u"ABC", u"DEF", u"GHI"), 9);
    EXPECT_EQ(Of(u"ANNA", u"", u""), 2);
    EXPECT_EQ(store.SubconsciousSelfText, refusal);
    EXPECT_EQ(Of(u"ANN", u"", u"LEE"), 3);
    EXPECT_TRUE(IsReadingOf(store.SubconsciousSelfText, 3, "SubconsciousSelfText"));
}

TEST_F(SubconsciousSelf, WritesItsOwnSlotsAndEmptiesItsScratch) {
    const ReadingStore marked = MarkedStore();
    store = marked; // with something in the scratch slot
    EXPECT_EQ(Of(u"ANN", u"", u"LEE"), 3);
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"SubconsciousSelfNumber", "SubconsciousSelfText",
                                               "SubconsciousSelfAbout", "MissingDigitsScratch"}));
    const ReadingStore once = store;
    CalcSubconsciousSelf();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(SubconsciousSelf, AboutIsOneParagraph) {
    CalcSubconsciousSelf();
    EXPECT_TRUE(IsTextOf(store.SubconsciousSelfAbout, "SubconsciousSelfAbout"));
}

} // namespace
} // namespace modReadings
