#pragma once

// The command line of orravane-report.

#include "report/pdf_engine.h"
#include "tools/completion.h"
#include "tools/file_names.h"
#include "tools/formats.h"
#include "tools/names.h"
#include "tools/people.h"
#include "tools/progress.h"

#include <QStringList>

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

inline constexpr auto paperNames =
    std::to_array<Named<Paper>>({{"a4", Paper::A4}, {"letter", Paper::Letter}});

struct Options {
    enum class Task { Person, Book, Batch, ListTopics, Completion, Help, Version };

    Task task = Task::Person;
    PersonInput person;
    Format format = Format::Text;
    std::optional<std::chrono::year_month_day> today;
    std::vector<std::u16string_view> topics; ///< captions, never empty
    bool numbers = false;                    ///< the numbers alone, a row per person
    bool explain = false;                    ///< how the numbers come about
    bool normalize = false;                  ///< whether names are composed first
    bool head = false;                       ///< whether text and RTF say who is read
    QStringList batchFiles;                  ///< "-" for standard input
    std::optional<char> delimiter;           ///< of CSV; none: found out
    long long firstLine = 1;                 ///< the number of the input's first line
    std::optional<long long> maxErrors;      ///< at how many wrong lines a batch gives up
    int jobs = 1;                            ///< how many processes work on a batch
    QString outputDir;                       ///< empty: none
    FileNames fileNames;                     ///< of the files in it
    Paper paper = Paper::A4;                 ///< of a PDF
    bool noClobber = false;                  ///< whether files stay that are in it
    QString output;                          ///< empty: standard output
    Progress::Verbosity verbosity = Progress::Verbosity::Person;
    Shell shell = Shell::Bash; ///< of Task::Completion
};

/// Throws Refusal, naming the option, unless all arguments behind the program's name are
/// UTF-8. It has to look at the bytes: once decoded, a wrong byte looks like a character
/// that somebody typed.
void RequireUtf8(int argc, const char *const *argv);

/// The options of `arguments`, the program's name first. Throws Refusal with a line that
/// names the option and what is allowed.
Options ParseOptions(const QStringList &arguments);
