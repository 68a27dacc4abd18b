#include "report/rendering.h"

#include "core/runtime_failure.h"

#include <algorithm>

namespace modReadings {

namespace {

/// Appends heading and blocks; the last block gets at least `closingBreaks`.
void AppendTopic(Report &report, const Topic &topic, int closingBreaks) {
    // Only the Birthday heading can fail, while BirthDay is no number: then the whole
    // heading is missing and the rest follows without it.
    Attempt([&] { BoldHeading(report, topic.heading, HeadingNumberText(topic)); });

    const auto blocks = topic.Blocks();
    for (const Block &block : blocks) {
        const int breaks =
            &block == &blocks.back() ? std::max(block.breaks, closingBreaks) : block.breaks;
        AppendBlock(report, block.before, store.*block.slot, breaks);
    }
}

} // namespace

Report RenderTopic(const Topic &topic) {
    Report report;
    report.reserve(1 + topic.Blocks().size());
    AppendTopic(report, topic, 0);
    return report;
}

Report RunAndRenderTopic(const Topic &topic) {
    Attempt(topic.calculate);
    return RenderTopic(topic);
}

Report RenderComprehensiveReading() {
    Report report;
    BoldHeading(report, comprehensiveReadingTitle);
    for (const Calculator calculate : passOrder) {
        Attempt(calculate);
        AppendTopic(report, TopicOf(calculate), 2);
    }
    return report;
}

} // namespace modReadings
