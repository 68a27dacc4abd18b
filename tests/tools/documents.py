#!/usr/bin/env python3
"""Documents of people with hostile names, as HTML, read with a parser that forgives nothing.

usage: documents.py ORRAVANE_REPORT
"""
import html.parser
import json
import pathlib
import re
import subprocess
import sys
import tempfile

NAMES = [
    "Clara",
    "</title><script>alert(1)</script>",
    "\" onload=\"alert(1)\" x='",
    "<!-- A -->",
    "]]>&amp;&lt;&#65;",
    "{A} $& \\0 %s",
    "A\u202e\u2066\u200f\u061cB",
    "A\x01\x08\x0b\x1f\x7f\x85\x9fB",
    "A\t\r\nB",
    "\ufffe\uffffA\ufdd0\U0001ffff",
    "e\u0301\u0301\u0301A\u200d\U0001f469\u200d\U0001f680",
    "\u05d0\u05d1A \u0627\u0644",
    "A" * 400,
    "A B" * 3000,
]
VOID = {"meta", "link", "br", "img", "hr", "input"}
SVG_EMPTY = {"rect", "circle", "path"}
# Of these none stands in a document: they run something, or load it, or lead away.
ACTIVE_TAGS = {"script", "link", "img", "iframe", "object", "embed", "form", "base"}
ACTIVE_ATTRIBUTES = {"src", "srcset", "data", "style", "http-equiv", "action", "formaction", "ping",
                     "background"}


class Broken(Exception):
    """A document is not as it has to be."""


def require(is_so, what):
    if not is_so:
        raise Broken(what)


class Document(html.parser.HTMLParser):
    """The structure of a document; what is wrong with it ends the test."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.open, self.ids, self.references = [], set(), []
        self.headings, self.heading_texts, self.tags = [], [], {}
        require(text.startswith("<!DOCTYPE html>\n"), "no doctype")
        self.feed(text)
        self.close()
        require(not self.open, f"left open: {self.open}")

    def handle_starttag(self, tag, attributes):
        names = [name for name, _ in attributes]
        require(len(names) == len(set(names)), f"attributes of {tag} given twice: {names}")
        require(not [n for n in names if n.startswith("on")], f"{tag} acts on an event: {names}")
        require(tag not in ACTIVE_TAGS, tag)
        self.tags[tag] = self.tags.get(tag, 0) + 1
        for name, value in attributes:
            require(name not in ACTIVE_ATTRIBUTES, f"{tag} has {name}")
            require(not re.search(r"url\((?!#)", value or ""), f"{name} of {tag} loads something")
            if name == "id":
                require(value not in self.ids, f"id {value} twice")
                self.ids.add(value)
            elif name == "href":
                require(value.startswith("#"), f"leads out of the file: {value}")
                self.references.append(value[1:])
            elif name in ("aria-labelledby", "aria-describedby"):
                self.references.append(value)
        if re.fullmatch("h[1-6]", tag):
            self.headings.append(int(tag[1]))
            self.heading_texts.append("")
        if tag == "html":
            require(("lang", "en") in attributes, "no language")
        if tag not in VOID:
            self.open.append(tag)

    def handle_startendtag(self, tag, attributes):
        require(tag in SVG_EMPTY and "svg" in self.open, f"<{tag}/> is no element without content")
        self.handle_starttag(tag, attributes)
        self.open.pop()

    def handle_endtag(self, tag):
        require(self.open and self.open[-1] == tag, f"</{tag}> within {self.open}")
        self.open.pop()

    def handle_data(self, data):
        if "style" in self.open:
            require(not re.search(r"url\(|image-set\(|src\(|@import", data),
                    "the style loads something")
        if any(re.fullmatch("h[1-6]", tag) for tag in self.open):
            self.heading_texts[-1] += data

    def handle_comment(self, data):
        raise Broken(f"a comment: {data}")

    def unknown_decl(self, data):
        raise Broken(f"a declaration: {data}")


def shown(name):
    """A name as the document is to show it."""
    def one(character):
        code = ord(character)
        if character in "\t\n":
            return " "
        bad = (code < 0x20 or 0x7F <= code < 0xA0 or 0xD800 <= code < 0xE000 or
               0xFDD0 <= code <= 0xFDEF or code & 0xFFFE == 0xFFFE)
        return "\ufffd" if bad else character
    return "".join(map(one, name.replace("\r\n", "\n")))


def check(text, name):
    document = Document(text)
    require(document.heading_texts[0] == shown(name),
            f"the heading is {document.heading_texts[0]!r}, not {shown(name)!r}")
    require(document.headings[0] == 1 and document.headings.count(1) == 1, "not one title")
    for above, below in zip(document.headings, document.headings[1:]):
        require(below <= above + 1, f"a heading of level {below} below one of level {above}")
    missing = [reference for reference in document.references if reference not in document.ids]
    require(not missing, f"leads nowhere: {missing}")
    require(document.tags["main"] == document.tags["nav"] == document.tags["header"] == 1,
            "not one of each part")
    require(document.tags["svg"] == 6, "five pictures and the emblem")
    require(document.headings.count(3) == 27, "five pictures and twenty-two topics")


def main():
    tool = sys.argv[1]
    people = [{"first": name, "last": "Lee", "birthdate": "1990-03-07"} for name in NAMES]
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(
            [tool, "--batch", "-", "--today", "2026-11-21", "--format", "html", "--output-dir",
             folder, "--jobs", "2"],
            input="".join(json.dumps(person) + "\n" for person in people), text=True, check=True)
        files = sorted(pathlib.Path(folder).iterdir())
        require([file.name for file in files] == [
            f"person-{line:06}.html" for line in range(1, len(NAMES) + 1)], files)
        for file, name in zip(files, NAMES):
            try:
                check(file.read_bytes().decode(), name + " Lee")
            except Broken as wrong:
                sys.exit(f"{name[:40]!r}: {wrong}")
        alone = subprocess.run(
            [tool, "--first", "Clara", "--last", "Lee", "--date", "1990-03-07", "--today",
             "2026-11-21", "--format", "html"], capture_output=True, check=True).stdout
        require(alone == files[0].read_bytes(), "one person alone is another document")


if __name__ == "__main__":
    main()
