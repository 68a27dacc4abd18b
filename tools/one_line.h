#pragma once

#include <QString>

#include <string>

/// `text` in UTF-8 with its control characters written out ("\n", "\x1B"): a complaint that
/// quotes what it was given stays one line and does nothing to a terminal.
std::string OneLine(const QString &text);
