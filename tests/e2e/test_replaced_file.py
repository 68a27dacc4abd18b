"""A saved file that is replaced stays whole, whatever stands in the way of its successor."""

import resource
import signal

import desktop
from desktop import Desktop, DesktopTest
from program import COMPREHENSIVE
from readings import MARIA
from waiting import wait_for

OLD = b"{\\rtf1 the reading of another day\\par\r\n}\r\n" * 10


class ReplacedFile(DesktopTest):

    def prepare(self, screen):
        """Puts an old file under the name report.txt."""
        self.documents = screen.home / "Documents"
        self.old = self.documents / "report.txt"
        self.old.write_bytes(OLD)

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


if __name__ == "__main__":
    desktop.main()
