#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

namespace modReadings {
namespace {

using longhand::DigitalRoot;
using longhand::ValueOf;

class Balance : public FreshStore {
protected:
    static int Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcBalance();
        return store.BalanceNumber;
    }
};

TEST_F(Balance, ThreeInitials) {
    EXPECT_EQ(Of(u"ANNA", u"IDA", u"RIVER"), 1); // 1 + 9 + 9 = 19, 10
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 1, "BalanceText"));
    EXPECT_EQ(Of(u"IDA", u"ROSE", u"IVES"), 9); // 27
    EXPECT_EQ(Of(u"IDA", u"ROSE", u"DUNN"), 4); // 22 does not stay
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 4, "BalanceText"));
}

TEST_F(Balance, NoMiddleName) {
    EXPECT_EQ(Of(u"CORA", u"", u"HILL"), 2); // 3 + 8 = 11, and never 11
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 2, "BalanceText"));
    EXPECT_EQ(Of(u"ANNA", u"", u"SMITH"), 2); // 1 + 1
}

TEST_F(Balance, AllInitials) {
    // Position 26 stands for a name that is missing.
    const auto name = [](int position) {
        return position == 26 ? std::u16string()
                              : std::u16string{static_cast<char16_t>(u'A' + position), u'I'};
    };
    const auto value = [](int position) {
        return position == 26 ? 0 : ValueOf(static_cast<char16_t>(u'A' + position));
    };
    for (int first = 0; first <= 26; ++first) {
        for (int middle = 0; middle <= 26; ++middle) {
            for (int last = 0; last <= 26; ++last) {
                const int sum = value(first) + value(middle) + value(last);
                const int expected = DigitalRoot(sum);
                ASSERT_EQ(Of(name(first), name(middle), name(last)), expected)
                    << first << ' ' << middle << ' ' << last;
                if (expected != 0) {
                    ASSERT_TRUE(IsReadingOf(store.BalanceText, expected, "BalanceText"));
                }
            }
        }
    }
}

TEST_F(Balance, InitialWithoutAValueAddsNothing) {
    EXPECT_EQ(Of(u"-ANNA", u"1IDA", u"BELL"), 2); // the B alone: the first character counts
    EXPECT_EQ(Of(u" ANNA", u"\u00C9VA", u"BELL"), 2);
    EXPECT_EQ(Of(u"anna", u"ida", u"BELL"), 2);
}

TEST_F(Balance, ZeroKeepsTheReadingOfThePersonBefore) {
    EXPECT_EQ(Of(u"1", u"", u"-"), 0);
    EXPECT_EQ(store.BalanceText, u"");
    EXPECT_TRUE(store.BalanceAbout.starts_with(u"Different people"));

    EXPECT_EQ(Of(u"CORA", u"", u"HILL"), 2);

    EXPECT_EQ(Of(u"\u00C9VA", u"", u"\u00D6MER"), 0);
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 2, "BalanceText"));

    EXPECT_EQ(Of(u"", u"", u""), 0);
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 2, "BalanceText"));

    EXPECT_EQ(Of(u"ANNA", u"IDA", u"RIVER"), 1);
    EXPECT_TRUE(IsReadingOf(store.BalanceText, 1, "BalanceText"));
}

TEST_F(Balance, SixHasItsShortSentenceAndTheAboutItsTwoParagraphs) {
    EXPECT_EQ(Of(u"ED", u"", u"ASH"), 6);
    EXPECT_NE(store.BalanceText.find(
                  u"You have a loving nature and you will be loved by one and all at the same "
                  u"time."),
              std::u16string::npos);
    EXPECT_TRUE(IsTextOf(store.BalanceAbout, "BalanceAbout"));
}

TEST_F(Balance, WritesItsOwnSlotsAndNoOthers) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_EQ(Of(u"CORA", u"", u"HILL"), 2);
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"BalanceNumber", "BalanceText", "BalanceAbout"}));
    const ReadingStore once = store;
    CalcBalance();
    EXPECT_EQ(ChangedSince(once), SlotNames{});

    store = marked;
    EXPECT_EQ(Of(u"1", u"2", u"3"), 0);
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"BalanceNumber", "BalanceAbout"}));
}

} // namespace
} // namespace modReadings
