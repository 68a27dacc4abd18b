"""Destiny, Soul Urge and Inner Dreams: totals of letters of the name, reduced once."""

from numerology.digits import reduce_keep_master
from numerology.int16 import HIGHEST, RuntimeFailure, int16
from numerology.letters import CHART
from numerology.rules import reached

VOWELS = {letter: CHART[letter] for letter in "AEIOU"}
CONSONANTS = {letter: value for letter, value in CHART.items() if letter not in VOWELS}


def _walk(store, name, values):
    """Adds the values of the letters to ScratchSum. ScratchLetter stays on the last one."""
    if len(name) > HIGHEST:
        reached("name walk: a name too long")
        raise RuntimeFailure
    for letter in name:
        store.ScratchLetter = letter
        if letter in values:
            store.ScratchSum = int16(store.ScratchSum + values[letter], "name walk: a total")


def _finish(state, topic):
    """Raw value, number, reading and About of a topic, from ScratchSum."""
    store = state.store
    setattr(store, topic + "Raw", store.ScratchSum)
    store.ScratchSum = reduce_keep_master(store.ScratchSum)
    setattr(store, topic + "Number", store.ScratchSum)
    if not state.select(topic + "Text", store.ScratchSum):
        reached("name number: without a reading")
    state.set_fixed(topic + "About")


def calc_destiny(state):
    profile, store = state.profile, state.store
    store.ScratchSum = 0
    for name in (profile.FirstName, profile.MiddleName, profile.LastName):
        _walk(store, name, CHART)
    if not profile.whole_name():
        reached("Destiny: an empty name leaves ScratchLetter")
    _finish(state, "Destiny")


def calc_soul_urge(state):
    store = state.store
    name = state.profile.whole_name()
    store.ScratchSum = 0
    _walk(store, name, VOWELS)
    if store.ScratchSum == 0:
        reached("SoulUrge: a name without vowels")
        for letter in name:
            store.ScratchLetter = letter
            if letter == "Y":
                reached("SoulUrge: Y as a vowel")
                store.ScratchSum = int16(store.ScratchSum + CHART["Y"],
                                         "SoulUrge: a total of Y")
                store.YUsedAsVowel = -1
    elif "Y" in name:
        reached("SoulUrge: a vowel shuts Y out")
    _finish(state, "SoulUrge")


def calc_inner_dreams(state):
    store = state.store
    name = state.profile.whole_name()
    store.ScratchSum = 0
    _walk(store, name, CONSONANTS)
    _finish(state, "InnerDreams")
