#include "report/document.h"

#include "core/clock.h"
#include "core/letters.h"
#include "core/months.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "numbers/calculators.h"
#include "numbers/essence.h"
#include "numbers/life_path_periods.h"
#include "numbers/pinnacles.h"
#include "numbers/planes.h"
#include "report/rendering.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <span>
#include <utility>

namespace modReadings {

namespace {

using S = ReadingStore;

constexpr std::array<std::u16string_view, 4> ordinals{u"First", u"Second", u"Third", u"Fourth"};

/// Puts an empty store and `person` in place, and what was there before back in the end.
class OnAnEmptyStore {
public:
    explicit OnAnEmptyStore(const UserProfile &person)
        : store_(std::exchange(store, {})), profile_(std::exchange(profile, person)) {}
    ~OnAnEmptyStore() {
        store = std::move(store_);
        profile = std::move(profile_);
    }
    OnAnEmptyStore(const OnAnEmptyStore &) = delete;
    OnAnEmptyStore &operator=(const OnAnEmptyStore &) = delete;

private:
    ReadingStore store_;
    UserProfile profile_;
};

std::u16string Number(long long number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

void AppendNumber(std::u16string &text, int number) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    text.append(digits, end);
}

/// One text of pieces.
template <typename... Pieces> std::u16string Joined(const Pieces &...pieces) {
    std::u16string text;
    (text.append(pieces), ...);
    return text;
}

/// `caption` as the name of a place: its letters and digits in lower case, with dashes between.
std::string PlaceName(std::u16string_view caption) {
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

/// The places of the topics, in the order of the table of topics.
std::string_view PlaceOf(const Topic &topic) {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const Topic &each : Topics())
            all.push_back(PlaceName(each.caption));
        return all;
    }();
    return names[static_cast<std::size_t>(&topic - Topics().data())];
}

// ---- The topics ----

/// Whether `line` is the title of the lines below it: a value among the Karmic Lessons, a
/// plane in its explanation.
bool IsTitle(std::u16string_view line) {
    line = TrimBlanks(line);
    return line.ends_with(u':') || (line.size() == 1 && line[0] >= u'1' && line[0] <= u'9');
}

bool HasTitles(TextSlot slot) { return slot == &S::KarmicLessonsText || slot == &S::PlanesAbout; }

/// Where the first line break of `text` is, or npos. memchr looks at many bytes at once, which
/// find does not; the byte may be half of another character.
std::size_t FindLineBreak(std::u16string_view text) {
    const char *const begin = reinterpret_cast<const char *>(text.data());
    const char *const end = begin + text.size() * sizeof(char16_t);
    for (const char *at = begin; at < end; ++at) {
        at = static_cast<const char *>(
            std::memchr(at, lineBreak.front(), static_cast<std::size_t>(end - at)));
        if (at == nullptr)
            break;
        const std::size_t index = static_cast<std::size_t>(at - begin) / sizeof(char16_t);
        if (text[index] == lineBreak.front())
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

/// The parts of a topic, from the runs of its rendering. They are the runs without the line
/// breaks that end them.
std::vector<DocumentPart> PartsOf(const Topic &topic, Report &report) {
    const auto blocks = topic.Blocks();
    const std::size_t headings = report.size() - blocks.size();

    std::vector<DocumentPart> parts;
    parts.reserve(blocks.size());
    std::u16string label;
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const Block &block = blocks[index];
        std::u16string &text = report[headings + index].text;
        text.resize(text.size() - static_cast<std::size_t>(block.breaks) * lineBreak.size());
        if (block.IsLabel()) {
            label = std::move(text);
            continue;
        }
        if (HasTitles(block.slot)) {
            AppendSections(parts, text, block.isAbout);
            continue;
        }
        if (!block.before.empty()) {
            label = block.before;
            text.erase(0, block.before.size());
        }
        if (label.empty() && text.empty())
            continue;
        DocumentPart &part = parts.emplace_back();
        part.label = std::move(label);
        part.text = std::move(text);
        part.explains = block.isAbout;
        label.clear();
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
std::u16string SpeaksOf(const Topic &topic, std::chrono::year_month_day day, int16 age) {
    std::u16string year = Number(static_cast<int>(day.year()));
    if (topic.calculate == CalcPersonalYear)
        return year;
    if (topic.calculate == CalcPersonalMonth)
        return Joined(englishMonths[static_cast<unsigned>(day.month()) - 1], u" ", year);
    if (topic.calculate == CalcPersonalDay)
        return LongDate(day);
    if (topic.calculate == CalcEssence)
        return age < 0 ? year : Joined(year, u", age ", Number(age));
    return {};
}

DocumentTopic TopicFor(Calculator calculate, std::chrono::year_month_day day, int16 age) {
    const Topic &topic = TopicOf(calculate);
    Report report = RunAndRenderTopic(topic);

    DocumentTopic made;
    made.caption = topic.caption;
    made.id = PlaceOf(topic);
    const std::u16string_view heading = report.front().text;
    made.heading = TrimBlanks(heading.substr(0, heading.find(lineBreak)));
    Attempt([&] { made.number = TrimBlanks(HeadingNumberText(topic)); });
    made.speaksOf = SpeaksOf(topic, day, age);
    made.parts = PartsOf(topic, report);
    std::size_t count = 0;
    for (DocumentPart &part : made.parts) {
        if (part.label.empty()) {
            ++count; // nothing leads there
            continue;
        }
        part.id.reserve(made.id.size() + 4);
        part.id.append(made.id).append(1, '-').append(std::to_string(++count));
    }
    ReferToEarlierParts(made.parts);
    return made;
}

/// The parts of `topic` that stand under a line of their own: its periods or pinnacles.
std::vector<DocumentPart *> PhasesOf(DocumentTopic &topic) {
    std::vector<DocumentPart *> phases;
    for (DocumentPart &part : topic.parts)
        if (!part.label.empty())
            phases.push_back(&part);
    return phases;
}

DocumentTopic &TopicIn(Document &document, Calculator calculate) {
    return *std::ranges::find(document.topics, TopicOf(calculate).caption, &DocumentTopic::caption);
}

// ---- The table at a glance ----

struct GlanceGroup {
    std::u16string_view title;
    std::vector<Calculator> calculators;
};

const std::array<GlanceGroup, 4> &GlanceGroups() {
    static const std::array<GlanceGroup, 4> groups{
        {{u"From the name",
          {CalcDestiny, CalcSoulUrge, CalcInnerDreams, CalcHiddenPassion, CalcSubconsciousSelf,
           CalcKarmicLessons, CalcBalance, CalcHPBridge, CalcPlanes}},
         {u"From the date of birth",
          {CalcLifePath, CalcBirthday, CalcLifePathPeriods, CalcPinnacles, CalcChallenges}},
         {u"From both", {CalcRealization, CalcLEBridge, CalcRationalThought, CalcKarmicDebt}},
         {u"At the time of the reading",
          {CalcPersonalYear, CalcPersonalMonth, CalcPersonalDay, CalcEssence}}}};
    return groups;
}

/// The numbers of a text that has them with blanks between.
std::u16string Listed(std::u16string_view numbers) {
    std::u16string list;
    for (const char16_t character : TrimBlanks(numbers))
        character == u' ' ? list.append(u", ") : list.append(1, character);
    return list;
}

std::u16string NumberInTable(const DocumentTopic &topic, Calculator calculate) {
    const auto list = [](std::initializer_list<int16> numbers) {
        std::u16string text;
        for (const int16 number : numbers)
            text += (text.empty() ? u"" : u", ") + DecimalText(number);
        return text;
    };
    if (calculate == CalcPinnacles)
        return list({store.PinnacleNumber1, store.PinnacleNumber2, store.PinnacleNumber3,
                     store.PinnacleNumber4});
    if (calculate == CalcLifePathPeriods)
        return list({store.PeriodNumber1, store.PeriodNumber2, store.PeriodNumber3});
    return Listed(topic.number);
}

std::u16string RemarkInTable(const DocumentTopic &topic, Calculator calculate) {
    if (calculate == CalcPinnacles || calculate == CalcChallenges)
        return u"first to fourth";
    if (calculate == CalcLifePathPeriods)
        return u"first to third";
    if (calculate == CalcKarmicLessons && topic.number.empty())
        return u"no value is missing";
    if (calculate == CalcPlanes && topic.number.empty())
        return u"no plane leads";
    return topic.speaksOf;
}

std::vector<NumberGroup> Glance(Document &document) {
    std::vector<NumberGroup> glance;
    glance.reserve(GlanceGroups().size());
    for (const GlanceGroup &group : GlanceGroups()) {
        NumberGroup &made = glance.emplace_back();
        made.title = group.title;
        made.rows.reserve(group.calculators.size());
        for (const Calculator calculate : group.calculators) {
            const DocumentTopic &topic = TopicIn(document, calculate);
            made.rows.push_back({topic.caption, topic.id, NumberInTable(topic, calculate),
                                 RemarkInTable(topic, calculate)});
        }
    }
    return glance;
}

// ---- The pictures ----

std::u16string InWords(const Ages &ages) {
    if (ages.IsOpen())
        return Joined(u"from age ", Number(ages.from), u" on");
    return Joined(u"from age ", Number(ages.from), u" to ", Number(ages.to));
}

/// Appends `count` items as "4", "4 and 6" or "4, 6 and 8"; `append` appends the item at an
/// index.
template <typename Append>
void Enumerate(std::u16string &text, std::size_t count, const Append &append) {
    for (std::size_t index = 0; index < count; ++index) {
        if (index > 0)
            text += index + 1 == count ? u" and " : u", ";
        append(index);
    }
}

std::u16string Enumerated(std::span<const std::u16string> items) {
    std::u16string text;
    Enumerate(text, items.size(), [&](std::size_t index) { text += items[index]; });
    return text;
}

std::u16string Times(std::size_t count) {
    if (count == 1)
        return u"once";
    return count == 2 ? u"twice" : Number(static_cast<long long>(count)) + u" times";
}

/// A character of a name as the beginning of a sentence.
std::u16string Shown(char16_t character) {
    if (ChartValue(character) != 0)
        return Joined(u"The letter ", std::u16string(1, character));
    return character == u' ' ? u"A blank" : u"A character without a value";
}

/// The letters of a name that count, each with its value.
std::u16string LettersInWords(const NameSheet &sheet, NamePart part) {
    std::u16string text;
    for (const NameLetter &letter : sheet.letters) {
        if (letter.part != part || letter.kind == LetterKind::NotCounted)
            continue;
        if (!text.empty())
            text += u", ";
        text += letter.character;
        text += u' ';
        AppendNumber(text, letter.value);
    }
    return text.empty() ? u"none that counts" : text;
}

std::u16string SumInWords(std::u16string_view letters, std::u16string_view number,
                          const NameSum &sum) {
    return Joined(letters, u" add up to ", InWords(sum), u": ", number, u" ",
                  DecimalText(sum.number), u". ");
}

NamePicture PictureOfName() {
    NamePicture picture;
    picture.sheet = ReadNameSheet();
    const NameSheet &sheet = picture.sheet;
    const auto has = [&](LetterKind kind) {
        return std::ranges::find(sheet.letters, kind, &NameLetter::kind) != sheet.letters.end();
    };

    std::u16string &words = picture.text.words;
    words = Joined(u"First name: ", LettersInWords(sheet, NamePart::First), u". ");
    if (!profile.MiddleName.empty())
        words += Joined(u"Middle name: ", LettersInWords(sheet, NamePart::Middle), u". ");
    words += Joined(u"Last name: ", LettersInWords(sheet, NamePart::Last), u". ");
    const auto uncounted =
        std::ranges::count(sheet.letters, LetterKind::NotCounted, &NameLetter::kind);
    if (uncounted != 0)
        words += Joined(Number(uncounted), uncounted == 1 ? u" character has no value. "
                                                          : u" characters have no value. ");
    words += SumInWords(u"All letters", u"Destiny", sheet.destiny);
    words += SumInWords(has(LetterKind::YAsVowel) ? u"The letters Y, for want of a vowel,"
                                                  : u"The vowels",
                        u"Soul Urge", sheet.soulUrge);
    words += SumInWords(u"The consonants", u"Inner Dreams", sheet.innerDreams);

    picture.text.id = "name-picture";
    picture.text.title = u"The name in letters and numbers";
    picture.text.legend = has(LetterKind::YAsVowel)
                              ? u"Above a vowel and below a consonant stands its value; what is "
                                u"pale has no value. All "
                                u"letters make the Destiny, the vowels the Soul Urge, the "
                                u"consonants the Inner Dreams. "
                                u"A name without a vowel counts each Y on both sides."
                              : u"Above a vowel and below a consonant stands its value; what is "
                                u"pale has no value. All "
                                u"letters make the Destiny, the vowels the Soul Urge, the "
                                u"consonants the Inner Dreams.";
    return picture;
}

ValuesPicture PictureOfValues() {
    ValuesPicture picture;
    const std::u16string name = WholeName();
    for (const char16_t character : name)
        picture.letters[static_cast<std::size_t>(ChartValue(character))] += character;
    picture.leader = MostFrequentCharacter(name);
    picture.leaderValue = ChartValue(picture.leader.character);

    std::u16string &words = picture.text.words;
    std::vector<std::u16string> present;
    std::vector<std::u16string> missing;
    for (std::size_t value = 1; value <= 9; ++value) {
        const std::u16string number = Number(static_cast<long long>(value));
        if (picture.letters[value].empty())
            missing.push_back(number);
        else
            present.push_back(number + u": " + Times(picture.letters[value].size()));
    }
    if (!present.empty())
        words = Joined(u"The values of the name are ", Enumerated(present), u". ");
    words += missing.empty()       ? u"No value is missing."
             : missing.size() == 1 ? Joined(u"The value ", missing[0], u" is missing.")
                                   : Joined(u"The values ", Enumerated(missing), u" are missing.");
    words += Joined(u" ", Shown(picture.leader.character), u" comes most often, ",
                    Times(static_cast<std::size_t>(picture.leader.count)));
    words += picture.leaderValue != 0
                 ? Joined(u", and its value is the Hidden Passion Number, ",
                          DecimalText(picture.leaderValue), u".")
                 : std::u16string(u"; it has no value, and so there is no Hidden Passion Number.");
    picture.text.id = "values-picture";
    picture.text.title = u"The values 1 to 9 in the name";
    picture.text.legend =
        u"Every letter of the name stands above its value. An empty place is a Karmic Lesson. The "
        u"letter that comes most often, and the first of those that come equally often, is marked: "
        u"its value is the Hidden Passion. Letters are counted for that and not values.";
    return picture;
}

std::u16string SpansInWords(std::u16string_view what, std::span<const LifeSpan> spans) {
    std::vector<std::u16string> items;
    items.reserve(spans.size());
    for (const LifeSpan &span : spans)
        items.push_back(Joined(DecimalText(span.number), u" ", InWords(span.ages),
                               span.inForce ? u" (in force today)" : u""));
    return Joined(what, Enumerated(items), u". ");
}

/// "age 41", "before the year of birth".
std::u16string AgeInWords(int16 age) {
    return age < 0 ? std::u16string(u"before the year of birth") : u"age " + DecimalText(age);
}

LifePicture PictureOfLife(Document &document) {
    LifePicture picture;
    picture.age = document.age;
    picture.periods.reserve(3);
    picture.pinnacles.reserve(4);
    picture.challenges.reserve(4);

    const auto add = [](std::vector<LifeSpan> &spans, int16 number, const Ages &ages, bool inForce,
                        DocumentPart *place) {
        LifeSpan &span = spans.emplace_back(LifeSpan{number, ages, inForce, {}});
        if (place == nullptr)
            return;
        place->inForce = inForce;
        span.id = place->id;
    };
    const auto place = [](const std::vector<DocumentPart *> &phases, std::size_t index) {
        return index < phases.size() ? phases[index] : nullptr;
    };

    if (const auto ages = AgesOfPeriods(store.PeriodRoot)) {
        const auto phases = PhasesOf(TopicIn(document, CalcLifePathPeriods));
        const std::array numbers{store.PeriodNumber1, store.PeriodNumber2, store.PeriodNumber3};
        for (std::size_t index = 0; index < numbers.size(); ++index)
            add(picture.periods, numbers[index], (*ages)[index],
                store.LifePathPeriodsNumber == static_cast<int16>(index + 1), place(phases, index));
    }
    const auto phases = PhasesOf(TopicIn(document, CalcPinnacles));
    const std::array numbers{store.PinnacleNumber1, store.PinnacleNumber2, store.PinnacleNumber3,
                             store.PinnacleNumber4};
    for (std::size_t index = 0; index < numbers.size(); ++index)
        if (const auto ages = AgesOfPinnacle(index, numbers[index]))
            add(picture.pinnacles, numbers[index], *ages, ages->Hold(picture.age),
                place(phases, index));
    for (std::u16string_view rest = store.ChallengeNumber; !rest.empty();) {
        const std::size_t end = rest.find(u' ');
        picture.challenges.push_back(NumberFromText(rest.substr(0, end)));
        rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    }

    std::u16string &words = picture.text.words;
    words = Joined(u"Today: ", AgeInWords(picture.age), u". ");
    words += SpansInWords(u"Life Path Periods: ", picture.periods);
    words += SpansInWords(u"Pinnacles: ", picture.pinnacles);
    const auto inForce = std::ranges::count_if(picture.pinnacles, &LifeSpan::inForce);
    if (inForce == 0)
        words += u"No pinnacle is in force today. ";
    else if (inForce > 1)
        words += Joined(Number(inForce), u" pinnacles are in force today. ");
    std::vector<std::u16string> challenges;
    for (const int16 challenge : picture.challenges)
        challenges.push_back(DecimalText(challenge));
    words += Joined(u"Challenges: ", Enumerated(challenges), u".");

    picture.text.id = "life-picture";
    picture.text.title = u"Periods, pinnacles and challenges of the life";
    picture.text.legend =
        u"The years of age run from left to right, and the upright line is today. The age counts "
        u"calendar years. Each pinnacle has the ages of its own number, so two may overlap or "
        u"leave a gap. Challenges have no ages.";
    return picture;
}

TimePicture PictureOfTime(const UserProfile &person, std::chrono::year_month_day day) {
    FixedClock clock(day);
    constexpr int yearsAhead = 9;
    constexpr int monthsAhead = 12;
    TimePicture picture;
    picture.years.reserve(yearsAhead);
    picture.months.reserve(monthsAhead);
    for (int ahead = 0; ahead < yearsAhead; ++ahead) {
        clock.Set((day.year() + std::chrono::years(ahead)) / day.month() / 1);
        TimePicture::Year &year = picture.years.emplace_back();
        year.year = Clock::Year();
        year.age = year.year - NumberFromText(person.BirthYear);
        CalcPersonalYear();
        year.personalYear = NumberFromText(store.PersonalYearNumber);
        if (!EndlessName(person, ToInt16(year.age))) {
            CalcEssence();
            year.essence = store.EssenceNumber;
        }
    }
    for (int ahead = 0; ahead < monthsAhead; ++ahead) {
        const auto month = day.year() / day.month() + std::chrono::months(ahead);
        clock.Set(month / 1);
        CalcPersonalMonth();
        picture.months.push_back({static_cast<int>(month.year()),
                                  englishMonths[static_cast<unsigned>(month.month()) - 1],
                                  store.PersonalMonthNumber});
    }

    const auto open = std::ranges::find_if(
        picture.years, [](const TimePicture::Year &year) { return !year.essence.has_value(); });
    const auto essences = static_cast<std::size_t>(open - picture.years.begin());
    std::u16string &words = picture.text.words;
    const auto append = [&words](std::u16string_view before, int year, int16 number) {
        words += before;
        AppendNumber(words, year);
        words += u": ";
        AppendNumber(words, number);
    };
    words.reserve(700);
    words = u"Personal Year: ";
    Enumerate(words, picture.years.size(), [&](std::size_t index) {
        append({}, picture.years[index].year, picture.years[index].personalYear);
    });
    words += essences == 0 ? u". Essence: none" : u". Essence: ";
    Enumerate(words, essences, [&](std::size_t index) {
        append({}, picture.years[index].year, *picture.years[index].essence);
    });
    if (essences < picture.years.size())
        words += u", and open from then on, since a name has no letter that counts for it";
    words += u". Personal Month: ";
    Enumerate(words, picture.months.size(), [&](std::size_t index) {
        words += picture.months[index].name;
        append(u" ", picture.months[index].year, picture.months[index].personalMonth);
    });
    words += u'.';

    picture.text.id = "time-picture";
    picture.text.title = u"The time from now on";
    picture.text.legend =
        u"Personal Year and Essence of this year and the next eight, and below them the Personal "
        u"Month of this month and the next eleven. The higher the mark, the higher the number.";
    return picture;
}

PlanesPicture PictureOfPlanes() {
    PlanesPicture picture;
    const std::u16string name = WholeName();
    const std::array shares{store.MentalPercent, store.PhysicalPercent, store.EmotionalPercent,
                            store.IntuitivePercent};
    const std::array ratings{&store.MentalRating, &store.PhysicalRating, &store.EmotionalRating,
                             &store.IntuitiveRating};
    std::vector<std::u16string> items;
    for (std::size_t index = 0; index < planes.size(); ++index) {
        PlanesPicture::Plane &plane = picture.planes.emplace_back();
        plane.name = planes[index].name;
        plane.share = shares[index];
        plane.rating = *ratings[index];
        plane.dominates = store.PlanesNumber == plane.name;
        std::ranges::copy_if(name, std::back_inserter(plane.letters), [&](char16_t character) {
            return planes[index].letters.find(character) != std::u16string_view::npos;
        });
        items.push_back(Joined(plane.name, u" ", DecimalText(plane.share), u" percent (",
                               plane.rating.empty() ? u"no rating" : plane.rating, u")"));
    }
    picture.text.words = Joined(Enumerated(items), u". ");
    picture.text.words += store.PlanesNumber.empty()
                              ? std::u16string(u"No plane has more than each of the others.")
                              : Joined(u"The largest share is ", store.PlanesNumber, u".");
    picture.text.id = "planes-picture";
    picture.text.title = u"The four planes of expression";
    picture.text.legend =
        u"The share of each plane among all characters of the name, with its rating. Shares are "
        u"whole percents, rounded down, and a character that is no letter belongs to no plane.";
    return picture;
}

std::vector<InForce> InForceToday(Document &document) {
    std::vector<InForce> today;
    today.reserve(8);
    for (const Calculator calculate :
         {CalcPersonalYear, CalcPersonalMonth, CalcPersonalDay, CalcEssence}) {
        if (calculate == CalcEssence && document.age < 0)
            continue;
        const DocumentTopic &topic = TopicIn(document, calculate);
        today.push_back(
            {std::u16string(topic.caption), topic.number, topic.speaksOf, std::string(topic.id)});
    }
    const auto add = [&](std::u16string_view what, std::span<const LifeSpan> spans) {
        for (std::size_t index = 0; index < spans.size(); ++index)
            if (spans[index].inForce)
                today.push_back({Joined(ordinals[index], what), DecimalText(spans[index].number),
                                 InWords(spans[index].ages), spans[index].id});
    };
    add(u" Life Path Period", document.life.periods);
    add(u" Pinnacle", document.life.pinnacles);
    return today;
}

std::u16string NoteOnToday(const Document &document) {
    std::u16string note = Joined(u"This is the reading for ", document.readFor, u". ");
    if (document.age < 0)
        return note + u"It is made before the year of birth.";
    note += Joined(u"The age is ", DecimalText(document.age),
                   u", counted in calendar years whatever the month of birth is.");
    if (std::ranges::none_of(document.life.pinnacles, &LifeSpan::inForce))
        note += u" No pinnacle is in force at this age.";
    return note;
}

std::u16string FullName(const GivenName &given) {
    std::u16string name;
    for (const std::u16string_view part :
         {std::u16string_view(given.first), std::u16string_view(given.middle),
          std::u16string_view(given.last)}) {
        const std::u16string_view trimmed = TrimBlanks(part);
        if (!name.empty() && !trimmed.empty())
            name += u' ';
        name += trimmed;
    }
    return name;
}

} // namespace

std::u16string LongDate(std::u16string_view month, int day, int year) {
    return Joined(month, u" ", Number(day), u", ", Number(year));
}

std::u16string LongDate(std::chrono::year_month_day date) {
    return LongDate(englishMonths[static_cast<unsigned>(date.month()) - 1],
                    static_cast<int>(static_cast<unsigned>(date.day())),
                    static_cast<int>(date.year()));
}

std::u16string InWords(const NameSum &sum) {
    std::u16string text = DecimalText(sum.raw);
    for (const Trace::Step &step : sum.steps) {
        if (step.kind == Trace::StepKind::MasterStays) {
            text += u", which stays";
            continue;
        }
        for (std::size_t index = 0; index < step.terms.size(); ++index)
            text += Joined(index == 0 ? u", " : u" + ", DecimalText(step.terms[index]));
        text += Joined(u" = ", DecimalText(step.result));
    }
    return text;
}

Document MakeDocument(const UserProfile &person, const GivenName &given,
                      std::chrono::year_month_day day) {
    const OnAnEmptyStore guard(person);
    const FixedClock clock(day);
    RunAllCalculators();

    Document document;
    document.name = FullName(given);
    document.born = LongDate(person.BirthMonth, NumberFromText(person.BirthDay),
                             NumberFromText(person.BirthYear));
    document.readFor = LongDate(day);
    document.day = day;
    document.age = Subtract(Clock::Year(), NumberFromText(person.BirthYear));
    document.topics.reserve(passOrder.size());
    for (const Calculator calculate : passOrder)
        document.topics.push_back(TopicFor(calculate, day, document.age));
    document.glance = Glance(document);
    document.letters = PictureOfName();
    document.values = PictureOfValues();
    document.life = PictureOfLife(document);
    document.planes = PictureOfPlanes();
    document.today = InForceToday(document);
    document.todayNote = NoteOnToday(document);
    document.time = PictureOfTime(person, day); // last: it leaves other years in the slots
    return document;
}

} // namespace modReadings
