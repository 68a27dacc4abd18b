#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <set>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using longhand::Decimal;
using ::testing::PrintToString;

class Birthday : public FreshStore {
protected:
    static void On(std::u16string day) {
        profile.BirthDay = std::move(day);
        CalcBirthday();
    }
};

TEST_F(Birthday, HasAReadingOfItsOwnForEachDay) {
    std::set<std::u16string> texts;
    std::u16string about;
    for (int16 day = 1; day <= 31; ++day) {
        On(Decimal(day));
        EXPECT_EQ(store.BirthdayRaw, day);
        EXPECT_TRUE(IsReadingOf(store.BirthdayText, day, "BirthdayText"));
        EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, day));
        EXPECT_TRUE(IsTextOf(store.BirthdayAbout, "BirthdayAbout"));
        if (day > 1) {
            EXPECT_EQ(store.BirthdayAbout, about);
        }
        about = store.BirthdayAbout;
        texts.insert(store.BirthdayText);
    }
    EXPECT_EQ(texts.size(), 31u);
    EXPECT_EQ(readings::birthday.size(), 31u);
}

TEST_F(Birthday, IsTheDayItselfAndNotItsDigits) {
    On(u"19");
    const std::u16string nineteen = store.BirthdayText;
    On(u"28");
    EXPECT_NE(store.BirthdayText, nineteen);
    On(u"1");
    EXPECT_NE(store.BirthdayText, nineteen);

    Born(u"29", u"November", u"1999");
    CalcBirthday();
    CalcLifePath();
    EXPECT_EQ(store.BirthdayRaw, 29);
    EXPECT_EQ(store.LifePathDaySum, 11);
}

TEST_F(Birthday, HasNoReadingOutsideTheMonth) {
    for (const int day : {0, 32, 33, 99, 32767, -1, -29, -32768}) {
        store = {};
        On(Decimal(day));
        EXPECT_EQ(store.BirthdayRaw, day);
        EXPECT_EQ(store.BirthdayText, u"") << day;
        EXPECT_TRUE(IsTextOf(store.BirthdayAbout, "BirthdayAbout")) << day;
    }
}

TEST_F(Birthday, TakesTheTextAsOneNumber) {
    On(u"07");
    EXPECT_EQ(store.BirthdayRaw, 7);
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, 7));
}

TEST_F(Birthday, DoesNotLookAtMonthOrYear) {
    Born(u"31", u"February", u"2000");
    CalcBirthday();
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, 31));
    Born(u"31", u"no month", u"no year");
    CalcBirthday();
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, 31));
}

TEST_F(Birthday, FailsOnTextThatIsNoNumberAndKeepsItsSlots) {
    On(u"29");
    const ReadingStore before = store;
    for (const std::u16string text : {u"", u"x", u"1x", u"x1", u"1 2", u"-", u"1.5", u"\u0661",
                                      u"first", u"32768", u"-32769", u"40000", u"99999999999"}) {
        EXPECT_THROW(On(text), RuntimeFailure) << PrintToString(text);
        EXPECT_EQ(Changed(before, store), SlotNames{}) << PrintToString(text);
    }
}

TEST_F(Birthday, WritesItsThreeSlotsAndNoOther) {
    const ReadingStore before = store = MarkedStore();
    On(u"29");
    EXPECT_EQ(Changed(before, store), (SlotNames{"BirthdayText", "BirthdayRaw", "BirthdayAbout"}));
}

TEST_F(Birthday, IsTheSameWhenItIsRunAgain) {
    On(u"9");
    const ReadingStore first = store;
    CalcBirthday();
    CalcBirthday();
    EXPECT_EQ(Changed(first, store), SlotNames{});
}

TEST_F(Birthday, OfThreePeopleKeepsTheTextOfADayThatHasOne) {
    On(u"31");
    store.BirthdayAbout.clear();
    On(u"32");
    EXPECT_EQ(store.BirthdayRaw, 32);
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, 31));
    EXPECT_TRUE(IsTextOf(store.BirthdayAbout, "BirthdayAbout"));
    EXPECT_THROW(On(u"x"), RuntimeFailure);
    EXPECT_EQ(store.BirthdayRaw, 32);
    On(u"5");
    EXPECT_EQ(store.BirthdayRaw, 5);
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday.rows, 5));
}

} // namespace
} // namespace modReadings
