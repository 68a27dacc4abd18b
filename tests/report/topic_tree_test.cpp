#include "report/topic_tree.h"
#include "report/topics.h"
#include "tests/report/expected_report.h"

#include <gtest/gtest.h>

#include <set>

namespace modReadings {
namespace {

struct ExpectedNode {
    std::u16string key;
    std::u16string parentKey;
    std::u16string caption;
};

const std::vector<ExpectedNode> expectedNodes{
    {u"UserInfo", u"", u"User Information"},
    {u"U1", u"UserInfo", u"Enter The Information"},
    {u"U2", u"UserInfo", u"Reset"},
    {u"Numerology", u"", u"Numerology"},
    {u"N1", u"Numerology", u"Personal Month"},
    {u"N2", u"Numerology", u"Hidden Passion Number"},
    {u"N3", u"Numerology", u"Life Path Periods"},
    {u"N4", u"Numerology", u"Personal Year"},
    {u"N5", u"Numerology", u"Pinnacle Phases"},
    {u"N6", u"Numerology", u"Subconscious Self Number"},
    {u"N7", u"Numerology", u"Life Path Number"},
    {u"N8", u"Numerology", u"Destiny / Expressions Number"},
    {u"N9", u"Numerology", u"Karmic Lessons Number"},
    {u"N10", u"Numerology", u"Birthday Number"},
    {u"N11", u"Numerology", u"Challenge Number"},
    {u"N12", u"Numerology", u"Karmic Debt Numbers"},
    {u"N13", u"Numerology", u"Balance Number"},
    {u"N14", u"Numerology", u"Personal Day"},
    {u"N15", u"Numerology", u"Rational Thought Number"},
    {u"N16", u"Numerology", u"H/P Bridge Number"},
    {u"N17", u"Numerology", u"L/E Bridge Number"},
    {u"N18", u"Numerology", u"Essence"},
    {u"N19", u"Numerology", u"Realization / Maturity Number"},
    {u"N20", u"Numerology", u"Inner Dreams / Personality Number"},
    {u"N21", u"Numerology", u"Planes Of Expression / Personal Aspects"},
    {u"N22", u"Numerology", u"Soul Urge / Heart's Desire Number"},
    {u"N23", u"Numerology", u"Comprehensive Reading"},
    {u"Help", u"", u"Help"},
};

TEST(TreeNodes, AreTheTwentyEightInTheirOrder) {
    ASSERT_EQ(treeNodeCount, 28U);
    ASSERT_EQ(expectedNodes.size(), TreeNodes().size());
    for (std::size_t index = 0; index < expectedNodes.size(); ++index) {
        SCOPED_TRACE(index + 1);
        EXPECT_EQ(TreeNodes()[index].key, expectedNodes[index].key);
        EXPECT_EQ(TreeNodes()[index].parentKey, expectedNodes[index].parentKey);
        EXPECT_EQ(TreeNodes()[index].caption, expectedNodes[index].caption);
    }
}

TEST(TreeNodes, OnlyTheComprehensiveReadingIsBold) {
    for (const TreeNode &node : TreeNodes())
        EXPECT_EQ(node.bold, node.key == u"N23") << testing::PrintToString(node.key);
}

TEST(TreeNodes, ParentsComeBeforeTheirChildren) {
    std::set<std::u16string> seen;
    for (const TreeNode &node : TreeNodes()) {
        if (!node.parentKey.empty()) {
            EXPECT_TRUE(seen.contains(node.parentKey)) << testing::PrintToString(node.key);
        }
        EXPECT_TRUE(seen.insert(node.key).second) << "the key is taken";
    }
}

TEST(TreeNodes, ThePositionsThatCodeAddressesHoldTheirNodes) {
    const auto keyAt = [](NodePosition position) {
        return TreeNodes().at(static_cast<std::size_t>(position) - 1).key;
    };
    EXPECT_EQ(static_cast<int>(NodePosition::UserInfo), 1);
    EXPECT_EQ(static_cast<int>(NodePosition::U1), 2);
    EXPECT_EQ(static_cast<int>(NodePosition::Numerology), 4);
    EXPECT_EQ(static_cast<int>(NodePosition::N1), 5);
    EXPECT_EQ(keyAt(NodePosition::UserInfo), u"UserInfo");
    EXPECT_EQ(keyAt(NodePosition::U1), u"U1");
    EXPECT_EQ(keyAt(NodePosition::U2), u"U2");
    EXPECT_EQ(keyAt(NodePosition::Numerology), u"Numerology");
    EXPECT_EQ(keyAt(NodePosition::N1), u"N1");
}

TEST(Topics, StandInTheOrderOfTheTree) {
    ASSERT_EQ(Topics().size(), treeOrder.size());
    for (std::size_t index = 0; index < treeOrder.size(); ++index)
        EXPECT_EQ(Topics()[index].caption, treeOrder[index]) << index;
}

TEST(Topics, AreFoundByTheirExactCaptionOnly) {
    for (const std::u16string_view caption : treeOrder) {
        const Topic *topic = FindTopic(caption);
        ASSERT_NE(topic, nullptr);
        EXPECT_EQ(topic->caption, caption);
    }
    for (const std::u16string_view other :
         {u"personal month", u"PERSONAL MONTH", u"Personal Month ", u" Personal Month", u"",
          u"Destiny / Expression Number", u"Karmic Debt Number", u"Help", u"Numerology",
          u"Comprehensive Reading"})
        EXPECT_EQ(FindTopic(other), nullptr) << testing::PrintToString(std::u16string(other));
}

TEST(Topics, EachCalculatorOfThePassHasOne) {
    for (std::size_t index = 0; index < passOrder.size(); ++index)
        EXPECT_EQ(TopicOf(passOrder[index]).caption, readingOrder[index]) << index;
}

} // namespace
} // namespace modReadings
