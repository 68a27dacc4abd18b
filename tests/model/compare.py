#!/usr/bin/env python3
"""Compares the program with the model on random people and random sequences on one store.

Every slot, every report and every prediction of an endless walk has to be the same after each
command. The first difference ends it: the shortest sequence that shows it is printed with
both values.
"""

import argparse
import collections
import json
import os
import random
import shlex
import subprocess
import sys
import time

import sequences
import shrinking
from numerology import rules
from numerology.book import Book
from numerology.proceed_pass import PASS_ORDER
from program import ANSWER_WITHIN_WHILE_SHRINKING, Program

SHRINK_FOR = 120  # seconds, should each attempt take long
AT_ONCE = 25  # sequences that go to the program together

# Rows of the book that no number can choose.
NEVER_REACHED = {
    ("EssenceText", 11), ("EssenceText", 22), ("LifePathPeriodsText", 11),
    ("LifePathPeriodsText", 22), ("RealizationText", 22),
}
# The number 0 is there only before the first reading; RationalThoughtText is emptied.
NEVER_STALE = {"HiddenPassionText", "RationalThoughtText"}
NEVER_GIVE_UP = {"calc_balance", "calc_subconscious_self", "calc_hp_bridge", "calc_le_bridge",
                 "calc_realization"}


def differences(expected, answered):
    """What is different in two answers to one command: (name, model's, program's), ..."""
    slots, report, endless = expected
    program_slots, program_report, program_endless = answered
    found = []
    if slots != program_slots:
        found += [(name, slots.get(name), program_slots.get(name))
                  for name in sorted(slots.keys() | program_slots.keys())
                  if slots.get(name) != program_slots.get(name)]
    if report != program_report:
        found.append(("report", *_first_difference(report or [], program_report or [])))
    if endless != program_endless:
        found.append(("endless name", endless, program_endless))
    return found


def _first_difference(report, other):
    for run, other_run in zip(report, other):
        if run != other_run:
            return run, other_run
    return f"{len(report)} runs", f"{len(other)} runs"


def compare(sequence, book, program):
    """None, or what is different: the place of the command, and the differences there."""
    done, expected = sequences.run_model(sequence, book)
    program.send(done)
    return _compare_answers(expected, program)


def _compare_answers(expected, program):
    answered, trouble = program.answers(len(expected))
    for at, (one, other) in enumerate(zip(expected, answered)):
        if found := differences(one, other):
            return at, found
    if trouble:
        return len(answered), [("program", "answers", trouble)]
    return None


def first_that_differs(many, book, program, left_out):
    """The place of the first of several sequences that shows a difference, and the sequence as
    it was done; or None. They go to the program at once, which saves waiting."""
    all_done, all_expected = zip(*(sequences.run_model(sequence, book, left_out)
                                   for sequence in many))
    program.send(*all_done)
    for at, (done, expected) in enumerate(zip(all_done, all_expected)):
        difference = _compare_answers(expected, program)
        if difference and not (difference[1][0][0] == "program" and len(many) > 1):
            return at, done
        if difference:  # which of them ended it?
            for place in range(at, len(many)):
                if compare(all_done[place], book, program):
                    return place, all_done[place]
            return at, done
    return None


def shortest(sequence, book, program):
    """The shortest sequence found that shows a difference, and the difference."""

    def differs(candidate):
        try:
            return compare(candidate, book, program) is not None
        except sequences.LeftOut:
            return False

    program.patience = ANSWER_WITHIN_WHILE_SHRINKING
    smallest = shrinking.shrink(sequence, differs, time.monotonic() + SHRINK_FOR)
    return smallest, compare(smallest, book, program)


def tell(sequence, difference):
    # A program that does not always say the same, say, or that remembers another sequence.
    at, found = difference or (None, [("difference", "none", "none when done once more")])
    for place, command in enumerate(sequence):
        print(("  > " if place == at else "    ") + sequences.described(command))
    for name, expected, answered in found:
        print(f"\n  {name}\n    model:   {_value(expected)}\n    program: {_value(answered)}")
    again = shlex.quote(json.dumps(sequence))
    if len(again) < 4000:
        print("\nAgain with: --replay " + again)


def _value(value):
    if isinstance(value, str):
        return sequences.shown(value) if "\n" not in value[:-2] else ascii(value[:200])
    return ascii(value)[:300]


def print_statistics(book):
    """How often each rule and each reading was reached; gives those that never were."""
    never = []
    print("\nRules of the model, and how often each was reached:")
    for rule in rules.all_rules():
        print(f"{rules.counts[rule]:9}  {rule}")
        if not rules.counts[rule]:
            never.append(rule)
    print("\nNumbers without a reading, by slot, and how often an earlier text stayed then:")
    for slot, count in sorted(rules.without_row.items()):
        print(f"  {slot}: {count}, {rules.stale[slot]}")
        if not rules.stale[slot] and slot not in NEVER_STALE:
            never.append(f"an earlier text that stays in {slot}")
    print("\nCalculators that gave up, and how often:")
    for calculate in PASS_ORDER:
        name = calculate.__name__
        print(f"{rules.gave_up[name]:9}  {name}")
        if not rules.gave_up[name] and name not in NEVER_GIVE_UP:
            never.append(f"{name} gives up")
    print("\nReadings, by slot: how often each number chose one (- has none)")
    chosen = collections.defaultdict(dict)
    for (slot, number), count in rules.rows.items():
        chosen[slot][number] = count
    for slot, number in book.texts:
        if number is not None:
            chosen[slot].setdefault(number, 0)
            if not chosen[slot][number] and (slot, number) not in NEVER_REACHED:
                never.append(f"{slot} {number}")
    for slot, counts in sorted(chosen.items()):
        print(f"  {slot}: " + ", ".join(
            f"{number}{'' if (slot, number) in book.texts else '-'}: {count}"
            for number, count in sorted(counts.items()) if abs(number) < 100))
    return never


def read_book(tool):
    done = subprocess.run([tool, "--book", "-f", "json"], capture_output=True, check=True,
                          env=os.environ | {"HOME": "/nonexistent"})
    return Book(json.loads(done.stdout))


def options():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--driver", default=os.environ.get("ORRAVANE_MODEL_DRIVER"),
                        help="the built model_driver")
    parser.add_argument("--tool", default=os.environ.get("ORRAVANE_REPORT_TOOL"),
                        help="the built orravane-report, for the book of readings")
    parser.add_argument("--sequences", type=int, default=2000, metavar="N", help="how many")
    parser.add_argument("--seed", default="1", help="a number, or `random`")
    parser.add_argument("--first", type=int, default=0, metavar="N",
                        help="number of the first sequence of the seed")
    parser.add_argument("--replay", metavar="JSON", help="one sequence, as a difference prints it")
    parser.add_argument("--statistics", action="store_true",
                        help="how often each rule of the model was reached; fails on one that "
                             "never was")
    chosen = parser.parse_args()
    if not chosen.driver or not chosen.tool:
        parser.error("--driver and --tool, or ORRAVANE_MODEL_DRIVER and ORRAVANE_REPORT_TOOL, "
                     "are needed")
    return chosen


def main():
    chosen = options()
    book = read_book(chosen.tool)
    program = Program(chosen.driver)
    if chosen.replay:
        sequence = [tuple(tuple(part) if isinstance(part, list) else part for part in command)
                    for command in json.loads(chosen.replay)]
        difference = compare(sequence, book, program)
        if difference:
            tell(sequence, difference)
        else:
            print("no difference")
        return 1 if difference else 0

    seed = chosen.seed if chosen.seed != "random" else str(random.SystemRandom().randrange(10**9))
    end = chosen.first + chosen.sequences
    print(f"seed {seed}, sequences {chosen.first} to {end - 1}", flush=True)
    began = time.monotonic()
    commands = 0
    left_out = collections.Counter()
    for begin in range(chosen.first, end, AT_ONCE):
        many = [sequences.random_sequence(seed, index)
                for index in range(begin, min(begin + AT_ONCE, end))]
        commands += sum(map(len, many))
        if differs := first_that_differs(many, book, program, left_out):
            at, done = differs
            print(f"\nSequence {begin + at} of seed {seed} shows a difference. The shortest found "
                  "that does:\n")
            tell(*shortest(done, book, program))
            return 1
        if (begin + AT_ONCE - chosen.first) % 10_000 == 0:
            print(f"{begin + AT_ONCE - chosen.first} done", flush=True)
    if trouble := program.finish():
        print("\nAfter all sequences " + trouble)
        return 1
    took = time.monotonic() - began
    print(f"{chosen.sequences} sequences with {commands} commands in {took:.1f} s: program and "
          "model agree")
    for reason, count in left_out.most_common():
        print(f"{count:9}  left out: {reason}")
    if chosen.statistics:
        never = print_statistics(book)
        if never:
            print("\nNever reached: " + "; ".join(never))
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
