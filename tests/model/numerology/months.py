"""What a month of birth counts."""

from numerology.rules import reached

NAMES = ("January", "February", "March", "April", "May", "June", "July", "August", "September",
         "October", "November", "December")
VALUES = (1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3)


def month_value(name):
    """By the English name alone; 0 for any other text."""
    if name in NAMES:
        return VALUES[NAMES.index(name)]
    reached("month: a name that is not known")
    return 0


def month_number(name, scratch_letter):
    """The first month, in the order of the calendar, whose name this is or whose number the
    letter that a name walk left is."""
    for place, (month, value) in enumerate(zip(NAMES, VALUES), start=1):
        if name == month:
            return value
        if scratch_letter == str(place):
            reached("month: the digit that a name ends in")
            return value
    reached("month: neither name nor digit")
    return 0
