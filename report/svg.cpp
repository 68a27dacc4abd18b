#include "report/svg.h"

#include "document_fonts.h"

namespace modReadings {

namespace {

// The engine of the PDFs takes neither colours nor the font from the page's style into a drawing.
// So each shape has its colour on light ground as an attribute, and the style gives that on dark
// ground to its class; the colours are those of :root in document.css.

std::string_view FillOf(Paint paint) {
    switch (paint) {
    case Paint::Violet:
        return " class=\"fv\" fill=\"#59496d\"";
    case Paint::Tint:
        return " class=\"ft\" fill=\"#e4dcec\"";
    case Paint::Gold:
        return " class=\"fg\" fill=\"#ffc706\"";
    case Paint::Ink:
        return " class=\"fi\" fill=\"#2b2333\"";
    case Paint::Muted:
        return " class=\"fm\" fill=\"#63576f\"";
    case Paint::OnViolet:
        return " class=\"fo\" fill=\"#ffffff\"";
    case Paint::OnGold:
        break;
    }
    return " class=\"fd\" fill=\"#2b2333\"";
}

std::string_view StrokeOf(Paint paint) {
    switch (paint) {
    case Paint::Violet:
        return " class=\"sv\" stroke=\"#59496d\"";
    case Paint::Gold:
        return " class=\"sg\" stroke=\"#d9a400\"";
    case Paint::Ink:
        return " class=\"si\" stroke=\"#2b2333\"";
    case Paint::Muted:
    case Paint::Tint:
    case Paint::OnViolet:
    case Paint::OnGold:
        break; // no line has one of the last three
    }
    return " class=\"sm\" stroke=\"#8a7d97\"";
}

/// Nothing for the usual one.
std::string_view AnchorOf(Align align) {
    switch (align) {
    case Align::Start:
        return " text-anchor=\"start\"";
    case Align::End:
        return " text-anchor=\"end\"";
    case Align::Middle:
        break;
    }
    return {};
}

} // namespace

Drawing::Drawing(HtmlWriter &html, int height, std::string_view id) : html_(html) {
    // Most texts are centred and in ink.
    html_.Write("<svg role=\"img\" aria-labelledby=\"", id, "-title\" aria-describedby=\"", id,
                "-words\" viewBox=\"0 0 ", drawingWidth, ' ', height, "\" width=\"", drawingWidth,
                "\" height=\"", height, "\">\n<g text-anchor=\"middle\" font-family=\"",
                documentFonts, '"', FillOf(Paint::Ink), ">\n");
}

Drawing::~Drawing() { html_ << "\n</g>\n</svg>\n"; }

void Drawing::Box(int x, int y, int width, int height, int radius, Paint fill) {
    html_.Write("<rect x=\"", x, "\" y=\"", y, "\" width=\"", width, "\" height=\"", height,
                "\" rx=\"", radius, '"', FillOf(fill), "/>");
}

void Drawing::Circle(int x, int y, int radius, Paint fill) {
    html_.Write("<circle cx=\"", x, "\" cy=\"", y, "\" r=\"", radius, '"', FillOf(fill), "/>");
}

void Drawing::EmptyPlace(int x, int y, int radius) {
    html_.Write("<circle cx=\"", x, "\" cy=\"", y, "\" r=\"", radius,
                "\" fill=\"none\" stroke-dasharray=\"2 3\"", StrokeOf(Paint::Muted), "/>");
}

void Drawing::Line(int x1, int y1, int x2, int y2, Paint stroke, int width) {
    html_.Write("<path d=\"M", x1, ' ', y1, 'L', x2, ' ', y2, '"', StrokeOf(stroke));
    if (width != 1)
        html_.Write(" stroke-width=\"", width, '"');
    html_ << "/>";
}

void Drawing::Shape(std::initializer_list<int> corners, Paint fill) {
    html_ << "<path d=\"M";
    std::string_view between;
    for (const int coordinate : corners) {
        html_.Write(between, coordinate);
        between = " ";
    }
    html_.Write("Z\"", FillOf(fill), "/>");
}

void Drawing::BeginPath(Paint stroke, int width) {
    html_.Write("<path fill=\"none\" stroke-width=\"", width, '"', StrokeOf(stroke), " d=\"");
    gap_ = true;
}

void Drawing::Point(int x, int y) {
    html_.Write(gap_ ? 'M' : 'L', x, ' ', y);
    gap_ = false;
}

void Drawing::EndPath() { html_ << "\"/>"; }

void Drawing::BeginText(int x, int y, int size, Paint fill, Align align, bool bold) {
    html_.Write("<text x=\"", x, "\" y=\"", y, "\" font-size=\"", size, '"', AnchorOf(align),
                std::string_view(bold ? " font-weight=\"bold\"" : ""),
                fill == Paint::Ink ? std::string_view() : FillOf(fill), '>');
}

} // namespace modReadings
