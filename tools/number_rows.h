#pragma once

// All numbers of a person as one flat row, a column a number, without their readings.

#include "tools/formats.h"

#include <string>
#include <string_view>

/// Reads `person` for the present day, on a fresh store, and gives the numbers that clicks on
/// all topics show: those behind the second run of each calculator. One object on one line:
/// what JSON of a reading has before its topics, then the numbers.
std::string NumbersAsJson(const modReadings::UserProfile &person, const LineFacts &line);

/// The same as a row. What has no value is empty. What a terminal might act on in a name is
/// written out, so a row is one line. CSV puts quotation marks where they are needed; TSV has
/// none. The further members are the column "input", a JSON object.
std::string NumbersAsRow(Format format, const modReadings::UserProfile &person,
                         const LineFacts &line);

/// The row that stands in the place of a person who could not be read: its line, and what is
/// wrong in the column "error".
std::string ErrorAsRow(Format format, const LineFacts &line, std::string_view message);

/// The names of the columns.
std::string HeaderRow(Format format);
