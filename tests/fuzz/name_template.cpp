// Names of files from any template and any names: template, first, middle and last name, a line
// number and an ending, with the byte FF between them.

#include "tests/fuzz/fuzz.h"
#include "tools/file_names.h"
#include "tools/refusal.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace {

using namespace Qt::StringLiterals;

constexpr long long mostLines = 1'000'000'000'000'000; // what --first-line takes

long long LineFrom(std::string_view text) {
    long long line = 0;
    for (const char character : text.substr(0, 16))
        line = line * 10 + static_cast<unsigned char>(character) % 10;
    return std::clamp(line, 1LL, mostLines);
}

/// What holds for every name of a file. `line` is in it, unless it is 0.
void CheckName(const QString &name, long long line, const QString &ending,
               const std::string &pattern) {
    const std::string bytes = Utf8(name.toStdU16String());
    const std::string shown = pattern + "\n" + bytes;
    Require(!bytes.empty() && bytes.size() <= 255, "a name has 1 to 255 bytes", shown);
    const std::u16string units = name.toStdU16String();
    for (std::size_t index = 0; index < units.size(); ++index)
        Require(!IsLoneSurrogate(units, index), "a name has whole characters", shown);
    Require(IsQuiet(bytes), "a name does nothing to a terminal", shown);
    Require(bytes.find_first_of("/\\:*?\"<>|") == std::string::npos, "a name is no path", shown);
    Require(bytes.front() != '.' && bytes.front() != '-' && bytes.front() != ' ',
            "a name is neither hidden nor an option", shown);
    Require(name.endsWith(ending), "a name has its ending", shown);
    Require(line == 0 || bytes.find(std::to_string(line)) != std::string::npos,
            "a name has its line", shown);

    const std::filesystem::path folder = "/srv/people";
    Require((folder / bytes).lexically_normal().parent_path() == folder,
            "a file stays in its folder", shown);

    // Devices of other systems, with anything behind the first dot.
    std::string stem = bytes.substr(0, bytes.find('.'));
    stem.erase(stem.find_last_not_of(' ') + 1);
    std::ranges::transform(stem, stem.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    for (const std::string device : {"CON", "PRN", "AUX", "NUL"})
        Require(stem != device, "a name is no device", shown);
    for (const std::string device : {"COM", "LPT"})
        Require(!(stem.size() == 4 && stem.starts_with(device) && stem[3] >= '0' && stem[3] <= '9'),
                "a name is no device", shown);
}

void Run(std::string_view bytes) {
    std::vector<std::string_view> parts = Pieces(bytes, '\xFF');
    parts.resize(6);
    const std::string pattern(parts[0]);
    const QString ending = parts[5].empty() ? u".txt"_s : u".rtf"_s;
    for (const std::string_view part : parts) // any text as the name of a file by itself
        CheckName(SafeFileName(QStringView(AnyUnits(part)).toString(), ending), 0, ending, pattern);

    std::optional<FileNames> names;
    try {
        names.emplace(QStringView(AnyUnits(pattern)).toString());
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::WrongUse &&
                    refusal.Line().startsWith(u"--name-template: "_s),
                "a template is refused with a message", pattern);
        return;
    }
    modReadings::UserProfile person;
    person.FirstName = AnyUnits(parts[1]);
    person.MiddleName = AnyUnits(parts[2]);
    person.LastName = AnyUnits(parts[3]);
    const long long line = LineFrom(parts[4]);
    const QString name = names->Of(person, line, ending);
    CheckName(name, line, ending, pattern);

    // Nobody else gets the same name, not even a person who has tried for it.
    modReadings::UserProfile other;
    other.FirstName = person.LastName + person.FirstName;
    other.MiddleName = person.FirstName;
    other.LastName = AnyUnits(std::to_string(line)) + person.LastName;
    for (const long long otherLine : {line + 1, line * 10, line / 10, line * 100 + 1})
        if (otherLine >= 1 && otherLine <= mostLines && otherLine != line) {
            for (const auto &each : {person, other}) {
                const QString theirs = names->Of(each, otherLine, ending);
                CheckName(theirs, otherLine, ending, pattern);
                Require(theirs.compare(name, Qt::CaseInsensitive) != 0, "two lines have two names",
                        pattern);
            }
        }
}

const FuzzTarget target("name_template", Run);

} // namespace
