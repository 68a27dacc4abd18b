#pragma once

// The rich-text control as the rendering sees it: four operations at a caret, and the two
// writers that every reading goes through. The window implements the control over its
// pane, the report tool and the tests over a list of runs, so the same code makes all of
// them.

#include <cstdint>
#include <string>
#include <string_view>

namespace modReadings {

/// A text colour, components 0 to 255.
struct Ink {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Ink &, const Ink &) = default;
};

/// The one colour of all readings: magenta of the classic palette.
inline constexpr Ink TopicInk{128, 0, 128};

/// A line break in every text of the program.
inline constexpr std::u16string_view lineBreak = u"\r\n";

class RichTextPane {
public:
    virtual ~RichTextPane() = default;

    /// Replaces the whole text; the caret stands at its end.
    virtual void SetText(std::u16string_view text) = 0;
    /// Bold for what is written next.
    virtual void SetBold(bool bold) = 0;
    /// Colour of what is written next.
    virtual void SetColor(Ink ink) = 0;
    /// Replaces the selection, which is empty in practice, at the caret; the caret then
    /// stands behind `text`. "\r\n" is one line break.
    virtual void SetSelectedText(std::u16string text) = 0;
};

/// Writes `before`, `text` and then `breaks` line breaks at the caret, as one write.
void AppendBlock(RichTextPane &pane, std::u16string_view before, std::u16string_view text,
                 int breaks);

/// Writes `text` and then `breaks` line breaks at the caret, as one write.
inline void AppendBlock(RichTextPane &pane, std::u16string_view text, int breaks = 0) {
    AppendBlock(pane, {}, text, breaks);
}

/// Writes `text` and two line breaks in bold TopicInk. Bold is off afterwards; the
/// colour stays, so what follows has the colour of its heading.
void BoldHeading(RichTextPane &pane, std::u16string_view text);

} // namespace modReadings
