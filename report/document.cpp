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
#include "report/report.h"

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
        : store_(store), profile_(std::exchange(profile, person)) {
        store = {}; // its texts keep their memory, as they do when empty ones come back
    }
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

// Texts are put together of pieces: texts, and numbers in decimal.

std::size_t MostUnitsOf(std::u16string_view text) { return text.size(); }
std::size_t MostUnitsOf(int) { return 11; }

void AppendPiece(std::u16string &text, std::u16string_view piece) { text += piece; }
/// A literal, whose length the compiler knows.
template <std::size_t size>
void AppendPiece(std::u16string &text, const char16_t (&literal)[size]) {
    text.append(literal, size - 1);
}
void AppendPiece(std::u16string &text, int number) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    std::for_each(digits, end, [&](char digit) { text += static_cast<char16_t>(digit); });
}

template <typename... Pieces> void Append(std::u16string &text, const Pieces &...pieces) {
    (AppendPiece(text, pieces), ...);
}

template <typename... Pieces> std::u16string Joined(const Pieces &...pieces) {
    std::u16string text;
    text.reserve((MostUnitsOf(pieces) + ...));
    Append(text, pieces...);
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
        if (HasTitles(block.slot)) {
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
std::u16string SpeaksOf(const Topic &topic, std::chrono::year_month_day day, int16 age) {
    const auto year = static_cast<int>(day.year());
    if (topic.calculate == CalcPersonalYear)
        return Joined(year);
    if (topic.calculate == CalcPersonalMonth)
        return Joined(englishMonths[static_cast<unsigned>(day.month()) - 1], u" ", year);
    if (topic.calculate == CalcPersonalDay)
        return LongDate(day);
    if (topic.calculate == CalcEssence)
        return age < 0 ? Joined(year) : Joined(year, u", age ", age);
    return {};
}

DocumentTopic TopicFor(Calculator calculate, std::chrono::year_month_day day, int16 age) {
    const Topic &topic = TopicOf(calculate);
    Attempt(calculate);

    DocumentTopic made;
    made.caption = topic.caption;
    made.id = PlaceOf(topic);
    const std::u16string number = HeadingNumberText(topic);
    made.number = TrimBlanks(number);
    made.heading = Joined(topic.heading, number);
    made.heading.resize(TrimBlanks(made.heading).size()); // blanks stand at its end alone
    made.speaksOf = SpeaksOf(topic, day, age);
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

/// The parts of `topic` that stand under a line of their own: its periods or pinnacles.
std::vector<DocumentPart *> PhasesOf(DocumentTopic &topic) {
    std::vector<DocumentPart *> phases;
    for (DocumentPart &part : topic.parts)
        if (!part.label.empty())
            phases.push_back(&part);
    return phases;
}

DocumentTopic &TopicIn(Document &document, Calculator calculate) {
    return document.topics[static_cast<std::size_t>(std::ranges::find(passOrder, calculate) -
                                                    passOrder.begin())];
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
        return Joined(u"from age ", ages.from, u" on");
    return Joined(u"from age ", ages.from, u" to ", ages.to);
}

/// Appends items as "4", "4 and 6" or "4, 6 and 8"; `append` appends one of them.
template <typename Items, typename AppendItem>
void Enumerate(std::u16string &text, const Items &items, const AppendItem &append) {
    std::size_t rest = std::size(items);
    for (const auto &item : items) {
        append(item);
        --rest;
        if (rest != 0)
            text += rest == 1 ? u" and " : u", ";
    }
}

/// Appends "once", "twice" or "7 times".
void AppendTimes(std::u16string &text, std::size_t count) {
    if (count == 1)
        text += u"once";
    else if (count == 2)
        text += u"twice";
    else
        Append(text, static_cast<int>(count), u" times");
}

/// A character of a name as the beginning of a sentence.
std::u16string Shown(char16_t character) {
    if (ChartValue(character) != 0)
        return Joined(u"The letter ", std::u16string(1, character));
    return character == u' ' ? u"A blank" : u"A character without a value";
}

/// Appends what `name` is called, and its letters that count, each with its value.
void AppendLetters(std::u16string &text, std::u16string_view name, const NameSheet &sheet,
                   NamePart part) {
    Append(text, name, u": ");
    bool none = true;
    for (const NameLetter &letter : sheet.letters) {
        if (letter.part != part || letter.kind == LetterKind::NotCounted)
            continue;
        Append(text, none ? u"" : u", ", std::u16string_view(&letter.character, 1), u" ",
               letter.value);
        none = false;
    }
    text += none ? u"none that counts. " : u". ";
}

void AppendSum(std::u16string &text, std::u16string_view letters, std::u16string_view number,
               const NameSum &sum) {
    Append(text, letters, u" add up to ", InWords(sum), u": ", number, u" ", sum.number, u". ");
}

NamePicture PictureOfName() {
    NamePicture picture;
    picture.sheet = ReadNameSheet();
    const NameSheet &sheet = picture.sheet;
    const auto count = [&](LetterKind kind) {
        return static_cast<int>(std::ranges::count(sheet.letters, kind, &NameLetter::kind));
    };
    const bool yIsVowel = count(LetterKind::YAsVowel) != 0;

    std::u16string &words = picture.text.words;
    words.reserve(250 + 5 * sheet.letters.size());
    AppendLetters(words, u"First name", sheet, NamePart::First);
    if (!profile.MiddleName.empty())
        AppendLetters(words, u"Middle name", sheet, NamePart::Middle);
    AppendLetters(words, u"Last name", sheet, NamePart::Last);
    if (const int uncounted = count(LetterKind::NotCounted); uncounted != 0)
        Append(words, uncounted,
               uncounted == 1 ? u" character has no value. " : u" characters have no value. ");
    AppendSum(words, u"All letters", u"Destiny", sheet.destiny);
    AppendSum(words, yIsVowel ? u"The letters Y, for want of a vowel," : u"The vowels",
              u"Soul Urge", sheet.soulUrge);
    AppendSum(words, u"The consonants", u"Inner Dreams", sheet.innerDreams);

    picture.text.id = "name-picture";
    picture.text.title = u"The name in letters and numbers";
    picture.text.legend = yIsVowel
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

    std::vector<int> present;
    std::vector<int> missing;
    for (int value = 1; value <= 9; ++value)
        (picture.letters[static_cast<std::size_t>(value)].empty() ? missing : present)
            .push_back(value);

    std::u16string &words = picture.text.words;
    words.reserve(400);
    if (!present.empty()) {
        words += u"The values of the name are ";
        Enumerate(words, present, [&](int value) {
            Append(words, value, u": ");
            AppendTimes(words, picture.letters[static_cast<std::size_t>(value)].size());
        });
        words += u". ";
    }
    words += missing.empty()       ? u"No value is missing."
             : missing.size() == 1 ? u"The value "
                                   : u"The values ";
    Enumerate(words, missing, [&](int value) { Append(words, value); });
    if (!missing.empty())
        words += missing.size() == 1 ? u" is missing." : u" are missing.";
    if (name.empty()) {
        words += u" The name has no character, and so there is no Hidden Passion Number.";
    } else {
        Append(words, u" ", Shown(picture.leader.character), u" comes most often, ");
        AppendTimes(words, static_cast<std::size_t>(picture.leader.count));
        if (picture.leaderValue != 0)
            Append(words, u", and its value is the Hidden Passion Number, ", picture.leaderValue,
                   u".");
        else
            words += u"; it has no value, and so there is no Hidden Passion Number.";
    }

    picture.text.id = "values-picture";
    picture.text.title = u"The values 1 to 9 in the name";
    picture.text.legend =
        u"Every letter of the name stands above its value. An empty place is a Karmic Lesson. The "
        u"letter that comes most often, and the first of those that come equally often, is marked: "
        u"its value is the Hidden Passion. Letters are counted for that and not values.";
    return picture;
}

void AppendSpans(std::u16string &text, std::u16string_view what, std::span<const LifeSpan> spans) {
    text += what;
    Enumerate(text, spans, [&](const LifeSpan &span) {
        Append(text, span.number, u" ", InWords(span.ages),
               span.inForce ? u" (in force today)" : u"");
    });
    text += u". ";
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
    words.reserve(500);
    if (picture.age < 0)
        words += u"Today: before the year of birth. ";
    else
        Append(words, u"Today: age ", picture.age, u". ");
    AppendSpans(words, u"Life Path Periods: ", picture.periods);
    AppendSpans(words, u"Pinnacles: ", picture.pinnacles);
    const auto inForce = std::ranges::count_if(picture.pinnacles, &LifeSpan::inForce);
    if (inForce == 0)
        words += u"No pinnacle is in force today. ";
    else if (inForce > 1)
        Append(words, static_cast<int>(inForce), u" pinnacles are in force today. ");
    words += u"Challenges: ";
    Enumerate(words, picture.challenges, [&](int16 challenge) { Append(words, challenge); });
    words += u'.';

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
    const std::span withEssence(picture.years.begin(), open);
    std::u16string &words = picture.text.words;
    words.reserve(700);
    words += u"Personal Year: ";
    Enumerate(words, picture.years, [&](const TimePicture::Year &year) {
        Append(words, year.year, u": ", year.personalYear);
    });
    words += withEssence.empty() ? u". Essence: none" : u". Essence: ";
    Enumerate(words, withEssence, [&](const TimePicture::Year &year) {
        Append(words, year.year, u": ", *year.essence);
    });
    if (withEssence.size() < picture.years.size())
        words += u", and open from then on, since a name has no letter that counts for it";
    words += u". Personal Month: ";
    Enumerate(words, picture.months, [&](const TimePicture::Month &month) {
        Append(words, month.name, u" ", month.year, u": ", month.personalMonth);
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
    picture.planes.reserve(planes.size());
    for (std::size_t index = 0; index < planes.size(); ++index) {
        PlanesPicture::Plane &plane = picture.planes.emplace_back();
        plane.name = planes[index].name;
        plane.share = shares[index];
        plane.rating = *ratings[index];
        plane.dominates = store.PlanesNumber == plane.name;
        std::ranges::copy_if(name, std::back_inserter(plane.letters), [&](char16_t character) {
            return planes[index].letters.find(character) != std::u16string_view::npos;
        });
    }

    std::u16string &words = picture.text.words;
    words.reserve(250);
    Enumerate(words, picture.planes, [&](const PlanesPicture::Plane &plane) {
        Append(words, plane.name, u" ", plane.share, u" percent (",
               plane.rating.empty() ? u"no rating" : plane.rating, u")");
    });
    if (store.PlanesNumber.empty())
        words += u". No plane has more than each of the others.";
    else
        Append(words, u". The largest share is ", store.PlanesNumber, u".");

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
    Append(note, u"The age is ", document.age,
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
    return Joined(month, u" ", day, u", ", year);
}

std::u16string LongDate(std::chrono::year_month_day date) {
    return LongDate(englishMonths[static_cast<unsigned>(date.month()) - 1],
                    static_cast<int>(static_cast<unsigned>(date.day())),
                    static_cast<int>(date.year()));
}

std::u16string InWords(const NameSum &sum) {
    std::u16string text = Joined(sum.raw);
    for (const Trace::Step &step : sum.steps) {
        if (step.kind == Trace::StepKind::MasterStays) {
            text += u", which stays";
            continue;
        }
        for (std::size_t index = 0; index < step.terms.size(); ++index)
            Append(text, index == 0 ? u", " : u" + ", step.terms[index]);
        Append(text, u" = ", step.result);
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
