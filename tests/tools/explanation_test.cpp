// The sheet of --explain, against what one writes down by hand.

#include "tools/explanation.h"

#include "core/clock.h"
#include "report/person.h"
#include "tests/tools/batch_answers.h"
#include "tools/reading.h"
#include "tools/text.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <span>
#include <sstream>

using modReadings::Person;

namespace {

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};

struct Expected {
    Person person;
    std::string block; ///< begins with the caption
};

class ExplanationTest : public testing::Test {
protected:
    static std::string Text(const Person &person,
                            const std::vector<std::u16string_view> &captions = AllCaptions()) {
        return ExplanationAsText(Explain(modReadings::Captured(person), captions));
    }

    /// The block of one topic: its caption and its rows.
    static std::string Block(const Person &person, std::u16string_view caption) {
        const std::string text = Text(person, {caption});
        const std::size_t begin = text.find("\n\n" + ToUtf8(caption));
        EXPECT_NE(begin, std::string::npos) << text;
        return text.substr(begin + 2);
    }

    static void ExpectBlocks(std::span<const Expected> blocks) {
        for (const Expected &expected : blocks) {
            const std::string caption =
                expected.block.substr(0, expected.block.find_first_of(":\n"));
            EXPECT_EQ(Block(expected.person,
                            KnownCaption(QString::fromStdString(caption).toStdU16String())),
                      expected.block);
        }
    }

    /// What stands between the date and the first topic.
    static std::string Name(const QString &first, const QString &middle, const QString &last) {
        const std::string text =
            Text({first, middle, last, "May", "1", "2026"}, {u"Birthday Number"});
        const std::size_t begin = text.find("letter by letter\n\n") + 18;
        return text.substr(begin, text.find("\n\nBirthday Number") - begin);
    }

    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
};

TEST_F(ExplanationTest, BeginsWithThePersonAndTheName) {
    EXPECT_TRUE(Text(anna, {u"Essence"}).starts_with(R"(ANNA SMITH
Born December 29, 1985
Read for November 16, 2026

The name, letter by letter

  first name     A  N  N  A
    vowels       1        1
    consonants      5  5

  last name      S  M  I  T  H
    vowels             9
    consonants   1  4     2  8

  Destiny, all letters      36: 3 + 6 = 9
  Soul Urge, vowels         11: 11 is a master number and stays
  Inner Dreams, consonants  25: 2 + 5 = 7

Essence: 4
)"));
}

TEST_F(ExplanationTest, SaysWhatOfTheNameDoesNotCount) {
    EXPECT_EQ(Name("Sky", "\u00C9 2", QString::fromUtf8("L-e\u0301\U0001F600")),
              R"(  first name     S  K  Y
    vowels
    consonants   1  2  7

  middle name    É  _  2
    vowels
    consonants

  last name      L  -  E  U+0301  U+D83D  U+DE00
    vowels             5
    consonants   3

  not counted, middle name  É, blank, 2
  not counted, last name    -, U+0301, U+D83D, U+DE00
  Destiny, all letters      18: 1 + 8 = 9
  Soul Urge, vowels         5
  Inner Dreams, consonants  13: 1 + 3 = 4

  Only the letters A to Z have a value; what is not counted has none.)");
    EXPECT_EQ(Name("Sky", {}, "Lynn"), R"(  first name     S  K  Y
    vowels             7
    consonants   1  2  7

  last name      L  Y  N  N
    vowels          7
    consonants   3  7  5  5

  Destiny, all letters      30: 3 + 0 = 3
  Soul Urge, vowels         14: 1 + 4 = 5
  Inner Dreams, consonants  30: 3 + 0 = 3

  Y counts as a vowel, as the name has no other, and as a consonant too.)");
}

TEST_F(ExplanationTest, HasABlockATopic) {
    const Person september{"Ben", {}, "Lee", "September", "9", "1993"};
    const Person first2000{"Ann", {}, "Lee", "January", "1", "2000"};
    const Expected blocks[]{
        {anna, R"(Personal Month: 8
  day of birth    29: 2 + 9 = 11, 1 + 1 = 2
  month of birth  December counts 3
  current month   11: 1 + 1 = 2
  current year    2026: 2 + 0 + 2 + 6 = 10, 1 + 0 = 1
  Personal Month  2 + 3 + 2 + 1 = 8
)"},
        {anna, R"(Personal Day: 6
  day of birth    29: 2 + 9 = 11, 1 + 1 = 2
  month of birth  December counts 3
  current day     16: 1 + 6 = 7
  current month   11: 1 + 1 = 2
  current year    2026: 2 + 0 + 2 + 6 = 10, 1 + 0 = 1
  Personal Day    2 + 3 + 7 + 2 + 1 = 15, 1 + 5 = 6
)"},
        {anna, R"(Personal Year: 6
  day of birth                   29: 2 + 9 = 11, 1 + 1 = 2
  month of birth                 December counts 3
  year of birth, without effect  1985: 1 + 9 + 8 + 5 = 23
  day and month                  2 + 3 = 5
  current year                   2026: 2 + 0 + 2 + 6 = 10, 1 + 0 = 1
  Personal Year                  1 + 5 = 6
)"},
        {{"Ann", {}, "Lee", "November", "29", "1999"}, R"(Life Path Number: 5
  day of birth      29: 2 + 9 = 11, 1 + 1 = 2
  month of birth    November counts 2
  year of birth     1999: 1 + 9 + 9 + 9 = 28, 2 + 8 = 10
  Life Path Number  2 + 2 + 10 = 14, 1 + 4 = 5
)"},
        {september, R"(Life Path Number: 22
  day of birth      9
  month of birth    September counts 9
  year of birth     1993: 1 + 9 + 9 + 3 = 22, 2 + 2 = 4
  Life Path Number  9 + 9 + 4 = 22, 22 is a master number and stays
)"},
        {anna, R"(Challenge Number: 1 3 2 2
  day of birth      29: 2 + 9 = 11, 1 + 1 = 2
  month of birth    December counts 3
  year of birth     1985: 1 + 9 + 8 + 5 = 23, 2 + 3 = 5
  first challenge   3 - 2 = 1
  second challenge  5 - 2 = 3
  third challenge   3 - 1 = 2
  fourth challenge  5 - 3 = 2
)"},
        // 3 + 1990 is 1993, whose digits make 22.
        {{"Oak", {}, "River", "March", "7", "1990"}, R"(Pinnacle Phases
  day of birth     7
  month of birth   March counts 3
  year of birth    1990
  first pinnacle   3 + 7 = 10, 1 + 0 = 1
  second pinnacle  7 + 1990 = 1997, 1 + 9 + 9 + 7 = 26, 2 + 6 = 8
  third pinnacle   1 + 8 = 9
  fourth pinnacle  3 + 1990 = 1993, 1 + 9 + 9 + 3 = 22, 22 is a master number
                   and stays
)"},
        // Root 4: its second period ends at 59 and not at 50.
        {first2000, R"(Life Path Periods: 2
  period 1, month       January counts 1
  period 2, day         1
  period 3, year        2000: 2 + 0 + 0 + 0 = 2
  age                   2026 - 2000 = 26
  root                  1 + 1 + 2 = 4
  period 1 ends at age  23
  period 2 ends at age  59
  period now running    2
)"},
        // The last name ends in 5, so each month from May on counts 5.
        {{"Ann", {}, "Lee5", "October", "1", "2000"}, R"(Life Path Periods: 1
  period 1, month       October counts 5, as the name ends in 5
  period 2, day         1
  period 3, year        2000: 2 + 0 + 0 + 0 = 2
  age                   2026 - 2000 = 26
  root                  1 + 5 + 2 = 8
  period 1 ends at age  28
  period 2 ends at age  55
  period now running    1
)"},
        {anna, R"(Essence: 4
  age                    2026 - 1985 = 41
  years of the letters   A to 1, N to 6, N to 11, A to 12
  years of the letters   A to 13, N to 18, N to 23, A to 24
  years of the letters   A to 25, N to 30, N to 35, A to 36
  years of the letters   A to 37, N to 42
  first name, in force   5
  middle name, in force  0
  years of the letters   S to 1, M to 5, I to 14, T to 16, H to 24
  years of the letters   S to 25, M to 29, I to 38, T to 40, H to 48
  last name, in force    8
  Essence                5 + 0 + 8 = 13, 1 + 3 = 4
)"},
        // F has no years in a last name.
        {{"Jo", {}, "Fox", "May", "1", "2026"}, R"(Essence: 7
  age                    2026 - 2026 = 0
  years of the letters   J to 1
  first name, in force   1
  middle name, in force  0
  years of the letters   O to 6
  last name, in force    6
  Essence                1 + 0 + 6 = 7
)"},
        {{"A", {}, "Z", "May", "1", "1926"}, R"(Essence: 9
  age                    2026 - 1926 = 100
  years of the letters   A to 1
                         ... and so on 97 times
  years of the letters   A to 99
  years of the letters   A to 100
  first name, in force   1
  middle name, in force  0
  years of the letters   Z to 8
                         ... and so on 10 times
  years of the letters   Z to 96
  years of the letters   Z to 104
  last name, in force    8
  Essence                1 + 0 + 8 = 9
)"},
        {anna, R"(Hidden Passion Number: 1
  letters                A 2, N 2, S 1, M 1, I 1, T 1, H 1
  most frequent          A
  Hidden Passion Number  1
)"},
        {{"Cora", {}, "Kent", "May", "1", "2000"}, R"(Karmic Lessons Number: 4 7 8
  letters         C 3, O 6, R 9, A 1, K 2, E 5, N 5, T 2
  missing values  4 7 8
)"},
        {{"Abcdefgh", {}, "I", "May", "1", "2000"}, R"(Karmic Lessons Number
  letters         A 1, B 2, C 3, D 4, E 5, F 6, G 7, H 8, I 9
  missing values  none
)"},
        {{"Ann", {}, "Lee", "May", "1", "2000"}, R"(Subconscious Self Number: 3
  letters                   A 1, N 5, L 3, E 5
  values in the name        1 3 5
  Subconscious Self Number  3
)"},
        // D 4, A 1, N 5, D 4, I 9, B 2; only the day is one of the four.
        {{"Dan", {}, "Dib", "May", "16", "2000"}, R"(Karmic Debt Numbers: 16
  digit sum of the day     7
  Destiny, unreduced       25
  Soul Urge, unreduced     10
  Inner Dreams, unreduced  15
  day of birth             16
  Karmic Debt Number       16
)"},
        {{"Al", "Ir", "Roe", "May", "1", "2000"}, R"(Balance Number: 1
  first initial   A 1
  middle initial  I 9
  last initial    R 9
  Balance Number  1 + 9 + 9 = 19, 1 + 9 = 10, 1 + 0 = 1
)"},
        {{"I", {}, "Lee", "May", "2", "2000"}, R"(Rational Thought Number: 11
  day of birth             2
  first name               I 9
  Rational Thought Number  2 + 9 = 11, 11 is a master number and stays
)"},
        {{"Oak", {}, "River", "March", "7", "1990"}, R"(H/P Bridge Number: 3
  Soul Urge Number     3
  Inner Dreams Number  6
  bridge               6 - 3 = 3
)"},
        // Life Path 1 and Destiny 9; the sum's digits are added, and 10 is folded.
        {anna, R"(Realization / Maturity Number: 1
  Life Path Number    1
  Destiny Number      9
  Realization Number  1 + 9 = 10, 1 + 0 = 1
)"},
        {{"Cora", {}, "Kent", "May", "1", "2000"},
         R"(Planes Of Expression / Personal Aspects: Emotional
  mental share      A N: 2 of 8 characters, 25 %
  physical share    E: 1 of 8 characters, 12 %
  emotional share   O R T: 3 of 8 characters, 37 %
  intuitive share   C K: 2 of 8 characters, 25 %
  dominant plane    Emotional
  mental rating     Weak
  physical rating   Weak
  emotional rating  Strong
  intuitive rating  Strong
)"},
        {{"Sky", {}, "Lynn", "May", "1", "2000"}, R"(Soul Urge / Heart's Desire Number: 5
  sum of A, E, I, O, U  no letter counts
  sum of the letters    Y 7 + Y 7 = 14
  number                14: 1 + 4 = 5
)"},
    };
    ExpectBlocks(blocks);
}

// What no branch has assigned is not shown as if it had been worked out.
TEST_F(ExplanationTest, SaysWhatIsOfTheRunBefore) {
    const Expected blocks[]{
        {{"Ann", {}, "Lee", "March", "31", "2030"}, R"(Life Path Periods: 0
  period 1, month       March counts 3
  period 2, day         31: 3 + 1 = 4
  period 3, year        2030: 2 + 0 + 3 + 0 = 5
  age                   2026 - 2030 = -4
  root                  4 + 3 + 5 = 12, 1 + 2 = 3
  period 1 ends at age  24
  period 2 ends at age  51
  period now running    left as it was: 0
)"},
        {{"Ann", {}, "Lee", "March", "31", "2030"}, R"(Essence: 0
  age                    2026 - 2030 = -4
  years of the letters   no letter
  first name, in force   0
  middle name, in force  0
  years of the letters   no letter
  last name, in force    0
  Essence                0 + 0 + 0 = 0
  reading                left as it was: empty
)"},
        {{"A B C", {}, "D", "May", "1", "2000"}, R"(Hidden Passion Number: 0
  letters                A 1, blank 2, B 1, C 1, D 1
  most frequent          blank
  Hidden Passion Number  left as it was: 0
  reading                left as it was: empty
)"},
        // A tie of 50 and 50, and a physical share of 50 is in the band of Strong.
        {{"A", {}, "E", "May", "1", "2000"}, R"(Planes Of Expression / Personal Aspects
  mental share      A: 1 of 2 characters, 50 %
  physical share    E: 1 of 2 characters, 50 %
  emotional share   0 of 2 characters, 0 %
  intuitive share   0 of 2 characters, 0 %
  dominant plane    left as it was: empty
  mental rating     Strong
  physical rating   Strong
  emotional rating  Weak
  intuitive rating  Weak
)"},
        {{"Ross", {}, "E", "May", "1", "2000"},
         R"(Planes Of Expression / Personal Aspects: Emotional
  mental share      0 of 5 characters, 0 %
  physical share    E: 1 of 5 characters, 20 %
  emotional share   R O S S: 4 of 5 characters, 80 %
  intuitive share   0 of 5 characters, 0 %
  dominant plane    Emotional
  mental rating     Weak
  physical rating   left as it was: empty
  emotional rating  Strong
  intuitive rating  Weak
)"},
        // 1 + 5 + 5 = 11, and a name without a letter.
        {{"12", {}, "3", "May", "1", "2030"}, R"(Realization / Maturity Number: 0
  Life Path Number    11
  Destiny Number      0
  Realization Number  left as it was: 0
)"},
        // Soul Urge 2 + 9 = 11, Inner Dreams 2. The pass has seen zeros, whose reading stays.
        {{"Ki", {}, "Aa", "May", "1", "2000"}, R"(H/P Bridge Number: 9
  Soul Urge Number     11
  Inner Dreams Number  2
  bridge               11 - 2 = 9
  reading              left as it was: "People will feel comfortable in your
                       ...ers were sitting on."
)"},
    };
    ExpectBlocks(blocks);
}

// Letters that add up to more than the sums hold; the tool refuses such a name before.
TEST_F(ExplanationTest, SaysWhereACalculatorGaveUp) {
    EXPECT_EQ(Block({QString(3641, u'I'), {}, "Lee", "May", "1", "2000"},
                    u"Destiny / Expressions Number"),
              "Destiny / Expressions Number: 0\n"
              "  given up  overflow; what follows is left as it was\n");
}

TEST(Shown, IsACodeForWhatCannotStandByItself) {
    EXPECT_EQ(Shown(u'A'), "A");
    EXPECT_EQ(Shown(u' '), "blank");
    EXPECT_EQ(Shown(u'\u0416'), "\u0416");
    for (const auto &[character, code] : {std::pair(u'\u0301', "U+0301"),
                                          {u'\t', "U+0009"},
                                          {u'\u00A0', "U+00A0"},
                                          {u'\u202E', "U+202E"},
                                          {u'\u05D0', "U+05D0"},
                                          {u'\xDE00', "U+DE00"}})
        EXPECT_EQ(Shown(character), code);
}

// The numbers are those of the reading, which a click on each topic shows.
TEST_F(ExplanationTest, IsOfTheRunThatTheReadingShows) {
    for (const Person &person : {anna, Person{"Sky", {}, "Lynn5", "October", "13", "1999"}}) {
        const auto captured = modReadings::Captured(person);
        const PersonReading reading = ReadPerson(captured, AllCaptions());
        const Explanation explanation = Explain(captured, AllCaptions());
        ASSERT_EQ(explanation.topics.size(), reading.topics.size());
        for (std::size_t index = 0; index < reading.topics.size(); ++index) {
            EXPECT_EQ(explanation.topics[index].caption, reading.topics[index].caption);
            EXPECT_EQ(explanation.topics[index].number, reading.topics[index].number);
            EXPECT_TRUE(explanation.topics[index].trace.failure.empty());
            EXPECT_FALSE(explanation.topics[index].trace.lines.empty());
        }
    }
}

TEST_F(ExplanationTest, TakesTheComprehensiveReadingForAllTopics) {
    EXPECT_EQ(Text(anna, {u"Comprehensive Reading"}), Text(anna));
}

TEST_F(ExplanationTest, KeepsWithin80Columns) {
    const QString longName = QString("Wolfeschlegelsteinhausenbergerdorff ").repeated(4).trimmed();
    std::istringstream lines(Text({longName, "Y", longName, "May", "29", "1999"}));
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LT(QString::fromStdString(line).size(), 80) << line;
        EXPECT_FALSE(line.ends_with(' ')) << line;
    }
}

TEST_F(ExplanationTest, IsAnObjectAsJson) {
    const std::string line = ExplanationAsJson(
        Explain(modReadings::Captured(
                    {"Oak", {}, QString::fromUtf8("Rive\u0301r\U0001F600"), "March", "7", "1990"}),
                std::vector<std::u16string_view>{u"Life Path Number", u"Birthday Number"}),
        {7, R"({"id":3})"});
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    const QJsonObject object = ParseObject(line);
    EXPECT_EQ(object["first"].toString(), "OAK");
    EXPECT_EQ(object["today"].toString(), "2026-11-16");
    EXPECT_EQ(object["line"].toInt(), 7);
    EXPECT_EQ(object["input"].toObject()["id"].toInt(), 3);

    const QJsonArray letters = object["name"].toObject()["letters"].toArray();
    ASSERT_EQ(letters.size(), 11);
    EXPECT_EQ(
        letters[0].toObject(),
        (QJsonObject{{"part", "first"}, {"character", "O"}, {"value", 6}, {"kind", "vowel"}}));
    EXPECT_EQ(letters[3].toObject()["part"].toString(), "last");
    EXPECT_EQ(letters[7].toObject()["character"].toString(), QString::fromUtf8("\u0301"));
    EXPECT_EQ(letters[7].toObject()["kind"].toString(), "not_counted");
    EXPECT_EQ(letters[9].toObject()["character"].toString(), "U+D83D");
    const QJsonObject destiny = object["name"].toObject()["destiny"].toObject();
    EXPECT_EQ(destiny["sum"].toInt(), 45);
    EXPECT_EQ(destiny["number"].toInt(), 9);

    const QJsonObject topic = object["topics"].toArray()[0].toObject();
    EXPECT_EQ(topic["caption"].toString(), "Life Path Number");
    EXPECT_EQ(topic["number"].toString(), "2"); // 7 + 3 + 10 = 20
    EXPECT_FALSE(topic.contains("failure"));
    const QJsonObject year = topic["lines"].toArray()[2].toObject();
    EXPECT_EQ(year["label"].toString(), "year of birth");
    EXPECT_EQ(year["value"].toInt(), 10);
    EXPECT_FALSE(year["left"].toBool(true));
    EXPECT_EQ(year["steps"].toArray()[1].toObject(),
              (QJsonObject{
                  {"kind", "fold"}, {"from", "19"}, {"terms", QJsonArray{1, 9}}, {"result", 10}}));
}

} // namespace
