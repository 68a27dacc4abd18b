// The three totals over the letters of a name: Destiny, Soul Urge and Inner Dreams.

#include "core/months.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/reading_rows.h"
#include "tests/support/store_slots.h"

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

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

TEST_F(NameNumbers, OfOakRiver) {
    // 6 + 1 + 2 + 9 + 9 + 4 + 5 + 9; O A I E; K R V R
    EXPECT_EQ(Of(u"OAK", u"", u"RIVER"), (Totals{45, 9, 21, 3, 24, 6}));
}

TEST_F(NameNumbers, OfAAndB) { EXPECT_EQ(Of(u"A", u"", u"B"), (Totals{3, 3, 1, 1, 2, 2})); }

TEST_F(NameNumbers, CountYAsAVowelInANameWithoutAnother) {
    // S 1 K 2 Y 7 L 3 Y 7 N 5 N 5: both Y count twice over.
    EXPECT_EQ(Of(u"SKY", u"", u"LYNN"), (Totals{30, 3, 14, 5, 30, 3}));
    EXPECT_EQ(store.YUsedAsVowel, -1);
}

TEST_F(NameNumbers, DoNotCountYAsAVowelBesideAnother) {
    // E E alone make 10; S K Y L: 1 + 2 + 7 + 3
    EXPECT_EQ(Of(u"SKY", u"", u"LEE"), (Totals{23, 5, 10, 1, 13, 4}));
    EXPECT_EQ(store.YUsedAsVowel, 0);
    // One vowel in any of the three names shuts Y out of all of them.
    EXPECT_EQ(Of(u"YA", u"YY", u"Y").soulUrgeRaw, 1);
    EXPECT_EQ(Of(u"YY", u"U", u"Y").soulUrgeRaw, 3);
    EXPECT_EQ(store.YUsedAsVowel, 0);
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

TEST_F(NameNumbers, OfASingleConsonantInAFreshStore) {
    Of(u"B", u"", u"");
    EXPECT_EQ(store.SoulUrgeRaw, 0);
    EXPECT_EQ(store.SoulUrgeNumber, 0);
    EXPECT_EQ(store.SoulUrgeText, u"");
    EXPECT_EQ(store.SoulUrgeAbout, readings::soulUrge.about);
    EXPECT_EQ(store.YUsedAsVowel, 0); // the second walk has met no Y
}

TEST_F(NameNumbers, OfVowelsAloneInAFreshStore) {
    EXPECT_EQ(Of(u"A", u"", u"E"), (Totals{6, 6, 6, 6, 0, 0}));
    EXPECT_EQ(store.InnerDreamsText, u"");
    EXPECT_EQ(store.InnerDreamsAbout, readings::innerDreams.about);
    EXPECT_EQ(Of(u"AEI", u"O", u"U"), (Totals{24, 6, 24, 6, 0, 0}));
}

TEST_F(NameNumbers, OfConsonantsAlone) {
    EXPECT_EQ(Of(u"BCD", u"", u"FGH"), (Totals{30, 3, 0, 0, 30, 3})); // 2 3 4, 6 7 8
    EXPECT_EQ(store.YUsedAsVowel, 0);
}

TEST_F(NameNumbers, OfYAlone) {
    EXPECT_EQ(Of(u"Y", u"", u""), (Totals{7, 7, 7, 7, 7, 7}));
    EXPECT_EQ(Of(u"Y", u"Y", u"Y"), (Totals{21, 3, 21, 3, 21, 3}));
    EXPECT_EQ(store.YUsedAsVowel, -1);
}

TEST_F(NameNumbers, OfNoLetterAre0WithoutAReading) {
    for (const std::u16string name :
         {u"", u"1234567890", u"-'., ()", u"  ", u"oak", u"\u00C9\u00C4", u"\u0410\u0391",
          u"\uFF21", u"\U0001F600\U0001F601"}) {
        store = {};
        EXPECT_EQ(Of(name, name, name), (Totals{0, 0, 0, 0, 0, 0})) << PrintToString(name);
        EXPECT_EQ(store.DestinyText, u"");
        EXPECT_EQ(store.SoulUrgeText, u"");
        EXPECT_EQ(store.InnerDreamsText, u"");
        EXPECT_EQ(store.DestinyAbout, readings::destiny.about);
        EXPECT_EQ(store.SoulUrgeAbout, readings::soulUrge.about);
        EXPECT_EQ(store.InnerDreamsAbout, readings::innerDreams.about);
        EXPECT_EQ(store.YUsedAsVowel, 0);
    }
}

TEST_F(NameNumbers, PassOverWhatIsNoLetter) {
    const Totals oakRiver{45, 9, 21, 3, 24, 6};
    EXPECT_EQ(Of(u"O A K", u"", u"RIV ER"), oakRiver); // blanks divide nothing
    EXPECT_EQ(Of(u"O'AK", u"-", u"RIVER-2"), oakRiver);
    EXPECT_EQ(Of(u"1OAK", u"007", u"RIVER."), oakRiver);
    EXPECT_EQ(Of(u"OAKaeiouy", u"xyz", u"RIVERy"), oakRiver);
    EXPECT_EQ(Of(u"O\u00C9AK", u"\u00C0", u"R\u00DCIVER"), oakRiver);
    EXPECT_EQ(Of(u"\U0001F600OAK", u"\U0001F600", u"RIVER\U0001F600"), oakRiver);
    // An accented Y is none, and an accented vowel shuts no Y out.
    EXPECT_EQ(Of(u"SK\u00DD", u"", u"L\u00C9").soulUrgeRaw, 0);
    EXPECT_EQ(Of(u"SKY", u"", u"L\u00C9").soulUrgeRaw, 7);
    EXPECT_EQ(Of(u"\u00C9VA", u"", u""), (Totals{5, 5, 1, 1, 4, 4}));
    EXPECT_EQ(Of(u"\u00C5SA", u"", u""), (Totals{2, 2, 1, 1, 1, 1}));
}

TEST_F(NameNumbers, AddUpTheThreeNamesBeforeTheyReduce) {
    // 29 in each name: one by one they would give 11 + 11 + 11, together 87, 15, 6.
    EXPECT_EQ(Of(u"RRRB", u"RRRB", u"RRRB"), (Totals{87, 6, 0, 0, 87, 6}));
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
    EXPECT_EQ(store.YUsedAsVowel, 0);
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(store.YUsedAsVowel, 0);
    CalcDestiny();
    CalcInnerDreams();
    Of(u"SKY", u"", u"LYNN");
    EXPECT_EQ(store.YUsedAsVowel, -1);
    Of(u"OAK", u"", u"RIVER");
    EXPECT_EQ(store.YUsedAsVowel, -1);
    Of(u"BCD", u"", u"");
    EXPECT_EQ(store.YUsedAsVowel, -1);

    store.YUsedAsVowel = 0;
    Named(u"SKY", u"", u"LYNN");
    CalcDestiny();
    CalcInnerDreams();
    EXPECT_EQ(store.YUsedAsVowel, 0); // Soul Urge alone raises it
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
    const ReadingStore before = store;
    Named(std::u16string(4682, u'Y'), u"", u"");
    EXPECT_THROW(CalcSoulUrge(), RuntimeFailure);
    EXPECT_EQ(store.SoulUrgeRaw, before.SoulUrgeRaw);
    EXPECT_EQ(store.SoulUrgeNumber, before.SoulUrgeNumber);
    EXPECT_EQ(store.SoulUrgeText, before.SoulUrgeText);
    EXPECT_EQ(store.SoulUrgeAbout, before.SoulUrgeAbout);
}

// What the three have in common.

struct Topic {
    const char *word;
    void (*calculate)();
    int16 ReadingStore::*number;
    int16 ReadingStore::*raw;
    std::u16string ReadingStore::*text;
    std::u16string ReadingStore::*about;
    const ReadingTable *table;
    const char *textSlot, *aboutSlot;
    char16_t nine, one; ///< letters of these values that the topic counts
};

const Topic topics[] = {
    {"Destiny", CalcDestiny, &ReadingStore::DestinyNumber, &ReadingStore::DestinyRaw,
     &ReadingStore::DestinyText, &ReadingStore::DestinyAbout, &readings::destiny.rows, "DestinyText",
     "DestinyAbout", u'R', u'A'},
    {"SoulUrge", CalcSoulUrge, &ReadingStore::SoulUrgeNumber, &ReadingStore::SoulUrgeRaw,
     &ReadingStore::SoulUrgeText, &ReadingStore::SoulUrgeAbout, &readings::soulUrge.rows, "SoulUrgeText",
     "SoulUrgeAbout", u'I', u'A'},
    {"InnerDreams", CalcInnerDreams, &ReadingStore::InnerDreamsNumber,
     &ReadingStore::InnerDreamsRaw, &ReadingStore::InnerDreamsText, &ReadingStore::InnerDreamsAbout,
     &readings::innerDreams.rows, "InnerDreamsText", "InnerDreamsAbout", u'R', u'J'},
};

void PrintTo(const Topic &topic, std::ostream *out) { *out << topic.word; }

class NameTotal : public FreshStore, public ::testing::WithParamInterface<Topic> {
protected:
    const Topic &topic = GetParam();

    int16 Number() const { return store.*topic.number; }
    int16 Raw() const { return store.*topic.raw; }
    const std::u16string &Text() const { return store.*topic.text; }
    const std::u16string &About() const { return store.*topic.about; }

    /// Letters that add up to `total`, as few as there can be.
    std::u16string NameOf(int total) const {
        return std::u16string(static_cast<std::size_t>(total / 9), topic.nine) +
               std::u16string(static_cast<std::size_t>(total % 9), topic.one);
    }

    void Calculate(std::u16string first, std::u16string middle, std::u16string last) const {
        Named(std::move(first), std::move(middle), std::move(last));
        topic.calculate();
    }

    /// Runs the topic on a first name at which it has to fail, and sees that its four slots
    /// stay as they are.
    void ExpectFailure(std::u16string first) const {
        const ReadingStore before = store;
        Named(std::move(first), u"", u"");
        EXPECT_THROW(topic.calculate(), RuntimeFailure);
        EXPECT_EQ(Number(), before.*topic.number);
        EXPECT_EQ(Raw(), before.*topic.raw);
        EXPECT_EQ(Text(), before.*topic.text);
        EXPECT_EQ(About(), before.*topic.about);
    }
};

INSTANTIATE_TEST_SUITE_P(Topics, NameTotal, ::testing::ValuesIn(topics),
                         [](const auto &topic) { return std::string(topic.param.word); });

TEST_P(NameTotal, IsReducedOnceAndKeptRaw) {
    struct Reduction {
        int raw, number;
    };
    for (const Reduction &row : {Reduction{0, 0},
                                 {9, 9},
                                 {10, 1},
                                 {11, 11},
                                 {19, 1},
                                 {20, 2},
                                 {22, 22},
                                 {29, 11},
                                 {30, 3},
                                 {38, 11},
                                 {45, 9},
                                 {47, 11},
                                 {49, 4},
                                 {199, 1},
                                 {299, 2},
                                 {499, 22},
                                 {2999, 2}}) {
        Calculate(NameOf(row.raw), u"", u"");
        EXPECT_EQ(Raw(), row.raw);
        EXPECT_EQ(Number(), row.number) << row.raw;
    }
}

TEST_P(NameTotal, AgreesWithPaper) {
    for (int total = 0; total <= 600; ++total) {
        const std::u16string name = NameOf(total);
        Calculate(name.substr(0, name.size() / 3), name.substr(name.size() / 3), u"");
        ASSERT_EQ(Raw(), total);
        ASSERT_EQ(Number(), longhand::KeepMaster(total)) << total;
    }
}

TEST_P(NameTotal, SelectsTheReadingOfItsNumber) {
    constexpr int16 numbers[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
    for (const int16 number : numbers) {
        store = {};
        Calculate(u"", u"", NameOf(number));
        ASSERT_EQ(Number(), number);
        EXPECT_TRUE(IsReadingOf(Text(), number, topic.textSlot));
        EXPECT_EQ(Text(), Row(*topic.table, number));
        EXPECT_TRUE(IsTextOf(About(), topic.aboutSlot));
    }
    EXPECT_EQ(topic.table->size(), std::size(numbers));
}

TEST_P(NameTotal, OfThreePeopleKeepsTheTextUnderA0) {
    Calculate(NameOf(7), u"", u"");
    EXPECT_EQ(Text(), Row(*topic.table, 7));

    (store.*topic.about).clear();
    Calculate(u"123", u"", u"-");
    EXPECT_EQ(Raw(), 0);
    EXPECT_EQ(Number(), 0);
    EXPECT_EQ(Text(), Row(*topic.table, 7)); // the first person's
    EXPECT_TRUE(IsTextOf(About(), topic.aboutSlot));

    Calculate(NameOf(22), u"", u"");
    EXPECT_EQ(Number(), 22);
    EXPECT_EQ(Text(), Row(*topic.table, 22));
}

TEST_P(NameTotal, IsTheSameWhenItIsRunAgain) {
    Calculate(u"OAK", u"Y", u"RIVER");
    const ReadingStore first = store;
    topic.calculate();
    topic.calculate();
    EXPECT_EQ(Changed(first, store), SlotNames{});
}

TEST_P(NameTotal, WritesItsOwnSlotsAndItsScratchAndNoOther) {
    const ReadingStore before = store = MarkedStore();
    Calculate(u"OAK", u"", u"RIVER");
    const std::string word = topic.word;
    EXPECT_EQ(Changed(before, store),
              (SlotNames{word + "Number", word + "Raw", word + "Text", word + "About",
                         "ScratchIndex", "ScratchLetter", "ScratchSum"}));
}

TEST_P(NameTotal, OwesNothingToWhatIsLeftInTheScratchSlots) {
    Calculate(u"OAK", u"", u"RIVER");
    const int16 raw = Raw(), number = Number();
    for (const int16 left : std::initializer_list<int16>{-32768, -1, 1, 11, 32767}) {
        store.ScratchSum = left;
        store.ScratchIndex = left;
        store.ScratchLetter = u"9";
        topic.calculate();
        EXPECT_EQ(Raw(), raw);
        EXPECT_EQ(Number(), number);
        EXPECT_EQ(store.ScratchSum, number); // reduced in place
    }
}

TEST_P(NameTotal, LeavesTheLastCharacterOfTheNameThatIsNotEmpty) {
    struct Name {
        std::u16string first, middle, last, left;
    };
    const Name names[] = {
        {u"OAK", u"", u"RIVER", u"R"},
        {u"OAK", u"ELM", u"RIVE", u"E"},
        {u"OAK", u"ELM", u"", u"M"},
        {u"OAK", u"", u"", u"K"},
        {u"SKY", u"", u"LYNN", u"N"}, // after the second walk of Soul Urge too
        {u"OAK", u"", u"RIVER5", u"5"},
        {u"OAK", u"", u"RIVER-", u"-"},
        {u"OAK", u"", u"RIV\u00C9", u"\u00C9"},
        {u"", u"", u"7", u"7"},
        {u"MARY ANN", u"", u"", u"N"},
    };
    for (const Name &name : names) {
        store.ScratchLetter = u"*";
        Calculate(name.first, name.middle, name.last);
        EXPECT_EQ(store.ScratchLetter, name.left);
    }
    // One character is one unit: of a pair its second half stays.
    Calculate(u"OAK", u"", u"RIVER\U0001F600");
    EXPECT_EQ(store.ScratchLetter, std::u16string(1, char16_t{0xDE00}));
}

TEST_P(NameTotal, LeavesTheLetterAloneWhenThereIsNoName) {
    store.ScratchLetter = u"3";
    Calculate(u"", u"", u"");
    EXPECT_EQ(store.ScratchLetter, u"3");
    EXPECT_EQ(MonthNumber(u"October"), 3);
}

TEST_P(NameTotal, TakesATotalUpTo32767) {
    Calculate(NameOf(32767), u"", u"");
    EXPECT_EQ(Raw(), 32767);
    EXPECT_EQ(Number(), 7); // 25, 7
    EXPECT_EQ(Text(), Row(*topic.table, 7));

    ExpectFailure(NameOf(32768));
    ExpectFailure(NameOf(32760) + topic.nine);
    ExpectFailure(NameOf(100000));

    Calculate(NameOf(11), u"", u""); // the next person is read from 0 again
    EXPECT_EQ(Raw(), 11);
    EXPECT_EQ(Number(), 11);
}

TEST_P(NameTotal, FailsOnTheLetterThatIsOneTooMany) {
    Named(NameOf(32760) + topic.nine + topic.one + u"-", u"", u"");
    EXPECT_THROW(topic.calculate(), RuntimeFailure);
    EXPECT_EQ(store.ScratchLetter, std::u16string(1, topic.nine));
    EXPECT_EQ(store.ScratchSum, 32760);
}

TEST_P(NameTotal, TakesALengthUpTo32767) {
    Calculate(std::u16string(32766, u'-') + topic.nine, u"", u"");
    EXPECT_EQ(Raw(), 9);
    Calculate(std::u16string(32767, topic.one), u"", u""); // the longest and the greatest at once
    EXPECT_EQ(Raw(), 32767);

    store.ScratchLetter = u"*";
    ExpectFailure(std::u16string(32768, u'-'));
    ExpectFailure(std::u16string(32767, u'-') + topic.nine);
    ExpectFailure(std::u16string(32768, topic.one));
    ExpectFailure(std::u16string(40000, topic.one));
    EXPECT_EQ(store.ScratchLetter, u"*"); // not one character has been walked
}

} // namespace
} // namespace modReadings
