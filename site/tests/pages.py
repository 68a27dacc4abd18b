"""Every page as a browser shows it and a server sends it: on a phone and on a desktop, light and
dark, by axe-core and the Nu checker; the headers; the search; the first page's real size."""

import base64
import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from server import Server
from titles import TITLES, UPDATE_PATH
from waiting import wait_for

HOST = os.environ["ORRAVANE_SITE_HOST"]
CHECKERS = pathlib.Path(os.environ["ORRAVANE_SITE_CHECKERS"])
SEEN = pathlib.Path(os.environ["ORRAVANE_ARTEFACTS"]) / "pages"
NAMES = {"/": "home", "/orravane-help/": "help", "/thankyou-for-using-orravane.php": "thank-you",
         UPDATE_PATH: "update", "/not-found.html": "not-found"}
FIRST_PAGE = 100_000  # bytes

SIZES = {"phone": (360, 740), "tablet": (820, 1100), "desktop": (1280, 900), "wide": (1920, 1080)}


def address(path):
    # The page for what is not there is itself not to be had.
    return f"https://{HOST}" + ("/no-such-page" if path == "/not-found.html" else path)


class Pages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.server = cls.enterClassContext(Server(os.environ["ORRAVANE_SITE_FOLDER"], HOST))
        profile = cls.enterClassContext(tempfile.TemporaryDirectory(ignore_cleanup_errors=True))
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for option in [*cls.server.browser_options(profile), "--headless=new", "--hide-scrollbars"]:
            options.add_argument(option)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        cls.browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        cls.addClassCleanup(cls.browser.quit)
        SEEN.mkdir(parents=True, exist_ok=True)
        cls.axe = (CHECKERS / "axe-core/axe.min.js").read_text()

    # What a visitor's device is like

    def device(self, size="desktop", scheme="light", media="", script=True):
        width, height = SIZES[size]
        tell = self.browser.execute_cdp_cmd
        tell("Emulation.setDeviceMetricsOverride", {"width": width, "height": height,
                                                    "deviceScaleFactor": 1,
                                                    "mobile": size == "phone"})
        tell("Emulation.setEmulatedMedia", {"media": media, "features": [
            {"name": "prefers-color-scheme", "value": scheme},
            {"name": "prefers-reduced-motion", "value": "reduce"}]})
        tell("Emulation.setScriptExecutionDisabled", {"value": not script})

    def open(self, path):
        self.browser.get(address(path))
        self.browser.execute_script(
            "document.querySelectorAll('img').forEach(image => image.loading = 'eager')")
        wait_for("the pictures", lambda: self.browser.execute_script(
            "return [...document.images].every(image => image.complete && image.naturalWidth)"))
        self.browser.execute_async_script(
            "Promise.all([...document.images].map(image => image.decode())).then(arguments[0])")

    def look(self, name, tallest=2600):
        width, height = self.browser.execute_script(
            "return [innerWidth, document.documentElement.scrollHeight]")
        shot = self.browser.execute_cdp_cmd("Page.captureScreenshot", {
            "captureBeyondViewport": True,
            "clip": {"x": 0, "y": 0, "width": width, "height": min(height, tallest), "scale": 1}})
        (SEEN / f"{name}.png").write_bytes(base64.b64decode(shot["data"]))

    def complaints(self):
        return [line["message"] for line in self.browser.get_log("browser")
                if "/no-such-page" not in line["message"]]

    def run_axe(self, arguments=""):
        self.browser.execute_script(self.axe)
        result = self.browser.execute_async_script(f"axe.run({arguments}).then(arguments[0])")

        def nodes(kind):
            return [(rule["id"], node["target"], node.get("failureSummary"))
                    for rule in result[kind] for node in rule["nodes"]]

        return nodes("passes"), nodes("violations"), nodes("incomplete")

    def assert_accessible(self):
        passed, violated, undecided = self.run_axe()
        self.assertEqual(violated, [])
        self.assertGreater(len(passed), 50)
        # What it leaves open is the contrast over pictures, which comes next, and in what has
        # been scrolled away.
        self.assertEqual([node for node in undecided if node[0] != "color-contrast"], [])

    def assert_contrast_in_the_night(self):
        """The same with the lightest colour of the night in place of its gradient and stars."""
        self.browser.execute_script("""
            const sheet = document.styleSheets[0];
            sheet.insertRule('.night { background: #4a3a61 !important }', sheet.cssRules.length);
            sheet.insertRule('.night::before { display: none !important }', sheet.cssRules.length);
        """)
        passed, violated, undecided = self.run_axe("'.night', {runOnly: ['color-contrast']}")
        self.assertEqual((violated, undecided), ([], []))
        self.assertGreater(len(passed), 4)

    # The pages

    def test_looks_and_accessibility(self):
        for path, name in NAMES.items():
            for size in SIZES:
                for scheme in ("light", "dark"):
                    with self.subTest(page=name, size=size, scheme=scheme):
                        self.device(size, scheme)
                        self.open(path)
                        self.assertEqual(self.browser.title, TITLES[path])
                        wide, shown = self.browser.execute_script(
                            "return [document.documentElement.scrollWidth, innerWidth]")
                        self.assertLessEqual(wide, shown, "the page is wider than the window")
                        self.look(f"{name}-{size}-{scheme}")
                        self.assert_accessible()
                        self.assert_contrast_in_the_night()
                        self.assertEqual(self.complaints(), [])

    def test_read_without_styles_pictures_and_scripts(self):
        for path, name in NAMES.items():
            with self.subTest(name):
                self.device("desktop")
                self.browser.execute_cdp_cmd("Network.enable", {})
                self.browser.execute_cdp_cmd("Network.setBlockedURLs", {
                    "urls": ["*.css*", "*.avif*", "*.png*", "*.svg*", "*.js*"]})
                try:
                    self.browser.get(address(path))
                    text = self.browser.find_element(By.TAG_NAME, "body").text
                    self.look(f"{name}-plain")
                finally:
                    self.browser.execute_cdp_cmd("Network.setBlockedURLs", {"urls": []})
                self.complaints()  # of what was blocked
                self.assertGreater(len(text), 150)
                self.assertNotIn("Search the help", text)  # which asks for the script
                headings = self.browser.execute_script(
                    "return [...document.querySelectorAll('h1, h2')].map(one => one.innerText)")
                places = [text.find(heading) for heading in headings if heading != "Contents"]
                self.assertNotIn(-1, places)

    def test_without_script_everything_is_there_but_the_search(self):
        self.device("desktop")
        self.open("/orravane-help/")
        with_script = self.browser.find_element(By.TAG_NAME, "main").text
        self.assertTrue(self.browser.find_element(By.ID, "search").is_displayed())
        self.device("desktop", script=False)
        try:
            self.browser.get(address("/orravane-help/"))
            self.assertFalse(self.browser.find_element(By.ID, "search").is_displayed())
            self.assertEqual(self.browser.find_element(By.TAG_NAME, "main").text, with_script)
        finally:
            self.device("desktop")

    def test_search(self):
        self.device("desktop")
        self.open("/orravane-help/")
        field = self.browser.find_element(By.ID, "query")

        def search(text):
            field.clear()
            field.send_keys(text)
            return [link.text for link in self.browser.find_elements(By.CSS_SELECTOR, "#results a")]

        for text, expected in (("accents", "Letters with accents, blanks and other characters"),
                               ("printing", "Printing"), ("print", "Printing"),
                               ("pinnacl", "Pinnacle Phases"), ("esence", "Essence"),
                               ("master numbers", "11 and 22"),
                               ("another person", "Why a text of another person can appear"),
                               ("heart's desire", "Soul Urge / Heart’s Desire Number"),
                               ("settings", "Where settings are kept")):
            with self.subTest(text):
                self.assertEqual(search(text)[0], expected)
        # What a query language would choke on is text like any other.
        for text in ("title:", "+-~^*", "foo:bar~9^x", "<b>", "'", "11/22"):
            with self.subTest(text):
                search(text)
        self.assertEqual(search("clipboard"), ["Copying text"])
        self.assertEqual(search("xylophonist"), [])
        self.assertEqual(self.browser.find_element(By.ID, "found").text,
                         "Nothing found. Try another word.")
        search("clipboard")
        self.look("help-search", 900)
        field.send_keys(Keys.ENTER)
        wait_for("the section", lambda: self.browser.current_url.endswith("#copying-text"))
        self.assert_accessible()
        self.assert_contrast_in_the_night()
        self.assertEqual(self.complaints(), [])

    def test_sample_document(self):
        if not (pathlib.Path(os.environ["ORRAVANE_SITE_FOLDER"]) / "root/sample-report.html").exists():
            self.skipTest("this site has no sample document")
        _, headers = self.headers("/sample-report.html")
        self.assertIn("default-src 'none'; style-src 'unsafe-inline'; base-uri",
                      headers["content-security-policy"])
        for size in SIZES:
            for scheme in ("light", "dark"):
                with self.subTest(size=size, scheme=scheme):
                    self.device(size, scheme)
                    self.open("/sample-report.html")
                    self.look(f"sample-{size}-{scheme}")
                    self.assertEqual(self.complaints(), [])
                    self.assertGreater(self.browser.execute_script(
                        "return document.styleSheets[0].cssRules.length"), 10)
                    self.assertEqual(self.run_axe()[1], [])

    def test_print(self):
        self.device("desktop")
        self.open("/orravane-help/")
        pdf = self.browser.execute_cdp_cmd("Page.printToPDF", {"paperWidth": 8.27,
                                                               "paperHeight": 11.69})
        (SEEN / "help.pdf").write_bytes(base64.b64decode(pdf["data"]))
        self.assertGreater(len(pdf["data"]), 50_000)

    def test_size_of_the_first_page(self):
        self.device("desktop")
        self.browser.execute_cdp_cmd("Network.enable", {})
        self.browser.execute_cdp_cmd("Network.clearBrowserCache", {})
        self.open("/")
        loaded = self.browser.execute_script(
            "return performance.getEntriesByType('navigation').concat("
            "performance.getEntriesByType('resource')).map(one => [one.name, one.transferSize])")
        self.assertGreater(len(loaded), 5)
        self.assertLessEqual(sum(size for _, size in loaded), FIRST_PAGE)
        for name, size in loaded:
            self.assertTrue(name.startswith(f"https://{HOST}/"), name)
            self.assertGreater(size, 0)

    def test_valid(self):
        root = pathlib.Path(os.environ["ORRAVANE_SITE_FOLDER"]) / "root"
        files = [root / (path.lstrip("/") + "index.html" if path.endswith("/") else path.lstrip("/"))
                 for path in NAMES]
        done = subprocess.run(["java", "-jar", CHECKERS / "vnu-jar/build/dist/vnu.jar", "--html",
                               "--format", "json", *files], capture_output=True, text=True)
        self.assertEqual(json.loads(done.stderr)["messages"], [])
        self.assertEqual(done.returncode, 0)
        for kind, names in (("--css", ["style.css"]), ("--svg", ["sky.svg", "wordmark.svg"])):
            done = subprocess.run(["java", "-jar", CHECKERS / "vnu-jar/build/dist/vnu.jar", kind,
                                   "--errors-only", *(root / name for name in names)],
                                  capture_output=True, text=True)
            self.assertEqual(done.stderr, "")

    # The server

    def headers(self, path, *options, scheme="https"):
        text = self.server.curl(path, "--head", *options, scheme=scheme).decode()
        lines = text.strip().splitlines()
        return lines[0], {name.lower(): value for name, _, value in
                          (line.partition(": ") for line in lines[1:])}

    def test_headers(self):
        for path in (*NAMES, "/style.css", "/no-such-page", "/pictures/topic.avif"):
            with self.subTest(path):
                status, headers = self.headers(path)
                there = path not in ("/no-such-page", "/not-found.html")
                self.assertEqual(status.split()[:2], ["HTTP/2", "200" if there else "404"])
                policy = dict(rule.split(" ", 1) for rule in
                              headers["content-security-policy"].split("; ") if " " in rule)
                self.assertEqual(policy["default-src"], "'none'")
                for rule in ("style-src", "img-src", "script-src"):
                    self.assertEqual(policy[rule], "'self'")
                for rule in ("base-uri", "form-action", "frame-ancestors"):
                    self.assertEqual(policy[rule], "'none'")
                self.assertNotIn("unsafe", headers["content-security-policy"])
                age = re.fullmatch(r"max-age=(\d+)", headers["strict-transport-security"])
                self.assertGreaterEqual(int(age[1]), 31536000)
                for name, value in (("x-content-type-options", "nosniff"),
                                    ("x-frame-options", "DENY"),
                                    ("referrer-policy", "no-referrer"),
                                    ("cross-origin-opener-policy", "same-origin"),
                                    ("server", "nginx")):
                    self.assertEqual(headers[name], value)
                self.assertIn("permissions-policy", headers)
                self.assertNotIn("set-cookie", headers)

    def test_kinds_and_caching(self):
        html = "text/html; charset=utf-8"
        for path, kind in [*((path, html) for path in NAMES),
                           ("/style.css", "text/css; charset=utf-8"),
                           ("/search.js", "application/javascript; charset=utf-8"),
                           ("/icon.svg", "image/svg+xml; charset=utf-8"),
                           ("/pictures/topic.avif", "image/avif"),
                           ("/robots.txt", "text/plain; charset=utf-8")]:
            with self.subTest(path):
                _, headers = self.headers(path)
                self.assertEqual(headers["content-type"], kind)
                if path != "/not-found.html":
                    self.assertEqual(headers["cache-control"],
                                     "no-cache" if kind == html else "public, max-age=86400")
        _, headers = self.headers("/style.css?v=0123abcd")
        self.assertEqual(headers["cache-control"], "public, max-age=31536000, immutable")
        # An unchanged page is not sent again.
        _, headers = self.headers("/")
        status, _ = self.headers("/", "--header", "If-None-Match: " + headers["etag"])
        self.assertEqual(status.split()[1], "304")
        for path in ("/", "/style.css", "/lunr.min.js", "/wordmark.svg"):
            _, headers = self.headers(path, "--header", "Accept-Encoding: gzip")
            self.assertEqual(headers["content-encoding"], "gzip", path)

    def test_every_way_leads_to_the_page(self):
        status, headers = self.headers("/orravane-help/?from=window", scheme="http")
        self.assertEqual((status.split()[1], headers["location"]),
                         ("301", f"https://{HOST}/orravane-help/?from=window"))
        self.assertEqual(self.server.curl("/orravane-help"), self.server.curl("/orravane-help/"))
        for path in ("/.git/config", "/other.php", "/pictures/", "/index.php"):
            self.assertEqual(self.headers(path)[0].split()[1], "404", path)
        sent = self.server.curl("/", "--request", "POST", "--data", "a=1", "--output", "/dev/null",
                                "--write-out", "%{http_code}")
        self.assertEqual(sent, b"405")

    def test_only_present_day_encryption(self):
        self.server.curl("/", "--tlsv1.3")
        self.server.curl("/", "--tls-max", "1.2")
        with self.assertRaises(subprocess.CalledProcessError):
            self.server.curl("/", "--tls-max", "1.1", "--ciphers", "DEFAULT@SECLEVEL=0")

    @classmethod
    def tearDownClass(cls):
        if cls.server.errors():
            raise AssertionError("nginx complains: " + cls.server.errors())


if __name__ == "__main__":
    unittest.main(verbosity=2)
