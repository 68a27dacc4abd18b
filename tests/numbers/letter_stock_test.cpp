// What is in a name and what is missing: Karmic Lessons and Hidden Passion.

#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <map>
#include <random>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using longhand::ValueOf;
using ::testing::PrintToString;

class KarmicLessons : public FreshStore {
protected:
    /// Whether the name gives list and text of these missing digits, character by character.
    static void Expect(std::u16string_view digits, std::u16string first, std::u16string middle,
                       std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcKarmicLessons();
        std::u16string list, text;
        for (const char16_t digit : digits) {
            list += std::u16string(u" ") + digit;
            text += std::u16string(u"\r\n") + digit + u"\r\n" +
                    Row(readings::karmicLessons.rows, static_cast<int16>(digit - u'0'));
        }
        EXPECT_EQ(store.KarmicLessonsNumber, list);
        EXPECT_EQ(store.KarmicLessonsText, text);
        EXPECT_TRUE(IsTextOf(store.KarmicLessonsAbout, "KarmicLessonsAbout"));
    }
};

TEST_F(KarmicLessons, OfOakRiverAre378) {
    Expect(u"378", u"OAK", u"", u"RIVER");
    EXPECT_EQ(store.KarmicLessonsNumber, u" 3 7 8");
    EXPECT_TRUE(store.KarmicLessonsText.starts_with(
        u"\r\n3\r\nThere are times when you are not happy with the things going on in your life."));
    EXPECT_FALSE(store.KarmicLessonsText.ends_with(u"\n"));
}

TEST_F(KarmicLessons, AreNoneForANameWithAllNineValues) {
    Expect(u"378", u"OAK", u"", u"RIVER"); // of whom nothing stays
    store.KarmicLessonsAbout.clear();
    Expect(u"", u"ABCDEFGHI", u"", u"");
    Expect(u"4689", u"SKY", u"", u"LYNN"); // 1, 2, 7, 3, 5
}

TEST_F(KarmicLessons, AreAllNineForANameWithoutALetter) {
    for (const std::u16string name : {u"", u"123456789", u"- '.", u"abcdefghi", u"\u00C9\u00C0",
                                      u"\uFF21\u0391", u"\U0001F600"})
        Expect(u"123456789", name, u"", name);
}

TEST_F(KarmicLessons, OfEverySetOfValuesInAllThreeNames) {
    for (unsigned set = 0; set < 512; ++set) {
        std::u16string name, missing; // the letters A to I have the values 1 to 9
        for (unsigned value = 1; value <= 9; ++value) {
            if (set >> (value - 1) & 1u)
                name += static_cast<char16_t>(u'A' + value - 1);
            else
                missing += static_cast<char16_t>(u'0' + value);
        }
        const std::size_t third = name.size() / 3;
        Expect(missing, name.substr(0, third), name.substr(third, third), name.substr(2 * third));
    }
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        std::u16string others = u"123456789";
        others.erase(static_cast<std::size_t>(ValueOf(letter) - 1), 1);
        Expect(others, std::u16string(3, letter), u"", u""); // how often does not matter
    }
    Expect(u"378", u"O'AK-", u" 3 7 8 ", u"RI VER\u00C9l");
}

TEST_F(KarmicLessons, OfANameTooLongToCountAreEmptiedBeforeTheyFail) {
    Expect(u"9", std::u16string(32760, u'A'), u"B", u"CDEFGH"); // 32767 characters
    for (const std::size_t length : {std::size_t{32768}, std::size_t{40000}}) {
        Named(std::u16string(length - 8, u'A'), u"B", u"CDEFGHI");
        EXPECT_EQ(WrittenBeforeFailure(CalcKarmicLessons),
                  (SlotNames{"KarmicLessonsNumber", "KarmicLessonsText"}));
        EXPECT_EQ(store.KarmicLessonsNumber, u"");
        EXPECT_EQ(store.KarmicLessonsText, u"");
    }
}

class HiddenPassion : public FreshStore {
protected:
    static int Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcHiddenPassion();
        return store.HiddenPassionNumber;
    }
};

TEST_F(HiddenPassion, IsTheValueOfTheMostFrequentLetterAndOfTheEarlierOfTwo) {
    EXPECT_EQ(Of(u"OAK", u"", u"RIVER"), 9);  // R
    EXPECT_EQ(Of(u"SKY", u"", u"LYNN"), 7);   // Y comes before N
    EXPECT_EQ(Of(u"XAB", u"CBD", u"EBF"), 2); // B is in all three names
    EXPECT_EQ(Of(u"NAAN", u"", u""), 5);
    EXPECT_EQ(Of(u"NA", u"", u"AN"), 5);
    EXPECT_EQ(Of(u"ANNA", u"", u""), 1);
    EXPECT_EQ(Of(u"XBBCC", u"", u""), 2); // the X comes first and is alone
    EXPECT_EQ(Of(u"SKY", u"", u"LE"), 1); // all different: the first
    EXPECT_EQ(Of(u"A-A-", u"", u""), 1);  // a letter wins over as many signs
    EXPECT_EQ(Of(u"B 1", u"2", u"3"), 2);
    EXPECT_EQ(Of(u"D\U0001F600D\U0001F600", u"", u""), 4);
}

TEST_F(HiddenPassion, DoesNotPoolLettersOfOneValue) {
    EXPECT_EQ(Of(u"AJS", u"", u"BB"), 2);
    EXPECT_EQ(Of(u"AJSAJS", u"", u"RRR"), 9);
}

TEST_F(HiddenPassion, OfASingleLetterIsItsValueAndSelectsItsReading) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const std::u16string name(1, letter);
        EXPECT_EQ(Of(name, u"", u""), ValueOf(letter));
        EXPECT_EQ(Of(u"", name, u""), ValueOf(letter));
        EXPECT_EQ(Of(u"", u"", name), ValueOf(letter));
        EXPECT_TRUE(IsReadingOf(store.HiddenPassionText, ValueOf(letter), "HiddenPassionText"));
    }
}

TEST_F(HiddenPassion, StaysEmptyInAFreshStoreWhenNoLetterWins) {
    const std::u16string names[][2] = {
        {u"A B C", u"D"}, // two blanks, and no letter twice
        {u"A-B", u"C-"},  {u"77A", u"B"},
        {u"1AB", u"CD"}, // all once: the digit comes first
        {u"'", u""},      {u"\u00C9\u00C9A", u"B"},
        {u"aab", u"AB"}, // small letters are characters like any other
        {u"", u""},       {u"AB\U0001F600", u"\U0001F601"}, // two faces with one first half
    };
    for (const auto &name : names) {
        store = {};
        EXPECT_EQ(Of(name[0], u"", name[1]), 0) << PrintToString(name[0]);
        EXPECT_EQ(store.HiddenPassionText, u"") << PrintToString(name[0]);
        EXPECT_TRUE(IsTextOf(store.HiddenPassionAbout, "HiddenPassionAbout"));
    }
}

TEST_F(HiddenPassion, OfThreePeopleKeepsANumberThatNoLetterReplaces) {
    EXPECT_EQ(Of(u"OAK", u"", u"RIVER"), 9);
    for (const std::u16string name : {u"A B C ", u""}) {
        store.HiddenPassionText = u"something else";
        EXPECT_EQ(Of(name, u"", u""), 9);
        EXPECT_TRUE(IsReadingOf(store.HiddenPassionText, 9, "HiddenPassionText")); // selected again
    }
    EXPECT_EQ(Of(u"AJS", u"", u"BB"), 2);
    EXPECT_TRUE(IsReadingOf(store.HiddenPassionText, 2, "HiddenPassionText"));

    store.HiddenPassionText = u"something else"; // stays under a number without a reading
    store.HiddenPassionNumber = 11;
    EXPECT_EQ(Of(u"A B C", u"", u"D"), 11);
    EXPECT_EQ(store.HiddenPassionText, u"something else");
}

TEST_F(HiddenPassion, AgreesWithATallyOverManyNames) {
    std::mt19937 random(20261116);
    constexpr std::u16string_view characters = u"AABCDEFGHIJKLMNOPQRSTUVWXYZ -'7\u00C9a";
    const auto name = [&](std::size_t longest) {
        std::u16string text(random() % (longest + 1), u' ');
        for (char16_t &character : text)
            character = characters[random() % characters.size()];
        return text;
    };
    int expected = 0;
    for (int person = 0; person < 4000; ++person) {
        const std::u16string first = name(9), middle = name(3), last = name(12);
        std::map<char16_t, int> tally;
        int most = 0;
        for (const char16_t character : first + middle + last)
            most = std::max(most, ++tally[character]);
        for (const char16_t character : first + middle + last) {
            if (tally[character] != most)
                continue;
            if (const int value = ValueOf(character); value != 0)
                expected = value;
            break;
        }
        ASSERT_EQ(Of(first, middle, last), expected)
            << PrintToString(first) << PrintToString(middle) << PrintToString(last);
    }
}

TEST_F(HiddenPassion, OfTheLongestNameIsFound) {
    // 32767 characters, half of them each; the A is one ahead. The calculator looks at each
    // pair of characters, which takes an optimized build.
#ifdef __OPTIMIZE__
    constexpr std::size_t half = 16383;
#else
    constexpr std::size_t half = 1000;
#endif
    EXPECT_EQ(Of(std::u16string(half, u'B'), u"", std::u16string(half + 1, u'A')), 1);

    for (const std::size_t length : {std::size_t{32768}, std::size_t{40000}}) {
        Named(std::u16string(length - 2, u'A'), u"B", u"C");
        EXPECT_EQ(WrittenBeforeFailure(CalcHiddenPassion), SlotNames{});
    }
}

} // namespace
} // namespace modReadings
