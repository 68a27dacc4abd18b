"""The program's side: the driver as a child process."""

import json
import os
import pathlib
import re
import select
import subprocess
import tempfile
import time

from numerology.state import Store
from numerology.text import units

# Seconds of the processor's time, since a busy machine lets a program wait. No sequences take
# nearly as long, and one that is being shrunk less still. A program that waits for something
# itself gets ten times as many by the clock.
ANSWER_WITHIN = 60
ANSWER_WITHIN_WHILE_SHRINKING = 5


def _word(argument):
    if isinstance(argument, str):
        return re.sub(r"[^ -\[\]-~]", lambda unit: f"\\u{ord(unit[0]):04x}", units(argument))
    if isinstance(argument, tuple | list):
        return "%d-%d-%d" % tuple(argument)
    return str(argument)


def _with_units(value):
    return units(value) if isinstance(value, str) else value


def _used_by(pid):
    """Seconds of the processor's time."""
    stat = pathlib.Path(f"/proc/{pid}/stat").read_text(encoding="utf-8")
    fields = stat.rpartition(")")[2].split()  # those behind the name, which stands in brackets
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class Program:

    def __init__(self, *command):
        self.command = command
        self.patience = ANSWER_WITHIN
        self.process = None
        self.errors = None
        self.answering = False
        self.unread = 0
        self.used_before = 0

    def send(self, *sequences):
        """Lets the program do these sequences; `answers` then gives what it said to each."""
        if self.unread:
            self.end()  # answers that nobody read must not pass for those to come
        self.unread = len(sequences)
        if self.process is None:
            self.errors = tempfile.TemporaryFile()
            self.process = subprocess.Popen(self.command, stdin=subprocess.PIPE,
                                            stdout=subprocess.PIPE, stderr=self.errors)
        lines = []
        for sequence in sequences:
            lines += ["new"] + ["\t".join(map(_word, command)) for command in sequence]
        lines += ["answer", ""]
        self.answering = False
        self.used_before = _used_by(self.process.pid)
        try:
            self.process.stdin.write("\n".join(lines).encode("ascii"))
            self.process.stdin.flush()
        except BrokenPipeError:
            pass  # it died; that shows when its answers are missing

    def answers(self, count):
        """The slots, the report and the endless name after each of the `count` commands of the
        next sequence, and what went wrong, or None. Where something did, answers are missing."""
        if not self.answering:
            if not self._begins_to_answer():
                self.end()
                return [], f"the program did not answer within {self.patience} s"
            self.answering = True  # to all sequences at once
        self.unread -= 1
        answers, slots = [], dict(vars(Store()))
        for at in range(count + 1):
            line = self.process.stdout.readline()
            if not line.endswith(b"\n"):
                return answers, "the program ended " + self.end()
            answer = json.loads(line)
            for slot, value in answer["slots"].items():
                if slot != "ScratchIndex":  # see Store
                    slots[slot] = _with_units(value)
            if at == 0:
                continue  # of the command `new`
            report = answer.get("report")
            if report is not None:
                report = [(_with_units(text), bold) for text, bold in report]
            answers.append((dict(slots), report, answer.get("endless")))
        return answers, None

    def _begins_to_answer(self):
        until = time.monotonic() + 10 * self.patience
        while time.monotonic() < until and self._processor_time() < self.patience:
            ready, _, _ = select.select([self.process.stdout], [], [], min(1, self.patience))
            if ready:
                return True
        return False

    def _processor_time(self):
        """What the process has used since the sequences were sent."""
        return _used_by(self.process.pid) - self.used_before

    def finish(self):
        """Lets the process end by itself. Gives what went wrong with that, or None."""
        self.process.stdin.close()
        try:
            self.process.wait(ANSWER_WITHIN)
        except subprocess.TimeoutExpired:
            pass
        ended = self.end()
        return None if ended == "with 0\n" else "the program ended " + ended

    def end(self):
        """Ends the process; the next sequence starts another. Gives its code and its errors."""
        self.unread = 0
        self.process.kill()
        code = self.process.wait()
        self.process.stdout.close()
        try:
            self.process.stdin.close()
        except BrokenPipeError:
            pass
        self.process = None
        with self.errors:
            self.errors.seek(0)
            return f"with {code}\n" + self.errors.read().decode("utf-8", "replace")
