"""Save with the desktop's own file dialog and with the toolkit's: nothing is replaced unasked, and
a name that cannot be written keeps the dialog open."""

import os
import pathlib
import shutil
import time

import desktop
from desktop import Desktop, DesktopTest
from program import Program, TOPICS
from readings import MARIA, OLD_FILE, today
from waiting import wait_for

NOBODY = 65534

# The desktop's dialog comes with the platform theme gtk3; its settings stay in memory.
DIALOGS = {
    "toolkit": {},
    "desktop": {"XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "memory"},
}


class SaveDialogs(DesktopTest):

    def setUp(self):
        self.day = today()

    def with_each_dialog(self, name, act, **options):
        for kind, env in DIALOGS.items():
            with self.subTest(kind), Desktop(f"{name}-{kind}", **options) as screen:
                self.documents = screen.home / "Documents"
                self.old = self.documents / "report.txt"
                self.old.write_bytes(OLD_FILE)
                if screen.user is not None:
                    os.chown(self.old, screen.user, screen.user)
                (screen.home / ".config/gtk-3.0").mkdir(parents=True)
                (screen.home / ".config/gtk-3.0/settings.ini").write_text(
                    "[Settings]\ngtk-cursor-blink=0\ngtk-enable-animations=0\n")
                # A copy of the program that an ordinary user may read.
                copy = shutil.copy(desktop.ORRAVANE, screen.bin / "orravane")
                program = Program(screen, screen.spawn([str(copy)], log="orravane", env=env))
                program.proceed(MARIA)
                maps = pathlib.Path(f"/proc/{program.process.pid}/maps").read_text()
                self.assertEqual("libqgtk3.so" in maps, kind == "desktop")
                act(screen, program)
                self.assert_quiet(screen)

    def as_an_ordinary_user(self):
        """For a desktop whose programs have no rights beyond those of the files."""
        return {"user": NOBODY if os.geteuid() == 0 else None}

    def files(self):
        return sorted(path.name for path in self.documents.iterdir())

    def enter(self, screen, name=""):
        """Types a name, if any, into the dialog that is open, and Enter."""
        if name:
            screen.type(name)
        # The desktop's dialog reads the folder while it is typed into, and passes over an Enter
        # that comes meanwhile.
        self.await_rest(screen)
        screen.keys("Return")

    def await_rest(self, screen):
        """Waits until nothing has moved on the screen for a while."""
        last = [None, 0.0]

        def at_rest():
            picture = screen.screenshot().rgb
            if picture != last[0]:
                last[:] = [picture, time.monotonic()]
            return time.monotonic() - last[1] > 0.4

        wait_for("the screen to come to rest", at_rest)

    def await_message(self, screen, dialog):
        """Waits for the message in front of the dialog; gives its window."""
        wait_for("a message in front of the dialog", lambda: len(screen.windows("Orravane")) == 2)
        (message,) = set(screen.windows("Orravane")) - {dialog}
        screen.await_keyboard(message)
        screen.await_painted(message)
        return message

    def await_dialog(self, screen, dialog):
        """Waits until the message has gone and the dialog has the keyboard again."""
        wait_for("the dialog alone", lambda: screen.windows("Orravane") == [dialog])
        screen.await_keyboard(dialog)

    def test_replace(self):
        def act(screen, program):
            dialog = program.open_save_dialog()
            # The name is typed without the ending that the file gets. Enter is No, and so is
            # Escape, and No leads back to the dialog, where the name still stands.
            self.enter(screen, "report")
            self.await_message(screen, dialog)
            screen.screenshot().save(screen.artefact("question.png"))
            screen.keys("Return")
            self.await_dialog(screen, dialog)
            self.assertEqual(self.old.read_bytes(), OLD_FILE)
            screen.screenshot().save(screen.artefact("again.png"))
            self.enter(screen)
            self.await_message(screen, dialog)
            screen.keys("Escape")
            self.await_dialog(screen, dialog)
            self.assertEqual(self.old.read_bytes(), OLD_FILE)
            self.assertEqual(self.files(), ["report.txt"])

            # One Yes is enough.
            self.enter(screen)
            self.await_message(screen, dialog)
            screen.keys("alt+y")
            program.await_no_dialog()
            wait_for("the new content", lambda: self.old.read_bytes() != OLD_FILE)
            self.assert_rtf(self.old.read_bytes(), MARIA, TOPICS[0], self.day)
            self.assertEqual(self.files(), ["report.txt"])

            # The ending decides: there is no such file yet, so there is no question.
            program.open_save_dialog()
            self.enter(screen, "report.rtf")
            program.await_no_dialog()
            wait_for("the file", (self.documents / "report.rtf").exists)
            self.assert_rtf((self.documents / "report.rtf").read_bytes(), MARIA, TOPICS[0],
                            self.day)
            program.read_topic("Personal Day", MARIA)
            self.assertEqual(screen.program_windows(), [program.window])

            # Cancel after a No is Cancel.
            before = self.old.read_bytes()
            dialog = program.open_save_dialog()
            self.enter(screen, "report.txt")
            self.await_message(screen, dialog)
            screen.keys("Return")
            self.await_dialog(screen, dialog)
            screen.keys("Escape")
            program.await_no_dialog()
            program.read_topic(TOPICS[0], MARIA)
            self.assertEqual(self.old.read_bytes(), before)
            self.assertEqual(self.files(), ["report.rtf", "report.txt"])

        self.with_each_dialog("replace", act)

    def test_read_only_file(self):
        def act(screen, program):
            self.old.chmod(0o444)
            dialog = program.open_save_dialog()
            self.enter(screen, "report")
            self.await_message(screen, dialog)
            screen.screenshot().save(screen.artefact("message.png"))
            screen.keys("alt+y")  # it is no question, so there is nothing to say yes to
            self.await_message(screen, dialog)
            screen.keys("Return")
            self.await_dialog(screen, dialog)
            self.assertEqual(self.old.read_bytes(), OLD_FILE)

            # Another name, and all is well.
            screen.keys("ctrl+a")
            self.enter(screen, "other")
            program.await_no_dialog()
            wait_for("the file", (self.documents / "other.txt").exists)
            self.assert_rtf((self.documents / "other.txt").read_bytes(), MARIA, TOPICS[0],
                            self.day)
            self.assertEqual(self.old.read_bytes(), OLD_FILE)
            self.assertEqual(self.files(), ["other.txt", "report.txt"])

        self.with_each_dialog("read-only-file", act, **self.as_an_ordinary_user())

    def test_read_only_folder(self):
        def act(screen, program):
            self.documents.chmod(0o555)
            dialog = program.open_save_dialog()
            for name in ("report", "new"):  # one that is there and one that is not
                screen.keys("ctrl+a")
                self.enter(screen, name)
                self.await_message(screen, dialog)
                screen.screenshot().save(screen.artefact(f"message-{name}.png"))
                screen.keys("Return")
                self.await_dialog(screen, dialog)
            screen.keys("Escape")
            program.await_no_dialog()
            program.read_topic("Personal Day", MARIA)
            self.assertEqual(screen.program_windows(), [program.window])
            self.assertEqual(self.old.read_bytes(), OLD_FILE)
            self.assertEqual(self.files(), ["report.txt"])

        self.with_each_dialog("read-only-folder", act, **self.as_an_ordinary_user())


if __name__ == "__main__":
    desktop.main()
