#include "numbers/calculators.h"
#include "numbers/readings.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <vector>

namespace modReadings {
namespace {

using longhand::DigitalRoot;
using longhand::ValueOf;
using ::testing::PrintToString;

class Essence : public FreshStore {
protected:
    /// The number of the name at an age.
    int At(int age, const char16_t *first, const char16_t *middle, const char16_t *last) {
        Named(first, middle, last);
        profile.BirthYear = u"1900";
        clock.Set(std::chrono::year(1900 + age) / 6 / 15);
        CalcEssence();
        return store.EssenceNumber;
    }
};

// A person whose last name is A has the value 1 there at every age, and one whose first
// name is A likewise. What the other name has in force is then the number less 1.
struct Span {
    int from, to; ///< ages
    int value;    ///< in force
};

struct Walk {
    const char16_t *name;
    std::vector<Span> spans;
};

// SMITH, which has no F and so walks alike as first and as last name: 1, 4, 9, 2, 8 make 24
// years a pass.
const std::vector<Span> smith{{0, 0, 1},   {1, 4, 4},   {5, 13, 9},  {14, 15, 2}, {16, 24, 8},
                              {25, 28, 4}, {29, 37, 9}, {38, 39, 2}, {40, 48, 8}, {49, 52, 4}};

// Worked out by hand: a letter is in force from the age at which its years begin, the
// letter behind it takes over at the very age at which they end, but the first letter
// of the name only the year after the last letter ended. So in a later pass a first letter
// of one year is never in force: at its only year the second letter is taken as well.
const Walk firstNameWalks[] = {
    // 1, 5, 1: 7 years a pass.
    {u"ANA",
     {{0, 0, 1},
      {1, 5, 5},
      {6, 7, 1},
      {8, 12, 5},
      {13, 14, 1},
      {15, 19, 5},
      {20, 21, 1},
      {22, 26, 5}}},
    // 1, 5, 5, 1: 12 years a pass.
    {u"ANNA",
     {{0, 0, 1}, {1, 10, 5}, {11, 12, 1}, {13, 22, 5}, {23, 24, 1}, {37, 46, 5}, {47, 48, 1}}},
    {u"SMITH", smith},
    // 2, 6: 8 years a pass. B ends at 2 and gives way there; O ends at 8 and stays for it.
    {u"BO", {{0, 1, 2}, {2, 8, 6}, {9, 9, 2}, {10, 16, 6}, {17, 17, 2}, {18, 24, 6}}},
    // 6, 1, 7: 14 years a pass. F counts in a first name.
    {u"FAY",
     {{0, 5, 6}, {6, 6, 1}, {7, 14, 7}, {15, 19, 6}, {20, 20, 1}, {21, 28, 7}, {29, 33, 6}}},
    // 1, 6, 2: 9 years a pass.
    {u"AFB", {{0, 0, 1}, {1, 6, 6}, {7, 9, 2}, {10, 15, 6}, {16, 18, 2}, {19, 24, 6}}},
    // 4, 6: 10 years a pass.
    {u"MF", {{0, 3, 4}, {4, 10, 6}, {11, 13, 4}, {14, 20, 6}}},
    // One letter of nine years.
    {u"R", {{0, 30, 9}}},
    {u"F", {{0, 30, 6}}},
    // Signs, digits, blanks and letters with an accent stand between and count nothing.
    {u"-A 1N\u00C9'A2", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}, {13, 14, 1}}},
    {u"   ANA  ", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}, {13, 14, 1}}},
    // Neither does a small letter, the l included: A and Z have 1 and 8.
    {u"AlnZ", {{0, 0, 1}, {1, 9, 8}, {10, 18, 8}}},
};

const Walk lastNameWalks[] = {
    {u"SMITH", smith},
    {u"ANA", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}}},
    // F is passed over: O has 6 and X has 6.
    {u"FOX", {{0, 30, 6}}},
    // 1, 7: 8 years a pass.
    {u"FAY", {{0, 0, 1}, {1, 8, 7}, {9, 16, 7}, {17, 24, 7}}},
    // 1, 2: 3 years a pass; A hands over to B, with nothing between.
    {u"AFB", {{0, 0, 1}, {1, 3, 2}, {4, 6, 2}}},
    // M alone stays in force through the step of F and in every pass.
    {u"MF", {{0, 30, 4}}},
    // 4, 1: 5 years a pass.
    {u"MFA", {{0, 3, 4}, {4, 5, 1}, {6, 8, 4}, {9, 10, 1}, {11, 13, 4}}},
    // A small l has the 6 years that F lacks; Proceed never lets one through.
    {u"MlA", {{0, 3, 4}, {4, 9, 6}, {10, 11, 1}, {12, 14, 4}, {15, 20, 6}}},
};

using EssenceFirstName = Essence;

TEST_F(EssenceFirstName, ByHand) {
    for (const Walk &walk : firstNameWalks) {
        for (const Span &span : walk.spans) {
            for (int age = span.from; age <= span.to; ++age) {
                EXPECT_EQ(At(age, walk.name, u"", u"A"), DigitalRoot(span.value + 1))
                    << PrintToString(std::u16string(walk.name)) << age;
                EXPECT_EQ(At(age, u"A", walk.name, u"A"), DigitalRoot(span.value + 2)) << age;
            }
        }
    }
}

using EssenceLastName = Essence;

TEST_F(EssenceLastName, ByHand) {
    for (const Walk &walk : lastNameWalks)
        for (const Span &span : walk.spans)
            for (int age = span.from; age <= span.to; ++age)
                EXPECT_EQ(At(age, u"A", u"", walk.name), DigitalRoot(span.value + 1))
                    << PrintToString(std::u16string(walk.name)) << age;
}

TEST_F(Essence, FInEachOfTheThreeNames) {
    EXPECT_EQ(At(0, u"FA", u"B", u"B"), 1); // 6 + 2 + 2 = 10
    EXPECT_EQ(At(0, u"B", u"FA", u"B"), 1); // 2 + 6 + 2 = 10
    EXPECT_EQ(At(0, u"B", u"B", u"FA"), 5); // 2 + 2 + 1: the A
    EXPECT_EQ(At(6, u"FA", u"B", u"B"), 5); // the F ended at 6: 1 + 2 + 2
    EXPECT_EQ(At(5, u"B", u"FA", u"B"), 1); // the F still: 2 + 6 + 2 = 10
    EXPECT_EQ(At(6, u"B", u"B", u"FA"), 5); // A in every year: 2 + 2 + 1
}

/// The letter in force by another road. The pass in which the walk ends begins at the last
/// multiple of the name's years below the age; in it the letter counts that begins last of
/// those that begin no later than the age.
int InForce(std::u16string_view name, int age) {
    std::vector<int> values;
    int years = 0;
    for (const char16_t letter : name) {
        values.push_back(ValueOf(letter));
        years += ValueOf(letter);
    }
    const int into = age == 0 ? 0 : age - (age - 1) / years * years;
    int begins = 0;
    int inForce = 0;
    for (const int value : values) {
        if (begins <= into)
            inForce = value;
        begins += value;
    }
    return inForce;
}

TEST_F(Essence, LongLivesOfManyNames) {
    const char16_t *const names[] = {u"ANA", u"I",     u"RIVER",  u"BARTHOLOMEW", u"JAZZ",
                                     u"PYX", u"QUINN", u"GUDVON", u"CHRISTABELLE"};
    for (const char16_t *first : names) {
        for (const char16_t *last : names) {
            for (int age = 0; age <= 150; ++age) {
                const int sum = InForce(first, age) + InForce(u"VIK", age) + InForce(last, age);
                ASSERT_EQ(At(age, first, u"VIK", last), DigitalRoot(sum)) << "age " << age;
            }
        }
    }
}

TEST_F(Essence, EveryRowIsReachedBut11And22) {
    ASSERT_EQ(readings::essence.rows.size(), 11u);
    EXPECT_EQ(readings::essence.rows[9].number, 11);
    EXPECT_EQ(readings::essence.rows[10].number, 22);
    for (const Reading &reading : readings::essence.rows)
        EXPECT_TRUE(IsReadingOf(reading.text, reading.number, "EssenceText"));

    // At age 0 the first letters are in force: all sums from 2 to 27.
    const char16_t *const letters[] = {u"", u"A", u"B", u"C", u"D", u"E", u"O", u"G", u"H", u"I"};
    std::set<int> reached;
    for (int first = 1; first <= 9; ++first) {
        for (int middle = 0; middle <= 9; ++middle) {
            for (int last = 1; last <= 9; ++last) {
                const int expected = DigitalRoot(first + middle + last);
                ASSERT_EQ(At(0, letters[first], letters[middle], letters[last]), expected);
                ASSERT_TRUE(IsReadingOf(store.EssenceText, expected, "EssenceText"));
                reached.insert(expected);
            }
        }
    }
    EXPECT_EQ(reached, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(Essence, MiddleNameOfBlanksIsNone) {
    // A walk over it would not end at this age.
    EXPECT_EQ(At(41, u"ANNA", u"   ", u"SMITH"), 4);
    EXPECT_EQ(At(41, u"ANNA", u"", u"SMITH"), 4);
    EXPECT_EQ(At(41, u"ANNA", u" B ", u"SMITH"), 6); // 5 + 2 + 8 = 15
}

TEST_F(Essence, SumOf0HasNoRowAndLeavesTheReading) {
    // No letter that counts at age 0, and before birth no letter in force.
    EXPECT_EQ(WrittenBy([&] { At(0, u"-", u"", u"F"); }),
              (SlotNames{"EssenceNumber", "EssenceAbout"}));
    for (const int age : {-1, -2, -24}) {
        EXPECT_EQ(WrittenBy([&] { At(age, u"ANNA", u"BELLE", u"SMITH"); }),
                  (SlotNames{"EssenceNumber", "EssenceAbout"}));
        EXPECT_EQ(store.EssenceNumber, 0);
    }
    EXPECT_EQ(At(0, u"-NAN", u"1 K", u"'\u00D6MER"), 2); // 5 + 2 + 4 = 11
}

TEST_F(Essence, UnbornPersonSeesTheReadingOfThePersonBefore) {
    Named(u"ANNA", u"", u"SMITH");
    const struct {
        const char16_t *year;
        int number, reading; ///< 0 for none
    } people[] = {
        {u"2030", 0, 0}, // nobody was there before
        {u"1985", 4, 4}, // 5 and 8
        {u"2027", 0, 4}, // of the person before
        {u"2026", 2, 2}, // A and S
    };
    for (const auto &[year, number, reading] : people) {
        Born(u"1", u"May", year);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, number);
        EXPECT_EQ(store.EssenceText.empty(), reading == 0);
        if (reading != 0) {
            EXPECT_TRUE(IsReadingOf(store.EssenceText, reading, "EssenceText"));
        }
    }
}

TEST_F(Essence, ChangesOnTheFirstOfJanuaryWhateverTheBirthday) {
    Named(u"ANNA", u"", u"SMITH");
    for (const char16_t *month : {u"January", u"December", u"Brumaire"}) {
        Born(u"31", month, u" 1979 "); // blanks around the year are trimmed
        clock.Set(std::chrono::year(2025) / 12 / 31);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, 4); // at 46 N with 5, and H with 8
        clock.Advance(1);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, 9); // at 47 A with 1, and H
    }
}

} // namespace
} // namespace modReadings
