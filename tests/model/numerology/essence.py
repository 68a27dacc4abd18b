"""Essence: the letters in force at the present age."""

from numerology.digits import reduce_digit_string
from numerology.int16 import int16, number
from numerology.letters import CHART
from numerology.rules import reached
from numerology.text import trimmed

# In a last name F counts nothing; a small l stands in its place.
LAST_NAME_CHART = {letter: value for letter, value in CHART.items() if letter != "F"} | {"l": 6}


def _age(state):
    return int16(state.clock.year() - number(trimmed(state.profile.BirthYear)), "Essence: an age")


def _letter_in_force(name, chart, age):
    """The value of the letter in force; does not return where `walk_ends` says so."""
    passed, value = 0, 0
    while True:
        for letter in name:
            if passed > age:
                break
            if letter in chart:
                if passed == age and passed > 0:
                    reached("Essence: a letter that ends at the age hands over")
                value = chart[letter]
                passed = int16(passed + value, "Essence: the years passed")
            else:
                reached("Essence: a character without a value is passed over")
        if passed >= age:
            if passed == age and age > 0:
                reached("Essence: the last letter does not hand over to the first")
            return value
        reached("Essence: the name starts again")


def _walks(profile):
    """The names that are walked: the word for the part, the characters, the chart."""
    yield "First", trimmed(profile.FirstName), CHART
    if trimmed(profile.MiddleName):
        yield "Middle", trimmed(profile.MiddleName), CHART
    yield "Last", trimmed(profile.LastName), LAST_NAME_CHART


def endless_name(profile, age):
    """The first name whose walk would never end at this age, or None."""
    if age <= 0:
        return None
    for part, name, chart in _walks(profile):
        if not any(letter in chart for letter in set(name)):
            return part
    return None


def steps_of_walk(profile, age):
    """About how many characters the walks look at; for names whose walks end."""
    steps = 0
    for _, name, chart in _walks(profile):
        years = sum(name.count(letter) * value for letter, value in chart.items())
        if years:
            steps += len(name) * (max(age, 0) // years + 1)
    return steps


def calc_essence(state):
    store = state.store
    age = _age(state)
    if age < 0:
        reached("Essence: before birth no letter is in force")
    elif age == 0:
        reached("Essence: in the year of birth")
    if not trimmed(state.profile.MiddleName):
        reached("Essence: no middle name")
    if "F" in state.profile.LastName:
        reached("Essence: F in a last name")
    total = sum(_letter_in_force(name, chart, age)
                for _, name, chart in _walks(state.profile))
    store.EssenceNumber = reduce_digit_string(str(total))
    if not state.select("EssenceText", store.EssenceNumber):
        reached("Essence: a number without a reading")
    state.set_fixed("EssenceAbout")
