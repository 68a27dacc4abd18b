"""One instance for each user, whatever lies in the folders where it keeps its lock."""

import contextlib
import fcntl
import os
import shutil
import signal
import socket

import desktop
from desktop import Desktop, DesktopTest, HOME_PAGE, THANK_YOU_PAGE
from program import Program
from waiting import wait_for

NOBODY, SOMEBODY = 65534, 65533


class Instances(DesktopTest):

    @contextlib.contextmanager
    def desktop(self, name, user=None):
        """A desktop with a folder for temporary files of its own, open to all users."""
        with Desktop(name, user=user if os.geteuid() == 0 else None) as screen:
            temporary = screen.folder / "temporary"
            temporary.mkdir()
            temporary.chmod(0o1777)
            screen.env["TMPDIR"] = str(temporary)
            self.copy = shutil.copy(desktop.ORRAVANE, screen.bin / "orravane")
            yield screen

    def data(self, screen):
        return screen.home / ".local/share/orravane/orravane"

    def lock(self, screen):
        return self.data(screen) / "instance.lock"

    def own(self, screen, *paths):
        if screen.user is not None:
            for path in paths:
                os.chown(path, screen.user, screen.user)

    def start(self, screen, log="orravane", **options):
        return screen.spawn([str(self.copy)], log=log, **options)

    def assert_runs(self, screen, log="orravane", **options):
        return Program(screen, self.start(screen, log, **options))

    def assert_refused(self, screen, log="second", **options):
        """A start shows the message and ends."""
        pages = screen.opened_pages()
        process = self.start(screen, log, **options)
        message = screen.window("Orravane")
        screen.await_painted(message)
        screen.await_keyboard(message)
        screen.keys("Return")
        wait_for("the end of the second instance", lambda: process.poll() is not None)
        self.assertEqual(process.returncode, 0)
        screen.await_pages([*pages, THANK_YOU_PAGE])

    def kill(self, program):
        program.process.send_signal(signal.SIGKILL)
        self.assertEqual(program.await_end(), -signal.SIGKILL)
        wait_for("the window to go", lambda: not program.desktop.windows("Orravane v1.0"))

    def test_whatever_stands_in_the_file(self):
        with self.desktop("lock-contents") as screen:
            self.data(screen).mkdir(parents=True)
            here = f"{os.getpid()}\norravane\n{socket.gethostname()}\n"
            for number, content in enumerate((
                    b"", b"junk", b"\0" * 100, here.encode(),
                    b"4711\norravane\nanother-machine\n\n\n",  # a cloned disk
                    f"{os.getpid()}\npython3\n{socket.gethostname()}\n\n\n".encode())):
                with self.subTest(content):
                    self.lock(screen).write_bytes(content)
                    first = self.assert_runs(screen, f"first-{number}")
                    self.assert_refused(screen, f"second-{number}")
                    self.assertEqual(self.lock(screen).read_bytes(), content)
                    self.kill(first)
            self.assert_runs(screen, "last")  # and what the killed ones left behind
            self.assert_quiet(screen, "last")

    def test_things_in_the_place_of_the_file(self):
        with self.desktop("lock-things", NOBODY) as screen:
            self.data(screen).mkdir(parents=True)
            self.own(screen, *self.data(screen).parents[:3], self.data(screen))
            elsewhere = screen.folder / "elsewhere"
            elsewhere.write_text("mine")
            elsewhere.chmod(0o666)
            for name, make in (("folder", self.lock(screen).mkdir),
                               ("pipe", lambda: os.mkfifo(self.lock(screen), 0o666)),
                               ("link", lambda: self.lock(screen).symlink_to(elsewhere)),
                               ("forbidden", lambda: self.lock(screen).touch(0o000)),
                               ("another user's", lambda: self.lock(screen).touch(0o644))):
                with self.subTest(name), contextlib.ExitStack() as held:
                    make()
                    if name == "another user's" and screen.user is not None:
                        file = held.enter_context(open(self.lock(screen), "rb"))
                        fcntl.flock(file, fcntl.LOCK_EX)
                    first = self.assert_runs(screen, f"first-{name}")
                    self.assert_refused(screen, f"second-{name}")
                    self.kill(first)
                    self.assertEqual(elsewhere.read_text(), "mine")
                    if name == "folder":
                        self.lock(screen).rmdir()
                    else:
                        self.lock(screen).unlink()

    def test_folder_that_cannot_be_written(self):
        with self.desktop("lock-unwritable", NOBODY) as screen:
            self.data(screen).mkdir(parents=True)
            self.own(screen, self.data(screen))
            for number, runtime in enumerate((screen.env["XDG_RUNTIME_DIR"], "",
                                              str(screen.folder / "gone"))):
                with self.subTest(runtime=runtime):
                    env = {"XDG_RUNTIME_DIR": runtime}
                    self.data(screen).chmod(0o555)
                    first = self.assert_runs(screen, f"first-{number}", env=env)
                    self.assert_refused(screen, f"second-{number}", env=env)
                    # Nor does another one run when the folder is mended, or the session's
                    # folder is not known to it.
                    self.data(screen).chmod(0o755)
                    self.assert_refused(screen, f"third-{number}", env=env)
                    self.data(screen).chmod(0o555)
                    self.assert_refused(screen, f"fourth-{number}", env={"XDG_RUNTIME_DIR": ""})
                    self.kill(first)
                    self.lock(screen).unlink(missing_ok=True)

    def test_folder_that_is_emptied_meanwhile(self):
        with self.desktop("lock-emptied") as screen:
            first = self.assert_runs(screen)
            shutil.rmtree(screen.home / ".local")
            self.assert_refused(screen)
            self.kill(first)
            self.assert_runs(screen, "again")

    def test_two_users(self):
        if os.geteuid() != 0:
            self.skipTest("only root can start programs as two users")
        with self.desktop("two-users", NOBODY) as screen:
            other = screen.folder / "other-home"
            (screen.folder / "other-runtime").mkdir()
            (other / ".local/share/orravane/orravane").mkdir(parents=True)
            self.data(screen).mkdir(parents=True)
            for path in (other, *other.rglob("*"), screen.folder / "other-runtime"):
                os.chown(path, SOMEBODY, SOMEBODY)
            self.own(screen, *self.data(screen).parents[:3], self.data(screen))
            place = {"HOME": str(other), "XDG_CONFIG_HOME": str(other / ".config"),
                     "XDG_DATA_HOME": str(other / ".local/share"),
                     "XDG_CACHE_HOME": str(other / ".cache"),
                     "XDG_RUNTIME_DIR": str(screen.folder / "other-runtime")}
            nowhere = {"XDG_DATA_HOME": "/proc", "XDG_RUNTIME_DIR": ""}
            # In the second round both have nothing but the folder for temporary files, and
            # their data folder has the same name.
            for number, (mine, theirs) in enumerate((({}, place), (nowhere, place | nowhere))):
                first = self.assert_runs(screen, f"mine-{number}", env=mine)
                screen.opened.chmod(0o666)
                screen.user = SOMEBODY
                second = self.assert_runs(screen, f"theirs-{number}", env=theirs)
                self.assertEqual(len(screen.windows("Orravane v1.0")), 2)
                self.assert_refused(screen, f"theirs-too-{number}", env=theirs)
                screen.user = NOBODY
                self.assert_refused(screen, f"mine-too-{number}", env=mine)
                for program in (first, second):
                    program.process.kill()
                wait_for("the windows to go", lambda: not screen.windows("Orravane v1.0"))

    def test_starts_in_the_same_instant(self):
        with self.desktop("lock-race") as screen:
            for round in range(3):
                starts = [self.start(screen, f"start-{round}-{number}") for number in range(6)]
                wait_for("five messages", lambda: len(screen.windows("Orravane")) == 5)
                wait_for("one window", lambda: len(screen.windows("Orravane v1.0")) == 1)
                for process in starts:
                    process.kill()
                wait_for("the windows to go", lambda: not screen.program_windows())

    def test_browser_that_outlives_the_program(self):
        with self.desktop("lock-browser") as screen:
            # A browser that stays, as a child of whatever starts it.
            (screen.bin / "xdg-open").write_text(
                f"#!/bin/sh\necho $$ >> '{screen.folder}/browsers'\n"
                f"printf '%s\\n' \"$1\" >> '{screen.opened}'\nexec sleep 1000\n")
            first = self.assert_runs(screen)
            first.click("lblHyperlink")
            screen.await_pages([HOME_PAGE])
            browser = int((screen.folder / "browsers").read_text().split()[0])
            self.kill(first)
            second = self.assert_runs(screen, "second")
            os.kill(browser, 0)  # it is still there

            # So is the one that shows the page that says goodbye.
            self.assertEqual(second.close(), 0)
            screen.await_pages([HOME_PAGE, THANK_YOU_PAGE])
            self.assert_runs(screen, "third")
            os.kill(browser, 0)


if __name__ == "__main__":
    desktop.main()
