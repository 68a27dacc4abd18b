#pragma once

// A reading as bytes: UTF-8 text, JSON, RTF, or a document as HTML or Markdown; and the book of all
// texts. All text of the output is UTF-8.

#include "numbers/book.h"
#include "report/document.h"
#include "tools/names.h"
#include "tools/reading.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

enum class Format { Text, Json, Rtf, Html, Pdf, Markdown, Csv, Tsv };

inline constexpr auto formatNames = std::to_array<Named<Format>>({{"text", Format::Text},
                                                                  {"json", Format::Json},
                                                                  {"rtf", Format::Rtf},
                                                                  {"html", Format::Html},
                                                                  {"pdf", Format::Pdf},
                                                                  {"markdown", Format::Markdown},
                                                                  {"csv", Format::Csv},
                                                                  {"tsv", Format::Tsv}});

/// Whether it is a document of one person to hand over, which holds all topics and more.
constexpr bool IsDocument(Format format) {
    return format == Format::Html || format == Format::Pdf || format == Format::Markdown;
}

/// Whether it is a table of numbers, a row a person.
constexpr bool IsTable(Format format) { return format == Format::Csv || format == Format::Tsv; }

/// Who is read, as it stands above the first topic: the names, the dates of birth and of the
/// reading. What a terminal might act on in a name is written out.
modReadings::Report HeadOf(const modReadings::UserProfile &person, std::chrono::year_month_day day);

/// "2026-11-21".
std::string IsoDate(std::chrono::year_month_day date);

/// The head, if there is one, and blocks as in the pane with plain line breaks, an empty line
/// between topics.
std::string ReadingAsText(const PersonReading &reading);

/// What else is known of a person or an error in a batch.
struct LineFacts {
    long long number = 0; ///< of the line, from 1 on; 0 outside a batch
    std::string further;  ///< the person's further members or columns, a JSON object; or empty
    modReadings::GivenName given{}; ///< the names as they stand in the input
};

/// One object on one line: the captured person, the day of the reading, the line and the
/// further members if there are any, and the topics with their runs, whose line breaks are
/// "\r\n".
std::string ReadingAsJson(const PersonReading &reading, const LineFacts &line = {});

/// One document: the head, if there is one, and the topics, an empty line between topics.
std::string ReadingAsRtf(const PersonReading &reading);

/// What ReadingAsRtf puts between its beginning and its end, for a document of many.
std::string ReadingAsRtfBody(const PersonReading &reading);

/// One of the three above: `format` is Text, Json or Rtf.
std::string ReadingAs(Format format, const PersonReading &reading);

/// The document of `person`, read for the present day: as Markdown, or as HTML, of which a PDF
/// is made too.
std::string DocumentAs(Format format, const modReadings::UserProfile &person,
                       const modReadings::GivenName &given);

/// The object that stands in the place of a person who could not be read.
std::string ErrorAsJson(const LineFacts &line, std::string_view message);

std::string BookAsText(std::span<const modReadings::BookEntry> book);
std::string BookAsJson(std::span<const modReadings::BookEntry> book);
