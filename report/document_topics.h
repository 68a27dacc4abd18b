#pragma once

// The topics of a document: their readings in parts, their rows in the table at a glance, and
// those that are in force for a while. All of it is read from the store as a pass has left it.

#include "report/document.h"

#include <chrono>
#include <vector>

namespace modReadings {

/// The 22 topics in the order of the pass, each calculated once more before it is read. `age` is
/// that on `day`, negative before birth. Throws RuntimeFailure where BirthDay is no number.
std::vector<DocumentTopic> TopicsFor(std::chrono::year_month_day day, int16 age);

/// The topic that `calculate` fills, in a document that has its topics.
const DocumentTopic &TopicIn(const Document &document, Calculator calculate);
DocumentTopic &TopicIn(Document &document, Calculator calculate);

/// The table at a glance of a document that has its topics.
std::vector<NumberGroup> Glance(const Document &document);

/// The cycles that are in force on the day of a document that has its topics: year, month and
/// day, and the Essence unless the day is before the birth.
std::vector<InForce> CyclesInForce(const Document &document);

} // namespace modReadings
