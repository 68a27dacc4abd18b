#pragma once

// JSON of text that comes from outside: names, members, columns, messages that quote them.

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>

/// RapidJSON 1.1.0 has a fast way to write strings into its own StringBuffer (RAPIDJSON_SSE2),
/// and that lets the characters U+001A to U+001F through unescaped. Into a buffer of another
/// type, such as this one, it writes character by character, and rightly. Our own prose has no
/// such characters and takes the fast way.
class OutsideBuffer : public rapidjson::StringBuffer {};

using OutsideJson = rapidjson::Writer<OutsideBuffer>;

inline void WriteString(OutsideJson &json, std::string_view text) {
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}
