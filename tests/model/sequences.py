"""Sequences of commands on one store, and what the model answers to them.

A command is a tuple: its word, then its texts or numbers. driver.cpp says what each does.
"""

import random

import people
from numerology import essence, proceed_pass, rendering
from numerology.int16 import RuntimeFailure, int16, number
from numerology.rules import reached
from numerology.state import Clock, Profile, State
from numerology.text import trimmed

CAPTIONS = tuple(topic.caption for topic in rendering.TOPICS)
FIRST_DATE = (2026, 11, 16)

# A walk of more steps, or a name whose every character is compared with every other, takes
# the program seconds.
LONGEST_WALK = 1_000_000
LONGEST_NAME_TO_COUNT = 6_000


def random_sequence(seed, index):
    """The sequence of this number; the same for the same seed."""
    rng = random.Random(f"{seed}/{index}")
    sequence = []
    if rng.random() < 0.6:
        sequence.append(("clock", *people.clock(rng)))
    if rng.random() < 0.2:
        someone, dates = people.corner(rng)
        sequence += [("clock", *dates), ("profile", *someone)]
        if rng.random() < 0.5:
            sequence.append(("pass",))
    elif rng.random() < 0.02:
        sequence += _day_of_another(rng)
    elif rng.random() < 0.4:
        sequence += _two_people(rng)
    elif rng.random() < 0.95:
        sequence.append(("profile", *people.person(rng)))
    # Often a few topics only, so that their runs leave something for each other.
    captions = rng.sample(CAPTIONS, rng.choice((2, 3))) if rng.random() < 0.5 else CAPTIONS
    for _ in range(rng.choice((1, 2, 3, 4, 5, 6, 8, 12))):
        sequence.append(_random_command(rng, sequence, captions))
    return sequence


def _day_of_another(rng):
    """Two days of birth, of which the store still holds the first."""
    someone = list(people.person(rng))
    for caption, days in (("Birthday Number", ("14", "16", "19", "20")),
                          ("Karmic Debt Numbers", ("13", "15"))):
        someone[4] = rng.choice(days)
        yield ("profile", *someone)
        yield (rng.choice(("run", "click")), caption)


def _two_people(rng):
    """One topic for two people; the first is one whose readings are all there."""
    caption = rng.choice(CAPTIONS)
    yield ("profile", rng.choice(people.FIRST), "", rng.choice(people.LAST),
           rng.choice(people.MONTHS), str(rng.randint(1, 31)), str(rng.randint(1900, 2050)))
    yield rng.choice((("run", caption), ("click", caption), ("pass",)))
    make = rng.choice((people.without_letters, people.without_value, people.person))
    yield ("profile", *make(rng))
    if make is people.without_value and rng.random() < 0.5:
        yield ("clock", (0, rng.randint(1, 12), rng.randint(1, 28)))
    yield (rng.choice(("run", "click")), caption)


def _random_person(rng, sequence):
    """A new one, or one of the sequence with another text in one place."""
    earlier = [command for command in sequence if command[0] == "profile"]
    someone = people.person(rng)
    if not earlier or rng.random() < 0.6:
        return someone
    changed = list(rng.choice(earlier)[1:])
    place = rng.randrange(6)
    changed[place] = someone[place]
    return tuple(changed)


def _random_command(rng, sequence, captions):
    word = rng.choices(("pass", "profile", "clock", "run", "click", "render", "comprehensive",
                        "endless"), (16, 18, 8, 24, 22, 4, 3, 5))[0]
    if word == "profile":
        return ("profile", *_random_person(rng, sequence))
    if word == "clock":
        return ("clock", *people.clock(rng))
    if word in ("run", "click", "render"):
        return (word, rng.choice(captions))
    if word == "endless":
        return (word, rng.choice((-1, 0, 1, 2, 30, 32767)))
    return (word,)


class LeftOut(Exception):
    """The command cannot be compared. `instead` is one that can, or None."""

    def __init__(self, why, instead=None):
        super().__init__(why)
        self.instead = instead


class Model:
    """The model's side: does one command after the other on a state of its own."""

    def __init__(self, book):
        self.state = State(book)
        self.state.clock = Clock(FIRST_DATE)

    def do(self, command):
        """Gives all slots, the report, and the endless name, as far as the command has any.
        Raises LeftOut before it changes anything."""
        word, *arguments = command
        state = self.state
        report = endless = None
        if word == "profile":
            state.profile = Profile(*arguments)
        elif word == "clock":
            state.clock = Clock(*arguments)
        elif word == "endless":
            endless = essence.endless_name(state.profile, arguments[0]) or ""
            if endless:
                reached("Essence: an endless name, predicted")
        else:
            self._leave_out(word, arguments)
            report = self._run(word, arguments)
        return dict(vars(state.store)), report, endless

    def _run(self, word, arguments):
        state = self.state
        if word == "pass":
            proceed_pass.run_all(state)
            return rendering.render(rendering.TOPIC_OF_CAPTION["Personal Month"], state)
        if word == "comprehensive":
            return rendering.comprehensive_reading(state)
        topic = rendering.TOPIC_OF_CAPTION[arguments[0]]
        if word == "run":
            return proceed_pass.run(topic.calculate, state)
        return (rendering.click if word == "click" else rendering.render)(topic, state)

    def _leave_out(self, word, arguments):
        if word == "render":
            return
        profile, clock = self.state.profile, self.state.clock
        topics = CAPTIONS if word in ("pass", "comprehensive") else arguments

        length = len(profile.whole_name())
        if "Hidden Passion Number" in topics and LONGEST_NAME_TO_COUNT < length <= 32767:
            raise LeftOut("a name that takes long to count")

        if not {"Essence", "Life Path Periods"} & set(topics):
            return
        try:
            birth_year = number(trimmed(profile.BirthYear))
        except RuntimeFailure:
            # Whether the clock is read before the year of birth fails is nobody's concern,
            # but a clock that moves would show it.
            if len(clock.dates) > 1:
                raise LeftOut("a moving clock and a year that is no number") from None
            return
        if "Essence" not in topics:
            return
        for year, _, _ in clock.dates:
            try:
                age = int16(year - birth_year, "Essence: an age")
            except RuntimeFailure:
                continue
            if essence.endless_name(profile, age):
                raise LeftOut("an endless name", ("endless", age))
            if essence.steps_of_walk(profile, age) > LONGEST_WALK:
                raise LeftOut("a walk that takes long")


def run_model(sequence, book, left_out=None):
    """The answers of the model, and the sequence without what was left out. The reasons are
    counted in `left_out`; without it, they raise LeftOut."""
    model = Model(book)
    done, answers = [], []
    for command in sequence:
        try:
            answers.append(model.do(command))
        except LeftOut as reason:
            if left_out is None:
                raise
            left_out[str(reason)] += 1
            if reason.instead is None:
                continue
            command = reason.instead
            answers.append(model.do(command))
        done.append(command)
    return done, answers


def shown(text):
    """A text for people."""
    if len(text) > 12 and len(set(text)) == 1:
        return f"{ascii(text[0])} * {len(text)}"
    if len(text) > 160:
        return f"{ascii(text[:120])}... ({len(text)} characters)"
    return ascii(text)


def described(command):
    """A command on one line, for people."""
    word, *arguments = command
    if word == "clock":
        return "clock    " + ", ".join("%d-%02d-%02d" % tuple(date) for date in arguments)
    return f"{word:8} " + " ".join(shown(argument) if isinstance(argument, str) else str(argument)
                                   for argument in arguments)
