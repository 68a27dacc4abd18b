#pragma once

// A reading as bytes: UTF-8 text, JSON or RTF. All text of the output is UTF-8.

#include "numbers/book.h"
#include "tools/reading.h"

#include <span>
#include <string>
#include <string_view>

enum class Format { Text, Json, Rtf };

/// Blocks as in the pane with plain line breaks, an empty line between topics.
std::string ReadingAsText(const PersonReading &reading);

/// One object on one line: the captured person, the day of the reading, and the topics
/// with their runs, whose line breaks are "\r\n".
std::string ReadingAsJson(const PersonReading &reading);

/// One document, an empty line between topics.
std::string ReadingAsRtf(const PersonReading &reading);

/// One of the three above.
std::string ReadingAs(Format format, const PersonReading &reading);

/// The object that stands in the place of a person who could not be read.
std::string ErrorAsJson(long long line, std::string_view message);

std::string BookAsText(std::span<const modReadings::BookEntry> book);
std::string BookAsJson(std::span<const modReadings::BookEntry> book);
