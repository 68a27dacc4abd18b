"""A saved file that is replaced stays whole, whatever stands in the way of its successor."""

import os
import resource
import shutil
import signal

import desktop
from desktop import Desktop, DesktopTest
from program import COMPREHENSIVE, Program, TOPICS
from readings import MARIA
from waiting import wait_for

OLD = b"{\\rtf1 the reading of another day\\par\r\n}\r\n" * 10
NOBODY = 65534


class ReplacedFile(DesktopTest):

    def prepare(self, screen):
        """Puts an old file under the name report.txt."""
        self.documents = screen.home / "Documents"
        self.old = self.documents / "report.txt"
        self.old.write_bytes(OLD)
        if screen.user is not None:
            os.chown(self.old, screen.user, screen.user)

    def files(self):
        return sorted(path.name for path in self.documents.iterdir())

    def assert_goes_on(self, program):
        """No message has come up, and the program answers."""
        screen = program.desktop
        program.read_topic(TOPICS[0], MARIA)
        self.assertEqual(screen.program_windows(), [program.window])
        self.assertTrue(program.alive())

    def test_killed_in_the_middle_of_the_write(self):
        with Desktop("killed") as screen:
            self.prepare(screen)
            program = screen.orravane()
            program.proceed(MARIA)
            program.read_topic(COMPREHENSIVE, MARIA)
            # Here the limit's signal ends the program in the middle of writing.
            resource.prlimit(program.process.pid, resource.RLIMIT_CORE, (0, 0))
            resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE,
                             (8192, resource.RLIM_INFINITY))
            program.open_save_dialog()
            screen.type("report.txt")
            screen.keys("Return")
            wait_for("the question", lambda: len(screen.windows("Orravane")) == 2)
            screen.await_painted(max(screen.windows("Orravane")))
            screen.keys("alt+y")
            self.assertEqual(program.await_end(), -signal.SIGXFSZ)
            self.assertEqual(self.old.read_bytes(), OLD)

    def as_an_ordinary_user(self, name):
        """A desktop whose programs have no rights beyond those of the files."""
        return Desktop(name, user=NOBODY if os.geteuid() == 0 else None)

    def start(self, screen):
        """Starts a copy of the program that an ordinary user may read."""
        copy = shutil.copy(desktop.ORRAVANE, screen.bin / "orravane")
        return Program(screen, screen.spawn([str(copy)], log="orravane"))

    def test_read_only_file_and_folder(self):
        for name, file_mode, folder_mode in (("file", 0o444, 0o755), ("folder", 0o644, 0o555)):
            with (self.subTest(name),
                  self.as_an_ordinary_user(f"read-only-{name}") as screen):
                self.prepare(screen)
                self.old.chmod(file_mode)
                self.documents.chmod(folder_mode)
                program = self.start(screen)
                program.proceed(MARIA)
                program.replace("report.txt")
                self.assert_goes_on(program)
                if name == "folder":
                    program.save_as("new")
                    self.assert_goes_on(program)
                self.assertEqual(self.old.read_bytes(), OLD)
                self.assertEqual(self.files(), ["report.txt"])
                self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
