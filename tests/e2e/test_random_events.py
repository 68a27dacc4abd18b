"""Random mouse and keys on the built program in a real X window: it lives, reads a person as the
report tool does afterwards, and leaves cleanly. The same on the real widgets, far longer and with
every state compared, is tests/monkey.

    ORRAVANE_EVENTS=2000 ORRAVANE_SEED=7 ctest ... -R e2e_random_events
"""

import os
import random
import time

import desktop
from desktop import Desktop, DesktopTest, THANK_YOU_PAGE
from program import COMPREHENSIVE, ROW_HEIGHT, TOPICS, TREE_PADDING
from readings import MARIA
from waiting import wait_for

EVENTS = int(os.environ.get("ORRAVANE_EVENTS", "200"))
SEED = int(os.environ.get("ORRAVANE_SEED", "1"))
TOGETHER = 8  # events between two looks at the program

CONTROLS = {
    "anywhere": ("TV", "picHelp", "lblHyperlink"),
    "pages": ("txtFirstName", "txtLastName", "cboMonth", "cboYear", "picProceed", "RTB", "picSave",
              "picPrint", "lblHelp0"),
}
# Every name of these letters lets the Essence come to its end.
LETTERS = "abcdeghijklmnopqrstuvwxyz"
KEYS = ("Tab", "Tab", "shift+Tab", "Up", "Down", "Left", "Right", "Home", "End", "Prior", "Next",
        "BackSpace", "Delete", "Return", "Escape", "Escape", "F4", "ctrl+a", "ctrl+c", "alt+p",
        "alt+s", "alt+h", "shift+Right", "shift+End")


class RandomEvents(DesktopTest):

    def start(self):
        self.program = self.screen.orravane()
        self.screen.move(*self.program.middle("TV"))
        self.heads = [self.program.part(name) for name in ("picExit", "picHelp")]

    def place(self, dice):
        """A point of the window, but not of its Exit button."""
        if dice.random() < 0.6:
            left, top, width, height = self.program.box(
                dice.choice(CONTROLS[dice.choice(("anywhere", "pages"))]))
        else:
            left, top = self.program.left, self.program.top + self.program.menu_height
            width, height = self.program.width, self.program.height - self.program.menu_height
        x, y = left + dice.randrange(width), top + dice.randrange(height)
        exit_left, exit_top, exit_width, exit_height = self.program.box("picExit")
        if exit_left <= x <= exit_left + exit_width and exit_top <= y <= exit_top + exit_height:
            return self.program.middle("TV")
        return x, y

    def event(self, dice):
        """One event, as arguments of xdotool."""
        kind = dice.choices(("click", "press and drag", "move", "wheel", "key", "letter"),
                            (30, 6, 25, 8, 18, 13))[0]
        if kind == "key":
            return ["key", dice.choice(KEYS)]
        if kind == "letter":
            return ["key", dice.choice(LETTERS)]
        move = ["mousemove", *self.place(dice)]
        if kind == "click":
            return [*move, "click", "--repeat", dice.choice((1, 1, 1, 2)), dice.choice((1, 1, 1, 3))]
        if kind == "wheel":
            return [*move, "click", dice.choice((4, 5))]
        if kind == "press and drag":
            return [*move, "mousedown", 1, "mousemove", *self.place(dice), "mouseup", 1]
        return move

    def leave_dialogs(self):
        """Leaves whatever is open before the window."""
        def left():
            if not self.program.alive() or self.screen.program_windows() == [self.program.window]:
                return True
            self.screen.keys("Escape")
            return False

        wait_for("the window to stand alone", left)

    def assert_left_cleanly(self):
        self.assertEqual(self.program.await_end(), 0)
        wait_for("the thank-you page",
                 lambda: self.screen.opened_pages().count(THANK_YOU_PAGE) == self.ends)
        self.assert_quiet(self.screen)

    def read_somebody(self):
        """Enters a person over whatever is there and compares two topics with the tool."""
        screen, program = self.screen, self.program
        left, top, width, _ = program.box("TV")
        screen.xdotool("mousemove", left + width // 2, top + TREE_PADDING + ROW_HEIGHT // 2,
                       "click", "--repeat", 40, "--delay", 1, 4)
        time.sleep(0.5)  # longer than a double click
        screen.xdotool("click", 1)  # on "User Information"
        time.sleep(0.5)
        for control, text in (("txtFirstName", MARIA.first), ("txtMiddleName", MARIA.middle),
                              ("txtLastName", MARIA.last)):
            program.click(control)
            screen.keys("ctrl+a")
            screen.type(text)
        for text in (MARIA.month, str(MARIA.day), str(MARIA.year)):
            screen.keys("Tab")
            screen.type(text)
            time.sleep(0.5)  # longer than what is typed counts as one word
        program.click("picProceed")
        program.await_report()
        for caption in (TOPICS[6], COMPREHENSIVE):
            program.read_topic(caption, MARIA)

    def test_random_events(self):
        print(f"{EVENTS} events, seed {SEED}", flush=True)
        dice = random.Random(SEED)
        with Desktop("random-events") as self.screen:
            self.ends = 0
            self.start()
            done = []
            for _ in range(0, EVENTS, TOGETHER):
                events = [self.event(dice) for _ in range(TOGETHER)]
                done += events
                try:
                    self.screen.xdotool(*(part for event in events for part in event))
                    if not self.program.alive():  # somebody has answered Yes to the last question
                        self.ends += 1
                        self.assert_left_cleanly()
                        self.start()
                except BaseException:
                    print("the last events:", *done[-3 * TOGETHER:], sep="\n  ")
                    raise
            self.leave_dialogs()
            if not self.program.alive():
                self.ends += 1
                self.assert_left_cleanly()
                self.start()

            # Nothing has kept the mouse: it can light up a button, which turns plain behind it.
            self.screen.move(*self.program.middle("picHelp"))
            self.screen.move(*self.program.middle("TV"))
            wait_for("plain buttons", lambda: self.heads == [
                self.program.part(name) for name in ("picExit", "picHelp")])
            self.read_somebody()
            self.screen.keys("alt+f", "x")
            self.ends += 1
            self.assert_left_cleanly()


if __name__ == "__main__":
    desktop.main()
