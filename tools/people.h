#pragma once

// The people that the report tool reads: what is allowed for each input.

#include "core/user_profile.h"
#include "report/document.h"

#include <QString>

/// The inputs of one person as text, before they are checked.
struct PersonInput {
    QString first;
    QString middle;
    QString last;
    QString month;
    QString day;
    QString year;
    QString date{}; ///< YYYY-MM-DD in place of month, day and year; empty otherwise
};

/// What messages call the inputs: such as "--first" on the command line and "first" in a batch.
struct InputNames {
    /// The names of the members or columns of a batch.
    InputNames() : InputNames(QString()) {}

    /// The same with `prefix` in front.
    explicit InputNames(const QString &prefix);

    /// Those of a batch, made once.
    static const InputNames &OfColumns();

    QString first;
    QString middle;
    QString last;
    QString month;
    QString day;
    QString year;
    QString date;
};

/// The names of `input`, as they were typed.
modReadings::GivenName GivenNameOf(const PersonInput &input);

/// `input` with the letters of its names composed (Unicode NFC).
PersonInput Composed(PersonInput input);

/// What to tell of a person whose captured names would be others if they were composed: a line
/// that names the inputs, as `names` calls them, and what helps. Empty where composing changes
/// nothing.
QString DecomposedRemark(const PersonInput &input,
                         const InputNames &names = InputNames::OfColumns());

/// Checks `input` against what the window's boxes and lists allow: names not empty, an
/// English month name, its abbreviation or 1 to 12, a day from 1 to 31, a year from 1900 to
/// 2050; whether the month has that day is not asked. Also refuses a name that is too long for
/// its sums, and one whose Essence would never come to an end in the present year. Returns
/// the person captured as the window does it, with the English name of the month. Throws
/// Refusal with a line that names the input as `names` has it, and says what is allowed.
modReadings::UserProfile CheckPerson(const PersonInput &input,
                                     const InputNames &names = InputNames::OfColumns());
