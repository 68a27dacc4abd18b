"""Birthday Number: the day itself."""

from numerology.int16 import number
from numerology.rules import reached


def calc_birthday(state):
    day = number(state.profile.BirthDay)
    if not state.select("BirthdayText", day):
        reached("Birthday: a day without a reading")
    state.store.BirthdayRaw = day
    state.set_fixed("BirthdayAbout")
