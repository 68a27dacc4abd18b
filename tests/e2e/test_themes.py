"""Lists, menus and messages at the sizes that displays are set to, on a light and on a dark
desktop: pictures to look at, and what a look would find at once."""

import desktop
from desktop import Desktop, DesktopTest
from program import GOLD
from readings import MARIA
from waiting import wait_for

SCALES = (1, 1.25, 1.5, 1.75, 2, 2.5)
THEMES = {"light": "Adwaita", "dark": "Adwaita:dark"}


def brightness(colour):
    return sum(colour) / 3


class Themes(DesktopTest):

    def start(self, screen, scale, theme):
        return screen.orravane(scale=scale, env={
            "QT_QPA_PLATFORMTHEME": "gtk3", "XDG_CURRENT_DESKTOP": "GNOME",
            "GTK_THEME": THEMES[theme]})

    def assert_ground(self, picture, theme):
        """The colour that most of a picture has is the desktop's."""
        (ground, count), = picture.colours().most_common(1)
        self.assertGreater(count, picture.width * picture.height // 3)
        if theme == "dark":
            self.assertLess(brightness(ground), 80)
        else:
            self.assertGreater(brightness(ground), 200)

    def keep(self, screen, name):
        picture = screen.screenshot()
        picture.save(screen.artefact(name + ".png"))
        return picture

    def new_window(self, screen, known):
        """The window that has come up beside `known`, painted; what it shows."""
        window = wait_for("another window",
                          lambda: [new for new in screen.program_windows() if new not in known])[0]

        def painted():
            picture = screen.screenshot(*screen.geometry(window))
            return picture if len(picture.colours()) > 8 else None

        return wait_for("it to be painted", painted)

    def check(self, scale, theme):
        size = (round(720 * scale) + 60, round(640 * scale) + 60)
        with Desktop(f"themes-{theme}-{scale}", size=size) as screen:
            program = self.start(screen, scale, theme)
            known = screen.program_windows()
            screen.park_mouse()
            pages = program.picture().crop(0, program.menu_height, program.width,
                                           program.height - program.menu_height)

            program.click("cboMonth")
            entries = self.new_window(screen, known)
            self.assertGreater(entries.colours()[GOLD], entries.width * 4)  # the marked one
            self.keep(screen, "list")
            screen.keys("Escape")
            wait_for("the list to go", lambda: screen.program_windows() == known)

            screen.keys("alt+h")
            self.assert_ground(self.new_window(screen, known), theme)
            self.keep(screen, "menu")
            screen.keys("Escape", "Escape")
            wait_for("the menu to go", lambda: screen.program_windows() == known)

            program.click("picProceed")
            self.assert_ground(self.new_window(screen, known), theme)
            self.keep(screen, "message")
            screen.keys("Escape")
            wait_for("the message to go", lambda: screen.program_windows() == known)

            program.click("picExit")
            self.assert_ground(self.new_window(screen, known), theme)
            self.keep(screen, "question")
            screen.keys("Escape")
            wait_for("the question to go", lambda: screen.program_windows() == known)

            program.proceed(MARIA)
            program.click("RTB")
            screen.keys("ctrl+a")
            screen.xdotool("click", 3)
            self.assert_ground(self.new_window(screen, known), theme)
            self.keep(screen, "context-menu")
            screen.keys("Escape")
            self.assert_quiet(screen)
            return pages

    def test_every_scale(self):
        for scale in SCALES:
            with self.subTest(scale=scale):
                # The pages are the same on both.
                self.assertEqual(self.check(scale, "light"), self.check(scale, "dark"))


if __name__ == "__main__":
    desktop.main()
