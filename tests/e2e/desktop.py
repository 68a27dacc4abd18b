"""A desktop of a test's own: display, window manager, home, browser, accessibility bus.

Everything that is started here ends with the test, however the test ends, and everything
that is written lies in one temporary folder. Nothing waits a fixed time but where the time itself
matters, as with a double click: what is awaited is polled for, with a deadline.
"""

import ctypes
import os
import pathlib
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time
import unittest

from accessible import Accessibility
from picture import Picture
from program import Program
from readings import days_since, expected_rtf
from waiting import DEADLINE, wait_for

ORRAVANE = os.environ.get("ORRAVANE_PROGRAM", "")
SITE = "https://" + os.environ.get("ORRAVANE_SITE_HOST", "")
ARTEFACTS = pathlib.Path(os.environ.get("ORRAVANE_ARTEFACTS", tempfile.gettempdir()))

UPDATE_PAGE = SITE + os.environ.get("ORRAVANE_UPDATE_PATH", "")
HELP_PAGE = SITE + "/orravane-help/"
HOME_PAGE = SITE + "/"
THANK_YOU_PAGE = SITE + "/thankyou-for-using-orravane.php"

PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36
libc = ctypes.CDLL(None, use_errno=True)

# A program that detaches itself becomes a child of the test instead of getting away.
libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def _die_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)


class Desktop:
    """Use with `with`. `accessible` adds a session bus with the accessibility registry; `user`
    is the number of the user as whom programs run, for a test that itself runs as root."""

    def __init__(self, name, size=(1280, 1024), accessible=False, display=True, user=None):
        self.name = name
        self.size = size
        self.start_size = size  # of the monitor that programs come up on
        self.with_accessibility = accessible
        self.with_display = display
        self.user = user
        self.folder = None
        self.started = []

    def __enter__(self):
        for needed in ("Xvfb", "openbox", "xdotool", "xwininfo", "xprop", "xclip"):
            if self.with_display and shutil.which(needed) is None:
                raise AssertionError(f"this test needs the program {needed}")
        shutil.rmtree(ARTEFACTS / self.name, ignore_errors=True)  # of an earlier run
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orravane-e2e-"))
        try:
            self._make_home()
            if self.with_display:
                self._start_display()
            if self.with_accessibility:
                self._start_accessibility()
            if self.with_display:
                self._start_window_manager()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, kind, *_):
        if kind is not None and self.with_display:
            try:
                self.screenshot().save(self.artefact("failed.png"))
            except Exception as trouble:  # the failure itself is what has to be told
                print("no screenshot of the failure:", trouble, file=sys.stderr)
        if kind is not None:
            for log, process in self.started:
                if process.poll() not in (None, 0):
                    print(f"{log} ended with {process.returncode}: {self.log(log)[-2000:]}",
                          file=sys.stderr)
        self.close()

    def _make_home(self):
        self.folder.chmod(0o755)
        self.home = self.folder / "home"
        self.opened = self.folder / "opened-pages"
        self.bin = self.folder / "bin"
        for folder in (self.home, self.bin, self.folder / "runtime", self.home / "Documents"):
            folder.mkdir()
        self.opened.touch()
        (self.folder / "runtime").chmod(0o700)
        opener = self.bin / "xdg-open"
        opener.write_text(f"#!/bin/sh\nprintf '%s\\n' \"$1\" >> '{self.opened}'\n")
        opener.chmod(0o755)
        self.env = {
            "HOME": str(self.home),
            "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "PATH": f"{self.bin}:/usr/local/bin:/usr/bin:/bin",
            "LC_ALL": "C.UTF-8",
            # No bus and no printer of the machine is reached by chance.
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.folder}/no-session-bus",
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.folder}/no-system-bus",
            "CUPS_SERVER": str(self.folder / "no-cups.sock"),
            # A desktop's theme remarks on the missing bus; the program has no part in that.
            "QT_LOGGING_RULES": "qt.qpa.theme.dbus.warning=false",
        }
        for kept in ("TZ", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if kept in os.environ:
                self.env[kept] = os.environ[kept]
        if self.user is not None:
            for path in (self.home, self.home / "Documents", self.folder / "runtime", self.opened):
                os.chown(path, self.user, self.user)

    def _start_display(self):
        reader, writer = os.pipe()
        # Without authority file the display lets every local user in.
        self.spawn(["Xvfb", "-displayfd", str(writer), "-screen", "0",
                    f"{self.size[0]}x{self.size[1]}x24", "-fbdir", str(self.folder), "-nocursor",
                    "-nolisten", "tcp", "-ac", "-noreset"],
                   log="xvfb", pass_fds=[writer], own_user=True)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise AssertionError("Xvfb did not start: " + self.log("xvfb"))
        self.env["DISPLAY"] = ":" + number

    def _start_window_manager(self):
        ready = self.folder / "window-manager-ready"
        self.spawn(["openbox", "--sm-disable", "--startup", f"touch {ready}"], log="openbox",
                   own_user=True)
        wait_for("the window manager", ready.exists)
        self.park_mouse()

    def _start_accessibility(self):
        reader, writer = os.pipe()
        self.spawn(["dbus-daemon", "--session", "--nofork", f"--print-address={writer}"],
                   log="dbus", pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as lines:
            self.env["DBUS_SESSION_BUS_ADDRESS"] = lines.readline().strip()
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.accessibility = Accessibility(self)

    def close(self):
        """Ends everything below this test and removes its folder."""
        for stop in (signal.SIGTERM, signal.SIGKILL):
            told = set()
            end = time.monotonic() + 5
            while (children := self._children()) and time.monotonic() < end:
                for child in children - told:  # some come up only when their parent has ended
                    os.kill(child, stop)
                told |= children
                self._reap(children)
                time.sleep(0.01)
        if self.folder is not None:
            for folder, _, _ in os.walk(self.folder):
                os.chmod(folder, stat.S_IRWXU)
            shutil.rmtree(self.folder, ignore_errors=True)

    def _reap(self, children):
        for _, process in self.started:
            process.poll()
        for stray in children - {process.pid for _, process in self.started}:
            try:
                os.waitpid(stray, os.WNOHANG)
            except ChildProcessError:
                pass

    @staticmethod
    def _children():
        """The direct children, the ended ones too; a child's own become ours when it ends."""
        found = set()
        for entry in pathlib.Path("/proc").iterdir():
            if entry.name.isdigit():
                try:
                    fields = (entry / "stat").read_text().rpartition(")")[2].split()
                except OSError:
                    continue
                if int(fields[1]) == os.getpid():
                    found.add(int(entry.name))
        return found

    # Programs

    def spawn(self, command, log, env=None, pass_fds=(), own_user=False, **options):
        """Starts `command`, which ends with the test. Its output goes to log files."""
        environment = dict(self.env, **(env or {}))
        if self.user is not None and not own_user:
            options |= {"user": self.user, "group": self.user, "extra_groups": []}
        with open(self.folder / f"{log}.out", "ab") as out, \
                open(self.folder / f"{log}.err", "ab") as err:
            process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=out, stderr=err,
                                       env=environment, pass_fds=pass_fds, cwd=self.folder,
                                       preexec_fn=_die_with_parent, **options)
        self.started.append((log, process))
        return process

    def run(self, *command, env=None, input=None, check=True, timeout=DEADLINE):
        done = subprocess.run(command, env=dict(self.env, **(env or {})), input=input,
                              capture_output=True, timeout=timeout, cwd=self.folder)
        if check and done.returncode != 0:
            raise AssertionError(f"{command}: {done.returncode}: {done.stderr.decode()}")
        return done.stdout

    def log(self, name):
        return (self.folder / f"{name}.err").read_text(errors="replace")

    def start(self, env=None, log="orravane", **options):
        """Starts the program without waiting for its window."""
        return self.spawn([ORRAVANE], log=log, env=env, **options)

    def orravane(self, env=None, scale=1, **options):
        """Starts the program and waits for its window."""
        environment = dict(env or {})
        if scale != 1:
            environment["QT_SCALE_FACTOR"] = str(scale)
        return Program(self, self.start(environment, **options), scale)

    def artefact(self, name):
        folder = ARTEFACTS / self.name
        folder.mkdir(parents=True, exist_ok=True)
        return folder / name

    # Screen, mouse and keyboard

    def screenshot(self, *part):
        """What the screen shows, or a part of it: left, top, width, height."""
        return Picture.from_xwd((self.folder / "Xvfb_screen0").read_bytes(), *part)

    def xdotool(self, *arguments):
        return self.run("xdotool", *(str(argument) for argument in arguments)).decode()

    def move(self, x, y):
        self.xdotool("mousemove", round(x), round(y))

    def park_mouse(self):
        """Away from every window."""
        self.move(1, self.size[1] - 2)

    def click(self, x, y, button=1):
        self.xdotool("mousemove", round(x), round(y), "click", button)

    def keys(self, *names):
        self.xdotool("key", "--clearmodifiers", *names)

    def type(self, text):
        self.xdotool("type", "--delay", "2", text)

    def windows(self, title):
        """The visible windows whose title is exactly `title`."""
        found = self.run("xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$",
                         check=False).decode()
        return [int(number) for number in found.split()]

    def window(self, title):
        return wait_for(f"a window \"{title}\"", lambda: self.windows(title))[0]

    def await_keyboard(self, window):
        """Waits until what is typed goes to `window`."""
        wait_for("the keyboard to be at the window",
                 lambda: self.run("xdotool", "getwindowfocus", check=False).split() ==
                 [str(window).encode()])

    def await_painted(self, window):
        """Waits until a window shows more than its background; gives what it shows."""

        def painted():
            picture = self.screenshot(*self.geometry(window))
            return picture if len(picture.colours()) > 20 else None

        return wait_for("the window to be painted", painted)

    def program_windows(self):
        """All visible windows of the program, pop-ups too."""
        found = self.run("xdotool", "search", "--onlyvisible", "--class", "^orravane$",
                         check=False).decode()
        return sorted(int(number) for number in found.split())

    def geometry(self, window):
        """Left, top, width and height of a window's inside on the screen."""
        text = self.run("xwininfo", "-id", str(window)).decode()
        numbers = [re.search(rf"{label}:\s+(-?\d+)", text)[1]
                   for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width",
                                 "Height")]
        return tuple(int(number) for number in numbers)

    # Clipboard and browser

    def copy_elsewhere(self, text):
        """Another program puts `text` on the clipboard."""
        self.spawn(["xclip", "-selection", "clipboard", "-i", self._file_with(text)], log="xclip")
        wait_for("the other program's text on the clipboard", lambda: self.clipboard() == text)

    def _file_with(self, text):
        path = self.folder / "copied-text"
        path.write_text(text)
        return str(path)

    def clipboard(self, kind="UTF8_STRING"):
        """The text on the clipboard; None when nobody offers one."""
        done = subprocess.run(["xclip", "-selection", "clipboard", "-o", "-t", kind],
                              env=self.env, capture_output=True, timeout=DEADLINE)
        return done.stdout.decode() if done.returncode == 0 else None

    def opened_pages(self):
        return self.opened.read_text().splitlines()

    def await_pages(self, pages):
        """Waits until as many pages are opened as `pages` has, and compares them."""
        try:
            wait_for(f"{len(pages)} opened pages", lambda: len(self.opened_pages()) >= len(pages))
        except AssertionError as trouble:
            raise AssertionError(f"{trouble}; opened {self.opened_pages()}") from None
        if self.opened_pages() != pages:
            raise AssertionError(f"opened {self.opened_pages()}, not {pages}")


class DesktopTest(unittest.TestCase):
    maxDiff = None

    def assert_quiet(self, desktop, log="orravane"):
        """The program wrote nothing to its standard error."""
        self.assertEqual(desktop.log(log), "")

    def assert_rtf(self, content, person, caption, day):
        """`content` is the tool's file for a topic that was read on `day` or since."""
        files = [expected_rtf(person, caption, possible) for possible in days_since(day)]
        if len(files) == 1:
            self.assertEqual(content, files[0])
        else:
            self.assertIn(content, files)


def main():
    for needed in ("ORRAVANE_PROGRAM", "ORRAVANE_REPORT_TOOL", "ORRAVANE_SITE_HOST",
                   "ORRAVANE_UPDATE_PATH", "ORRAVANE_ARTEFACTS"):
        if needed not in os.environ:
            sys.exit(f"{needed} is not set; run these tests through ctest")
    unittest.main(verbosity=2)
