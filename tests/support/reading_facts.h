#pragma once

// What is settled about the program's readings: how each begins, how many paragraphs it
// has, how long it is. The facts come from tests/numbers/readings_table.json.

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace modReadings {

/// What is settled about one text. Lengths are in characters, a line break counts two.
struct Fact {
    std::string slot;          ///< "PinnacleText" and "ChallengeText" for all four positions
    std::optional<int> number; ///< none for a text that stands alone, as an About does
    std::size_t paragraphs = 0, characters = 0;
    std::vector<std::size_t> paragraphLengths; ///< empty where only the whole is settled
    std::string opening;
    std::vector<std::string> openings; ///< of every paragraph, where that is settled
    std::optional<std::string> full, firstParagraph, lastParagraph, ends, contains,
        thirdSentenceContains;
};

/// Every text's facts, in the order of the table. Fails the test, and gives none, where
/// the table cannot be read.
const std::vector<Fact> &Facts();

/// The facts of the reading of `number` in `slot`, or of the text that stands there alone;
/// null where there is no such text.
const Fact *FactOf(std::string_view slot, std::optional<int> number = {});

/// Whether a length is within so many percent of the settled one; six characters are
/// always granted.
bool Near(std::size_t length, std::size_t settled, std::size_t percent);

/// The paragraphs of `text`, which "\r\n" divides.
std::vector<std::string> Paragraphs(std::string_view text);
std::vector<std::u16string> Paragraphs(std::u16string_view text);

/// Whether `text` begins as the reading of `number` in `slot` does, or as the text that
/// stands there alone.
bool Opens(std::u16string_view text, std::string_view slot, std::optional<int> number = {});

/// Whether `text` is the reading of `number` in `slot`, whole and nothing else.
::testing::AssertionResult IsReadingOf(std::u16string_view text, int number, std::string_view slot);

/// Whether `text` is the one that stands alone in `slot`, such as an About, whole and
/// nothing else.
::testing::AssertionResult IsTextOf(std::u16string_view text, std::string_view slot);

} // namespace modReadings
