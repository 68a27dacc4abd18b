"""Texts. A character is one UTF-16 unit: a Python string here never holds a code point above
U+FFFF, but the two surrogates that stand for it, each a character of its own."""

import re

LINE_BREAK = "\r\n"


def units(text):
    """The text with each code point above U+FFFF as its two surrogates."""
    if text.isascii():
        return text
    return re.sub("[\U00010000-\U0010ffff]", _surrogates, text)


def _surrogates(match):
    above = ord(match[0]) - 0x10000
    return chr(0xD800 + (above >> 10)) + chr(0xDC00 + (above & 0x3FF))


def trimmed(text):
    """The text without blanks at its ends; U+0020 alone is a blank."""
    return text.strip(" ")
