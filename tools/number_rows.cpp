#include "tools/number_rows.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "tools/person_json.h"
#include "tools/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <variant>
#include <vector>

using namespace modReadings;

namespace {

using S = ReadingStore;

/// The day of birth, which is no slot.
struct DayOfBirth {};

/// A number that a slot holds as text.
struct NumberIn {
    std::u16string S::*slot;
};

/// One of the numbers that stand in a slot with a blank between them.
struct OneOf {
    std::u16string S::*slot;
    int index;
};

/// A text that is no single number.
struct Words {
    std::u16string S::*slot;
};

struct NumberColumn {
    std::string_view name;
    std::variant<int16 S::*, DayOfBirth, NumberIn, OneOf, Words> value;
};

/// In the order of the pass.
constexpr std::array columns{
    NumberColumn{"personal_month", &S::PersonalMonthNumber},
    NumberColumn{"birthday", DayOfBirth{}},
    NumberColumn{"hidden_passion", &S::HiddenPassionNumber},
    NumberColumn{"life_path_period", &S::LifePathPeriodsNumber},
    NumberColumn{"personal_year", NumberIn{&S::PersonalYearNumber}},
    NumberColumn{"pinnacle_1", &S::PinnacleNumber1},
    NumberColumn{"pinnacle_2", &S::PinnacleNumber2},
    NumberColumn{"pinnacle_3", &S::PinnacleNumber3},
    NumberColumn{"pinnacle_4", &S::PinnacleNumber4},
    NumberColumn{"subconscious_self", &S::SubconsciousSelfNumber},
    NumberColumn{"life_path", &S::LifePathNumber},
    NumberColumn{"destiny", &S::DestinyNumber},
    NumberColumn{"karmic_lessons", Words{&S::KarmicLessonsNumber}},
    NumberColumn{"challenge_1", OneOf{&S::ChallengeNumber, 0}},
    NumberColumn{"challenge_2", OneOf{&S::ChallengeNumber, 1}},
    NumberColumn{"challenge_3", OneOf{&S::ChallengeNumber, 2}},
    NumberColumn{"challenge_4", OneOf{&S::ChallengeNumber, 3}},
    NumberColumn{"karmic_debt", &S::KarmicDebtNumber},
    NumberColumn{"balance", &S::BalanceNumber},
    NumberColumn{"personal_day", &S::PersonalDayNumber},
    NumberColumn{"rational_thought", &S::RationalThoughtNumber},
    NumberColumn{"hp_bridge", &S::HPBridgeNumber},
    NumberColumn{"le_bridge", &S::LEBridgeNumber},
    NumberColumn{"essence", &S::EssenceNumber},
    NumberColumn{"realization", &S::RealizationNumber},
    NumberColumn{"inner_dreams", &S::InnerDreamsNumber},
    NumberColumn{"plane", Words{&S::PlanesNumber}},
    NumberColumn{"mental_percent", &S::MentalPercent},
    NumberColumn{"physical_percent", &S::PhysicalPercent},
    NumberColumn{"emotional_percent", &S::EmotionalPercent},
    NumberColumn{"intuitive_percent", &S::IntuitivePercent},
    NumberColumn{"soul_urge", &S::SoulUrgeNumber},
};

/// What one column shows: nothing, a number or a text.
using Cell = std::variant<std::monostate, int, std::string_view>;

Cell NumberCell(std::u16string_view text) {
    const bool digits =
        !text.empty() && text.size() <= 4 &&
        std::ranges::all_of(text, [](char16_t c) { return c >= u'0' && c <= u'9'; });
    return digits ? Cell(int{NumberFromText(text)}) : Cell();
}

/// The cell of a column, from the store as it stands. A text lasts until the next call.
struct CellOf {
    Cell operator()(int16 S::*slot) const { return int{store.*slot}; }
    Cell operator()(DayOfBirth) const { return NumberCell(profile.BirthDay); }
    Cell operator()(NumberIn number) const { return NumberCell(store.*number.slot); }
    Cell operator()(OneOf number) const {
        std::u16string_view text = store.*number.slot;
        for (int skipped = 0; skipped < number.index; ++skipped) {
            const std::size_t blank = text.find(u' ');
            text = blank == text.npos ? std::u16string_view() : text.substr(blank + 1);
        }
        return NumberCell(text.substr(0, text.find(u' ')));
    }
    Cell operator()(Words words) const { return AsUtf8(TrimBlanks(store.*words.slot)); }
};

void Calculate(const UserProfile &person) {
    store = {};
    profile = person;
    RunAllCalculators();
    RunAllCalculators(); // as a click on each topic does
}

void Append(std::string &row, long long number) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    row.append(digits.data(), end.ptr);
}

/// A row that is being written, cell by cell.
class Row {
public:
    explicit Row(Format format) : tabs_(format == Format::Tsv) {}

    void Skip() { Separate(); }

    void Add(long long number) {
        Separate();
        Append(row_, number);
    }

    /// A text of our own, or one that AsUtf8 or OneLine made.
    void Add(std::string_view text) {
        Separate();
        if (tabs_ || text.find_first_of(",\"\r\n") == std::string_view::npos) {
            row_ += text;
            return;
        }
        row_ += '"';
        for (const char character : text)
            row_.append(character == '"' ? 2 : 1, character);
        row_ += '"';
    }

    /// A text from outside.
    void AddOutside(std::u16string_view text) {
        if (std::ranges::all_of(text, [](char16_t c) { return c >= u' ' && c < 0x7F; }))
            Add(AsUtf8(text));
        else
            Add(OneLine(QStringView(text).toString()));
    }

    std::string Finish() {
        row_ += '\n';
        return std::move(row_);
    }

private:
    void Separate() {
        if (!first_)
            row_ += tabs_ ? '\t' : ',';
        first_ = false;
    }

    std::string row_;
    const bool tabs_;
    bool first_ = true;
};

constexpr std::array<std::string_view, 8> facts{"line",  "first", "middle", "last",
                                                "month", "day",   "year",   "today"};

} // namespace

std::string NumbersAsJson(const UserProfile &person, const LineFacts &line) {
    Calculate(person);
    static OutsideBuffer buffer; // keeps its memory from one row to the next
    buffer.Clear();
    OutsideJson json(buffer);
    json.StartObject();
    WritePerson(json, person, Clock::Date(), line);
    for (const NumberColumn &column : columns) {
        WriteKey(json, column.name);
        const Cell cell = std::visit(CellOf{}, column.value);
        if (const int *number = std::get_if<int>(&cell))
            json.Int(*number);
        else if (const std::string_view *text = std::get_if<std::string_view>(&cell))
            WriteString(json, *text);
        else
            json.Null();
    }
    json.EndObject();
    buffer.Put('\n');
    return {buffer.GetString(), buffer.GetSize()};
}

std::string NumbersAsRow(Format format, const UserProfile &person, const LineFacts &line) {
    Calculate(person);
    Row row(format);
    if (line.number != 0)
        row.Add(line.number);
    else
        row.Skip();
    row.AddOutside(person.FirstName);
    row.AddOutside(person.MiddleName);
    row.AddOutside(person.LastName);
    row.Add(AsUtf8(person.BirthMonth));
    row.Add(NumberFromText(person.BirthDay));
    row.Add(NumberFromText(person.BirthYear));
    row.Add(IsoDate(Clock::Date()));
    for (const NumberColumn &column : columns) {
        const Cell cell = std::visit(CellOf{}, column.value);
        if (const int *number = std::get_if<int>(&cell))
            row.Add(*number);
        else if (const std::string_view *text = std::get_if<std::string_view>(&cell))
            row.Add(*text);
        else
            row.Skip();
    }
    row.Add(line.further);
    row.Skip();
    return row.Finish();
}

std::string ErrorAsRow(Format format, const LineFacts &line, std::string_view message) {
    Row row(format);
    row.Add(line.number);
    for (std::size_t skipped = 1; skipped < facts.size() + columns.size(); ++skipped)
        row.Skip();
    row.Add(line.further);
    row.Add(message);
    return row.Finish();
}

std::string HeaderRow(Format format) {
    Row row(format);
    for (const std::string_view name : facts)
        row.Add(name);
    for (const NumberColumn &column : columns)
        row.Add(column.name);
    row.Add("input");
    row.Add("error");
    return row.Finish();
}
