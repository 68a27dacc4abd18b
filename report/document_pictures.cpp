#include "report/document_pictures.h"

#include "core/clock.h"
#include "core/letters.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "numbers/calculators.h"
#include "numbers/essence.h"
#include "numbers/life_path_periods.h"
#include "numbers/pinnacles.h"
#include "numbers/planes.h"
#include "report/document_topics.h"
#include "report/joined.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace modReadings {

namespace {

/// The parts of `topic` that stand under a line of their own: its periods or pinnacles.
std::vector<DocumentPart *> PhasesOf(DocumentTopic &topic) {
    std::vector<DocumentPart *> phases;
    for (DocumentPart &part : topic.parts)
        if (!part.label.empty())
            phases.push_back(&part);
    return phases;
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

void AppendSpans(std::u16string &text, std::u16string_view what, std::span<const LifeSpan> spans) {
    text += what;
    Enumerate(text, spans, [&](const LifeSpan &span) {
        Append(text, span.number, u" ", InWords(span.ages),
               span.inForce ? u" (in force today)" : u"");
    });
    text += u". ";
}

} // namespace

std::u16string InWords(const Ages &ages) {
    if (ages.IsOpen())
        return Joined(u"from age ", ages.from, u" on");
    return Joined(u"from age ", ages.from, u" to ", ages.to);
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
    picture.text.legend = u"Above a vowel and below a consonant stands its value; what is pale has "
                          u"no value. All letters make the Destiny, the vowels the Soul Urge, the "
                          u"consonants the Inner Dreams.";
    if (yIsVowel)
        picture.text.note = u"A name without a vowel counts each Y on both sides.";
    return picture;
}

ValuesPicture PictureOfValues() {
    ValuesPicture picture;
    const std::u16string name = WholeName();
    for (const char16_t character : name)
        picture.letters[static_cast<std::size_t>(ChartValue(character))] += character;
    picture.leader = MostFrequentCharacter(name);

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
        if (const int16 value = ChartValue(picture.leader.character); value != 0)
            Append(words, u", and its value is the Hidden Passion Number, ", value, u".");
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
    // The slots keep the numbers of the challenges as one text alone.
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
        CalcPersonalYear();
        year.personalYear = NumberFromText(store.PersonalYearNumber);
        if (!EndlessName(person, ToInt16(year.year - NumberFromText(person.BirthYear)))) {
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

} // namespace modReadings
