"""The letter chart."""

ROWS = {1: "JAS", 2: "KBT", 3: "LCU", 4: "MDV", 5: "NEW", 6: "OFX", 7: "PGY", 8: "QHZ", 9: "RI"}
CHART = {letter: value for value, letters in ROWS.items() for letter in letters}


def letter_value(letter):
    """1 to 9; 0 for whatever is no capital of the chart."""
    return CHART.get(letter, 0)


def values_in(name):
    """Which of the values 1 to 9 occur in a name."""
    return {CHART[letter] for letter in set(name) if letter in CHART}
