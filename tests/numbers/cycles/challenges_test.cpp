#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <array>
#include <cstdlib>
#include <optional>

namespace modReadings {
namespace {

using longhand::Decimal;
using longhand::DigitalRoot;
using longhand::Month;

/// Four values; none where line and reading have to stay as they were.
using Four = std::array<std::optional<int>, 4>;

class Challenges : public FreshStore {
protected:
    static std::u16string NumberOf(std::u16string day, std::u16string month, std::u16string year) {
        Born(std::move(day), std::move(month), std::move(year));
        CalcChallenges();
        return store.ChallengeNumber;
    }

    /// Whether lines and readings are those of the values.
    static void ExpectRows(const Four &values) {
        constexpr std::u16string_view words[] = {u"First", u"Second", u"Third", u"Fourth"};
        const std::u16string *labels[] = {&store.ChallengeLabel1, &store.ChallengeLabel2,
                                          &store.ChallengeLabel3, &store.ChallengeLabel4};
        const std::u16string *texts[] = {&store.ChallengeText1, &store.ChallengeText2,
                                         &store.ChallengeText3, &store.ChallengeText4};
        for (std::size_t place = 0; place < 4; ++place) {
            if (!values[place])
                continue;
            EXPECT_EQ(*labels[place], std::u16string(words[place]) + u" Challenge Number is " +
                                          Decimal(*values[place]));
            EXPECT_TRUE(Opens(*texts[place], "ChallengeText", *values[place]));
        }
    }
};

TEST_F(Challenges, BornOn29December1985) {
    EXPECT_EQ(NumberOf(u"29", u"December", u"1985"), u"1 3 2 2"); // 2, 3 and 5
    EXPECT_EQ(store.ChallengeLabel1, u"First Challenge Number is 1");
    EXPECT_EQ(store.ChallengeLabel2, u"Second Challenge Number is 3");
    EXPECT_EQ(store.ChallengeLabel3, u"Third Challenge Number is 2");
    EXPECT_EQ(store.ChallengeLabel4, u"Fourth Challenge Number is 2");
    ExpectRows({1, 3, 2, 2});
    EXPECT_EQ(store.ChallengeText3, store.ChallengeText4); // the value alone chooses
}

TEST_F(Challenges, DayIsFoldedOnceAndTheYearTwice) {
    EXPECT_EQ(NumberOf(u"7", u"March", u"1990"), u"4 6 2 2");   // 7, 3 and 1
    EXPECT_EQ(NumberOf(u"3", u"March", u"1990"), u"0 2 2 2");   // 3, 3 and 1
    EXPECT_EQ(NumberOf(u"1", u"October", u"1990"), u"0 0 0 0"); // all 1
    EXPECT_EQ(NumberOf(u"19", u"March", u"1990"), u"2 0 2 2");  // 10 folds to 1
    EXPECT_EQ(NumberOf(u"29", u"March", u"1990"), u"1 1 0 2");  // 11 folds to 2
    EXPECT_EQ(NumberOf(u"7", u"March", u"1999"), u"4 6 2 2");   // 28, 10, 1
    EXPECT_EQ(NumberOf(u"7", u"March", u"1993"), u"4 3 1 1");   // 22, 4
    EXPECT_EQ(NumberOf(u"7", u"March", u"2050"), u"4 0 4 4");   // 7, 3 and 7
    // No day of the list: 19 folds to 10 and stays there.
    EXPECT_EQ(NumberOf(u"199", u"March", u"1990"), u"7 9 2 2");
}

TEST_F(Challenges, AboutHasItsThreeParagraphs) {
    NumberOf(u"7", u"March", u"1990");
    EXPECT_TRUE(IsTextOf(store.ChallengeAbout, "ChallengeAbout"));
    EXPECT_NE(store.ChallengeText2.find(u"You don 't have a broad vision"), std::u16string::npos);
}

TEST_F(Challenges, AllDatesOfTheListsAndAll36Lines) {
    std::array<std::set<int>, 4> seen;
    int dates = 0;
    for (int year = 1900; year <= 2050; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day) {
                const int d = DigitalRoot(day), m = DigitalRoot(month), y = DigitalRoot(year);
                const int first = std::abs(m - d), second = std::abs(y - d);
                const Four expected{first, second, std::abs(first - second), std::abs(y - m)};
                std::u16string number;
                for (std::size_t place = 0; place < 4; ++place)
                    number += (place == 0 ? u"" : u" ") + Decimal(*expected[place]);
                ASSERT_EQ(NumberOf(Decimal(day), Month(month), Decimal(year)), number)
                    << day << '.' << month << '.' << year;
                if (++dates % 7 != 0) // one in seven is enough for the texts
                    continue;
                ExpectRows(expected);
                for (std::size_t place = 0; place < 4; ++place)
                    seen[place].insert(*expected[place]);
            }
        }
    }
    for (const std::set<int> &values : seen)
        EXPECT_EQ(values, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(Challenges, NineHasNoRowInAnyPlace) {
    const struct {
        const char16_t *day, *month, *year, *number;
        Four rows;
        SlotNames kept;
    } dates[] = {
        // 9, 0 and 1
        {u"9",
         u"mars",
         u"1990",
         u"9 8 1 1",
         {{{}, 8, 1, 1}},
         {"ChallengeLabel1", "ChallengeText1"}},
        // 1, 0 and 9
        {u"1",
         u"mars",
         u"2007",
         u"1 8 7 9",
         {{1, 8, 7, {}}},
         {"ChallengeLabel4", "ChallengeText4"}},
        // 9, 0 and 9
        {u"27",
         u"mars",
         u"2007",
         u"9 0 9 9",
         {{{}, 0, {}, {}}},
         SlotsOf({"ChallengeLabel", "ChallengeText"})},
        // 9, 9 and 0, which no year of the list makes
        {u"9",
         u"September",
         u"",
         u"0 9 9 9",
         {{0, {}, {}, {}}},
         SlotsOf({"ChallengeLabel", "ChallengeText"})},
    };
    for (const auto &[day, month, year, number, rows, kept] : dates) {
        Born(day, month, year);
        SlotNames expected = SlotsOf({"Challenge"});
        for (const std::string &slot : kept)
            if (!rows[static_cast<std::size_t>(slot.back() - '1')])
                expected.erase(slot);
        EXPECT_EQ(WrittenBy(CalcChallenges), expected);
        EXPECT_EQ(store.ChallengeNumber, number);
        ExpectRows(rows);
        EXPECT_TRUE(IsTextOf(store.ChallengeAbout, "ChallengeAbout"));
    }
}

TEST_F(Challenges, NineKeepsTheLineAndTheReadingOfThePersonBefore) {
    EXPECT_EQ(NumberOf(u"7", u"March", u"1990"), u"4 6 2 2");
    EXPECT_EQ(NumberOf(u"9", u"mars", u"2007"), u"9 0 9 9");
    ExpectRows({4, 0, 2, 2}); // only the second is this person's own
    EXPECT_EQ(NumberOf(u"9", u"mars", u"1990"), u"9 8 1 1");
    ExpectRows({4, 8, 1, 1}); // the first is still that of two persons before
}

TEST_F(Challenges, NameThatEndsInADigitHasNoSay) {
    store.ScratchLetter = u"2";
    EXPECT_EQ(NumberOf(u"29", u"December", u"1985"), u"1 3 2 2");
}

} // namespace
} // namespace modReadings
