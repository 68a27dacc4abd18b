"""A saved file that is replaced stays whole, whatever stands in the way of its successor."""

import os
import resource
import shutil
import signal

import desktop
from desktop import Desktop, DesktopTest
from program import COMPREHENSIVE, Program, TOPICS
from readings import MARIA, today
from waiting import wait_for

OLD = b"{\\rtf1 the reading of another day\\par\r\n}\r\n" * 10
NOBODY = 65534


class ReplacedFile(DesktopTest):

    def setUp(self):
        self.day = today()

    def prepare(self, screen):
        """A program with a long report open and an old file under the name report.txt."""
        self.documents = screen.home / "Documents"
        self.old = self.documents / "report.txt"
        self.old.write_bytes(OLD)
        if screen.user is not None:
            os.chown(self.old, screen.user, screen.user)

    def open_report(self, program):
        program.proceed(MARIA)
        program.read_topic(COMPREHENSIVE, MARIA)

    def files(self):
        return sorted(path.name for path in self.documents.iterdir())

    def assert_goes_on(self, program):
        """No message has come up, and the program answers."""
        screen = program.desktop
        program.read_topic(TOPICS[0], MARIA)
        self.assertEqual(screen.program_windows(), [program.window])
        self.assertTrue(program.alive())

    def test_replacement_takes_the_place_of_the_old_file(self):
        with Desktop("replace") as screen:
            self.prepare(screen)
            kept = screen.folder / "kept"
            kept.hardlink_to(self.old)  # sees every byte that is written into the old file
            program = screen.orravane()
            self.open_report(program)
            program.replace("report.txt")
            wait_for("the new file", lambda: self.old.read_bytes() != OLD)
            # It appears whole and at once, and the old file was not touched for it.
            self.assert_rtf(self.old.read_bytes(), MARIA, COMPREHENSIVE, self.day)
            self.assertEqual(kept.read_bytes(), OLD)
            self.assertNotEqual(kept.stat().st_ino, self.old.stat().st_ino)
            self.assertEqual(self.files(), ["report.txt"])
            self.assert_quiet(screen)

    def test_full_disk(self):
        with Desktop("full-disk") as screen:
            self.prepare(screen)
            # Without its signal, the limit on a file's size works as a full disk does: a write
            # gives an error. Python ignores the signal and hands that on where it is told to.
            program = screen.orravane(restore_signals=False)
            self.open_report(program)
            limits = resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE)
            for limit in (0, len(OLD), 8192):  # of a report of some 50,000 bytes
                with self.subTest(limit=limit):
                    self.old.write_bytes(OLD)
                    resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE,
                                     (limit, limits[1]))
                    program.replace("report.txt")
                    self.assert_goes_on(program)
                    self.assertEqual(self.old.read_bytes(), OLD)
                    self.assertEqual(self.files(), ["report.txt"])
                    program.read_topic(COMPREHENSIVE, MARIA)

            # A new file beyond the limit does not appear at all.
            program.save_as("new")
            self.assert_goes_on(program)
            self.assertEqual(self.files(), ["report.txt"])

            # With space again the same save works.
            self.old.write_bytes(OLD)
            resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE, limits)
            program.read_topic(COMPREHENSIVE, MARIA)
            program.replace("report.txt")
            wait_for("the new file", lambda: self.old.read_bytes() != OLD)
            self.assert_rtf(self.old.read_bytes(), MARIA, COMPREHENSIVE, self.day)
            self.assert_quiet(screen)

    def test_killed_in_the_middle_of_the_write(self):
        with Desktop("killed") as screen:
            self.prepare(screen)
            program = screen.orravane()
            self.open_report(program)
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

    def test_read_only_file(self):
        with self.as_an_ordinary_user("read-only-file") as screen:
            self.prepare(screen)
            self.old.chmod(0o444)
            program = self.start(screen)
            self.open_report(program)
            program.replace("report.txt")
            self.assert_goes_on(program)
            self.assertEqual(self.old.read_bytes(), OLD)
            self.assertEqual(self.files(), ["report.txt"])
            self.assert_quiet(screen)

    def test_read_only_folder(self):
        with self.as_an_ordinary_user("read-only-folder") as screen:
            self.prepare(screen)
            self.documents.chmod(0o555)
            program = self.start(screen)
            self.open_report(program)
            program.replace("report.txt")
            self.assert_goes_on(program)
            program.save_as("new")
            self.assert_goes_on(program)
            self.assertEqual(self.old.read_bytes(), OLD)
            self.assertEqual(self.files(), ["report.txt"])
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
