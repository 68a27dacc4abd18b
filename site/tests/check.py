"""The built site as files: every page where it is looked for, every link and anchor, sizes,
titles and structure. What only a server and a browser can show is in ./run beside this file."""

import csv
import functools
import gzip
import hashlib
import html.parser
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import urllib.parse
import xml.etree.ElementTree

from titles import TITLES, UPDATE_PATH

SOURCE = pathlib.Path(__file__).parents[2]
ROOT = pathlib.Path(os.environ["ORRAVANE_SITE_FOLDER"]) / "root"
HOST = os.environ["ORRAVANE_SITE_HOST"]
SITE_ROOT = os.environ["ORRAVANE_SITE_ROOT"]
METAINFO = os.environ["ORRAVANE_METAINFO"]

FIRST_PAGE = 100_000  # bytes, with all that it needs

EMPTY = {"meta", "link", "img", "br", "hr", "input", "col", "source", "wbr"}


def file_of(path):
    """The file that the server sends for a path."""
    name = urllib.parse.unquote(path).lstrip("/")
    return ROOT / (name + "index.html" if name.endswith("/") or not name else name)


class Page(html.parser.HTMLParser):
    """What the checks look at: elements with their attributes, headings, texts."""

    def __init__(self, path):
        super().__init__()
        self.path, self.elements, self.open, self.text = path, [], [], ""
        self.headings, self.columns, self.title = [], [], ""
        self.feed(file_of(path).read_text(encoding="utf-8"))
        self.close()

    def handle_starttag(self, tag, attributes):
        self.elements.append((tag, dict(attributes)))
        if tag not in EMPTY:
            self.open.append(tag)
        if re.fullmatch("h[1-6]", tag):
            self.headings.append([int(tag[1]), ""])
        if tag == "th":
            self.columns.append("")

    def handle_startendtag(self, tag, attributes):
        self.handle_starttag(tag, attributes)
        if tag not in EMPTY:
            self.handle_endtag(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            raise AssertionError(f"{self.path}: {tag} is closed where it is not open")

    def handle_data(self, text):
        if "title" in self.open:
            self.title += text
        elif "script" not in self.open:
            self.text += text
        if self.open and re.fullmatch("h[1-6]", self.open[-1]):
            self.headings[-1][1] += text
        if "th" in self.open:
            self.columns[-1] += text

    def all(self, *tags):
        return [attributes for tag, attributes in self.elements if tag in tags]

    def ids(self):
        return [attributes["id"] for _, attributes in self.elements if "id" in attributes]

    def addresses(self):
        """Everything that the page points at or loads."""
        for _, attributes in self.elements:
            for name in ("href", "src", "srcset"):
                if name in attributes:
                    yield attributes[name]


def on_each_page(test):
    """Runs a test of one page on all of them."""

    @functools.wraps(test)
    def run(self):
        for path, page in self.pages.items():
            with self.subTest(path):
                test(self, page)

    return run


class Site(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.pages = {path: Page(path) for path in TITLES}

    def test_a_page_for_every_address_that_the_window_opens(self):
        opened = re.findall(r"OpenPage\((.+?)\);", (SOURCE / "shell/links.cpp").read_text())
        self.assertEqual(len(opened), 4)
        paths = {UPDATE_PATH if path == "updatePath" else path.strip('"') for path in opened}
        self.assertEqual(paths, set(self.pages) - {"/not-found.html"})

    def test_no_file_but_those_that_are_published(self):
        pages = {file_of(path).relative_to(ROOT).as_posix() for path in TITLES}
        found = {file.relative_to(ROOT).as_posix() for file in ROOT.rglob("*") if file.is_file()}
        rest = {"icon.svg", "lunr.license.txt", "lunr.min.js", "robots.txt", "search.js", "sky.svg",
                "style.css", "wordmark.svg"}
        for picture in (SOURCE / "docs/pictures").glob("*.png"):
            rest |= {f"pictures/{picture.stem}{ending}" for ending in (".avif", ".png")}
        if (SOURCE / "docs/sample-report.html").exists():
            rest.add("sample-report.html")
        self.assertEqual({name for name in found if not name.startswith("downloads/")}, pages | rest)

    def test_titles(self):
        self.assertEqual({path: page.title for path, page in self.pages.items()}, TITLES)

    @on_each_page
    def test_structure(self, page):
        self.assertEqual(page.open, [])
        self.assertEqual(page.all("html"), [{"lang": "en"}])
        for once in ("h1", "main", "header", "footer"):
            self.assertEqual(len(page.all(once)), 1, once)
        (description,) = [meta["content"] for meta in page.all("meta")
                          if meta.get("name") == "description"]
        self.assertTrue(40 <= len(description) <= 160, description)
        self.assertEqual(len(page.ids()), len(set(page.ids())), "an id stands twice")
        levels = [level for level, _ in page.headings]
        self.assertEqual(levels[0], 1)
        for level, following in zip(levels, levels[1:]):
            self.assertLessEqual(following, level + 1, page.headings)
        self.assertNotIn("", page.columns, "a column without a heading")
        self.assertNotIn("@", re.sub(r"\S+@\S+", "", page.text))  # a value not filled in

    @on_each_page
    def test_nothing_inside_a_page_that_its_server_forbids(self, page):
        self.assertEqual(page.all("style", "iframe", "object", "embed"), [])
        for tag, attributes in page.elements:
            self.assertNotIn("style", attributes, tag)
            self.assertEqual([name for name in attributes if name.startswith("on")], [])
            if tag == "script":
                self.assertIn("defer", attributes)
                self.assertIn("src", attributes)
            if tag == "form":
                self.assertNotIn("action", attributes)

    @on_each_page
    def test_scripts_only_where_the_search_is(self, page):
        self.assertEqual(len(page.all("script")), 2 if page.path == "/orravane-help/" else 0)

    @on_each_page
    def test_links_and_anchors(self, page):
        linked = 0
        for address in page.addresses():
            parts = urllib.parse.urlsplit(address)
            if parts.scheme == "mailto":
                continue
            if (parts.scheme, parts.netloc) == ("https", HOST):
                self.assertEqual(parts.path, page.path)  # the page's own address
                continue
            self.assertEqual((parts.scheme, parts.netloc), ("", ""), address)
            path = parts.path or page.path
            self.assertTrue(path.startswith("/"), address)
            self.assertTrue(file_of(path).is_file(), f"{address} leads nowhere")
            if parts.fragment:
                ids = self.pages[path].ids()
                self.assertIn(urllib.parse.unquote(parts.fragment), ids, address)
            if parts.query:
                digest = hashlib.sha1(file_of(path).read_bytes()).hexdigest()
                self.assertEqual(parts.query, "v=" + digest[:8], address)
            linked += 1
        self.assertGreater(linked, 8)

    @on_each_page
    def test_pictures(self, page):
        for image in page.all("img"):
            self.assertGreater(len(image["alt"]), 7)
            file = file_of(urllib.parse.urlsplit(image["src"]).path)
            size = (int(image["width"]), int(image["height"]))
            if file.suffix == ".png":
                self.assertEqual(size, struct.unpack(">II", file.read_bytes()[16:24]))
                self.assertTrue("fetchpriority" in image or image.get("loading") == "lazy")
                small = file.with_suffix(".avif").read_bytes()
                at = small.index(b"ispe")  # the size in an AVIF file
                self.assertEqual(size, struct.unpack(">II", small[at + 8:at + 16]))
            else:
                box = re.search(r'viewBox="\S+ \S+ (\S+) (\S+)"', file.read_text())
                self.assertEqual(size, (int(box[1]), int(box[2])))

    def test_size_of_the_first_page(self):
        page = self.pages["/"]
        sizes = {"/": len(gzip.compress(file_of("/").read_bytes(), 6)),
                 "/sky.svg": len(gzip.compress(file_of("/sky.svg").read_bytes(), 6))}
        for tag, attributes in page.elements:
            address = {"link": attributes.get("href") if attributes.get("rel") != "canonical" else None,
                       "script": attributes.get("src"), "source": attributes.get("srcset"),
                       "img": attributes.get("src")}.get(tag)
            path = urllib.parse.urlsplit(address or "").path
            if path and not path.endswith(".png"):  # in place of which the browser takes AVIF
                content = file_of(path).read_bytes()
                sizes[path] = len(content if path.endswith(".avif") else gzip.compress(content, 6))
        self.assertIn("/pictures/topic.avif", sizes)
        self.assertLessEqual(sum(sizes.values()), FIRST_PAGE)

    def test_help_has_every_topic_and_an_index_in_order(self):
        page = self.pages["/orravane-help/"]
        with open(SOURCE / "tests/shell/topics.csv", encoding="utf-8", newline="") as lines:
            topics = [row["caption"].lower() for row in csv.DictReader(lines)]
        self.assertEqual(len(topics), 22)
        headings = [text.lower().replace("’", "'") for _, text in page.headings]
        self.assertEqual([topic for topic in topics if topic not in headings], [])

        text = file_of("/orravane-help/").read_text(encoding="utf-8")
        index = re.findall(r"<li><a[^>]*>(.+?)</a></li>",
                           text[text.index('class="index"'):text.index("</main>")])
        self.assertGreater(len(index), 50)
        self.assertEqual(index, sorted(index, key=str.casefold))

    def test_version_and_changes_are_those_of_the_metainfo(self):
        releases = [(release.get("version"), release.get("date"))
                    for release in xml.etree.ElementTree.parse(METAINFO).iter("release")]
        text = " ".join(self.pages[UPDATE_PATH].text.split())
        newest, day = releases[0]
        self.assertIn(f"The latest version is {newest}, released on {day}.", text)
        shown = re.findall(r"Version (\S+) Released: (\S+)", text)
        self.assertEqual(shown, releases)
        for page in self.pages.values():
            self.assertIn(f"Orravane {newest}.", page.text, page.path)

    def test_sample_stands_for_itself(self):
        """The sample document, where there is one, is linked and loads nothing."""
        there = (ROOT / "sample-report.html").exists()
        self.assertEqual(there, (SOURCE / "docs/sample-report.html").exists())
        self.assertEqual("/sample-report.html" in self.pages["/"].addresses(), there)
        if there:
            sample = Page("/sample-report.html")
            self.assertTrue(sample.title)
            self.assertEqual(sample.all("script", "link", "img", "iframe", "object"), [])
            addresses = list(sample.addresses())
            self.assertGreater(len(addresses), 22)
            self.assertEqual([one for one in addresses if one.lstrip("#") not in sample.ids()], [])

    def test_every_file_that_is_offered_is_there_with_its_sum(self):
        text = file_of(UPDATE_PATH).read_text(encoding="utf-8")
        shown = re.findall(r'<a href="/downloads/(.+?)">\1</a>.*?<code>([0-9a-f]{64})</code>', text,
                           re.DOTALL)
        offered = ROOT / "downloads"
        there = [(file.name, hashlib.sha256(file.read_bytes()).hexdigest())
                 for file in (offered.iterdir() if offered.exists() else ())]
        self.assertEqual(sorted(shown), sorted(there))
        self.assertEqual("offers no files" in text, not there)

    @on_each_page
    def test_readable_without_styles_and_pictures(self, page):
        """The text alone says what the page says: in its order, with the title before all else
        but the ways to other pages."""
        text = " ".join(page.text.split())
        self.assertTrue(text.startswith("Skip to the text Home Help Update " +
                                        page.headings[0][1].replace("'", "’")), text[:80])

    def test_installation_puts_the_site_where_a_server_looks_for_it(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([os.environ["ORRAVANE_CMAKE"], "--install", os.environ["ORRAVANE_BUILD"],
                            "--component", "site"], env=dict(os.environ, DESTDIR=folder),
                           check=True, stdout=subprocess.DEVNULL)

            def files(top):
                return {file.relative_to(top).as_posix(): file.read_bytes()
                        for file in pathlib.Path(top).rglob("*") if file.is_file()}

            installed = files(folder)
            server = installed.pop(f"etc/nginx/sites-available/{HOST}").decode()
            self.assertEqual(installed, {f"{SITE_ROOT.lstrip('/')}/{name}": content
                                         for name, content in files(ROOT).items()})
            self.assertIn(f"root {SITE_ROOT};", server)
            self.assertIn(f"server_name {HOST};", server)
            self.assertNotRegex(server, "@[A-Z_]+@")

    @on_each_page
    def test_valid(self, page):
        done = subprocess.run(["tidy", "-quiet", "-errors", file_of(page.path)],
                              capture_output=True, text=True)
        # It takes some attributes of today's standard for somebody's own.
        known = re.compile('proprietary attribute "(aria-current|decoding|fetchpriority|loading)"')
        complaints = [line for line in done.stderr.splitlines() if not known.search(line)]
        self.assertEqual(complaints, [])
        self.assertLess(done.returncode, 2)


if __name__ == "__main__":
    if shutil.which("tidy") is None:
        sys.exit("this test needs the program tidy")
    unittest.main(verbosity=2)
