#include "report/topic_tree.h"

#include "core/text.h"
#include "report/rendering.h"
#include "report/topics.h"

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

void DispatchClick(std::u16string_view caption, ReportWindow &window) {
    if (caption == captions::reset) {
        window.ShowInputPage();
        window.ResetInputs();
        return;
    }
    if (caption == captions::userInformation || caption == captions::enterTheInformation) {
        window.ShowInputPage();
        return;
    }
    if (caption == captions::help) {
        window.ShowHelpPage();
        return;
    }

    if (!window.ValidateInputs())
        return;
    if (const Topic *topic = FindTopic(caption))
        window.WriteReport([topic](RichTextPane &pane) { RunAndRenderTopic(pane, *topic); });
    else if (caption == captions::comprehensiveReading)
        window.WriteReport(RenderComprehensiveReading);
    else
        return; // the root "Numerology" alone
    window.ShowReportPage();
}

} // namespace modReadings
