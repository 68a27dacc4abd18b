#pragma once

// Texts for a terminal of 80 columns.

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Of a line without its break.
inline constexpr std::size_t lineWidth = 79;

/// How many columns `text`, which is UTF-8, takes if each character takes one.
std::size_t Columns(std::string_view text);

/// `text` without its blanks, as words.
std::vector<std::string> WordsOf(std::string_view text);

/// Appends `pieces` with a blank between two, and a line break. `text` ends in a line that has
/// come to `column`, where each further line begins; a piece is never broken.
void AppendWrapped(std::string &text, std::span<const std::string> pieces, std::size_t column);
