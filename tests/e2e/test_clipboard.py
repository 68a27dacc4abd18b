"""The report empties the clipboard, whoever put something there."""

import desktop
from desktop import Desktop, DesktopTest
from readings import MARIA
from waiting import wait_for


class Clipboard(DesktopTest):

    def test_the_report_empties_the_clipboard(self):
        with Desktop("clipboard") as screen:
            program = screen.orravane()
            program.proceed(MARIA)
            screen.park_mouse()

            def await_empty(after):
                wait_for(f"an empty clipboard after {after}", lambda: screen.clipboard() is None)

            # A lit button gets the next move, wherever it leads, so each move is waited for.
            def move_over(control):
                """Moves the mouse onto a button, which lights up, and off it to the tree."""
                plain = program.part(control)
                program.move_to(control)
                wait_for(f"{control} to light up", lambda: program.part(control) != plain)
                program.move_to("TV")
                wait_for(f"{control} to go dark", lambda: program.part(control) == plain)

            # A new report, without any move of the mouse. After Proceed the tree has the
            # focus, on the first topic.
            screen.copy_elsewhere("from another program")
            before = program.part("TV")
            screen.keys("Down")
            wait_for("the next topic to be selected", lambda: program.part("TV") != before)
            self.assertEqual(screen.clipboard(), "from another program")
            screen.keys("Return")
            await_empty("a new report")

            # The mouse over the report, and nowhere else in the window.
            screen.copy_elsewhere("from another program")
            for control in ("picExit", "picPrint", "picSave"):
                move_over(control)
            self.assertEqual(screen.clipboard(), "from another program")
            program.move_to("RTB")
            await_empty("a move")

            # A press alone, and a release alone, with the mouse at rest.
            for action in ("mousedown", "mouseup"):
                screen.copy_elsewhere(f"before {action}")
                screen.xdotool(action, 1)
                await_empty(action)

            # What is copied from the report by keyboard lasts until then.
            program.read_topic("Essence", MARIA)
            copied = screen.clipboard()
            self.assertTrue(copied)
            move_over("picExit")
            self.assertEqual(screen.clipboard(), copied)
            program.move_to("RTB")
            await_empty("a move")
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
