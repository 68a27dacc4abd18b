#pragma once

// A report: what the rendering makes, the pane shows, and Save, Print and every output
// format take. It is a list of runs in the order in which they are written. All of it has
// one colour, and only headings are bold.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace modReadings {

/// A text colour, components 0 to 255.
struct Ink {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
};

/// The one colour of all readings: magenta of the classic palette.
inline constexpr Ink TopicInk{128, 0, 128};

/// A line break in every text of the program.
inline constexpr std::u16string_view lineBreak = u"\r\n";

/// One write: a text with its line breaks, all of it bold or none. May be empty.
struct Run {
    std::u16string text;
    bool bold = false;

    friend bool operator==(const Run &, const Run &) = default;
};

using Report = std::vector<Run>;

/// Appends `before`, `text` and then `breaks` line breaks to `report`, as one run that is
/// not bold.
void AppendBlock(Report &report, std::u16string_view before, std::u16string_view text, int breaks);

/// Appends `text` and then `breaks` line breaks to `report`, as one run that is not bold.
inline void AppendBlock(Report &report, std::u16string_view text, int breaks = 0) {
    AppendBlock(report, {}, text, breaks);
}

/// Appends `before`, `text` and two line breaks to `report`, as one bold run.
void BoldHeading(Report &report, std::u16string_view before, std::u16string_view text);

/// Appends `text` and two line breaks to `report`, as one bold run.
inline void BoldHeading(Report &report, std::u16string_view text) { BoldHeading(report, {}, text); }

/// The texts of all runs, joined.
std::u16string TextOf(const Report &report);

} // namespace modReadings
