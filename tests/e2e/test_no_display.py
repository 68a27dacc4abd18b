"""What the program says where there is no display: one line, and exit status 1."""

import os
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["ORRAVANE_PROGRAM"]
HINT = "; orravane-report needs none\n"


class NoDisplay(unittest.TestCase):

    def assert_says(self, reason, arguments=(), **variables):
        with tempfile.TemporaryDirectory() as home:
            environment = {"HOME": home, "XDG_RUNTIME_DIR": home, "LC_ALL": "C.UTF-8",
                           "PATH": os.environ["PATH"], **variables}
            done = subprocess.run([PROGRAM, *arguments], env=environment, timeout=60,
                                  capture_output=True, text=True, check=False)
            self.assertEqual(done.stderr, "orravane: cannot open a window: " + reason + HINT)
            self.assertEqual(done.stdout, "")
            self.assertEqual(done.returncode, 1)
            # No settings and no lock: it has not started.
            self.assertEqual(os.listdir(home), [])

    def test_no_display_at_all(self):
        reason = "there is no display, neither DISPLAY nor WAYLAND_DISPLAY is set"
        self.assert_says(reason)
        self.assert_says(reason, ("-platform", "wayland"))

    def test_display_that_does_not_answer(self):
        self.assert_says("no display answers with DISPLAY=:54321", DISPLAY=":54321")
        self.assert_says("no display answers with WAYLAND_DISPLAY=nothing-here",
                         WAYLAND_DISPLAY="nothing-here", XDG_SESSION_TYPE="wayland")
        self.assert_says("no display answers with WAYLAND_DISPLAY=nothing-here "
                         "QT_QPA_PLATFORM=wayland",
                         WAYLAND_DISPLAY="nothing-here", QT_QPA_PLATFORM="wayland")

    def test_platform_that_is_not_installed(self):
        self.assert_says('Could not find the Qt platform plugin "nothing" in ""',
                         QT_QPA_PLATFORM="nothing")

    def test_other_messages_of_the_start_are_not_lost(self):
        with tempfile.TemporaryDirectory() as home:
            environment = {"HOME": home, "XDG_RUNTIME_DIR": home, "QT_DEBUG_PLUGINS": "1",
                           "QT_QPA_PLATFORM": "offscreen", "PATH": os.environ["PATH"]}
            with subprocess.Popen([PROGRAM], env=environment, stderr=subprocess.PIPE,
                                  text=True) as program:
                first = program.stderr.readline()
                program.kill()
            self.assertRegex(first, "^qt\\.core\\.plugin\\.factoryloader: ")


if __name__ == "__main__":
    unittest.main()
