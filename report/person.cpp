#include "report/person.h"

#include "core/text.h"
#include "core/user_profile.h"

namespace modReadings {

namespace {

std::u16string Trimmed(const QString &text) {
    return std::u16string(TrimBlanks(text.toStdU16String()));
}

std::u16string UpperCase(const std::u16string &text) {
    // Unicode's rules, not QLocale's. By way of a view: QString's own conversion from UTF-16
    // would take marks of byte order out of a name.
    return QStringView(text).toString().toUpper().toStdU16String();
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
