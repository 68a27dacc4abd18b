"""Every page at the sizes that displays are set to: pictures to look at, checked for what a
look would find at once."""

import desktop
from desktop import Desktop, DesktopTest
from program import CLIENT, COMPREHENSIVE, GOLD, PAGE_COLOUR, TOPIC_INK
from readings import MARIA
from waiting import wait_for

WHITE = (255, 255, 255)

INPUT_LABELS = ["Label1", "Label4", "Label5", "Label6", "Label3", "Label7"]
HELP_HEADINGS = ["lblHelp0", "lblHelp1", "lblAbout2"]
HELP_TEXTS = ["Label15", "Label16", "Label17"]


class Screens(DesktopTest):

    def assert_text_is_whole(self, program, label, colour, lines=1):
        """The text of a label keeps clear of the right edge of its place, where it would be cut,
        of the bottom edge too where it has several lines, and of the page beyond."""
        part = program.desktop.screenshot(*program.box_around(label, 4))
        around = round(4 * program.scale)

        def inked(left, top, right, bottom):
            return sum(1 for y in range(top, bottom) for x in range(left, right)
                       if near(part.pixel(x, y), colour))

        self.assertGreater(inked(around, around, part.width - around, part.height - around), 5)
        edge = part.width - around
        self.assertEqual(inked(edge - 1, around, edge + around // 2, part.height - around), 0)
        edge = part.height - around
        first = edge - 1 if lines > 1 else edge
        self.assertEqual(inked(around, first, part.width - around, edge + around // 2), 0)

    def check_pages(self, scale, screen_size):
        with Desktop(f"screens-{scale}", size=screen_size) as screen:
            program = screen.orravane(scale=scale)

            # 626 by 440 and the menu bar, nothing of it off the screen; fixed.
            self.assertEqual(program.width, round(CLIENT[0] * scale))
            self.assertGreaterEqual(program.menu_height, 16 * scale)
            self.assertLessEqual(program.menu_height, 32 * scale)
            self.assertGreaterEqual(program.left, 0)
            self.assertGreaterEqual(program.top, 0)
            self.assertLessEqual(program.left + program.width, screen_size[0])
            self.assertLessEqual(program.top + program.height, screen_size[1])
            hints = screen.run("xprop", "-id", str(program.window), "WM_NORMAL_HINTS",
                               "_MOTIF_WM_HINTS").decode()
            for bound in ("minimum", "maximum"):
                self.assertIn(f"program specified {bound} size: {program.width} by "
                              f"{program.height}\n", hints)
            # Of what a window manager may do: 4 move, 32 close; neither 8 minimise nor 16
            # maximise.
            functions = int(hints.partition("_MOTIF_WM_HINTS")[2].split(",")[1], 16)
            self.assertEqual(functions & (4 | 8 | 16 | 32), 4 | 32)

            # In the middle of the screen, its frame and title bar included or not.
            for start, extent, whole, slack in ((program.left, program.width, screen_size[0], 2),
                                                (program.top, program.height, screen_size[1], 32)):
                self.assertLessEqual(abs(start + extent / 2 - whole / 2), slack)

            screen.park_mouse()
            picture = program.keep("input")
            colours = picture.colours()
            self.assertGreater(len(colours), 300)  # the night sky
            self.assertGreater(colours[PAGE_COLOUR], picture.width * picture.height // 4)
            for label in INPUT_LABELS:
                self.assert_text_is_whole(program, label, WHITE)

            program.proceed(MARIA)
            screen.park_mouse()
            wait_for("the Save button to be plain",
                     lambda: program.part("picSave").brightness() <
                     program.part("picPrint").brightness() + 10)
            report = program.keep("report")
            self.assertGreater(program.part("RTB").colours()[TOPIC_INK], 200 * scale)
            self.assertNotEqual(report, picture)
            program.read_topic(COMPREHENSIVE, MARIA)
            program.keep("comprehensive-reading")

            program.click_row("Help")
            screen.park_mouse()
            wait_for("the help page", lambda: program.part("Picture1").colours()[TOPIC_INK] == 0)
            self.assertNotEqual(program.keep("help"), report)
            for label in HELP_HEADINGS:
                self.assert_text_is_whole(program, label, GOLD)
            for label in HELP_TEXTS:
                self.assert_text_is_whole(program, label, WHITE, lines=8)

            # The web address is painted under its hot area, whole.
            self.assertGreater(sum(count for colour, count in
                                   program.part("lblHyperlink").colours().items()
                                   if near(colour, (255, 217, 92))), 50 * scale)
            self.assert_quiet(screen)

    def test_scale_1(self):
        self.check_pages(1, (1024, 768))

    def test_scale_1_5(self):
        self.check_pages(1.5, (1280, 1024))

    def test_scale_2(self):
        self.check_pages(2, (1600, 1200))


def near(colour, wanted):
    return all(abs(one - other) < 40 for one, other in zip(colour, wanted))


if __name__ == "__main__":
    desktop.main()
