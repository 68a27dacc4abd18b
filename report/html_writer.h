#pragma once

// Writes HTML as bytes of UTF-8 into one growing string.

#include <cstring>
#include <string>
#include <string_view>

namespace modReadings {

class HtmlWriter {
public:
    /// Markup, as it stands.
    HtmlWriter &operator<<(std::string_view markup) {
        Reserve(markup.size());
        used_ += markup.copy(out_.data() + used_, markup.size());
        return *this;
    }
    /// The same for a literal, whose length the compiler knows.
    template <std::size_t size> HtmlWriter &operator<<(const char (&literal)[size]) {
        Reserve(size);
        std::memcpy(out_.data() + used_, literal, size - 1);
        used_ += size - 1;
        return *this;
    }
    HtmlWriter &operator<<(char markup) {
        Reserve(1);
        out_[used_++] = markup;
        return *this;
    }

    HtmlWriter &operator<<(int number);

    /// Text, good between tags and between double quotation marks: what has a meaning in HTML
    /// is escaped. What no HTML may hold (control characters, characters that are none, half
    /// a surrogate pair) becomes U+FFFD, a line break or a tab a blank.
    HtmlWriter &operator<<(std::u16string_view text) {
        Put(text, " ");
        return *this;
    }

    /// Text in lines, with the markup `between` in place of each line break.
    void Lines(std::u16string_view text, std::string_view between) { Put(text, between); }

    /// All that was written. To be called once.
    std::string Take();

private:
    void Reserve(std::size_t more) {
        if (out_.size() - used_ < more)
            Grow(more);
    }
    void Grow(std::size_t more);
    void Put(std::u16string_view text, std::string_view newLine);
    void PutCharacter(char32_t character, std::string_view newLine);

    std::string out_;      ///< what is written and room for more
    std::size_t used_ = 0; ///< how much is written
};

} // namespace modReadings
