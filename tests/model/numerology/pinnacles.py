"""Pinnacle Phases."""

from numerology.digits import reduce_keep_master
from numerology.int16 import int16, number
from numerology.months import month_number
from numerology.rules import reached
from numerology.text import trimmed


def _line(place, value):
    """The line of a pinnacle. 11 has the ages of 2, and 22 those of 4."""
    ages = {11: 2, 22: 4}.get(value, value)
    if place == 1:
        return f"First Pinnacle from age 0-{36 - ages} years is "
    if place == 2:
        return f"Second Pinnacle from age {37 - ages}-{45 - ages} is "
    if place == 3:
        second_blank = " " if value == 4 else ""
        return f"Third Pinnacle from age {46 - ages}-{54 - ages} is " + second_blank
    return f"Fourth Pinnacle from age {55 - ages} & beyond is "


def calc_pinnacles(state):
    profile, store = state.profile, state.store
    day = number(trimmed(profile.BirthDay))
    month = month_number(trimmed(profile.BirthMonth), store.ScratchLetter)
    year = number(trimmed(profile.BirthYear))
    store.PinnacleNumber1 = reduce_keep_master(int16(month + day, "Pinnacles: month and day"))
    store.PinnacleNumber2 = reduce_keep_master(int16(day + year, "Pinnacles: day and year"))
    store.PinnacleNumber3 = reduce_keep_master(store.PinnacleNumber1 + store.PinnacleNumber2)
    store.PinnacleNumber4 = reduce_keep_master(int16(month + year, "Pinnacles: month and year"))
    for place in (1, 2, 3, 4):
        value = getattr(store, f"PinnacleNumber{place}")
        if state.select(f"PinnacleText{place}", value, "PinnacleText"):
            setattr(store, f"PinnacleLabel{place}", _line(place, value) + str(value))
        else:
            reached("Pinnacles: a value without a reading")
    state.set_fixed("PinnacleAbout")
