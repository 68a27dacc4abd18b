#pragma once

// The people that the report tool reads: what is allowed for each input.

#include "core/user_profile.h"

#include <QString>

/// The inputs of one person as text, before they are checked.
struct PersonInput {
    QString first;
    QString middle;
    QString last;
    QString month;
    QString day;
    QString year;
};

/// Checks `input` against what the window's boxes and lists allow: names not empty, an
/// English month name or 1 to 12, a day from 1 to 31, a year from 1900 to 2050. Also
/// refuses a name whose Essence would never come to an end in the present year. Returns
/// the person captured as the window does it, with the English name of the month. Throws
/// Refusal with a line that names the input, with `prefix` in front ("--first" on the
/// command line, "first" in a batch), and says what is allowed.
modReadings::UserProfile CheckPerson(const PersonInput &input, const QString &prefix = {});
