#pragma once

// Turns the slots of the store into a report: one topic, or all of them as the
// Comprehensive Reading. The rendering computes nothing of its own; what a calculator
// left in the slots, stale or empty, is what is written.

#include "report/report.h"
#include "report/topics.h"

namespace modReadings {

/// The title of the whole report, and of the document that is made of it.
inline constexpr std::u16string_view comprehensiveReadingTitle = u"Orravane Comprehensive Reading";

/// What a click on a topic shows: runs the topic's calculator, then renders it. A
/// calculator that gives up leaves its slots as they stand and is written all the same.
Report RunAndRenderTopic(const Topic &topic);

/// The topic as the store holds it, without a run of its calculator.
Report RenderTopic(const Topic &topic);

/// The whole report: a title, then the 22 topics in the order of the pass, each calculated
/// directly before it is written. Every topic, the last one too, ends in two line breaks.
Report RenderComprehensiveReading();

} // namespace modReadings
