#include "report/document.h"

#include "core/text.h"
#include "report/rendering.h"
#include "tests/support/fresh_store.h"
#include "tests/support/store_slots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace modReadings;
using namespace std::chrono;

namespace {

constexpr year_month_day november16 = year(2026) / 11 / 16;

UserProfile Person(std::u16string first, std::u16string last, std::u16string day,
                   std::u16string month, std::u16string birthYear) {
    return {std::move(first),    u"", std::move(last), std::move(month), std::move(day),
            std::move(birthYear)};
}

/// Life Path 1, Destiny 9, Soul Urge 3, Inner Dreams 6; 41 in 2026; pinnacles 5, 7, 3, 8.
const UserProfile oakRiver = Person(u"OAK", u"RIVER", u"29", u"December", u"1985");

Document For(const UserProfile &person, year_month_day day = november16) {
    return MakeDocument(person, {u"Oak", u"", u"River"}, day);
}

const DocumentTopic &TopicNamed(const Document &document, std::u16string_view caption) {
    return *std::ranges::find(document.topics, caption, &DocumentTopic::caption);
}

std::vector<std::u16string> Words(std::u16string_view text) {
    std::vector<std::u16string> words(1);
    for (const char16_t character : text) {
        if (character != u' ' && character != u'\r' && character != u'\n')
            words.back() += character;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

TEST(Document, SaysWhoIsReadAndWhen) {
    const Document document = MakeDocument(oakRiver, {u" oak ", u"  ", u"River "}, november16);
    EXPECT_EQ(document.name, u"oak River");
    EXPECT_EQ(document.born, u"December 29, 1985");
    EXPECT_EQ(document.readFor, u"November 16, 2026");
    EXPECT_EQ(document.age, 41);
    EXPECT_EQ(MakeDocument(oakRiver, {u"Ann", u"B.", u"Lee"}, november16).name, u"Ann B. Lee");
}

// The rendering says which texts a topic has; a part that refers to an earlier one stands for it.
TEST(Document, HasTheTopicsOfThePassWithTheTextsOfTheRendering) {
    for (const UserProfile &person : {oakRiver, Person(u"LYNN", u"PFFT-3", u"7", u"March", u"1990"),
                                      Person(u"ANN", u"LEE", u"31", u"February", u"2050")}) {
        const Document document = For(person);
        const FixedClock clock(november16);
        store = {};
        profile = person;
        RunAllCalculators();
        ASSERT_EQ(document.topics.size(), passOrder.size());
        std::set<std::string> ids;
        for (std::size_t index = 0; index < passOrder.size(); ++index) {
            const DocumentTopic &topic = document.topics[index];
            EXPECT_TRUE(ids.emplace(topic.id).second) << topic.id;
            std::u16string text = topic.heading + u'\n';
            for (const DocumentPart &part : topic.parts) {
                EXPECT_EQ(part.id.empty(), part.label.empty());
                EXPECT_TRUE(part.id.empty() || ids.insert(part.id).second) << part.id;
                const auto first = part.sameAs.empty() ? topic.parts.end()
                                                       : std::ranges::find(topic.parts, part.sameAs,
                                                                           &DocumentPart::id);
                EXPECT_EQ(first != topic.parts.end(), !part.sameAs.empty());
                text += part.label + u'\n' +
                        (first == topic.parts.end() ? part.text : first->text) + u'\n';
            }
            EXPECT_EQ(Words(text), Words(TextOf(RunAndRenderTopic(TopicOf(passOrder[index])))))
                << topic.id;
        }
    }
}

// Challenges of 29 December 1985: 1, 3, 2 and 2.
TEST(Document, PrintsAReadingThatComesBackOnce) {
    const Document document = For(oakRiver);
    const auto &parts = TopicNamed(document, u"Challenge Number").parts;
    ASSERT_EQ(parts.size(), 5U); // the explanation and four challenges
    EXPECT_TRUE(parts[0].explains);
    EXPECT_EQ(parts[3].label, u"Third Challenge Number is 2");
    EXPECT_EQ(parts[3].sameAs, "");
    EXPECT_FALSE(parts[3].text.empty());
    EXPECT_EQ(parts[4].label, u"Fourth Challenge Number is 2");
    EXPECT_EQ(parts[4].sameAs, parts[3].id);
    EXPECT_EQ(parts[4].sameAsLabel, parts[3].label);
    EXPECT_EQ(parts[4].text, u"");
}

// O 6, A 1, K 2, R 9, I 9, V 4, E 5, R 9: 3, 7 and 8 are missing.
TEST(Document, GivesTheLinesWithinATextTheirPlace) {
    const Document document = For(oakRiver);
    std::u16string labels;
    for (const DocumentPart &part : TopicNamed(document, u"Karmic Lessons Number").parts)
        labels += part.label + u'|';
    EXPECT_EQ(labels, u"|3|7|8|");
    labels.clear();
    for (const DocumentPart &part :
         TopicNamed(document, u"Planes Of Expression / Personal Aspects").parts)
        labels += part.label + u'|';
    EXPECT_EQ(labels, u"Your Personal Aspects: ||Plane of expression: Physical (body):|"
                      u"Planes of expression: Mental (mind):|"
                      u"Plane of Expression: Emotional (heart):|"
                      u"Plane of Expression: Intuitive (spirit):|");
}

TEST(Document, HasEachTopicOnceInTheTableAtAGlance) {
    const Document document = For(oakRiver);
    std::u16string numbers;
    std::set<std::string_view> ids;
    for (const NumberGroup &group : document.glance)
        for (const NumberRow &row : group.rows) {
            EXPECT_TRUE(ids.insert(row.id).second) << row.id;
            EXPECT_EQ(TopicNamed(document, row.caption).id, row.id);
            if (row.number.find(u',') != row.number.npos || row.number.size() > 2)
                numbers += row.number + u'|';
        }
    EXPECT_EQ(ids.size(), passOrder.size());
    EXPECT_EQ(numbers, u"3, 7, 8|Emotional|3, 2, 5|5, 7, 3, 8|1, 3, 2, 2|");
}

TEST(Document, SaysOfWhichTimeACycleSpeaks) {
    const Document document = For(oakRiver);
    EXPECT_EQ(TopicNamed(document, u"Personal Year").speaksOf, u"2026");
    EXPECT_EQ(TopicNamed(document, u"Personal Month").speaksOf, u"November 2026");
    EXPECT_EQ(TopicNamed(document, u"Personal Day").speaksOf, u"November 16, 2026");
    EXPECT_EQ(TopicNamed(document, u"Essence").speaksOf, u"2026, age 41");
    EXPECT_EQ(TopicNamed(document, u"Life Path Number").speaksOf, u"");
}

/// The labels of the parts that are in force, and the ids of the list that says so.
std::u16string MarkedIn(const Document &document) {
    std::u16string marked;
    for (const DocumentTopic &topic : document.topics)
        for (const DocumentPart &part : topic.parts)
            if (part.inForce) {
                marked += part.label + u'|';
                EXPECT_NE(std::ranges::find(document.today, part.id, &InForce::id),
                          document.today.end());
            }
    return marked;
}

// By the ages of its pinnacles, 0-31, 30-38, 43-51 and from 47 on, this person has two at 31,
// none at 41, two at 51.
TEST(Document, MarksWhatIsInForceByTheAgeOfTheCalculators) {
    EXPECT_EQ(MarkedIn(For(oakRiver)), u"Life Path Period 2 from age 27 - 53 is 2|");
    EXPECT_EQ(MarkedIn(For(oakRiver, year(2016) / 1 / 1)),
              u"Life Path Period 2 from age 27 - 53 is 2|First Pinnacle from age 0-31 years is 5|"
              u"Second Pinnacle from age 30-38 is 7|");
    EXPECT_EQ(MarkedIn(For(oakRiver, year(2036) / 12 / 31)),
              u"Life Path Period 2 from age 27 - 53 is 2|Third Pinnacle from age 43-51 is 3|"
              u"Fourth Pinnacle from age 47 & beyond is 8|");
    EXPECT_EQ(
        For(oakRiver).todayNote,
        u"This is the reading for November 16, 2026. The age is 41, counted in calendar years "
        u"whatever the month of birth is. No pinnacle is in force at this age.");
    const Document unborn = For(oakRiver, year(1984) / 12 / 31);
    EXPECT_TRUE(unborn.todayNote.ends_with(u"1984. It is made before the year of birth."));
    EXPECT_EQ(MarkedIn(unborn), u"");
    EXPECT_EQ(unborn.today.size(), 3U); // year, month and day
}

TEST(Document, DrawsTheNameAsItIsSummed) {
    const NamePicture letters = For(oakRiver).letters;
    EXPECT_EQ(letters.text.words,
              u"First name: O 6, A 1, K 2. Last name: R 9, I 9, V 4, E 5, R 9. All letters add up "
              u"to 45, 4 + 5 = 9: Destiny 9. The vowels add up to 21, 2 + 1 = 3: Soul Urge 3. The "
              u"consonants add up to 24, 2 + 4 = 6: Inner Dreams 6. ");
    // L 3, Y 7, N 5, N 5 and F 6, D 4: Y counts on both sides. 7 + 23 and no other vowel.
    EXPECT_EQ(For(Person(u"LYNN", u"F-D", u"7", u"March", u"1990")).letters.text.words,
              u"First name: L 3, Y 7, N 5, N 5. Last name: F 6, D 4. 1 character has no value. All "
              u"letters add up to 30, 3 + 0 = 3: Destiny 3. The letters Y, for want of a vowel, "
              u"add up to 7: Soul Urge 7. The consonants add up to 30, 3 + 0 = 3: Inner Dreams "
              u"3. ");
}

TEST(Document, SaysThatAMasterNumberStays) {
    // C 3 L 3 A 1 R 9 A 1, J 1 A 1 N 5 E 5, W 5 I 9 N 5 T 2 E 5 R 9: vowels 1+1+1+5+9+5 = 22.
    const UserProfile clara{u"CLARA", u"JANE", u"WINTER", u"March", u"29", u"1985"};
    EXPECT_EQ(InWords(For(clara).letters.sheet.soulUrge), u"22, which stays");
    EXPECT_EQ(InWords(For(clara).letters.sheet.destiny), u"64, 6 + 4 = 10, 1 + 0 = 1");
}

TEST(Document, DrawsTheValuesAndTheLetterThatLeads) {
    const ValuesPicture values = For(oakRiver).values;
    EXPECT_EQ(values.letters[9], u"RIR");
    EXPECT_EQ(values.leader.character, u'R');
    EXPECT_EQ(values.leader.count, 2);
    EXPECT_EQ(
        values.text.words,
        u"The values of the name are 1: once, 2: once, 4: once, 5: once, 6: once and 9: 3 "
        u"times. The values 3, 7 and 8 are missing. The letter R comes most often, twice, and "
        u"its value is the Hidden Passion Number, 9.");
    EXPECT_TRUE(For(Person(u"A--", u"B", u"7", u"March", u"1990"))
                    .values.text.words.ends_with(u"A character without a value comes most often, "
                                                 u"twice; it has no value, and so there is no "
                                                 u"Hidden Passion Number."));
    EXPECT_EQ(For(Person(u"", u"", u"7", u"March", u"2040")).values.text.words,
              u"The values 1, 2, 3, 4, 5, 6, 7, 8 and 9 are missing. The name has no character, "
              u"and so there is no Hidden Passion Number.");
}

TEST(Document, DrawsTheLifeAsTheTablesHaveIt) {
    const LifePicture life = For(oakRiver).life;
    ASSERT_EQ(life.periods.size(), 3U);
    EXPECT_EQ(life.periods[1].number, 2);
    EXPECT_EQ(life.periods[1].ages, (Ages{27, 53}));
    ASSERT_EQ(life.pinnacles.size(), 4U);
    EXPECT_EQ(life.pinnacles[1].ages, (Ages{30, 38}));
    EXPECT_TRUE(life.pinnacles[3].ages.IsOpen());
    EXPECT_EQ(life.challenges, (std::vector<int16>{1, 3, 2, 2}));
    EXPECT_EQ(
        life.text.words,
        u"Today: age 41. Life Path Periods: 3 from age 0 to 26, 2 from age 27 to 53 (in force "
        u"today) and 5 from age 54 on. Pinnacles: 5 from age 0 to 31, 7 from age 30 to 38, 3 "
        u"from age 43 to 51 and 8 from age 47 on. No pinnacle is in force today. Challenges: "
        u"1, 3, 2 and 2.");
}

// Personal Year: 2 for the day, 3 for the month and the year's own: 1 in 2026, so 6. Essence at
// 41: O (6) lasts to 42 and R (9) to 45, together 15, so 6; at 42 A (1) and R, so 1; then K (2)
// and R or I (9), so 2; from 46 on O and I, so 6.
TEST(Document, DrawsTheYearsAndMonthsAhead) {
    const TimePicture time = For(oakRiver).time;
    std::string years;
    for (const TimePicture::Year &each : time.years)
        years += std::to_string(each.year) + ':' + std::to_string(each.personalYear) + '/' +
                 std::to_string(each.essence.value_or(-1)) + ' ';
    EXPECT_EQ(years, "2026:6/6 2027:7/1 2028:8/2 2029:9/2 2030:1/2 2031:2/6 2032:3/6 2033:4/6 "
                     "2034:5/6 ");
    // 2 + 3 + 2 + 1 = 8 in November 2026; in January 2027 2 + 3 + 1 + 2.
    std::u16string months;
    for (const TimePicture::Month &each : time.months)
        months += std::u16string(each.name.substr(0, 3)) + DecimalText(each.personalMonth);
    EXPECT_EQ(months, u"Nov8Dec9Jan8Feb9Mar1Apr2May3Jun4Jul5Aug6Sep7Oct8");
}

// What MonthNumber makes of a name that ends in a digit holds for the month of today as well.
TEST(Document, HasTheNumbersOfTodayInThePictureOfTime) {
    for (const UserProfile &person : {oakRiver, Person(u"ANN", u"LEE 3", u"7", u"March", u"1990"),
                                      Person(u"ANN", u"LEE 12", u"30", u"November", u"1901")}) {
        const Document document = For(person);
        EXPECT_EQ(DecimalText(document.time.months[0].personalMonth),
                  TopicNamed(document, u"Personal Month").number);
        EXPECT_EQ(DecimalText(document.time.years[0].personalYear),
                  TopicNamed(document, u"Personal Year").number);
        EXPECT_EQ(DecimalText(document.time.years[0].essence.value_or(-1)),
                  TopicNamed(document, u"Essence").number);
    }
}

// At age 0 the walk of the Essence ends; a year later it would not.
TEST(Document, LeavesTheEssenceOpenWhereItsWalkWouldNotEnd) {
    const Document document = For(Person(u"ANN", u"--", u"7", u"March", u"2026"));
    EXPECT_EQ(document.time.years[0].essence, 1); // A
    for (std::size_t index = 1; index < document.time.years.size(); ++index)
        EXPECT_EQ(document.time.years[index].essence, std::nullopt);
    EXPECT_NE(document.time.text.words.find(u"Essence: 2026: 1, and open from then on"),
              std::u16string::npos);
}

// A K V E O R I R: of 8 characters A is mental, E physical, O R I R emotional, K V intuitive.
TEST(Document, DrawsThePlanes) {
    const PlanesPicture planes = For(oakRiver).planes;
    EXPECT_EQ(planes.text.words,
              u"Mental 12 percent (Weak), Physical 12 percent (Weak), Emotional 50 percent "
              u"(Strong) and Intuitive 25 percent (Strong). The largest share is Emotional.");
    EXPECT_EQ(planes.planes[2].letters, u"ORIR");
    EXPECT_TRUE(planes.planes[2].dominates);
    // A and W, one of two each: no share is above all others.
    EXPECT_TRUE(For(Person(u"A", u"W", u"7", u"March", u"1990"))
                    .planes.text.words.ends_with(u"No plane has more than each of the others."));
}

using DocumentOnAStore = FreshStore;

TEST_F(DocumentOnAStore, IsAsBeforeWhenADocumentHasBeenMade) {
    OakRiver();
    RunAllCalculators();
    store.LifePathText = u"of somebody else";
    const UserProfile before = profile;
    const ReadingStore slots = store;
    For(Person(u"ANN", u"LEE", u"7", u"March", u"1990"), year(2030) / 1 / 1);
    EXPECT_EQ(Clock::Year(), 2026);
    EXPECT_EQ(profile.FirstName, before.FirstName);
    EXPECT_EQ(profile.BirthYear, before.BirthYear);
    for (const auto &slot : numberSlots)
        EXPECT_EQ(store.*slot.member, slots.*slot.member) << slot.name;
    for (const auto &slot : textSlots)
        EXPECT_EQ(store.*slot.member, slots.*slot.member) << slot.name;
}

} // namespace
