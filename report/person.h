#pragma once

// One person's inputs as typed and picked, and their capture. The window and the report
// tool capture through here, so both read the same person the same way.

#include "core/user_profile.h"

#include <QString>

namespace modReadings {

struct Person {
    QString firstName;
    QString middleName;
    QString lastName;
    QString birthMonth;
    QString birthDay;
    QString birthYear;
};

/// The profile of `person`: blanks (U+0020) trimmed at both ends, the names upper-cased by
/// Unicode's rules whatever the locale, the dates as they stand.
UserProfile Captured(const Person &person);

} // namespace modReadings
