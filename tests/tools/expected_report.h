#pragma once

// What a report has to hold: the topics as they are agreed, the runs that the rendering
// makes of a person, and the program's JSON as a reader independent of it sees it.

#include "report/person.h"
#include "report/run_list.h"
#include "tests/tools/program.h"

#include <QJsonObject>
#include <QString>

#include <array>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>

/// A caption of the tree and the heading literal of its topic.
struct Heading {
    const char16_t *caption;
    const char16_t *literal;
};

/// All 22 in the order of the pass.
inline constexpr std::array<Heading, 22> headings{{
    {u"Personal Month", u"Your Personal Month is: "},
    {u"Birthday Number", u"Your BirthDay Number is: "},
    {u"Hidden Passion Number", u"Your Hidden Passion Number is: "},
    {u"Life Path Periods", u"Your Current LifePath Period Number is: "},
    {u"Personal Year", u"Your Personal Year Number is: "},
    {u"Pinnacle Phases", u"Pinnacle Phases"},
    {u"Subconscious Self Number", u"Your Subconscious Self Number is: "},
    {u"Life Path Number", u"Your Life Path Number is: "},
    {u"Destiny / Expressions Number", u"Your Destiny Or Expression Number is: "},
    {u"Karmic Lessons Number", u"Your Karmic Lessons Number is: "},
    {u"Challenge Number", u"Your Challenge Number is: "},
    {u"Karmic Debt Numbers", u"Your Karmic Debt Number is: "},
    {u"Balance Number", u"Your Balance Number is: "},
    {u"Personal Day", u"Your Personal Day is: "},
    {u"Rational Thought Number", u"Your Rational Thought Number is: "},
    {u"H/P Bridge Number", u"Your HP Bridge Number is: "},
    {u"L/E Bridge Number", u"Your LE Bridge Number is: "},
    {u"Essence", u"Your Essence Number is: "},
    {u"Realization / Maturity Number", u"Your Realization Or Maturity Number is: "},
    {u"Inner Dreams / Personality Number", u"Your Inner Dreams Or Personality Number is: "},
    {u"Planes Of Expression / Personal Aspects", u"Your Planes of Expression is towards "},
    {u"Soul Urge / Heart's Desire Number", u"Your Soul Urge Or Heart's Desire Number is: "},
}};

/// What a page is made of.
using Runs = std::vector<modReadings::Run>;

inline constexpr char16_t comprehensiveReading[] = u"Comprehensive Reading";

std::string Utf8(std::u16string_view text);

/// The captions of `headings`.
std::vector<std::u16string> AllTopics();

/// The runs of each caption after a pass over `person` on a fresh store, as clicks on the
/// captions in this order write them.
std::vector<Runs> ExpectedRuns(const modReadings::Person &person, std::chrono::year_month_day today,
                               const std::vector<std::u16string> &captions);

/// The joined text of `runs`.
std::u16string TextOf(const Runs &runs);

/// `text` with "\n" for "\r\n".
std::u16string PlainBreaks(std::u16string_view text);

/// The options that name `person`.
Arguments PersonOptions(const modReadings::Person &person);

/// The object that `bytes` are, line break behind it or not. Fails the test for anything
/// else and gives an empty object.
QJsonObject ParseObject(const std::string &bytes);

/// A topic of a report as JSON.
struct TopicAsJson {
    std::u16string caption;
    std::u16string number;
    Runs runs; ///< without colour
};

/// The topics of `report`. Fails the test where members lack, are too many or of a wrong
/// type.
std::vector<TopicAsJson> TopicsOf(const QJsonObject &report);

/// Compares the topics of `report` with `expected`, one list of runs for each caption.
void ExpectTopics(const QJsonObject &report, const std::vector<std::u16string> &captions,
                  const std::vector<Runs> &expected);

/// The number of the topic with this caption.
std::string NumberIn(const QJsonObject &report, const char *caption);

/// The text of one of its runs, counted from 0.
std::string RunIn(const QJsonObject &report, const char *caption, std::size_t index);
