"""Saving through the real dialog."""

import desktop
from accessible import FILE_LISTS
from desktop import Desktop, DesktopTest
from program import COMPREHENSIVE, TOPICS
from readings import MARIA, today
from waiting import wait_for


class Save(DesktopTest):

    def setUp(self):
        self.day = today()

    def files(self, screen):
        return sorted(path.name for path in (screen.home / "Documents").iterdir())

    def assert_saved(self, screen, name, caption):
        file = screen.home / "Documents" / name
        wait_for(f"the file {name}", file.exists)
        saved = file.read_bytes()
        self.assert_rtf(saved, MARIA, caption, self.day)
        return saved

    def test_dialog(self):
        with Desktop("save", accessible=True) as screen:
            program = screen.orravane()
            program.proceed(MARIA)
            before = program.part("RTB")

            def dialog():
                return screen.accessibility.dialog(program.process, "Orravane")

            def name_box():
                return dialog().find("text", "File name:", skip=FILE_LISTS)

            # Cancel, by mouse: no file, no message, the same report.
            screen.await_painted(program.open_save_dialog())
            screen.screenshot().save(screen.artefact("save-dialog.png"))
            self.assertEqual(name_box().text(), "")
            screen.type("report")
            wait_for("the typed name", lambda: name_box().text() == "report")
            dialog().find("push button", "Cancel", skip=FILE_LISTS).click()
            program.await_no_dialog()
            self.assertEqual(self.files(screen), [])
            self.assertEqual(screen.program_windows(), [program.window])
            wait_for("the same report", lambda: program.part("RTB") == before)

            # The next dialog is empty again. A name without an ending gets ".txt", and the
            # content is rich text in every case.
            program.open_save_dialog()
            self.assertEqual(name_box().text(), "")
            screen.type("report")
            screen.keys("Return")
            program.await_no_dialog()
            first = self.assert_saved(screen, "report.txt", TOPICS[0])
            program.read_topic(COMPREHENSIVE, MARIA)
            program.save_as("two words.rtf")
            self.assert_saved(screen, "two words.rtf", COMPREHENSIVE)
            program.read_topic("Challenge Number", MARIA)
            program.save_as(str(screen.home / "Documents/third"))
            self.assert_saved(screen, "third.txt", "Challenge Number")
            files = ["report.txt", "third.txt", "two words.rtf"]
            self.assertEqual(self.files(screen), files)  # and nothing beside them

            # No to the question before a file is replaced leads back to the dialog.
            program.open_save_dialog()
            screen.type("report.txt")
            screen.keys("Return")
            wait_for("the question", lambda: len(screen.windows("Orravane")) == 2)
            (question,) = [window
                           for window in screen.accessibility.application(
                               program.process).children()
                           if window.role() == "alert message"]
            self.assertIn("report.txt already exists", question.find("label").name())
            for window in screen.windows("Orravane"):
                screen.await_painted(window)
            screen.screenshot().save(screen.artefact("replace-question.png"))
            question.find("push button", "No").click()
            wait_for("the question to go", lambda: len(screen.windows("Orravane")) == 1)
            screen.await_keyboard(screen.window("Orravane"))
            screen.keys("Escape")
            program.await_no_dialog()
            self.assertEqual((screen.home / "Documents/report.txt").read_bytes(), first)

            program.replace("report.txt")
            wait_for("the new content",
                     lambda: (screen.home / "Documents/report.txt").read_bytes() != first)
            self.assert_saved(screen, "report.txt", "Challenge Number")
            self.assertEqual(self.files(screen), files)
            self.assertEqual(screen.opened_pages(), [])
            self.assert_quiet(screen)

    def test_home_without_documents(self):
        with Desktop("save-no-documents", accessible=True) as screen:
            (screen.home / "Documents").rmdir()
            program = screen.orravane()
            program.proceed(MARIA)
            program.open_save_dialog()
            dialog = screen.accessibility.dialog(program.process, "Orravane")
            self.assertEqual(dialog.find("text", "File name:", skip=FILE_LISTS).text(), "")
            screen.type("report")
            screen.keys("Return")
            program.await_no_dialog()
            wait_for("the file", (screen.home / "report.txt").exists)
            self.assert_rtf((screen.home / "report.txt").read_bytes(), MARIA, TOPICS[0], self.day)
            # The toolkit's own notes of the dialog are taken back.
            self.assertFalse((screen.home / ".config/QtProject.conf").exists())
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
