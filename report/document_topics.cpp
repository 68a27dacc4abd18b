#include "report/document_topics.h"

#include "core/months.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "numbers/calculators.h"
#include "report/joined.h"
#include "report/report.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace modReadings {

namespace {

using S = ReadingStore;

/// Of what a number speaks that changes with time.
enum class Cycle { None, Year, Month, Day, YearOfAge };

/// What a document says of a topic beside its readings.
struct TopicFacts {
    Calculator calculate;
    std::u16string_view group; ///< in the table at a glance
    Cycle cycle = Cycle::None;
    std::u16string_view remark{};        ///< in the table
    std::u16string_view remarkIfNone{};  ///< the same where there is no number
    std::array<NumberSlot, 4> numbers{}; ///< in the table; none: those of the heading
};

constexpr std::u16string_view fromTheName = u"From the name";
constexpr std::u16string_view fromTheDate = u"From the date of birth";
constexpr std::u16string_view fromBoth = u"From both";
constexpr std::u16string_view inTime = u"At the time of the reading";

/// In the order of the table at a glance, group by group.
constexpr std::array factsOfTopics{
    TopicFacts{CalcDestiny, fromTheName},
    TopicFacts{CalcSoulUrge, fromTheName},
    TopicFacts{CalcInnerDreams, fromTheName},
    TopicFacts{CalcHiddenPassion, fromTheName},
    TopicFacts{CalcSubconsciousSelf, fromTheName},
    TopicFacts{CalcKarmicLessons, fromTheName, Cycle::None, {}, u"no value is missing"},
    TopicFacts{CalcBalance, fromTheName},
    TopicFacts{CalcHPBridge, fromTheName},
    TopicFacts{CalcPlanes, fromTheName, Cycle::None, {}, u"no plane leads"},
    TopicFacts{CalcLifePath, fromTheDate},
    TopicFacts{CalcBirthday, fromTheDate},
    TopicFacts{CalcLifePathPeriods,
               fromTheDate,
               Cycle::None,
               u"first to third",
               {},
               {&S::PeriodNumber1, &S::PeriodNumber2, &S::PeriodNumber3}},
    TopicFacts{
        CalcPinnacles,
        fromTheDate,
        Cycle::None,
        u"first to fourth",
        {},
        {&S::PinnacleNumber1, &S::PinnacleNumber2, &S::PinnacleNumber3, &S::PinnacleNumber4}},
    TopicFacts{CalcChallenges, fromTheDate, Cycle::None, u"first to fourth"},
    TopicFacts{CalcRealization, fromBoth},
    TopicFacts{CalcLEBridge, fromBoth},
    TopicFacts{CalcRationalThought, fromBoth},
    TopicFacts{CalcKarmicDebt, fromBoth},
    TopicFacts{CalcPersonalYear, inTime, Cycle::Year},
    TopicFacts{CalcPersonalMonth, inTime, Cycle::Month},
    TopicFacts{CalcPersonalDay, inTime, Cycle::Day},
    TopicFacts{CalcEssence, inTime, Cycle::YearOfAge},
};
static_assert(factsOfTopics.size() == calculatorCount);

const TopicFacts &FactsOf(Calculator calculate) {
    return *std::ranges::find(factsOfTopics, calculate, &TopicFacts::calculate);
}

/// `caption` as an id: its letters in lower case, with dashes between.
std::string Slug(std::u16string_view caption) {
    std::string name;
    for (const char16_t character : caption) {
        const bool capital = character >= u'A' && character <= u'Z';
        if (capital || (character >= u'a' && character <= u'z'))
            name += static_cast<char>(capital ? character - u'A' + u'a' : character);
        else if (!name.empty() && name.back() != '-' && character != u'\'')
            name += '-';
    }
    return name;
}

/// The id of `topic`, which lives as long as the program.
std::string_view IdOf(const Topic &topic) {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const Topic &each : Topics())
            all.push_back(Slug(each.caption));
        return all;
    }();
    return names[static_cast<std::size_t>(&topic - Topics().data())];
}

/// Whether `line` is the title of the lines below it: a value among the Karmic Lessons, a
/// plane in its explanation.
bool IsTitle(std::u16string_view line) {
    line = TrimBlanks(line);
    return line.ends_with(u':') || (line.size() == 1 && line[0] >= u'1' && line[0] <= u'9');
}

/// Where the first line break of `text` is, or npos; no text has half of one. memchr looks at many
/// bytes at once, which find does not: a whole document takes 4 % fewer instructions by it.
std::size_t FindLineBreak(std::u16string_view text) {
    const char *const begin = reinterpret_cast<const char *>(text.data());
    const char *const end = begin + text.size() * sizeof(char16_t);
    for (const char *at = begin; at < end; ++at) {
        at = static_cast<const char *>(
            std::memchr(at, lineBreak.front(), static_cast<std::size_t>(end - at)));
        if (at == nullptr)
            break;
        const std::size_t index = static_cast<std::size_t>(at - begin) / sizeof(char16_t);
        if (text[index] == lineBreak.front()) // the byte may be half of another character
            return index;
    }
    return text.npos;
}

/// `text` in parts, a new one at each line that is a title.
void AppendSections(std::vector<DocumentPart> &parts, std::u16string_view text, bool explains) {
    DocumentPart part;
    part.explains = explains;
    const auto finish = [&] {
        if (!part.label.empty() || !part.text.empty())
            parts.push_back(std::move(part));
        part = {};
        part.explains = explains;
    };
    while (!text.empty()) {
        const std::size_t end = FindLineBreak(text);
        const std::u16string_view line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + lineBreak.size());
        if (IsTitle(line)) {
            finish();
            part.label = TrimBlanks(line);
        } else if (!line.empty()) {
            if (!part.text.empty())
                part.text += lineBreak;
            part.text += line;
        }
    }
    finish();
}

/// The parts of a topic from the slots that its report shows.
std::vector<DocumentPart> PartsOf(const Topic &topic) {
    std::vector<DocumentPart> parts;
    parts.reserve(topic.Blocks().size());
    std::u16string_view label;
    for (const Block &block : topic.Blocks()) {
        const std::u16string &text = store.*block.slot;
        if (block.IsLabel()) {
            label = text;
            continue;
        }
        if (block.hasTitles) {
            AppendSections(parts, text, block.isAbout);
            continue;
        }
        if (!block.before.empty())
            label = block.before;
        if (label.empty() && text.empty())
            continue;
        DocumentPart &part = parts.emplace_back();
        part.label = std::exchange(label, {});
        part.text = text;
        part.explains = block.isAbout;
    }
    return parts;
}

/// A text that comes back is there once; the later parts name the first.
void ReferToEarlierParts(std::vector<DocumentPart> &parts) {
    for (std::size_t index = 1; index < parts.size(); ++index) {
        DocumentPart &part = parts[index];
        const auto end = parts.begin() + static_cast<std::ptrdiff_t>(index);
        const auto first = std::find_if(parts.begin(), end, [&](const DocumentPart &earlier) {
            return !part.text.empty() && !earlier.id.empty() && earlier.text == part.text;
        });
        if (first == end)
            continue;
        part.sameAs = first->id;
        part.sameAsLabel = first->label;
        part.text.clear();
    }
}

/// The day, month or year of which a topic speaks.
std::u16string SpeaksOf(Cycle cycle, std::chrono::year_month_day day, int16 age) {
    const auto year = static_cast<int>(day.year());
    switch (cycle) {
    case Cycle::None:
        break;
    case Cycle::Year:
        return Joined(year);
    case Cycle::Month:
        return Joined(englishMonths[static_cast<unsigned>(day.month()) - 1], u" ", year);
    case Cycle::Day:
        return LongDate(day);
    case Cycle::YearOfAge:
        return age < 0 ? Joined(year) : Joined(year, u", age ", age);
    }
    return {};
}

DocumentTopic TopicFor(Calculator calculate, std::chrono::year_month_day day, int16 age) {
    const Topic &topic = TopicOf(calculate);
    Attempt(calculate);

    DocumentTopic made;
    made.caption = topic.caption;
    made.id = IdOf(topic);
    const std::u16string number = HeadingNumberText(topic);
    made.number = TrimBlanks(number);
    made.heading = Joined(topic.heading, number);
    made.heading.resize(TrimBlanks(made.heading).size()); // blanks stand at its end alone
    made.speaksOf = SpeaksOf(FactsOf(calculate).cycle, day, age);
    made.parts = PartsOf(topic);
    std::size_t count = 0;
    for (DocumentPart &part : made.parts) {
        ++count;
        if (part.label.empty())
            continue; // nothing leads there
        part.id.reserve(made.id.size() + 4);
        part.id.append(made.id).append(1, '-').append(std::to_string(count));
    }
    ReferToEarlierParts(made.parts);
    return made;
}

/// The numbers of a text that has them with blanks between.
std::u16string Listed(std::u16string_view numbers) {
    std::u16string list;
    for (const char16_t character : TrimBlanks(numbers))
        character == u' ' ? list.append(u", ") : list.append(1, character);
    return list;
}

/// The numbers of `topic` as the store holds them.
std::u16string NumberInTable(const DocumentTopic &topic, const TopicFacts &facts) {
    if (facts.numbers.front() == nullptr)
        return Listed(topic.number);
    std::u16string list;
    for (const NumberSlot slot : facts.numbers)
        if (slot != nullptr)
            Append(list, list.empty() ? u"" : u", ", store.*slot);
    return list;
}

std::u16string RemarkInTable(const DocumentTopic &topic, const TopicFacts &facts) {
    if (facts.cycle != Cycle::None)
        return topic.speaksOf;
    const bool isNone = topic.number.empty() && !facts.remarkIfNone.empty();
    return std::u16string(isNone ? facts.remarkIfNone : facts.remark);
}

std::size_t PlaceInPass(Calculator calculate) {
    return static_cast<std::size_t>(std::ranges::find(passOrder, calculate) - passOrder.begin());
}

} // namespace

std::vector<DocumentTopic> TopicsFor(std::chrono::year_month_day day, int16 age) {
    std::vector<DocumentTopic> topics;
    topics.reserve(passOrder.size());
    for (const Calculator calculate : passOrder)
        topics.push_back(TopicFor(calculate, day, age));
    return topics;
}

const DocumentTopic &TopicIn(const Document &document, Calculator calculate) {
    return document.topics[PlaceInPass(calculate)];
}

DocumentTopic &TopicIn(Document &document, Calculator calculate) {
    return document.topics[PlaceInPass(calculate)];
}

std::vector<NumberGroup> Glance(const Document &document) {
    std::vector<NumberGroup> glance;
    glance.reserve(4);
    for (const TopicFacts &facts : factsOfTopics) {
        if (glance.empty() || glance.back().title != facts.group)
            glance.push_back({facts.group, {}});
        const DocumentTopic &topic = TopicIn(document, facts.calculate);
        glance.back().rows.push_back(
            {topic.caption, topic.id, NumberInTable(topic, facts), RemarkInTable(topic, facts)});
    }
    return glance;
}

std::vector<InForce> CyclesInForce(const Document &document) {
    std::vector<InForce> cycles;
    cycles.reserve(8);
    for (const TopicFacts &facts : factsOfTopics) {
        if (facts.cycle == Cycle::None || (facts.cycle == Cycle::YearOfAge && document.age < 0))
            continue;
        const DocumentTopic &topic = TopicIn(document, facts.calculate);
        cycles.push_back(
            {std::u16string(topic.caption), topic.number, topic.speaksOf, std::string(topic.id)});
    }
    return cycles;
}

} // namespace modReadings
