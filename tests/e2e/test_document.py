"""The window that makes documents, and what is in a PDF: by keyboard on a real desktop, with the
real engine."""

import contextlib
import os
import re
import shutil
import zlib

import desktop
from desktop import Desktop, DesktopTest
from documents import missing_word, words, words_once
from readings import MARIA, tool
from waiting import wait_for

PROGRAM = os.environ.get("ORRAVANE_DOCUMENT", "")
TITLE = "Orravane Document"
DAY = "2026-11-16"


def pdf_words(screen, path, head):
    """The words of a PDF, without those at the head and the foot of its pages and without the
    hyphens where they are parted at the end of a line."""
    pages = screen.run("pdftotext", str(path), "-").decode().split("\f")
    lines = []
    for number, page in enumerate(pages, 1):
        lines += [line for line in page.splitlines() if line not in (*head, str(number))]
    return words(re.sub("\u2010\\s+", "", "\n".join(lines)))


def unpacked(pdf):
    """The bytes of a PDF, and behind them what its streams hold: newer engines pack all they
    write into such."""
    content = [pdf]
    for stream in re.finditer(b"stream\r?\n", pdf):
        with contextlib.suppress(zlib.error):
            content.append(zlib.decompressobj().decompress(pdf[stream.end():]))
    return b"\n".join(content)


class Document(DesktopTest):

    def open(self, screen, env=None):
        process = screen.spawn([PROGRAM], log="document", env=env)
        self.window = screen.window(TITLE)
        screen.await_keyboard(self.window)
        return process

    def enter(self, screen, person):
        """Types the names, picks the date; the focus ends on the year."""
        for text in (person.first, person.middle, person.last, person.month, str(person.day)):
            screen.type(text)
            screen.keys("Tab")
        screen.type(str(person.year))

    def return_to_window(self, screen):
        """Waits until no dialog is there and gives the window the keyboard, which is the window
        manager's affair."""
        wait_for("the dialogs to go", lambda: screen.windows(TITLE) == [self.window])
        screen.xdotool("windowactivate", self.window)
        screen.await_keyboard(self.window)

    def make(self, screen, name):
        """Presses Enter and answers the dialog with `name`, or with what it proposes."""
        screen.keys("Return")
        wait_for("the save dialog", lambda: len(screen.windows(TITLE)) == 2)
        (dialog,) = set(screen.windows(TITLE)) - {self.window}
        screen.await_keyboard(dialog)
        if name is not None:
            screen.keys("ctrl+a")
            screen.type(name)
        screen.keys("Return")
        self.return_to_window(screen)

    def test_window(self):
        with Desktop("document", accessible=True) as screen:
            # The engine takes its time for the PDF that is given up.
            slow = screen.folder / "slow-python"
            slow.write_text("#!/bin/sh\n[ -e \"$0-no-more\" ] || sleep 100\nexec /usr/bin/python3 \"$@\"\n")
            slow.chmod(0o755)
            engine = screen.bin / "weasyprint"
            engine.write_text(f"#!{slow}\n")
            engine.chmod(0o755)

            process = self.open(screen)
            documents = screen.home / "Documents"
            self.enter(screen, MARIA)
            screen.await_painted(self.window).save(screen.artefact("window.png"))

            # A PDF that is given up leaves nothing.
            self.make(screen, None)
            application = screen.accessibility.application(process)
            wait_for("the bar of the work", lambda: "progress bar" in application.by_role())
            screen.screenshot(*screen.geometry(self.window)).save(screen.artefact("busy.png"))
            screen.keys("Escape")
            wait_for("the end of the work", lambda: "Cancelled; nothing was written" in
                     [name for name, _ in application.by_role()["label"]])
            self.assertEqual(list(documents.iterdir()), [])

            # One that is made is the person's, and is shown.
            (screen.folder / "slow-python-no-more").touch()
            self.make(screen, None)
            pdf = documents / "maria elena fernandez.pdf"
            wait_for("the PDF", pdf.exists)
            self.assertTrue(pdf.read_bytes().startswith(b"%PDF-"))
            screen.await_pages([f"file://{documents}/maria%20elena%20fernandez.pdf"])

            # HTML, which is not shown this time. What is there already is asked about once.
            screen.keys("alt+t")
            screen.type("HTML")
            screen.keys("alt+o")
            self.make(screen, "other")
            html = documents / "other.html"
            wait_for("the HTML", html.exists)
            self.assertIn(b"maria elena fernandez", html.read_bytes())
            html.write_bytes(b"earlier")
            screen.keys("Return")
            wait_for("the save dialog", lambda: len(screen.windows(TITLE)) == 2)
            screen.await_keyboard((set(screen.windows(TITLE)) - {self.window}).pop())
            screen.keys("ctrl+a")
            screen.type("other.html")
            screen.keys("Return")
            wait_for("the question", lambda: len(screen.windows(TITLE)) == 3)
            screen.keys("alt+y")
            wait_for("the file to be replaced", lambda: html.read_bytes() != b"earlier")
            self.assertEqual(len(screen.opened_pages()), 1)

            self.return_to_window(screen)
            screen.keys("ctrl+q")
            wait_for("the end of the program", lambda: process.poll() is not None)
            self.assertEqual(process.returncode, 0)
            self.assert_quiet(screen, "document")

    def test_pdf(self):
        with Desktop("document-pdf", display=False) as screen:
            pdf = screen.folder / "maria.pdf"
            pdf.write_bytes(tool(*MARIA.options(), "--today", DAY, "--format", "pdf"))
            shutil.copy(pdf, screen.artefact("maria.pdf"))

            facts = dict(re.findall(r"^(.+?): +(.*)$", screen.run("pdfinfo", str(pdf)).decode(),
                                    re.MULTILINE))
            self.assertIn("maria elena fernandez", facts["Title"])
            self.assertIn("A numerology report for maria elena", facts["Subject"])
            self.assertEqual(facts["Author"], "Orravane")
            self.assertEqual(facts["Encrypted"], "no")
            self.assertGreater(int(facts["Pages"]), 10)
            content = unpacked(pdf.read_bytes())
            for part in (b"/Lang (en", b"/Outlines", b"/Subtype /Link"):
                self.assertIn(part, content)

            # Every text of the report, in its order.
            expected = words_once(tool(*MARIA.options(), "--today", DAY).decode())
            self.assertGreater(len(expected), 5000)
            found = pdf_words(screen, pdf, ("maria elena fernandez", "November 16, 2026"))
            self.assertEqual(missing_word(expected, found), "")


if __name__ == "__main__":
    desktop.main()
