#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

using modReadings::Person;

namespace {

constexpr std::chrono::year_month_day today = std::chrono::year(2026) / 11 / 16;

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};
const Person oak{"oak", {}, "river", "March", "7", "1990"};

Arguments Options(const Person &person, const std::string &format,
                  const std::vector<std::u16string> &captions = {}) {
    Arguments options = PersonOptions(person);
    options.insert(options.end(), {"--today", "2026-11-16", "--format", format});
    for (const std::u16string &caption : captions)
        options.insert(options.end(), {"--topic", Utf8(caption)});
    return options;
}

QJsonObject Report(const Person &person, const std::vector<std::u16string> &captions = {}) {
    const Finished run = RunProgram(Options(person, "json", captions));
    ExpectGood(run);
    return ParseObject(run.out);
}

TEST(PersonReport, HasTheCapturedPersonAndTheDay) {
    const QJsonObject report =
        Report({"  Mary ann ", " o'neil", "de la cruz  ", "2", "31", "1900"}, {u"Essence"});
    EXPECT_EQ(report["first"], "MARY ANN");
    EXPECT_EQ(report["middle"], "O'NEIL");
    EXPECT_EQ(report["last"], "DE LA CRUZ");
    EXPECT_EQ(report["month"], "February");
    EXPECT_EQ(report["day"], 31);
    EXPECT_EQ(report["year"], 1900);
    EXPECT_EQ(report["today"], "2026-11-16");
}

TEST(PersonReport, HasAnEmptyMiddleNameWhereNoneIsGiven) {
    EXPECT_EQ(Report(anna, {u"Essence"})["middle"], "");
    const Person blanks{"Anna", "   ", "Smith", "December", "29", "1985"};
    EXPECT_EQ(Report(blanks, {u"Essence"})["middle"], "");
}

TEST(PersonReport, IsOneObjectInOneLineOfJson) {
    const Finished run = RunProgram(Options(anna, "json"));
    ExpectGood(run);
    EXPECT_EQ(std::ranges::count(run.out, '\n'), 1);
    EXPECT_TRUE(run.out.starts_with('{'));
    EXPECT_TRUE(run.out.ends_with("}\n"));
}

// Age 41 in 2026. ANNA 1 5 5 1 is 12, SMITH 1 4 9 2 8 is 24.
TEST(PersonReport, HasAnnasNumbers) {
    const QJsonObject report = Report(anna);
    const auto number = [&](const char *caption) { return NumberIn(report, caption); };
    EXPECT_EQ(number("Personal Month"), "8"); // 2 + 3 + 2 + 1
    EXPECT_EQ(number("Birthday Number"), "29");
    EXPECT_EQ(number("Hidden Passion Number"), "1"); // A and N twice, A first
    EXPECT_EQ(number("Life Path Periods"), "2");     // root 10, so 1: ages 27 to 53
    EXPECT_EQ(number("Personal Year"), "6");         // 2 + 3 + 1
    EXPECT_EQ(number("Pinnacle Phases"), "");
    EXPECT_EQ(number("Subconscious Self Number"), "6");     // 1 2 4 5 8 9
    EXPECT_EQ(number("Life Path Number"), "1");             // 2 + 3 + 5 = 10
    EXPECT_EQ(number("Destiny / Expressions Number"), "9"); // 36
    EXPECT_EQ(number("Karmic Lessons Number"), " 3 6 7");
    EXPECT_EQ(number("Challenge Number"), "1 3 2 2");            // 3-2, 5-2, 1-3, 5-3
    EXPECT_EQ(number("Karmic Debt Numbers"), "0");               // sums 36, 11 and 25, day 29
    EXPECT_EQ(number("Balance Number"), "2");                    // A 1, S 1
    EXPECT_EQ(number("Personal Day"), "6");                      // 2 + 3 + 7 + 2 + 1 = 15
    EXPECT_EQ(number("Rational Thought Number"), "5");           // 2 + 12 = 14
    EXPECT_EQ(number("H/P Bridge Number"), "4");                 // 11 - 7
    EXPECT_EQ(number("L/E Bridge Number"), "8");                 // 9 - 1
    EXPECT_EQ(number("Essence"), "4");                           // N 5 and H 8 in force: 13
    EXPECT_EQ(number("Realization / Maturity Number"), "1");     // 1 + 9 = 10
    EXPECT_EQ(number("Inner Dreams / Personality Number"), "7"); // 36 - 11 = 25
    EXPECT_EQ(number("Planes Of Expression / Personal Aspects"), "Mental");
    EXPECT_EQ(number("Soul Urge / Heart's Desire Number"), "11"); // A A I
}

TEST(PersonReport, HasAnnasReadings) {
    const QJsonObject report = Report(anna);
    const auto opens = [&](const char *caption, std::size_t run, const std::string &opening) {
        const std::string text = RunIn(report, caption, run);
        EXPECT_TRUE(text.starts_with(opening)) << caption << ": " << text;
    };
    const auto is = [&](const char *caption, std::size_t run, const std::string &text) {
        EXPECT_EQ(RunIn(report, caption, run), text) << caption;
    };
    opens("Personal Month", 2,
          "This is a number when you have to work really hard to make things happen.");
    opens("Birthday Number", 2, "People born on the 29th day of the month are highly intuitive");
    opens("Hidden Passion Number", 2, "People of this number are very creative and artistic.");
    opens("Life Path Periods", 2, "This is the time when you should set your own goals");
    is("Life Path Periods", 3, "Life Path Period 1 from age 0 - 26 is 3\r\n");
    opens("Life Path Periods", 4, "This is the first stage of a person's life.");
    is("Life Path Periods", 5, "Life Path Period 2 from age 27 - 53 is 2\r\n");
    is("Life Path Periods", 7, "Life Path Period 3 from age 54 on is 5\r\n");
    opens("Personal Year", 2, "It is the year, which is focused on your Love, Family, Home");
    is("Pinnacle Phases", 0, "Pinnacle Phases\r\n\r\n");
    is("Pinnacle Phases", 2, "First Pinnacle from age 0-31 years is 5\r\n");   // 3 + 29 = 32
    is("Pinnacle Phases", 4, "Second Pinnacle from age 30-38 is 7\r\n");       // 29 + 1985
    is("Pinnacle Phases", 6, "Third Pinnacle from age 43-51 is 3\r\n");        // 5 + 7
    is("Pinnacle Phases", 8, "Fourth Pinnacle from age 47 & beyond is 8\r\n"); // 3 + 1985
    opens("Subconscious Self Number", 2, "You are a humanitarian at heart.");
    opens("Life Path Number", 2, "People of this number are born with leadership qualities.");
    opens("Destiny / Expressions Number", 2, "People with destiny number 9 will reap benefits");
    opens("Karmic Lessons Number", 2,
          "\r\n3\r\nThere are times when you are not happy with the things going on in your life.");
    is("Challenge Number", 2, "First Challenge Number is 1\r\n");
    opens("Challenge Number", 3, "If you are in the challenge of the number 1");
    is("Challenge Number", 8, "Fourth Challenge Number is 2\r\n");
    is("Karmic Debt Numbers", 2, "Not Applicable");
    opens("Balance Number", 2, "You let others influence and lead you in difficult times.");
    opens("Personal Day", 2, "This is a day to maintain balance and harmony in life.");
    opens("Rational Thought Number", 2, "People of this rational thought number have");
    opens("H/P Bridge Number", 2, "People with bridge 4 should try to avoid confusion");
    opens("L/E Bridge Number", 2, "People with this combination number are not very ambitious");
    opens("Essence", 2, "In this essence period you will be concentrating on serious matters");
    opens("Realization / Maturity Number", 2,
          "People of this number have a dominating and stubborn nature.");
    opens("Inner Dreams / Personality Number", 2,
          "People of this personality number cherish being in isolation.");
    // Of nine letters five are mental, one physical, three emotional and none intuitive.
    is("Planes Of Expression / Personal Aspects", 1,
       "Your Personal Aspects: Mental Ability 55 - Strong \r\nPhysical Ability 11 - Weak \r\n"
       "Emotional Ability 33 - Average \r\nIntuitive Ability 0 - Weak\r\n\r\n");
    opens("Planes Of Expression / Personal Aspects", 2,
          "A person 's total life is divided into 4 parts.");
    opens("Soul Urge / Heart's Desire Number", 2, "Master number 11 has resemblance with");
}

// Age 36. OAK 6 1 2 is 9, RIVER 9 9 4 5 9 is 36, its vowels with those of OAK 21.
TEST(PersonReport, HasOaksNumbers) {
    const QJsonObject report = Report(oak);
    const auto number = [&](const char *caption) { return NumberIn(report, caption); };
    EXPECT_EQ(number("Personal Month"), "4"); // 7 + 3 + 2 + 1 = 13
    EXPECT_EQ(number("Birthday Number"), "7");
    EXPECT_EQ(number("Hidden Passion Number"), "9"); // R twice
    EXPECT_EQ(number("Life Path Periods"), "2");     // 3 + 7 + 1 = 11, so 2: ages 26 to 52
    EXPECT_EQ(number("Personal Year"), "2");         // 7 + 3 folds to 1, and 1
    EXPECT_EQ(number("Pinnacle Phases"), "");
    EXPECT_EQ(number("Subconscious Self Number"), "6"); // 1 2 4 5 6 9
    EXPECT_EQ(number("Life Path Number"), "2");         // 7 + 3 + 10 = 20
    EXPECT_EQ(number("Destiny / Expressions Number"), "9");
    EXPECT_EQ(number("Karmic Lessons Number"), " 3 7 8");
    EXPECT_EQ(number("Challenge Number"), "4 6 2 2");
    EXPECT_EQ(number("Karmic Debt Numbers"), "0");
    EXPECT_EQ(number("Balance Number"), "6");          // O 6, R 9: 15
    EXPECT_EQ(number("Personal Day"), "2");            // 7 + 3 + 7 + 2 + 1 = 20
    EXPECT_EQ(number("Rational Thought Number"), "7"); // 7 + 9 = 16
    EXPECT_EQ(number("H/P Bridge Number"), "3");       // 3 - 6
    EXPECT_EQ(number("L/E Bridge Number"), "7");       // 9 - 2
    EXPECT_EQ(number("Essence"), "2"); // both names end at 36: K 2 and R 9, together 11
    EXPECT_EQ(number("Realization / Maturity Number"), "2");     // 2 + 9 = 11
    EXPECT_EQ(number("Inner Dreams / Personality Number"), "6"); // 45 - 21 = 24
    EXPECT_EQ(number("Planes Of Expression / Personal Aspects"), "Emotional");
    EXPECT_EQ(number("Soul Urge / Heart's Desire Number"), "3");
    EXPECT_EQ(RunIn(report, "Pinnacle Phases", 8),
              "Fourth Pinnacle from age 51 & beyond is 22\r\n");
}

// A last name that ends in 5 counts every month from May on as 5 once it has been walked,
// that is, at the click after the pass. The Personal Year reads the month by itself.
TEST(PersonReport, ShowsTheTopicsAsClicksAfterThePass) {
    const Person five{"Anna", {}, "Smith5", "December", "29", "1985"};
    const QJsonObject report = Report(five);
    EXPECT_EQ(NumberIn(report, "Personal Month"), "1"); // 2 + 5 + 2 + 1 = 10
    EXPECT_EQ(NumberIn(report, "Personal Day"), "8");   // 2 + 5 + 7 + 2 + 1 = 17
    EXPECT_EQ(NumberIn(report, "Personal Year"), "6");
    // In the pass itself Soul Urge and Inner Dreams are not there yet and the gap is 0.
    EXPECT_EQ(NumberIn(report, "H/P Bridge Number"), "4");
}

TEST(PersonReport, GivesAllTopicsInTheOrderOfThePass) {
    const std::vector<TopicAsJson> topics = TopicsOf(Report(anna));
    ASSERT_EQ(topics.size(), headings.size());
    for (std::size_t index = 0; index < headings.size(); ++index)
        EXPECT_EQ(Utf8(topics[index].caption), Utf8(headings[index].caption));
}

TEST(PersonReport, GivesTheTopicsAskedForInTheirOrderAndAsOften) {
    const std::vector<std::u16string> captions{u"Soul Urge / Heart's Desire Number", u"Essence",
                                               u"Personal Day", u"Essence"};
    ExpectTopics(Report(anna, captions), captions, ExpectedRuns(anna, today, captions));
}

TEST(PersonReport, FollowsTheDayItIsReadFor) {
    Arguments options = PersonOptions(anna);
    options.insert(options.end(), {"--today", "2027-01-01", "--format", "json"});
    const Finished run = RunProgram(options);
    ExpectGood(run);
    const QJsonObject report = ParseObject(run.out);
    EXPECT_EQ(report["today"], "2027-01-01");
    EXPECT_EQ(NumberIn(report, "Personal Month"), "8"); // 2 + 3 + 1 + 2
    EXPECT_EQ(NumberIn(report, "Personal Day"), "9");   // 2 + 3 + 1 + 1 + 2
    EXPECT_EQ(NumberIn(report, "Personal Year"), "7");  // 5 + 2
    const auto newYear = std::chrono::year(2027) / 1 / 1;
    ExpectTopics(report, AllTopics(), ExpectedRuns(anna, newYear, AllTopics()));
}

/// The date at `hours` ahead of UTC.
std::string DateAhead(int hours) {
    const std::time_t there = std::time(nullptr) + hours * 3600;
    std::tm parts{};
    gmtime_r(&there, &parts);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", &parts);
    return text;
}

TEST(PersonReport, IsReadForTheLocalDayByDefault) {
    // 26 hours apart, so the two dates are never the same.
    for (const auto &[zone, hours] : {std::pair("EAST-14", 14), std::pair("WEST+12", -12)}) {
        SCOPED_TRACE(zone);
        Arguments options = PersonOptions(anna);
        options.insert(options.end(), {"--format", "json", "--topic", "Personal Day"});
        Surroundings surroundings;
        surroundings.environment["TZ"] = zone;
        const std::string before = DateAhead(hours);
        const Finished run = RunProgram(options, {}, surroundings);
        const std::string after = DateAhead(hours); // another day when midnight passed
        ExpectGood(run);
        const QJsonObject report = ParseObject(run.out);
        const std::string day = report["today"].toString().toStdString();
        EXPECT_TRUE(day == before || day == after) << day;

        // The reading is that of the day it names.
        options.insert(options.end(), {"--today", day});
        EXPECT_EQ(RunProgram(options).out, run.out);
    }
}

/// Every topic by itself, in every format.
class OneTopic : public testing::TestWithParam<std::size_t> {
protected:
    std::u16string Caption() const {
        return GetParam() < headings.size() ? headings[GetParam()].caption : comprehensiveReading;
    }
};

TEST_P(OneTopic, HasTheRunsOfItsPageAsJson) {
    for (const Person &person : {anna, oak}) {
        const std::vector<std::u16string> captions{Caption()};
        ExpectTopics(Report(person, captions), captions, ExpectedRuns(person, today, captions));
    }
}

TEST_P(OneTopic, IsThePageWithPlainLineBreaksAsText) {
    for (const Person &person : {anna, oak}) {
        const Finished run = RunProgram(Options(person, "text", {Caption()}));
        ExpectGood(run);
        std::u16string page = PlainBreaks(TextOf(ExpectedRuns(person, today, {Caption()}).front()));
        if (!page.ends_with(u'\n'))
            page += u'\n'; // a text file ends in a line break
        EXPECT_EQ(run.out, Utf8(page));
        EXPECT_EQ(run.out.find('\r'), std::string::npos);
    }
}

TEST_P(OneTopic, SaysTheSameAsTextAndAsJson) {
    const std::vector<TopicAsJson> topics = TopicsOf(Report(anna, {Caption()}));
    ASSERT_EQ(topics.size(), 1U);
    std::u16string page = PlainBreaks(TextOf(topics.front().runs));
    if (!page.ends_with(u'\n'))
        page += u'\n';
    EXPECT_EQ(RunProgram(Options(anna, "text", {Caption()})).out, Utf8(page));
}

INSTANTIATE_TEST_SUITE_P(AllCaptions, OneTopic, testing::Range<std::size_t>(0, 23));

TEST(PersonReport, IsTextUnlessAnotherFormatIsAskedFor) {
    Arguments options = PersonOptions(anna);
    options.insert(options.end(), {"--today", "2026-11-16"});
    const Finished run = RunProgram(options);
    ExpectGood(run);
    EXPECT_EQ(run.out, RunProgram(Options(anna, "text")).out);
    EXPECT_TRUE(run.out.starts_with("Your Personal Month is: 8\n\n"));
}

// One page behind the other, each begun after at least one empty line, nothing else
// between them.
TEST(PersonReport, HasTheTopicsOneBehindTheOtherAsText) {
    const Finished run = RunProgram(Options(anna, "text"));
    ExpectGood(run);
    std::string_view rest = run.out;
    const auto expected = ExpectedRuns(anna, today, AllTopics());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        SCOPED_TRACE(Utf8(headings[index].caption));
        const std::string page = Utf8(PlainBreaks(TextOf(expected[index])));
        ASSERT_TRUE(rest.starts_with(page)) << rest.substr(0, 200);
        const std::size_t next = std::min(rest.find_first_not_of('\n', page.size()), rest.size());
        const std::size_t end = page.find_last_not_of('\n') + 1;
        EXPECT_GE(next - end, next == rest.size() ? 1U : 2U);
        rest.remove_prefix(next);
    }
    EXPECT_EQ(rest, "");
}

TEST(PersonReport, TheComprehensiveReadingHoldsAllTopics) {
    const std::vector<TopicAsJson> topics = TopicsOf(Report(anna, {comprehensiveReading}));
    ASSERT_EQ(topics.size(), 1U);
    const Runs &runs = topics.front().runs;
    ASSERT_FALSE(runs.empty());
    EXPECT_EQ(Utf8(runs.front().text), "Orravane Comprehensive Reading\r\n\r\n");
    std::vector<std::string> bold;
    for (const auto &run : runs)
        if (run.bold)
            bold.push_back(Utf8(run.text));
    ASSERT_EQ(bold.size(), 23U); // the title and 22 headings
    EXPECT_EQ(bold[1], "Your Personal Month is: 8\r\n\r\n");
    EXPECT_EQ(bold[2], "Your BirthDay Number is: 29\r\n\r\n");
    EXPECT_EQ(bold[22], "Your Soul Urge Or Heart's Desire Number is: 11\r\n\r\n");
    EXPECT_TRUE(TextOf(runs).ends_with(u"\r\n\r\n"));
}

TEST(PersonReport, TheComprehensiveReadingIsTheSameBehindOtherTopics) {
    const std::vector<std::u16string> captions{u"Essence", comprehensiveReading, u"Essence",
                                               comprehensiveReading};
    const QJsonObject report = Report(anna, captions);
    ExpectTopics(report, captions, ExpectedRuns(anna, today, captions));
    const std::vector<TopicAsJson> topics = TopicsOf(report);
    ASSERT_EQ(topics.size(), 4U);
    EXPECT_EQ(topics[1].runs, topics[3].runs);
    EXPECT_EQ(topics[0].runs, topics[2].runs);
}

// People whose slots come out empty, at 0 or from a tie.
TEST(PersonReport, ComparesRunByRunForManyPeople) {
    const std::vector<Person> people{
        {"Ann", "May", "Lee", "January", "1", "1900"},
        {"Sky", {}, "Lynn", "October", "31", "1999"},
        {"A", {}, "E", "November", "30", "2025"},
        {"Ross", {}, "E", "July", "16", "2026"},
        {"Mary Ann", "van", "der Wal", "December", "13", "2050"},
        {"1 1", {}, "- -", "June", "19", "2050"},
        {"A B C", {}, "D", "May", "14", "1964"},
        {"abcdefghi", "jklmnopqr", "stuvwxyz", "August", "22", "1911"},
    };
    std::vector<std::u16string> captions = AllTopics();
    captions.emplace_back(comprehensiveReading);
    for (const Person &person : people) {
        SCOPED_TRACE(person.firstName.toStdString());
        ExpectTopics(Report(person, captions), captions, ExpectedRuns(person, today, captions));
    }
}

} // namespace
