#include "core/text.h"
#include "numbers/essence.h"
#include "tools/explanation.h"
#include "tools/text.h"
#include "tools/wrapping.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace modReadings;

namespace {

using Pieces = std::vector<std::string>;
using StepKind = Trace::StepKind;

// The rows of a sheet: a label, and what is said of it.

/// Appends "  label    pieces", the pieces from `column` on.
void AppendRow(std::string &text, std::string_view label, const Pieces &pieces,
               std::size_t column) {
    text.append("  ").append(label);
    text.append(column - 2 - Columns(label), ' ');
    AppendWrapped(text, pieces, column);
}

struct Row {
    std::string label;
    Pieces pieces;
};

/// All rows with their pieces below each other.
void AppendRows(std::string &text, const std::vector<Row> &rows) {
    std::size_t widest = 0;
    for (const Row &row : rows)
        widest = std::max(widest, Columns(row.label));
    for (const Row &row : rows)
        AppendRow(text, row.label, row.pieces, widest + 4);
}

void Append(Pieces &pieces, Pieces &&more) { std::ranges::move(more, std::back_inserter(pieces)); }

/// Puts a comma or the like behind what there is.
void Close(Pieces &pieces, std::string_view mark) {
    if (!pieces.empty())
        pieces.back() += mark;
}

// Steps of arithmetic.

/// The signs stand with what follows them: a line never ends in one.
Pieces Signed(const std::vector<int16> &terms, int16 result) {
    Pieces pieces;
    for (const int16 term : terms)
        pieces.push_back((pieces.empty() ? "" : "+ ") + std::to_string(term));
    pieces.push_back("= " + std::to_string(result));
    return pieces;
}

Pieces PiecesOf(const Trace::Step &step) {
    switch (step.kind) {
    case StepKind::MasterStays:
        return {ToUtf8(step.from), "is", "a", "master", "number", "and", "stays"};
    case StepKind::Month: {
        Pieces pieces{step.from.empty() ? "none" : ToUtf8(step.from), "counts",
                      std::to_string(step.result)};
        if (step.result == 0)
            Append(pieces, {"as", "no", "English", "month"});
        return pieces;
    }
    case StepKind::MonthByDigit:
        return {ToUtf8(step.from),
                "counts",
                std::to_string(step.result) + ",",
                "as",
                "the",
                "name",
                "ends",
                "in",
                std::to_string(step.terms.front())};
    case StepKind::Share:
        return {std::to_string(step.terms[0]), "of", std::to_string(step.terms[1]), "characters,",
                std::to_string(step.result) + " %"};
    case StepKind::Gap:
    case StepKind::Difference: {
        const bool turned = step.kind == StepKind::Gap && step.terms[0] < step.terms[1];
        return {std::to_string(step.terms[turned ? 1 : 0]),
                "- " + std::to_string(step.terms[turned ? 0 : 1]),
                "= " + std::to_string(step.result)};
    }
    case StepKind::DigitSum:
        if (step.terms.size() == 1)
            return {std::to_string(step.result)};
        break;
    case StepKind::Fold:
    case StepKind::Sum:
        break;
    }
    return Signed(step.terms, step.result);
}

/// The steps with commas between them. What a step starts from is said where it is not what the
/// step before has come to.
Pieces PiecesOf(const std::vector<Trace::Step> &steps) {
    Pieces pieces;
    std::u16string last;
    for (const Trace::Step &step : steps) {
        if (step.terms.size() == 1 && step.from == last)
            continue; // a single digit stays as it is
        Close(pieces, ",");
        const bool reduces = step.kind == StepKind::DigitSum || step.kind == StepKind::Fold;
        if (step.kind == StepKind::Fold && step.from.size() > 2)
            Append(pieces, {"first", "and", "last", "digit", "of", ToUtf8(step.from) + ":"});
        else if (reduces && step.terms.size() > 1 && step.from != last)
            pieces.push_back(ToUtf8(step.from) + ":");
        Append(pieces, PiecesOf(step));
        last = DecimalText(step.result);
    }
    return pieces;
}

// Letters of a line.

/// "O 6 + A 1 + K 2 = 9".
Pieces SumOf(const std::vector<Trace::Letter> &letters) {
    Pieces pieces;
    int16 total = 0;
    for (const Trace::Letter &letter : letters) {
        if (!letter.counted)
            continue;
        pieces.push_back((pieces.empty() ? "" : "+ ") + Shown(letter.character) + ' ' +
                         std::to_string(letter.value));
        total = letter.total;
    }
    if (pieces.empty())
        return {"no", "letter", "counts"};
    if (pieces.size() > 1)
        pieces.push_back("= " + std::to_string(total));
    return pieces;
}

/// "O to 6, A to 7, K to 9".
Pieces YearsOf(const std::vector<Trace::Letter> &letters) {
    Pieces pieces;
    for (const Trace::Letter &letter : letters)
        if (letter.counted) {
            Close(pieces, ",");
            pieces.push_back(Shown(letter.character) + " to " + std::to_string(letter.total));
        }
    return pieces.empty() ? Pieces{"no", "letter"} : pieces;
}

/// "O 6, A 1, K 2", each character once with its total.
Pieces ListOf(const std::vector<Trace::Letter> &letters) {
    Pieces pieces;
    std::u16string seen;
    for (const Trace::Letter &letter : letters) {
        if (!letter.counted || seen.find(letter.character) != std::u16string::npos)
            continue;
        seen += letter.character;
        Close(pieces, ",");
        pieces.push_back(Shown(letter.character) + ' ' + std::to_string(letter.total));
    }
    return pieces.empty() ? Pieces{"none"} : pieces;
}

/// "C, A, L:", those that are counted.
Pieces NamesOf(const std::vector<Trace::Letter> &letters) {
    Pieces pieces;
    for (const Trace::Letter &letter : letters)
        if (letter.counted)
            pieces.push_back(Shown(letter.character));
    Close(pieces, ":");
    return pieces;
}

// A line of a trace.

Pieces ValueOf(const Trace::Line &line) {
    if (const int16 *number = std::get_if<int16>(&line.value))
        return {std::to_string(*number)};
    const std::u16string &whole = std::get<std::u16string>(line.value);
    if (whole.size() == 1)
        return {Shown(whole.front())};
    const std::u16string_view text = TrimBlanks(whole);
    if (text.empty())
        return {line.left ? "empty" : "none"};
    if (!line.left)
        return WordsOf(ToUtf8(text));
    return WordsOf(
        '"' +
        OneLine(Excerpt(QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())))) +
        '"');
}

void AddRows(std::vector<Row> &rows, const Trace::Line &line) {
    const std::string label = ToUtf8(line.label);
    const bool isNumber = std::holds_alternative<int16>(line.value);
    Pieces pieces;
    if (line.label == essenceYearsLabel) {
        pieces = YearsOf(line.letters);
    } else if (!line.steps.empty() && line.steps.front().kind == StepKind::Share) {
        pieces = NamesOf(line.letters);
    } else if (!line.letters.empty() && isNumber) {
        pieces = SumOf(line.letters);
    } else if (!line.letters.empty()) {
        rows.push_back({"letters", ListOf(line.letters)});
    }
    Append(pieces, PiecesOf(line.steps));
    if (line.left)
        Append(pieces, {"left", "as", "it", "was:"});
    if (pieces.empty() || line.left)
        Append(pieces, ValueOf(line));
    rows.push_back({label, std::move(pieces)});
}

/// How many lines from `first` on are the rounds through one name.
std::size_t RoundsAt(const std::vector<Trace::Line> &lines, std::size_t first) {
    std::size_t count = 0;
    while (first + count < lines.size() && lines[first + count].label == essenceYearsLabel)
        ++count;
    return count;
}

void AppendTopic(std::string &text, const TopicExplanation &topic) {
    text += '\n' + ToUtf8(topic.caption);
    if (const auto number = TrimBlanks(topic.number); !number.empty())
        text += ": " + ToUtf8(number);
    text += '\n';

    constexpr std::size_t mostRounds = 4;
    std::vector<Row> rows;
    const std::vector<Trace::Line> &lines = topic.trace.lines;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        AddRows(rows, lines[index]);
        // A short name of an old person has many: its first and its last two say it.
        const bool begins = index == 0 || lines[index - 1].label != essenceYearsLabel;
        const std::size_t rounds = begins ? RoundsAt(lines, index) : 0;
        if (rounds > mostRounds) {
            rows.push_back({"", {"...", "and", "so", "on", std::to_string(rounds - 3), "times"}});
            index += rounds - 3;
        }
    }
    if (!topic.trace.failure.empty())
        rows.push_back(
            {"given up", WordsOf(topic.trace.failure + "; what follows is left as it was")});
    AppendRows(text, rows);
}

// The name.

/// The rows of letters, vowels and consonants of one of the three names, as many letters beside
/// each other as the width takes.
void AppendLetters(std::string &text, std::string_view title, std::span<const NameLetter> letters) {
    constexpr std::string_view margin = "               ";
    while (!letters.empty()) {
        std::array<std::string, 3> rows;
        rows[0].append("  ").append(title);
        rows[1] = "    vowels";
        rows[2] = "    consonants";
        for (std::string &row : rows)
            row.append(margin.size() - Columns(row), ' ');
        std::size_t used = margin.size();
        while (!letters.empty()) {
            const NameLetter &letter = letters.front();
            const std::string shown = letter.character == u' ' ? "_" : Shown(letter.character);
            const std::size_t width = Columns(shown) + 2;
            if (used + width > lineWidth)
                break;
            const std::string value = std::to_string(letter.value);
            const bool vowel =
                letter.kind == LetterKind::Vowel || letter.kind == LetterKind::YAsVowel;
            const bool consonant =
                letter.kind == LetterKind::Consonant || letter.kind == LetterKind::YAsVowel;
            rows[0] += "  " + shown;
            rows[1] += std::string(width - 1, ' ') + (vowel ? value : " ");
            rows[2] += std::string(width - 1, ' ') + (consonant ? value : " ");
            used += width;
            letters = letters.subspan(1);
        }
        for (std::string &row : rows) {
            row.erase(row.find_last_not_of(' ') + 1);
            text += row + '\n';
        }
        text += '\n';
        title = {};
    }
}

Row SumRow(std::string_view label, const NameSum &sum) {
    Pieces pieces = PiecesOf(sum.steps);
    if (pieces.empty() || sum.steps.front().kind == StepKind::MasterStays)
        pieces.insert(pieces.begin(), std::to_string(sum.raw) + (pieces.empty() ? "" : ":"));
    return {std::string(label), std::move(pieces)};
}

void AppendName(std::string &text, const NameSheet &sheet) {
    text += "\nThe name, letter by letter\n\n";
    std::span<const NameLetter> rest(sheet.letters);
    std::vector<Row> notes;
    for (const auto &[part, title] : {std::pair(NamePart::First, "first name"),
                                      {NamePart::Middle, "middle name"},
                                      {NamePart::Last, "last name"}}) {
        const auto end = std::ranges::find_if(
            rest, [part = part](NamePart other) { return other != part; }, &NameLetter::part);
        const auto letters = rest.first(static_cast<std::size_t>(end - rest.begin()));
        rest = rest.subspan(letters.size());
        AppendLetters(text, title, letters);

        Pieces ignored;
        for (const NameLetter &letter : letters)
            if (letter.kind == LetterKind::NotCounted) {
                Close(ignored, ",");
                ignored.push_back(Shown(letter.character));
            }
        if (!ignored.empty())
            notes.push_back({std::string("not counted, ") + title, std::move(ignored)});
    }
    notes.push_back(SumRow("Destiny, all letters", sheet.destiny));
    notes.push_back(SumRow("Soul Urge, vowels", sheet.soulUrge));
    notes.push_back(SumRow("Inner Dreams, consonants", sheet.innerDreams));
    AppendRows(text, notes);

    const auto has = [&](LetterKind kind) {
        return std::ranges::find(sheet.letters, kind, &NameLetter::kind) != sheet.letters.end();
    };
    if (has(LetterKind::YAsVowel))
        text += "\n  Y counts as a vowel, as the name has no other, and as a consonant too.\n";
    if (has(LetterKind::NotCounted))
        text += "\n  Only the letters A to Z have a value; what is not counted has none.\n";
}

} // namespace

std::string ExplanationAsText(const Explanation &explanation) {
    const Report head = HeadOf(explanation.person, explanation.day);
    std::string text;
    AppendWrapped(text, WordsOf(ToUtf8(head[0].text)), 0);
    std::ranges::copy_if(ToUtf8(head[1].text).substr(2), std::back_inserter(text),
                         [](char c) { return c != '\r'; });
    text += '\n';
    AppendName(text, explanation.name);
    for (const TopicExplanation &topic : explanation.topics)
        AppendTopic(text, topic);
    return text;
}
