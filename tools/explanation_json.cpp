#include "tools/explanation.h"
#include "tools/person_json.h"
#include "tools/text.h"

using namespace modReadings;

namespace {

std::string_view NameOf(Trace::StepKind kind) {
    using enum Trace::StepKind;
    switch (kind) {
    case DigitSum:
        return "digit_sum";
    case Fold:
        return "fold";
    case MasterStays:
        return "master_stays";
    case Sum:
        return "sum";
    case Trace::StepKind::Difference:
        return "difference";
    case Trace::StepKind::Gap:
        return "gap";
    case Month:
        return "month";
    case MonthByDigit:
        return "month_by_digit";
    case Share:
        break;
    }
    return "share";
}

std::string_view NameOf(NamePart part) {
    if (part == NamePart::First)
        return "first";
    return part == NamePart::Middle ? "middle" : "last";
}

std::string_view NameOf(LetterKind kind) {
    switch (kind) {
    case LetterKind::Vowel:
        return "vowel";
    case LetterKind::Consonant:
        return "consonant";
    case LetterKind::YAsVowel:
        return "y_as_vowel";
    case LetterKind::NotCounted:
        break;
    }
    return "not_counted";
}

void WriteNumber(OutsideJson &json, std::string_view name, int number) {
    WriteKey(json, name);
    json.Int(number);
}

/// Half of a pair of surrogates is no character by itself, so its code stands for it.
void WriteCharacter(OutsideJson &json, char16_t character) {
    const bool half = character >= 0xD800 && character <= 0xDFFF;
    WriteMember(json, "character",
                half ? Shown(character) : ToUtf8(std::u16string_view(&character, 1)));
}

void WriteSteps(OutsideJson &json, const std::vector<Trace::Step> &steps) {
    WriteKey(json, "steps");
    json.StartArray();
    for (const Trace::Step &step : steps) {
        json.StartObject();
        WriteMember(json, "kind", NameOf(step.kind));
        if (!step.from.empty())
            WriteMember(json, "from", AsUtf8(step.from));
        WriteKey(json, "terms");
        json.StartArray();
        for (const int16 term : step.terms)
            json.Int(term);
        json.EndArray();
        WriteNumber(json, "result", step.result);
        json.EndObject();
    }
    json.EndArray();
}

void WriteSum(OutsideJson &json, std::string_view name, const NameSum &sum) {
    WriteKey(json, name);
    json.StartObject();
    WriteNumber(json, "sum", sum.raw);
    WriteSteps(json, sum.steps);
    WriteNumber(json, "number", sum.number);
    json.EndObject();
}

void WriteName(OutsideJson &json, const NameSheet &sheet) {
    json.StartObject();
    WriteKey(json, "letters");
    json.StartArray();
    for (const NameLetter &letter : sheet.letters) {
        json.StartObject();
        WriteMember(json, "part", NameOf(letter.part));
        WriteCharacter(json, letter.character);
        WriteNumber(json, "value", letter.value);
        WriteMember(json, "kind", NameOf(letter.kind));
        json.EndObject();
    }
    json.EndArray();
    WriteSum(json, "destiny", sheet.destiny);
    WriteSum(json, "soul_urge", sheet.soulUrge);
    WriteSum(json, "inner_dreams", sheet.innerDreams);
    json.EndObject();
}

void WriteLetters(OutsideJson &json, const std::vector<Trace::Letter> &letters) {
    WriteKey(json, "letters");
    json.StartArray();
    for (const Trace::Letter &letter : letters) {
        json.StartObject();
        WriteCharacter(json, letter.character);
        WriteNumber(json, "value", letter.value);
        WriteKey(json, "counted");
        json.Bool(letter.counted);
        WriteNumber(json, "total", letter.total);
        json.EndObject();
    }
    json.EndArray();
}

void WriteLine(OutsideJson &json, const Trace::Line &line) {
    json.StartObject();
    WriteMember(json, "label", AsUtf8(line.label));
    if (const int16 *number = std::get_if<int16>(&line.value))
        WriteNumber(json, "value", *number);
    else
        WriteMember(json, "value", AsUtf8(std::get<std::u16string>(line.value)));
    WriteKey(json, "left");
    json.Bool(line.left);
    if (!line.letters.empty())
        WriteLetters(json, line.letters);
    if (!line.steps.empty())
        WriteSteps(json, line.steps);
    json.EndObject();
}

} // namespace

std::string ExplanationAsJson(const Explanation &explanation, const LineFacts &facts) {
    OutsideBuffer buffer;
    OutsideJson json(buffer);
    json.StartObject();
    WritePerson(json, explanation.person, explanation.day, facts);
    WriteKey(json, "name");
    WriteName(json, explanation.name);
    WriteKey(json, "topics");
    json.StartArray();
    for (const TopicExplanation &topic : explanation.topics) {
        json.StartObject();
        WriteMember(json, "caption", AsUtf8(topic.caption));
        WriteMember(json, "number", AsUtf8(topic.number));
        WriteKey(json, "lines");
        json.StartArray();
        for (const Trace::Line &line : topic.trace.lines)
            WriteLine(json, line);
        json.EndArray();
        if (!topic.trace.failure.empty())
            WriteMember(json, "failure", topic.trace.failure);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    buffer.Put('\n');
    return {buffer.GetString(), buffer.GetSize()};
}
