#include "report/person.h"

#include "core/text.h"

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

UserProfile Captured(const Person &person) {
    return {UpperCase(Trimmed(person.firstName)),
            UpperCase(Trimmed(person.middleName)),
            UpperCase(Trimmed(person.lastName)),
            Trimmed(person.birthMonth),
            Trimmed(person.birthDay),
            Trimmed(person.birthYear)};
}

} // namespace modReadings
