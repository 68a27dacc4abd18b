#pragma once

// What the tests know of a reading without carrying it whole: how it begins, how many
// paragraphs it has and about how long it is.

#include "core/int16.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace modReadings {

struct ReadingRow {
    int16 number;
    int paragraphs;
    int characters; ///< line breaks counted; a reading keeps within 2 % of it, or 6
    std::u16string_view opening;
};

/// Paragraphs of `text`, divided by "\r\n".
inline int Paragraphs(std::u16string_view text) {
    int count = 1;
    for (auto at = text.find(u"\r\n"); at != std::u16string_view::npos;
         at = text.find(u"\r\n", at + 2))
        ++count;
    return count;
}

inline const ReadingRow *RowOf(int number, std::span<const ReadingRow> rows) {
    const auto row = std::ranges::find(rows, number, &ReadingRow::number);
    return row != rows.end() ? &*row : nullptr;
}

/// Whether `text` is the reading of `number`, whole and nothing else.
inline ::testing::AssertionResult IsReadingOf(std::u16string_view text, int number,
                                              std::span<const ReadingRow> rows) {
    const ReadingRow *row = RowOf(number, rows);
    if (row == nullptr)
        return ::testing::AssertionFailure() << "there is no row for " << number;
    if (!text.starts_with(row->opening))
        return ::testing::AssertionFailure()
               << "not the reading of " << number << ": "
               << ::testing::PrintToString(std::u16string(text.substr(0, 60)));
    if (Paragraphs(text) != row->paragraphs)
        return ::testing::AssertionFailure()
               << "the reading of " << number << " has " << Paragraphs(text) << " paragraphs";
    const int length = static_cast<int>(text.size());
    if (std::abs(length - row->characters) > std::max(6, row->characters / 50))
        return ::testing::AssertionFailure()
               << "the reading of " << number << " has " << length << " characters";
    return ::testing::AssertionSuccess();
}

/// Whether the paragraphs of `text` begin with `openings`, one each.
inline ::testing::AssertionResult
ParagraphsBegin(std::u16string_view text, std::initializer_list<std::u16string_view> openings) {
    if (Paragraphs(text) != static_cast<int>(openings.size()))
        return ::testing::AssertionFailure() << Paragraphs(text) << " paragraphs";
    int number = 0;
    for (const std::u16string_view opening : openings) {
        ++number;
        if (!text.starts_with(opening))
            return ::testing::AssertionFailure() << "paragraph " << number << " begins otherwise";
        const auto end = text.find(u"\r\n");
        text.remove_prefix(end == std::u16string_view::npos ? text.size() : end + 2);
    }
    return ::testing::AssertionSuccess();
}

} // namespace modReadings
