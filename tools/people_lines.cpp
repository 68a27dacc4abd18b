#include "tools/people_lines.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <csv.h>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Member {
    std::string_view name;
    QString PersonInput::*input;
};

constexpr std::array<Member, 6> members{{{"first", &PersonInput::first},
                                         {"middle", &PersonInput::middle},
                                         {"last", &PersonInput::last},
                                         {"month", &PersonInput::month},
                                         {"day", &PersonInput::day},
                                         {"year", &PersonInput::year}}};

const QString allowedMembers = u"allowed are first, middle, last, month, day and year"_s;

QString PersonInput::*InputNamed(std::string_view name) {
    const auto found = std::ranges::find(members, name, &Member::name);
    return found == members.end() ? nullptr : found->input;
}

/// The fields of one CSV line. Blanks in a field are part of it.
class CsvLine {
public:
    explicit CsvLine(const std::string &line) {
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_space_func(&parser, [](unsigned char) { return 0; });
        csv_set_term_func(&parser, [](unsigned char) { return 0; }); // the line is cut already
        const auto field = [](void *text, std::size_t size, void *self) {
            static_cast<CsvLine *>(self)->fields.emplace_back(static_cast<const char *>(text),
                                                              size);
        };
        if (csv_parse(&parser, line.data(), line.size(), field, nullptr, this) != line.size() ||
            csv_fini(&parser, field, nullptr, this) != 0)
            error = csv_strerror(csv_error(&parser));
        csv_free(&parser);
    }

    std::vector<std::string> fields;
    std::string error; ///< empty when the line is well formed
};

/// A JSON string as it is, a whole number in decimal. None for any other value, nor for a
/// string with half of a surrogate pair in it.
std::optional<QString> Value(const rapidjson::Value &value) {
    if (value.IsString())
        return FromUtf8({value.GetString(), value.GetStringLength()});
    if (value.IsInt64())
        return QString::number(value.GetInt64());
    return std::nullopt;
}

/// Whether `line` begins as a JSON object does.
bool BeginsObject(const std::string &line) {
    const std::size_t begin = line.find_first_not_of(" \t\r");
    return begin != std::string::npos && line[begin] == '{';
}

/// Whether a first line with these fields can be meant as a header.
bool NamesAColumn(const CsvLine &line) {
    return std::ranges::any_of(
        line.fields, [](const std::string &field) { return InputNamed(field) != nullptr; });
}

PersonInput ParseJson(const std::string &line) {
    if (!BeginsObject(line))
        throw Refusal(u"not a JSON object, and the first line is no CSV header; "_s +
                      allowedMembers);
    rapidjson::Document document;
    // Iteratively, because a line of a million brackets must not exhaust the stack.
    document.Parse<rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag>(
        line.data(), line.size());
    if (document.HasParseError())
        throw Refusal(
            u"not JSON: %1 (at byte %2)"_s
                .arg(QString::fromUtf8(rapidjson::GetParseError_En(document.GetParseError())))
                .arg(document.GetErrorOffset() + 1));

    PersonInput person;
    std::vector<QString PersonInput::*> given;
    // By index: the library's iterators do not compare in C++20 as a range loop wants.
    for (rapidjson::SizeType index = 0; index < document.MemberCount(); ++index) {
        const auto &member = *(document.MemberBegin() + index);
        const std::string_view bytes(member.name.GetString(), member.name.GetStringLength());
        const QString name = Excerpt(QString::fromUtf8(bytes));
        QString PersonInput::*input = InputNamed(bytes);
        if (input == nullptr)
            throw Refusal(u"the member \"%1\" is not allowed; %2"_s.arg(name, allowedMembers));
        if (std::ranges::find(given, input) != given.end())
            throw Refusal(u"the member \"%1\" stands there twice; give it once"_s.arg(name));
        given.push_back(input);
        const auto value = Value(member.value);
        if (!value)
            throw Refusal(
                u"%1 is neither a text of whole characters nor a whole number"_s.arg(name));
        person.*input = *value;
    }
    return person;
}

} // namespace

bool PeopleLines::Begin(const std::string &line) {
    if (BeginsObject(line))
        return false;
    const CsvLine header(line);
    if (!NamesAColumn(header))
        return false;

    for (const std::string &name : header.fields) {
        QString PersonInput::*input = InputNamed(name);
        if (input == nullptr || std::ranges::find(columns_, input) != columns_.end())
            throw Refusal(u"the header has the column \"%1\" %2; %3"_s.arg(
                Excerpt(QString::fromUtf8(name)),
                input == nullptr ? u"that is not allowed"_s : u"twice"_s, allowedMembers));
        columns_.push_back(input);
    }
    for (const Member &member : members)
        if (member.name != "middle" && std::ranges::find(columns_, member.input) == columns_.end())
            throw Refusal(u"the header lacks the column \"%1\"; %2"_s.arg(
                QString::fromUtf8(member.name), allowedMembers));
    if (!header.error.empty())
        throw Refusal(u"the header is not CSV: "_s + QString::fromStdString(header.error));
    return true;
}

PersonInput PeopleLines::Parse(const std::string &line) const {
    return columns_.empty() ? ParseJson(line) : ParseCsv(line);
}

PersonInput PeopleLines::ParseCsv(const std::string &line) const {
    const CsvLine csv(line);
    if (!csv.error.empty())
        throw Refusal(u"not CSV: "_s + QString::fromStdString(csv.error));
    if (csv.fields.size() != columns_.size())
        throw Refusal(
            u"%1 fields where the header has %2"_s.arg(csv.fields.size()).arg(columns_.size()));
    PersonInput person;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const auto text = FromUtf8(csv.fields[index]);
        if (!text)
            throw Refusal(u"not UTF-8"_s);
        person.*columns_[index] = *text;
    }
    return person;
}
