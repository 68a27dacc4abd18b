"""The report empties the clipboard, whoever put something there."""

import desktop
from desktop import Desktop, DesktopTest
from readings import MARIA
from waiting import wait_for


class Clipboard(DesktopTest):

    def test_mouse_over_the_report_empties_it(self):
        with Desktop("clipboard-mouse") as screen:
            program = screen.orravane()
            program.proceed(MARIA)
            program.move_to("TV")
            screen.copy_elsewhere("from another program")

            # The mouse elsewhere in the window does no harm.
            plain = program.part("picSave")
            for control in ("picExit", "TV", "picPrint", "TV", "picSave"):
                program.move_to(control)
            wait_for("the Save button to light up", lambda: program.part("picSave") != plain)
            self.assertEqual(screen.clipboard(), "from another program")

            program.move_to("TV")  # else this button would get the next move
            program.move_to("RTB")
            wait_for("an empty clipboard", lambda: screen.clipboard() is None)

            # A press alone, and a release alone, with the mouse at rest.
            for action in ("mousedown", "mouseup"):
                screen.copy_elsewhere(f"before {action}")
                screen.xdotool(action, 1)
                wait_for(f"an empty clipboard after {action}",
                         lambda: screen.clipboard() is None)
            self.assert_quiet(screen)

    def test_new_report_empties_it(self):
        with Desktop("clipboard-report") as screen:
            program = screen.orravane()
            program.proceed(MARIA)
            screen.park_mouse()
            screen.copy_elsewhere("from another program")
            # After Proceed the tree has the focus, on the first topic.
            before = program.part("TV")
            screen.keys("Down")
            wait_for("the next topic to be selected", lambda: program.part("TV") != before)
            self.assertEqual(screen.clipboard(), "from another program")
            screen.keys("Return")
            wait_for("an empty clipboard", lambda: screen.clipboard() is None)
            self.assert_quiet(screen)

    def test_copy_by_keyboard_lasts_until_the_mouse_moves(self):
        with Desktop("clipboard-copy") as screen:
            program = screen.orravane()
            program.proceed(MARIA)
            program.read_topic("Essence", MARIA)
            copied = screen.clipboard()
            self.assertTrue(copied)
            plain = program.part("picExit")
            program.move_to("picExit")
            wait_for("the Exit button to light up", lambda: program.part("picExit") != plain)
            self.assertEqual(screen.clipboard(), copied)
            program.move_to("TV")
            program.move_to("RTB")
            wait_for("an empty clipboard", lambda: screen.clipboard() is None)
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
