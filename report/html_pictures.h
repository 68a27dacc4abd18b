#pragma once

// The five pictures of a document as SVG within its HTML.

#include "report/document.h"
#include "report/html_writer.h"

namespace modReadings {

/// The ids of the title and of the words of a picture, which its drawing refers to.
std::string TitleId(const PictureText &text);
std::string WordsId(const PictureText &text);

void Draw(HtmlWriter &html, const NamePicture &picture);
void Draw(HtmlWriter &html, const ValuesPicture &picture);
void Draw(HtmlWriter &html, const LifePicture &picture);
void Draw(HtmlWriter &html, const TimePicture &picture);
void Draw(HtmlWriter &html, const PlanesPicture &picture);

} // namespace modReadings
