"""Karmic Debt: whether a raw value of another topic is 13, 14, 16 or 19.

The messages that name the source are left out here: the reading replaces them before anybody
can see them.
"""

from numerology.int16 import number
from numerology.rules import reached

DEBTS = (13, 14, 16, 19)


def calc_karmic_debt(state):
    store = state.store
    store.BirthDayValue = number(state.profile.BirthDay)
    debt = 0
    # The last source that has one wins.
    if store.LifePathDaySum in DEBTS:
        reached("KarmicDebt: in the digit sum of the day")
        debt = store.LifePathDaySum
    if store.DestinyRaw in DEBTS:
        reached("KarmicDebt: in Destiny")
        debt = store.DestinyRaw
    if store.SoulUrgeRaw in DEBTS:
        reached("KarmicDebt: in Soul Urge")
        debt = store.SoulUrgeRaw
    if store.InnerDreamsRaw in DEBTS:
        reached("KarmicDebt: in Inner Dreams")
        debt = store.InnerDreamsRaw
    # Within a source the four exclude each other; here 13 is looked for in another slot, which
    # can be of another person.
    if store.BirthDayValue == 13:
        reached("KarmicDebt: born on the 13th")
        if store.BirthdayRaw in DEBTS and store.BirthdayRaw != 13:
            reached("KarmicDebt: born on the 13th, and the day of an earlier person is a debt")
        debt = 13
    elif store.BirthdayRaw in (14, 16, 19):
        reached("KarmicDebt: born on the 14th, 16th or 19th")
        debt = store.BirthdayRaw
    if debt == 0:
        reached("KarmicDebt: none")
    store.KarmicDebtNumber = debt
    state.select("KarmicDebtText", debt)
    state.set_fixed("KarmicDebtAbout")
