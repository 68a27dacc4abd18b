"""The accessibility tree of a desktop, as a screen reader sees it."""

import ast
import re

from waiting import wait_for

# In a save dialog, where the files are listed. Its empty table makes the toolkit complain when
# it is asked for its cells.
FILE_LISTS = ("splitter",)


class Accessibility:
    """The accessibility bus of a desktop, seen from a screen reader's side."""

    ROOT = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")

    def __init__(self, desktop):
        self.desktop = desktop
        self.bus = desktop.env["DBUS_SESSION_BUS_ADDRESS"]
        (self.bus,) = self.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress")

    def call(self, destination, path, method, *arguments):
        """Calls a method; gives the tuple of results, variants unpacked."""
        answer = self.desktop.run("gdbus", "call", "--session", "--dest", destination,
                                  "--object-path", path, "--method", method, "--", *arguments,
                                  env={"DBUS_SESSION_BUS_ADDRESS": self.bus})
        return self._parse(answer.decode())

    @staticmethod
    def _parse(text):
        pieces = re.split(r"""('(?:[^'\\]|\\.)*'|"(?:[^"\\]|\\.)*")""", text.strip())
        for index in range(0, len(pieces), 2):
            piece = re.sub(r"objectpath |u?int(16|32|64) |byte |@[a-z(){}]+ |[<>]", "",
                           pieces[index])
            pieces[index] = piece.replace("true", "True").replace("false", "False")
        return ast.literal_eval("".join(pieces))

    def node(self, reference):
        return AccessibleNode(self, *reference)

    def application(self, process):
        """The root of a program's tree."""

        def find():
            for application in self.node(self.ROOT).children():
                (pid,) = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                   "org.freedesktop.DBus.GetConnectionUnixProcessID",
                                   application.owner)
                if pid == process.pid:
                    return application
            return None

        return wait_for("the program in the accessibility tree", find)

    def dialog(self, process, title):
        """The dialog of the program with this title."""

        def find():
            for window in self.application(process).children():
                if window.name() == title:
                    return window
            return None

        return wait_for(f"the dialog \"{title}\"", find)


class AccessibleNode:
    def __init__(self, accessibility, owner, path):
        self.accessibility, self.owner, self.path = accessibility, owner, path

    def call(self, method, *arguments):
        return self.accessibility.call(self.owner, self.path, "org.a11y.atspi." + method,
                                       *arguments)

    def _property(self, name):
        (value,) = self.accessibility.call(self.owner, self.path,
                                           "org.freedesktop.DBus.Properties.Get",
                                           "org.a11y.atspi.Accessible", name)
        return value

    def name(self):
        return self._property("Name")

    def role(self):
        return self.call("Accessible.GetRoleName")[0]

    def parent(self):
        return AccessibleNode(self.accessibility, *self._property("Parent"))

    def children(self):
        return [AccessibleNode(self.accessibility, owner, path)
                for owner, path in self.call("Accessible.GetChildren")[0]
                if not path.endswith("/null")]

    def has_state(self, number):
        words = self.call("Accessible.GetState")[0]
        return bool(words[number // 32] >> number % 32 & 1)

    def box(self):
        """Left, top, width, height on the screen."""
        return self.call("Component.GetExtents", "0")[0]

    def text(self):
        return self.call("Text.GetText", "0", "-1")[0]

    def set_text(self, text):
        """Puts `text` in as an aid for input does."""
        self.call("EditableText.SetTextContents", text)

    def press(self):
        """Does what a press of the control does, without a mouse."""
        self.call("Action.DoAction", "0")

    def descendants(self, skip=("list",)):
        """All nodes below, without those of the roles in `skip` and what is below them: as a
        rule the lists, whose entries are many."""
        for child in self.children():
            if child.role() not in skip:
                yield child
                yield from child.descendants(skip)

    def find(self, role, name=None, skip=("list",)):
        """The first node below with this role and name."""
        for node in self.descendants(skip):
            if node.role() == role and (name is None or node.name() == name):
                return node
        raise AssertionError(f"no {role} \"{name}\" below \"{self.name()}\"")

    def find_all(self, role):
        return [node for node in self.descendants() if node.role() == role]

    def by_role(self):
        """All nodes below at once, as a walk takes its time: role to a list of (name, node)."""
        roles = {}
        for node in self.descendants():
            roles.setdefault(node.role(), []).append((node.name(), node))
        return roles

    def click(self):
        left, top, width, height = self.box()
        self.accessibility.desktop.click(left + width // 2, top + height // 2)
