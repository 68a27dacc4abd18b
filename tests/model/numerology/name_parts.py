"""Balance, Subconscious Self and Rational Thought."""

from numerology.digits import reduce_digit_string, reduce_keep_master
from numerology.int16 import int16
from numerology.letters import letter_value, values_in
from numerology.rules import reached
from numerology.text import trimmed


def calc_balance(state):
    profile, store = state.profile, state.store
    total = sum(letter_value(name[:1])
                for name in (profile.FirstName, profile.MiddleName, profile.LastName))
    store.BalanceNumber = reduce_digit_string(str(total))
    if not state.select("BalanceText", store.BalanceNumber):
        reached("Balance: a number without a reading")
    state.set_fixed("BalanceAbout")


def calc_subconscious_self(state):
    store = state.store
    count = len(values_in(state.profile.whole_name()))
    if count < 3:
        reached("SubconsciousSelf: refused")
    state.select("SubconsciousSelfText", count)  # the refusal is the row of 0, 1 and 2
    store.SubconsciousSelfNumber = count
    state.set_fixed("SubconsciousSelfAbout")
    store.MissingDigitsScratch = ""


def calc_rational_thought(state):
    profile, store = state.profile, state.store
    day = reduce_digit_string(trimmed(profile.BirthDay))
    letters = 0
    for letter in trimmed(profile.FirstName):
        letters = int16(letters + letter_value(letter), "RationalThought: a total of letters")
    number = reduce_keep_master(int16(day + letters, "RationalThought: a total with the day"))
    if not state.select("RationalThoughtText", number):
        reached("RationalThought: a number without a reading empties the text")
        if store.RationalThoughtText:
            reached("RationalThought: the text of an earlier person is emptied")
        store.RationalThoughtText = ""
    store.RationalThoughtNumber = number
    state.set_fixed("RationalThoughtAbout")
