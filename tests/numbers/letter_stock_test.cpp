// What is in a name and what is missing: Karmic Lessons and Hidden Passion.

#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <map>
#include <random>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using ::testing::PrintToString;

constexpr Opening lessonOpenings[] = {
    {1, u"There would be times in your life when you will be facing difficulties from all "
        u"directions."},
    {2, u"You have confidence in yourself and you think that you can face up to any situation "
        u"without taking help from others."},
    {3, u"There are times when you are not happy with the things going on in your life."},
    {4, u"This is the time when you face the consequences for the things that you have neglected, "
        u"since you have been"},
    {5, u"You will be more adventurous and open to the changes that life has to offer you."},
    {6, u"This is a really hard time on the personal front."},
    {7, u"In this period you give importance to the spiritual side of yourself."},
    {8, u"This is the time to be careful about handling financial matters."},
    {9, u"This is a period when you might have to face various trials and tribulations in your "
        u"personal life."},
};

constexpr Opening passionOpenings[] = {
    {1, u"People of this number are very creative and artistic."},
    {2, u"You are a selfless individual."},
    {3, u"You have good verbal and written communication skills and thus express your creative "
        u"skills in an effective way."},
    {4, u"You are a practical and realistic person."},
    {5, u"You are unconventional and would like to do things in new and different ways."},
    {6, u"You like to be with your near and dear ones and would do anything for them."},
    {7, u"You are a very curious person."},
    {8, u"People of this number are born leaders."},
    {9, u"You are born with the inborn trait of serving mankind."},
};

constexpr std::u16string_view lessonsAboutOpening =
    u"This number helps you to identify your weaknesses so that you realize them, and know how to "
    u"work on them.";
constexpr std::u16string_view passionAbout =
    u"All of us are born with some talents. This number tells you about your hidden talents and "
    u"strengths. This number also reveals your personality. We also get an idea about how to use "
    u"and direct our positive strengths in the right way so that we reap the maximum benefits out "
    u"of it. It is like a guide to your life.";

/// The values of A to Z, in the order of the alphabet.
constexpr std::u16string_view alphabetValues = u"12345678912345678912345678";

int16 ValueOf(char16_t character) {
    if (character < u'A' || character > u'Z')
        return 0;
    return static_cast<int16>(alphabetValues[static_cast<std::size_t>(character - u'A')] - u'0');
}

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
            text += Row(readings::karmicLessons, static_cast<int16>(digit - u'0'));
        }
        EXPECT_EQ(store.KarmicLessonsNumber, list);
        EXPECT_EQ(store.KarmicLessonsText, text);
        EXPECT_TRUE(store.KarmicLessonsAbout.starts_with(lessonsAboutOpening));
    }
};

TEST_F(KarmicLessons, OfOakRiverAre378) {
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(store.KarmicLessonsNumber, u" 3 7 8");
    EXPECT_EQ(store.KarmicLessonsText, u"\r\n3\r\n" + Row(readings::karmicLessons, 3) +
                                           u"\r\n7\r\n" + Row(readings::karmicLessons, 7) +
                                           u"\r\n8\r\n" + Row(readings::karmicLessons, 8));
    EXPECT_TRUE(store.KarmicLessonsText.starts_with(
        u"\r\n3\r\nThere are times when you are not happy with the things going on in your life."));
    EXPECT_FALSE(store.KarmicLessonsText.ends_with(u"\n"));
}

TEST_F(KarmicLessons, OpenEachInTheirOwnWords) {
    for (const Opening &opening : lessonOpenings)
        EXPECT_TRUE(Row(readings::karmicLessons, opening.number).starts_with(opening.words))
            << opening.number;
    EXPECT_EQ(readings::karmicLessons.size(), 9u);
}

TEST_F(KarmicLessons, AreNoneForANameWithAllNineValues) {
    Of(u"ABCDEFGHI", u"", u"");
    EXPECT_EQ(store.KarmicLessonsNumber, u"");
    EXPECT_EQ(store.KarmicLessonsText, u"");
    EXPECT_TRUE(store.KarmicLessonsAbout.starts_with(lessonsAboutOpening));
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
    for (const Opening &opening : passionOpenings) {
        ASSERT_EQ(Of(std::u16string(1, static_cast<char16_t>(u'A' + opening.number - 1)), u"", u""),
                  opening.number);
        EXPECT_TRUE(store.HiddenPassionText.starts_with(opening.words)) << opening.number;
        EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion, opening.number));
        EXPECT_EQ(store.HiddenPassionAbout, passionAbout);
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
        EXPECT_EQ(store.HiddenPassionAbout, passionAbout) << PrintToString(name[0]);
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
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion, 9)); // selected again
    EXPECT_EQ(store.HiddenPassionAbout, passionAbout);

    store.HiddenPassionText = u"something else";
    EXPECT_EQ(Of(u"", u"", u""), 9);
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion, 9));

    EXPECT_EQ(Of(u"AJS", u"", u"BB"), 2);
    EXPECT_EQ(store.HiddenPassionText, Row(readings::hiddenPassion, 2));
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
