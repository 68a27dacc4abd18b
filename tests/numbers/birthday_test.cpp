#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <set>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using ::testing::PrintToString;

constexpr Opening birthdayOpenings[] = {
    {1, u"People with this number as their birthday number have inborn leadership qualities."},
    {2, u"People with this number as their birth date, have a general friendly attitude and like "
        u"to maintain peaceful and"},
    {3, u"You have a wild imagination and come up with innovative ideas now and often."},
    {4, u"People born on the fourth day of the month work are methodical and organized in their "
        u"work."},
    {5, u"People born on the fifth day of a month are social and like the association of others."},
    {6, u"You are a responsible, helpful and understanding human being."},
    {7, u"You value your own freedom and would like to do things according to your own way."},
    {8, u"People born on the 8th day of the month can plan in a meticulous and detailed manner."},
    {9, u"You have a sensitive and caring nature."},
    {10, u"People with birthday number 10 are highly ambitious."},
    {11, u"Though you have a practical and realistic attitude, your sensitive and emotional side "
         u"comes to the forefront and this"},
    {12, u"You have a general easygoing and relaxed attitude."},
    {13, u"People born on the 13th day of the month have innate managerial and organizational "
         u"skills but you tend to dominate others sometimes."},
    {14, u"People born on the 14th day of a month like the company of people and working in groups "
         u"excites them."},
    {15, u"Persons born on the 15 day of a month are highly creative and artistic."},
    {16, u"You have an introverted and inflexible nature and this makes it difficult for others to "
         u"understand you properly."},
    {17, u"People born on the 17th day of the month have good organizational and managerial "
         u"capabilities."},
    {18, u"You are a good organizer and a methodical worker."},
    {19, u"People born on the 19th day of a month have an independent streak in themselves and are "
         u"very energetic."},
    {20, u"People born on the 20th day of a month are highly sensitive and very impressionable."},
    {21,
     u"Though you have an easygoing and relaxed attitude, you tend to become restless at times."},
    {22, u"You are a mature and intelligent person."},
    {23, u"You have some inborn talents and are versatile in nature."},
    {24, u"People born on this date are responsible and have a helping attitude."},
    {25, u"You are a deep thinker and you can grasp the meaning of things quickly."},
    {26, u"This number indicates that you are an ambitious and hardworking individual."},
    {27, u"People born on the 27th day of the month are generally humanitarian at their heart and "
         u"are inclined towards social work."},
    {28, u"People born on the 28th day of the month are usually energetic and have an independent "
         u"streak in them."},
    {29, u"People born on the 29th day of the month are highly intuitive and have an imaginative "
         u"and creative mind."},
    {30, u"You have good verbal and written communication skills."},
    {31, u"People born on the 31st day of the month have good administrative and organizational "
         u"skills."},
};

constexpr std::u16string_view aboutOpening =
    u"This number tells about the various happenings that might occur in your midlife.";

std::u16string Decimal(int value) {
    const std::string text = std::to_string(value);
    return {text.begin(), text.end()};
}

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
    int day = 0;
    for (const Opening &opening : birthdayOpenings) {
        ASSERT_EQ(opening.number, ++day);
        On(Decimal(day));
        EXPECT_EQ(store.BirthdayRaw, day);
        EXPECT_TRUE(store.BirthdayText.starts_with(opening.words)) << day;
        EXPECT_EQ(store.BirthdayText, Row(readings::birthday, opening.number));
        EXPECT_TRUE(store.BirthdayAbout.starts_with(aboutOpening));
        if (day > 1) {
            EXPECT_EQ(store.BirthdayAbout, about);
        }
        about = store.BirthdayAbout;
        texts.insert(store.BirthdayText);
    }
    EXPECT_EQ(day, 31);
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
        EXPECT_TRUE(store.BirthdayAbout.starts_with(aboutOpening)) << day;
    }
}

TEST_F(Birthday, TakesTheTextAsOneNumber) {
    On(u"07");
    EXPECT_EQ(store.BirthdayRaw, 7);
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday, 7));
}

TEST_F(Birthday, DoesNotLookAtMonthOrYear) {
    Born(u"31", u"February", u"2000");
    CalcBirthday();
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday, 31));
    Born(u"31", u"no month", u"no year");
    CalcBirthday();
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday, 31));
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
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday, 31));
    EXPECT_TRUE(store.BirthdayAbout.starts_with(aboutOpening));
    EXPECT_THROW(On(u"x"), RuntimeFailure);
    EXPECT_EQ(store.BirthdayRaw, 32);
    On(u"5");
    EXPECT_EQ(store.BirthdayRaw, 5);
    EXPECT_EQ(store.BirthdayText, Row(readings::birthday, 5));
}

} // namespace
} // namespace modReadings
