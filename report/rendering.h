#pragma once

// Turns the slots of the store into the text of a pane: one topic, or all of them as the
// Comprehensive Reading. The rendering computes nothing of its own; what a calculator
// left in the slots, stale or empty, is what is written.

#include "report/rich_text.h"
#include "report/topics.h"

namespace modReadings {

/// What a click on a topic does: runs the topic's calculator, then renders it. A
/// calculator that gives up leaves its slots as they stand and is written all the same.
void RunAndRenderTopic(RichTextPane &pane, const Topic &topic);

/// Replaces the text of `pane` by the topic as the store holds it, without running its
/// calculator. The bold flag is off afterwards, the caret stands at the end.
void RenderTopic(RichTextPane &pane, const Topic &topic);

/// Replaces the text of `pane` by the whole report: a title, then the 22 topics in the
/// order of the pass, each calculated directly before it is written. Every topic, the
/// last one too, ends in two line breaks.
void RenderComprehensiveReading(RichTextPane &pane);

} // namespace modReadings
