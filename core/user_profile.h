#pragma once

// The person being read: six texts. The calculators read the one profile of the process.
// It changes when Proceed captures the boxes of the window, or when the report tool reads
// its next person; editing the boxes changes nothing here.

#include <string>

namespace modReadings {

struct UserProfile {
    std::u16string FirstName;  ///< blanks trimmed, upper case
    std::u16string MiddleName; ///< the same; empty where there is none
    std::u16string LastName;   ///< the same
    std::u16string BirthMonth; ///< month name as the list offers it, trimmed
    std::u16string BirthDay;   ///< decimal text, "1" to "31"
    std::u16string BirthYear;  ///< decimal text, "1900" to "2050"
};

/// One of the three names of a person.
enum class NamePart { First, Middle, Last };

/// The person whom the calculators read; empty until the first pass.
inline UserProfile profile;

/// First, middle and last name of the profile, joined with nothing between them.
inline std::u16string WholeName() {
    return profile.FirstName + profile.MiddleName + profile.LastName;
}

} // namespace modReadings
