#include "core/letters.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace modReadings {
namespace {

static_assert(LetterValue(u"") == 0);
static_assert(LetterValue(u"AB") == 0 && LetterValue(u"AA") == 0);
static_assert(LetterValue(u"A ") == 0 && LetterValue(u" A") == 0);

static_assert(LetterValue(u"A") == 1 && LetterValue(u"I") == 9 && LetterValue(u"R") == 9);
static_assert(LetterValue(u"Z") == 8 && LetterValue(u"a") == 0);

/// The chart runs through the alphabet in nines, so a letter's value follows from its place.
consteval bool OnlyTheCapitalsHaveAValue() {
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const bool capital = unit >= U'A' && unit <= U'Z';
        const int expected = capital ? static_cast<int>((unit - U'A') % 9) + 1 : 0;
        if (ChartValue(static_cast<char16_t>(unit)) != expected)
            return false;
    }
    return true;
}
static_assert(OnlyTheCapitalsHaveAValue());

static_assert(NameLetterSum(u"") == 0);
static_assert(NameLetterSum(u"OAK") == 9);                          // 6 + 1 + 2
static_assert(NameLetterSum(u"RIVER") == 36);                       // 9 + 9 + 4 + 5 + 9
static_assert(NameLetterSum(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ") == 126); // 45 + 45 + 36
static_assert(NameLetterSum(u"12-' \u00C9oak") == 0);

TEST(NameLetterSum, IsCheckedToTheLastLetter) {
    const std::u16string upTo32760(3640, u'R');
    EXPECT_EQ(NameLetterSum(upTo32760 + u"P"), 32767);
    EXPECT_THROW(NameLetterSum(upTo32760 + u"Q"), RuntimeFailure);
    EXPECT_EQ(NameLetterSum(std::u16string(32767, u'A')), 32767);
    EXPECT_THROW(NameLetterSum(std::u16string(32768, u'A')), RuntimeFailure);
}

} // namespace
} // namespace modReadings
