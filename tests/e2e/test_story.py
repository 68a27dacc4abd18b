"""One person's way through the program with mouse and keyboard, and every link and menu."""

import html.parser

import desktop
from desktop import Desktop, DesktopTest, HELP_PAGE, HOME_PAGE, THANK_YOU_PAGE
from program import COMPREHENSIVE, GOLD, TOPICS, TOPIC_INK
from readings import MARIA, days_since, expected_runs, lines_of, plain_text, today
from waiting import wait_for


class CopiedReport(html.parser.HTMLParser):
    """The HTML that the pane puts on the clipboard, as lines of (text, bold, colour)."""

    def __init__(self, text):
        super().__init__()
        self.lines, self.style = [], None
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        if tag == "p":
            self.lines.append([])
        elif tag == "span":
            self.style = dict(attributes)["style"].replace(" ", "").split(";")

    def handle_endtag(self, tag):
        if tag == "span":
            self.style = None

    def handle_data(self, text):
        if self.style is not None:
            colour = [value[6:] for value in self.style if value.startswith("color:")]
            self.lines[-1].append((text, "font-weight:700" in self.style, *colour))


class Story(DesktopTest):

    def pick(self, program, combo, index, entry):
        """Picks an entry of a drop-down list by mouse, with the wheel where it is far away.
        `index` is its place in the list, from 0."""
        screen = program.desktop
        before = set(screen.program_windows())
        combo.click()
        (popup,) = wait_for("the list to drop down",
                            lambda: set(screen.program_windows()) - before)
        left, top, width, height = screen.geometry(popup)
        (entries,) = combo.children()
        item = entries.children()[index]
        self.assertEqual(item.name(), entry)
        margin = 30  # the scroll arrows at both ends of a long list

        def in_sight():
            _, y, _, row = item.box()
            if y < top + (margin if y > top + row else 0):
                wheel = 4
            elif y + row > top + height - (margin if height > 12 * row + margin else 0):
                wheel = 5
            else:
                return True
            screen.click(left + width // 2, top + height // 2, wheel)
            return False

        wait_for(f"{entry} to come into sight", in_sight)
        _, y, _, row = item.box()

        def picked():
            # A list that has only just dropped down passes over a click.
            if popup not in screen.program_windows():
                return True
            screen.click(left + width // 2, y + row // 2)
            for _ in range(2):  # an answer comes only when the click has been dealt with
                combo.name()
            return popup not in screen.program_windows()

        wait_for(f"{entry} to be picked", picked)
        self.assertEqual(combo.name(), entry)

    def test_whole_story(self):
        with Desktop("story", accessible=True) as screen:
            program = screen.orravane()
            roles = screen.accessibility.application(program.process).by_role()

            for control, name, text in (("txtFirstName", "First Name, required", "maria"),
                                        ("txtMiddleName", "Middle Name", "elena"),
                                        ("txtLastName", "Last Name, required", "fernandez")):
                program.click(control)
                screen.type(text)
                box = dict(roles["text"])[name]
                wait_for("the typed name", lambda: box.text() == text.upper())

            month, date, year = (node for _, node in roles["combo box"])
            self.pick(program, month, 2, "March")
            self.pick(program, date, 13, "14")
            self.pick(program, year, 85, "1985")
            program.keep("entered")

            day = today()
            program.click("picProceed")
            program.await_report()
            program.move_to("TV")
            program.keep("first-report")
            # The first report stands there without a click on its topic.
            program.copy_report()
            wait_for("the first report",
                     lambda: screen.clipboard() in [
                         plain_text(expected_runs(MARIA, TOPICS[0], possible))
                         for possible in days_since(day)])

            for caption in [*TOPICS[::5], COMPREHENSIVE]:
                with self.subTest(caption):
                    runs = program.read_topic(caption, MARIA)
                    copied = CopiedReport(screen.clipboard("text/html")).lines
                    self.assertEqual(copied, [[(text, bold, "#800080") for text, bold in line]
                                              for line in lines_of(runs)])
            program.keep("comprehensive-reading")

            # No to the exit question changes nothing and opens no page.
            program.click("picExit")
            question = screen.accessibility.dialog(program.process, "Orravane")
            self.assertEqual(question.find("label").name(),
                             "Are You Sure You Want to Exit Orravane?")
            self.assertEqual(sorted(button.name() for button in question.find_all("push button")),
                             ["No", "Yes"])
            screen.await_painted(screen.window("Orravane"))
            screen.screenshot().save(screen.artefact("exit-question.png"))
            question.find("push button", "No").click()
            wait_for("the question to go", lambda: not screen.windows("Orravane"))
            program.read_topic("Life Path Number", MARIA)
            self.assertTrue(program.alive())
            self.assertEqual(screen.opened_pages(), [])

            program.click("picExit")
            question = screen.accessibility.dialog(program.process, "Orravane")
            question.find("push button", "Yes").click()
            self.assertEqual(program.await_end(), 0)
            screen.await_pages([THANK_YOU_PAGE])
            self.assert_quiet(screen)

    def pick_menu(self, program, items, menu, entry):
        screen = program.desktop
        before = screen.program_windows()
        items[menu].click()
        wait_for("the menu", lambda: screen.program_windows() != before)
        items[entry].click()
        wait_for("the menu to close", lambda: screen.program_windows() == before
                 or not program.alive())

    def assert_help_page(self, program):
        def shown():
            colours = program.part("Picture1").colours()
            return colours[GOLD] > 20 and colours[TOPIC_INK] == 0

        wait_for("the help page", shown)

    def test_menus_and_links(self):
        with Desktop("links", accessible=True) as screen:
            program = screen.orravane()
            tree = screen.accessibility.application(program.process)
            items = {node.name(): node for node in tree.find("menu bar").descendants()}
            opened = []

            def expect(page):
                opened.append(page)
                screen.await_pages(opened)

            self.pick_menu(program, items, "Help", "Online Help")
            expect(HELP_PAGE)
            self.pick_menu(program, items, "Help", "Visit Us Online")
            expect(HOME_PAGE)
            program.click("picHelp")
            expect(HELP_PAGE)
            program.click("lblHyperlink")
            expect(HOME_PAGE)

            # The help page comes up over a report, which is kept for the next click.
            program.proceed(MARIA)
            self.pick_menu(program, items, "Help", "About Software")
            self.assert_help_page(program)
            program.keep("help-page")
            program.click("lblAbout2")  # has the look of a link and is none
            program.click("lblHelp0")
            expect(HELP_PAGE)
            program.click("lblHelp1")
            expect(HOME_PAGE)
            program.read_topic("Essence", MARIA)
            program.click_row("Help")
            self.assert_help_page(program)

            self.pick_menu(program, items, "File", "Exit")  # asks nothing
            self.assertEqual(program.await_end(), 0)
            expect(THANK_YOU_PAGE)
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
