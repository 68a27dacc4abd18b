#pragma once

// Rich Text Format, as small as the reports need it: one font, the colours in use, bold,
// paragraphs, and any Unicode character escaped for readers old and new.

#include "report/run_list.h"

#include <span>
#include <string>

namespace modReadings {

/// The font that the whole file is set in.
struct RtfFont {
    std::string family = "Verdana";
    int halfPoints = 18; ///< size in half points, as the format counts it
};

/// `runs` as an RTF document in plain ASCII. Line breaks ("\r\n", "\n" or "\r") end
/// paragraphs; every paragraph, the last and empty ones too, is written with its end mark.
/// A run in the default black keeps the reader's automatic colour.
std::string ToRtf(std::span<const Run> runs, const RtfFont &font = {});

} // namespace modReadings
