#!/usr/bin/env python3
"""Tries what build.sh has made under Wine. Called by test.sh, from the root of the project."""

import json
import os
import pathlib
import pty
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path.cwd()
sys.path.insert(0, str(ROOT / "tests/e2e"))
import print_queue  # noqa: E402
BUILT = ROOT / "build/windows"
RELEASE = BUILT / "release"
PICTURES = BUILT / "pictures"
LINUX_TOOL = ROOT / "build/release/tools/orravane-report"
VERSION = re.search(r"project\(orravane VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
ARCHIVE = RELEASE / f"orravane-{VERSION}-windows.zip"
SETUP = RELEASE / f"orravane-{VERSION}-windows-setup.exe"
HOST = "www.orravane.example"


def wait_for(what, ready, seconds=60):
    """What `ready` returns as soon as it is true."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if result := ready():
            return result
        time.sleep(0.2)
    raise AssertionError(f"waited in vain for {what}")


class Paper:
    """A print server with one printer, which keeps what it is sent. Its paper is Letter, which is
    not what is usual here. Wine prints PostScript."""

    def __init__(self, folder):
        self.folder = folder
        self.servers = []
        print_queue.DESCRIPTION = print_queue.DESCRIPTION.replace("application/pdf",
                                                                  "application/postscript")
        self.queue = print_queue.PrintQueue(self, paper="Letter")
        self.env = self.queue.env

    def spawn(self, command, log, own_user):
        with open(self.folder / log, "wb") as file:
            self.servers.append(subprocess.Popen(command, stdout=file, stderr=file))

    def log(self, name):
        return (self.folder / name).read_text(errors="replace")

    def close(self):
        for server in self.servers:
            server.terminate()
            server.wait(60)


class Machine:
    """A display of its own and a Windows of its own on it."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orravane-wine-"))
        self.folder.chmod(0o755)  # the print server gives up its rights
        self.paper = Paper(self.folder)
        read, write = os.pipe()
        self.display = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0",
                                         "1280x1024x24"], pass_fds=[write],
                                        stderr=subprocess.DEVNULL)
        os.close(write)
        number = os.read(read, 16).decode().strip()
        self.env = dict(os.environ, DISPLAY=f":{number}", WINEPREFIX=str(self.folder / "prefix"),
                        WINEARCH="win64", WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree=;mshtml=",
                        LC_ALL="C.UTF-8", HOME=str(self.folder), **self.paper.env)
        self.manager = subprocess.Popen(["openbox"], env=self.env, stderr=subprocess.DEVNULL)
        self.wine("wineboot", "-i")
        self.home = next((self.folder / "prefix/drive_c/users").glob("[!P]*"))
        # Whatever is opened in a browser is written down.
        self.pages = self.folder / "pages"
        browser = self.folder / "browser.sh"
        browser.write_text(f'#!/bin/sh\necho "$*" >>"{self.pages}"\n')
        browser.chmod(0o755)
        for scheme in ("http", "https"):
            self.wine("reg", "add", f"HKCR\\{scheme}\\shell\\open\\command", "/ve", "/d",
                      f'winebrowser "%1"', "/f")
        self.wine("reg", "add", r"HKCU\Software\Wine\WineBrowser", "/v", "Browsers", "/d",
                  str(browser), "/f")
        with zipfile_of(ARCHIVE) as archive:
            archive.extractall(self.folder)
        self.portable = self.folder / f"orravane-{VERSION}"

    def close(self):
        subprocess.run(["wineserver", "-k"], env=self.env, stderr=subprocess.DEVNULL)
        self.paper.close()
        self.manager.terminate()
        self.display.terminate()
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *command, **more):
        return subprocess.run([str(part) for part in command], env=self.env, timeout=600, **more)

    def wine(self, *command, check=True, **more):
        more.setdefault("stdout", subprocess.DEVNULL)
        more.setdefault("stderr", subprocess.DEVNULL)
        return self.run("wine", *command, check=check, **more)

    def start(self, *command, env=None, **more):
        return subprocess.Popen(["wine", *map(str, command)], env=self.env | (env or {}),
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **more)

    def processes(self, name):
        """The processes of this program, as (number, command line)."""
        listed = self.run("ps", "-eo", "pid=,args=", capture_output=True, text=True).stdout
        found = [line.split(None, 1) for line in listed.splitlines()]
        return [(int(number), line) for number, line in found
                if name in line and str(self.folder) in line.replace("\\", "/")]

    def opened_pages(self):
        return self.pages.read_text().split() if self.pages.exists() else []

    # --- By mouse and keyboard

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.env,
                              capture_output=True, text=True, timeout=60).stdout

    def windows(self, title):
        """The windows of this title, as (number, left, top, width, height)."""
        found = []
        for number in self.xdotool("search", "--onlyvisible", "--name", f"^{title}$").split():
            place = self.run("xwininfo", "-id", number, capture_output=True, text=True).stdout
            values = re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(-?\d+)", place)
            if len(values) == 4:
                found.append((number, *map(int, values)))
        return found

    def keys(self, *keys):
        for key in keys:
            self.xdotool("key", "--delay", 60, key)
            time.sleep(0.3)

    def type(self, text):
        self.xdotool("type", "--delay", 40, text)
        time.sleep(0.5)

    def clipboard(self):
        """What another program finds in it as text."""
        return self.run("timeout", "10", "xclip", "-selection", "clipboard", "-target",
                        "UTF8_STRING", "-out", capture_output=True, text=True).stdout

    def put_into_clipboard(self, text):
        """As another program does it, which then has to run as long as the text is there."""
        self.run("xclip", "-selection", "clipboard", "-target", "UTF8_STRING", "-in",
                 input=text.encode(), stdout=subprocess.DEVNULL, check=True)
        time.sleep(1)

    def move(self, x, y):
        self.xdotool("mousemove", x, y)
        time.sleep(0.5)

    def click(self, x, y):
        self.move(x, y)
        self.xdotool("click", 1)
        time.sleep(0.8)

    def keep(self, name):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.run("import", "-window", "root", PICTURES / f"{name}.png", check=True)


def zipfile_of(path):
    import zipfile
    return zipfile.ZipFile(path)


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")}


class UnitTests(unittest.TestCase):

    TESTS = ("core/core_test", "numbers/numbers_test", "numbers/cycles/cycles_test",
             "numbers/derived/derived_test", "report/report_test", "report/person_test",
             "report/report_output_test", "shell/file_lock_test", "tools/report_tool_parts_test",
             "tools/worker_processes_test")

    def test_all_are_green(self):
        folder = machine.folder / "unit tests"  # with the libraries beside them, as the programs
        shutil.copytree(machine.portable, folder)
        env = machine.env | {"ORRAVANE_TEST_PRINTER": "yes"}
        for name in self.TESTS:
            with self.subTest(name):
                test = shutil.copy(BUILT / f"tests/tests/{name}.exe", folder)
                done = subprocess.run(["wine", test], env=env, capture_output=True, text=True,
                                      timeout=300)
                self.assertEqual(done.returncode, 0, done.stdout[-3000:])
                passed = re.search(r"\[  PASSED  \] (\d+) tests?", done.stdout)
                self.assertGreater(int(passed.group(1)), 0)
                print(f"  {name}: {passed.group(1)} tests", flush=True)
        [document] = machine.paper.queue.printed()
        self.assertEqual(machine.paper.queue.title(document), "A test")


class ReportTool(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        cls.folder = machine.folder / "reports with blanks äöü 数"
        cls.folder.mkdir()
        pick = random.Random(1985)
        first = ["Clara", "Bob", "Zoë", "Łukasz", "Ørjan", "Mary Ann", "O'Neil", "Ἀλέξανδρος"]
        last = ["Winter", "Moreau", "Ångström", "van der Berg", "Çelik", "Иванова", "X"]
        people = [{"id": number, "first": pick.choice(first), "middle": pick.choice(first + [""]),
                   "last": pick.choice(last), "month": pick.randint(1, 12),
                   "day": pick.randint(1, 31), "year": pick.randint(1900, 2050)}
                  for number in range(2000)]
        people[77]["last"] = ""  # one that is wrong
        cls.people = cls.folder / "people.jsonl"
        cls.people.write_text("".join(json.dumps(each, ensure_ascii=False) + "\n"
                                      for each in people), encoding="utf-8")

    def tool(self, *arguments, **more):
        return machine.run("wine", machine.portable / "orravane-report.exe", *arguments,
                           capture_output=True, **more)

    def linux(self, *arguments, **more):
        return machine.run(LINUX_TOOL, *arguments, capture_output=True, **more)

    def assert_same(self, *arguments):
        ours, theirs = self.tool(*arguments), self.linux(*arguments)
        self.assertEqual(ours.returncode, theirs.returncode, ours.stderr[-500:])
        self.assertEqual(ours.stdout == theirs.stdout, True, arguments)
        self.assertEqual(ours.stderr, theirs.stderr)
        return ours

    def test_two_thousand_people_in_every_format(self):
        for arguments in (["--format", "json"], ["--format", "text"], ["--format", "rtf"],
                          ["--numbers", "--format", "json"], ["--numbers", "--format", "csv"],
                          ["--numbers", "--format", "tsv"]):
            with self.subTest(arguments):
                done = self.assert_same("--batch", self.people, "--today", "2027-01-01", *arguments)
                self.assertEqual(done.returncode, 1)  # the one that is wrong
                self.assertGreater(len(done.stdout), 100_000)
                if arguments != ["--format", "rtf"]:
                    self.assertNotIn(b"\r\n", done.stdout)
                print(f"  {' '.join(arguments)}: {len(done.stdout)} bytes", flush=True)

    def test_two_thousand_documents(self):
        for form in ("html", "markdown"):
            folders = self.folder / f"{form} von Windows", self.folder / f"{form} von Linux"
            for tool, folder in ((self.tool, folders[0]), (self.linux, folders[1])):
                done = tool("--batch", self.people, "--today", "2027-01-01", "--format", form,
                            "--output-dir", folder)
                self.assertEqual(done.returncode, 1, done.stderr[-300:])
            names = files_below(folders[1])
            self.assertGreater(len(names), 1000)
            self.assertEqual(files_below(folders[0]), names)
            different = [name for name in names if (folders[0] / name).read_bytes() !=
                         (folders[1] / name).read_bytes()]
            self.assertEqual(different, [])
            print(f"  {form}: {len(names)} files", flush=True)
            for folder in folders:
                shutil.rmtree(folder)

    def test_a_pdf_is_refused(self):
        target = self.folder / "none.pdf"
        done = self.tool("--first", "Clara", "--last", "Winter", "--date", "1985-03-29", "--format",
                         "pdf", "--output", target)
        self.assertNotEqual(done.returncode, 0)
        self.assertEqual(done.stderr.count(b"\n"), 1, done.stderr)
        print("  " + done.stderr.decode().strip(), flush=True)
        self.assertFalse(target.exists())

    def test_one_person(self):
        person = ["--first", "Zoë", "--last", "Ångström 数", "--date", "1985-03-29",
                  "--today", "2027-01-01"]
        for form in ("text", "json", "rtf", "html", "markdown"):
            self.assert_same(*person, "--format", form)
            self.assert_same(*person, "--format", form, "--topic", "Comprehensive Reading")
        self.assert_same(*person, "--explain")
        self.assert_same("--book")
        self.assert_same("--list-topics")
        self.assert_same("--version")
        self.assert_same("--first", "x")
        self.assert_same()
        self.assert_same(*person, "--topic", "no such topic")

    def test_files(self):
        """Written whole, to paths with blanks and letters, over what is there; a folder of files."""
        target = self.folder / "ein Bericht – Ω.rtf"
        target.write_text("before")
        person = ["--first", "Zoë", "--last", "Winter", "--date", "1985-03-29", "--today",
                  "2027-01-01", "--format", "rtf"]
        done = self.tool(*person, "--output", "Z:" + str(target).replace("/", "\\"))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(target.read_bytes(), self.linux(*person).stdout)
        # What cannot be written leaves what is there, and nothing beside it.
        done = self.tool(*person, "--output", self.folder)
        self.assertEqual(done.returncode, 3, done.stderr)
        done = self.tool(*person, "--output", self.folder / "none" / "x.rtf")
        self.assertEqual(done.returncode, 3, done.stderr)
        before = files_below(self.folder)
        few = self.folder / "few.jsonl"
        few.write_text("".join(json.dumps({"first": "Clara", "last": name, "birthdate": "1985-03-29"})
                               + "\n" for name in ["Winter", "Çelik", "van der Berg", "Moreau"] * 10))
        folders = self.folder / "von Windows", self.folder / "von Linux"
        for tool, folder in ((self.tool, folders[0]), (self.linux, folders[1])):
            done = tool("--batch", few, "--today", "2027-01-01", "--output-dir", folder)
            self.assertEqual(done.returncode, 0, done.stderr)
        names = files_below(folders[1])
        self.assertEqual(len(names), 40)
        self.assertEqual(files_below(folders[0]), names)
        for name in names:
            self.assertEqual((folders[0] / name).read_bytes(), (folders[1] / name).read_bytes())
        self.assertEqual(files_below(self.folder) - before,
                         {"few.jsonl", "von Windows", "von Linux",
                          *(f"{folder.name}/{name}" for folder in folders for name in names)})

    def test_a_killed_run_leaves_nothing(self):
        target = self.folder / "killed.jsonl"
        run = machine.start(machine.portable / "orravane-report.exe", "--batch", "-", "--output",
                            target, stdin=subprocess.PIPE)
        self.addCleanup(run.stdin.close)
        wait_for("the temporary file", lambda: list(self.folder.glob(".orravane-*")))
        machine.wine("taskkill", "/f", "/im", "orravane-report.exe", check=False)
        run.wait(60)
        wait_for("it to go", lambda: not list(self.folder.glob(".orravane-*")))
        self.assertFalse(target.exists())

    def test_jobs(self):
        """Several processes give the bytes of one, to standard output, a file and a folder."""
        person = ["--batch", self.people, "--today", "2027-01-01"]
        for jobs, arguments in (("2", ["--format", "json"]), ("5", ["--format", "rtf"]),
                                ("5", ["--numbers", "--format", "csv"]),
                                ("2", ["--max-errors", "1"])):
            with self.subTest(arguments):
                theirs = self.linux(*person, *arguments)
                ours = self.tool(*person, *arguments, "--jobs", jobs)
                self.assertEqual(ours.returncode, theirs.returncode, ours.stderr[-500:])
                self.assertEqual(ours.stdout == theirs.stdout, True)
                self.assertEqual(ours.stderr, theirs.stderr)
        theirs = self.linux(*person)
        target = self.folder / "jobs – Ω.jsonl"
        ours = self.tool("--batch", "-", "--today", "2027-01-01", "--jobs", "3", "--output", target,
                         input=self.people.read_bytes())
        self.assertEqual((ours.returncode, ours.stderr), (1, theirs.stderr))
        self.assertEqual(target.read_bytes() == theirs.stdout, True)
        folders = self.folder / "jobs von Windows", self.folder / "jobs von Linux"
        for tool, folder in ((self.tool, folders[0]), (self.linux, folders[1])):
            tool(*person, "--format", "markdown", "--output-dir", folder, "--jobs", "3")
        names = files_below(folders[1])
        self.assertEqual(files_below(folders[0]), names)
        self.assertEqual([name for name in names if (folders[0] / name).read_bytes() !=
                          (folders[1] / name).read_bytes()], [])
        for path in (target, *folders):
            shutil.rmtree(path) if path.is_dir() else path.unlink()

    def start_waiting_jobs(self, target):
        """A batch of two processes that waits for more input."""
        run = subprocess.Popen(["wine", machine.portable / "orravane-report.exe", "--batch", "-",
                                "--jobs", "2", "--output", target], env=machine.env,
                               stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE)
        for stream in (run.stdin, run.stderr):
            self.addCleanup(stream.close)
        all_three = wait_for("the processes", lambda: machine.processes("orravane-report.exe")
                             if len(machine.processes("orravane-report.exe")) == 3 else None)
        workers = [number for number, _ in all_three if number != run.pid]
        self.assertEqual(len(workers), 2)
        return run, workers

    def test_jobs_end_with_their_parent(self):
        target = self.folder / "killed jobs.jsonl"
        run, _ = self.start_waiting_jobs(target)
        run.kill()
        run.stdin.close()
        run.wait(60)
        wait_for("the others to go", lambda: not machine.processes("orravane-report.exe"))
        wait_for("the file to go", lambda: not list(self.folder.glob(".orravane-*")))
        self.assertFalse(target.exists())

    def test_jobs_tell_that_one_has_died(self):
        target = self.folder / "dead job.jsonl"
        run, workers = self.start_waiting_jobs(target)
        os.kill(workers[0], signal.SIGKILL)
        try:
            run.stdin.write(self.people.read_bytes())
            run.stdin.close()
        except BrokenPipeError:
            pass
        self.assertEqual(run.wait(60), 3)
        said = run.stderr.read().decode()
        self.assertIn("--jobs: one of the processes has died (exit code ", said)
        wait_for("all to go", lambda: not machine.processes("orravane-report.exe"))
        self.assertFalse(target.exists())
        self.assertEqual(list(self.folder.glob(".orravane-*")), [])

    def test_a_console_shows_utf_8(self):
        main, side = pty.openpty()
        child = subprocess.Popen(["wine", machine.portable / "orravane-report.exe", "--first", "Zoë",
                                  "--last", "Ångström", "--date", "1985-03-29", "--topic",
                                  "no topic é"], env=machine.env, stdin=side, stdout=side,
                                 stderr=side)
        os.close(side)
        shown = b""
        try:
            while piece := os.read(main, 4096):
                shown += piece
        except OSError:
            pass
        child.wait(60)
        # The console says where it writes between the letters.
        letters = re.sub(r"\x1b\[[?0-9;]*[A-Za-z]", "", shown.decode(errors="replace"))
        self.assertIn("é", letters)


class Window(unittest.TestCase):
    """The whole story by mouse and keyboard. Places are in pixels of the page, below the menu."""

    FIRST_NAME = 315 + 150, 56 + 100
    LAST_NAME = 315 + 150, 56 + 164
    PROCEED = SAVE = 315 + 205 + 42, 56 + 312 + 13  # each on its page
    PRINT = 315 + 205 - 43, 56 + 312 + 13
    PANE = 325 + 100, 70 + 100
    HELP = 534, 26
    ADDRESS = 523, 421

    def place_of(self, title="Orravane v1.0"):
        return wait_for(f"the window {title}", lambda: machine.windows(title))[-1]

    def setUp(self):
        machine.pages.unlink(missing_ok=True)
        self.start()

    def start(self, env=None):
        self.program = machine.start(machine.portable / "orravane.exe", env=env)
        self.window, self.left, self.top, self.width, self.height = self.place_of()
        self.top += self.height - 440
        time.sleep(3)

    def tearDown(self):
        machine.wine("taskkill", "/f", "/im", "orravane.exe", check=False)
        self.program.wait(60)

    def click(self, x, y):
        machine.click(self.left + x, self.top + y)

    def brightness(self, x, y, width, height):
        """Of a part of the page, from 0 to 1."""
        done = machine.run("import", "-window", "root", "-crop",
                           f"{width}x{height}+{self.left + x}+{self.top + y}", "-format",
                           "%[fx:mean]", "info:", capture_output=True, check=True)
        return float(done.stdout)

    def type_person(self):
        self.click(*self.FIRST_NAME)
        machine.type("Clara")
        machine.keys("Tab", "Tab")
        machine.type("Winter")

    def proceed(self):
        self.click(*self.PROCEED)
        time.sleep(2)

    def save_as(self, name):
        """Saves into the folder of documents, and returns the path."""
        self.click(*self.SAVE)
        wait_for("the save dialog", lambda: machine.windows("Orravane"))
        time.sleep(4)
        machine.type(f"C:\\users\\{machine.home.name}\\Documents\\{name}")
        return machine.home / "Documents" / name

    def test_story(self):
        self.assertEqual(self.width, 626)
        machine.keep("1-start")
        self.assertEqual(machine.opened_pages(), [])

        # Hover lights up and goes out again.
        plain = self.brightness(566, 7, 44, 39)
        machine.move(self.left + 588, self.top + 26)
        machine.move(self.left + 589, self.top + 27)
        machine.keep("2-hover")
        self.assertGreater(self.brightness(566, 7, 44, 39), plain + 0.05)
        machine.move(self.left + 300, self.top + 30)
        wait_for("the button to go out", lambda: self.brightness(566, 7, 44, 39) < plain + 0.02)

        self.type_person()
        machine.keep("3-typed")
        self.proceed()
        machine.keep("4-report")
        paper = self.brightness(325, 70, 270, 280)
        self.assertGreater(paper, 0.6)

        # Save, by the common dialog, twice over the same file.
        for number in (1, 2):
            target = self.save_as("ein Bericht.rtf")
            machine.keep(f"5-save-{number}")
            machine.keys("Return")
            time.sleep(3)
            machine.keep(f"6-saved-{number}")
            if number == 2:  # the question
                first = target.read_bytes()
                machine.keys("alt+y")
                time.sleep(2)
            wait_for("the file", target.exists)
        self.assertEqual(target.read_bytes(), first)
        self.assertTrue(first.startswith(b"{\\rtf1"))
        self.assertEqual([path.name for path in target.parent.glob("*")
                          if path.suffix in (".txt", ".rtf")], [target.name])
        self.assertEqual(machine.windows("Orravane"), [])

        # A second one is turned away, and opens the thank-you page.
        second = machine.start(machine.portable / "orravane.exe")
        wait_for("the message", lambda: machine.windows("Orravane"))
        time.sleep(1)
        machine.keep("7-second")
        machine.keys("Return")
        second.wait(60)
        wait_for("the page", lambda: machine.opened_pages())
        self.assertEqual(machine.opened_pages(), [f"https://{HOST}/thankyou-for-using-orravane.php"])

        # Killed, it leaves no lock behind.
        machine.wine("taskkill", "/f", "/im", "orravane.exe")
        self.program.wait(60)
        self.start()
        machine.keep("8-again")
        self.assertEqual(machine.windows("Orravane"), [])

        # The way out, with its question and its page.
        self.click(588, 26)
        wait_for("the question", lambda: machine.windows("Orravane"))
        time.sleep(1)
        machine.keep("9-exit")
        machine.keys("alt+y")
        self.program.wait(60)
        wait_for("the page", lambda: len(machine.opened_pages()) == 2)
        self.assertEqual(set(machine.opened_pages()),
                         {f"https://{HOST}/thankyou-for-using-orravane.php"})

    def test_links(self):
        """Opened by the shell, in the user's browser."""
        for number, (place, page) in enumerate([(self.ADDRESS, "/"), (self.HELP, "/orravane-help/")]):
            self.click(*place)
            wait_for("the page", lambda: len(machine.opened_pages()) > number)
            self.assertEqual(machine.opened_pages()[number:], [f"https://{HOST}{page}"])
        machine.keys("alt+h", "v")  # Visit Us Online
        wait_for("the page", lambda: len(machine.opened_pages()) == 3)
        self.assertEqual(machine.opened_pages()[2], f"https://{HOST}/")

    def test_a_name_without_an_ending_gets_the_default_one(self):
        self.type_person()
        self.proceed()
        target = self.save_as("ohne Endung")
        machine.keys("Return")
        whole = target.with_name(target.name + ".txt")
        wait_for("the file", lambda: list(target.parent.glob(target.name + "*")))
        time.sleep(1)
        self.assertEqual(list(target.parent.glob(target.name + "*")), [whole])
        self.assertTrue(whole.read_bytes().startswith(b"{\\rtf1"))
        whole.unlink()

    def test_clipboard(self):
        """Text goes to other programs and comes from them; the pane empties it."""
        self.type_person()
        machine.keys("ctrl+a", "ctrl+c")
        wait_for("the copy", lambda: machine.clipboard() == "WINTER")
        machine.put_into_clipboard("Ångström")
        self.click(*self.FIRST_NAME)
        machine.keys("ctrl+a", "ctrl+v")
        machine.type("x")  # what is typed becomes upper case
        machine.keys("ctrl+a", "ctrl+x")
        wait_for("what was put in and cut out", lambda: machine.clipboard() == "ÅngströmX")
        machine.type("Clara")
        self.proceed()
        machine.put_into_clipboard("of another program")
        self.assertEqual(machine.clipboard(), "of another program")
        machine.move(self.left + self.PANE[0], self.top + self.PANE[1])
        machine.move(self.left + self.PANE[0] + 3, self.top + self.PANE[1] + 3)
        wait_for("the clipboard to be emptied", lambda: machine.clipboard() == "")

    def test_print(self):
        """To the default printer as its user has set it, without a dialog."""
        self.type_person()
        self.proceed()
        before = len(machine.paper.queue.printed())
        self.click(*self.PRINT)
        wait_for("the page", lambda: len(machine.paper.queue.printed()) > before)
        self.assertEqual(machine.windows("(?!Orravane v1.0).*Orravane.*"), [])
        document = machine.paper.queue.printed()[-1]
        self.assertEqual(machine.paper.queue.title(document), "Orravane")
        page = document.read_bytes()
        self.assertTrue(page.startswith(b"%!PS"))
        self.assertIn(b"%%BeginFeature: *PageSize Letter", page)
        self.assertIn(b"%%Pages: 1", page)
        shutil.copy(document, PICTURES / "print.ps")

    def personal_month_of_october(self, name):
        """What the window says of a person born in the month whose name begins with an O."""
        self.type_person()
        machine.keys("Tab", "o", "alt+p")
        time.sleep(2)
        target = self.save_as(name)
        machine.keys("Return")
        wait_for("the file", target.exists)
        time.sleep(1)
        return re.search(rb"Your Personal Month is: (\d+)", target.read_bytes()).group(1)

    def test_months_in_another_language(self):
        """They are those of the user's system; in a report they count as nothing."""
        english = self.personal_month_of_october("october.rtf")
        done = machine.run(LINUX_TOOL, "--first", "Clara", "--last", "Winter", "--date", "1900-10-01",
                           "--topic", "Personal Month", capture_output=True)
        self.assertTrue(done.stdout.startswith(b"Your Personal Month is: " + english + b"\n"))

        locales = machine.folder / "locales"
        locales.mkdir()
        machine.run("localedef", "--no-archive", "-i", "de_DE", "-f", "UTF-8",
                    locales / "de_DE.UTF-8", check=True)
        self.tearDown()
        subprocess.run(["wineserver", "-k"], env=machine.env, check=False)
        try:
            self.start({"LC_ALL": "de_DE.UTF-8", "LOCPATH": str(locales)})
            self.click(315 + 150, 56 + 211)
            time.sleep(1)
            machine.keep("months-in-german")
            machine.keys("Escape")
            self.assertNotEqual(self.personal_month_of_october("oktober.rtf"), english)
        finally:
            self.tearDown()
            subprocess.run(["wineserver", "-k"], env=machine.env, check=False)
            for name in ("october.rtf", "oktober.rtf"):
                (machine.home / "Documents" / name).unlink(missing_ok=True)

    def test_at_a_larger_scale(self):
        """The same window half as large again, with artwork of its own."""
        desktop = r"HKCU\Control Panel\Desktop"
        machine.wine("reg", "add", desktop, "/v", "LogPixels", "/t", "REG_DWORD", "/d", "144", "/f")
        try:
            self.tearDown()
            subprocess.run(["wineserver", "-k"], env=machine.env, check=False)
            self.program = machine.start(machine.portable / "orravane.exe")
            _, left, top, width, height = self.place_of()
            time.sleep(3)
            self.assertEqual(width, 626 * 3 // 2)
            machine.keep("scale-150-start")
            top += height - 660
            machine.click(left + 465 * 3 // 2, top + 156 * 3 // 2)
            machine.type("Clara")
            machine.keys("Tab", "Tab")
            machine.type("Winter")
            machine.keys("alt+p")
            time.sleep(2)
            machine.keep("scale-150-report")
        finally:
            self.tearDown()
            machine.wine("reg", "delete", desktop, "/v", "LogPixels", "/f")
            subprocess.run(["wineserver", "-k"], env=machine.env, check=False)


class Installer(unittest.TestCase):

    def user_files(self):
        drive = machine.folder / "prefix/drive_c"
        return {name for name in files_below(drive) if "orravane" in name.lower()
                or "Start Menu" in name}

    def registry(self):
        done = machine.wine("reg", "query", "HKCU\\Software", "/s", stdout=subprocess.PIPE)
        text = done.stdout.decode(errors="replace")
        done = machine.wine("reg", "query",
                            "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall", "/s",
                            stdout=subprocess.PIPE)
        text += done.stdout.decode(errors="replace")
        return [line for line in text.splitlines()
                if line.startswith("HKEY") and ("orravane" in line.lower() or "QtProject" in line)]

    def check(self, *options):
        machine.wine("reg", "delete", "HKCU\\Software\\orravane", "/f", check=False)
        shutil.rmtree(machine.home / "AppData/Local/orravane", ignore_errors=True)
        for lock in machine.home.glob("Temp/orravane-*.lock"):
            lock.unlink()
        before = self.user_files()
        self.assertEqual(self.registry(), [])
        machine.wine(SETUP, "/S", *options)
        entries = [name for name in self.user_files() if name.endswith("Orravane.lnk")]
        self.assertEqual(len(entries), 1)
        self.assertEqual(len(self.registry()), 1)

        machine.wine("start", "/unix", machine.folder / "prefix/drive_c" / entries[0], check=False)
        wait_for("the window", lambda: machine.windows("Orravane v1.0"))
        time.sleep(2)
        # While it runs it is neither replaced nor removed.
        uninstall = next(machine.folder.glob("prefix/drive_c/**/Orravane/Uninstall.exe"))
        self.assertEqual(machine.wine(SETUP, "/S", *options, check=False).returncode, 2)
        machine.keys("alt+f", "x")
        wait_for("it to go", lambda: not machine.windows("Orravane v1.0"))

        machine.wine(uninstall, "/S", *options)
        wait_for("all to be gone", lambda: not uninstall.parent.exists())
        time.sleep(1)
        self.assertEqual(self.user_files(), before)
        self.assertEqual(self.registry(), [])

    def test_for_one_user(self):
        self.check("/CurrentUser")

    def test_for_all_users(self):
        self.check("/AllUsers")


if __name__ == "__main__":
    machine = Machine()
    try:
        unittest.main(verbosity=2)
    finally:
        machine.close()
