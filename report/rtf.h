#pragma once

// Rich Text Format, as small as the reports need it: one font, one colour, bold,
// paragraphs, and any Unicode character escaped for readers old and new.

#include "report/report.h"

#include <string>
#include <string_view>

namespace modReadings {

/// The font that the whole file is set in.
struct RtfFont {
    std::string family = "Verdana";
    int halfPoints = 18; ///< size in half points, as the format counts it
};

/// `report` as an RTF document in plain ASCII. Line breaks ("\r\n", "\n" or "\r") end
/// paragraphs; every paragraph, the last and empty ones too, is written with its end mark.
std::string ToRtf(const Report &report, const RtfFont &font = {});

// The same in pieces, for a document of many reports: its beginning, then bodies with
// rtfPageBreak between them, then rtfEnd.
std::string RtfBeginning(const RtfFont &font = {});
std::string RtfBody(const Report &report);
inline constexpr std::string_view rtfPageBreak = "\\b0\\page\r\n";
inline constexpr std::string_view rtfEnd = "}\r\n";

} // namespace modReadings
