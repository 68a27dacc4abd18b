#include "tests/support/reading_facts.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>

namespace modReadings {

namespace {

Fact ParseFact(const rapidjson::Value &row) {
    Fact fact;
    const auto lengthOf = [](const rapidjson::Value &value) {
        return static_cast<std::size_t>(value.GetUint());
    };
    for (const auto &member : row.GetObject()) {
        const std::string key = member.name.GetString();
        const rapidjson::Value &value = member.value;
        if (key == "slot")
            fact.slot = value.GetString();
        else if (key == "number")
            fact.number = value.IsNull() ? std::nullopt : std::optional(value.GetInt());
        else if (key == "paragraphs")
            fact.paragraphs = lengthOf(value);
        else if (key == "characters")
            fact.characters = lengthOf(value);
        else if (key == "opening")
            fact.opening = value.GetString();
        else if (key == "full")
            fact.full = value.GetString();
        else if (key == "first_paragraph")
            fact.firstParagraph = value.GetString();
        else if (key == "last_paragraph")
            fact.lastParagraph = value.GetString();
        else if (key == "ends")
            fact.ends = value.GetString();
        else if (key == "contains")
            fact.contains = value.GetString();
        else if (key == "third_sentence_contains")
            fact.thirdSentenceContains = value.GetString();
        else if (key == "openings")
            for (const rapidjson::Value &opening : value.GetArray())
                fact.openings.emplace_back(opening.GetString());
        else if (key == "paragraph_lengths") {
            if (!value.IsNull())
                for (const rapidjson::Value &length : value.GetArray())
                    fact.paragraphLengths.push_back(lengthOf(length));
        } else
            ADD_FAILURE() << "nothing checks the field " << key;
    }
    return fact;
}

template <typename Unit>
std::vector<std::basic_string<Unit>> Split(std::basic_string_view<Unit> text) {
    constexpr Unit lineBreak[] = {'\r', '\n', 0};
    std::vector<std::basic_string<Unit>> paragraphs;
    for (;;) {
        const auto end = text.find(lineBreak);
        paragraphs.emplace_back(text.substr(0, end));
        if (end == text.npos)
            return paragraphs;
        text.remove_prefix(end + 2);
    }
}

/// Whether `text` begins with these words, which are plain ASCII.
bool BeginsWith(std::u16string_view text, std::string_view words) {
    return std::ranges::mismatch(words, text).in1 == words.end();
}

/// Whether `text` is the one that the facts tell of.
::testing::AssertionResult Fits(std::u16string_view text, const Fact &fact) {
    const auto no = [&] {
        return ::testing::AssertionFailure()
               << ::testing::PrintToString(std::u16string(text.substr(0, 60))) << " with "
               << text.size() << " characters is not the text in " << fact.slot;
    };
    if (!BeginsWith(text, fact.opening) || !Near(text.size(), fact.characters, 2))
        return no();
    if (fact.full && (!BeginsWith(text, *fact.full) || text.size() != fact.full->size()))
        return no();
    const std::vector<std::u16string> paragraphs = Paragraphs(text);
    if (paragraphs.size() != fact.paragraphs)
        return no();
    for (std::size_t index = 0; index < fact.openings.size(); ++index)
        if (!BeginsWith(paragraphs.at(index), fact.openings[index]))
            return no();
    return ::testing::AssertionSuccess();
}

} // namespace

const std::vector<Fact> &Facts() {
    static const std::vector<Fact> facts = [] {
        std::ifstream file(READINGS_TABLE, std::ios::binary);
        const std::string json{std::istreambuf_iterator<char>(file), {}};
        rapidjson::Document document;
        document.Parse(json.c_str(), json.size());
        std::vector<Fact> rows;
        if (document.HasParseError() || !document.IsArray())
            ADD_FAILURE() << "the table cannot be read";
        else
            for (const rapidjson::Value &row : document.GetArray())
                rows.push_back(ParseFact(row));
        return rows;
    }();
    return facts;
}

const Fact *FactOf(std::string_view slot, std::optional<int> number) {
    static const auto bySlot = [] {
        std::map<std::pair<std::string_view, std::optional<int>>, const Fact *> all;
        for (const Fact &fact : Facts())
            all.emplace(std::pair{std::string_view(fact.slot), fact.number}, &fact);
        return all;
    }();
    const auto found = bySlot.find({slot, number});
    return found != bySlot.end() ? found->second : nullptr;
}

bool Near(std::size_t length, std::size_t settled, std::size_t percent) {
    const std::size_t away = length > settled ? length - settled : settled - length;
    return away <= 6 || away * 100 <= settled * percent;
}

std::vector<std::string> Paragraphs(std::string_view text) { return Split(text); }
std::vector<std::u16string> Paragraphs(std::u16string_view text) { return Split(text); }

bool Opens(std::u16string_view text, std::string_view slot, std::optional<int> number) {
    const Fact *fact = FactOf(slot, number);
    return fact != nullptr && BeginsWith(text, fact->opening);
}

::testing::AssertionResult IsReadingOf(std::u16string_view text, int number,
                                       std::string_view slot) {
    const Fact *fact = FactOf(slot, number);
    if (fact == nullptr)
        return ::testing::AssertionFailure() << slot << " has no reading of " << number;
    return Fits(text, *fact) << " of " << number;
}

::testing::AssertionResult IsTextOf(std::u16string_view text, std::string_view slot) {
    const Fact *fact = FactOf(slot);
    if (fact == nullptr)
        return ::testing::AssertionFailure() << "no text stands alone in " << slot;
    return Fits(text, *fact);
}

} // namespace modReadings
