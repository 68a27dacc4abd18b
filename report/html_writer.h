#pragma once

// Writes HTML as bytes of UTF-8 into one growing string.

#include <charconv>
#include <cstring>
#include <string>
#include <string_view>

namespace modReadings {

class HtmlWriter {
public:
    /// Markup, as it stands.
    HtmlWriter &operator<<(std::string_view markup) { return Write(markup); }
    /// The same for a literal, whose length the compiler knows.
    template <std::size_t size> HtmlWriter &operator<<(const char (&literal)[size]) {
        return Write(literal);
    }
    /// Of a buffer the compiler knows the size, but not how much of it is filled.
    template <std::size_t size> HtmlWriter &operator<<(char (&buffer)[size]) = delete;
    HtmlWriter &operator<<(char markup) { return Write(markup); }
    HtmlWriter &operator<<(int number) { return Write(number); }

    /// Pieces of markup and numbers, one behind the other; quicker than each by itself.
    template <typename... Pieces> HtmlWriter &Write(Pieces &&...pieces) {
        Reserve((MostBytesOf(pieces) + ...));
        char *end = out_.data() + used_;
        ((end = Put(end, pieces)), ...);
        used_ = static_cast<std::size_t>(end - out_.data());
        return *this;
    }

    /// Text, good between tags and between double quotation marks: what has a meaning in HTML
    /// is escaped. What no HTML may hold (control characters, characters that are none, half
    /// a surrogate pair) becomes U+FFFD, a line break or a tab a blank.
    HtmlWriter &operator<<(std::u16string_view text) {
        PutText(text, " ");
        return *this;
    }

    /// Text in lines, with the markup `between` in place of each line break.
    void Lines(std::u16string_view text, std::string_view between) { PutText(text, between); }

    /// All that was written since the last Clear.
    std::string_view Written() const { return std::string_view(out_).substr(0, used_); }

    /// Begins anew, in the memory that is there.
    void Clear() { used_ = 0; }

private:
    void Reserve(std::size_t more) {
        if (out_.size() - used_ < more)
            Grow(more);
    }
    void Grow(std::size_t more);

    // Put writes a piece where there is room for it and returns its end.
    static std::size_t MostBytesOf(std::string_view markup) { return markup.size(); }
    static char *Put(char *out, std::string_view markup) {
        return out + markup.copy(out, markup.size());
    }
    template <std::size_t size> static std::size_t MostBytesOf(const char (&)[size]) {
        return size;
    }
    template <std::size_t size> static char *Put(char *out, const char (&literal)[size]) {
        std::memcpy(out, literal, size - 1);
        return out + size - 1;
    }
    template <std::size_t size> static std::size_t MostBytesOf(char (&buffer)[size]) = delete;
    static std::size_t MostBytesOf(char) { return 1; }
    static char *Put(char *out, char markup) {
        *out = markup;
        return out + 1;
    }
    static constexpr std::size_t mostDigits = 12; // with a sign
    static std::size_t MostBytesOf(int) { return mostDigits; }
    static char *Put(char *out, int number) {
        return std::to_chars(out, out + mostDigits, number).ptr;
    }

    void PutText(std::u16string_view text, std::string_view newLine);
    void PutCharacter(char32_t character, std::string_view newLine);

    std::string out_;      ///< what is written and room for more
    std::size_t used_ = 0; ///< how much is written
};

} // namespace modReadings
