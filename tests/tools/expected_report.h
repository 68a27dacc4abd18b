#pragma once

// The topics as they are agreed, written down independently of the program's own table.

#include <array>

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
