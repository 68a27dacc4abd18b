#pragma once

// The drawings of a document: shapes and texts of SVG, written into the HTML. Lengths are whole
// units of the drawing. All drawings have the same width, which a phone shows without shrinking
// their texts too far.

#include "report/html_writer.h"

#include <initializer_list>
#include <string_view>

namespace modReadings {

inline constexpr int drawingWidth = 420;

/// What a shape or a text is coloured as. Each has a colour of its own on light ground, which
/// is written, and one on dark ground, which the style sheet gives.
enum class Paint {
    Violet,   ///< what belongs to the person
    Tint,     ///< the same, in the background
    Gold,     ///< what is in force or leads
    Ink,      ///< text
    Muted,    ///< text beside, axes
    OnViolet, ///< text on Violet
    OnGold    ///< text on Gold
};

enum class Align { Start, Middle, End };

class Drawing {
public:
    /// Begins a drawing of this height. The elements `id`-title and `id`-words name and describe
    /// it.
    Drawing(HtmlWriter &html, int height, std::string_view id);
    ~Drawing();
    Drawing(const Drawing &) = delete;
    Drawing &operator=(const Drawing &) = delete;

    void Box(int x, int y, int width, int height, int radius, Paint fill);
    void Circle(int x, int y, int radius, Paint fill);
    /// A circle of dots.
    void EmptyPlace(int x, int y, int radius);
    void Line(int x1, int y1, int x2, int y2, Paint stroke, int width = 1);
    /// A closed shape from the coordinates of its corners, x and y in turn.
    void Shape(std::initializer_list<int> corners, Paint fill);

    /// A line through points, which are added one by one; a Gap begins it anew.
    void BeginPath(Paint stroke, int width);
    void Point(int x, int y);
    void Gap() { gap_ = true; }
    void EndPath();

    /// A text whose base line is at `y`.
    template <typename Content>
    void Text(int x, int y, int size, Paint fill, Align align, const Content &content,
              bool bold = false) {
        BeginText(x, y, size, fill, align, bold);
        html_ << content << "</text>";
    }

private:
    void BeginText(int x, int y, int size, Paint fill, Align align, bool bold);

    HtmlWriter &html_;
    bool gap_ = true;
};

} // namespace modReadings
