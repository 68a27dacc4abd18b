#include "numbers/calculators.h"
#include "numbers/essence.h"
#include "numbers/readings.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <ostream>
#include <vector>

namespace modReadings {
namespace {

using longhand::DigitalRoot;
using longhand::ValueOf;
using namespace std::chrono_literals;
using std::chrono::December;
using std::chrono::January;

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
    const char *title;
    const char16_t *name;
    std::vector<Span> spans;
};

void PrintTo(const Walk &walk, std::ostream *out) { *out << walk.title; }

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
    {"ANA",
     u"ANA",
     {{0, 0, 1},
      {1, 5, 5},
      {6, 7, 1},
      {8, 12, 5},
      {13, 14, 1},
      {15, 19, 5},
      {20, 21, 1},
      {22, 26, 5}}},
    // 1, 5, 5, 1: 12 years a pass.
    {"ANNA",
     u"ANNA",
     {{0, 0, 1}, {1, 10, 5}, {11, 12, 1}, {13, 22, 5}, {23, 24, 1}, {37, 46, 5}, {47, 48, 1}}},
    {"SMITH", u"SMITH", smith},
    // 2, 6: 8 years a pass. B ends at 2 and gives way there; O ends at 8 and stays for it.
    {"BO", u"BO", {{0, 1, 2}, {2, 8, 6}, {9, 9, 2}, {10, 16, 6}, {17, 17, 2}, {18, 24, 6}}},
    // 6, 1, 7: 14 years a pass. F counts in a first name.
    {"FAY",
     u"FAY",
     {{0, 5, 6}, {6, 6, 1}, {7, 14, 7}, {15, 19, 6}, {20, 20, 1}, {21, 28, 7}, {29, 33, 6}}},
    // 1, 6, 2: 9 years a pass.
    {"AFB", u"AFB", {{0, 0, 1}, {1, 6, 6}, {7, 9, 2}, {10, 15, 6}, {16, 18, 2}, {19, 24, 6}}},
    // 4, 6: 10 years a pass.
    {"MF", u"MF", {{0, 3, 4}, {4, 10, 6}, {11, 13, 4}, {14, 20, 6}}},
    // One letter of nine years.
    {"R", u"R", {{0, 30, 9}}},
    {"F", u"F", {{0, 30, 6}}},
    // Signs, digits, blanks and letters with an accent stand between and count nothing.
    {"Signs", u"-A 1N\u00C9'A2", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}, {13, 14, 1}}},
    {"Blanks", u"   ANA  ", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}, {13, 14, 1}}},
    // Neither does a small letter, the l included: A and Z have 1 and 8.
    {"Small", u"AlnZ", {{0, 0, 1}, {1, 9, 8}, {10, 18, 8}}},
};

const Walk lastNameWalks[] = {
    {"SMITH", u"SMITH", smith},
    {"ANA", u"ANA", {{0, 0, 1}, {1, 5, 5}, {6, 7, 1}, {8, 12, 5}}},
    // F is passed over: O has 6 and X has 6.
    {"FOX", u"FOX", {{0, 30, 6}}},
    // 1, 7: 8 years a pass.
    {"FAY", u"FAY", {{0, 0, 1}, {1, 8, 7}, {9, 16, 7}, {17, 24, 7}}},
    // 1, 2: 3 years a pass; A hands over to B, with nothing between.
    {"AFB", u"AFB", {{0, 0, 1}, {1, 3, 2}, {4, 6, 2}}},
    // M alone stays in force through the step of F and in every pass.
    {"MF", u"MF", {{0, 30, 4}}},
    // 4, 1: 5 years a pass.
    {"MFA", u"MFA", {{0, 3, 4}, {4, 5, 1}, {6, 8, 4}, {9, 10, 1}, {11, 13, 4}}},
    // A small l has the 6 years that F lacks; Proceed never lets one through.
    {"SmallL", u"MlA", {{0, 3, 4}, {4, 9, 6}, {10, 11, 1}, {12, 14, 4}, {15, 20, 6}}},
};

class EssenceFirstName : public Essence, public ::testing::WithParamInterface<Walk> {};

TEST_P(EssenceFirstName, ByHand) {
    const Walk &walk = GetParam();
    for (const Span &span : walk.spans)
        for (int age = span.from; age <= span.to; ++age)
            EXPECT_EQ(At(age, walk.name, u"", u"A"), DigitalRoot(span.value + 1)) << "age " << age;
}

TEST_P(EssenceFirstName, MiddleNameWalksBySameChart) {
    const Walk &walk = GetParam();
    for (const Span &span : walk.spans)
        for (int age = span.from; age <= span.to; ++age)
            EXPECT_EQ(At(age, u"A", walk.name, u"A"), DigitalRoot(span.value + 2)) << "age " << age;
}

INSTANTIATE_TEST_SUITE_P(Walks, EssenceFirstName, ::testing::ValuesIn(firstNameWalks));

class EssenceLastName : public Essence, public ::testing::WithParamInterface<Walk> {};

TEST_P(EssenceLastName, ByHand) {
    const Walk &walk = GetParam();
    for (const Span &span : walk.spans)
        for (int age = span.from; age <= span.to; ++age)
            EXPECT_EQ(At(age, u"A", u"", walk.name), DigitalRoot(span.value + 1)) << "age " << age;
}

INSTANTIATE_TEST_SUITE_P(Walks, EssenceLastName, ::testing::ValuesIn(lastNameWalks));

TEST_F(Essence, AnnaSmithAt41) {
    Named(u"ANNA", u"", u"SMITH");
    Born(u"29", u"December", u"1985");
    CalcEssence();
    EXPECT_EQ(store.EssenceNumber, 4); // 5 and 8
    EXPECT_TRUE(IsReadingOf(store.EssenceText, 4, "EssenceText"));
}

TEST_F(Essence, FoxAtAge0) {
    EXPECT_EQ(At(0, u"A", u"", u"FOX"), 7); // 1, and O in force with 6
    EXPECT_EQ(At(0, u"FOX", u"", u"B"), 8); // F in force with 6, and 2
}

TEST_F(Essence, FInEachOfTheThreeNames) {
    EXPECT_EQ(At(0, u"FA", u"B", u"B"), 1); // 6 + 2 + 2 = 10
    EXPECT_EQ(At(0, u"B", u"FA", u"B"), 1); // 2 + 6 + 2 = 10
    EXPECT_EQ(At(0, u"B", u"B", u"FA"), 5); // 2 + 2 + 1: the A
    EXPECT_EQ(At(6, u"FA", u"B", u"B"), 5); // the F ended at 6: 1 + 2 + 2
    EXPECT_EQ(At(5, u"B", u"FA", u"B"), 1); // the F still: 2 + 6 + 2 = 10
    EXPECT_EQ(At(6, u"B", u"B", u"FA"), 5); // A in every year: 2 + 2 + 1
}

TEST_F(Essence, EveryLetterHasItsValueAndLastsAsManyYears) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const int value = ValueOf(letter);
        // A follows, or B with its 2 where the letter itself has 1.
        const int next = value == 1 ? 2 : 1;
        const std::u16string name = std::u16string(1, letter) + (next == 1 ? u'A' : u'B');
        const char letterShown = static_cast<char>(letter);
        EXPECT_EQ(At(value - 1, name.c_str(), u"", u"A"), DigitalRoot(value + 1)) << letterShown;
        EXPECT_EQ(At(value, name.c_str(), u"", u"A"), next + 1) << letterShown;
        EXPECT_EQ(At(value - 1, u"A", name.c_str(), u"A"), DigitalRoot(value + 2)) << letterShown;
        EXPECT_EQ(At(value, u"A", name.c_str(), u"A"), next + 2) << letterShown;
        if (letter == u'F') {
            EXPECT_EQ(At(value - 1, u"A", u"", name.c_str()), 2);
            EXPECT_EQ(At(value, u"A", u"", name.c_str()), 2);
        } else {
            EXPECT_EQ(At(value - 1, u"A", u"", name.c_str()), DigitalRoot(value + 1))
                << letterShown;
            EXPECT_EQ(At(value, u"A", u"", name.c_str()), next + 1) << letterShown;
        }
    }
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
    const char16_t *const names[] = {u"ANA",  u"SMITH",       u"I",    u"RIVER",
                                     u"OAK",  u"BARTHOLOMEW", u"JAZZ", u"QUINN",
                                     u"KATE", u"LEE",         u"WOLZ", u"CHRISTABELLE"};
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
    ASSERT_EQ(readings::essence.size(), 11u);
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

TEST_F(Essence, MasterSumsDoNotSurvive) {
    EXPECT_EQ(At(0, u"I", u"", u"B"), 2); // 11
    EXPECT_TRUE(IsReadingOf(store.EssenceText, 2, "EssenceText"));
    EXPECT_EQ(At(0, u"I", u"R", u"M"), 4); // 22
    EXPECT_TRUE(IsReadingOf(store.EssenceText, 4, "EssenceText"));
    EXPECT_EQ(At(0, u"I", u"A", u"R"), 1); // 19, 10
    EXPECT_EQ(At(0, u"I", u"R", u"I"), 9); // 27
}

TEST_F(Essence, MiddleNameOfBlanksIsNone) {
    // A walk over it would not end at this age.
    EXPECT_EQ(At(41, u"ANNA", u"   ", u"SMITH"), 4);
    EXPECT_EQ(At(41, u"ANNA", u"", u"SMITH"), 4);
    EXPECT_EQ(At(41, u"ANNA", u" B ", u"SMITH"), 6); // 5 + 2 + 8 = 15
}

TEST(EssenceChart, EveryCapitalLastsAndInALastNameEveryOneButF) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        EXPECT_TRUE(LastsInFirstName(letter)) << static_cast<char>(letter);
        EXPECT_EQ(LastsInLastName(letter), letter != u'F') << static_cast<char>(letter);
    }
}

TEST(EssenceChart, OfTheSmallLettersTheLAloneLastsAndInALastNameOnly) {
    for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
        EXPECT_FALSE(LastsInFirstName(letter)) << static_cast<char>(letter);
        EXPECT_EQ(LastsInLastName(letter), letter == u'l') << static_cast<char>(letter);
    }
}

TEST(EssenceChart, NothingElseLasts) {
    for (const char16_t character :
         {u'0', u'1', u'6', u'9', u' ', u'-', u'\'', u'@', u'[', u'\u00C9', u'\uFF21', u'\0'}) {
        EXPECT_FALSE(LastsInFirstName(character)) << unsigned{character};
        EXPECT_FALSE(LastsInLastName(character)) << unsigned{character};
    }
}

TEST_F(Essence, AtAge0TheFirstLetterWithAValueIsInForce) {
    EXPECT_EQ(At(0, u"ANNA", u"", u"SMITH"), 2);         // 1 + 1
    EXPECT_EQ(At(0, u"-NAN", u"1 K", u"'\u00D6MER"), 2); // 5 + 2 + 4 = 11
}

TEST_F(Essence, NamesWithoutLettersCountNothingAtAge0) {
    EXPECT_EQ(At(0, u"   ", u"", u"SMITH"), 1);
    EXPECT_EQ(At(0, u"007", u"", u"SMITH"), 1);
    EXPECT_EQ(At(0, u"BEN", u"99", u"SMITH"), 3);
    EXPECT_EQ(At(0, u"BEN", u"", u"F-F"), 2);
    EXPECT_EQ(At(0, u"BEN", u"", u"  "), 2);
    EXPECT_EQ(At(0, u"", u"", u""), 0);
}

TEST_F(Essence, SumOf0HasNoRowAndLeavesTheReading) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_EQ(At(0, u"-", u"", u"F"), 0);
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"EssenceNumber", "EssenceAbout"}));
}

TEST_F(Essence, BeforeBirthNoLetterIsInForce) {
    const ReadingStore marked = MarkedStore();
    for (const int age : {-1, -2, -24}) {
        store = marked;
        EXPECT_EQ(At(age, u"ANNA", u"BELLE", u"SMITH"), 0);
        EXPECT_EQ(ChangedSince(marked), (SlotNames{"EssenceNumber", "EssenceAbout"}));
        // Without a valued letter the walk ends all the same.
        EXPECT_EQ(At(age, u"   ", u"1", u"F"), 0);
    }
}

TEST_F(Essence, UnbornPersonSeesTheReadingOfThePersonBefore) {
    Named(u"ANNA", u"", u"SMITH");
    Born(u"1", u"May", u"2030");
    CalcEssence();
    EXPECT_EQ(store.EssenceNumber, 0);
    EXPECT_EQ(store.EssenceText, u""); // nobody was there before
    EXPECT_TRUE(store.EssenceAbout.starts_with(u"This particular number"));

    Born(u"1", u"May", u"1985");
    CalcEssence();
    EXPECT_EQ(store.EssenceNumber, 4);

    Born(u"1", u"May", u"2027");
    CalcEssence();
    EXPECT_EQ(store.EssenceNumber, 0);
    EXPECT_TRUE(IsReadingOf(store.EssenceText, 4, "EssenceText"));

    Born(u"1", u"May", u"2026");
    CalcEssence();
    EXPECT_EQ(store.EssenceNumber, 2); // A and S
    EXPECT_TRUE(IsReadingOf(store.EssenceText, 2, "EssenceText"));
}

TEST_F(Essence, ChangesOnTheFirstOfJanuaryWhateverTheBirthday) {
    Named(u"ANNA", u"", u"SMITH");
    for (const char16_t *month : {u"January", u"December", u"Brumaire"}) {
        Born(u"31", month, u"1979");
        clock.Set(2025y / December / 31);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, 4); // at 46 N with 5, and H with 8
        clock.Advance(1);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, 9); // at 47 A with 1, and H
        clock.Set(2026y / December / 31);
        CalcEssence();
        EXPECT_EQ(store.EssenceNumber, 9);
    }
}

TEST_F(Essence, WritesItsOwnSlotsAndNoOthers) {
    Named(u"ANNA", u"BELLE", u"SMITH");
    Born(u"29", u"December", u" 1985 "); // blanks around the year are trimmed
    const ReadingStore marked = MarkedStore();
    store = marked;
    CalcEssence();
    EXPECT_EQ(ChangedSince(marked), (SlotNames{"EssenceNumber", "EssenceText", "EssenceAbout"}));
    EXPECT_EQ(profile.FirstName, u"ANNA");
    EXPECT_EQ(profile.MiddleName, u"BELLE");
    EXPECT_EQ(profile.LastName, u"SMITH");
    const ReadingStore once = store;
    CalcEssence();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

TEST_F(Essence, AboutStandsWordForWord) {
    Named(u"ANNA", u"", u"SMITH");
    Born(u"29", u"December", u"1985");
    CalcEssence();
    EXPECT_EQ(store.EssenceAbout,
              u"This particular number indicates the possibilities that may arise during a "
              u"specific time period. Your essence number uses the letters in your name, to "
              u"understand the different influences you may face. This number tells about the "
              u"influences your name might have on your life's happenings. It also forebodes about "
              u"the possible happenings of future.");
}

TEST_F(Essence, YearThatIsNoNumberLeavesAllSlotsAlone) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    Named(u"ANNA", u"", u"SMITH");
    // The last one makes an age beyond 32767.
    for (const char16_t *year : {u"198x", u"MCMXC", u"", u"  ", u"19 85", u"40000", u"-32000"}) {
        Born(u"29", u"December", year);
        EXPECT_THROW(CalcEssence(), RuntimeFailure);
    }
    EXPECT_EQ(ChangedSince(marked), SlotNames{});
}

} // namespace
} // namespace modReadings
