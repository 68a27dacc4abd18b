#pragma once

// A strict reader of JSON as RFC 8259 has it. It knows nothing of the library that the program
// reads and writes with: what one of them lets through and the other does not is a finding.
// Members keep their order and their doubles, numbers the way they are spelled.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct JsonValue {
    enum class Kind { Null, False, True, Number, Text, Array, Object };

    Kind kind = Kind::Null;
    std::string number;                                        ///< as it is spelled
    std::u16string text;                                       ///< of Text
    std::vector<JsonValue> items;                              ///< of Array
    std::vector<std::pair<std::u16string, JsonValue>> members; ///< of Object

    /// The first member of this name, or nullptr.
    const JsonValue *Find(std::u16string_view name) const {
        for (const auto &[key, value] : members)
            if (key == name)
                return &value;
        return nullptr;
    }

    friend bool operator==(const JsonValue &, const JsonValue &) = default;
};

class JsonReader {
public:
    /// Reads `text`, which is one value and nothing else but blanks and line breaks. Nothing
    /// where it is no JSON. An escaped half of a surrogate pair is JSON, and is kept.
    static std::optional<JsonValue> Read(std::string_view text) {
        JsonReader reader(text);
        try {
            JsonValue value = reader.Value();
            reader.SkipBlanks();
            if (reader.at_ != text.size())
                return std::nullopt;
            return value;
        } catch (const std::runtime_error &) {
            return std::nullopt;
        }
    }

private:
    explicit JsonReader(std::string_view text) : text_(text) {}

    [[noreturn]] static void Fail() { throw std::runtime_error("not JSON"); }

    void SkipBlanks() {
        while (at_ < text_.size() &&
               std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos)
            ++at_;
    }

    char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    char Next() {
        if (at_ == text_.size())
            Fail();
        return text_[at_++];
    }

    /// Takes `word` if it is what comes.
    bool Take(std::string_view word) {
        if (!text_.substr(at_).starts_with(word))
            return false;
        at_ += word.size();
        return true;
    }

    JsonValue Value() {
        SkipBlanks();
        JsonValue value;
        using Kind = JsonValue::Kind;
        for (const auto &[word, kind] :
             {std::pair("null", Kind::Null), {"true", Kind::True}, {"false", Kind::False}})
            if (Take(word)) {
                value.kind = kind;
                return value;
            }
        switch (Peek()) {
        case '{':
            Object(value);
            break;
        case '[':
            Array(value);
            break;
        case '"':
            value.kind = Kind::Text;
            value.text = Text();
            break;
        default:
            value.kind = Kind::Number;
            value.number = Number();
        }
        return value;
    }

    void Object(JsonValue &value) {
        value.kind = JsonValue::Kind::Object;
        Next();
        SkipBlanks();
        if (Take("}"))
            return;
        do {
            SkipBlanks();
            std::u16string key = Text();
            SkipBlanks();
            if (!Take(":"))
                Fail();
            value.members.emplace_back(std::move(key), Value());
            SkipBlanks();
        } while (Take(","));
        if (!Take("}"))
            Fail();
    }

    void Array(JsonValue &value) {
        value.kind = JsonValue::Kind::Array;
        Next();
        SkipBlanks();
        if (Take("]"))
            return;
        do {
            value.items.push_back(Value());
            SkipBlanks();
        } while (Take(","));
        if (!Take("]"))
            Fail();
    }

    std::string Number() {
        const std::size_t begin = at_;
        const auto digits = [this] {
            if (Peek() < '0' || Peek() > '9')
                Fail();
            while (Peek() >= '0' && Peek() <= '9')
                ++at_;
        };
        Take("-");
        if (!Take("0"))
            digits();
        if (Take("."))
            digits();
        if (Take("e") || Take("E")) {
            if (!Take("+"))
                Take("-");
            digits();
        }
        return std::string(text_.substr(begin, at_ - begin));
    }

    char16_t FourDigits() {
        unsigned unit = 0;
        for (int count = 0; count < 4; ++count) {
            const char digit = Next();
            const std::size_t value =
                std::string_view("0123456789abcdef")
                    .find(digit >= 'A' && digit <= 'F' ? static_cast<char>(digit - 'A' + 'a')
                                                       : digit);
            if (value == std::string_view::npos)
                Fail();
            unit = unit << 4 | static_cast<unsigned>(value);
        }
        return static_cast<char16_t>(unit);
    }

    std::u16string Text() {
        if (!Take("\""))
            Fail();
        std::u16string text;
        for (;;) {
            const char character = Next();
            if (character == '"')
                return text;
            if (static_cast<unsigned char>(character) < 0x20)
                Fail();
            if (static_cast<unsigned char>(character) >= 0x80) {
                --at_;
                Utf8Character(text);
            } else if (character == '\\') {
                const char escape = Next();
                constexpr std::string_view escapes = "\"\\/bfnrt";
                constexpr std::u16string_view meanings = u"\"\\/\b\f\n\r\t";
                const std::size_t index = escapes.find(escape);
                if (escape == 'u')
                    text += FourDigits();
                else if (index != std::string_view::npos)
                    text += meanings[index];
                else
                    Fail();
            } else {
                text += static_cast<char16_t>(character);
            }
        }
    }

    void Utf8Character(std::u16string &text) {
        const auto first = static_cast<unsigned char>(Next());
        const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
        char32_t character = first & (more == 3 ? 0x7U : more == 2 ? 0xFU : 0x1FU);
        for (int count = 0; count < more; ++count) {
            const auto next = static_cast<unsigned char>(Next());
            if ((next & 0xC0U) != 0x80U)
                Fail();
            character = character << 6 | (next & 0x3FU);
        }
        const char32_t least = more == 3 ? 0x10000 : more == 2 ? 0x800 : 0x80;
        if (first < 0xC0 || first >= 0xF8 || character < least || character > 0x10FFFF ||
            (character >= 0xD800 && character < 0xE000))
            Fail();
        if (character >= 0x10000) {
            text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        } else {
            text += static_cast<char16_t>(character);
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
};
