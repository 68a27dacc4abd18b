#include "tools/people_lines.h"

#include "tools/json_text.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <csv.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct Member {
    std::string_view name;
    QString PersonInput::*input;
};

constexpr std::array<Member, 7> members{{{"first", &PersonInput::first},
                                         {"middle", &PersonInput::middle},
                                         {"last", &PersonInput::last},
                                         {"month", &PersonInput::month},
                                         {"day", &PersonInput::day},
                                         {"year", &PersonInput::year},
                                         {"birthdate", &PersonInput::date}}};

const QString neededColumns =
    u"needed are first, last, and month, day and year or birthdate; middle may be there"_s;

QString PersonInput::*InputNamed(std::string_view name) {
    const auto found = std::ranges::find(members, name, &Member::name);
    return found == members.end() ? nullptr : found->input;
}

QString Quoted(std::string_view text) { return Excerpt(QString::fromUtf8(text)); }

std::string_view WithoutBlanks(std::string_view text, const char *blanks = " \t") {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

/// Without what may stand around a value of JSON, which is more than a blank of a CSV field.
std::string_view WithoutJsonBlanks(std::string_view text) { return WithoutBlanks(text, " \t\r\n"); }

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char &character : lower)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return lower;
}

/// Where the byte `offset` of UTF-8 stands, counted in characters from 1.
long long CharacterAt(std::string_view text, std::size_t offset) {
    return 1 + std::ranges::count_if(text.substr(0, offset), [](char byte) {
               return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
           });
}

/// Whether `line` begins as a JSON object does.
bool BeginsObject(std::string_view line) { return WithoutJsonBlanks(line).starts_with('{'); }

/// Throws Refusal for the first line of an input that is recognisably of another kind: one
/// message then stands for one about each line.
void RefuseOtherKinds(std::string_view line) {
    using namespace std::string_view_literals;
    const bool oneZeroOfTwo = line.size() >= 2 && (line[0] == '\0') != (line[1] == '\0');
    if (line.starts_with("\xFF\xFE"sv) || line.starts_with("\xFE\xFF"sv) || oneZeroOfTwo)
        throw Refusal(u"the input is UTF-16; give it as UTF-8, by iconv -f UTF-16 -t UTF-8"_s);
    if (line.starts_with("PK\x03\x04"sv))
        throw Refusal(u"the input is a ZIP archive or a spreadsheet; give what is in it as CSV or "
                      "JSON Lines"_s);
    for (const auto &[magic, name] : {std::pair("BZh"sv, "bzip2"_L1),
                                      {"\xFD"
                                       "7zXZ"sv,
                                       "xz"_L1},
                                      {"\x28\xB5\x2F\xFD"sv, "Zstandard"_L1}})
        if (line.starts_with(magic))
            throw Refusal(
                u"the input is compressed by %1; give it unpacked, or as gzip"_s.arg(name));
    const std::string_view inside = WithoutJsonBlanks(line);
    if (inside.starts_with('[') &&
        (WithoutJsonBlanks(inside.substr(1)).empty() || BeginsObject(inside.substr(1))))
        throw Refusal(u"the input is a JSON array; give one object a line, by jq -c '.[]'"_s);
}

/// The whole number that a JSON number is, 1984.0 and 1.984e3 too, in decimal. None for any
/// other.
std::optional<QString> WholeNumber(std::string_view number) {
    if (number.find_first_of(".eE") == std::string_view::npos)
        return QString::fromUtf8(number);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    constexpr double exact = 1e15; // up to here each whole number is a double of its own
    if (error != std::errc() || std::trunc(value) != value || std::abs(value) > exact)
        return std::nullopt;
    return QString::number(static_cast<long long>(value));
}

/// Receives what RapidJSON's reader finds in a line, which must be an object. Takes the known
/// members into a PersonInput and copies the others as they are.
class ObjectOfPerson : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ObjectOfPerson> {
public:
    PersonInput person;
    QString wrong; ///< the first thing that is wrong in a line that is JSON; or empty

    /// The other members as an object, or empty. To be called once.
    std::string Further() {
        if (seenOthers_.empty())
            return {};
        others_.EndObject();
        return {copy_.GetString(), copy_.GetSize()};
    }

    // What the reader calls. A result of false would end the reading.

    bool Null() {
        return IsKnownValue() || Value([&] { others_.Null(); });
    }
    bool Bool(bool value) {
        return Value([&] { others_.Bool(value); });
    }
    bool RawNumber(const char *digits, rapidjson::SizeType size, bool) {
        if (!IsKnownValue())
            return Value([&] { others_.RawValue(digits, size, rapidjson::kNumberType); });
        if (const auto whole = WholeNumber({digits, size}))
            person.*input_ = *whole;
        else
            Complain();
        return true;
    }
    bool String(const char *text, rapidjson::SizeType size, bool) {
        const auto whole = FromUtf8({text, size}); // half of a surrogate pair is not
        if (!whole)
            Complain();
        if (!IsKnownValue())
            return Value([&] { others_.String(text, size); });
        person.*input_ = whole.value_or(QString());
        return true;
    }
    bool StartObject() {
        if (depth_++ == 0)
            return true;
        return Value([&] { others_.StartObject(); });
    }
    bool EndObject(rapidjson::SizeType) {
        if (--depth_ == 0)
            return true;
        return Copy([&] { others_.EndObject(); });
    }
    bool StartArray() {
        ++depth_;
        return Value([&] { others_.StartArray(); });
    }
    bool EndArray(rapidjson::SizeType) {
        --depth_;
        return Copy([&] { others_.EndArray(); });
    }
    bool Key(const char *text, rapidjson::SizeType size, bool) {
        const std::string_view name(text, size);
        if (depth_ == 1)
            name_ = name;
        if (!FromUtf8(name))
            Complain();
        if (depth_ > 1)
            return Copy([&] { others_.Key(text, size); });
        input_ = InputNamed(name);
        const bool first = input_ == nullptr ? seenOthers_.emplace(name).second
                                             : std::ranges::find(seen_, input_) == seen_.end();
        if (!first && wrong.isEmpty())
            wrong = u"the member \"%1\" stands there twice; give it once"_s.arg(Quoted(name_));
        if (input_ != nullptr) {
            seen_.push_back(input_);
        } else {
            if (first && seenOthers_.size() == 1)
                others_.StartObject();
            others_.Key(text, size);
        }
        return true;
    }

private:
    /// Whether what comes is the value of a known member, and not within one.
    bool IsKnownValue() const { return depth_ == 1 && input_ != nullptr; }

    /// Copies a part of another member; of a known one, parts are not wanted.
    template <typename Write> bool Copy(Write write) {
        if (input_ == nullptr)
            write();
        return true;
    }

    /// The same for a value that a known member cannot have.
    template <typename Write> bool Value(Write write) {
        if (input_ != nullptr)
            Complain();
        return Copy(write);
    }

    void Complain() {
        if (wrong.isEmpty())
            wrong =
                u"%1 is neither a text of whole characters nor a whole number"_s.arg(Quoted(name_));
    }

    int depth_ = 0;
    std::string name_;                      ///< of the member that is being read
    QString PersonInput::*input_ = nullptr; ///< where it belongs; nullptr for a further one
    std::vector<QString PersonInput::*> seen_;
    std::unordered_set<std::string> seenOthers_;
    OutsideBuffer copy_;
    OutsideJson others_{copy_};
};

PersonLine ParseJson(const std::string &line) {
    if (!BeginsObject(line))
        throw Refusal(u"not a JSON object, and the first line is no CSV header; "_s +
                      neededColumns);
    ObjectOfPerson object;
    // With its end, because RapidJSON looks for the rest of a character behind the end of a text
    // that stops within one.
    rapidjson::MemoryStream stream(line.data(), line.size());
    rapidjson::Reader reader;
    // Iteratively, because a line of a million brackets must not exhaust the stack. Numbers as
    // they stand, because a further one is carried without loss.
    constexpr unsigned flags = rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseIterativeFlag |
                               rapidjson::kParseNumbersAsStringsFlag;
    if (!reader.Parse<flags>(stream, object)) {
        const rapidjson::ParseErrorCode code = reader.GetParseErrorCode();
        const auto place = CharacterAt(line, reader.GetErrorOffset());
        if (code == rapidjson::kParseErrorNumberTooBig) // JSON it is
            throw Refusal(u"a number beyond 10^308 cannot be read (at character %1)"_s.arg(place));
        throw Refusal(u"not JSON: %1 (at character %2)"_s
                          .arg(QString::fromUtf8(rapidjson::GetParseError_En(code)))
                          .arg(place));
    }
    if (!object.wrong.isEmpty())
        throw Refusal(object.wrong);
    return {std::move(object.person), object.Further()};
}

} // namespace

/// The fields of one row. Blanks in a field are part of it.
class PeopleLines::CsvRow {
public:
    CsvRow(std::string_view row, char separator) {
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&parser, static_cast<unsigned char>(separator));
        csv_set_space_func(&parser, [](unsigned char) { return 0; });
        csv_set_term_func(&parser, [](unsigned char) { return 0; }); // the line is cut already
        const auto field = [](void *text, std::size_t size, void *self) {
            static_cast<CsvRow *>(self)->fields.emplace_back(static_cast<const char *>(text), size);
        };
        const std::size_t parsed = csv_parse(&parser, row.data(), row.size(), field, nullptr, this);
        if (parsed != row.size())
            error = u"a quotation mark stands out of place (at character %1)"_s.arg(
                CharacterAt(row, parsed));
        else if (csv_fini(&parser, field, nullptr, this) != 0)
            leftOpen = true;
        csv_free(&parser);
        if (leftOpen)
            error = u"a quotation mark is left open; no field goes on behind a line break"_s;
    }

    std::vector<std::string> fields;
    QString error; ///< empty when the row is well formed
    bool leftOpen = false;
};

namespace {

/// How many of the fields of `line` are known columns, when cut at `separator`.
auto ColumnsNamed(std::string_view line, char separator) {
    std::ptrdiff_t named = 0;
    for (std::size_t begin = 0; begin <= line.size();) {
        const std::size_t end = std::min(line.find(separator, begin), line.size());
        std::string_view field = WithoutBlanks(line.substr(begin, end - begin));
        if (field.size() >= 2 && field.starts_with('"') && field.ends_with('"'))
            field = field.substr(1, field.size() - 2);
        named += InputNamed(LowerCase(WithoutBlanks(field))) != nullptr ? 1 : 0;
        begin = end + 1;
    }
    return named;
}

} // namespace

bool PeopleLines::Begin(const std::string &line) {
    RefuseOtherKinds(line);
    if (BeginsObject(line) && !given_)
        return false;
    separator_ = given_ ? *given_ : ColumnsNamed(line, '\t') > ColumnsNamed(line, ',') ? '\t' : ',';
    const std::ptrdiff_t named = ColumnsNamed(line, separator_);
    for (const char other : {';', '|', ':', ' '})
        if (ColumnsNamed(line, other) > std::max<std::ptrdiff_t>(1, named))
            throw Refusal(
                given_ ? u"the columns of the header are separated by \"%1\" and not as "
                         "--delimiter says"_s.arg(QLatin1Char(other))
                       : u"the columns of the header are separated by \"%1\"; give commas or tabs, "
                         "or --delimiter \"%1\""_s.arg(QLatin1Char(other)));
    if (given_ && named == 0)
        throw Refusal(u"the line is no CSV header with the separator of --delimiter; "_s +
                      neededColumns);
    if (named == 0)
        return false;

    const CsvRow header(line, separator_);
    if (!header.error.isEmpty())
        throw Refusal(u"the header is not CSV: "_s + header.error);
    const auto has = [&](QString PersonInput::*input) {
        return std::ranges::find(columns_, input, &Column::input) != columns_.end();
    };
    std::unordered_set<std::string> further; // a set, since a line has room for 300,000 columns
    for (const std::string &field : header.fields) {
        std::string name(WithoutBlanks(field));
        QString PersonInput::*const input = InputNamed(LowerCase(name));
        const bool twice =
            input != nullptr ? has(input) : !name.empty() && !further.insert(name).second;
        if (twice)
            throw Refusal(
                u"the header has the column \"%1\" twice; give it once"_s.arg(Quoted(name)));
        if (!FromUtf8(name))
            throw Refusal(u"the header is not UTF-8"_s);
        columns_.push_back({std::move(name), input});
    }
    for (const Member &member : members) {
        const bool optional = member.input == &PersonInput::middle ||
                              member.input == &PersonInput::date ||
                              (has(&PersonInput::date) && member.input != &PersonInput::first &&
                               member.input != &PersonInput::last);
        if (!optional && !has(member.input))
            throw Refusal(u"the header lacks the column \"%1\"; %2"_s.arg(
                QString::fromUtf8(member.name), neededColumns));
    }
    return true;
}

std::optional<PersonLine> PeopleLines::Parse(const std::string &line) {
    if (const std::size_t zero = line.find('\0'); zero != std::string::npos)
        throw Refusal(
            u"a NUL character stands in the line (at character %1)"_s.arg(CharacterAt(line, zero)));
    return columns_.empty() ? ParseJson(line) : ParseCsv(line);
}

namespace {

/// How far the end of a row with an open quotation mark is looked for. Each further line reads
/// the whole again, so without a limit many of them would take for ever.
constexpr std::size_t longestOpenRow = 16'384;

} // namespace

std::optional<PersonLine> PeopleLines::ParseCsv(const std::string &line) {
    const CsvRow row(line, separator_);
    const auto fits = [&](const CsvRow &each) {
        return each.error.isEmpty() && each.fields.size() == columns_.size();
    };
    if (!open_.empty() && !fits(row)) {
        // By itself the line is no row; it may be the rest of the one that is open.
        std::string whole = std::exchange(open_, {}) + '\n' + line;
        const CsvRow joined(whole, separator_);
        if (fits(joined))
            return std::nullopt;
        if (joined.leftOpen && whole.size() <= longestOpenRow)
            open_ = std::move(whole);
    } else {
        open_.clear();
    }
    if (row.leftOpen && open_.empty())
        open_ = line;
    return PersonIn(row);
}

std::optional<PersonLine> PeopleLines::PersonIn(const CsvRow &row) const {
    if (!row.error.isEmpty())
        throw Refusal(u"not CSV: "_s + row.error);
    if (row.fields.size() != columns_.size())
        throw Refusal(
            u"%1 fields where the header has %2"_s.arg(row.fields.size()).arg(columns_.size()));
    PersonLine found;
    OutsideBuffer buffer;
    OutsideJson further(buffer);
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const Column &column = columns_[index];
        const auto text = FromUtf8(row.fields[index]);
        if (!text)
            throw Refusal(u"not UTF-8"_s);
        if (column.input == nullptr) {
            if (column.name.empty()) // such as those behind the last comma of a spreadsheet
                continue;
            if (buffer.GetSize() == 0)
                further.StartObject();
            further.Key(column.name.data(), static_cast<rapidjson::SizeType>(column.name.size()));
            WriteString(further, row.fields[index]);
            continue;
        }
        const bool isName = column.input == &PersonInput::first ||
                            column.input == &PersonInput::middle ||
                            column.input == &PersonInput::last;
        found.person.*column.input =
            isName ? *text : FromUtf8(WithoutBlanks(row.fields[index])).value_or(QString());
    }
    if (buffer.GetSize() != 0) {
        further.EndObject();
        found.further.assign(buffer.GetString(), buffer.GetSize());
    }
    return found;
}
