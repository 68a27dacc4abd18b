"""Every page at the sizes that displays are set to: pictures to look at, checked for what a
look would find at once."""

import math

import desktop
from desktop import Desktop, DesktopTest
from program import CLIENT, COMPREHENSIVE, GOLD, PAGE_COLOUR, TOPIC_INK, frame_extents
from readings import MARIA
from waiting import wait_for

WHITE = (255, 255, 255)
MIST = (176, 163, 193)
DUSK = (58, 43, 78)

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
            self.assertEqual(program.width, math.floor(CLIENT[0] * scale + 0.5))
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

            # The frame with its title bar is in the middle of the screen, but for a rounding.
            program.await_centred()
            self.assertGreater(program.frame()[3], program.height + 10)

            screen.park_mouse()
            picture = program.keep("input")
            self.check_edges(program)
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
            self.check_edge(program, "TV", GOLD, 1)  # has the focus now
            self.check_edge(program, "RTB", DUSK, 1)
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

    def check_edge(self, program, control, colour, width):
        """The frame of a control is on all four sides of the same thickness, the one that
        `width` logical pixels have on this display, and of one colour."""
        thickness = max(1, math.floor(width * program.scale + 0.5))
        around = math.ceil(2 * program.scale)
        left, top, width, height = program.box(control)
        part = program.desktop.screenshot(left - around, top - around, width + 2 * around,
                                          height + 2 * around)
        reach = 2 * around + thickness
        # Not in the middle of the lower edge, where a caret or letters could be near.
        x, y = part.width * 3 // 4, part.height // 2
        sides = {"left": [part.pixel(i, y) for i in range(reach)],
                 "right": [part.pixel(part.width - 1 - i, y) for i in range(reach)],
                 "top": [part.pixel(x, i) for i in range(reach)],
                 "bottom": [part.pixel(x, part.height - 1 - i) for i in range(reach)]}
        counts = {side: sum(near(pixel, colour, 12) for pixel in line)
                  for side, line in sides.items()}
        self.assertEqual(counts, dict.fromkeys(sides, thickness), f"{control}: {sides}")

    @staticmethod
    def unpainted(program):
        """How many pixels below the menu nobody has painted."""
        pages = program.picture().crop(0, program.menu_height, program.width,
                                       program.height - program.menu_height)
        return pages.colours()[0, 0, 0]

    def check_edges(self, program):
        self.assertEqual(self.unpainted(program), 0)
        self.check_edge(program, "txtFirstName", GOLD, 2)  # has the focus
        for control in ("txtMiddleName", "txtLastName", "cboMonth", "cboDate", "cboYear"):
            self.check_edge(program, control, MIST, 1)
        # Tree and page end on the same row, and below it the sky begins at once.
        left, top, width, height = program.box("TV")
        ends = []
        for control in ("TV", "Picture1"):
            left, top, width, height = program.box(control)
            bottom = top + height
            column = program.desktop.screenshot(left + width // 3, bottom - 4, 1, 8)
            colours = [column.pixel(0, y) for y in range(8)]
            page = [near(colour, PAGE_COLOUR, 2) for colour in colours]
            ends.append(page.index(False))
            self.assertEqual(page, sorted(page, reverse=True), colours)
        self.assertEqual(ends[0], ends[1])
        self.assertLessEqual(abs(ends[0] - 4), 1)

    def test_scale_1(self):
        self.check_pages(1, (1024, 768))

    def test_scale_1_25(self):
        self.check_pages(1.25, (1280, 1024))

    def test_scale_1_75(self):
        self.check_pages(1.75, (1400, 1050))

    def test_scale_2_5(self):
        self.check_pages(2.5, (1920, 1440))

    def test_a_move_to_a_screen_with_another_ratio(self):
        with Desktop("screens-two", size=(2400, 1000)) as screen:
            screen.run("xrandr", "--setmonitor", "left", "1000/265x1000/265+0+0", "screen")
            screen.run("xrandr", "--setmonitor", "right", "1400/370x1000/265+1000+0", "none")
            screen.start_size = (1000, 1000)
            program = screen.orravane({"QT_SCREEN_SCALE_FACTORS": "left=1;right=1.25"})
            self.check_edges(program)
            for name, scale, to in (("right", 1.25, (1150, 5)), ("left", 1, (60, 300))):
                screen.xdotool("windowmove", program.window, *to)
                program.scale = scale
                width = math.floor(CLIENT[0] * scale + 0.5)

                def fits():
                    program.left, program.top, program.width, program.height = screen.geometry(
                        program.window)
                    return program.width == width

                wait_for(f"the window to be {width} pixels wide", fits)
                program.menu_height = program.height - math.floor(CLIENT[1] * scale)
                screen.park_mouse()
                # It may still move a little, back into the screen.
                wait_for("the window to be painted", lambda:
                         fits() and self.unpainted(program) == 0 and
                         program.part("Picture1").colours()[PAGE_COLOUR] > 60000 * scale * scale)
                program.keep(name)
                self.check_edges(program)
                left, top, width, height = program.frame()
                self.assertGreaterEqual(top, 0)
                self.assertGreaterEqual(left, 0)
            self.assert_quiet(screen)

    def test_a_screen_that_is_too_small(self):
        with Desktop("screens-small", size=(800, 600)) as screen:
            process = screen.start({"QT_SCALE_FACTOR": "2"})
            window = screen.window("Orravane v1.0")

            def in_reach():
                left, top, width, height = screen.geometry(window)
                frame = frame_extents(screen, window)
                return (frame is not None and width > 800 and left - frame[0] == 0 and
                        top - frame[2] == 0)

            wait_for("title bar and menu to be on the screen", in_reach)
            wait_for("the window to be painted",
                     lambda: len(screen.screenshot().colours()) > 300)
            screen.screenshot().save(screen.artefact("screen.png"))
            # The menu, as the place shows where it is: it opens.
            left, top = screen.geometry(window)[:2]
            before = screen.program_windows()
            screen.click(left + 24, top + 16)
            wait_for("the menu", lambda: len(screen.program_windows()) > len(before))
            screen.keys("x")
            wait_for("the program's end", lambda: process.poll() is not None)
            self.assertEqual(process.returncode, 0)

    def test_scale_1_5(self):
        self.check_pages(1.5, (1280, 1024))

    def test_scale_2(self):
        self.check_pages(2, (1600, 1200))


def near(colour, wanted, distance=40):
    return all(abs(one - other) < distance for one, other in zip(colour, wanted))


if __name__ == "__main__":
    desktop.main()
