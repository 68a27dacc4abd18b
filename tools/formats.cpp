#include "tools/formats.h"

#include "core/clock.h"
#include "core/text.h"
#include "core/user_profile.h"
#include "report/rtf.h"

#include <QStringDecoder>
#include <QStringEncoder>

#define RAPIDJSON_SSE2
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>
#include <vector>

using modReadings::BookEntry;
using modReadings::Run;

namespace {

using JsonWriter = rapidjson::Writer<rapidjson::StringBuffer>;

template <typename Writer> void WriteString(Writer &json, std::string_view text) {
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

template <typename Writer> void WriteMember(Writer &json, const char *name, std::string_view text) {
    json.Key(name);
    WriteString(json, text);
}

/// `text` in UTF-8, until the next call. One buffer serves all calls: a batch makes millions.
std::string_view Utf8(std::u16string_view text) {
    static std::vector<char> buffer;
    QStringEncoder encode(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QStringView view(text);
    const auto space = static_cast<std::size_t>(encode.requiredSpace(view.size()));
    if (buffer.size() < space)
        buffer.resize(space);
    const char *end = encode.appendToBuffer(buffer.data(), view);
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

void WriteMember(JsonWriter &json, const char *name, std::u16string_view text) {
    WriteMember(json, name, Utf8(text));
}

/// What is in `buffer`, ended as a line.
std::string Line(rapidjson::StringBuffer &buffer) {
    buffer.Put('\n');
    return {buffer.GetString(), buffer.GetSize()};
}

std::string Today() {
    const auto date = modReadings::Clock::Date();
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

/// UTF-8 with "\r\n" as "\n".
void AppendPlain(std::string &out, std::u16string_view text) {
    std::ranges::copy_if(Utf8(text), std::back_inserter(out), [](char c) { return c != '\r'; });
}

} // namespace

std::string ToUtf8(std::u16string_view text) { return std::string(Utf8(text)); }

std::optional<QString> FromUtf8(std::string_view bytes) {
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return decode.hasError() ? std::nullopt : std::optional(std::move(text));
}

std::string ReadingsAsText(std::span<const TopicReading> readings) {
    std::string text;
    for (const TopicReading &reading : readings) {
        if (!text.empty())
            text += '\n';
        for (const Run &run : reading.runs)
            AppendPlain(text, run.text);
        if (!text.ends_with('\n'))
            text += '\n';
    }
    return text;
}

std::string ReadingsAsJson(std::span<const TopicReading> readings) {
    using modReadings::profile;
    static rapidjson::StringBuffer buffer; // keeps its memory from one report to the next
    buffer.Clear();
    JsonWriter json(buffer);
    json.StartObject();
    WriteMember(json, "first", profile.FirstName);
    WriteMember(json, "middle", profile.MiddleName);
    WriteMember(json, "last", profile.LastName);
    WriteMember(json, "month", profile.BirthMonth);
    json.Key("day");
    json.Int(modReadings::NumberFromText(profile.BirthDay));
    json.Key("year");
    json.Int(modReadings::NumberFromText(profile.BirthYear));
    WriteMember(json, "today", std::string_view(Today()));
    json.Key("topics");
    json.StartArray();
    for (const TopicReading &reading : readings) {
        json.StartObject();
        WriteMember(json, "caption", reading.caption);
        WriteMember(json, "number", reading.number);
        json.Key("runs");
        json.StartArray();
        for (const Run &run : reading.runs) {
            json.StartObject();
            WriteMember(json, "text", run.text);
            json.Key("bold");
            json.Bool(run.bold);
            json.EndObject();
        }
        json.EndArray();
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    return Line(buffer);
}

std::string ReadingsAsRtf(std::span<const TopicReading> readings) {
    std::vector<Run> runs;
    for (const TopicReading &reading : readings) {
        if (!runs.empty())
            runs.back().text += u"\r\n\r\n";
        runs.insert(runs.end(), reading.runs.begin(), reading.runs.end());
    }
    return modReadings::ToRtf(runs);
}

std::string ReadingsAs(Format format, std::span<const TopicReading> readings) {
    switch (format) {
    case Format::Json:
        return ReadingsAsJson(readings);
    case Format::Rtf:
        return ReadingsAsRtf(readings);
    case Format::Text:
        break;
    }
    return ReadingsAsText(readings);
}

std::string ErrorAsJson(long long line, std::string_view complaint) {
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    json.StartObject();
    json.Key("line");
    json.Int64(line);
    WriteMember(json, "error", complaint);
    json.EndObject();
    return Line(buffer);
}

std::string BookAsText(std::span<const BookEntry> book) {
    std::string text;
    for (const BookEntry &entry : book) {
        if (!text.empty())
            text += '\n';
        text += entry.slot;
        if (entry.number)
            text += ' ' + std::to_string(*entry.number);
        text += '\n';
        AppendPlain(text, entry.text);
        text += '\n';
    }
    return text;
}

std::string BookAsJson(std::span<const BookEntry> book) {
    rapidjson::StringBuffer buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> json(buffer);
    json.SetIndent(' ', 1);
    json.StartArray();
    for (const BookEntry &entry : book) {
        json.StartObject();
        WriteMember(json, "slot", entry.slot);
        json.Key("number");
        if (entry.number)
            json.Int(*entry.number);
        else
            json.Null();
        WriteMember(json, "text", ToUtf8(entry.text));
        json.EndObject();
    }
    json.EndArray();
    return Line(buffer);
}
