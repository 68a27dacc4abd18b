// Any names through all calculators and all forms of output. An input is first, middle and last
// name, month, day and year of birth and the days on which the person is read, with "|" between
// them and ";" between the days. With one day all is done on it; with several the clock jumps
// from one to the next each time it is asked, and only what never depends on it has to hold.
//
// Names whose Essence never comes to an end are foretold and left out, as the report tool leaves
// them out: that all others come to an end is what the time limit of libFuzzer watches. Of those
// who take long (days.h) only the numbers are looked at.

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "numbers/essence.h"
#include "report/person.h"
#include "report/rendering.h"
#include "report/rtf.h"
#include "report/topic_tree.h"
#include "report/topics.h"
#include "tests/fuzz/days.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/expected_report.h"
#include "tests/support/json_reader.h"
#include "tests/support/longhand.h"
#include "tests/support/rtf_reader.h"
#include "tools/explanation.h"
#include "tools/formats.h"
#include "tools/number_rows.h"
#include "tools/people.h"
#include "tools/reading.h"
#include "tools/refusal.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using namespace modReadings;

/// A clock that shows the next of its days each time it is asked.
class JumpingClock final : public Clock {
public:
    explicit JumpingClock(std::vector<std::chrono::year_month_day> days)
        : days_(std::move(days)), before_(Install(this)) {}
    ~JumpingClock() override { Install(before_); }
    JumpingClock(const JumpingClock &) = delete;
    JumpingClock &operator=(const JumpingClock &) = delete;

private:
    std::chrono::year_month_day Now() const override { return days_[next_++ % days_.size()]; }

    std::vector<std::chrono::year_month_day> days_;
    mutable std::size_t next_ = 0;
    const Clock *const before_;
};

bool Vowel(char16_t character) {
    return std::u16string_view(u"AEIOU").find(character) != std::u16string_view::npos;
}

/// The value of the letter of a name in force at an age: the name's letters last as many years
/// as their values, over and over. The last year of a name is still its last letter's.
int InForce(std::u16string_view name, int age, bool isLast) {
    const auto valueOf = [isLast](char16_t character) {
        return isLast && character == u'l'   ? 6
               : isLast && character == u'F' ? 0
                                             : longhand::ValueOf(character);
    };
    int round = 0;
    for (const char16_t character : name)
        round += valueOf(character);
    if (age < 0 || round == 0)
        return 0;
    const int rest = age == 0 ? 0 : (age - 1) % round + 1; // years into the last round
    int passed = 0;
    int value = 0;
    for (const char16_t character : name)
        if (valueOf(character) != 0 && passed <= rest) {
            value = valueOf(character);
            passed += value;
        }
    return value;
}

/// What the store has to hold of the name, worked out longhand.
void CheckNumbers(int year, std::string_view bytes) {
    const std::u16string whole = WholeName();
    int all = 0;
    int vowels = 0;
    int ys = 0;
    for (const char16_t character : whole) {
        all += longhand::ValueOf(character);
        vowels += Vowel(character) ? longhand::ValueOf(character) : 0;
        ys += character == u'Y' ? 1 : 0;
    }
    if (all > 32767) // no number of the store holds it: the calculators give up
        return;
    const int soulUrge = std::ranges::any_of(whole, Vowel) ? vowels : 7 * ys;
    Require(store.DestinyNumber == longhand::KeepMaster(all), "Destiny is that of all letters",
            bytes);
    Require(store.SoulUrgeNumber == longhand::KeepMaster(soulUrge),
            "Soul Urge is that of the vowels", bytes);
    Require(store.InnerDreamsNumber == longhand::KeepMaster(all - vowels),
            "Inner Dreams are those of all but the vowels", bytes);

    const std::u16string_view born = TrimBlanks(profile.BirthYear);
    if (!born.empty() && born.size() <= 4 &&
        std::ranges::all_of(born, [](char16_t c) { return c >= u'0' && c <= u'9'; })) {
        const int age = year - std::stoi(Utf8(born));
        const int sum = InForce(profile.FirstName, age, false) +
                        InForce(profile.MiddleName, age, false) +
                        InForce(profile.LastName, age, true);
        Require(store.EssenceNumber == longhand::DigitalRoot(sum),
                "the Essence is that of the letters in force", bytes);
    }
}

/// What holds for every person on every day.
void CheckRanges(std::string_view bytes) {
    const auto within = [&](int number, int most) {
        Require((number >= 0 && number <= most) || number == 11 || number == 22,
                "a number is 0 to 9, 11 or 22", bytes);
    };
    for (const int16 number :
         {store.PersonalMonthNumber, store.HiddenPassionNumber, store.LifePathPeriodsNumber,
          store.PinnacleNumber1, store.PinnacleNumber2, store.PinnacleNumber3,
          store.PinnacleNumber4, store.SubconsciousSelfNumber, store.LifePathNumber,
          store.DestinyNumber, store.BalanceNumber, store.PersonalDayNumber,
          store.RationalThoughtNumber, store.EssenceNumber, store.RealizationNumber,
          store.InnerDreamsNumber, store.SoulUrgeNumber, store.HPBridgeNumber,
          store.LEBridgeNumber})
        within(number, 22);
    for (const int16 percent : {store.MentalPercent, store.PhysicalPercent, store.EmotionalPercent,
                                store.IntuitivePercent})
        Require(percent >= 0 && percent <= 100, "a share is 0 to 100", bytes);
    constexpr std::array debts{0, 13, 14, 16, 19};
    Require(std::ranges::find(debts, store.KarmicDebtNumber) != debts.end(),
            "a debt is 0, 13, 14, 16 or 19", bytes);
}

void CheckOutput(const PersonReading &reading, std::string_view bytes) {
    // JSON and RTF, taken back by readers.
    const bool inABatch = reading.head.empty();
    const std::string json =
        inABatch ? ReadingAsJson(reading, {4711, {}, {}}) : ReadingAs(Format::Json, reading);
    const auto object =
        JsonReader::Read(std::string_view(json).substr(0, json.size() - 1)); // a line break behind
    Require(object.has_value() && json.ends_with('\n') &&
                IsQuiet(std::string_view(json).substr(0, json.size() - 1)),
            "a reading is one line of JSON", bytes);
    const auto safe = [](const std::u16string &text) { return AnyUnits(Utf8(text)); };
    Require(object->Find(u"first")->text == safe(reading.person.FirstName) &&
                object->Find(u"middle")->text == safe(reading.person.MiddleName) &&
                object->Find(u"last")->text == safe(reading.person.LastName),
            "JSON has the names", bytes);
    const JsonValue *line = object->Find(u"line");
    Require((line != nullptr) == inABatch && (line == nullptr || line->number == "4711"),
            "JSON has the line of a batch", bytes);
    const auto &topics = object->Find(u"topics")->items;
    Require(topics.size() == reading.topics.size(), "JSON has the topics", bytes);
    for (std::size_t topic = 0; topic < topics.size(); ++topic) {
        const auto &runs = topics[topic].Find(u"runs")->items;
        const Report &report = reading.topics[topic].report;
        Require(runs.size() == report.size(), "JSON has the runs", bytes);
        for (std::size_t run = 0; run < runs.size(); ++run)
            Require(runs[run].Find(u"text")->text == safe(report[run].text) &&
                        (runs[run].Find(u"bold")->kind == JsonValue::Kind::True) ==
                            report[run].bold,
                    "JSON has text and weight of a run", bytes);
    }

    const std::string rtf = ReadingAs(Format::Rtf, reading);
    Require(rtf.find(ReadingAsRtfBody(reading)) != std::string::npos,
            "a document has what is put into one of many", bytes);
    std::u16string joined = TextOf(reading.head);
    for (const TopicReading &topic : reading.topics)
        joined += (joined.empty() ? u"" : u"\r\n\r\n") + TextOf(topic.report);
    std::u16string shown;
    for (const char16_t unit : joined)
        if (unit != u'\r')
            shown += unit;
    try {
        Require(RtfReader::Read(rtf).Text() == shown + u'\n', "RTF shows the reading", bytes);
    } catch (const std::runtime_error &trouble) {
        Require(false, trouble.what(), rtf);
    }

    const std::string text = ReadingAs(Format::Text, reading);
    Require(IsUtf8(text) && std::ranges::all_of(Pieces(text, '\n'), IsQuiet),
            "a reading as text does nothing to a terminal", bytes);
}

/// How the numbers of a person come about, on a sheet and as JSON.
Explanation CheckExplanation(const UserProfile &person,
                             std::span<const std::u16string_view> captions) {
    const Explanation explanation = Explain(person, captions);
    const std::string sheet = ExplanationAsText(explanation);
    Require(IsUtf8(sheet) && std::ranges::all_of(Pieces(sheet, '\n'), IsQuiet),
            "an explanation does nothing to a terminal", sheet);
    const std::string json = ExplanationAsJson(explanation, {4711, {}, {}});
    const auto object = JsonReader::Read(std::string_view(json).substr(0, json.size() - 1));
    Require(object && json.ends_with('\n') && object->Find(u"line")->number == "4711",
            "an explanation is JSON and has its line", json);
    const auto &topics = object->Find(u"topics")->items;
    Require(topics.size() == explanation.topics.size(), "JSON explains all topics", json);
    for (std::size_t topic = 0; topic < topics.size(); ++topic)
        Require(topics[topic].Find(u"number")->text == explanation.topics[topic].number,
                "JSON has the number that is explained", json);
    return explanation;
}

void Run(std::string_view bytes) {
    std::vector<std::string_view> parts = Pieces(bytes.substr(0, 4096), '|');
    parts.resize(7);
    const auto text = [&](std::size_t index) {
        return QStringView(AnyUnits(parts[index])).toString();
    };
    // A year that the list has, or no number.
    QString year = text(5).left(6);
    try {
        const int number = NumberFromText(TrimBlanks(year.toStdU16String()));
        if (number < 1900 || number > 2050)
            year = QString::number(1900 + (number & 0x7FFF) % 151);
    } catch (const RuntimeFailure &) { // stays as it is
    }
    const UserProfile person =
        Captured({text(0), text(1), text(2), text(3).left(12), text(4).left(6), year});
    std::vector<std::chrono::year_month_day> days;
    for (const std::string_view day : Pieces(parts[6], ';'))
        days.push_back(DayFrom(day, 31));

    // At a positive age, however long a life: what is endless at one is so at all.
    if (EndlessName(person, 1))
        return;

    if (days.size() > 1) {
        const JumpingClock clock(std::move(days));
        profile = person; // on the store of the person before
        RunAllCalculators();
        for (const Topic &topic : Topics())
            RunAndRenderTopic(topic);
        RenderComprehensiveReading();
        CheckRanges(bytes);
        return;
    }

    const FixedClock clock{days.front()};
    store = {};
    profile = person;
    RunAllCalculators();
    RunAllCalculators();
    CheckRanges(bytes);
    CheckNumbers(static_cast<int>(days.front().year()), bytes);
    if (!IsReadSoon(person, days.front())) // the rest reads the person some thirty times more
        return;
    const auto isNumber = [](const std::u16string &slot) {
        try {
            NumberFromText(slot);
            return true;
        } catch (const RuntimeFailure &) {
            return false;
        }
    };
    const bool hasDay = isNumber(profile.BirthDay);
    const auto checkPage = [&](const Topic &topic) {
        const Report page = RunAndRenderTopic(topic);
        if (hasDay)
            Require(page == ExpectedPage(topic.caption), "a page shows what the store holds",
                    bytes);
    };
    if (!isThorough) {
        checkPage(Topics()[bytes.size() % Topics().size()]);
        return;
    }
    std::ranges::for_each(Topics(), checkPage);
    const Report whole = RenderComprehensiveReading();
    if (hasDay)
        Require(whole == ExpectedComprehensiveReading(), "the whole report is all pages", bytes);
    Require(RenderComprehensiveReading() == whole, "the same day gives the same report", bytes);

    // One topic at a time, and now and then all of them.
    const auto all = AllCaptions();
    const std::size_t pick = bytes.size() / 4 % (all.size() + 2);
    std::vector<std::u16string_view> chosen;
    if (pick < all.size())
        chosen = {all[pick]};
    else if (pick == all.size())
        chosen = {modReadings::captions::comprehensiveReading};
    else
        chosen = all;
    // Also of those whom the report tool refuses, as long as the dates are numbers and a month can
    // be shown: it is written as it stands, since the tool takes none but its own.
    Explanation explanation;
    if (isExhaustive && hasDay && isNumber(person.BirthYear) && IsQuiet(Utf8(person.BirthMonth)))
        explanation = CheckExplanation(person, chosen);

    // The same person by way of the report tool, which refuses some.
    const PersonInput input{text(0), text(1), text(2), text(3).left(12), text(4).left(6), year};
    try {
        const UserProfile checked = CheckPerson(input);
        Require(checked.FirstName == person.FirstName && checked.LastName == person.LastName &&
                    checked.MiddleName == person.MiddleName,
                "the tool captures a person as the window does", bytes);
        for (const std::u16string_view caption : chosen)
            Require(KnownCaption(QStringView(caption).toString().toUpper().toStdU16String()) ==
                        caption,
                    "a caption is found however its letters are written", bytes);
        Require(KnownCaption(person.FirstName + u"?").empty(), "a name is no caption", bytes);
        PersonReading reading = ReadPerson(checked, chosen);
        if (bytes.size() / 4 % 2 == 0)
            reading.head = HeadOf(checked, days.front());
        CheckOutput(reading, bytes);
        const bool isTheSame = checked.BirthMonth == person.BirthMonth &&
                               checked.BirthDay == person.BirthDay &&
                               checked.BirthYear == person.BirthYear;
        if (isTheSame && chosen.size() == explanation.topics.size())
            for (std::size_t topic = 0; topic < chosen.size(); ++topic)
                Require(explanation.topics[topic].caption != chosen[topic] ||
                            explanation.topics[topic].number == reading.topics[topic].number,
                        "what is explained is what is read", bytes);
        const std::string row = NumbersAsRow(Format::Csv, checked, {});
        Require(row.ends_with('\n') && IsQuiet(std::string_view(row).substr(0, row.size() - 1)),
                "a row of numbers is one quiet line", row);
        const auto format = bytes.size() % 8 == 0 ? Format::Markdown : Format::Html;
        const std::string document = DocumentAs(
            format, checked, {AnyUnits(parts[0]), AnyUnits(parts[1]), AnyUnits(parts[2])});
        Require(IsUtf8(document), "a document is UTF-8", document);
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::WrongUse, "a person is refused as wrong", bytes);
    }
}

const FuzzTarget target("names", Run);

} // namespace
