"""People, and what the report tool says about them: what the window is compared with."""

import dataclasses
import datetime
import functools
import json
import os
import subprocess

from waiting import DEADLINE

REPORT_TOOL = os.environ.get("ORRAVANE_REPORT_TOOL", "")


@dataclasses.dataclass(frozen=True)
class Person:
    first: str
    middle: str
    last: str
    month: str
    day: int
    year: int

    def options(self):
        return ["--first", self.first, "--middle", self.middle, "--last", self.last,
                "--month", self.month, "--day", str(self.day), "--year", str(self.year)]


MARIA = Person("maria", "elena", "fernandez", "March", 14, 1985)

# What stands in a file that is to be replaced, and has to be there until it is.
OLD_FILE = b"{\\rtf1 the reading of another day\\par\r\n}\r\n" * 10


def tool(*arguments):
    """Runs orravane-report; gives its standard output as bytes."""
    done = subprocess.run([REPORT_TOOL, *arguments], capture_output=True, timeout=DEADLINE,
                          env={"HOME": "/nonexistent", "PATH": "/usr/bin:/bin"})
    if done.returncode != 0:
        raise AssertionError(f"orravane-report: {done.stderr.decode()}")
    return done.stdout


def today():
    return datetime.date.today().isoformat()


@functools.lru_cache(maxsize=None)
def expected_runs(person, caption, day):
    """What a topic consists of when it is read on `day`: (text, bold) in order."""
    report = json.loads(tool(*person.options(), "--today", day, "--format", "json", "--topic",
                             caption))
    (topic,) = report["topics"]
    return [(run["text"], run["bold"]) for run in topic["runs"]]


def expected_rtf(person, caption, day):
    """The tool's rich-text file for a topic."""
    return tool(*person.options(), "--today", day, "--format", "rtf", "--topic", caption)


def days_since(day):
    """`day` and today, which are the same unless a midnight has passed."""
    return {day, today()}


def plain_text(runs):
    """The text of runs as a clipboard holds it."""
    return "".join(text for text, _ in runs).replace("\r\n", "\n")


def lines_of(runs):
    """Runs as lines, each a list of (text, bold), for a reader that knows paragraphs only."""
    lines = [[]]
    for text, bold in runs:
        for index, part in enumerate(text.split("\r\n")):
            if index:
                lines.append([])
            if part and lines[-1] and lines[-1][-1][1] == bold:
                lines[-1][-1] = (lines[-1][-1][0] + part, bold)
            elif part:
                lines[-1].append((part, bold))
    return lines
