#pragma once

// The people that the report tool reads: what is allowed for each input, and the
// complaint where it is not.

#include "report/person.h"

#include <QString>

#include <optional>

/// The inputs of one person as text, before they are checked.
struct PersonInput {
    QString first;
    QString middle;
    QString last;
    QString month;
    QString day;
    QString year;
};

/// How the inputs are called where they come from, such as "--first" or "first".
struct InputNames {
    QString prefix;

    QString operator()(const char *input) const { return prefix + QLatin1StringView(input); }
};

/// Checks `input` against what the window's boxes and lists allow: names not empty, an
/// English month name or 1 to 12, a day from 1 to 31, a year from 1900 to 2050. Also
/// refuses a name whose Essence would never come to an end in the present year. Returns
/// the person, month by its English name, or sets `complaint` to one line that names the
/// input and what is allowed.
std::optional<modReadings::Person> CheckPerson(const PersonInput &input, const InputNames &names,
                                               QString &complaint);
