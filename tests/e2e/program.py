"""The running program, and what a user does with it by mouse and keyboard."""

import csv
import math
import pathlib
import time
import unittest

from readings import expected_runs, plain_text, today
from waiting import wait_for

TWIPS_TO_PIXEL = 15
TABLES = pathlib.Path(__file__).parents[1] / "shell"  # shared with the tests of the window


def _table(name):
    with open(TABLES / name, encoding="utf-8", newline="") as lines:
        return list(csv.DictReader(lines))


def _places():
    """Where the controls stand: left, top, right, bottom in logical pixels, from the client
    area."""
    places = {"": (0, 0, 0, 0)}
    for row in _table("places.csv"):
        left, top = places[row["container"]][:2]
        x, y, width, height = (math.floor(int(row[name]) / TWIPS_TO_PIXEL + 0.5)
                               for name in ("left", "top", "width", "height"))
        places[row["name"]] = (left + x, top + y, left + x + width, top + y + height)
    return places


PIXELS = _places()
CLIENT = (626, 440)  # 9390 by 6600 twips

TOPICS = [row["caption"] for row in _table("topics.csv")]
COMPREHENSIVE = "Comprehensive Reading"

# The rows of the tree once a report is open: the user branch is closed, the other open.
ROWS = ["User Information", "Numerology", *TOPICS, COMPREHENSIVE, "Help"]
DOUBLE_CLICK = 0.45  # seconds; the display's interval is 0.4

ROW_HEIGHT = 20  # logical pixels
TREE_PADDING = 4

PAGE_COLOUR = (89, 73, 110)
GOLD = (255, 199, 6)
TOPIC_INK = (128, 0, 128)


def frame_extents(desktop, window):
    """How far the frame reaches beyond a window: left, right, top, bottom; None when it has
    none yet."""
    text = desktop.run("xprop", "-id", str(window), "_NET_FRAME_EXTENTS", check=False).decode()
    return [int(number) for number in text.split("=")[1].split(",")] if "=" in text else None


class Program:
    """The running program and its window."""

    def __init__(self, desktop, process, scale=1):
        self.desktop, self.process, self.scale, self.moves = desktop, process, scale, 0
        self.pressed = 0.0  # when the mouse was pressed last
        self.window = wait_for("the program's window", self._mapped_window)
        self.await_centred()
        self.left, self.top, self.width, self.height = desktop.geometry(self.window)
        self.menu_height = self.height - round(CLIENT[1] * scale)
        wait_for("the window to be painted", lambda: self.part("Picture1").colours()[PAGE_COLOUR] > 100)

    def _mapped_window(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}: "
                                 f"{self.desktop.log('orravane')}")
        for window in self.desktop.windows("Orravane v1.0"):
            owner = self.desktop.run("xdotool", "getwindowpid", str(window), check=False)
            framed = self.desktop.run("xprop", "-id", str(window), "_NET_FRAME_EXTENTS",
                                      check=False)
            if owner.strip() == str(self.process.pid).encode() and b"=" in framed:
                return window
        return None

    def alive(self):
        return self.process.poll() is None

    def await_end(self):
        """Waits for the program's end and gives its exit code."""
        wait_for("the program's end", lambda: self.process.poll() is not None)
        return self.process.returncode

    def close(self):
        """Closes the window from the keyboard and gives the program's exit code. A window manager
        that is still busy with the window's focus can let a key go by, so it is pressed again."""
        pressed = 0.0

        def ended():
            nonlocal pressed
            if self.process.poll() is not None:
                return True
            if time.monotonic() - pressed > 5:
                pressed = time.monotonic()
                self.desktop.keys("alt+F4")
            return False

        self.desktop.await_keyboard(self.window)
        wait_for("the window to close", ended)
        return self.process.returncode

    # Places

    def await_centred(self):
        """Waits until the window stands with its frame in the middle of the screen, where it
        moves to as soon as it has one."""
        slack = math.ceil(self.scale)

        def centred():
            left, top, width, height = self.frame()
            return (abs(left + width / 2 - self.desktop.start_size[0] / 2) <= slack and
                    abs(top + height / 2 - self.desktop.start_size[1] / 2) <= slack)

        try:
            wait_for("the window to be centred", centred)
        except AssertionError:
            raise AssertionError(f"the window with its frame is at {self.frame()} on a screen "
                                 f"of {self.desktop.start_size}") from None

    def frame(self):
        """The place of the window with its frame on the screen: left, top, width, height."""
        left, right, top, bottom = frame_extents(self.desktop, self.window)
        x, y, width, height = self.desktop.geometry(self.window)
        return x - left, y - top, width + left + right, height + top + bottom

    def box(self, control):
        """The place of a control on the screen: left, top, width, height."""
        left, top, right, bottom = PIXELS[control]
        # The menu bar has whole logical pixels; the corners are rounded, and not the size.
        menu = round(self.menu_height / self.scale)
        left, top, right, bottom = (math.floor(pixels * self.scale + 0.5)
                                    for pixels in (left, top + menu, right, bottom + menu))
        return self.left + left, self.top + top, right - left, bottom - top

    def box_around(self, control, margin):
        """The same with so many logical pixels around it, or taken off where negative."""
        left, top, width, height = self.box(control)
        margin = round(margin * self.scale)
        return left - margin, top - margin, width + 2 * margin, height + 2 * margin

    def middle(self, control):
        left, top, width, height = self.box(control)
        return left + width // 2, top + height // 2

    def picture(self):
        """The window's inside, as the screen shows it."""
        return self.desktop.screenshot(self.left, self.top, self.width, self.height)

    def part(self, control):
        """A control, as the screen shows it."""
        return self.desktop.screenshot(*self.box(control))

    def keep(self, name):
        picture = self.picture()
        picture.save(self.desktop.artefact(name + ".png"))
        return picture

    # What a user does

    def move_to(self, control):
        """Moves the mouse onto a control, each time onto another point, as a hand does: the
        program is not told of a move to the place where it saw the mouse last."""
        left, top, width, height = self.box(control)
        self.moves = (self.moves + 1) % 5
        # Low enough for a tool tip to come up below the control.
        self.desktop.move(left + width // 2 + self.moves, top + height * 3 // 4)

    def click(self, control):
        self.move_to(control)
        self.click_here(may_double=not control.startswith("pic"))

    def click_here(self, may_double=False):
        """Clicks where the mouse is. No hand clicks two buttons within the time of a double
        click, and where the first click turned the page, the second one would be taken for
        half of one; so this waits, unless `may_double`."""
        if not may_double:
            time.sleep(max(0.0, self.pressed + DOUBLE_CLICK - time.monotonic()))
        self.desktop.xdotool("click", 1)
        self.pressed = time.monotonic()

    def click_row(self, caption):
        """Clicks a node of the tree by mouse, once a report is open."""
        left, top, width, height = self.box("TV")
        row, row_height = ROWS.index(caption), ROW_HEIGHT * self.scale
        shown = int((height - 2 * TREE_PADDING * self.scale) // row_height)
        first, wheel = (0, 4) if row < shown else (len(ROWS) - shown, 5)
        x, y = left + width // 2, top + TREE_PADDING * self.scale + (row - first + 0.5) * row_height
        self.desktop.xdotool("mousemove", x, round(y), "click", "--repeat", 12, "--delay", 1,
                             wheel, "click", 1)
        self.pressed = time.monotonic()

    def enter(self, person):
        """Types the name; picks the date by keyboard."""
        for control, text in (("txtFirstName", person.first), ("txtMiddleName", person.middle),
                              ("txtLastName", person.last)):
            self.click(control)
            # A window manager that is busy holds back a click, but no keys.
            wait_for(f"the focus in {control}", lambda: self.part(control).colours()[GOLD] > 100)
            if text:
                # A dialog before may have had the keyboard until now.
                self.desktop.await_keyboard(self.window)
                self.desktop.type(text)
        # A list takes the entry whose beginning is typed.
        for text in (person.month, str(person.day), str(person.year)):
            self.desktop.keys("Tab")
            self.desktop.type(text)

    def proceed(self, person):
        """Enters a person and proceeds, by mouse; waits for the report."""
        self.enter(person)
        self.click("picProceed")
        self.await_report()

    def await_report(self):
        wait_for("the report page", lambda: self.part("RTB").colours()[TOPIC_INK] > 50)

    def open_save_dialog(self):
        self.click("picSave")
        dialog = self.desktop.window("Orravane")
        self.desktop.await_keyboard(dialog)
        return dialog

    def save_as(self, name):
        """Saves under `name`, typed into the save dialog; waits until the dialog is gone."""
        self.open_save_dialog()
        self.desktop.type(name)
        self.desktop.keys("Return")
        self.await_no_dialog()

    def replace(self, name):
        """Saves under the name of a file that is there and answers the question with Yes."""
        dialog = self.open_save_dialog()
        self.desktop.type(name)
        self.desktop.keys("Return")
        wait_for("the question before a file is replaced",
                 lambda: len(self.desktop.windows("Orravane")) == 2)
        (question,) = set(self.desktop.windows("Orravane")) - {dialog}
        self.desktop.await_keyboard(question)
        self.desktop.keys("alt+y")
        self.await_no_dialog()

    def await_no_dialog(self):
        # Where the keyboard is now is the window manager's affair; the next click settles it.
        wait_for("the dialog to go", lambda: not self.desktop.windows("Orravane"))

    def copy_report(self):
        """Selects and copies the report by keyboard; the mouse stays over the tree."""
        self.desktop.await_keyboard(self.window)
        # From the tree, which the click has given the focus, back over Save and Print.
        self.desktop.keys("shift+Tab", "shift+Tab", "shift+Tab", "ctrl+a", "ctrl+c")

    def read_topic(self, caption, person):
        """Clicks a topic, checks that the report reads as the tool's, and gives its runs."""
        while True:
            day = today()
            runs = expected_runs(person, caption, day)
            self.click_row(caption)
            self.copy_report()
            try:
                self.await_clipboard(plain_text(runs))
                return runs
            except AssertionError:
                if today() == day:  # else a midnight came between: read it again
                    raise

    def await_clipboard(self, text):
        """Waits until the clipboard holds `text`; tells the difference where it does not."""
        try:
            wait_for("the report on the clipboard", lambda: self.desktop.clipboard() == text)
        except AssertionError:
            test = unittest.TestCase()
            test.maxDiff = None
            test.assertEqual(self.desktop.clipboard(), text)
