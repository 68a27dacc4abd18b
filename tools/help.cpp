#include "tools/help.h"

#include "report/topic_tree.h"
#include "tools/option_table.h"
#include "tools/reading.h"
#include "tools/text.h"
#include "tools/wrapping.h"

#include <optional>

namespace {

constexpr std::size_t column = 26; ///< where the descriptions begin

/// "  -f, --format FORMAT", filled up to the column of the description or broken before it.
std::string Spelling(const OptionRow &row) {
    std::string text = row.letter == 0 ? "      " : std::string("  -") + row.letter + ", ";
    text.append("--").append(row.name);
    if (!row.value.empty())
        text.append(" ").append(row.value);
    if (text.size() + 2 > column)
        return text + '\n' + std::string(column, ' ');
    return text + std::string(column - text.size(), ' ');
}

} // namespace

std::string HelpText() {
    std::string text = R"(Usage:
  orravane-report --first NAME --last NAME --date YYYY-MM-DD [OPTION]...
  orravane-report --batch FILE... [OPTION]...
  orravane-report --book [OPTION]...

The Orravane numerology report without the window.
)";
    std::optional<OptionGroup> group;
    for (const OptionRow &row : OptionTable()) {
        if (group != row.group) {
            group = row.group;
            text.append("\n").append(HeadingOf(row.group)).append(":\n");
        }
        text += Spelling(row);
        AppendWrapped(text, WordsOf(row.help), column);
    }
    text += R"(
A value may also follow an equals sign: --format=json.

Examples:
  orravane-report --first Ada --last Moreau --date 1984-05-07
  orravane-report --first Ada --last Moreau --month May --day 7 --year 1984 \
      --topic "Comprehensive Reading" -f rtf -o ada.rtf
  orravane-report --first Ada --last Moreau --date 1984-05-07 --explain
  orravane-report --batch people.csv --topic "Life Path Number" > numbers.jsonl
  orravane-report --batch people.csv.gz --output-dir reports

Exit codes: 0 success, 1 some lines of a batch were wrong, 2 wrong use,
3 the input could not be read or the output could not be written.
For details see the man page orravane-report(1).
)";
    return text;
}

std::string TopicList() {
    std::string list;
    for (const std::u16string_view caption : AllCaptions())
        list += ToUtf8(caption) + '\n';
    return list + ToUtf8(modReadings::captions::comprehensiveReading) + '\n';
}
