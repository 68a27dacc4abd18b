"""The prose, as the program's own book holds it."""

from numerology.rules import row_reached


class Book:

    def __init__(self, rows):
        """From the rows of `orravane-report --book -f json`."""
        self.texts = {(row["slot"], row["number"]): row["text"] for row in rows}
        if len(self.texts) != len(rows):
            raise ValueError("the book holds a reading twice")

    def reading(self, slot, number):
        """The reading of a number, or None where it has no row."""
        row_reached(slot, number)
        return self.texts.get((slot, number))

    def fixed(self, slot):
        """A text that no number chooses."""
        return self.texts[slot, None]
