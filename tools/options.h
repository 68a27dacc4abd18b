#pragma once

// The command line of orravane-report.

#include "tools/formats.h"
#include "tools/people.h"

#include <QStringList>

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

struct Options {
    enum class Task { Person, Book, Batch, Help, Version };

    Task task = Task::Person;
    PersonInput person;
    Format format = Format::Text;
    std::optional<std::chrono::year_month_day> today;
    std::vector<std::u16string_view> topics; ///< captions, never empty
    QString batchFile;                       ///< "-" for standard input
    QString outputDir;                       ///< empty: none
    QString output;                          ///< empty: standard output
    QString help;                            ///< the text of --help
};

/// Whether all arguments behind the program's name are UTF-8, which their decoded form no
/// longer tells. If not, `complaint` is set to one line that names the option.
bool AreUtf8(int argc, const char *const *argv, QString &complaint);

/// The options of `arguments`, the program's name first; or nothing, with `complaint` set
/// to one line that names the option and what is allowed.
std::optional<Options> ParseOptions(const QStringList &arguments, QString &complaint);
