#pragma once

// One person's report, made as the window makes it: capture, the pass, then each topic
// by what a click on its node does.

#include "report/person.h"
#include "report/run_list.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

struct TopicReading {
    std::u16string_view caption;
    std::u16string number; ///< the text behind the heading literal; empty where there is none
    std::vector<modReadings::Run> runs;
};

/// The captions of all topics, in the order of the pass.
std::vector<std::u16string_view> AllCaptions();

/// The caption of the tree that is exactly `caption`, a topic or the Comprehensive
/// Reading; empty for anything else. The view lives as long as the program.
std::u16string_view KnownCaption(std::u16string_view caption);

/// Reads `person` on a fresh store and renders the topics of `captions`, which are known
/// ones, in their order.
std::vector<TopicReading> ReadPerson(const modReadings::Person &person,
                                     std::span<const std::u16string_view> captions);
