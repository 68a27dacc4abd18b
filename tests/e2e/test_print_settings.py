"""Print takes the printer and its settings as they are: paper, margins and saved options."""

import re
import shutil
import socket
import subprocess

import desktop
from desktop import Desktop, DesktopTest
from documents import PdfText, difference, words
from picture import Picture
from print_queue import PrintQueue
from program import TOPICS
from readings import MARIA, plain_text
from waiting import DEADLINE, wait_for

A4 = (595, 842)
LETTER = (612, 792)
POINTS_TO_DOTS = 150 / 72


class PrintSettings(DesktopTest):

    def print(self, program, queue):
        before = len(queue.printed())
        program.click("picPrint")
        wait_for("the printed document", lambda: len(queue.printed()) > before)
        return queue.printed()[-1]

    def paper(self, document):
        """The size of every page in points."""
        done = subprocess.run(["pdfinfo", "-l", "-1", str(document)], capture_output=True,
                              timeout=DEADLINE, check=True)
        sizes = {(round(float(width)), round(float(height))) for width, height in
                 re.findall(r"^Page +\d+ size: +([\d.]+) x ([\d.]+) pts", done.stdout.decode(),
                            re.MULTILINE)}
        self.assertEqual(len(sizes), 1, done.stdout)
        return sizes.pop()

    def margins(self, document):
        """What stays white around the first page: left, top, right, bottom, in points."""
        done = subprocess.run(["pdftoppm", "-r", "150", "-gray", "-l", "1", str(document)],
                              capture_output=True, timeout=DEADLINE, check=True)
        header, width, height, pixels = re.match(rb"(P5\s+(\d+)\s+(\d+)\s+255\s)(.*)",
                                                 done.stdout, re.DOTALL).groups()
        width, height = int(width), int(height)
        rows = [pixels[y * width:(y + 1) * width] for y in range(height)]
        inked = [y for y, row in enumerate(rows) if row.strip(b"\xff")]
        left = min(width - len(rows[y].lstrip(b"\xff")) for y in inked)
        right = min(width - len(rows[y].rstrip(b"\xff")) for y in inked)
        return tuple(dots / POINTS_TO_DOTS
                     for dots in (left, inked[0], right, height - 1 - inked[-1]))

    def assert_margins(self, document, left, top, right, bottom):
        """The text begins at the margins. On the right and below, lines end where they do."""
        seen = self.margins(document)
        self.assertAlmostEqual(seen[0], left, delta=3)
        self.assertAlmostEqual(seen[1], top, delta=8)  # a line has some white above its letters
        self.assertGreater(seen[2], right - 1)
        self.assertLess(seen[2], right + 40)
        self.assertGreater(seen[3], bottom - 1)

    def assert_as_by_lp(self, queue, document):
        """The job is the one that `lp` makes of the document."""
        by_command = queue.print_by_command(document)
        self.assertEqual(queue.settings(document), queue.settings(by_command))

    def settle(self, name, queue_options, cases):
        with Desktop(name) as screen:
            queue = PrintQueue(screen, **queue_options)
            program = screen.orravane(env=queue.env)
            program.proceed(MARIA)
            runs = program.read_topic("Planes Of Expression / Personal Aspects", MARIA)
            for options, paper, margins in cases:
                with self.subTest(options):
                    if options:
                        queue.save_options(*options)
                    document = self.print(program, queue)
                    self.assertEqual(self.paper(document), paper)
                    self.assert_margins(document, *margins)
                    self.assertEqual(difference(PdfText(document).words, words(plain_text(runs))),
                                     "")
                    self.assert_as_by_lp(queue, document)
                    settings = queue.settings(document)
                    for option in options:
                        option, _, value = option.partition("=")
                        if option == "copies":
                            option = "copies of the document"
                        self.assertEqual(settings.get(option), value)
                    tag = "-".join(re.sub(r"\W", "_", option) for option in options) or "plain"
                    shutil.copy(document, screen.artefact(tag + ".pdf"))
            self.assert_quiet(screen)

    def test_printer_with_letter(self):
        self.settle("print-letter", {"paper": "Letter"}, [
            ([], LETTER, (18, 18, 18, 18)),
            (["media=A4"], A4, (18, 18, 18, 18)),
            (["PageSize=A4"], A4, (18, 18, 18, 18)),
        ])

    def test_printer_with_a4(self):
        self.settle("print-a4", {"paper": "A4", "margins": (30, 50, 40, 60)}, [
            ([], A4, (30, 50, 40, 60)),
            (["media=na_letter_8.5x11in"], LETTER, (30, 50, 40, 60)),
            (["copies=3"], A4, (30, 50, 40, 60)),
            (["number-up=2", "sides=two-sided-long-edge"], A4, (30, 50, 40, 60)),
            # The wider of the two edges that may come to be on top or on the left.
            (["landscape"], A4[::-1], (60, 40, 60, 40)),
            (["orientation-requested=4", "copies=2"], A4[::-1], (60, 40, 60, 40)),
            (["orientation-requested=6"], A4, (30, 50, 40, 60)),
        ])

    def test_printer_without_a_border(self):
        self.settle("print-borderless", {"paper": "Letter", "margins": (0, 9, 0, 0)}, [
            ([], LETTER, (18, 18, 18, 18)),  # letters never stand at the very edge
        ])

    def test_server_that_does_not_answer(self):
        """It takes connections and never says a word; the window comes back all the same, within the
        deadline of what is done next."""
        with Desktop("print-silence") as screen, \
                socket.socket(socket.AF_UNIX) as silent:
            path = screen.folder / "silent.sock"
            silent.bind(str(path))
            path.chmod(0o777)
            silent.listen(50)
            program = screen.orravane(env={"CUPS_SERVER": str(path)})
            program.proceed(MARIA)
            program.click("picPrint")
            program.read_topic(TOPICS[1], MARIA)
            self.assertEqual(screen.program_windows(), [program.window])


if __name__ == "__main__":
    desktop.main()
