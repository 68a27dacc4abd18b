#pragma once

// The five pictures of a document as SVG within its HTML.

#include "report/document.h"
#include "report/html_writer.h"

namespace modReadings {

// Each writes one <svg>, which takes its name and its description from the elements whose ids are
// that of the picture with "-title" and with "-words" behind it. Whatever the name and the age are,
// it is as wide as every drawing, and its height stays within some thousand units.

/// The letters of the three names in rows, vowels and consonants marked, with the values above and
/// below; under them the three sums. Of a very long name only the first letters are drawn.
void Draw(HtmlWriter &html, const NamePicture &picture);

/// A column over each value, of the letters that have it, or a bar where they are many.
void Draw(HtmlWriter &html, const ValuesPicture &picture);

/// Bars of the periods and pinnacles over an axis of the ages, the line of today, and below them
/// the challenges.
void Draw(HtmlWriter &html, const LifePicture &picture);

/// The Personal Years and Essences as two lines of marks, and the Personal Months as a third.
void Draw(HtmlWriter &html, const TimePicture &picture);

/// A bar for each plane, as long as its share.
void Draw(HtmlWriter &html, const PlanesPicture &picture);

} // namespace modReadings
