#pragma once

// How GoogleTest shows the runs of a report where two differ.

#include "report/report.h"

#include <ostream>
#include <string>

namespace modReadings {

/// The name of a run in fixtures, which have a member called Run.
using ReportRun = Run;

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

inline void PrintTo(const Run &run, std::ostream *stream) {
    *stream << (run.bold ? "bold \"" : "plain \"") << Readable(run.text) << '"';
}

} // namespace modReadings
