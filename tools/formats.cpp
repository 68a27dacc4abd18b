#include "tools/formats.h"

#include "core/clock.h"
#include "core/text.h"
#include "report/html.h"
#include "report/markdown.h"
#include "report/rtf.h"
#include "tools/text.h"

#define RAPIDJSON_SSE2
#include "tools/json_text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

using modReadings::BookEntry;
using modReadings::Run;

namespace {

using JsonWriter = rapidjson::Writer<rapidjson::StringBuffer>;

/// A member whose text is our own.
template <typename Writer> void WriteMember(Writer &json, const char *name, std::string_view text) {
    json.Key(name);
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

void WriteMember(JsonWriter &json, const char *name, std::u16string_view text) {
    WriteMember(json, name, AsUtf8(text));
}

/// A member whose text comes from outside.
void WriteOutsideMember(JsonWriter &json, const char *name, std::string_view text) {
    static OutsideBuffer buffer; // keeps its memory from one text to the next
    buffer.Clear();
    OutsideJson outside(buffer);
    WriteString(outside, text);
    json.Key(name);
    json.RawValue(buffer.GetString(), buffer.GetSize(), rapidjson::kStringType);
}

void WriteInput(JsonWriter &json, std::string_view further) {
    if (further.empty())
        return;
    json.Key("input");
    json.RawValue(further.data(), further.size(), rapidjson::kObjectType);
}

/// What is in `buffer`, ended as a line.
std::string Line(rapidjson::StringBuffer &buffer) {
    buffer.Put('\n');
    return {buffer.GetString(), buffer.GetSize()};
}

/// UTF-8 with "\r\n" as "\n".
void AppendPlain(std::string &out, std::u16string_view text) {
    std::ranges::copy_if(AsUtf8(text), std::back_inserter(out), [](char c) { return c != '\r'; });
}

/// Head and topics as one report, an empty line between them.
modReadings::Report Joined(const PersonReading &reading) {
    modReadings::Report whole = reading.head;
    for (const TopicReading &topic : reading.topics) {
        if (!whole.empty())
            whole.back().text += u"\r\n\r\n";
        whole.insert(whole.end(), topic.report.begin(), topic.report.end());
    }
    return whole;
}

} // namespace

std::string IsoDate(std::chrono::year_month_day date) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

modReadings::Report HeadOf(const modReadings::UserProfile &person,
                           std::chrono::year_month_day day) {
    QString name = QStringView(person.FirstName).toString();
    for (const std::u16string &part : {person.MiddleName, person.LastName})
        if (!part.empty())
            name += u' ' + QStringView(part).toString();
    const std::u16string born =
        modReadings::LongDate(person.BirthMonth, modReadings::NumberFromText(person.BirthDay),
                              modReadings::NumberFromText(person.BirthYear));
    return {{FromUtf8(OneLine(name)).value_or(QString()).toStdU16String(), true},
            {u"\r\nBorn " + born + u"\r\nRead for " + modReadings::LongDate(day), false}};
}

std::string ReadingAsText(const PersonReading &reading) {
    std::string text;
    const auto append = [&text](const modReadings::Report &report) {
        if (!text.empty())
            text += '\n';
        for (const Run &run : report)
            AppendPlain(text, run.text);
        if (!text.ends_with('\n'))
            text += '\n';
    };
    if (!reading.head.empty())
        append(reading.head);
    for (const TopicReading &topic : reading.topics)
        append(topic.report);
    return text;
}

std::string ReadingAsJson(const PersonReading &reading, const LineFacts &line) {
    static rapidjson::StringBuffer buffer; // keeps its memory from one report to the next
    buffer.Clear();
    JsonWriter json(buffer);
    json.StartObject();
    WriteOutsideMember(json, "first", AsUtf8(reading.person.FirstName));
    WriteOutsideMember(json, "middle", AsUtf8(reading.person.MiddleName));
    WriteOutsideMember(json, "last", AsUtf8(reading.person.LastName));
    WriteMember(json, "month", reading.person.BirthMonth);
    json.Key("day");
    json.Int(modReadings::NumberFromText(reading.person.BirthDay));
    json.Key("year");
    json.Int(modReadings::NumberFromText(reading.person.BirthYear));
    WriteMember(json, "today", std::string_view(IsoDate(reading.day)));
    if (line.number != 0) {
        json.Key("line");
        json.Int64(line.number);
    }
    WriteInput(json, line.further);
    json.Key("topics");
    json.StartArray();
    for (const TopicReading &topic : reading.topics) {
        json.StartObject();
        WriteMember(json, "caption", topic.caption);
        WriteMember(json, "number", topic.number);
        json.Key("runs");
        json.StartArray();
        for (const Run &run : topic.report) {
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

std::string ReadingAsRtf(const PersonReading &reading) {
    return modReadings::ToRtf(Joined(reading));
}

std::string ReadingAsRtfBody(const PersonReading &reading) {
    return modReadings::RtfBody(Joined(reading));
}

std::string ReadingAs(Format format, const PersonReading &reading) {
    switch (format) {
    case Format::Text:
        return ReadingAsText(reading);
    case Format::Json:
        return ReadingAsJson(reading);
    case Format::Rtf:
        return ReadingAsRtf(reading);
    default:
        Q_UNREACHABLE();
    }
}

std::string DocumentAs(Format format, const modReadings::UserProfile &person,
                       const modReadings::GivenName &given) {
    const modReadings::Document document =
        modReadings::MakeDocument(person, given, modReadings::Clock::Date());
    return format == Format::Markdown ? modReadings::ToMarkdown(document)
                                      : modReadings::ToHtml(document);
}

std::string ErrorAsJson(const LineFacts &line, std::string_view message) {
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    json.StartObject();
    json.Key("line");
    json.Int64(line.number);
    WriteOutsideMember(json, "error", message);
    WriteInput(json, line.further);
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
        WriteMember(json, "text", AsUtf8(entry.text));
        json.EndObject();
    }
    json.EndArray();
    return Line(buffer);
}
