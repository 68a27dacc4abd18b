"""Challenge Numbers."""

from numerology.digits import digit_sum, fold
from numerology.months import month_value
from numerology.rules import reached

PLACES = ("First", "Second", "Third", "Fourth")


def calc_challenges(state):
    profile, store = state.profile, state.store
    day = fold(digit_sum(profile.BirthDay))
    month = month_value(profile.BirthMonth)
    year = fold(fold(digit_sum(profile.BirthYear)))
    first = abs(month - day)
    second = abs(year - day)
    third = abs(first - second)
    fourth = abs(year - month)
    store.ChallengeNumber = f"{first} {second} {third} {fourth}"
    for place, value in enumerate((first, second, third, fourth), start=1):
        if state.select(f"ChallengeText{place}", value, "ChallengeText"):
            setattr(store, f"ChallengeLabel{place}",
                    f"{PLACES[place - 1]} Challenge Number is {value}")
        else:
            reached("Challenges: a value without a reading")
    state.set_fixed("ChallengeAbout")
