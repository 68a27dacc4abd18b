"""The image buttons under a real pointer."""

import desktop
from accessible import FILE_LISTS
from desktop import Desktop, DesktopTest, HELP_PAGE
from program import TOPIC_INK
from readings import MARIA
from waiting import wait_for


class ImageButtons(DesktopTest):

    def await_form(self, program, button, form, what):
        try:
            wait_for(f"{button} {what}", lambda: program.part(button) == form)
        except AssertionError:
            program.keep(f"{button}-{what.replace(' ', '-')}")
            raise

    def forms(self, program, button):
        """The plain and the hover form of a button, looked at once each."""
        plain = program.part(button)
        program.move_to(button)
        hover = wait_for(f"{button} to light up", lambda: self.other(program, button, plain))
        program.desktop.park_mouse()
        self.await_form(program, button, plain, "plain again")
        return plain, hover

    @staticmethod
    def other(program, button, than):
        """What a button shows when that is complete and is not `than`."""
        picture = program.part(button)
        return None if picture == than or picture != program.part(button) else picture

    def assert_hover_forms(self, program, buttons):
        forms = {}
        for button in buttons:
            with self.subTest(button):
                plain, hover = forms[button] = self.forms(program, button)
                plain.save(program.desktop.artefact(f"{button}.png"))
                hover.save(program.desktop.artefact(f"{button}-hyper.png"))
                # Clearly brighter, on the whole and in its brightest part.
                self.assertGreater(hover.brightness(), plain.brightness() + 15)
                changed = sum(one != other for one, other in
                              zip(zip(*[iter(plain.rgb)] * 3), zip(*[iter(hover.rgb)] * 3)))
                self.assertGreater(changed, plain.width * plain.height // 4)
        return forms

    def test_hover(self):
        with Desktop("buttons") as screen:
            program = screen.orravane()
            self.assert_hover_forms(program, ("picExit", "picHelp", "picProceed"))
            program.proceed(MARIA)
            screen.park_mouse()
            forms = self.assert_hover_forms(program, ("picPrint", "picSave", "picExit"))

            # From one directly onto another: the first turns plain on the move that leaves
            # it, the other lights up on its own next move.
            program.move_to("picPrint")
            self.await_form(program, "picPrint", forms["picPrint"][1], "lit")
            x, y = program.middle("picSave")
            screen.move(x, y)
            self.await_form(program, "picPrint", forms["picPrint"][0], "plain")
            screen.move(x + 1, y)
            self.await_form(program, "picSave", forms["picSave"][1], "lit")
            x, y = program.middle("picPrint")
            screen.move(x, y)
            self.await_form(program, "picSave", forms["picSave"][0], "plain")
            screen.move(x + 1, y)
            self.await_form(program, "picPrint", forms["picPrint"][1], "lit")

            # Off the window entirely, with the mouse captured.
            screen.move(5, 5)
            self.await_form(program, "picPrint", forms["picPrint"][0], "plain")
            self.assert_quiet(screen)

    def test_far_edge_is_inside(self):
        with Desktop("buttons-edge") as screen:
            program = screen.orravane()
            screen.park_mouse()
            plain, hover = self.forms(program, "picHelp")
            left, top, width, height = program.box("picHelp")
            for x, y in ((left + width, top + height // 2), (left + width // 2, top + height)):
                program.move_to("picHelp")
                self.await_form(program, "picHelp", hover, "lit")
                # On the far edge, one pixel behind the last that the button paints. The key
                # that follows shows that the program has seen the move.
                screen.move(x, y)
                before = program.part("txtFirstName")
                screen.type("x")
                wait_for("the typed letter", lambda: self.other(program, "txtFirstName", before))
                self.assertEqual(program.part("picHelp"), hover)
                screen.move(x + (x == left + width), y + (y == top + height))
                self.await_form(program, "picHelp", plain, "plain")
            self.assert_quiet(screen)

    def test_click_gives_the_mouse_to_what_it_opens(self):
        with Desktop("buttons-click", accessible=True) as screen:
            program = screen.orravane()
            screen.park_mouse()
            forms = {button: self.forms(program, button) for button in ("picExit", "picHelp")}

            program.move_to("picExit")
            self.await_form(program, "picExit", forms["picExit"][1], "lit")
            program.click_here()
            question = screen.accessibility.dialog(program.process, "Orravane")
            screen.await_painted(screen.window("Orravane"))
            question.find("push button", "No").click()
            wait_for("the question to go", lambda: not screen.windows("Orravane"))
            self.assertTrue(program.alive())

            # The mouse is free: it leaves no button lit and reaches the other controls.
            program.move_to("TV")
            self.await_form(program, "picExit", forms["picExit"][0], "plain")
            program.click("picHelp")
            screen.await_pages([HELP_PAGE])
            program.move_to("TV")
            self.await_form(program, "picHelp", forms["picHelp"][0], "plain")

            program.proceed(MARIA)
            screen.park_mouse()
            plain, hover = self.forms(program, "picSave")
            program.move_to("picSave")
            self.await_form(program, "picSave", hover, "lit")
            program.click_here()
            dialog = screen.accessibility.dialog(program.process, "Orravane")
            screen.await_painted(screen.window("Orravane"))
            dialog.find("push button", "Cancel", skip=FILE_LISTS).click()
            wait_for("the save dialog to go", lambda: not screen.windows("Orravane"))
            program.move_to("TV")
            self.await_form(program, "picSave", plain, "plain")
            program.read_topic("Personal Year", MARIA)
            self.assert_quiet(screen)

    def test_page_change_by_keyboard_frees_the_mouse(self):
        with Desktop("buttons-keyboard") as screen:
            program = screen.orravane()
            program.enter(MARIA)
            screen.park_mouse()
            _, proceed_lit = self.forms(program, "picProceed")
            program.move_to("picProceed")
            self.await_form(program, "picProceed", proceed_lit, "lit")

            # Proceed and Save stand at the same place of their pages. The mouse rests there
            # while the page changes, and belongs to the button that is seen.
            screen.keys("alt+p")
            program.await_report()
            plain = program.part("picSave")
            program.move_to("picSave")
            wait_for("Save to light up", lambda: self.other(program, "picSave", plain))
            program.click_here()
            screen.await_keyboard(screen.window("Orravane"))
            screen.keys("Escape")
            program.await_no_dialog()

            program.move_to("picSave")
            wait_for("Save to light up", lambda: self.other(program, "picSave", plain))
            screen.await_keyboard(program.window)
            screen.keys("Home", "Right", "Down", "Return")  # in the tree, where the focus is
            wait_for("the input page", lambda: program.part("picSave") != plain and
                     not program.part("RTB").colours()[TOPIC_INK])
            program.move_to("picProceed")
            self.await_form(program, "picProceed", proceed_lit, "lit")
            program.click_here()
            program.await_report()
            self.assertEqual(screen.windows("Orravane"), [])
            self.assert_quiet(screen)

    def test_double_click_on_proceed_stops_at_the_report(self):
        with Desktop("image-buttons-double-click") as screen:
            program = screen.orravane()
            program.enter(MARIA)
            program.move_to("picProceed")
            screen.xdotool("click", "--repeat", 2, "--delay", 80, 1)
            program.await_report()
            # With the save dialog up, a click on another topic would do nothing.
            report = program.part("RTB")
            program.click_row("Essence")
            wait_for("the other topic", lambda: program.part("RTB") != report)
            self.assertEqual(screen.windows("Orravane"), [])
            # A click by itself opens it.
            program.click("picSave")
            screen.window("Orravane")
            self.assert_quiet(screen)

    def test_release_outside_is_no_click(self):
        with Desktop("buttons-release") as screen:
            program = screen.orravane()
            program.move_to("picHelp")
            screen.xdotool("mousedown", 1)
            program.move_to("TV")
            screen.xdotool("mouseup", 1)
            program.click("lblHyperlink")  # this one does open its page, and it alone
            screen.await_pages([desktop.HOME_PAGE])
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
