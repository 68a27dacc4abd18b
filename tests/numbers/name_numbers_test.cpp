// The three totals over the letters of a name: Destiny, Soul Urge and Inner Dreams.

#include "core/proceed_pass.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <random>
#include <string>
#include <string_view>

namespace modReadings {
namespace {

using longhand::ValueOf;
using ::testing::PrintToString;

bool Vowel(char16_t character) {
    return character == u'A' || character == u'E' || character == u'I' || character == u'O' ||
           character == u'U';
}

class NameNumbers : public FreshStore {
protected:
    struct Totals {
        int destinyRaw, destiny, soulUrgeRaw, soulUrge, innerDreamsRaw, innerDreams;
        bool operator==(const Totals &) const = default;
        friend void PrintTo(const Totals &totals, std::ostream *out) {
            *out << "Destiny " << totals.destinyRaw << ", " << totals.destiny << "; Soul Urge "
                 << totals.soulUrgeRaw << ", " << totals.soulUrge << "; Inner Dreams "
                 << totals.innerDreamsRaw << ", " << totals.innerDreams;
        }
    };

    static Totals Of(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcDestiny();
        CalcSoulUrge();
        CalcInnerDreams();
        return {store.DestinyRaw,     store.DestinyNumber,  store.SoulUrgeRaw,
                store.SoulUrgeNumber, store.InnerDreamsRaw, store.InnerDreamsNumber};
    }
};

TEST_F(NameNumbers, OfNamesWorkedByHand) {
    const Totals oakRiver{45, 9, 21, 3, 24, 6};
    const struct {
        std::u16string first, middle, last;
        Totals totals;
    } names[] = {
        // 6 + 1 + 2 + 9 + 9 + 4 + 5 + 9; O A I E; K R V R
        {u"OAK", u"", u"RIVER", oakRiver},
        {u"A", u"", u"B", {3, 3, 1, 1, 2, 2}},
        {u"AEI", u"O", u"U", {24, 6, 24, 6, 0, 0}},
        {u"BCD", u"", u"FGH", {30, 3, 0, 0, 30, 3}}, // 2 3 4, 6 7 8
        // S 1 K 2 Y 7 L 3 Y 7 N 5 N 5: both Y count twice over in a name without a vowel.
        {u"SKY", u"", u"LYNN", {30, 3, 14, 5, 30, 3}},
        {u"Y", u"Y", u"Y", {21, 3, 21, 3, 21, 3}},
        // E E alone make 10; S K Y L: 1 + 2 + 7 + 3. One vowel anywhere shuts Y out.
        {u"SKY", u"", u"LEE", {23, 5, 10, 1, 13, 4}},
        {u"YA", u"YY", u"Y", {29, 11, 1, 1, 28, 1}},
        {u"YY", u"U", u"Y", {24, 6, 3, 3, 21, 3}},
        // 29 in each name: one by one they would give 11 + 11 + 11, together 87, 15, 6.
        {u"RRRB", u"RRRB", u"RRRB", {87, 6, 0, 0, 87, 6}},
        // What is no letter is passed over.
        {u"O A K", u"", u"RIV ER", oakRiver},
        {u"O'AK", u"-", u"RIVER-2", oakRiver},
        {u"OAKaeiouy", u"xyz", u"RIVERy", oakRiver},
        {u"O\u00C9AK", u"\u00C0", u"R\u00DCIVER", oakRiver},
        {u"\U0001F600OAK", u"\U0001F600", u"RIVER\U0001F600", oakRiver},
        // An accented Y is none, and an accented vowel shuts no Y out.
        {u"SK\u00DD", u"", u"L\u00C9", {6, 6, 0, 0, 6, 6}},
        {u"SKY", u"", u"L\u00C9", {13, 4, 7, 7, 13, 4}},
    };
    for (const auto &name : names)
        EXPECT_EQ(Of(name.first, name.middle, name.last), name.totals)
            << PrintToString(name.first) << PrintToString(name.last);
}

TEST_F(NameNumbers, OfASingleLetter) {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const int value = ValueOf(letter);
        const bool vowel = Vowel(letter), y = letter == u'Y';
        const int soul = vowel || y ? value : 0, inner = vowel ? 0 : value;
        const Totals expected{value, value, soul, soul, inner, inner};
        EXPECT_EQ(Of(std::u16string(1, letter), u"", u""), expected);
        EXPECT_EQ(Of(u"", std::u16string(1, letter), u""), expected);
        EXPECT_EQ(Of(u"", u"", std::u16string(1, letter)), expected);
    }
}

TEST_F(NameNumbers, OfNoLetterAre0WithoutAReading) {
    for (const std::u16string name :
         {u"", u"1234567890", u"-'., ()", u"  ", u"oak", u"\u00C9\u00C4", u"\u0410\u0391",
          u"\uFF21", u"\U0001F600\U0001F601"}) {
        store = {};
        EXPECT_EQ(Of(name, name, name), (Totals{0, 0, 0, 0, 0, 0})) << PrintToString(name);
        EXPECT_EQ(store.YUsedAsVowel, 0);
    }
}

TEST_F(NameNumbers, OfConsonantsOrVowelsAloneKeepTheReadingOfThePersonBefore) {
    Of(u"B", u"", u"");
    EXPECT_EQ(store.SoulUrgeText, u""); // nobody was there before
    EXPECT_TRUE(IsTextOf(store.SoulUrgeAbout, "SoulUrgeAbout"));
    Of(u"OAK", u"", u"RIVER"); // 3 and 6
    Of(u"B", u"", u"");        // no vowel and no Y
    EXPECT_EQ(store.SoulUrgeNumber, 0);
    EXPECT_TRUE(IsReadingOf(store.SoulUrgeText, 3, "SoulUrgeText"));
    EXPECT_TRUE(IsReadingOf(store.InnerDreamsText, 2, "InnerDreamsText"));
    store.InnerDreamsAbout.clear();
    Of(u"A", u"", u"E"); // no consonant
    EXPECT_EQ(store.InnerDreamsNumber, 0);
    EXPECT_TRUE(IsReadingOf(store.InnerDreamsText, 2, "InnerDreamsText"));
    EXPECT_TRUE(IsTextOf(store.InnerDreamsAbout, "InnerDreamsAbout"));
}

TEST_F(NameNumbers, ConsonantsAndVowelsMakeTheWholeAndYMayCountTwice) {
    std::mt19937 random(45);
    constexpr std::u16string_view characters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZYY -'7\u00C9a";
    constexpr std::u16string_view withoutVowels = u"BCDFGHJKLMNPQRSTVWXYZYY -'7\u00C9a";
    int withVowel = 0, without = 0;
    for (int person = 0; person < 6000; ++person) {
        const std::u16string_view pool = person % 2 == 0 ? characters : withoutVowels;
        const auto name = [&](std::size_t longest) {
            std::u16string text(random() % (longest + 1), u' ');
            for (char16_t &character : text)
                character = pool[random() % pool.size()];
            return text;
        };
        const std::u16string first = name(9), middle = name(4), last = name(12);
        int all = 0, vowels = 0, ys = 0;
        bool anyVowel = false;
        for (const char16_t character : first + middle + last) {
            all += ValueOf(character);
            vowels += Vowel(character) ? ValueOf(character) : 0;
            anyVowel = anyVowel || Vowel(character);
            ys += character == u'Y';
        }
        const int soulUrge = anyVowel ? vowels : 7 * ys, innerDreams = all - vowels;

        const Totals totals = Of(first, middle, last);
        ASSERT_EQ(totals,
                  (Totals{all, longhand::KeepMaster(all), soulUrge, longhand::KeepMaster(soulUrge),
                          innerDreams, longhand::KeepMaster(innerDreams)}))
            << PrintToString(first) << PrintToString(middle) << PrintToString(last);
        ASSERT_EQ(totals.soulUrgeRaw + totals.innerDreamsRaw - totals.destinyRaw,
                  anyVowel ? 0 : 7 * ys)
            << PrintToString(first) << PrintToString(middle) << PrintToString(last);
        ++(anyVowel ? withVowel : without);
    }
    EXPECT_GT(withVowel, 1000);
    EXPECT_GT(without, 1000);
}

TEST_F(NameNumbers, RaiseTheFlagOfYAndNeverClearIt) {
    Of(u"YA", u"", u"B"); // a Y beside a vowel, and then no Y at all
    Of(u"BCD", u"", u"");
    EXPECT_EQ(store.YUsedAsVowel, 0);
    Named(u"SKY", u"", u"LYNN");
    CalcDestiny();
    CalcInnerDreams();
    EXPECT_EQ(store.YUsedAsVowel, 0); // Soul Urge alone raises it
    CalcSoulUrge();
    EXPECT_EQ(store.YUsedAsVowel, -1);
    Of(u"OAK", u"", u"RIVER");
    Of(u"BCD", u"", u"");
    EXPECT_EQ(store.YUsedAsVowel, -1);
}

TEST_F(NameNumbers, DestinyCountsEachNameByItself) {
    // Destiny walks name by name and the other two walk all three at once, so these
    // 40000 characters are too many only for the latter.
    Named(std::u16string(20000, u'-') + u"A", u"", std::u16string(19998, u'-') + u"B");
    CalcDestiny();
    EXPECT_EQ(store.DestinyRaw, 3);
    EXPECT_THROW(CalcSoulUrge(), RuntimeFailure);
    EXPECT_THROW(CalcInnerDreams(), RuntimeFailure);
}

TEST_F(NameNumbers, DestinyFailsInWhicheverNameTheTotalOverflows) {
    Of(u"OAK", u"", u"RIVER");
    const std::u16string most = std::u16string(3640, u'R') + u"P"; // 32767
    const std::u16string names[][3] = {{most, u"", u"A"}, {u"A", most, u""}, {most, u"A", u""}};
    for (const auto &name : names) {
        Named(name[0], name[1], name[2]);
        EXPECT_THROW(CalcDestiny(), RuntimeFailure);
        EXPECT_EQ(store.DestinyRaw, 45);
        EXPECT_EQ(store.DestinyNumber, 9);
    }
    Named(u"-", most, u" ");
    CalcDestiny();
    EXPECT_EQ(store.DestinyRaw, 32767);
}

TEST_F(NameNumbers, SoulUrgeCountsUpTo4681Y) {
    Named(std::u16string(4681, u'Y'), u"", u""); // 32767
    CalcSoulUrge();
    EXPECT_EQ(store.SoulUrgeRaw, 32767);
    EXPECT_EQ(store.SoulUrgeNumber, 7); // 25, 7
    Named(std::u16string(4682, u'Y'), u"", u"");
    EXPECT_EQ(WrittenBeforeFailure(CalcSoulUrge),
              (SlotNames{"ScratchLetter", "ScratchSum", "YUsedAsVowel"}));
}

// What the three have in common.

struct Topic {
    std::string word; ///< the slots are the word and Number, Text, About
    Calculator calculate;
    int16 ReadingStore::*number;
    int16 ReadingStore::*raw;
    std::u16string ReadingStore::*text;
    std::u16string ReadingStore::*about;
    char16_t nine, one; ///< letters of these values that the topic counts

    friend void PrintTo(const Topic &topic, std::ostream *out) { *out << topic.word; }
};

using S = ReadingStore;
const Topic topics[] = {
    {"Destiny", CalcDestiny, &S::DestinyNumber, &S::DestinyRaw, &S::DestinyText, &S::DestinyAbout,
     u'R', u'A'},
    {"SoulUrge", CalcSoulUrge, &S::SoulUrgeNumber, &S::SoulUrgeRaw, &S::SoulUrgeText,
     &S::SoulUrgeAbout, u'I', u'A'},
    {"InnerDreams", CalcInnerDreams, &S::InnerDreamsNumber, &S::InnerDreamsRaw, &S::InnerDreamsText,
     &S::InnerDreamsAbout, u'R', u'J'},
};

class NameTotal : public FreshStore, public ::testing::WithParamInterface<Topic> {
protected:
    const Topic &topic = GetParam();

    /// Letters that add up to `total`, as few as there can be.
    std::u16string NameOf(int total) const {
        return std::u16string(static_cast<std::size_t>(total / 9), topic.nine) +
               std::u16string(static_cast<std::size_t>(total % 9), topic.one);
    }

    /// Whether the name has this total and this number, and shows its reading where it has one.
    void Expect(int raw, int number, std::u16string first, std::u16string middle = {},
                std::u16string last = {}) const {
        Named(std::move(first), std::move(middle), std::move(last));
        topic.calculate();
        EXPECT_EQ(store.*topic.raw, raw);
        EXPECT_EQ(store.*topic.number, number) << raw;
        EXPECT_EQ(store.ScratchSum, number); // reduced in place
        if (number != 0) {
            EXPECT_TRUE(IsReadingOf(store.*topic.text, number, topic.word + "Text"));
        }
        EXPECT_TRUE(IsTextOf(store.*topic.about, topic.word + "About"));
    }

    /// The slots written for a first name at which the topic has to fail.
    SlotNames FailsOn(std::u16string first) const {
        Named(std::move(first), u"", u"");
        return WrittenBeforeFailure(topic.calculate);
    }
};

INSTANTIATE_TEST_SUITE_P(Topics, NameTotal, ::testing::ValuesIn(topics),
                         [](const auto &topic) { return topic.param.word; });

TEST_P(NameTotal, IsReducedOnceAndKeptRaw) {
    const std::pair<int, int> reductions[] = {
        {0, 0},   {9, 9},  {10, 1},  {11, 11}, {19, 1},  {20, 2},  {22, 22},  {29, 11}, {30, 3},
        {38, 11}, {45, 9}, {47, 11}, {49, 4},  {199, 1}, {299, 2}, {499, 22}, {2999, 2}};
    for (const auto &[raw, number] : reductions)
        Expect(raw, number, u"", u"", NameOf(raw));
    for (int total = 0; total <= 600; ++total) {
        const std::u16string name = NameOf(total);
        Expect(total, longhand::KeepMaster(total), name.substr(0, name.size() / 3),
               name.substr(name.size() / 3));
    }
}

TEST_P(NameTotal, OfThreePeopleKeepsTheTextUnderA0) {
    Expect(0, 0, u"123");
    EXPECT_EQ(store.*topic.text, u"");
    Expect(7, 7, NameOf(7));
    (store.*topic.about).clear();
    Expect(0, 0, u"123", u"", u"-");
    EXPECT_TRUE(IsReadingOf(store.*topic.text, 7, topic.word + "Text")); // the first person's
    Expect(22, 22, NameOf(22));
}

TEST_P(NameTotal, OwesNothingToWhatIsLeftInTheScratchSlots) {
    for (const int16 left : std::initializer_list<int16>{-32768, -1, 1, 11, 32767}) {
        store.ScratchSum = store.ScratchIndex = left;
        store.ScratchLetter = u"9";
        Expect(15, 6, NameOf(15));
    }
}

TEST_P(NameTotal, LeavesTheLastCharacterOfTheNameThatIsNotEmpty) {
    const struct {
        std::u16string first, middle, last, left;
    } names[] = {
        {u"OAK", u"ELM", u"RIVE", u"E"},
        {u"OAK", u"ELM", u"", u"M"},
        {u"OAK", u"", u"", u"K"},
        {u"SKY", u"", u"LYNN", u"N"}, // after the second walk of Soul Urge too
        {u"OAK", u"", u"RIVER5", u"5"},
        {u"OAK", u"", u"RIV\u00C9", u"\u00C9"},
        {u"", u"", u"7", u"7"},
        {u"", u"", u"", u"*"}, // no name, no letter
        // One character is one unit: of a pair its second half stays.
        {u"OAK", u"", u"RIVER\U0001F600", std::u16string(1, char16_t{0xDE00})},
    };
    for (const auto &name : names) {
        store.ScratchLetter = u"*";
        Named(name.first, name.middle, name.last);
        topic.calculate();
        EXPECT_EQ(store.ScratchLetter, name.left);
    }
}

TEST_P(NameTotal, TakesATotalAndALengthUpTo32767) {
    Expect(32767, 7, NameOf(32767)); // 25, 7
    const SlotNames scratch{"ScratchLetter", "ScratchSum"};
    EXPECT_EQ(FailsOn(NameOf(32768)), scratch);
    EXPECT_EQ(FailsOn(NameOf(100000)), scratch);
    EXPECT_EQ(FailsOn(NameOf(32760) + topic.nine + topic.one + u"-"), scratch);
    EXPECT_EQ(store.ScratchLetter, std::u16string(1, topic.nine)); // the one that is too many
    EXPECT_EQ(store.ScratchSum, 32760);
    Expect(11, 11, NameOf(11)); // the next person is read from 0 again

    Expect(9, 9, std::u16string(32766, u'-') + topic.nine);
    Expect(32767, 7, std::u16string(32767, topic.one)); // the longest and the greatest at once
    // Not one character has been walked.
    EXPECT_EQ(FailsOn(std::u16string(32768, u'-')), SlotNames{"ScratchSum"});
    EXPECT_EQ(FailsOn(std::u16string(32768, topic.one)), SlotNames{"ScratchSum"});
}

} // namespace
} // namespace modReadings
