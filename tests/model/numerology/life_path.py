"""Life Path Number, from the date of birth."""

from numerology.digits import digit_sum, fold
from numerology.months import month_value
from numerology.rules import reached


def calc_life_path(state):
    profile, store = state.profile, state.store
    day_sum = digit_sum(profile.BirthDay)
    month = month_value(profile.BirthMonth)
    year_sum = digit_sum(profile.BirthYear)
    # One fold each: the year part of 1999 is 10.
    total = fold(day_sum) + month + fold(year_sum)

    if total in (11, 22):
        reached("LifePath: a total of 11 or 22")
        life_path = total
    elif digit_sum(str(total)) in (11, 22):
        reached("LifePath: a total whose digit sum is 11")
        life_path = digit_sum(str(total))
    else:
        life_path = fold(digit_sum(str(total)))

    store.LifePathNumber = life_path
    store.LifePathDaySum = day_sum
    if not state.select("LifePathText", life_path):
        reached("LifePath: a number without a reading")
    state.set_fixed("LifePathAbout")
