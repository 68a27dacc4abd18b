"""Karmic Lessons and Hidden Passion: which characters the name has, and how often."""

from numerology.int16 import HIGHEST, RuntimeFailure
from numerology.letters import CHART, values_in
from numerology.rules import reached
from numerology.text import LINE_BREAK


def calc_karmic_lessons(state):
    store = state.store
    store.KarmicLessonsNumber = ""
    store.KarmicLessonsText = ""
    name = state.profile.whole_name()
    if len(name) > HIGHEST:
        reached("KarmicLessons: a name too long")
        raise RuntimeFailure
    present = values_in(name)
    if len(present) == 9:
        reached("KarmicLessons: nothing is missing")
    for value in range(1, 10):
        if value not in present:
            store.KarmicLessonsNumber += f" {value}"
            store.KarmicLessonsText += (LINE_BREAK + str(value) + LINE_BREAK
                                        + state.book.reading("KarmicLessonsText", value))
    state.set_fixed("KarmicLessonsAbout")


def calc_hidden_passion(state):
    store = state.store
    name = state.profile.whole_name()
    if len(name) > HIGHEST:
        reached("HiddenPassion: a name too long")
        raise RuntimeFailure
    best, best_count = "", 0
    for character in dict.fromkeys(name):  # in the order in which each comes first
        count = name.count(character)
        if count > best_count:
            best, best_count = character, count
        elif count == best_count:
            reached("HiddenPassion: a tie goes to the character that comes first")
    if best in CHART:
        store.HiddenPassionNumber = CHART[best]
    elif best:
        reached("HiddenPassion: a character outside the chart wins")
        if store.HiddenPassionNumber:
            reached("HiddenPassion: the number of an earlier name stays")
    else:
        reached("HiddenPassion: an empty name")
    if not state.select("HiddenPassionText", store.HiddenPassionNumber):
        reached("HiddenPassion: a number without a reading")
    state.set_fixed("HiddenPassionAbout")
