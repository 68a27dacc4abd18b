"""A saved file that is replaced stays whole, whatever stands in the way of its successor."""

import resource
import signal

import desktop
from desktop import Desktop, DesktopTest
from program import COMPREHENSIVE
from readings import MARIA, OLD_FILE


class ReplacedFile(DesktopTest):

    def test_killed_in_the_middle_of_the_write(self):
        with Desktop("killed") as screen:
            old = screen.home / "Documents" / "report.txt"
            old.write_bytes(OLD_FILE)
            program = screen.orravane()
            program.proceed(MARIA)
            program.read_topic(COMPREHENSIVE, MARIA)
            # Here the limit's signal ends the program in the middle of writing.
            resource.prlimit(program.process.pid, resource.RLIMIT_CORE, (0, 0))
            resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE,
                             (8192, resource.RLIM_INFINITY))
            program.replace(old.name)
            self.assertEqual(program.await_end(), -signal.SIGXFSZ)
            self.assertEqual(old.read_bytes(), OLD_FILE)


if __name__ == "__main__":
    desktop.main()
