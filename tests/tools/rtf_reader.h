#pragma once

// A small reader of Rich Text Format for the tests: what a word processor would show.

#include <string>
#include <string_view>
#include <vector>

/// One character as shown. The end of a paragraph is "\n".
struct ShownCharacter {
    char16_t unit;
    bool bold;
    int red, green, blue; ///< all -1 for the reader's own colour
};

/// What `rtf` shows. Fails the test, and ends there, at anything that is no well-formed RTF
/// or that this reader does not know.
std::vector<ShownCharacter> ReadRtf(std::string_view rtf);
