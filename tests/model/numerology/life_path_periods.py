"""Life Path Periods: three stages of life, and the one now running."""

from numerology.digits import reduce_digit_string
from numerology.int16 import int16, number
from numerology.months import month_number
from numerology.rules import reached
from numerology.text import trimmed

# The last age of the first and of the second period, by root.
LAST_AGES = {1: (26, 53), 2: (25, 52), 3: (24, 51), 4: (23, 59), 5: (31, 58), 6: (30, 57),
             7: (29, 56), 8: (28, 55), 9: (27, 54), 11: (26, 53), 22: (26, 53)}


def calc_life_path_periods(state):
    profile, store = state.profile, state.store
    store.PeriodNumber1 = month_number(profile.BirthMonth, store.ScratchLetter)
    store.PeriodNumber2 = reduce_digit_string(profile.BirthDay)
    store.PeriodNumber3 = reduce_digit_string(profile.BirthYear)
    state.set_fixed("PeriodStage1", "PeriodStage2", "PeriodStage3")

    age = int16(state.clock.year() - number(trimmed(profile.BirthYear)), "Periods: an age")
    store.PeriodRoot = reduce_digit_string(
        str(store.PeriodNumber1 + store.PeriodNumber2 + store.PeriodNumber3))
    if store.PeriodRoot in LAST_AGES:
        first, second = LAST_AGES[store.PeriodRoot]
        if age < 0:
            reached("Periods: before birth the index stays")
            if store.LifePathPeriodsNumber:
                reached("Periods: before birth the index of an earlier person stays")
        elif age <= first:
            reached("Periods: in the first period")
            store.LifePathPeriodsNumber = 1
        elif age <= second:
            reached("Periods: in the second period")
            store.LifePathPeriodsNumber = 2
        else:
            reached("Periods: in the third period")
            store.LifePathPeriodsNumber = 3
        if age in (first, first + 1, second, second + 1):
            reached("Periods: an age at the border of a period")
        if store.PeriodRoot < 10:
            store.PeriodLine1 = (f"Life Path Period 1 from age 0 - {first} is "
                                 f"{store.PeriodNumber1}")
            store.PeriodLine2 = (f"Life Path Period 2 from age {first + 1} - {second} is "
                                 f"{store.PeriodNumber2}")
            store.PeriodLine3 = (f"Life Path Period 3 from age {second + 1} on is "
                                 f"{store.PeriodNumber3}")
        state.select("LifePathPeriodsText", store.PeriodRoot)
    else:
        reached("Periods: root 0 has no row")
    state.set_fixed("LifePathPeriodsAbout")
