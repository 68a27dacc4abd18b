#pragma once

// Writes HTML as bytes of UTF-8 into one growing string.

#include "core/int16.h"

#include <string>
#include <string_view>
#include <utility>

namespace modReadings {

class HtmlWriter {
public:
    HtmlWriter() { out_.reserve(160 * 1024); } // more than most documents have

    /// Markup, as it stands.
    HtmlWriter &operator<<(std::string_view markup) {
        out_.append(markup);
        return *this;
    }
    HtmlWriter &operator<<(char markup) {
        out_.push_back(markup);
        return *this;
    }

    HtmlWriter &operator<<(const char *markup) { return *this << std::string_view(markup); }
    HtmlWriter &operator<<(int number);

    /// Text, good between tags and between double quotation marks: what has a meaning in HTML
    /// is escaped. What no HTML may hold (control characters, characters that are none, half
    /// a surrogate pair) becomes U+FFFD, a line break or a tab a blank.
    HtmlWriter &operator<<(std::u16string_view text);

    std::string Take() { return std::move(out_); }

private:
    void PutCharacter(char32_t character);

    std::string out_;
};

} // namespace modReadings
