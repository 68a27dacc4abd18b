#include "tools/reading.h"

#include "core/clock.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "report/topic_tree.h"

#include <gtest/gtest.h>

namespace {

const modReadings::Person anna{"Anna", {}, "Smith", "December", "29", "1985"};
const modReadings::Person bob{"bob", "x", "ray", "May", "13", "2050"};

class Reading : public testing::Test {
protected:
    Reading() {
        modReadings::profile = {};
        modReadings::store = {};
    }

    const modReadings::FixedClock clock{std::chrono::year(2026) / 11 / 16};
};

TEST(AllCaptions, AreThoseOfThePassInItsOrder) {
    const std::vector<std::u16string_view> captions = AllCaptions();
    ASSERT_EQ(captions.size(), 22U);
    EXPECT_EQ(captions[0], u"Personal Month");
    EXPECT_EQ(captions[1], u"Birthday Number"); // second here, tenth in the tree
    EXPECT_EQ(captions[2], u"Hidden Passion Number");
    EXPECT_EQ(captions[10], u"Challenge Number");
    EXPECT_EQ(captions[21], u"Soul Urge / Heart's Desire Number");
}

// Of the nodes of the tree 22 are topics and one is the Comprehensive Reading.
TEST(KnownCaption, IsThatOfATopicOrTheComprehensiveReading) {
    int known = 0;
    for (const modReadings::TreeNode &node : modReadings::TreeNodes()) {
        const std::u16string_view caption = KnownCaption(std::u16string(node.caption));
        if (caption.empty())
            continue;
        EXPECT_EQ(caption, node.caption);
        ++known;
    }
    EXPECT_EQ(known, 23);
    EXPECT_EQ(KnownCaption(u"Comprehensive Reading"), u"Comprehensive Reading");
    for (const char16_t *other : {u"", u"Numerology", u"Help", u"Reset", u"essence", u"Essence "})
        EXPECT_TRUE(KnownCaption(other).empty());
}

// The view outlives the text it was found by.
TEST(KnownCaption, LivesAsLongAsTheProgram) {
    std::u16string typed = u"Essence";
    const std::u16string_view caption = KnownCaption(typed);
    typed = u"another";
    EXPECT_EQ(caption, u"Essence");
}

TEST_F(Reading, HasTheTopicsInTheOrderAskedForWithTheirNumbers) {
    const std::vector<std::u16string_view> captions{u"Personal Day", u"Karmic Lessons Number",
                                                    u"Pinnacle Phases", u"Comprehensive Reading",
                                                    u"Personal Day"};
    const std::vector<TopicReading> readings = ReadPerson(anna, captions);
    ASSERT_EQ(readings.size(), 5U);
    for (std::size_t index = 0; index < 5; ++index)
        EXPECT_EQ(readings[index].caption, captions[index]);
    EXPECT_EQ(readings[0].number, u"6"); // 2 + 3 + 7 + 2 + 1 = 15
    EXPECT_EQ(readings[1].number, u" 3 6 7");
    EXPECT_EQ(readings[2].number, u"");
    EXPECT_EQ(readings[3].number, u"");
    EXPECT_EQ(readings[4].number, u"6");
    EXPECT_EQ(readings[0].runs, readings[4].runs);
    ASSERT_EQ(readings[0].runs.size(), 3U);
    EXPECT_EQ(readings[0].runs[0],
              (modReadings::Run{u"Your Personal Day is: 6\r\n\r\n", true, {128, 0, 128}}));
    EXPECT_FALSE(readings[0].runs[1].bold);
    EXPECT_FALSE(readings[0].runs[2].bold);
}

TEST_F(Reading, CapturesThePerson) {
    ReadPerson(bob, AllCaptions());
    EXPECT_EQ(modReadings::profile.FirstName, u"BOB");
    EXPECT_EQ(modReadings::profile.MiddleName, u"X");
    EXPECT_EQ(modReadings::profile.LastName, u"RAY");
    EXPECT_EQ(modReadings::profile.BirthDay, u"13");
}

// A birth year to come leaves the Essence without a reading and the index of the periods
// alone; on a store that is not fresh Anna's would show.
TEST_F(Reading, StartsFromAFreshStore) {
    const std::vector<std::u16string_view> captions{u"Essence", u"Life Path Periods"};
    const std::vector<TopicReading> first = ReadPerson(bob, captions);
    EXPECT_EQ(first[0].number, u"0");
    EXPECT_EQ(first[0].runs.back().text, u"");
    EXPECT_EQ(first[1].number, u"0");
    ReadPerson(anna, AllCaptions());
    const std::vector<TopicReading> again = ReadPerson(bob, captions);
    EXPECT_EQ(again[0].runs, first[0].runs);
    EXPECT_EQ(again[1].runs, first[1].runs);
}

TEST_F(Reading, OfNoTopicIsEmpty) { EXPECT_TRUE(ReadPerson(anna, {}).empty()); }

} // namespace
