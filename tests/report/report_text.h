#pragma once

// Reports as the tests look at them: the runs of a pane, readable where two differ, and
// without the empty writes, which leave no trace in a text.

#include "report/run_list.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace modReadings {

/// The names of runs in tests: GoogleTest's fixtures have a member called Run.
using ReportRun = Run;
using ReportRuns = std::vector<Run>;

/// A text that a terminal can show: ASCII as it is, all else as numbers.
inline std::string Readable(std::u16string_view text) {
    std::string shown;
    for (const char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F)
            shown += static_cast<char>(unit);
        else if (unit == u'\r')
            shown += "\\r";
        else if (unit == u'\n')
            shown += "\\n";
        else
            shown += "<" + std::to_string(static_cast<unsigned>(unit)) + ">";
    }
    return shown;
}

/// How GoogleTest shows a run.
inline void PrintTo(const Run &run, std::ostream *stream) {
    *stream << (run.bold ? "bold " : "plain ") << int{run.ink.red} << ',' << int{run.ink.green}
            << ',' << int{run.ink.blue} << " \"" << Readable(run.text) << '"';
}

inline std::vector<Run> WithoutEmptyRuns(std::vector<Run> runs) {
    std::erase_if(runs, [](const Run &run) { return run.text.empty(); });
    return runs;
}

} // namespace modReadings
