// Batch lines in JSON. Each line is read a second time by a strict reader of its own: the two
// have to agree on whether it is a person, on every value, and on the further members.

#include "core/clock.h"
#include "tests/fuzz/batch_answer.h"
#include "tests/support/json_reader.h"
#include "tools/people_lines.h"
#include "tools/refusal.h"

#include <array>
#include <charconv>
#include <optional>

namespace {

using Kind = JsonValue::Kind;

constexpr std::array<std::u16string_view, 7> known{u"first", u"middle", u"last",     u"month",
                                                   u"day",   u"year",   u"birthdate"};

bool HasLoneSurrogate(std::u16string_view text) {
    for (std::size_t index = 0; index < text.size(); ++index)
        if (IsLoneSurrogate(text, index))
            return true;
    return false;
}

bool HasLoneSurrogate(const JsonValue &value) {
    return HasLoneSurrogate(value.text) ||
           std::ranges::any_of(value.items,
                               [](const JsonValue &item) { return HasLoneSurrogate(item); }) ||
           std::ranges::any_of(value.members, [](const auto &member) {
               return HasLoneSurrogate(member.first) || HasLoneSurrogate(member.second);
           });
}

/// Whether a number in `value` may be larger than the program reads, some 10^308: by the digits
/// that it has, or by its exponent.
bool HasHugeNumber(const JsonValue &value) {
    if (value.kind == Kind::Number) {
        constexpr std::size_t mostDigits = 290;
        constexpr int largestExponent = 290;
        const std::size_t letter = value.number.find_first_of("eE");
        if (std::min(letter, value.number.size()) > mostDigits)
            return true;
        if (letter == std::string::npos || value.number[letter + 1] == '-')
            return false;
        const std::size_t begin = letter + (value.number[letter + 1] == '+' ? 2 : 1);
        int exponent = 0;
        const auto end = value.number.data() + value.number.size();
        const auto [stop, error] = std::from_chars(value.number.data() + begin, end, exponent);
        return error != std::errc() || exponent > largestExponent;
    }
    return std::ranges::any_of(value.items, HasHugeNumber) ||
           std::ranges::any_of(value.members,
                               [](const auto &member) { return HasHugeNumber(member.second); });
}

/// The whole number that a number of JSON is, worked out on its digits. Nothing where it is
/// none or is larger than 10^15. `sure` is false where it has more digits than a number of the
/// machine holds, and so may be taken for a whole one that it is very near to.
std::optional<std::string> Whole(const std::string &number, bool &sure) {
    if (number.find_first_of(".eE") == std::string::npos)
        return number;
    const bool negative = number.front() == '-';
    std::string digits;
    long long exponent = 0;
    bool behindPoint = false;
    for (std::size_t at = negative ? 1 : 0; at < number.size(); ++at) {
        if (number[at] == '.') {
            behindPoint = true;
        } else if (number[at] == 'e' || number[at] == 'E') {
            at += number[at + 1] == '+' ? 2U : 1U;
            long long given = 0;
            const auto end = number.data() + number.size();
            const auto [stop, error] = std::from_chars(number.data() + at, end, given);
            if (error != std::errc())
                given = number[at] == '-' ? -1'000'000 : 1'000'000;
            exponent += std::clamp(given, -1'000'000LL, 1'000'000LL);
            break;
        } else {
            digits += number[at];
            exponent -= behindPoint ? 1 : 0;
        }
    }
    while (!digits.empty() && digits.back() == '0') {
        digits.pop_back();
        ++exponent;
    }
    digits.erase(0, digits.find_first_not_of('0'));
    sure = digits.size() <= 15;
    if (digits.empty())
        return "0";
    if (exponent < 0)
        return std::nullopt;
    if (exponent > 16 || digits.size() + static_cast<std::size_t>(exponent) > 16)
        return std::nullopt;
    digits.append(static_cast<std::size_t>(exponent), '0');
    if (digits.size() == 16 && digits != "1000000000000000")
        return std::nullopt;
    return (negative ? "-" : "") + digits;
}

/// What a line should give.
struct Expected {
    bool person = false;
    bool sure = true; ///< whether `person` can be relied on
    std::array<std::string, known.size()> values;
    JsonValue further;
};

Expected ExpectedOf(std::string_view line) {
    Expected expected;
    const auto value = JsonReader::Read(line);
    if (line.find('\0') != std::string_view::npos || !value || value->kind != Kind::Object ||
        HasLoneSurrogate(*value))
        return expected;
    expected.sure = !HasHugeNumber(*value);
    expected.further.kind = Kind::Object;
    std::vector<std::u16string_view> seen;
    for (const auto &[name, member] : value->members) {
        if (std::ranges::find(seen, name) != seen.end())
            return expected;
        seen.push_back(name);
        const auto found = std::ranges::find(known, name);
        if (found == known.end()) {
            expected.further.members.emplace_back(name, member);
            continue;
        }
        std::string &text = expected.values[static_cast<std::size_t>(found - known.begin())];
        if (member.kind == Kind::Text) {
            text = Utf8(member.text);
        } else if (member.kind == Kind::Number) {
            bool sure = true;
            const auto whole = Whole(member.number, sure);
            expected.sure = expected.sure && sure;
            if (!whole)
                return expected;
            text = *whole;
        } else if (member.kind != Kind::Null) {
            return expected;
        }
    }
    expected.person = true;
    return expected;
}

std::array<QString, known.size()> ValuesOf(const PersonInput &input) {
    return {input.first, input.middle, input.last, input.month, input.day, input.year, input.date};
}

/// The line that gives these values again.
std::string Again(const PersonLine &parsed) {
    std::string line = "{";
    const auto values = ValuesOf(parsed.person);
    for (std::size_t index = 0; index < known.size(); ++index) {
        line += (index == 0 ? "\"" : ",\"") + Utf8(known[index]) + "\":\"";
        for (const QChar unit : values[index]) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", unsigned{unit.unicode()});
            line += escaped;
        }
        line += '"';
    }
    if (!parsed.further.empty())
        line += ',' + parsed.further.substr(1, parsed.further.size() - 2);
    return line + '}';
}

void CheckLine(const std::string &line, PeopleLines &lines) {
    const Expected expected = ExpectedOf(line);
    std::optional<PersonLine> parsed;
    try {
        parsed = lines.Parse(line);
        Require(parsed.has_value(), "every line of JSON is answered", line);
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::WrongUse && !refusal.Line().isEmpty(),
                "a wrong line is refused as one", line);
    }
    if (!expected.sure)
        return;
    Require(parsed.has_value() == expected.person, "JSON with a person is read, all else is not",
            line);
    if (!parsed)
        return;
    const auto values = ValuesOf(parsed->person);
    for (std::size_t index = 0; index < known.size(); ++index)
        Require(Utf8(values[index].toStdU16String()) == expected.values[index],
                "the values are those of the line", line);
    Require(parsed->further.empty() == expected.further.members.empty(),
            "further members are carried", line);
    if (!parsed->further.empty()) {
        Require(IsQuiet(parsed->further), "further members are quiet", line);
        const auto further = JsonReader::Read(parsed->further);
        Require(further && *further == expected.further, "further members are as they stood", line);
    }
    const auto again = lines.Parse(Again(*parsed));
    Require(again && ValuesOf(again->person) == values && again->further == parsed->further,
            "what was read can be written and read again", line);
}

void Run(std::string_view bytes) {
    const modReadings::FixedClock day{std::chrono::year(2026) / 11 / 21};
    PeopleLines lines;
    bool begun = false;
    int answered = 0;
    for (const std::string_view piece : Pieces(bytes, '\n')) {
        const std::string line(piece);
        if (line.find_first_not_of(" \t") == std::string::npos)
            continue;
        if (!begun) {
            begun = true;
            try {
                if (lines.Begin(line))
                    return; // CSV, which is another target's
            } catch (const Refusal &refusal) {
                Require(refusal.Code() == ExitCode::WrongUse && !refusal.Line().isEmpty(),
                        "an input is refused with a message", line);
                Require(!JsonReader::Read(line) || line.find('[') != std::string::npos ||
                            line.find('"') != std::string::npos,
                        "JSON Lines are read", line);
                return;
            }
        }
        CheckLine(line, lines);
        if (isThorough && answered == 0)
            batch_answer::Check(line, lines, Format::Csv, true);
        if (isThorough && ++answered <= 3)
            batch_answer::Check(line, lines,
                                answered == 1   ? Format::Json
                                : answered == 2 ? Format::Csv
                                                : Format::Tsv);
    }
}

const FuzzTarget target("json_lines", Run);

} // namespace
