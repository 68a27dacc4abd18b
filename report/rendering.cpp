#include "report/rendering.h"

#include "core/runtime_failure.h"

#include <algorithm>

namespace modReadings {

namespace {

/// Writes heading and blocks at the caret; the last block gets at least `closingBreaks`.
void WriteTopic(RichTextPane &pane, const Topic &topic, int closingBreaks) {
    // Only the Birthday heading can fail, while BirthDay is no number: then the whole
    // heading is missing and the rest follows in its colour without it.
    pane.SetColor(TopicInk);
    Attempt([&] { BoldHeading(pane, std::u16string(topic.heading) + HeadingNumberText(topic)); });

    const auto blocks = topic.Blocks();
    for (const Block &block : blocks) {
        const int breaks =
            &block == &blocks.back() ? std::max(block.breaks, closingBreaks) : block.breaks;
        AppendBlock(pane, block.before, store.*block.slot, breaks);
    }
}

} // namespace

void RenderTopic(RichTextPane &pane, const Topic &topic) {
    pane.SetText(u"");
    WriteTopic(pane, topic, 0);
}

void RunAndRenderTopic(RichTextPane &pane, const Topic &topic) {
    Attempt(topic.calculate);
    RenderTopic(pane, topic);
}

void RenderComprehensiveReading(RichTextPane &pane) {
    pane.SetText(u"");
    BoldHeading(pane, u"Orravane Comprehensive Reading");
    for (const Calculator calculate : passOrder) {
        Attempt(calculate);
        WriteTopic(pane, TopicOf(calculate), 2);
    }
}

} // namespace modReadings
