#include "tools/people.h"

#include "core/clock.h"
#include "core/letters.h"
#include "core/months.h"
#include "core/runtime_failure.h"
#include "core/text.h"
#include "numbers/essence.h"
#include "report/person.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <QRegularExpression>

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

/// The English month that `text` names, shortens or numbers; empty for none.
QString MonthName(const QString &text) {
    if (const auto number = Number(text, 1, 12))
        return QStringView(modReadings::englishMonths[static_cast<std::size_t>(*number) - 1])
            .toString();
    const QStringView word = text.endsWith(u'.') ? QStringView(text).chopped(1) : text;
    for (const std::u16string_view month : modReadings::englishMonths) {
        const QStringView name(month);
        const bool shortened =
            word.size() == 3 || word.compare("sept"_L1, Qt::CaseInsensitive) == 0;
        if (text.compare(name, Qt::CaseInsensitive) == 0 ||
            (shortened && name.startsWith(word, Qt::CaseInsensitive)))
            return name.toString();
    }
    return {};
}

/// `input` with its date in month, day and year, if it has one in one piece.
PersonInput WithDateInParts(PersonInput input, const InputNames &names) {
    if (input.date.isEmpty())
        return input;
    for (const QString &part : {input.month, input.day, input.year})
        if (!part.isEmpty())
            throw Refusal(u"%1 does not go with %2, %3 and %4; leave one of them out"_s.arg(
                names.date, names.month, names.day, names.year));
    static const QRegularExpression form(u"\\A([0-9]{4})-([0-9]{2})-([0-9]{2})\\z"_s);
    const QRegularExpressionMatch match = form.match(input.date);
    if (!match.hasMatch() || !Number(match.captured(1), 1900, 2050) ||
        !Number(match.captured(2), 1, 12) || !Number(match.captured(3), 1, 31))
        throw Refusal(
            u"%1: \"%2\" is not allowed; give YYYY-MM-DD with a year from 1900 to 2050, "
            "a month from 01 to 12 and a day from 01 to 31"_s.arg(names.date, Excerpt(input.date)));
    input.year = match.captured(1);
    input.month = match.captured(2);
    input.day = match.captured(3);
    return input;
}

/// Refuses a name with a sum that int16 cannot hold, which would silently count 0, and one of
/// more characters than it can count.
void RefuseTooLong(const UserProfile &person, const InputNames &names) {
    const std::u16string whole = person.FirstName + person.MiddleName + person.LastName;
    const bool fits = modReadings::Attempt([&] {
        modReadings::Length(whole);
        modReadings::NameLetterSum(whole);
        // The Rational Thought adds the day to the first name.
        modReadings::Add(modReadings::NameLetterSum(person.FirstName),
                         modReadings::NumberFromText(person.BirthDay));
    });
    if (!fits)
        throw Refusal(
            u"the name is too long, its letters add up to more than 32767 or it has more "
            "characters; shorten %1, %2 or %3"_s.arg(names.first, names.middle, names.last));
}

/// The walk of the Essence repeats a name until the person's age is reached and has no
/// limit. The window behaves so; a program that scripts wait for must not.
void RefuseEndlessEssence(const UserProfile &person, const InputNames &names) {
    const int age = modReadings::Clock::Year() - modReadings::NumberFromText(person.BirthYear);
    const auto endless = EndlessName(person, static_cast<modReadings::int16>(age));
    if (!endless)
        return;
    const auto [name, letters] = *endless == NamePart::First ? std::pair(names.first, "A to Z"_L1)
                                 : *endless == NamePart::Middle
                                     ? std::pair(names.middle, "A to Z"_L1)
                                     : std::pair(names.last, "A to Z other than F"_L1);
    throw Refusal(u"%1 has no letter that the Essence can count; give a name with at least one of "
                  "the letters %2"_s.arg(name, letters));
}

} // namespace

modReadings::GivenName GivenNameOf(const PersonInput &input) {
    return {input.first.toStdU16String(), input.middle.toStdU16String(),
            input.last.toStdU16String()};
}

InputNames::InputNames(const QString &prefix)
    : first(prefix + "first"_L1), middle(prefix + "middle"_L1), last(prefix + "last"_L1),
      month(prefix + "month"_L1), day(prefix + "day"_L1), year(prefix + "year"_L1),
      date(prefix.isEmpty() ? u"birthdate"_s : prefix + "date"_L1) {}

const InputNames &InputNames::OfColumns() {
    static const InputNames names;
    return names;
}

PersonInput Composed(PersonInput input) {
    for (QString *name : {&input.first, &input.middle, &input.last})
        *name = name->normalized(QString::NormalizationForm_C);
    return input;
}

QString DecomposedRemark(const PersonInput &input, const InputNames &names) {
    const auto captured = [](const PersonInput &person) {
        return modReadings::Captured({person.first, person.middle, person.last, {}, {}, {}});
    };
    const PersonInput composedInput = Composed(input);
    if (composedInput.first == input.first && composedInput.middle == input.middle &&
        composedInput.last == input.last)
        return {};
    const UserProfile typed = captured(input);
    const UserProfile composed = captured(composedInput);
    QStringList decomposed;
    for (const auto &[name, slot] : {std::pair(&names.first, &UserProfile::FirstName),
                                     {&names.middle, &UserProfile::MiddleName},
                                     {&names.last, &UserProfile::LastName}})
        if (typed.*slot != composed.*slot)
            decomposed << *name;
    if (decomposed.isEmpty())
        return {};
    return decomposed.join(u", "_s) +
           u": not in composed letters (Unicode NFC), which can count differently; --normalize "
           "composes them"_s;
}

UserProfile CheckPerson(const PersonInput &given, const InputNames &names) {
    const auto refusal = [&](const QString &name, const QString &value, const QString &allowed) {
        return Refusal(value.isEmpty()
                           ? u"%1 is missing or empty; %2"_s.arg(name, allowed)
                           : u"%1: \"%2\" is not allowed; %3"_s.arg(name, Excerpt(value), allowed));
    };

    if (given.first.isEmpty())
        throw refusal(names.first, {}, u"give the first name"_s);
    if (given.last.isEmpty())
        throw refusal(names.last, {}, u"give the last name"_s);
    const PersonInput input = WithDateInParts(given, names);
    const QString month = MonthName(input.month);
    if (month.isEmpty())
        throw refusal(names.month, input.month,
                      u"give an English month name, its abbreviation or a number from 1 to 12"_s);
    const auto day = Number(input.day, 1, 31);
    if (!day)
        throw refusal(names.day, input.day, u"give a number from 1 to 31"_s);
    const auto year = Number(input.year, 1900, 2050);
    if (!year)
        throw refusal(names.year, input.year, u"give a number from 1900 to 2050"_s);

    UserProfile person = modReadings::Captured({input.first, input.middle, input.last, month,
                                                QString::number(*day), QString::number(*year)});
    RefuseTooLong(person, names);
    RefuseEndlessEssence(person, names);
    return person;
}
