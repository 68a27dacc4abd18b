#pragma once

// How the numbers of one person come about, so that they can be checked by hand.

#include "core/trace.h"
#include "numbers/name_sheet.h"
#include "tools/formats.h"

/// How one topic came about.
struct TopicExplanation {
    std::u16string_view caption;
    std::u16string number; ///< behind the heading, as its slot holds it; empty where there is none
    modReadings::Trace trace;
};

struct Explanation {
    modReadings::UserProfile person;
    std::chrono::year_month_day day; ///< for which the person is read
    modReadings::NameSheet name;
    std::vector<TopicExplanation> topics;
};

/// Reads `person` as ReadPerson does. What each topic tells is of the run whose numbers its
/// reading shows. The Comprehensive Reading is all topics in the order of the pass.
Explanation Explain(const modReadings::UserProfile &person,
                    std::span<const std::u16string_view> captions);

/// One character of a name as a row of characters shows it: "A", "blank", or "U+0301" for one that
/// cannot stand by itself, acts on a terminal or runs from right to left.
std::string Shown(char16_t character);

/// A sheet: the person, the name letter by letter, a block a topic. Its lines have at most 79
/// characters, but for a name that is longer by itself.
std::string ExplanationAsText(const Explanation &explanation);

/// One object on one line: what JSON of a reading has before its topics, the name and the
/// topics.
std::string ExplanationAsJson(const Explanation &explanation, const LineFacts &line = {});
