"""What a screen reader finds: every control with its name, role and place, and the focus."""

import desktop
from desktop import Desktop, DesktopTest, HELP_PAGE, HOME_PAGE, SITE
from program import COMPREHENSIVE, ROWS, TOPICS
from readings import MARIA, days_since, expected_runs, plain_text, today
from waiting import wait_for

ADDRESS = SITE.removeprefix("https://")

STATE_FOCUSED = 12
RELATION_LABELLED_BY = 2

MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September",
          "October", "November", "December"]
DAYS = [str(day) for day in range(1, 32)]
YEARS = [str(year) for year in range(1900, 2051)]

HELP_TEXTS = [
    "Having doubts on using this software? Feel free to access our online help and get all your "
    "queries answered.",
    "Visit our official webpage to know more about Orravane.",
    "Orravane is a complex numerology report software based on the Pythagorean Numerology system. "
    "It helps you gain an insight over your weaknesses and face the problems in life boldly. This "
    "software helps you understand the effects of cosmic vibrations of letters and numbers on an "
    "individual.",
]

NAMELESS = {"filler", "scroll bar", "menu bar", "popup menu", "list", "column header"}


class Accessibility(DesktopTest):

    def read(self, node):
        """All nodes below by role: a list of (name, node)."""
        roles = {}
        for node in node.descendants():
            roles.setdefault(node.role(), []).append((node.name(), node))
        return roles

    def names(self, roles, role):
        return sorted(name for name, _ in roles.get(role, []))

    def labels_of(self, node):
        return [screen_node.name()
                for kind, targets in node.call("Accessible.GetRelationSet")[0]
                if kind == RELATION_LABELLED_BY
                for screen_node in map(node.accessibility.node, targets)]

    def test_controls(self):
        with Desktop("accessibility", accessible=True) as screen:
            program = screen.orravane()
            tree = screen.accessibility.application(program.process)
            self.assertEqual([(window.role(), window.name()) for window in tree.children()],
                             [("frame", "Orravane v1.0")])
            roles = self.read(tree)

            # The image buttons, and the three that they stand for below the window's edge.
            self.assertEqual(self.names(roles, "push button"),
                             ["Exit", "Help", "Print", "Print", "Proceed", "Proceed", "Save",
                              "Save"])
            self.assertEqual(self.names(roles, "tree"), ["Topics"])
            self.assertEqual([name for name, _ in roles["tree item"]],
                             ["User Information", "Enter The Information", "Reset", "Numerology",
                              "Help"])
            self.assertEqual(self.names(roles, "text"),
                             ["First Name, required", "Last Name, required", "Middle Name",
                              "Report"])
            self.assertEqual(self.names(roles, "panel"), ["* Birth Day", "Name", "Note: "])
            self.assertEqual(self.names(roles, "label"),
                             sorted(["* First Name", "Middle Name", "* Last Name", "Month", "Date",
                                     "Year", "This program has been designed keeping in mind date "
                                     "settings according to MM/DD/YYYY format",
                                     "About Software", *HELP_TEXTS]))
            self.assertEqual(self.names(roles, "link"),
                             sorted(["Online Help", "Visit Us Online", ADDRESS]))
            self.assertEqual([name for name, _ in roles["menu item"]],
                             ["File", "Exit", "Help", "Online Help", "Visit Us Online",
                              "About Software"])
            for role, nodes in roles.items():
                if role not in NAMELESS:
                    self.assertNotIn("", [name for name, _ in nodes], role)

            # A list is called by what it stands on; the label beside it and the frame around it
            # tell what it is for.
            combos = [node for _, node in roles["combo box"]]
            for combo, label, entries in zip(combos, ("Month", "Date", "Year"),
                                             (MONTHS, DAYS, YEARS), strict=True):
                with self.subTest(label):
                    self.assertEqual(self.labels_of(combo), [label, "* Birth Day"])
                    (dropped,) = combo.children()
                    items = dropped.children()
                    self.assertEqual([item.name() for item in items], entries)
                    self.assertEqual(items[0].role(), "list item")
                    self.assertEqual(combo.name(), entries[0])

            # Each where it is drawn.
            for role, name, control in (("push button", "Exit", "picExit"),
                                        ("push button", "Help", "picHelp"),
                                        ("tree", "Topics", "TV"),
                                        ("text", "First Name, required", "txtFirstName"),
                                        ("text", "Middle Name", "txtMiddleName"),
                                        ("text", "Last Name, required", "txtLastName"),
                                        ("text", "Report", "RTB"),
                                        ("link", "Online Help", "lblHelp0"),
                                        ("link", "Visit Us Online", "lblHelp1"),
                                        ("label", "About Software", "lblAbout2"),
                                        ("link", ADDRESS, "lblHyperlink")):
                with self.subTest(control):
                    (node,) = [node for found, node in roles[role] if found == name]
                    self.assert_place(program, node, control)
            for combo, control in zip(combos, ("cboMonth", "cboDate", "cboYear"), strict=True):
                self.assert_place(program, combo, control)

            # A screen reader presses a link without mouse or keys.
            opened = []
            for name, page in (("Online Help", HELP_PAGE), ("Visit Us Online", HOME_PAGE),
                               (ADDRESS, HOME_PAGE)):
                tree.find("link", name).press()
                opened.append(page)
                screen.await_pages(opened)

            # A report: the opened branch with its topics, and the text itself.
            day = today()
            program.proceed(MARIA)
            rows = [node for node in tree.find("tree", "Topics").children()
                    if node.role() == "tree item"]
            self.assertEqual([row.name() for row in rows], ROWS)
            self.assertEqual(ROWS[2:-1], [*TOPICS, COMPREHENSIVE])
            report = tree.find("text", "Report")
            self.assertIn(report.text(), [plain_text(expected_runs(MARIA, TOPICS[0], possible))
                                          for possible in days_since(day)])
            self.assert_quiet(screen)

    def assert_place(self, program, node, control):
        # Places of containers add up from rounded ones.
        for told, drawn in zip(node.box(), program.box(control), strict=True):
            self.assertAlmostEqual(told, drawn, delta=1.5, msg=control)

    def test_focus_follows_the_tab_key(self):
        with Desktop("focus", accessible=True) as screen:
            program = screen.orravane()
            tree = screen.accessibility.application(program.process)
            roles = self.read(tree)

            def only(role, name, number=0):
                return [node for found, node in roles[role] if found == name][number]

            month, day, year = (node for _, node in roles["combo box"])
            # Command buttons come first in the tree, the image button of the page after them.
            order = [only("text", "First Name, required"), only("text", "Middle Name"),
                     only("text", "Last Name, required"), month, day, year,
                     only("push button", "Proceed", 1), only("tree", "Topics"),
                     only("push button", "Help"), only("push button", "Exit"),
                     only("link", ADDRESS)]
            for node in [*order, order[0]]:
                with self.subTest(node.name()):
                    wait_for(f"the focus on {node.role()} {node.name()}",
                             lambda: node.has_state(STATE_FOCUSED), 5)
                screen.keys("Tab")
            for node in (order[0], order[-1]):
                screen.keys("shift+Tab")
                wait_for(f"the focus on {node.role()} {node.name()}",
                         lambda: node.has_state(STATE_FOCUSED), 5)
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
