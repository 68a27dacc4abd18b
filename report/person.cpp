#include "report/person.h"

#include "core/text.h"
#include "core/user_profile.h"

namespace modReadings {

namespace {

std::u16string Trimmed(const QString &text) {
    return std::u16string(TrimBlanks(text.toStdU16String()));
}

std::u16string UpperCase(const std::u16string &text) {
    return QString::fromStdU16String(text).toUpper().toStdU16String(); // Unicode's, not QLocale's
}

} // namespace

void CaptureProfile(const Person &person) {
    profile.FirstName = UpperCase(Trimmed(person.firstName));
    profile.MiddleName = UpperCase(Trimmed(person.middleName));
    profile.LastName = UpperCase(Trimmed(person.lastName));
    profile.BirthMonth = Trimmed(person.birthMonth);
    profile.BirthDay = Trimmed(person.birthDay);
    profile.BirthYear = Trimmed(person.birthYear);
}

} // namespace modReadings
