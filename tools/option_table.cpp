#include "tools/option_table.h"

#include <algorithm>
#include <array>

namespace {

using enum OptionId;
using enum OptionGroup;

constexpr std::array table{
    OptionRow{First, OnePerson, "first", 0, "NAME", ValueKind::Text, goesWith::person, false,
              "First name."},
    OptionRow{Middle, OnePerson, "middle", 0, "NAME", ValueKind::Text, goesWith::person, false,
              "Middle name."},
    OptionRow{Last, OnePerson, "last", 0, "NAME", ValueKind::Text, goesWith::person, false,
              "Last name."},
    OptionRow{Month, OnePerson, "month", 0, "MONTH", ValueKind::Month, goesWith::person, false,
              "Birth month: an English month name, its abbreviation, or 1 to 12."},
    OptionRow{Day, OnePerson, "day", 0, "N", ValueKind::Number, goesWith::person, false,
              "Birth day: 1 to 31."},
    OptionRow{Year, OnePerson, "year", 0, "N", ValueKind::Number, goesWith::person, false,
              "Birth year: 1900 to 2050."},
    OptionRow{Date, OnePerson, "date", 0, "YYYY-MM-DD", ValueKind::Date, goesWith::person, false,
              "Birth date, in place of --month, --day and --year."},

    OptionRow{
        Batch, ManyPeople, "batch", 0, "FILE", ValueKind::File, goesWith::batch, false,
        "Read many people, one per line: JSON Lines, or CSV with a header row, compressed with "
        "gzip or not. - is standard input. More files may follow. Prints one JSON object per "
        "person, if no option says otherwise."},
    OptionRow{Delimiter, ManyPeople, "delimiter", 0, "CHAR", ValueKind::Text, goesWith::batch,
              false,
              "Read CSV with this separator: one character, or the word tab. Default: a comma or a "
              "tab, whichever the header has."},
    OptionRow{FirstLine, ManyPeople, "first-line", 0, "N", ValueKind::Number, goesWith::batch,
              false,
              "The number of the first line, if the input is a part of a longer one. "
              "Default: 1."},
    OptionRow{MaxErrors, ManyPeople, "max-errors", 0, "N", ValueKind::Number, goesWith::batch,
              false, "Stop at the Nth wrong line. Default: read on to the end."},
    OptionRow{Jobs, ManyPeople, "jobs", 0, "N", ValueKind::Number, goesWith::batch, false,
              "Use N processes, 1 to 256. The output is the same. Default: 1."},
    OptionRow{
        OutputDir, ManyPeople, "output-dir", 0, "DIR", ValueKind::Folder, goesWith::batch, false,
        "Write one file per person into this directory, named by line number: text (default), "
        "rtf, html, pdf or markdown."},
    OptionRow{NameTemplate, ManyPeople, "name-template", 0, "TEMPLATE", ValueKind::Text,
              goesWith::batch, false,
              "The names of these files, made of {first}, {middle}, {last} and {line}; {line} "
              "must come first or last. Default: person-{line}."},
    OptionRow{NoClobber, ManyPeople, "no-clobber", 0, "", ValueKind::None, goesWith::batch, false,
              "Keep files that are already in the directory."},

    OptionRow{Today, WhatToRead, "today", 0, "YYYY-MM-DD", ValueKind::Date, goesWith::reading,
              false, "Read for this day instead of today."},
    OptionRow{Normalize, WhatToRead, "normalize", 0, "", ValueKind::None, goesWith::reading, false,
              "Compose the letters of the names (Unicode NFC) before they count: an E with a "
              "separate accent becomes one letter."},
    OptionRow{Topic, WhatToRead, "topic", 0, "CAPTION", ValueKind::Topic, goesWith::reading, true,
              "Read this topic; may be repeated. --list-topics shows the captions. "
              "Default: all topics."},
    OptionRow{Numbers, WhatToRead, "numbers", 0, "", ValueKind::None, goesWith::reading, false,
              "Print the numbers without the readings, one row per person: json (default), csv "
              "or tsv."},
    OptionRow{Explain, WhatToRead, "explain", 0, "", ValueKind::None, goesWith::reading, false,
              "Print how the numbers come about, letter by letter and step by step, instead of "
              "the readings: text or json."},
    OptionRow{Book, WhatToRead, "book", 0, "", ValueKind::None, goesWith::book, false,
              "Print every reading and every fixed text of the program."},

    OptionRow{OptionId::Format, WhatToWrite, "format", 'f', "FORMAT", ValueKind::Format,
              goesWith::everything, false,
              "text (default), json (default of a batch without --output-dir), rtf, html, pdf or "
              "markdown; with --numbers json, csv or tsv."},
    OptionRow{Head, WhatToWrite, "head", 0, "", ValueKind::None, goesWith::reading, false,
              "Write name, date of birth and date of the reading above the first topic, in text "
              "and rtf. A batch has this by default."},
    OptionRow{NoHead, WhatToWrite, "no-head", 0, "", ValueKind::None, goesWith::reading, false,
              "Leave these lines out in a batch."},
    OptionRow{OptionId::Paper, WhatToWrite, "paper", 0, "SIZE", ValueKind::Paper, goesWith::reading,
              false, "The pages of a PDF: a4 (default) or letter."},
    OptionRow{Output, WhatToWrite, "output", 'o', "FILE", ValueKind::File, goesWith::everything,
              false,
              "Write to this file instead of standard output. It appears complete or not at all. "
              "- is standard output."},

    OptionRow{Quiet, WhatToWrite, "quiet", 'q', "", ValueKind::None, goesWith::everything, false,
              "At a terminal, show neither progress nor summary. Errors are still shown."},
    OptionRow{Summary, WhatToWrite, "summary", 0, "", ValueKind::None, goesWith::batch, false,
              "Write a summary of the batch to standard error, even if that is not a terminal."},

    OptionRow{ListTopics, Other, "list-topics", 0, "", ValueKind::None, goesWith::everything, false,
              "Print the captions of the topics, one per line."},
    OptionRow{Completion, Other, "completion", 0, "SHELL", ValueKind::Shell, goesWith::everything,
              false, "Print the completion script for a shell: bash, zsh or fish."},
    OptionRow{Help, Other, "help", 'h', "", ValueKind::None, goesWith::everything, false,
              "Show this help."},
    OptionRow{Version, Other, "version", 'V', "", ValueKind::None, goesWith::everything, false,
              "Show the version."},
};

} // namespace

std::span<const OptionRow> OptionTable() { return table; }

const OptionRow &RowOf(OptionId id) { return *std::ranges::find(table, id, &OptionRow::id); }

std::string_view HeadingOf(OptionGroup group) {
    switch (group) {
    case OnePerson:
        return "One person";
    case ManyPeople:
        return "Many people";
    case WhatToRead:
        return "What to read";
    case WhatToWrite:
        return "What to write";
    case OptionGroup::Other:
        break;
    }
    return "Other";
}
