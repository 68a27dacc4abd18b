"""Signed 16-bit numbers with checked arithmetic, and how a text becomes one."""

import re

from numerology.rules import reached

LOWEST, HIGHEST = -32768, 32767


class RuntimeFailure(Exception):
    """Abandons a calculator where it stands."""


def int16(value, what):
    """The value itself; a failure where 16 bits do not hold it. `what` it is goes into the
    statistics of the rules."""
    if LOWEST <= value <= HIGHEST:
        return value
    reached(what + " out of range")
    raise RuntimeFailure


def digit(character):
    """The value of one decimal digit; a failure for any other character."""
    if character not in "0123456789":
        reached("digit: a character that is no digit")
        raise RuntimeFailure
    return ord(character) - ord("0")


def number(text):
    """The number that the whole text stands for."""
    if not re.fullmatch("[+-]?[0-9]+", text):
        reached("number: a text that is no number")
        raise RuntimeFailure
    # Far more digits than 16 bits have are not worth a conversion.
    digits = text.lstrip("+-").lstrip("0")
    if len(digits) > 5:
        reached("number: a text of too many digits")
        raise RuntimeFailure
    value = int(digits or "0")
    if text.startswith("-"):
        reached("number: below zero")
        value = -value
    return int16(value, "number: a text with a number")
