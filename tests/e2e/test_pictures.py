"""The pictures of README and user guide show the present window."""

import os
import pathlib
import subprocess

import desktop
from desktop import Desktop, DesktopTest
from picture import Picture
from readings import Person
from waiting import DEADLINE, wait_for

PICTURES = pathlib.Path(__file__).parents[2] / "docs" / "pictures"
CLARA = Person("clara", "jane", "winter", "March", 29, 1985)  # as docs/make-pictures.sh enters her


class Pictures(DesktopTest):

    @staticmethod
    def documented(name, width, height):
        """What a picture shows within the frame, which is one pixel wide below and beside."""
        done = subprocess.run(["convert", str(PICTURES / f"{name}.png"), "ppm:-"],
                              capture_output=True, check=True, timeout=DEADLINE)
        picture = Picture.from_ppm(done.stdout)
        return picture.crop(1, picture.height - 1 - height, width, height)

    @staticmethod
    def unlike(one, other):
        """The share of pixels that differ by more than a shade."""
        return sum(max(abs(a - b) for a, b in zip(left, right)) > 40
                   for left, right in zip(zip(*[iter(one.rgb)] * 3), zip(*[iter(other.rgb)] * 3))
                   ) / (one.width * one.height)

    def assert_current(self, screen, window, name):
        geometry = screen.geometry(window)
        picture = self.documented(name, *geometry[2:])
        try:
            wait_for(f"the window to look as in {name}.png",
                     lambda: self.unlike(screen.screenshot(*geometry), picture) < 0.002, 20)
        except AssertionError:
            screen.screenshot(*geometry).save(screen.artefact(f"{name}.png"))
            raise

    def test_pictures_are_current(self):
        with Desktop("pictures") as screen:
            program = screen.orravane(scale=1.5)  # as in the pictures
            program.enter(CLARA)
            screen.park_mouse()
            self.assert_current(screen, program.window, "input")
            screen.keys("alt+p")
            program.await_report()
            # The report begins with the month of today; the other pages know no date.
            screen.keys(*["Down"] * 6, "Return")
            self.assert_current(screen, program.window, "topic")
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
