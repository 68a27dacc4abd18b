"""Finds the shortest sequence that still shows a difference."""

import time

from sequences import CAPTIONS, FIRST_DATE

COST = {"profile": 2, "clock": 1, "endless": 1, "run": 1, "render": 2, "click": 3, "pass": 40,
        "comprehensive": 80}
PLAIN_LETTER = "A"


def size(sequence):
    """What is to become small: first the commands, then the dates, then the texts."""
    texts = [text for command in sequence for text in command[1:] if isinstance(text, str)]
    dates = [date for command in sequence if command[0] == "clock" for date in command[1:]]
    ages = [command[1] for command in sequence if command[0] == "endless"]
    names = [name for command in sequence if command[0] == "profile" for name in command[1:4]]
    return (sum(COST[command[0]] for command in sequence), len(dates), sum(map(len, texts)),
            sum(date != FIRST_DATE for date in dates),
            sum(len(name) - name.count(PLAIN_LETTER) for name in names), sum(map(abs, ages)))


def shrink(sequence, differs, until, attempts=5000):
    """The smallest sequence that could be reached for which `differs` holds. It is asked at
    most `attempts` times, and not behind the moment `until` of the monotonic clock."""
    smallest = list(sequence)
    again = True
    while again:
        again = False
        tried = set()
        for candidate in _smaller(smallest):
            if time.monotonic() > until:
                return smallest
            key = tuple(candidate)
            if key in tried or size(candidate) >= size(smallest):
                continue
            tried.add(key)
            attempts -= 1
            if attempts < 0:
                return smallest
            if differs(candidate):
                smallest = candidate
                again = True
                break
    return smallest


def _smaller(sequence):
    """Sequences with something left out or made simpler, the big steps first."""
    for begin, end in _stretches(len(sequence)):
        yield sequence[:begin] + sequence[end:]
    for at, command in enumerate(sequence):
        for other in _simpler_commands(command):
            yield sequence[:at] + [other] + sequence[at + 1:]
    yield from _smaller_with_the_clock(sequence)


def _smaller_with_the_clock(sequence):
    """One run instead of many, or of none, and the dates left out that the others read."""
    for at, command in enumerate(sequence):
        clocks = [place for place in range(at) if sequence[place][0] == "clock"]
        if command[0] in ("profile", "clock") or not clocks:
            continue
        before, clock = sequence[:clocks[-1]], sequence[clocks[-1]]
        between = sequence[clocks[-1] + 1:at]
        others = [[("run", caption)] for caption in CAPTIONS] if COST[command[0]] > 3 else []
        for left_out in range(1, len(clock) - 1):
            for other in [[], *others]:
                yield [*before, ("clock", *clock[1 + left_out:]), *between, *other,
                       *sequence[at + 1:]]


def _stretches(length):
    """Stretches of a list: all of it, then halves, down to single places."""
    step = length
    while step:
        for begin in range(0, length, step):
            yield begin, min(begin + step, length)
        step //= 2


def _simpler_commands(command):
    word, *arguments = command
    if word in ("pass", "comprehensive"):
        for other in ("run", "click"):
            for caption in CAPTIONS:
                yield (other, caption)
        yield ("pass",)
    elif word in ("click", "render"):
        yield ("run", *arguments)
        yield ("render", *arguments)
    elif word == "clock":
        for begin, end in _stretches(len(arguments)):
            if end - begin < len(arguments):
                yield ("clock", *arguments[:begin], *arguments[end:])
        for at in range(len(arguments)):
            yield ("clock", *arguments[:at], FIRST_DATE, *arguments[at + 1:])
    elif word == "endless":
        yield ("endless", 0)
        yield ("endless", 1)
    elif word == "profile":
        yield ("profile", *(text[:len(text) // 2] for text in arguments[:3]), *arguments[3:])
        for at, text in enumerate(arguments):
            for simpler in _simpler_texts(text, is_name=at < 3):
                yield ("profile", *arguments[:at], simpler, *arguments[at + 1:])


def _simpler_texts(text, is_name):
    for begin, end in _stretches(len(text)):
        yield text[:begin] + text[end:]
    if is_name:
        for begin, end in _stretches(len(text)):
            yield text[:begin] + PLAIN_LETTER * (end - begin) + text[end:]
