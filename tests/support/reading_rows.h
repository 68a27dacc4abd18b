#pragma once

// A row of the program's tables, for tests that ask which one a calculator chose. How each
// reading begins is in reading_facts.h.

#include "numbers/readings.h"

#include <gtest/gtest.h>

#include <string>

namespace modReadings {

/// The reading of `number` in `table`; fails the test when there is none.
inline std::u16string Row(ReadingTable table, int16 number) {
    for (const Reading &reading : table)
        if (reading.number == number)
            return std::u16string(reading.text);
    ADD_FAILURE() << "no reading of " << number;
    return {};
}

} // namespace modReadings
