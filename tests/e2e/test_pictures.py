"""The pictures of README and user guide show the present windows, all but those of a document."""

import datetime
import os
import pathlib
import struct
import subprocess
import time

import desktop
from desktop import Desktop, DesktopTest
from picture import Picture
from readings import Person
from waiting import DEADLINE, wait_for

PICTURES = pathlib.Path(__file__).parents[2] / "docs" / "pictures"
MOVING_CLOCK = pathlib.Path(__file__).parents[1] / "faults" / "moving_clock.c"

# As docs/make-pictures.sh has them.
CLARA = Person("clara", "jane", "winter", "March", 29, 1985)
DAY = datetime.datetime(2026, 11, 21, 12)

# Of the pixels of a small square. A caret has fewer, another word more.
MOST_UNLIKE = 0.1


class Pictures(DesktopTest):

    @staticmethod
    def documented(name, width, height):
        """What a picture shows within the frame, which is one pixel wide below and beside."""
        done = subprocess.run(["convert", str(PICTURES / f"{name}.png"), "ppm:-"],
                              capture_output=True, check=True, timeout=DEADLINE)
        picture = Picture.from_ppm(done.stdout)
        return picture.crop(1, picture.height - 1 - height, width, height)

    @staticmethod
    def clock_of_the_pictures(screen):
        """Surroundings in which it is the day of the pictures."""
        library, offset = screen.folder / "moving_clock.so", screen.folder / "moving-clock"
        subprocess.run(["cc", "-shared", "-fPIC", "-o", library, MOVING_CLOCK], check=True)
        offset.write_bytes(struct.pack("@qq", round(DAY.timestamp() - time.time()), 0))
        return {"LD_PRELOAD": str(library), "MOVING_CLOCK": str(offset)}

    def assert_current(self, screen, window, name):
        geometry = screen.geometry(window)
        picture = self.documented(name, *geometry[2:])
        seen = None

        def is_current():
            nonlocal seen
            seen = screen.screenshot(*geometry)
            return seen.most_unlike_tile(picture)[0] < MOST_UNLIKE

        try:
            wait_for(f"the window to look as in {name}.png", is_current)
        except AssertionError as trouble:
            seen.save(screen.artefact(f"{name}.png"))
            share, place = seen.most_unlike_tile(picture)
            raise AssertionError(f"{trouble}: at {place} {share:.0%} of the pixels differ") from None

    def test_pictures_are_current(self):
        with Desktop("pictures") as screen:
            program = screen.orravane(self.clock_of_the_pictures(screen), scale=1.5)
            program.enter(CLARA)
            screen.park_mouse()
            self.assert_current(screen, program.window, "input")
            screen.keys("alt+p")
            program.await_report()
            screen.keys(*["Down"] * 6, "Return")
            self.assert_current(screen, program.window, "topic")
            screen.keys("End", "Up", "Return")
            self.assert_current(screen, program.window, "report")
            screen.keys("End", "Return")
            self.assert_current(screen, program.window, "help")
            self.assert_quiet(screen)

    def test_picture_of_the_window_for_documents_is_current(self):
        with Desktop("pictures-document") as screen:
            screen.spawn([os.environ["ORRAVANE_DOCUMENT"]], log="document",
                         env={"QT_SCALE_FACTOR": "1.5"})
            window = screen.window("Orravane Document")
            screen.await_keyboard(window)
            for text in ("Clara", "Jane", "Winter", "Mar", "29", "1985", "Nov", "21"):
                screen.type(text)
                screen.keys("Tab")
            screen.type("2026")
            screen.park_mouse()
            self.assert_current(screen, window, "document-window")
            self.assert_quiet(screen, "document")


if __name__ == "__main__":
    desktop.main()
