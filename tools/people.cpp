#include "tools/people.h"

#include "core/clock.h"
#include "core/months.h"
#include "core/text.h"
#include "core/user_profile.h"
#include "numbers/essence.h"
#include "tools/excerpt.h"

#include <algorithm>

using modReadings::Person;

namespace {

/// A whole number in plain decimal within the limits.
std::optional<int> Number(const QString &text, int least, int most) {
    const bool digits = !text.isEmpty() && text.size() <= 4 &&
                        std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    const int value = digits ? text.toInt() : -1;
    return value >= least && value <= most ? std::optional(value) : std::nullopt;
}

/// The English month that `text` names or numbers; empty for none.
QString MonthName(const QString &text) {
    if (const auto number = Number(text, 1, 12))
        return QStringView(modReadings::englishMonths[static_cast<std::size_t>(*number) - 1])
            .toString();
    for (const std::u16string_view month : modReadings::englishMonths)
        if (text.compare(QStringView(month), Qt::CaseInsensitive) == 0)
            return QStringView(month).toString();
    return {};
}

bool HasYears(const std::u16string &name, bool (*lasts)(char16_t)) {
    return std::ranges::any_of(name, lasts);
}

/// The walk of the Essence repeats a name until the person's age is reached and has no
/// guard. The window behaves so; a program that scripts wait for must not.
bool RefuseEndlessEssence(const InputNames &names, QString &complaint) {
    using modReadings::profile;
    if (modReadings::Clock::Year() - modReadings::NumberFromText(profile.BirthYear) <= 0)
        return false;
    const auto refuse = [&](const char *input, const char *letters) {
        complaint =
            QStringLiteral(
                "%1 has no letter that the Essence can count; give a name with at least one of the "
                "letters %2")
                .arg(names(input), QLatin1StringView(letters));
        return true;
    };
    if (!HasYears(profile.FirstName, modReadings::LastsInFirstName))
        return refuse("first", "A to Z");
    if (!profile.MiddleName.empty() && !HasYears(profile.MiddleName, modReadings::LastsInFirstName))
        return refuse("middle", "A to Z");
    if (!HasYears(profile.LastName, modReadings::LastsInLastName))
        return refuse("last", "A to Z other than F");
    return false;
}

} // namespace

std::optional<Person> CheckPerson(const PersonInput &input, const InputNames &names,
                                  QString &complaint) {
    const auto reject = [&](const char *name, const QString &value,
                            const QString &allowed) -> std::optional<Person> {
        complaint = value.isEmpty()
                        ? QStringLiteral("%1 is missing or empty; %2").arg(names(name), allowed)
                        : QStringLiteral("%1: \"%2\" is not allowed; %3")
                              .arg(names(name), Excerpt(value), allowed);
        return std::nullopt;
    };

    if (input.first.isEmpty())
        return reject("first", {}, QStringLiteral("give the first name"));
    if (input.last.isEmpty())
        return reject("last", {}, QStringLiteral("give the last name"));
    const QString month = MonthName(input.month);
    if (month.isEmpty())
        return reject("month", input.month,
                      QStringLiteral("give an English month name or a number from 1 to 12"));
    const auto day = Number(input.day, 1, 31);
    if (!day)
        return reject("day", input.day, QStringLiteral("give a number from 1 to 31"));
    const auto year = Number(input.year, 1900, 2050);
    if (!year)
        return reject("year", input.year, QStringLiteral("give a number from 1900 to 2050"));

    const Person person{input.first, input.middle,          input.last,
                        month,       QString::number(*day), QString::number(*year)};
    modReadings::CaptureProfile(person);
    if (RefuseEndlessEssence(names, complaint))
        return std::nullopt;
    return person;
}
