"""Counts how often each rule of the model is reached.

`reached("name of the rule")` stands in each branch. The names are found in the sources, so
that a rule that was never reached is listed too.
"""

import ast
import collections
import pathlib

counts = collections.Counter()
rows = collections.Counter()  # (slot, number) for which a reading was looked up
without_row = collections.Counter()  # slots, where the number had none
stale = collections.Counter()  # slots, where an earlier text stayed then
gave_up = collections.Counter()  # calculators that failed


def reached(rule):
    counts[rule] += 1


def row_reached(slot, number):
    rows[slot, number] += 1


def no_row_reached(slot, text_that_stays):
    without_row[slot] += 1
    if text_that_stays:
        stale[slot] += 1


def all_rules():
    """Every rule that the sources of the model name."""
    names = set()
    for source in pathlib.Path(__file__).parent.glob("*.py"):
        for node in ast.walk(ast.parse(source.read_text(encoding="utf-8"))):
            if not isinstance(node, ast.Call) or not isinstance(node.func, ast.Name):
                continue
            if node.func.id == "reached" and isinstance(node.args[0], ast.Constant):
                names.add(node.args[0].value)
            if node.func.id == "int16":
                names.add(node.args[1].value + " out of range")
    return sorted(names)
