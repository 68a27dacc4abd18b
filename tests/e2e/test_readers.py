"""The saved files in the hands of other programs: nothing of a report is lost."""

import re
import shutil

import desktop
from desktop import Desktop, DesktopTest
from documents import (PdfText, bold_words, difference, flat_document_lines, missing_word,
                       outline_and_lines, pdf_fonts, unrtf_lines, words, words_once)
from program import COMPREHENSIVE, TOPICS
from readings import MARIA, Person, expected_rtf, expected_runs, lines_of, plain_text, tool

# Another person too, whose report has other readings and none in some places.
JOHN = Person("John", "", "Adams", "October", 29, 1949)
DAY = "2024-02-29"


class Readers(DesktopTest):
    """The tool makes the same bytes as the window, which another test compares."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop("readers", display=False)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.close)
        cls.folder = cls.desktop.folder
        cls.reports = {}
        for name, person in (("maria", MARIA), ("john", JOHN)):
            for number, caption in enumerate([*TOPICS, COMPREHENSIVE]):
                path = cls.folder / f"{name}-{number}.rtf"
                path.write_bytes(expected_rtf(person, caption, DAY))
                cls.reports[path] = expected_runs(person, caption, DAY)
        for to in ("txt:Text (encoded):UTF8", "fodt", "pdf"):
            cls.desktop.run("soffice", "--headless", "--norestore", "--convert-to", to, "--outdir",
                            str(cls.folder), *(str(path) for path in cls.reports), timeout=120)
        for name in ("maria-0", "maria-22"):  # the first topic and all of them, to look at
            for ending in (".rtf", ".fodt", ".pdf"):
                shutil.copy(cls.folder / (name + ending), cls.desktop.artefact(name + ending))

    def for_each_report(self, check):
        self.assertEqual(len(self.reports), 46)
        for path, runs in self.reports.items():
            with self.subTest(path.stem):
                check(path, runs)

    def test_office_text(self):
        def check(path, runs):
            text = path.with_suffix(".txt").read_text(encoding="utf-8-sig")
            self.assertEqual(text, plain_text(runs) + "\n")

        self.for_each_report(check)

    def test_office_looks(self):
        def check(path, runs):
            self.assertEqual(flat_document_lines(path.with_suffix(".fodt")),
                             [[(text, bold, "#800080") for text, bold in line]
                              for line in lines_of(runs)])

        self.for_each_report(check)

    def test_office_pdf(self):
        def check(path, runs):
            pdf = path.with_suffix(".pdf")
            look = PdfText(pdf)
            self.assertEqual(difference(look.words, words(plain_text(runs))), "")
            self.assertEqual(difference(look.bold_words, bold_words(runs)), "")
            self.assertEqual(look.colours, {"#800080"})
            self.assertEqual(sorted("Bold" in font for font in pdf_fonts(pdf)), [False, True])

        self.for_each_report(check)

    def test_unrtf(self):
        def check(path, runs):
            self.assertEqual(unrtf_lines(path), plain_text(runs).split("\n"))

        self.for_each_report(check)


class Documents(DesktopTest):
    """What pandoc makes of a document's Markdown, in an office suite."""

    # Its name is full of what Markdown takes for markup.
    NAMED = Person("*Zo\u00eb* _a_ [x](http://x)", "# <b>&amp; `c` --- $5$ {#i}", "\"O'Neil\" \\\\ ~|^@|~",
                   "October", 29, 1949)

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop("readers-documents", display=False)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.close)
        cls.folder = cls.desktop.folder
        for name, person in (("maria", MARIA), ("named", cls.NAMED)):
            markdown = cls.folder / (name + ".md")
            markdown.write_bytes(tool(*person.options(), "--today", DAY, "--format", "markdown"))
            for ending in ("docx", "odt"):
                file = cls.folder / f"{name}.{ending}"
                cls.desktop.run("pandoc", "--from", "markdown", "--output", str(file), str(markdown))
                shutil.copy(file, cls.desktop.artefact(file.name))
                cls.desktop.run("soffice", "--headless", "--norestore", "--convert-to", "fodt",
                                "--outdir", str(cls.folder / ending), str(file), timeout=120)

    def test_headings_are_in_the_outline_and_texts_are_there(self):
        for name, person in (("maria", MARIA), ("named", self.NAMED)):
            given = f"{person.first} {person.middle} {person.last}"
            markdown = (self.folder / (name + ".md")).read_text()
            headings = [(len(level), " ".join(text.replace("\\", "").split())) for level, text in
                        re.findall(r"^(#+) (.*) \{#[^}]*\}$", markdown, re.MULTILINE)]
            self.assertGreater(len(headings), 22)
            report = words_once(tool(*person.options(), "--today", DAY).decode())
            for ending in ("docx", "odt"):
                with self.subTest(name=name, ending=ending):
                    outline, lines = outline_and_lines(self.folder / ending / (name + ".fodt"))
                    self.assertEqual(outline, headings)
                    self.assertEqual(lines[0], given)
                    self.assertEqual(missing_word(report, words("\n".join(lines))), "")


if __name__ == "__main__":
    desktop.main()
