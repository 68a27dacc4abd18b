"""Every link, button and menu entry of the running window that opens a page, with nothing in
between replaced: the system's xdg-open, the user's browser, TLS, nginx and the site itself."""

import datetime
import json
import os
import re
import urllib.request

import desktop
from desktop import Desktop, DesktopTest, HELP_PAGE, HOME_PAGE, SITE, THANK_YOU_PAGE, UPDATE_PAGE
from program import Program
from server import Server
from titles import TITLES
from waiting import wait_for


class Browser:
    """Chromium as the default browser of the user of `screen`, who reaches `server` by its name."""

    def __init__(self, screen, server):
        self.screen, self.seen = screen, 0
        self.profile = screen.folder / "profile"
        (screen.bin / "xdg-open").unlink()  # so that the system's own is found
        starter = screen.bin / "browser"
        options = [*server.browser_options(self.profile), "--test-type", "--window-size=1200,960",
                   "--window-position=10,10", "--remote-debugging-port=0"]
        quoted = " ".join("'" + option + "'" for option in options)
        starter.write_text(f"#!/bin/sh\nexec chromium {quoted} \"$@\" >/dev/null 2>&1\n")
        starter.chmod(0o755)
        entries = screen.home / ".local/share/applications"
        entries.mkdir(parents=True)
        (entries / "browser.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Browser\nExec={starter} %u\n"
            "MimeType=x-scheme-handler/https;\n")
        (screen.home / ".config").mkdir()
        (screen.home / ".config/mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/https=browser.desktop\n")

    def pages(self):
        """The addresses and titles of what is open, as the browser tells."""
        try:
            port = (self.profile / "DevToolsActivePort").read_text().split()[0]
            with urllib.request.urlopen(f"http://127.0.0.1:{port}/json", timeout=5) as answer:
                return [(page["url"], page["title"]) for page in json.load(answer)
                        if page["type"] == "page"]
        except (OSError, IndexError):  # not yet, or no longer
            return []

    def expect(self, address, name):
        """Waits for the page, looks at it and closes the browser."""
        title = TITLES[address.removeprefix(SITE)]
        wait_for(f"{address} in the browser, where there is {self.pages()}",
                 lambda: self.pages() == [(address, title)])
        window = self.screen.window(f"{title} - Chromium")
        place = self.screen.geometry(window)

        def shown():
            picture = self.screen.screenshot(*place)
            return picture if self.looks_like_the_site(picture) else None

        try:
            picture = wait_for(f"the picture of {address}", shown)
        finally:
            self.seen += 1
            self.screen.screenshot(*place).save(
                self.screen.artefact(f"{self.seen:02}-{name}.png"))
        self.screen.xdotool("windowactivate", "--sync", window)
        self.screen.keys("alt+F4")
        wait_for("the browser to end", lambda: not self.pages())
        wait_for("its window to go", lambda: not self.screen.windows(f"{title} - Chromium"))
        return picture

    @staticmethod
    def looks_like_the_site(picture):
        """The night above with the golden wordmark in it, and below it a page with text."""
        colours = picture.colours()
        night = sum(count for (red, green, blue), count in colours.items()
                    if red < 90 and green < red and red < blue < 120)
        gold = sum(count for (red, green, blue), count in colours.items()
                   if red > 230 and 170 < green < 240 and blue < 170)
        ground = colours[(251, 249, 253)]
        ink = colours[(43, 33, 56)]
        return night > 60_000 and gold > 300 and ground > 60_000 and ink > 200

class Links(DesktopTest):

    def pick_menu(self, program, menu, entry):
        screen = program.desktop
        tree = screen.accessibility.application(program.process)
        items = {node.name(): node for node in tree.find("menu bar").descendants()}
        before = screen.program_windows()
        items[menu].click()
        wait_for("the menu", lambda: screen.program_windows() != before)
        items[entry].click()
        wait_for("the menu to close", lambda: screen.program_windows() == before
                 or not program.alive())

    def ask_for_update(self, screen):
        """Makes the stored moment of the last question 20 days old."""
        settings = screen.home / ".config/orravane/orravane.conf"
        stored = re.search(r"LastUpdate=(\S+)", settings.read_text())[1]
        moment = datetime.datetime.fromisoformat(stored) - datetime.timedelta(days=20)
        settings.write_text(settings.read_text().replace(stored, moment.isoformat()))

    def test_each_opens_its_page(self):
        with Server(os.environ["ORRAVANE_SITE_FOLDER"], os.environ["ORRAVANE_SITE_HOST"]) as server, \
                Desktop("links", accessible=True) as screen:
            browser = Browser(screen, server)
            program = screen.orravane()

            self.pick_menu(program, "Help", "Online Help")
            browser.expect(HELP_PAGE, "menu-online-help")
            self.pick_menu(program, "Help", "Visit Us Online")
            browser.expect(HOME_PAGE, "menu-visit-us-online")
            program.click("picHelp")
            browser.expect(HELP_PAGE, "button-help")
            program.click("lblHyperlink")
            browser.expect(HOME_PAGE, "web-address")

            # The help page of the window, whose third heading is no link.
            self.pick_menu(program, "Help", "About Software")
            program.click("lblAbout2")
            program.click("lblHelp0")
            browser.expect(HELP_PAGE, "heading-online-help")
            program.click("lblHelp1")
            browser.expect(HOME_PAGE, "heading-visit-us-online")

            # A second start is turned away, with the page of the way out.
            second = screen.start(log="second")
            screen.accessibility.dialog(second, "Orravane").find("push button", "OK").click()
            browser.expect(THANK_YOU_PAGE, "second-start")
            self.assertTrue(program.alive())

            program.click("picExit")
            question = screen.accessibility.dialog(program.process, "Orravane")
            question.find("push button", "Yes").click()
            self.assertEqual(program.await_end(), 0)
            browser.expect(THANK_YOU_PAGE, "button-exit")

            self.ask_for_update(screen)
            process = screen.start()
            question = screen.accessibility.dialog(process, "Orravane")
            question.find("push button", "Yes").click()
            browser.expect(UPDATE_PAGE, "update-question")
            program = Program(screen, process)
            self.pick_menu(program, "File", "Exit")
            self.assertEqual(program.await_end(), 0)
            browser.expect(THANK_YOU_PAGE, "menu-exit")

            program = screen.orravane()
            screen.await_keyboard(program.window)
            screen.keys("alt+F4")
            self.assertEqual(program.await_end(), 0)
            browser.expect(THANK_YOU_PAGE, "close-button")
            self.assertEqual(server.errors(), "")

if __name__ == "__main__":
    desktop.main()
