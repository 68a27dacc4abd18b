// Batch lines in CSV under a header. The first byte of an input is the separator of --delimiter,
// or "?" for none. Each row is cut a second time by a strict reader of its own, and what a row
// gives must not depend on which process reads it.

#include "core/clock.h"
#include "tests/fuzz/batch_answer.h"
#include "tests/support/csv_reader.h"
#include "tests/support/json_reader.h"
#include "tools/people.h"
#include "tools/people_lines.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <array>
#include <map>
#include <optional>

namespace {

constexpr std::array<std::string_view, 7> known{"first", "middle", "last",     "month",
                                                "day",   "year",   "birthdate"};

std::string Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(" \t");
    if (begin == std::string_view::npos)
        return {};
    return std::string(text.substr(begin, text.find_last_not_of(" \t") + 1 - begin));
}

std::string Small(std::string text) {
    for (char &character : text)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character | 0x20);
    return text;
}

/// A row as it was read: the values of the known columns, behind them the further ones; or
/// what became of it otherwise.
struct Result {
    enum class Kind { Person, Rest, Wrong };
    Kind kind = Kind::Wrong;
    std::array<std::string, known.size()> values;
    std::string further;

    friend bool operator==(const Result &, const Result &) = default;
};

Result ResultOf(PeopleLines &lines, const std::string &row) {
    Result result;
    try {
        const auto parsed = lines.Parse(row);
        result.kind = parsed ? Result::Kind::Person : Result::Kind::Rest;
        if (!parsed)
            return result;
        const PersonInput &person = parsed->person;
        const std::array<QString, known.size()> values{person.first, person.middle, person.last,
                                                       person.month, person.day,    person.year,
                                                       person.date};
        for (std::size_t index = 0; index < known.size(); ++index)
            result.values[index] = Utf8(values[index].toStdU16String());
        result.further = parsed->further;
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::WrongUse && !refusal.Line().isEmpty(),
                "a wrong row is refused as one", row);
    }
    return result;
}

/// The columns of a header that was accepted, as they are spelled.
std::vector<std::string> ColumnsOf(const std::string &header, char separator) {
    const auto fields = CsvFields(header, separator);
    Require(fields.has_value(), "a header that is taken is CSV", header);
    std::map<std::string, int> seen;
    std::vector<std::string> columns;
    for (const std::string &field : *fields) {
        const std::string name = Trimmed(field);
        const bool isKnown = std::ranges::find(known, Small(name)) != known.end();
        const std::string &column = columns.emplace_back(isKnown ? Small(name) : name);
        Require(column.empty() || seen[column]++ == 0, "no column stands in a header twice",
                header);
        Require(IsUtf8(column), "a header that is taken is UTF-8", header);
    }
    const auto has = [&](const char *name) { return seen.contains(name); };
    Require(has("first") && has("last") &&
                (has("birthdate") || (has("month") && has("day") && has("year"))),
            "a header that is taken has the needed columns", header);
    return columns;
}

/// What a row that stands by itself has to give.
Result ExpectedOf(const std::string &row, const std::vector<std::string> &columns, char separator) {
    Result expected;
    const auto fields = CsvFields(row, separator);
    if (row.find('\0') != std::string::npos || !fields || fields->size() != columns.size() ||
        !std::ranges::all_of(*fields, IsUtf8))
        return expected;
    expected.kind = Result::Kind::Person;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const auto found = std::ranges::find(known, columns[index]);
        if (found == known.end())
            continue;
        const bool isName = found - known.begin() < 3;
        expected.values[static_cast<std::size_t>(found - known.begin())] =
            isName ? (*fields)[index] : Trimmed((*fields)[index]);
    }
    return expected;
}

void CheckFurther(const std::string &further, const std::string &row,
                  const std::vector<std::string> &columns, char separator) {
    const auto fields = CsvFields(row, separator);
    JsonValue expected;
    expected.kind = JsonValue::Kind::Object;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        if (columns[index].empty() || std::ranges::find(known, columns[index]) != known.end())
            continue;
        JsonValue text;
        text.kind = JsonValue::Kind::Text;
        text.text = AnyUnits((*fields)[index]);
        expected.members.emplace_back(AnyUnits(columns[index]), text);
    }
    Require(further.empty() == expected.members.empty(), "further columns are carried", row);
    if (further.empty())
        return;
    Require(IsQuiet(further), "further columns are quiet", further);
    const auto object = JsonReader::Read(further);
    Require(object && *object == expected, "further columns are as they stood", row);
}

/// The row with a quotation mark around each field.
std::string Quoted(const std::string &row, char separator) {
    std::string quoted;
    const auto fields = CsvFields(row, separator);
    for (std::size_t index = 0; index < fields->size(); ++index) {
        if (index > 0)
            quoted += separator;
        quoted += '"';
        for (const char character : (*fields)[index])
            quoted.append(character == '"' ? 2 : 1, character);
        quoted += '"';
    }
    return quoted;
}

bool IsSeparator(char character) {
    return character == '\t' ||
           (character >= ' ' && character <= '~' && character != '"' &&
            !(character >= '0' && character <= '9') && !(character >= 'A' && character <= 'Z') &&
            !(character >= 'a' && character <= 'z'));
}

void Run(std::string_view bytes) {
    if (bytes.empty() || !IsSeparator(bytes.front()))
        return;
    const modReadings::FixedClock day{std::chrono::year(2026) / 11 / 21};
    std::optional<char> given;
    if (bytes.front() != '?')
        given = bytes.front();
    std::vector<std::string> rows;
    for (const std::string_view piece : Pieces(bytes.substr(1), '\n'))
        if (piece.find_first_not_of(" \t") != std::string_view::npos)
            rows.emplace_back(piece);
    if (rows.empty())
        return;
    const std::string header = rows.front();
    rows.erase(rows.begin());
    PeopleLines begun(given);
    try {
        if (!begun.Begin(header))
            return; // JSON Lines, which are another target's
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::WrongUse && !refusal.Line().isEmpty(),
                "an input is refused with a message", header);
        return;
    }

    // Which separator was found out shows in the header.
    const auto named = [&](char separator) {
        int count = 0;
        for (const std::string_view piece : Pieces(header, separator)) {
            std::string name = Small(Trimmed(piece));
            if (name.size() >= 2 && name.front() == '"' && name.back() == '"')
                name = Trimmed(std::string_view(name).substr(1, name.size() - 2));
            count += std::ranges::find(known, name) != known.end() ? 1 : 0;
        }
        return count;
    };
    const char found = named('\t') > named(',') ? '\t' : ',';
    const char separator = given.value_or(found);
    const std::vector<std::string> columns = ColumnsOf(header, separator);

    PeopleLines lines = begun;
    std::vector<Result> results;
    for (const std::string &row : rows) {
        const bool open = !lines.OpenRows().empty();
        const Result result = results.emplace_back(ResultOf(lines, row));
        const Result expected = ExpectedOf(row, columns, separator);
        if (result.kind == Result::Kind::Rest) {
            Require(open, "only behind an open row stands the rest of one", row);
            const auto fields = CsvFields(row, separator);
            Require(!fields || fields->size() != columns.size(), "a row of its own is never a rest",
                    row);
            continue;
        }
        Require(result.kind == expected.kind && result.values == expected.values,
                "a row gives what stands in it", row);
        if (result.kind == Result::Kind::Person) {
            CheckFurther(result.further, row, columns, separator);
            PeopleLines fresh = begun;
            Require(ResultOf(fresh, Quoted(row, separator)) == result,
                    "quotation marks around the fields change nothing", row);
        }
    }

    // With --jobs the rows behind any line may be another process's.
    for (std::size_t first = 0; first < rows.size() && first < 8; ++first) {
        PeopleLines before = begun;
        for (std::size_t index = 0; index < first; ++index)
            ResultOf(before, rows[index]);
        PeopleLines behind(given);
        behind.Begin(header);
        behind.ContinueBehind(before.OpenRows());
        for (std::size_t index = first; index < rows.size(); ++index)
            Require(ResultOf(behind, rows[index]) == results[index],
                    "a row gives the same in another process", rows[index]);
    }

    for (std::size_t index = 0; isThorough && index < rows.size() && index < 3; ++index) {
        const Format format = index == 0 ? Format::Csv : index == 1 ? Format::Tsv : Format::Json;
        PeopleLines fresh = begun;
        batch_answer::Check(rows[index], fresh, format, true);
        if (results[index].kind == Result::Kind::Rest) {
            // Read behind the rows before it, where it has no answer of its own.
            PeopleLines before = begun;
            for (std::size_t row = 0; row < index; ++row)
                ResultOf(before, rows[row]);
            const batch_answer::Answer none = batch_answer::Check(rows[index], before, format);
            Require(!none.person && none.row.empty(), "the rest of a row has no answer", bytes);
        }
        const batch_answer::Answer answer = batch_answer::Check(rows[index], fresh, format);
        if (!answer.person || format != Format::Csv)
            continue;
        // The rows that come out are rows that can go in, with the same person in them.
        PeopleLines numbers;
        Require(numbers.Begin(answer.header), "the header of numbers is one of people",
                answer.header);
        const Result again = ResultOf(numbers, answer.row);
        const modReadings::UserProfile person = CheckPerson(fresh.Parse(rows[index])->person);
        const auto shown = [](const std::u16string &text) {
            return OneLine(QStringView(text).toString());
        };
        Require(again.kind == Result::Kind::Person && again.values[0] == shown(person.FirstName) &&
                    again.values[1] == shown(person.MiddleName) &&
                    again.values[2] == shown(person.LastName) &&
                    again.values[3] == shown(person.BirthMonth) &&
                    again.values[4] == shown(person.BirthDay) &&
                    again.values[5] == shown(person.BirthYear),
                "a row of numbers has the person", answer.row);
    }
}

const FuzzTarget target("csv_lines", Run);

} // namespace
