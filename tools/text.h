#pragma once

// Texts on their way in and out of the program.

#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// `text` in UTF-8; a surrogate without its partner becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// The same as a view into a buffer, which the next call of this or ToUtf8 overwrites.
std::string_view AsUtf8(std::u16string_view text);

/// `bytes` as text, or nothing when they are not UTF-8.
std::optional<QString> FromUtf8(std::string_view bytes);

/// Whether a terminal might act on it: control characters, separators of lines, and the marks
/// that turn the direction of what follows.
bool ActsOnTerminal(char32_t character);

/// `text` in UTF-8 with its control characters and its marks of direction written out ("\n",
/// "\x1B", "\x202E"): a message that quotes what it was given stays one line and does nothing
/// to a terminal.
std::string OneLine(const QString &text);

/// What a message shows of a text that it quotes: all of it up to sixty characters, and of a
/// longer one the beginning and the end with "..." between, sixty in all. A surrogate pair is
/// kept or left out whole.
QString Excerpt(const QString &text);
