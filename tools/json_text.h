#pragma once

// JSON of text that comes from outside: names, members, columns, messages that quote them.

#include "tools/text.h"

#include <rapidjson/encodings.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>

/// RapidJSON 1.1.0 has a fast way to write strings into its own StringBuffer (RAPIDJSON_SSE2),
/// and that lets the characters U+001A to U+001F through unescaped. Into a buffer of another
/// type, such as this one, it writes character by character, and rightly. Our own prose has no
/// such characters and takes the fast way.
class OutsideBuffer : public rapidjson::StringBuffer {};

/// UTF-8 in which whatever might act on a terminal is an escape of JSON: the writer itself
/// escapes only up to U+001F, and the lines of a batch are often looked at on a terminal.
struct OutsideUtf8 : rapidjson::UTF8<> {
    template <typename Stream> static void Encode(Stream &stream, unsigned character) {
        if (!ActsOnTerminal(character)) {
            rapidjson::UTF8<>::Encode(stream, character);
            return;
        }
        stream.Put('\\');
        stream.Put('u');
        for (int shift = 12; shift >= 0; shift -= 4) // all of them have four digits
            stream.Put("0123456789ABCDEF"[(character >> shift) & 0xF]);
    }

    template <typename Stream> static void EncodeUnsafe(Stream &stream, unsigned character) {
        Encode(stream, character);
    }
};

using OutsideJson = rapidjson::Writer<OutsideBuffer, rapidjson::UTF8<>, OutsideUtf8>;

inline void WriteString(OutsideJson &json, std::string_view text) {
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}
