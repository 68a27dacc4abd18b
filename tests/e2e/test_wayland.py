"""The program on a Wayland desktop, where no client may place windows or take the mouse."""

import desktop
from desktop import Desktop, DesktopTest, THANK_YOU_PAGE
from picture import Picture
from program import PAGE_COLOUR, TOPIC_INK
from readings import (MARIA, Person, REPORT_TOOL, days_since, expected_rtf, expected_runs,
                      plain_text, today)
from waiting import wait_for


class Wayland(DesktopTest):

    def start_compositor(self, screen):
        socket = screen.folder / "runtime" / "wayland-of-the-test"
        screen.spawn(["weston", "--backend=headless-backend.so", "--use-pixman", "--no-config",
                      "--width=1024", "--height=768", "--idle-time=0", "--debug",
                      f"--socket={socket.name}"], log="weston")
        wait_for("the compositor", socket.exists)
        screen.env |= {"WAYLAND_DISPLAY": socket.name, "XDG_SESSION_TYPE": "wayland"}

    def picture(self, screen):
        """What the compositor shows."""
        for old in screen.folder.glob("wayland-screenshot-*.png"):
            old.unlink()
        screen.run("weston-screenshooter")
        (picture,) = screen.folder.glob("wayland-screenshot-*.png")
        return Picture.from_ppm(screen.run("convert", str(picture), "-depth", "8", "ppm:-"))

    def await_colour(self, screen, colour, count):
        def shown():
            picture = self.picture(screen)
            return picture if picture.colours()[colour] > count else None

        return wait_for(f"{count} points of {colour}", shown)

    def test_runs_and_paints(self):
        with Desktop("wayland", accessible=True, display=False) as screen:
            self.start_compositor(screen)
            day = today()
            process = screen.start()
            # Both pages of the tree and the input are in that colour.
            self.await_colour(screen, PAGE_COLOUR, 100000).save(screen.artefact("input.png"))

            # No mouse here; what a press does is asked for directly.
            window = screen.accessibility.application(process).find("frame", "Orravane v1.0")
            for name, text in (("First Name, required", MARIA.first),
                               ("Middle Name", MARIA.middle),
                               ("Last Name, required", MARIA.last)):
                window.find("text", name).set_text(text)
            for button in window.find_all("push button"):
                if button.name() == "Proceed" and button.parent().role() == "filler":
                    button.press()
                    break
            person = Person(MARIA.first, MARIA.middle, MARIA.last, "January", 1, 1900)
            report = window.find("text", "Report")
            wait_for("the report",
                     lambda: report.text() in [
                         plain_text(expected_runs(person, "Personal Month", possible))
                         for possible in days_since(day)])
            self.await_colour(screen, TOPIC_INK, 100).save(screen.artefact("report.png"))

            self.assertEqual(process.poll(), None)
            window.find("menu item", "Exit").press()
            wait_for("the program's end", lambda: process.poll() is not None)
            self.assertEqual(process.returncode, 0)
            screen.await_pages([THANK_YOU_PAGE])
            # This compositor has no keyboard and no mouse, and so no clipboard.
            self.assertEqual(screen.log("orravane").replace(
                "qt.qpa.wayland: Can't set clipboard contents with no wl_seats available\n", ""),
                "")

    def test_report_tool_needs_no_desktop(self):
        with Desktop("no-desktop", display=False) as screen:
            screen.env |= {"WAYLAND_DISPLAY": "none", "DISPLAY": ":none",
                           "XDG_SESSION_TYPE": "wayland", "QT_QPA_PLATFORM": "none"}
            self.assertEqual(screen.run(REPORT_TOOL, *MARIA.options(), "--today",
                                        "2024-02-29", "--format", "rtf", "--topic", "Essence"),
                             expected_rtf(MARIA, "Essence", "2024-02-29"))


if __name__ == "__main__":
    desktop.main()
