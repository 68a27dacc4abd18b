#include "report/topic_tree.h"

#include "tests/support/expected_report.h"

#include <gtest/gtest.h>

#include <vector>

namespace modReadings {
namespace {

using ::testing::PrintToString;

struct ExpectedNode {
    std::u16string key, parentKey;
    std::u16string_view caption;
};

std::vector<ExpectedNode> ExpectedNodes() {
    std::vector<ExpectedNode> nodes{{u"UserInfo", u"", u"User Information"},
                                    {u"U1", u"UserInfo", u"Enter The Information"},
                                    {u"U2", u"UserInfo", u"Reset"},
                                    {u"Numerology", u"", u"Numerology"}};
    int16 number = 0;
    for (const ExpectedTopic &topic : treeTopics)
        nodes.push_back({u"N" + DecimalText(++number), u"Numerology", topic.caption});
    nodes.push_back({u"N23", u"Numerology", u"Comprehensive Reading"});
    nodes.push_back({u"Help", u"", u"Help"});
    return nodes;
}

TEST(TreeNodes, AreTheTwentyEightInTheirOrderAndOneIsBold) {
    const std::vector<ExpectedNode> expected = ExpectedNodes();
    ASSERT_EQ(treeNodeCount, 28U);
    ASSERT_EQ(expected.size(), 28U);
    for (std::size_t index = 0; index < expected.size(); ++index) {
        SCOPED_TRACE(index + 1);
        const TreeNode &node = TreeNodes()[index];
        EXPECT_EQ(node.key, expected[index].key);
        EXPECT_EQ(node.parentKey, expected[index].parentKey);
        EXPECT_EQ(node.caption, expected[index].caption);
        EXPECT_EQ(node.bold, node.key == u"N23");
    }
    using enum NodePosition;
    for (const auto &[position, key] :
         std::vector<std::pair<NodePosition, std::u16string>>{{UserInfo, u"UserInfo"},
                                                              {U1, u"U1"},
                                                              {U2, u"U2"},
                                                              {Numerology, u"Numerology"},
                                                              {N1, u"N1"}})
        EXPECT_EQ(TreeNodes().at(static_cast<std::size_t>(position) - 1).key, key);
}

TEST(Topics, StandInTheOrderOfTheTreeAndEachCalculatorOfThePassHasOne) {
    ASSERT_EQ(Topics().size(), 22U);
    for (std::size_t index = 0; index < 22; ++index) {
        EXPECT_EQ(Topics()[index].caption, treeTopics[index].caption) << index;
        EXPECT_EQ(TopicOf(passOrder[index]).caption, passTopics[index].caption) << index;
    }
}

struct Meaning {
    std::u16string_view caption;
    ClickAction action;
    bool validates;
};

TEST(MeaningOfClick, FollowsFromTheExactCaption) {
    using enum ClickAction;
    std::vector<Meaning> meanings{
        {u"User Information", InputPage, false},
        {u"Enter The Information", InputPage, false},
        {u"Reset", Reset, false},
        {u"Help", Help, false},
        {u"Comprehensive Reading", ClickAction::ComprehensiveReading, true},
        {u"Numerology", Nothing, true},
    };
    for (const std::u16string_view other :
         {u"reset", u"RESET", u"Reset ", u"user information", u"Enter the Information", u"help",
          u"comprehensive reading", u"numerology", u"", u"N1", u"UserInfo", u" Personal Month",
          u"Destiny / Expression Number", u"Planes of Expression / Personal Aspects"})
        meanings.push_back({other, Nothing, true});
    for (const Meaning &meaning : meanings) {
        const Click click = MeaningOfClick(meaning.caption);
        EXPECT_EQ(click.action, meaning.action) << PrintToString(std::u16string(meaning.caption));
        EXPECT_EQ(click.validates, meaning.validates)
            << PrintToString(std::u16string(meaning.caption));
        EXPECT_EQ(click.topic, nullptr);
        EXPECT_EQ(FindTopic(meaning.caption), nullptr);
    }
}

TEST(MeaningOfClick, OfATopicIsTheTopicAndValidates) {
    for (const ExpectedTopic &topic : treeTopics) {
        const Click click = MeaningOfClick(topic.caption);
        EXPECT_EQ(click.action, ClickAction::Topic);
        EXPECT_TRUE(click.validates);
        ASSERT_NE(click.topic, nullptr);
        EXPECT_EQ(click.topic->caption, topic.caption);

        std::u16string shouted(topic.caption), whispered(topic.caption);
        for (char16_t &letter : shouted)
            letter = letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - 32) : letter;
        for (char16_t &letter : whispered)
            letter = letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter + 32) : letter;
        EXPECT_EQ(MeaningOfClick(shouted).action, ClickAction::Nothing);
        EXPECT_EQ(MeaningOfClick(whispered).action, ClickAction::Nothing);
    }
}

} // namespace
} // namespace modReadings
