// The name letter by letter, worked out by hand from the chart.

#include "numbers/name_sheet.h"

#include "core/proceed_pass.h"
#include "tests/support/fresh_store.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

using enum LetterKind;
using enum NamePart;

class NameSheetTest : public FreshStore {
protected:
    static NameSheet Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        return ReadNameSheet();
    }
};

// OAK RIVER: vowels 6 + 1 + 9 + 5 = 21, consonants 2 + 9 + 4 + 9 = 24.
TEST_F(NameSheetTest, OfVowelsAndConsonants) {
    const NameSheet sheet = Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(sheet.letters, (std::vector<NameLetter>{{First, u'O', 6, Vowel},
                                                      {First, u'A', 1, Vowel},
                                                      {First, u'K', 2, Consonant},
                                                      {Last, u'R', 9, Consonant},
                                                      {Last, u'I', 9, Vowel},
                                                      {Last, u'V', 4, Consonant},
                                                      {Last, u'E', 5, Vowel},
                                                      {Last, u'R', 9, Consonant}}));
    const std::vector<Trace::Step> reduced45{{Trace::StepKind::DigitSum, u"45", {4, 5}, 9}};
    EXPECT_EQ(sheet.destiny.raw, 45);
    EXPECT_EQ(sheet.destiny.steps, reduced45);
    EXPECT_EQ(sheet.destiny.number, 9);
    EXPECT_EQ(sheet.soulUrge.raw, 21);
    EXPECT_EQ(sheet.soulUrge.number, 3);
    EXPECT_EQ(sheet.innerDreams.raw, 24);
    EXPECT_EQ(sheet.innerDreams.number, 6);
}

TEST_F(NameSheetTest, OfYWithAndWithoutAVowel) {
    const NameSheet without = Of(u"SKY", u"Y", u"LYNN");
    for (const std::size_t y : {2U, 3U, 5U})
        EXPECT_EQ(without.letters[y].kind, YAsVowel);
    EXPECT_EQ(without.letters[3].part, Middle);
    EXPECT_EQ(without.letters[0].kind, Consonant);
    EXPECT_EQ(without.soulUrge.raw, 21);
    EXPECT_EQ(without.innerDreams.raw, 37); // 1 2 7, 7, 3 7 5 5

    const NameSheet with = Of(u"SKY", u"", u"LEE");
    EXPECT_EQ(with.letters[2], (NameLetter{First, u'Y', 7, Consonant}));
    EXPECT_EQ(with.soulUrge.raw, 10);
}

TEST_F(NameSheetTest, OfCharactersWithoutAValue) {
    const NameSheet sheet = Of(u"\u00C9 B", u"2", u"-\U0001F600");
    EXPECT_EQ(sheet.letters, (std::vector<NameLetter>{{First, u'\u00C9', 0, NotCounted},
                                                      {First, u' ', 0, NotCounted},
                                                      {First, u'B', 2, Consonant},
                                                      {Middle, u'2', 0, NotCounted},
                                                      {Last, u'-', 0, NotCounted},
                                                      {Last, u'\xD83D', 0, NotCounted},
                                                      {Last, u'\xDE00', 0, NotCounted}}));
    EXPECT_EQ(sheet.soulUrge.number, 0);
    EXPECT_TRUE(Of(u"", u"", u"").letters.empty());
    EXPECT_TRUE(Of(u"", std::u16string(3641, u'I'), u"").letters.empty()); // 9 each: over 32767
}

// 29 gives 11 by its digit sum; A, A and I are 11, which stays.
TEST_F(NameSheetTest, OfMasterNumbers) {
    const NameSheet sheet = Of(u"AAI", u"", u"II");
    EXPECT_EQ(sheet.soulUrge.raw, 29); // 1 1 9, 9 9
    EXPECT_EQ(sheet.soulUrge.number, 11);
    ASSERT_EQ(sheet.soulUrge.steps.size(), 2U);
    EXPECT_EQ(sheet.soulUrge.steps[1].kind, Trace::StepKind::MasterStays);
    EXPECT_EQ(Of(u"AAI", u"", u"").soulUrge.steps.front().kind, Trace::StepKind::MasterStays);
}

// A pass and what was told of it leave the same store.
TEST_F(NameSheetTest, LeavesTheStoreOfAPass) {
    OakRiver();
    RunAllCalculators();
    const ReadingStore before = store;
    ReadNameSheet();
    EXPECT_EQ(ChangedSince(before), SlotNames{});
}

} // namespace
} // namespace modReadings
