#pragma once

// A reading as bytes: UTF-8 text, JSON or RTF. All text of the output is UTF-8.

#include "numbers/book.h"
#include "report/person.h"
#include "tools/reading.h"

#include <QString>

#include <optional>
#include <span>
#include <string>
#include <string_view>

enum class Format { Text, Json, Rtf };

/// `text` in UTF-8; a surrogate without its partner becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// `bytes` as text, or nothing when they are not UTF-8.
std::optional<QString> FromUtf8(std::string_view bytes);

/// Blocks as in the pane with plain line breaks, an empty line between topics.
std::string ReadingsAsText(std::span<const TopicReading> readings);

/// One object on one line: the captured person, the day of the reading, and the topics
/// with their runs, whose line breaks are "\r\n".
std::string ReadingsAsJson(std::span<const TopicReading> readings);

/// One document, an empty line between topics.
std::string ReadingsAsRtf(std::span<const TopicReading> readings);

/// One of the three above.
std::string ReadingsAs(Format format, std::span<const TopicReading> readings);

/// The object that stands in the place of a person who could not be read.
std::string ErrorAsJson(long long line, std::string_view complaint);

std::string BookAsText(std::span<const modReadings::BookEntry> book);
std::string BookAsJson(std::span<const modReadings::BookEntry> book);
