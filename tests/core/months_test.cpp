#include "core/months.h"

#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using ::testing::PrintToString;

struct Month {
    std::u16string_view name;
    int16 value;
};

constexpr Month months[] = {
    {u"January", 1},   {u"February", 2}, {u"March", 3},    {u"April", 4},
    {u"May", 5},       {u"June", 6},     {u"July", 7},     {u"August", 8},
    {u"September", 9}, {u"October", 1},  {u"November", 2}, {u"December", 3},
};

constexpr std::u16string_view unknownMonths[] = {
    u"",        u"january", u"JANUARY", u" January", u"January ", u"Jan",           u"Januar",
    u"janvier", u"1",       u"10",      u"13",       u"Octobre",  u"d\u00E9cembre", u"October\r\n",
};

consteval bool EnglishNamesHold() {
    for (const Month &month : months)
        if (EnglishMonthValue(month.name) != month.value)
            return false;
    for (const std::u16string_view name : unknownMonths)
        if (EnglishMonthValue(name) != 0)
            return false;
    return true;
}
static_assert(EnglishNamesHold());

using MonthNumberTest = FreshStore;

TEST_F(MonthNumberTest, KnowsTheTwelveEnglishNamesWhateverLetterIsLeft) {
    for (const std::u16string left :
         {u"", u"A", u"R", u"Z", u"0", u" ", u"-", u"\u00C9", u"\u0661"}) {
        store.ScratchLetter = left;
        for (const Month &month : months)
            EXPECT_EQ(MonthNumber(month.name), month.value) << PrintToString(left);
        for (const std::u16string_view name : unknownMonths)
            EXPECT_EQ(MonthNumber(name), 0) << PrintToString(std::u16string(name));
        EXPECT_EQ(store.ScratchLetter, left);
    }
}

TEST_F(MonthNumberTest, StopsAtTheMonthOfADigitThatIsLeft) {
    for (const Calculator walk : {CalcDestiny, CalcSoulUrge, CalcInnerDreams}) {
        for (int digit = 1; digit <= 9; ++digit) {
            Named(u"OAK", u"", std::u16string(u"RIVER") + static_cast<char16_t>(u'0' + digit));
            walk();
            for (int month = 1; month <= 12; ++month)
                // Calendar order decides: the named month wins up to the digit's own.
                EXPECT_EQ(MonthNumber(months[month - 1].name), std::min(month, digit))
                    << "digit " << digit << ", month " << month;
            EXPECT_EQ(MonthNumber(u"january"), digit); // no name matches, the digit does
            EXPECT_EQ(MonthNumber(u""), digit);
        }
    }
}

TEST_F(MonthNumberTest, ComparesTheWholeOfWhatIsLeft) {
    store.ScratchLetter = u"33";
    EXPECT_EQ(MonthNumber(u""), 0);
    // No name walk leaves two characters, but the tests for 10, 11 and 12 are there.
    store.ScratchLetter = u"10";
    EXPECT_EQ(MonthNumber(u""), 1);
    store.ScratchLetter = u"11";
    EXPECT_EQ(MonthNumber(u"October"), 1);
    EXPECT_EQ(MonthNumber(u"December"), 2);
    store.ScratchLetter = u"12";
    EXPECT_EQ(MonthNumber(u""), 3);
}

} // namespace
} // namespace modReadings
