#pragma once

// What a batch makes of one line, through the program's own way, and what has to hold for it
// whatever the line was.

#include "tests/fuzz/fuzz.h"
#include "tests/support/csv_reader.h"
#include "tests/support/json_reader.h"
#include "tools/batch_line.h"
#include "tools/text.h"

#include <algorithm>
#include <string>

namespace batch_answer {

struct Sink : ByteSink {
    void Write(std::string_view more) override { bytes += more; }
    std::string bytes;
};

/// The columns of a row of numbers: line, names, dates; the numbers; input and error.
inline constexpr std::size_t columns = 8 + 32 + 2;

struct Answer {
    bool person = false;
    std::string header; ///< both without their line break
    std::string row;
};

/// Answers `text` in rows of numbers of this format; `tooLong` says that it is the beginning of a
/// line that is. Requires one quiet line of output, in which the line's number and the error come
/// back.
inline Answer Check(const std::string &text, PeopleLines lines, Format format,
                    bool tooLong = false) {
    Options options;
    options.numbers = true;
    options.format = format;
    Sink sink;
    const auto writer = MakeBatchWriter(options, &sink);
    writer->Begin();
    std::string header = std::exchange(sink.bytes, {});
    if (!header.empty())
        header.pop_back();
    constexpr long long number = 4711;
    const bool composed = format == Format::Json && text.size() % 2 == 0;
    const LineAnswer answer =
        AnswerLine({text, tooLong, number, 0, number}, lines, composed, *writer);
    Require(!answer.remark || (answer.person && IsQuiet(*answer.remark)),
            "a remark is a quiet line about a person");
    const std::string &row = sink.bytes;
    if (!answer.person && !answer.wrong) { // the rest of a row
        Require(row.empty(), "the rest of a row has no answer", row);
        return {};
    }
    Require(answer.person != answer.wrong.has_value(), "a line is a person or wrong");
    Require(!tooLong || answer.wrong, "a line that is too long is wrong", row);
    Require(row.ends_with('\n'), "an answer is a line", row);
    const std::string_view line = std::string_view(row).substr(0, row.size() - 1);
    if (format == Format::Tsv)
        Require(std::ranges::all_of(Pieces(line, '\t'), IsQuiet), "an answer is one quiet line",
                row);
    else
        Require(IsQuiet(line), "an answer is one quiet line", row);
    Require(IsUtf8(line), "an answer is UTF-8", row);
    if (answer.wrong)
        Require(IsQuiet(*answer.wrong) && !answer.wrong->empty(), "a message is one quiet line",
                *answer.wrong);

    if (format == Format::Json) {
        const auto object = JsonReader::Read(line);
        Require(object && object->kind == JsonValue::Kind::Object, "an answer is an object", row);
        const JsonValue *where = object->Find(u"line");
        Require(where != nullptr && where->number == "4711", "an answer has its line", row);
        const JsonValue *error = object->Find(u"error");
        Require((error != nullptr) == answer.wrong.has_value(), "an error is told", row);
        if (error != nullptr)
            Require(Utf8(error->text) == *answer.wrong, "the error is that of the message", row);
        return {answer.person, header, std::string(line)};
    }
    const char separator = format == Format::Tsv ? '\t' : ',';
    const auto cells = [&](std::string_view whole) {
        if (format == Format::Csv) {
            const auto fields = CsvFields(whole, separator);
            Require(fields.has_value(), "an answer is CSV", row);
            return *fields;
        }
        std::vector<std::string> fields;
        for (const std::string_view piece : Pieces(whole, separator))
            fields.emplace_back(piece);
        return fields;
    };
    const std::vector<std::string> fields = cells(line);
    Require(fields.size() == columns && cells(header).size() == columns, "a row has all columns",
            row);
    Require(fields.front() == "4711", "a row has its line", row);
    Require(fields.back() == answer.wrong.value_or(""), "a row has its error", row);
    const std::string &further = fields[columns - 2];
    Require(further.empty() || JsonReader::Read(further), "further members are JSON", row);
    return {answer.person, header, std::string(line)};
}

} // namespace batch_answer
