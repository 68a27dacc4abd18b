#pragma once

// A document as HTML.

#include "report/document.h"

#include <string>

namespace modReadings {

/// `document` as one file of HTML in UTF-8 that needs no other: no script, nothing is loaded.
/// It has a style for the screen, light and dark, and one for paper.
std::string ToHtml(const Document &document);

} // namespace modReadings
