#pragma once

// The options of orravane-report, the only list of them: the parser, --help, the completions of
// the shells and the check of the man page are made from it. A new option is a row here, a
// member of Options that ParseOptions fills, and a paragraph of the man page. Where the values of
// an option are names, these stand in a table beside their enumeration, such as formatNames.

#include <span>
#include <string_view>

enum class OptionId {
    First,
    Middle,
    Last,
    Month,
    Day,
    Year,
    Date,
    Batch,
    Delimiter,
    FirstLine,
    MaxErrors,
    Jobs,
    OutputDir,
    NameTemplate,
    NoClobber,
    Today,
    Normalize,
    Topic,
    Numbers,
    Explain,
    Book,
    Format,
    Head,
    NoHead,
    Paper,
    Output,
    Quiet,
    Summary,
    ListTopics,
    Completion,
    Help,
    Version
};

/// Under which heading of --help an option stands, in the order of the headings.
enum class OptionGroup { OnePerson, ManyPeople, WhatToRead, WhatToWrite, Other };

/// What a shell can offer as the value of an option.
enum class ValueKind { None, Text, Month, Number, Date, File, Folder, Format, Topic, Shell, Paper };

/// The tasks with which an option goes, as bits of OptionRow::tasks.
namespace goesWith {
inline constexpr unsigned person = 1;
inline constexpr unsigned batch = 2;
inline constexpr unsigned book = 4;
inline constexpr unsigned reading = person | batch;
inline constexpr unsigned everything = person | batch | book;
} // namespace goesWith

struct OptionRow {
    OptionId id;
    OptionGroup group;
    std::string_view name;  ///< without its dashes
    char letter;            ///< of the short form; 0: none
    std::string_view value; ///< what --help calls the value; empty: the option takes none
    ValueKind kind;
    unsigned tasks; ///< bits of goesWith
    bool repeatable;
    std::string_view help; ///< sentences for --help, and for a message about a wrong value
};

/// All options, in the order of --help.
std::span<const OptionRow> OptionTable();

/// The row of one option.
const OptionRow &RowOf(OptionId id);

/// What --help prints above the options of a group.
std::string_view HeadingOf(OptionGroup group);
