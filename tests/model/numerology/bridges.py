"""The two bridges and Realization, from other topics' numbers."""

from numerology.digits import digit_sum, fold, reduce_digit_string
from numerology.rules import reached


def _bridge(state, topic, minuend, subtrahend):
    gap = abs(minuend - subtrahend)
    number = reduce_digit_string(str(gap))
    setattr(state.store, topic + "Number", number)
    if not state.select(topic + "Text", number):
        reached("Bridge: 9 has no reading")
    state.set_fixed(topic + "About")


def calc_hp_bridge(state):
    _bridge(state, "HPBridge", state.store.SoulUrgeNumber, state.store.InnerDreamsNumber)


def calc_le_bridge(state):
    _bridge(state, "LEBridge", state.store.DestinyNumber, state.store.LifePathNumber)


def calc_realization(state):
    store = state.store
    if store.LifePathNumber == 0 or store.DestinyNumber == 0:
        reached("Realization: refused")
        if store.RealizationNumber:
            reached("Realization: refused, and the number of an earlier person stays")
        state.set_fixed("RealizationText")
        return
    total = digit_sum(str(store.LifePathNumber + store.DestinyNumber))
    if total in (11, 22):
        reached("Realization: the digit sum is 11")
        store.RealizationNumber = total
    else:
        store.RealizationNumber = fold(total)
    state.select("RealizationText", store.RealizationNumber)
    state.set_fixed("RealizationAbout")
