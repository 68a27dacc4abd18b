#include "report/topic_tree.h"

#include "core/text.h"

#include <utility>

namespace modReadings {

namespace {

std::array<TreeNode, treeNodeCount> BuildNodes() {
    std::array<TreeNode, treeNodeCount> nodes;
    std::size_t next = 0;
    const auto add = [&](std::u16string key, std::u16string parent, std::u16string_view caption,
                         bool bold = false) {
        nodes.at(next++) = {std::move(key), std::move(parent), caption, bold};
    };

    add(u"UserInfo", u"", captions::userInformation);
    add(u"U1", u"UserInfo", captions::enterTheInformation);
    add(u"U2", u"UserInfo", captions::reset);
    add(u"Numerology", u"", captions::numerology);
    int16 number = 0;
    const auto key = [&] { return u'N' + DecimalText(++number); };
    for (const Topic &topic : Topics())
        add(key(), u"Numerology", topic.caption);
    add(key(), u"Numerology", captions::comprehensiveReading, true);
    add(u"Help", u"", captions::help);
    return nodes;
}

} // namespace

const std::array<TreeNode, treeNodeCount> &TreeNodes() {
    static const auto nodes = BuildNodes();
    return nodes;
}

Click MeaningOfClick(std::u16string_view caption) {
    if (caption == captions::reset)
        return {ClickAction::Reset, false};
    if (caption == captions::userInformation || caption == captions::enterTheInformation)
        return {ClickAction::InputPage, false};
    if (caption == captions::help)
        return {ClickAction::Help, false};
    if (const Topic *topic = FindTopic(caption))
        return {ClickAction::Topic, true, topic};
    if (caption == captions::comprehensiveReading)
        return {ClickAction::ComprehensiveReading};
    return {};
}

} // namespace modReadings
