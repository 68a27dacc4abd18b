#pragma once

// Readings as tests expect them: a row of the program's tables, and the words that the
// reading of a number opens with.

#include "numbers/readings.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace modReadings {

/// The words that the reading of a number opens with.
struct Opening {
    int16 number;
    std::u16string_view words;
};

/// The reading of `number` in `table`; fails the test when there is none.
inline std::u16string Row(ReadingTable table, int16 number) {
    for (const Reading &reading : table)
        if (reading.number == number)
            return std::u16string(reading.text);
    ADD_FAILURE() << "no reading of " << number;
    return {};
}

} // namespace modReadings
