"""What the program says to the world: nothing. A whole story under strace, with every socket that
the program and its children open."""

import re
import shutil
import sys

import desktop
from desktop import Desktop, DesktopTest, HELP_PAGE, HOME_PAGE, ORRAVANE, THANK_YOU_PAGE
from print_queue import PrintQueue
from program import COMPREHENSIVE, Program
from readings import MARIA
from waiting import wait_for

BROWSER = "/xdg-open"  # whatever follows is the browser's affair

# A cache of the system's own for names of users, which its library asks where it is there.
NAME_CACHE = "/var/run/nscd/socket"

CALL = re.compile(r"^(\d+) +(\w+)\((.*)$")


def traced(trace, *command):
    """`command` under strace, in whose place the program itself is the child."""
    return ["strace", "-D", "-f", "--seccomp-bpf", "-qq", "-s", "200", "-e",
            "trace=%network,execve,clone,clone3,fork,vfork", "-o", str(trace), *command]


def complaints(trace, allowed):
    """What is in a trace besides connections to the paths in `allowed`, which are regular
    expressions, and what only asks about such a connection or uses it. The browser and its
    children are left out."""
    found, browser = [], set()
    for line in trace.read_text(errors="replace").splitlines():
        match = CALL.match(line)
        if match is None:
            continue
        process, call, rest = match.groups()
        if call == "execve" and BROWSER + '"' in rest:
            browser.add(process)
        if call in ("clone", "clone3", "fork", "vfork"):
            child = re.search(r"= (\d+)$", rest)
            if child and process in browser:
                browser.add(child[1])
        if process in browser or call == "execve":
            continue
        if call in ("socket", "socketpair"):
            if not rest.startswith("AF_UNIX"):
                found.append(line)
        elif call == "connect":
            path = re.search(r'sun_path=@?"([^"]*)"', rest)
            if path is None or not any(re.fullmatch(known, path[1]) for known in allowed):
                found.append(line)
        elif call in ("bind", "listen", "accept", "accept4"):
            found.append(line)
        elif call in ("sendto", "sendmsg") and "sa_family" in rest:
            found.append(line)  # to somebody without a connection
    return found


class Network(DesktopTest):

    def setUp(self):
        if shutil.which("strace") is None:
            raise AssertionError("this test needs the program strace")

    def test_a_whole_story_stays_on_the_machine(self):
        with Desktop("network", accessible=True) as screen:
            queue = PrintQueue(screen)
            trace = screen.folder / "trace"
            process = screen.spawn(traced(trace, ORRAVANE), log="orravane", env=queue.env)
            program = Program(screen, process)
            program.proceed(MARIA)
            program.read_topic("Essence", MARIA)
            program.read_topic(COMPREHENSIVE, MARIA)
            program.save_as("report.rtf")
            saved = screen.home / "Documents/report.rtf"
            wait_for("the saved file", saved.exists)
            program.click("picPrint")
            wait_for("the printed document", lambda: len(queue.printed()) == 1)
            program.click("picHelp")
            screen.await_pages([HELP_PAGE])
            program.click("lblHyperlink")
            screen.await_pages([HELP_PAGE, HOME_PAGE])
            screen.keys("alt+f")
            screen.keys("x")
            self.assertEqual(program.await_end(), 0)
            screen.await_pages([HELP_PAGE, HOME_PAGE, THANK_YOU_PAGE])
            self.assert_quiet(screen)

            buses = [screen.env["DBUS_SESSION_BUS_ADDRESS"], screen.accessibility.bus]
            allowed = [
                re.escape(f"/tmp/.X11-unix/X{screen.env['DISPLAY'][1:]}"),
                *(re.escape(re.search(r"(?:path|abstract)=([^,]*)", bus)[1]) for bus in buses),
                re.escape(str(screen.folder / "no-system-bus")),
                re.escape(str(queue.socket)),
                re.escape(NAME_CACHE),
            ]
            self.assertEqual(complaints(trace, allowed), [])
            # The trace has seen the story: the display, both buses and the printer.
            text = trace.read_text(errors="replace")
            for path in [allowed[0], *allowed[1:3], allowed[4]]:
                self.assertRegex(text, rf'connect\(.*"{path}"')
            self.assertIn(BROWSER, text)

    def test_what_would_be_found(self):
        """Each of these in place of the program is found, and the browser's own are not."""
        programs = {
            "connect": "s = socket.socket(); s.connect_ex(('127.0.0.1', 9))",
            "send": "s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM);"
                    " s.sendto(b'', ('127.0.0.1', 9))",
            "listen": "s = socket.socket(socket.AF_UNIX); s.bind('listener'); s.listen()",
            "other": "s = socket.socket(socket.AF_UNIX); s.connect_ex('somewhere')",
            "child": "import os; os.fork() or socket.socket().connect_ex(('127.0.0.1', 9))",
        }
        with Desktop("network-found", display=False) as screen:
            for name, program in programs.items():
                with self.subTest(name):
                    trace = screen.folder / f"trace-{name}"
                    process = screen.spawn(
                        traced(trace, sys.executable, "-c", "import socket; " + program),
                        log=f"python-{name}")
                    process.wait(30)
                    wait_for("what is found", lambda: trace.exists() and complaints(trace, []))
            browser = screen.bin / "xdg-open"
            browser.write_text(f"#!{sys.executable}\nimport socket\n"
                               "socket.socket().connect_ex(('127.0.0.1', 9))\n")
            trace = screen.folder / "trace-browser"
            process = screen.spawn(traced(trace, str(browser)), log="browser")
            process.wait(30)
            wait_for("the browser's connection", lambda: "sin_port=htons(9)" in trace.read_text())
            self.assertEqual(complaints(trace, []), [])


if __name__ == "__main__":
    desktop.main()
