"""Personal Year, Month and Day. Each value of the clock is read when it is needed."""

from numerology.digits import digit_sum, fold, reduce_digit_string
from numerology.months import month_number, month_value
from numerology.rules import reached


def calc_personal_year(state):
    profile, store = state.profile, state.store
    day = fold(digit_sum(profile.BirthDay))
    month = month_value(profile.BirthMonth)
    digit_sum(profile.BirthYear)  # no say in the result, but it can fail
    birth = day + month
    if birth > 9:
        reached("PersonalYear: day and month are folded")
    year = reduce_digit_string(str(state.clock.year()))
    store.PersonalYearNumber = str(year + fold(birth))
    store.PersonalYearNumber = str(reduce_digit_string(store.PersonalYearNumber))
    if not state.select("PersonalYearText", int(store.PersonalYearNumber)):
        reached("PersonalYear: a number without a reading")
    state.set_fixed("PersonalYearAbout")


def calc_personal_month(state):
    profile, store = state.profile, state.store
    total = reduce_digit_string(profile.BirthDay)
    total += month_number(profile.BirthMonth, store.ScratchLetter)
    total += reduce_digit_string(str(state.clock.month()))
    store.CurrentYearText = str(state.clock.year())
    total += reduce_digit_string(store.CurrentYearText)
    store.PersonalMonthNumber = reduce_digit_string(str(total))
    state.select("PersonalMonthText", store.PersonalMonthNumber)
    state.set_fixed("PersonalMonthAbout")


def calc_personal_day(state):
    profile, store = state.profile, state.store
    total = reduce_digit_string(profile.BirthDay)
    total += month_number(profile.BirthMonth, store.ScratchLetter)
    store.CurrentDayText = str(state.clock.day())
    month = str(state.clock.month())
    store.CurrentYearText = str(state.clock.year())
    total += reduce_digit_string(store.CurrentDayText)
    total += reduce_digit_string(month)
    total += reduce_digit_string(store.CurrentYearText)
    store.PersonalDayNumber = reduce_digit_string(str(total))
    state.select("PersonalDayText", store.PersonalDayNumber)
    state.set_fixed("PersonalDayAbout")
