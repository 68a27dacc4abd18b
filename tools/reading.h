#pragma once

// One person's reading, made as the window makes it: the pass, then each topic by what a
// click on its node does.

#include "core/user_profile.h"
#include "report/report.h"

#include <chrono>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct TopicReading {
    std::u16string_view caption;
    std::u16string number; ///< the text behind the heading literal; empty where there is none
    modReadings::Report report;
};

/// All that an output format sees of a person.
struct PersonReading {
    modReadings::UserProfile person;
    std::chrono::year_month_day day; ///< the day for which the person is read
    std::vector<TopicReading> topics;
    modReadings::Report head{}; ///< above the topics in text and RTF; empty: none
};

/// The captions of all topics, in the order of the pass.
std::vector<std::u16string_view> AllCaptions();

/// The caption of the tree that is `caption` but for upper and lower case, a topic or the
/// Comprehensive Reading; empty for anything else. The view lives as long as the program.
std::u16string_view KnownCaption(std::u16string_view caption);

/// Reads `person` for the present day, on a fresh store. Renders the topics of `captions`,
/// which KnownCaption or AllCaptions gave, in their order. One day holds for all of them, even
/// when midnight passes meanwhile.
PersonReading ReadPerson(const modReadings::UserProfile &person,
                         std::span<const std::u16string_view> captions);
