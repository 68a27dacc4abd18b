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
    static void Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcKarmicLessons();
    }

    /// The list and the text of the given missing digits, character by character.
    static void ExpectLessons(std::u16string_view digits) {
        std::u16string list, text;
        for (const char16_t digit : digits) {
            list += u" ";
            list += digit;
            text += u"\r\n";
            text += digit;
            text += u"\r\n";
            text += Row(readings::karmicLessons.rows, static_cast<int16>(digit - u'0'));
        }
        EXPECT_EQ(store.KarmicLessonsNumber, list);
        EXPECT_EQ(store.KarmicLessonsText, text);
        EXPECT_TRUE(IsTextOf(store.KarmicLessonsAbout, "KarmicLessonsAbout"));
    }
};

TEST_F(KarmicLessons, OfOakRiverAre378) {
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(store.KarmicLessonsNumber, u" 3 7 8");
    EXPECT_EQ(store.KarmicLessonsText, u"\r\n3\r\n" + Row(readings::karmicLessons.rows, 3) +
                                           u"\r\n7\r\n" + Row(readings::karmicLessons.rows, 7) +
                                           u"\r\n8\r\n" + Row(readings::karmicLessons.rows, 8));
    EXPECT_TRUE(store.KarmicLessonsText.starts_with(
        u"\r\n3\r\nThere are times when you are not happy with the things going on in your life."));
    EXPECT_FALSE(store.KarmicLessonsText.ends_with(u"\n"));
}

TEST_F(KarmicLessons, OpenEachInTheirOwnWords) {
    for (int16 value = 1; value <= 9; ++value)
        EXPECT_TRUE(IsReadingOf(Row(readings::karmicLessons.rows, value), value, "KarmicLessonsText"));
    EXPECT_EQ(readings::karmicLessons.size(), 9u);
}

TEST_F(KarmicLessons, AreNoneForANameWithAllNineValues) {
    Of(u"ABCDEFGHI", u"", u"");
    EXPECT_EQ(store.KarmicLessonsNumber, u"");
    EXPECT_EQ(store.KarmicLessonsText, u"");
    EXPECT_TRUE(IsTextOf(store.KarmicLessonsAbout, "KarmicLessonsAbout"));
}

TEST_F(KarmicLessons, AreAllNineForANameWithoutALetter) {
    for (const std::u16string name : {u"", u"123456789", u"- '.", u"abcdefghi", u"\u00C9\u00C0",
                                      u"\uFF21\u0391", u"\U0001F600"}) {
        Of(name, u"", name);
        ExpectLessons(u"123456789");
    }
}

TEST_F(KarmicLessons, OfEverySetOfValues) {
    for (unsigned set = 0; set < 512; ++set) {
        // The letters A to I have the values 1 to 9.
        std::u16string name, missing;
        for (unsigned value = 1; value <= 9; ++value) {
            if (set >> (value - 1) & 1u)
                name += static_cast<char16_t>(u'A' + value - 1);
            else
                missing += static_cast<char16_t>(u'0' + value);
        }
        Of(name.substr(0, name.size() / 2), u"", name.substr(name.size() / 2));
        ExpectLessons(missing);
    }
}

TEST_F(KarmicLessons, OfASingleLetterAreTheEightOtherValues) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        std::u16string others = u"123456789";
        others.erase(static_cast<std::size_t>(ValueOf(letter) - 1), 1);
        Of(std::u16string(1, letter), u"", u"");
        ExpectLessons(others);
    }
}

TEST_F(KarmicLessons, LookAtAllThreeNames) {
    Of(u"ABC", u"DEF", u"GHI");
    ExpectLessons(u"");
    Of(u"ABC", u"", u"GHI");
    ExpectLessons(u"456");
}

TEST_F(KarmicLessons, NotePresenceAndNotHowOften) {
    Of(u"AAAA", u"JJJ", u"SS");
    ExpectLessons(u"23456789");
}

TEST_F(KarmicLessons, PassOverWhatIsNoLetter) {
    Of(u"O'AK-", u" 3 7 8 ", u"RI VER\u00C9l");
    ExpectLessons(u"378");
}

TEST_F(KarmicLessons, DoNotPileUpWhenTheyAreRunAgain) {
    Of(u"OAK", u"", u"RIVER");
    const ReadingStore first = store;
    CalcKarmicLessons();
    CalcKarmicLessons();
    EXPECT_EQ(Changed(first, store), SlotNames{});
}

TEST_F(KarmicLessons, OfThreePeopleStartFromNothingEachTime) {
    Of(u"OAK", u"", u"RIVER");
    Of(u"ABCDEFGHI", u"", u""); // nothing of the first stays
    ExpectLessons(u"");
    Of(u"SKY", u"", u"LYNN"); // 1, 2, 7, 3, 5
    ExpectLessons(u"4689");
}

TEST_F(KarmicLessons, WriteTheirThreeSlotsAndNoOther) {
    const ReadingStore before = store = MarkedStore();
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(Changed(before, store),
              (SlotNames{"KarmicLessonsNumber", "KarmicLessonsText", "KarmicLessonsAbout"}));
}

TEST_F(KarmicLessons, OfANameTooLongToCountAreEmptiedBeforeTheyFail) {
    Of(std::u16string(32760, u'A'), u"B", u"CDEFGH"); // 32767 characters
    ExpectLessons(u"9");

    for (const std::size_t length : {std::size_t{32768}, std::size_t{40000}}) {
        store = MarkedStore();
        const ReadingStore before = store;
        Named(std::u16string(length - 8, u'A'), u"B", u"CDEFGHI");
        EXPECT_THROW(CalcKarmicLessons(), RuntimeFailure);
        EXPECT_EQ(store.KarmicLessonsNumber, u"");
        EXPECT_EQ(store.KarmicLessonsText, u"");
        EXPECT_EQ(Changed(before, store), (SlotNames{"KarmicLessonsNumber", "KarmicLessonsText"}));
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

TEST_F(HiddenPassion, IsTheValueOfTheMostFrequentLetter) {
    EXPECT_EQ(Of(u"OAK", u"", u"RIVER"), 9);  // R
    EXPECT_EQ(Of(u"SKY", u"", u"LYNN"), 7);   // Y comes before N
    EXPECT_EQ(Of(u"ANN", u"", u"LEE"), 5);    // N and E share it anyway
    EXPECT_EQ(Of(u"XAB", u"CBD", u"EBF"), 2); // B is in all three names
}

TEST_F(HiddenPassion, GoesToTheEarlierOfTwoEquals) {
    EXPECT_EQ(Of(u"NAAN", u"", u""), 5);
    EXPECT_EQ(Of(u"NA", u"", u"AN"), 5);
    EXPECT_EQ(Of(u"NA", u"AN", u""), 5);
    EXPECT_EQ(Of(u"ANNA", u"", u""), 1);
    EXPECT_EQ(Of(u"XBBCC", u"", u""), 2); // the X comes first and is alone
    EXPECT_EQ(Of(u"CBCBDD", u"", u""), 3);
    EXPECT_EQ(Of(u"SKY", u"", u"LE"), 1); // all different: the first
    EXPECT_EQ(Of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", u"", u""), 1);
    EXPECT_EQ(Of(u"ZYXWVUTSRQPONMLKJIHGFEDCBA", u"", u""), 8);
}

TEST_F(HiddenPassion, DoesNotPoolLettersOfOneValue) {
    EXPECT_EQ(Of(u"AJS", u"", u"BB"), 2);
    EXPECT_EQ(Of(u"AJSAJS", u"", u"RRR"), 9);
}

TEST_F(HiddenPassion, OfASingleLetterIsItsValue) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        EXPECT_EQ(Of(std::u16string(1, letter), u"", u""), ValueOf(letter));
        EXPECT_EQ(Of(u"", std::u16string(1, letter), u""), ValueOf(letter));
        EXPECT_EQ(Of(u"", u"", std::u16string(1, letter)), ValueOf(letter));
    }
}

TEST_F(HiddenPassion, SelectsTheReadingOfItsNumber) {
    for (int16 value = 1; value <= 9; ++value) {
        ASSERT_EQ(Of(std::u16string(1, static_cast<char16_t>(u'A' + value - 1)), u"", u""), value);
        EXPECT_TRUE(IsReadingOf(store.HiddenPassionText, value, "HiddenPassionText"));
        EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion.rows, value));
        EXPECT_TRUE(IsTextOf(store.HiddenPassionAbout, "HiddenPassionAbout"));
    }
    EXPECT_EQ(readings::hiddenPassion.size(), 9u);
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
        EXPECT_TRUE(IsTextOf(store.HiddenPassionAbout, "HiddenPassionAbout"))
            << PrintToString(name[0]);
    }
}

TEST_F(HiddenPassion, LetsALetterWinOverAsManySigns) {
    EXPECT_EQ(Of(u"A-A-", u"", u""), 1);
    EXPECT_EQ(Of(u"B 1", u"2", u"3"), 2);
    EXPECT_EQ(Of(u"D\U0001F600D\U0001F600", u"", u""), 4);
}

TEST_F(HiddenPassion, OfThreePeopleKeepsANumberThatNoLetterReplaces) {
    EXPECT_EQ(Of(u"OAK", u"", u"RIVER"), 9);

    store.HiddenPassionText = u"something else";
    store.HiddenPassionAbout.clear();
    EXPECT_EQ(Of(u"A B C", u"", u"D"), 9);
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion.rows, 9)); // selected again
    EXPECT_TRUE(IsTextOf(store.HiddenPassionAbout, "HiddenPassionAbout"));

    store.HiddenPassionText = u"something else";
    EXPECT_EQ(Of(u"", u"", u""), 9);
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion.rows, 9));

    EXPECT_EQ(Of(u"AJS", u"", u"BB"), 2);
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion.rows, 2));
}

TEST_F(HiddenPassion, KeepsTheTextUnderANumberWithoutAReading) {
    store.HiddenPassionText = u"something else";
    EXPECT_EQ(Of(u"A B C", u"", u"D"), 0);
    EXPECT_EQ(store.HiddenPassionText, u"something else");
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
        for (const char16_t character : first + middle + last)
            ++tally[character];
        int most = 0;
        for (const auto &[character, count] : tally)
            most = std::max(most, count);
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

TEST_F(HiddenPassion, IsTheSameWhenItIsRunAgain) {
    Of(u"OAK", u"", u"RIVER");
    const ReadingStore first = store;
    CalcHiddenPassion();
    CalcHiddenPassion();
    EXPECT_EQ(Changed(first, store), SlotNames{});
}

TEST_F(HiddenPassion, WritesItsThreeSlotsAndNoOther) {
    const ReadingStore before = store = MarkedStore();
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(Changed(before, store),
              (SlotNames{"HiddenPassionNumber", "HiddenPassionText", "HiddenPassionAbout"}));
}

TEST_F(HiddenPassion, OfTheLongestNameIsFound) {
    // 32767 characters, half of them each; the A is one ahead.
    EXPECT_EQ(Of(std::u16string(16383, u'B'), u"", std::u16string(16384, u'A')), 1);
}

TEST_F(HiddenPassion, OfANameTooLongToCountFailsAndKeepsItsSlots) {
    for (const std::size_t length : {std::size_t{32768}, std::size_t{40000}}) {
        const ReadingStore before = store = MarkedStore();
        Named(std::u16string(length - 2, u'A'), u"B", u"C");
        EXPECT_THROW(CalcHiddenPassion(), RuntimeFailure);
        EXPECT_EQ(Changed(before, store), SlotNames{});
    }
}

} // namespace
} // namespace modReadings
