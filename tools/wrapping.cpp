#include "tools/wrapping.h"

#include <algorithm>

std::size_t Columns(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

std::vector<std::string> WordsOf(std::string_view text) {
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        if (!word.empty())
            words.emplace_back(word);
        text.remove_prefix(std::min(text.size(), word.size() + 1));
    }
    return words;
}

void AppendWrapped(std::string &text, std::span<const std::string> pieces, std::size_t column) {
    std::size_t used = column;
    bool first = true;
    for (const std::string &piece : pieces) {
        const std::size_t width = Columns(piece);
        if (!first && used + 1 + width > lineWidth) {
            text += '\n' + std::string(column, ' ');
            used = column;
        } else if (!first) {
            text += ' ';
            ++used;
        }
        text += piece;
        used += width;
        first = false;
    }
    text += '\n';
}
