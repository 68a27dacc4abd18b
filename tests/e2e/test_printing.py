"""Printing on a real queue: at once, whole, in bold and colour; and silence without a printer."""

import shutil
import subprocess

import desktop
from desktop import Desktop, DesktopTest
from documents import PdfText, bold_words, difference, pdf_fonts, words
from picture import Picture
from print_queue import PrintQueue
from program import COMPREHENSIVE, PAGE_COLOUR, TOPICS, TOPIC_INK
from readings import MARIA, plain_text
from waiting import DEADLINE, wait_for

MARGIN_POINTS = 18  # what the printer cannot reach


class Printing(DesktopTest):

    @staticmethod
    def report_text(program):
        """The pane within the frame that shows the focus."""
        return program.desktop.screenshot(*program.box_around("RTB", -4))

    def print_by_mouse(self, program, queue):
        """Clicks Print; gives the document that comes out."""
        before = len(queue.printed())
        program.click("picPrint")
        wait_for("the printed document", lambda: len(queue.printed()) > before)
        return queue.printed()[-1]

    def assert_document(self, document, runs):
        look = PdfText(document, MARGIN_POINTS)
        self.assertEqual(difference(look.words, words(plain_text(runs))), "")
        self.assertEqual(difference(look.bold_words, bold_words(runs)), "")
        self.assertEqual(look.colours, {"#800080"})
        self.assertEqual(sorted("Bold" in font for font in pdf_fonts(document)), [False, True])

    def page_picture(self, document, page):
        done = subprocess.run(["pdftoppm", "-r", "100", "-f", str(page), "-l", str(page),
                               str(document)], capture_output=True, timeout=DEADLINE)
        return Picture.from_ppm(done.stdout)

    def test_print(self):
        with Desktop("print") as screen:
            queue = PrintQueue(screen)
            program = screen.orravane(env=queue.env)
            program.proceed(MARIA)

            runs = program.read_topic(COMPREHENSIVE, MARIA)
            windows = screen.program_windows()
            document = self.print_by_mouse(program, queue)
            self.assertEqual(screen.program_windows(), windows)  # no dialog of any kind
            self.assertEqual(queue.title(document), "Orravane")
            shutil.copy(document, screen.artefact("comprehensive-reading.pdf"))
            self.assert_document(document, runs)

            # On the paper: ink of one colour on white, inside margins on all sides.
            page = self.page_picture(document, 1)
            page.save(screen.artefact("page-1.png"))
            colours = page.colours()
            self.assertGreater(colours[TOPIC_INK], 1000)
            self.assertGreater(colours[(255, 255, 255)], page.width * page.height // 2)
            for red, green, blue in colours:  # nothing but that ink and its smooth edges
                self.assertLessEqual(abs(red - blue), 2)
                self.assertLessEqual(abs(2 * red - green - 255), 4)
            self.assert_margins(page)

            # Marked text: the marks are dropped and all is printed.
            marked = program.read_topic("Soul Urge / Heart's Desire Number", MARIA)
            self.assertGreater(self.report_text(program).colours()[PAGE_COLOUR], 1000)
            document = self.print_by_mouse(program, queue)
            self.assert_document(document, marked)
            program.move_to("TV")
            wait_for("the marks to go",
                     lambda: self.report_text(program).colours()[PAGE_COLOUR] < 1000)

            # Some words only, marked by mouse.
            left, top, width, height = program.box("RTB")
            screen.xdotool("mousemove", left + 20, top + 50, "mousedown", 1,
                           "mousemove", left + 120, top + 60,
                           "mousemove", left + 150, top + 65, "mouseup", 1)
            wait_for("marked words", lambda: self.report_text(program).colours()[PAGE_COLOUR] > 200)
            document = self.print_by_mouse(program, queue)
            self.assert_document(document, marked)

            # By its key, below the window's edge as the button is.
            before = len(queue.printed())
            screen.keys("alt+p")
            wait_for("the printed document", lambda: len(queue.printed()) > before)
            self.assert_document(queue.printed()[-1], marked)

            self.assertEqual(queue.jobs(), 4)
            self.assertEqual(screen.program_windows(), windows)
            program.read_topic(TOPICS[0], MARIA)
            self.assert_quiet(screen)

    def assert_margins(self, page):
        white = b"\xff" * 3
        margin = round(MARGIN_POINTS / 72 * 100) - 1  # at 100 dots to the inch, a little less
        self.assertEqual(page.crop(0, 0, page.width, margin).rgb.strip(white), b"")
        self.assertEqual(page.crop(0, 0, margin, page.height).rgb.strip(white), b"")
        self.assertEqual(page.crop(page.width - margin, 0, margin, page.height).rgb.strip(white),
                         b"")
        self.assertEqual(page.crop(0, page.height - margin, page.width, margin).rgb.strip(white),
                         b"")

    def test_print_server_without_printer(self):
        with Desktop("no-printer") as screen:
            queue = PrintQueue(screen, queues=False)
            program = screen.orravane(env=queue.env)
            program.proceed(MARIA)
            before = program.part("RTB")
            files = sorted(screen.home.rglob("*"))
            program.click("picPrint")
            screen.park_mouse()
            screen.keys("alt+p")
            # What comes after shows that the clicks have been dealt with.
            self.assertEqual(before, program.part("RTB"))
            program.read_topic("Personal Day", MARIA)
            self.assertTrue(program.alive())
            self.assertEqual(screen.program_windows(), [program.window])
            self.assertEqual(sorted(screen.home.rglob("*")), files)  # nor a file in its place
            self.assertEqual(screen.opened_pages(), [])
            self.assertEqual(queue.jobs(), 0)
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
