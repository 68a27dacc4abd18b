#pragma once

// The reductions once more, worked on decimal texts as one would on paper, for tests
// that hold the program's arithmetic against them.

#include <string>

namespace longhand {

inline int DigitSum(int value) {
    int sum = 0;
    for (const char digit : std::to_string(value))
        sum += digit - '0';
    return sum;
}

inline int Fold(int value) {
    const std::string text = std::to_string(value);
    return text.size() == 1 ? value : (text.front() - '0') + (text.back() - '0');
}

inline int KeepMaster(int value) {
    if (value == 11 || value == 22)
        return value;
    const int sum = DigitSum(value);
    return sum == 11 || sum == 22 ? sum : Fold(Fold(sum));
}

} // namespace longhand
