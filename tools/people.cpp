#include "tools/people.h"

#include "core/clock.h"
#include "core/months.h"
#include "core/text.h"
#include "numbers/essence.h"
#include "report/person.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

using modReadings::NamePart;
using modReadings::UserProfile;

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

/// The walk of the Essence repeats a name until the person's age is reached and has no
/// limit. The window behaves so; a program that scripts wait for must not.
void RefuseEndlessEssence(const UserProfile &person, const QString &prefix) {
    const int age = modReadings::Clock::Year() - modReadings::NumberFromText(person.BirthYear);
    const auto endless = EndlessName(person, static_cast<modReadings::int16>(age));
    if (!endless)
        return;
    const auto [name, letters] = *endless == NamePart::First ? std::pair("first"_L1, "A to Z"_L1)
                                 : *endless == NamePart::Middle
                                     ? std::pair("middle"_L1, "A to Z"_L1)
                                     : std::pair("last"_L1, "A to Z other than F"_L1);
    throw Refusal(u"%1 has no letter that the Essence can count; give a name with at least one of "
                  "the letters %2"_s.arg(prefix + name, letters));
}

} // namespace

UserProfile CheckPerson(const PersonInput &input, const QString &prefix) {
    const auto refusal = [&](QLatin1StringView name, const QString &value, const QString &allowed) {
        return Refusal(value.isEmpty() ? u"%1 is missing or empty; %2"_s.arg(prefix + name, allowed)
                                       : u"%1: \"%2\" is not allowed; %3"_s.arg(
                                             prefix + name, Excerpt(value), allowed));
    };

    if (input.first.isEmpty())
        throw refusal("first"_L1, {}, u"give the first name"_s);
    if (input.last.isEmpty())
        throw refusal("last"_L1, {}, u"give the last name"_s);
    const QString month = MonthName(input.month);
    if (month.isEmpty())
        throw refusal("month"_L1, input.month,
                      u"give an English month name or a number from 1 to 12"_s);
    const auto day = Number(input.day, 1, 31);
    if (!day)
        throw refusal("day"_L1, input.day, u"give a number from 1 to 31"_s);
    const auto year = Number(input.year, 1900, 2050);
    if (!year)
        throw refusal("year"_L1, input.year, u"give a number from 1900 to 2050"_s);

    UserProfile person = modReadings::Captured({input.first, input.middle, input.last, month,
                                                QString::number(*day), QString::number(*year)});
    RefuseEndlessEssence(person, prefix);
    return person;
}
