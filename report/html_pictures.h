#pragma once

// The five pictures of a document as SVG within its HTML.

#include "report/document.h"
#include "report/html_writer.h"

namespace modReadings {

// Each drawing refers to its title and its words by their ids: that of the picture with "-title"
// and with "-words" behind it.

void Draw(HtmlWriter &html, const NamePicture &picture);
void Draw(HtmlWriter &html, const ValuesPicture &picture);
void Draw(HtmlWriter &html, const LifePicture &picture);
void Draw(HtmlWriter &html, const TimePicture &picture);
void Draw(HtmlWriter &html, const PlanesPicture &picture);

} // namespace modReadings
