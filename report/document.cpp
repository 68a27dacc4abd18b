#include "report/document.h"

#include "core/clock.h"
#include "core/months.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/text.h"
#include "report/document_pictures.h"
#include "report/document_topics.h"
#include "report/joined.h"

#include <algorithm>
#include <span>
#include <utility>

namespace modReadings {

namespace {

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

/// The cycles, and the periods and pinnacles that have this age.
std::vector<InForce> InForceToday(const Document &document) {
    constexpr std::array<std::u16string_view, 4> ordinals{u"First", u"Second", u"Third", u"Fourth"};
    std::vector<InForce> today = CyclesInForce(document);
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

std::array<const PictureText *, 5> PicturesOf(const Document &document) {
    return {&document.letters.text, &document.values.text, &document.life.text, &document.time.text,
            &document.planes.text};
}

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
    document.age = Subtract(Clock::Year(), NumberFromText(person.BirthYear));
    document.topics = TopicsFor(day, document.age);
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
