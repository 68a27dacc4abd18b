"""Digit sums, folds and the two reductions."""

from numerology.int16 import digit, int16
from numerology.rules import reached


def digit_sum(text):
    """The sum of the digits, taken character by character."""
    total = 0
    for character in text:
        total = int16(total + digit(character), "digits: a digit sum")
    return total


def fold(value):
    """First digit plus last digit of a value of two digits or more."""
    text = str(value)
    if len(text) < 2:
        return value
    return digit(text[0]) + digit(text[-1])


def reduce_digit_string(text):
    """Digit sum and two folds; 11 and 22 do not survive."""
    total = digit_sum(text)
    if total >= 100:
        reached("reduce: a digit sum of three digits or more")
    elif total in (11, 22):
        reached("reduce: 11 and 22 do not survive")
    return fold(fold(total))


def reduce_keep_master(value):
    """11 and 22 survive as the value and as its digit sum, and nowhere else."""
    if value < 0:
        reached("keep master: below zero, which fails at the minus sign")
    if value in (11, 22):
        reached("keep master: the value is 11 or 22")
        return value
    total = digit_sum(str(value))
    if total in (11, 22):
        reached("keep master: the digit sum is 11 or 22")
        return total
    if fold(total) in (11, 22):
        reached("keep master: a fold gives 11, which does not survive")
    return fold(fold(total))
