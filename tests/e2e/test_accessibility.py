"""What a screen reader finds: every control with its name, role and place, and the focus."""

import desktop
from desktop import Desktop, DesktopTest, HELP_PAGE, HOME_PAGE, SITE
from program import ROWS, TOPICS
from readings import MARIA, days_since, expected_runs, plain_text, today
from waiting import wait_for

ADDRESS = SITE.removeprefix("https://")

STATE_FOCUSED = 12
RELATION_LABELLED_BY = 2

# The image buttons, and the three that they stand for below the window's edge.
BUTTONS = ["Exit", "Help", "Print", "Print", "Proceed", "Proceed", "Save", "Save"]
BOXES = ["First Name, required", "Last Name, required", "Middle Name", "Report"]
NAMELESS = {"filler", "scroll bar", "menu bar", "popup menu", "list", "column header"}


class Accessibility(DesktopTest):

    def test_controls_and_focus(self):
        with Desktop("accessibility", accessible=True) as screen:
            program = screen.orravane()
            tree = screen.accessibility.application(program.process)
            self.assertEqual([(window.role(), window.name()) for window in tree.children()],
                             [("frame", "Orravane v1.0")])
            roles = tree.by_role()

            def names(role):
                return [name for name, _ in roles[role]]

            def only(role, name, number=0):
                return [node for found, node in roles[role] if found == name][number]

            self.assertEqual(sorted(names("push button")), BUTTONS)
            self.assertEqual(sorted(names("text")), BOXES)
            self.assertEqual(sorted(names("panel")), ["* Birth Day", "Name", "Note: "])
            self.assertEqual(sorted(names("link")),
                             sorted(["Online Help", "Visit Us Online", ADDRESS]))
            self.assertEqual(names("tree item"), ["User Information", "Enter The Information",
                                                  "Reset", "Numerology", "Help"])
            self.assertEqual(names("menu item"), ["File", "Exit", "Help", "Online Help",
                                                  "Visit Us Online", "About Software"])
            for role in roles.keys() - NAMELESS:
                self.assertNotIn("", names(role), role)

            # A list is called by what it stands on; the label beside it and the frame around it
            # tell what it is for.
            combos = [node for _, node in roles["combo box"]]
            for combo, label, first in zip(combos, ("Month", "Date", "Year"),
                                           ("January", "1", "1900"), strict=True):
                self.assertEqual(self.labels_of(combo), [label, "* Birth Day"])
                self.assertEqual(combo.name(), first)
                (dropped,) = combo.children()
                item = dropped.children()[0]
                self.assertEqual((item.role(), item.name()), ("list item", first))

            # Each where it is drawn.
            for node, control in ((only("push button", "Exit"), "picExit"),
                                  (only("push button", "Help"), "picHelp"),
                                  (only("tree", "Topics"), "TV"),
                                  (only("text", "First Name, required"), "txtFirstName"),
                                  (only("text", "Report"), "RTB"),
                                  (only("link", "Online Help"), "lblHelp0"),
                                  (only("label", "About Software"), "lblAbout2"),
                                  (only("link", ADDRESS), "lblHyperlink"),
                                  *zip(combos, ("cboMonth", "cboDate", "cboYear"))):
                # Places of containers add up from rounded ones.
                for told, drawn in zip(node.box(), program.box(control), strict=True):
                    self.assertAlmostEqual(told, drawn, delta=1.5, msg=control)

            # The focus goes through the controls that are in sight. Command buttons come
            # first in the tree, the image button of the page after them.
            order = [only("text", "First Name, required"), only("text", "Middle Name"),
                     only("text", "Last Name, required"), *combos,
                     only("push button", "Proceed", 1), only("tree", "Topics"),
                     only("push button", "Help"), only("push button", "Exit"),
                     only("link", ADDRESS)]
            for key, nodes in (("Tab", [*order, order[0]]), ("shift+Tab", [order[0], order[-1]])):
                for node in nodes:
                    wait_for(f"the focus on {node.role()} {node.name()}",
                             lambda: node.has_state(STATE_FOCUSED))
                    screen.keys(key)
                screen.keys("Tab" if key == "shift+Tab" else "shift+Tab")

            # A screen reader presses a link without mouse or keys.
            opened = []
            for name, page in (("Online Help", HELP_PAGE), ("Visit Us Online", HOME_PAGE),
                               (ADDRESS, HOME_PAGE)):
                only("link", name).press()
                opened.append(page)
                screen.await_pages(opened)

            # A report: the opened branch with its topics, and the text itself.
            day = today()
            program.proceed(MARIA)
            rows = [node.name() for node in only("tree", "Topics").children()
                    if node.role() == "tree item"]
            self.assertEqual(rows, ROWS)
            self.assertIn(only("text", "Report").text(),
                          [plain_text(expected_runs(MARIA, TOPICS[0], possible))
                           for possible in days_since(day)])
            self.assert_quiet(screen)

    @staticmethod
    def labels_of(node):
        return [node.accessibility.node(target).name()
                for kind, targets in node.call("Accessible.GetRelationSet")[0]
                if kind == RELATION_LABELLED_BY
                for target in targets]


if __name__ == "__main__":
    desktop.main()
