#include "tools/reading.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "report/person.h"
#include "report/rendering.h"
#include "report/topic_tree.h"
#include "tests/support/expected_report.h"
#include "tools/text.h"

#include <gtest/gtest.h>

#include <algorithm>

using modReadings::Captured;
using modReadings::comprehensiveCaption;
using modReadings::ExpectedTopic;
using modReadings::passTopics;
using modReadings::Person;

namespace {

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};
const Person oak{"oak", {}, "river", "March", "7", "1990"};

/// The captions of all topics and of the Comprehensive Reading.
std::vector<std::u16string_view> Everything() {
    std::vector<std::u16string_view> captions = AllCaptions();
    captions.push_back(comprehensiveCaption);
    return captions;
}

PersonReading Read(const Person &person) { return ReadPerson(Captured(person), Everything()); }

const TopicReading &Topic(const PersonReading &reading, std::u16string_view caption) {
    const auto topic = std::ranges::find(reading.topics, caption, &TopicReading::caption);
    EXPECT_NE(topic, reading.topics.end()) << ToUtf8(caption);
    return *topic;
}

std::string Number(const PersonReading &reading, std::u16string_view caption) {
    return ToUtf8(Topic(reading, caption).number);
}

/// The text of one run of a topic, counted from 0.
std::string RunIn(const PersonReading &reading, std::u16string_view caption, std::size_t run) {
    return ToUtf8(Topic(reading, caption).report.at(run).text);
}

class Reading : public testing::Test {
protected:
    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
};

TEST(AllCaptions, AreThoseOfThePassInItsOrder) {
    EXPECT_TRUE(std::ranges::equal(AllCaptions(), passTopics, {}, {}, &ExpectedTopic::caption));
}

// Of the nodes of the tree 22 are topics and one is the Comprehensive Reading. The view
// outlives the text it was found by.
TEST(KnownCaption, IsThatOfATopicOrTheComprehensiveReading) {
    int known = 0;
    for (const modReadings::TreeNode &node : modReadings::TreeNodes()) {
        std::u16string typed(node.caption);
        const std::u16string_view caption = KnownCaption(typed);
        typed.assign(typed.size(), u'x');
        known += caption.empty() ? 0 : 1;
        EXPECT_TRUE(caption.empty() || caption == node.caption);
    }
    EXPECT_EQ(known, 23);
    EXPECT_EQ(KnownCaption(comprehensiveCaption), comprehensiveCaption);
    for (const char16_t *other : {u"", u"Numerology", u"Help", u"Reset", u"essence", u"Essence "})
        EXPECT_TRUE(KnownCaption(other).empty());
}

TEST_F(Reading, HasThePersonTheDayAndTheTopicsAskedFor) {
    const std::vector<std::u16string_view> captions{u"Personal Day", u"Karmic Lessons Number",
                                                    u"Pinnacle Phases", comprehensiveCaption,
                                                    u"Personal Day"};
    const PersonReading reading = ReadPerson(Captured(anna), captions);
    EXPECT_EQ(reading.person.FirstName, u"ANNA");
    EXPECT_EQ(reading.person.MiddleName, u"");
    EXPECT_EQ(reading.person.BirthDay, u"29");
    EXPECT_EQ(reading.day, std::chrono::year(2026) / 11 / 16);
    EXPECT_TRUE(std::ranges::equal(reading.topics, captions, {}, &TopicReading::caption));
    EXPECT_TRUE(reading.topics[0].report == reading.topics[4].report);
    EXPECT_EQ(reading.topics[3].number, u"");
    EXPECT_TRUE(ReadPerson(Captured(anna), {}).topics.empty());
}

// Anna is 41 in 2026: ANNA 1 5 5 1 is 12, SMITH 1 4 9 2 8 is 24. Oak is 36: OAK 6 1 2 is 9,
// RIVER 9 9 4 5 9 is 36, its vowels with those of OAK 21.
TEST_F(Reading, HasTheNumbersBehindTheHeadings) {
    constexpr std::pair<const char *, const char *> numbers[]{
        {"8", "4"},              // 2 + 3 + 2 + 1; 7 + 3 + 2 + 1 = 13
        {"29", "7"},             //
        {"1", "9"},              // A and N twice, A first; R twice
        {"2", "2"},              // root 1: ages 27 to 53; 11 gives 2: ages 26 to 52
        {"6", "2"},              // 2 + 3 + 1; 7 + 3 folds to 1, and 1
        {"", ""},                //
        {"6", "6"},              // 1 2 4 5 8 9; 1 2 4 5 6 9
        {"1", "2"},              // 2 + 3 + 5 = 10; 7 + 3 + 10 = 20
        {"9", "9"},              // 36; 45
        {" 3 6 7", " 3 7 8"},    //
        {"1 3 2 2", "4 6 2 2"},  // 3-2, 5-2, 1-3, 5-3; 3-7, 1-7, 4-6, 1-3
        {"0", "0"},              //
        {"2", "6"},              // A 1, S 1; O 6, R 9: 15
        {"6", "2"},              // 2 + 3 + 7 + 2 + 1 = 15; 7 + 3 + 7 + 2 + 1 = 20
        {"5", "7"},              // 2 + 12 = 14; 7 + 9 = 16
        {"4", "3"},              // 11 - 7; 3 - 6
        {"8", "7"},              // 9 - 1; 9 - 2
        {"4", "2"},              // N 5 and H 8: 13; both names end at 36: K 2 and R 9: 11
        {"1", "2"},              // 1 + 9 = 10; 2 + 9 = 11
        {"7", "6"},              // 36 - 11 = 25; 45 - 21 = 24
        {"Mental", "Emotional"}, //
        {"11", "3"}};            // A A I; 21
    const PersonReading first = Read(anna);
    const PersonReading second = Read(oak);
    for (std::size_t index = 0; index < passTopics.size(); ++index) {
        SCOPED_TRACE(ToUtf8(passTopics[index].caption));
        for (const auto &[topic, number] : {std::pair(first.topics[index], numbers[index].first),
                                            {second.topics[index], numbers[index].second}}) {
            EXPECT_EQ(ToUtf8(topic.caption), ToUtf8(passTopics[index].caption));
            EXPECT_EQ(ToUtf8(topic.number), number);
            EXPECT_EQ(
                ToUtf8(topic.report[0].text),
                ToUtf8(std::u16string(passTopics[index].heading) + topic.number + u"\r\n\r\n"));
            EXPECT_TRUE(topic.report[0].bold);
            EXPECT_FALSE(topic.report[1].bold);
        }
    }
    EXPECT_EQ(RunIn(second, u"Pinnacle Phases", 8),
              "Fourth Pinnacle from age 51 & beyond is 22\r\n");
}

TEST_F(Reading, FollowsTheDay) {
    clock_.Set(std::chrono::year(2027) / 1 / 1);
    const PersonReading reading = Read(anna);
    EXPECT_EQ(reading.day, std::chrono::year(2027) / 1 / 1);
    EXPECT_EQ(Number(reading, u"Personal Month"), "8"); // 2 + 3 + 1 + 2
    EXPECT_EQ(Number(reading, u"Personal Day"), "9");   // 2 + 3 + 1 + 1 + 2
    EXPECT_EQ(Number(reading, u"Personal Year"), "7");  // 5 + 2
}

// A last name that ends in 5 counts every month from May on as 5 once it has been walked,
// that is, at the click after the pass. The Personal Year reads the month by itself.
TEST_F(Reading, ShowsTheTopicsAsClicksAfterThePass) {
    const PersonReading reading = Read({"Anna", {}, "Smith5", "December", "29", "1985"});
    EXPECT_EQ(Number(reading, u"Personal Month"), "1"); // 2 + 5 + 2 + 1 = 10
    EXPECT_EQ(Number(reading, u"Personal Day"), "8");   // 2 + 5 + 7 + 2 + 1 = 17
    EXPECT_EQ(Number(reading, u"Personal Year"), "6");
    // In the pass itself Soul Urge and Inner Dreams are not there yet and the gap is 0.
    EXPECT_EQ(Number(reading, u"H/P Bridge Number"), "4");
}

TEST_F(Reading, TheComprehensiveReadingHoldsAllTopicsBehindAnyOthers) {
    const PersonReading reading =
        ReadPerson(Captured(anna), std::vector{std::u16string_view(u"Essence"),
                                               comprehensiveCaption, comprehensiveCaption});
    const modReadings::Report &report = reading.topics[1].report;
    EXPECT_TRUE(report == reading.topics[2].report);
    std::vector<std::string> bold;
    for (const auto &run : report)
        if (run.bold)
            bold.push_back(ToUtf8(run.text));
    ASSERT_EQ(bold.size(), 23U); // the title and 22 headings
    EXPECT_EQ(bold[0], "Orravane Comprehensive Reading\r\n\r\n");
    EXPECT_EQ(bold[1], "Your Personal Month is: 8\r\n\r\n");
    EXPECT_EQ(bold[2], "Your BirthDay Number is: 29\r\n\r\n");
    EXPECT_EQ(bold[22], "Your Soul Urge Or Heart's Desire Number is: 11\r\n\r\n");
}

// A pass over a fresh store, then a click on each node. The person before, whose slots are
// full, leaves nothing to those whose slots come out empty, at 0 or from a tie.
TEST_F(Reading, IsThatOfTheWindowRunByRunWhoeverWasReadBefore) {
    const std::vector<Person> people{
        anna,
        oak,
        {"Ann", "May", "Lee", "January", "1", "1900"},
        {"Sky", {}, "Lynn", "October", "31", "1999"},
        {"A", {}, "E", "November", "30", "2025"},
        {"Ross", {}, "E", "July", "16", "1990"},
        {"Mary Ann", "van", "der Wal", "December", "13", "2050"},
        {"1 1", {}, "- -", "June", "19", "2050"},
        {"A B C", {}, "D", "May", "14", "1964"},
        {"Abe", {}, "E", "January", "1", "1990"},
        {"1", {}, "2", "April", "9", "2030"},
        {"abcdefghi", "jklmnopqr", "stuvwxyz", "August", "22", "1911"}};
    for (const Person &person : people) {
        SCOPED_TRACE(person.firstName.toStdString());
        modReadings::store = {};
        modReadings::profile = Captured(person);
        modReadings::RunAllCalculators();
        std::vector<modReadings::Report> window;
        for (const ExpectedTopic &topic : passTopics)
            window.push_back(RunAndRenderTopic(*modReadings::FindTopic(topic.caption)));
        window.push_back(modReadings::RenderComprehensiveReading());

        Read(anna);
        const PersonReading reading = Read(person);
        for (std::size_t index = 0; index < window.size(); ++index)
            EXPECT_TRUE(reading.topics[index].report == window[index])
                << ToUtf8(reading.topics[index].caption);
    }
}

TEST_F(Reading, OfAPersonWithoutNumbersIsEmptyBehindAFullOne) {
    Read(anna);
    const PersonReading signs = Read({"1 1", {}, "- -", "June", "19", "2050"});
    for (const char16_t *caption :
         {u"Hidden Passion Number", u"Destiny / Expressions Number", u"Balance Number", u"Essence",
          u"Inner Dreams / Personality Number", u"Soul Urge / Heart's Desire Number"}) {
        EXPECT_EQ(Number(signs, caption), "0") << ToUtf8(caption);
        EXPECT_EQ(RunIn(signs, caption, 2), "") << ToUtf8(caption);
    }
    EXPECT_EQ(Number(signs, u"Life Path Periods"), "0"); // a negative age is in no period
    EXPECT_EQ(Number(signs, u"Planes Of Expression / Personal Aspects"), "");
    EXPECT_EQ(RunIn(signs, u"Realization / Maturity Number", 1), "\r\n\r\n"); // no About
    EXPECT_EQ(Number(signs, u"Karmic Debt Numbers"), "19");                   // the day
    // 9 + 4 + (2030: 5) = 18, digit sum 9: a gap of 9 to Destiny 0, which has no reading.
    Read(anna);
    const PersonReading nine = Read({"1", {}, "2", "April", "9", "2030"});
    EXPECT_EQ(Number(nine, u"L/E Bridge Number"), "9");
    EXPECT_EQ(RunIn(nine, u"L/E Bridge Number", 2), "");
}

// J 1, O 6, S 1: 8. M 4, L 3, L 3, E 5, R 9: 24. Z 8, O 6: 14; S T R A U S S: 18. F I and O:
// 21, and A 1. An emoji counts nothing.
TEST_F(Reading, CountsTheLettersAToZOfAnyName) {
    for (const auto &[first, last, destiny] :
         {std::array{"José", "müller", "5"}, std::array{"Zoë", "Strauß", "5"},
          std::array{"ﬁo", "a", "22"}, std::array{"Ann😀", "Lee🎉", "6"}})
        EXPECT_EQ(
            Number(Read({first, {}, last, "March", "7", "2026"}), u"Destiny / Expressions Number"),
            destiny)
            << first;
    // Of ten units, two in each emoji, four are mental and two physical.
    EXPECT_EQ(RunIn(Read({"Ann😀", {}, "Lee🎉", "March", "7", "1990"}),
                    u"Planes Of Expression / Personal Aspects", 1),
              "Your Personal Aspects: Mental Ability 40 - Strong \r\n"
              "Physical Ability 20 - Average \r\nEmotional Ability 0 - Weak \r\n"
              "Intuitive Ability 0 - Weak\r\n\r\n");
}

// 40,000 letters are more than a number of the report can count: their calculators give
// up and leave their topics as they are in a fresh store, and all others go on.
TEST_F(Reading, OfANameTooLongToCountLeavesItsTopicsEmpty) {
    const QString letters(40'000, 'a');
    Read(anna);
    const PersonReading reading = Read({letters, {}, "Lee", "January", "1", "1990"});
    for (const char16_t *caption :
         {u"Hidden Passion Number", u"Destiny / Expressions Number", u"Rational Thought Number",
          u"Inner Dreams / Personality Number", u"Soul Urge / Heart's Desire Number"}) {
        EXPECT_EQ(Number(reading, caption), "0") << ToUtf8(caption);
        EXPECT_EQ(RunIn(reading, caption, 1), "\r\n\r\n") << ToUtf8(caption); // no About either
        EXPECT_EQ(RunIn(reading, caption, 2), "") << ToUtf8(caption);
    }
    EXPECT_EQ(Number(reading, u"Karmic Lessons Number"), "");
    EXPECT_EQ(Number(reading, u"Planes Of Expression / Personal Aspects"), "");
    EXPECT_EQ(Number(reading, u"Personal Month"), "5");    // 1 + 1 + 2 + 1
    EXPECT_EQ(Number(reading, u"Life Path Number"), "3");  // 1 + 1 + 10 = 12
    EXPECT_EQ(Number(reading, u"Balance Number"), "4");    // A and L
    EXPECT_EQ(Number(reading, u"L/E Bridge Number"), "3"); // 3 - 0
    // The 37th A is still taken at 36; LEE is 13 years and ends with E at 39.
    EXPECT_EQ(Number(reading, u"Essence"), "6");
    EXPECT_TRUE(RunIn(reading, u"Realization / Maturity Number", 2)
                    .starts_with("Your Maturity Number is dependent on"));

    const PersonReading middle = Read({"Ann", letters, "Lee", "January", "1", "1990"});
    EXPECT_EQ(Number(middle, u"Rational Thought Number"), "3"); // 1 + 11 = 12
    EXPECT_EQ(Number(middle, u"Destiny / Expressions Number"), "0");
    EXPECT_EQ(Number(middle, u"Balance Number"), "5"); // A, A and L
}

} // namespace
