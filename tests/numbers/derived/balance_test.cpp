#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"

namespace modReadings {
namespace {

class Balance : public FreshStore {
protected:
    static int Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcBalance();
        return store.BalanceNumber;
    }
};

TEST_F(Balance, OfAllInitials) {
    EXPECT_EQ(Of(u"IDA", u"ROSE", u"DUNN"), 4); // 22 does not stay
    EXPECT_EQ(Of(u"CORA", u"", u"HILL"), 2);    // 3 + 8 = 11, and never 11
    // The first character alone counts, and one without a value adds nothing.
    EXPECT_EQ(Of(u"-ANNA", u"1IDA", u"BELL"), 2);
    EXPECT_EQ(Of(u" ANNA", u"\u00C9VA", u"BELL"), 2);
    EXPECT_EQ(Of(u"anna", u"ida", u"BELL"), 2);

    // @ stands before A and for a name that is missing.
    const auto name = [](char16_t initial) {
        return initial == u'@' ? std::u16string() : std::u16string{initial, u'I'};
    };
    for (char16_t first = u'@'; first <= u'Z'; ++first) {
        for (char16_t middle = u'@'; middle <= u'Z'; ++middle) {
            for (char16_t last = u'@'; last <= u'Z'; ++last) {
                const int expected = longhand::DigitalRoot(
                    longhand::ValueOf(first) + longhand::ValueOf(middle) + longhand::ValueOf(last));
                ASSERT_EQ(Of(name(first), name(middle), name(last)), expected);
                if (expected != 0) {
                    ASSERT_TRUE(Opens(store.BalanceText, "BalanceText", expected));
                }
            }
        }
    }
}

TEST_F(Balance, ZeroKeepsTheReadingOfThePersonBefore) {
    EXPECT_EQ(Of(u"1", u"", u"-"), 0);
    EXPECT_EQ(store.BalanceText, u"");
    EXPECT_TRUE(IsTextOf(store.BalanceAbout, "BalanceAbout"));

    EXPECT_EQ(Of(u"CORA", u"", u"HILL"), 2);
    EXPECT_EQ(Of(u"\u00C9VA", u"", u"\u00D6MER"), 0);
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 2, "BalanceText"));
    EXPECT_EQ(Of(u"ANNA", u"IDA", u"RIVER"), 1); // 1 + 9 + 9 = 19, 10
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 1, "BalanceText"));
}

} // namespace
} // namespace modReadings
