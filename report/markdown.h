#pragma once

// A document as Markdown.

#include "report/document.h"

#include <string>

namespace modReadings {

/// `document` in UTF-8, in the Markdown of pandoc: name and dates are its metadata, every
/// heading can be linked to, and a picture is its text in words. Nothing that a name holds is
/// taken for markup.
std::string ToMarkdown(const Document &document);

} // namespace modReadings
