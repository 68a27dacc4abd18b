#!/usr/bin/env python3
"""That the comparison sees a difference and finds the shortest sequence that shows it: the
model against a model with one rule broken."""

import os
import unittest
from unittest import mock

import compare
import sequences
from numerology import (essence, karmic_debt, months, name_numbers, proceed_pass, rendering,
                        state)
from program import Program

ENOUGH = 2000


class BrokenProgram:
    """Answers like the model while `breaking` holds."""

    def __init__(self, book, breaking):
        self.book = book
        self.breaking = breaking
        self.results = []
        self.patience = 0

    def send(self, *many):
        with self.breaking:
            self.results = [sequences.run_model(sequence, self.book)[1] for sequence in many]

    def answers(self, _count):
        return self.results.pop(0), None


def without_scratch_letter(store, name, values):
    """A name walk that does not leave its last letter."""
    store.ScratchSum += sum(values.get(letter, 0) for letter in name)


class Comparison(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        cls.book = compare.read_book(os.environ["ORRAVANE_REPORT_TOOL"])

    def shortest(self, breaking):
        """The shortest sequence that shows what is broken, and the differences there."""
        broken = BrokenProgram(self.book, breaking)
        for begin in range(0, ENOUGH, 20):
            many = [sequences.random_sequence("broken", begin + at) for at in range(20)]
            differs = compare.first_that_differs(many, self.book, broken, mock.MagicMock())
            if differs:
                return compare.shortest(differs[1], self.book, broken)
        self.fail(f"{ENOUGH} sequences show no difference")

    def test_a_letter_of_the_wrong_value(self):
        sequence, (at, found) = self.shortest(
            mock.patch.dict(essence.LAST_NAME_CHART, {"F": 6}))
        self.assertEqual([command[0] for command in sequence], ["profile", "run"])
        self.assertEqual(sequence[1], ("run", "Essence"))
        self.assertIn(sequence[0][3], ("F", "FA", "AF"))
        self.assertEqual(at, 1)
        self.assertIn("EssenceNumber", [name for name, _, _ in found])

    def test_a_month_that_counts_differently(self):
        sequence, _ = self.shortest(
            mock.patch.object(months, "VALUES", (*months.VALUES[:10], 11, 3)))
        self.assertEqual(sequence[0], ("profile", "", "", "", "November", "", ""))
        self.assertEqual([command[0] for command in sequence], ["profile", "run"])

    def test_a_letter_that_is_not_left_for_the_next_run(self):
        sequence, (_, found) = self.shortest(
            mock.patch.object(name_numbers, "_walk", without_scratch_letter))
        self.assertEqual([command[0] for command in sequence], ["profile", "run"])
        self.assertEqual("".join(sequence[0][1:]), "A")
        self.assertEqual([name for name, _, _ in found], ["ScratchLetter"])

    def test_a_calculator_that_runs_later_in_the_pass(self):
        def run_all(present):
            for calculate in (*proceed_pass.PASS_ORDER, karmic_debt.calc_karmic_debt):
                proceed_pass.run(calculate, present)

        sequence, (_, found) = self.shortest(mock.patch.object(proceed_pass, "run_all", run_all))
        self.assertEqual([command[0] for command in sequence], ["profile", "pass"])
        self.assertEqual([name for name, _, _ in found], ["KarmicDebtNumber", "KarmicDebtText"])

    def test_a_clock_that_is_read_only_once(self):
        sequence, _ = self.shortest(
            mock.patch.object(state.Clock, "_read", lambda clock: clock.dates[0]))
        self.assertEqual([command[0] for command in sequence], ["clock", "run"])
        self.assertEqual(len(sequence[0]), 3, "a clock of two dates")

    def test_a_heading_that_is_not_bold(self):
        sequence, (_, found) = self.shortest(
            mock.patch.object(rendering, "_bold", lambda text: (text + "\r\n\r\n", False)))
        self.assertEqual([command[0] for command in sequence], ["render"])
        self.assertEqual(found[0][0], "report")

    def test_a_prediction_that_is_wrong(self):
        endless_name = essence.endless_name
        sequence, (_, found) = self.shortest(mock.patch.object(
            essence, "endless_name",
            lambda profile, age: {"Middle": "Last"}.get(endless_name(profile, age))))
        self.assertEqual(sequence, [("endless", 1)])
        self.assertEqual(found, [("endless name", "First", "")])

    def test_answers_that_nobody_read(self):
        real = Program(os.environ["ORRAVANE_MODEL_DRIVER"])
        person = ("profile", "ANNA", "", "LEE", "May", "5", "1990")
        real.send([person, ("run", "Essence")], [person, ("run", "Birthday Number")])
        real.answers(2)
        self.assertIsNone(compare.compare([person, ("run", "Essence")], self.book, real))
        self.assertIsNone(real.finish())

    def test_a_program_that_ends(self):
        at, found = compare.compare([("pass",)], self.book, Program("false"))
        self.assertEqual((at, found[0][0]), (0, "program"))
        self.assertIn("ended with 1", found[0][2])

    def test_a_program_that_ends_in_one_of_many_sequences(self):
        class Mortal(BrokenProgram):
            """Ends, with no answer to any of the sequences, where one writes a whole report."""

            def send(self, *many):
                super().send(*many)
                if any(("comprehensive",) in sequence for sequence in many):
                    self.results = []

            def answers(self, count):
                return super().answers(count) if self.results else ([], "the program ended")

        mortal = Mortal(self.book, mock.patch.dict(essence.LAST_NAME_CHART, {}))
        many = [[("pass",)], [("run", "Essence")], [("pass",), ("comprehensive",)], [("pass",)]]
        at, sequence = compare.first_that_differs(many, self.book, mortal, mock.MagicMock())
        self.assertEqual((at, sequence), (2, many[2]))
        smallest, (_, found) = compare.shortest(sequence, self.book, mortal)
        self.assertEqual((smallest, found[0][2]), ([("comprehensive",)], "the program ended"))

    def test_a_program_that_does_not_answer(self):
        sleeper = Program("sleep", "60")
        sleeper.patience = 0.2
        _, found = compare.compare([("pass",)], self.book, sleeper)
        self.assertIn("did not answer", found[0][2])

    def test_nothing_is_broken(self):
        same = BrokenProgram(self.book, mock.patch.dict(essence.LAST_NAME_CHART, {}))
        many = [sequences.random_sequence("same", index) for index in range(50)]
        self.assertIsNone(compare.first_that_differs(many, self.book, same, mock.MagicMock()))


if __name__ == "__main__":
    unittest.main()
