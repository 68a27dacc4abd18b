#pragma once

// What a user types behind the program's name.

#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

/// The words of both, one list behind the other.
inline Arguments operator+(Arguments left, const Arguments &right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// One person on a given day.
inline const Arguments ann{"--first", "Ann", "--last", "Lee",  "--month", "3",
                           "--day",   "7",   "--year", "1990", "--today", "2026-11-16"};
