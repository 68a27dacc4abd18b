#pragma once

// What a JSON object of a person begins with.

#include "tools/formats.h"
#include "tools/json_text.h"

void WriteKey(OutsideJson &json, std::string_view name);
void WriteMember(OutsideJson &json, std::string_view name, std::string_view text);

/// The members of the captured person, the day, and the line and the further members if there
/// are any.
void WritePerson(OutsideJson &json, const modReadings::UserProfile &person,
                 std::chrono::year_month_day day, const LineFacts &line);
