#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"

namespace modReadings {
namespace {

class SubconsciousSelf : public FreshStore {
protected:
    /// Whether the name has this count, its reading, and nothing left in the scratch slot.
    static void Expect(int number, std::u16string first, std::u16string middle = {},
                       std::u16string last = {}) {
        Named(std::move(first), std::move(middle), std::move(last));
        store.MissingDigitsScratch = u"left over";
        CalcSubconsciousSelf();
        EXPECT_EQ(store.SubconsciousSelfNumber, number);
        EXPECT_TRUE(IsReadingOf(store.SubconsciousSelfText, number, "SubconsciousSelfText"));
        if (number < 3) {
            EXPECT_EQ(store.SubconsciousSelfText, u"This number is not valid for this name.");
        }
        EXPECT_EQ(store.MissingDigitsScratch, u"");
    }
};

TEST_F(SubconsciousSelf, CountsTheValuesInAllThreeNames) {
    const std::u16string letters = u"ABCDEFGHI"; // the values 1 to 9
    for (std::size_t count = 0; count <= 9; ++count)
        Expect(static_cast<int>(count), letters.substr(0, count));
    Expect(2, u"ANNA");             // the refusal replaces the reading of the person before
    Expect(3, u"ANN", u"", u"LEE"); // 1, 5 and 3: N and E share the 5
    Expect(9, u"ABC", u"DEF", u"GHI");
    Expect(6, u"ABC", u"", u"GHI");
    Expect(3, u"", u"DEF");
    Expect(1, u"A-1 '.9", u"\u00C9\u00D6\u00DF", u"bcd"); // other characters raise no flag
    Expect(0, u"007", u"", u"--");
}

TEST_F(SubconsciousSelf, EachLetterStandsForItsValue) {
    const std::u16string_view groups[] = {u"AJS", u"BKT", u"CLU", u"DMV", u"ENW",
                                          u"FOX", u"GPY", u"HQZ", u"IR"};
    for (const std::u16string_view group : groups) {
        std::u16string others;
        for (const std::u16string_view other : groups)
            if (other != group)
                others += other;
        Expect(8, others);
        for (const char16_t letter : group)
            Expect(9, others, u"", std::u16string(1, letter));
        Expect(1, std::u16string(group), std::u16string(group)); // how often does not matter
    }
}

} // namespace
} // namespace modReadings
