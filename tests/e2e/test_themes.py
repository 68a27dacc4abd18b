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

    def await_ground(self, screen, window, theme):
        """Waits until the colour that most of a window has is the desktop's."""

        def has_ground():
            picture = screen.screenshot(*screen.geometry(window))
            (ground, count), = picture.colours().most_common(1)
            return (len(picture.colours()) > 8 and count > picture.width * picture.height // 3 and
                    (brightness(ground) < 80 if theme == "dark" else brightness(ground) > 200))

        wait_for(f"a window on {theme} ground", has_ground)

    def keep(self, screen, name):
        picture = screen.screenshot()
        picture.save(screen.artefact(name + ".png"))
        return picture

    def pop_up(self, screen, known):
        """The list or menu that has come up beside the windows `known`."""
        return wait_for("another window",
                        lambda: [new for new in screen.program_windows() if new not in known])[0]

    def leave_dialog(self, screen, program):
        """Answers a dialog with Escape."""
        screen.keys("Escape")
        program.await_no_dialog()
        screen.await_keyboard(program.window)

    def check(self, scale, theme, expected=None):
        """Gives the pages as they come up; where they are `expected`, waits for that: the caret
        in them blinks."""
        size = (round(720 * scale) + 60, round(640 * scale) + 60)
        with Desktop(f"themes-{theme}-{scale}", size=size) as screen:
            program = self.start(screen, scale, theme)
            known = [program.window]
            screen.park_mouse()
            screen.await_keyboard(program.window)
            wait_for("the first box to have the focus",
                     lambda: program.part("txtFirstName").colours()[GOLD] > 100)

            def pages():
                return program.picture().crop(0, program.menu_height, program.width,
                                              program.height - program.menu_height)

            shown = pages()
            if expected is not None:
                wait_for("the same pages as on the other desktop", lambda: pages() == expected)

            program.click("cboMonth")
            entries = self.pop_up(screen, known)

            def marked():
                left, top, width, height = screen.geometry(entries)
                return screen.screenshot(left, top, width, height).colours()[GOLD] > width * 4

            wait_for("a marked entry", marked)
            self.keep(screen, "list")
            screen.keys("Escape")
            wait_for("the list to go", lambda: screen.program_windows() == known)

            screen.keys("alt+h")
            self.await_ground(screen, self.pop_up(screen, known), theme)
            self.keep(screen, "menu")
            screen.keys("Escape", "Escape")
            wait_for("the menu to go", lambda: screen.program_windows() == known)

            # Looked for by its title: beside a button that the mouse rests on, a tool tip can be
            # another window.
            for button, name in (("picProceed", "message"), ("picExit", "question")):
                program.click(button)
                dialog = screen.window("Orravane")
                screen.await_keyboard(dialog)
                self.await_ground(screen, dialog, theme)
                self.keep(screen, name)
                self.leave_dialog(screen, program)
            program.move_to("TV")
            wait_for("tool tips to go", lambda: screen.program_windows() == known)

            program.proceed(MARIA)
            program.click("RTB")
            screen.keys("ctrl+a")
            screen.xdotool("click", 3)
            self.await_ground(screen, self.pop_up(screen, known), theme)
            self.keep(screen, "context-menu")
            screen.keys("Escape")
            self.assert_quiet(screen)
            return shown

    def test_every_scale(self):
        for scale in SCALES:
            with self.subTest(scale=scale):
                # The pages are the same on both.
                self.check(scale, "dark", expected=self.check(scale, "light"))


if __name__ == "__main__":
    desktop.main()
