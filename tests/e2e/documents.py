"""What other programs see in a report: the text, line by line, with bold and colour."""

import re
import subprocess
import unicodedata
import xml.etree.ElementTree

from waiting import DEADLINE

_OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
_STYLE = "{urn:oasis:names:tc:opendocument:xmlns:style:1.0}"
_TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
_FO = "{urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0}"


def _output(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, timeout=DEADLINE)
    if done.returncode != 0:
        raise AssertionError(f"{command}: {done.stderr.decode()}")
    return done.stdout.decode()


def words(text):
    """Text as words, for a format that breaks lines as it likes, also behind a hyphen, and joins
    letters."""
    return re.sub(r"-(?=\w)", "- ", unicodedata.normalize("NFKC", text)).split()


def bold_words(runs):
    return [word for text, bold in runs if bold for word in words(text)]


def difference(one, other):
    """Where two lists of words part, in a few words; empty when they are equal."""
    for index in range(max(len(one), len(other))):
        if one[index:index + 1] != other[index:index + 1]:
            return (f"from word {index}: {' '.join(one[index:index + 12])!r} instead of "
                    f"{' '.join(other[index:index + 12])!r}")
    return ""


def missing_word(expected, found):
    """Where `expected` leaves `found`, which may have more between its words; empty when all are
    there in their order."""
    found = iter(found)
    for index, word in enumerate(expected):
        if word not in found:
            return f"{word!r} behind {' '.join(expected[max(0, index - 8):index])!r}"
    return ""


def words_once(text):
    """The words of a report as a document has them: a reading that comes back stands once."""
    lines = dict.fromkeys(line for line in text.splitlines() if line)
    return [word for line in lines for word in words(line)]


def flat_document_lines(path):
    """The paragraphs of a flat OpenDocument text, each a list of (text, bold, colour)."""
    root = xml.etree.ElementTree.parse(path).getroot()
    styles = {style.get(_STYLE + "name"): style for style in root.iter(_STYLE + "style")}

    def look_up(name, attribute):
        while name in styles:
            properties = styles[name].find(_STYLE + "text-properties")
            if properties is not None and properties.get(_FO + attribute) is not None:
                return properties.get(_FO + attribute)
            name = styles[name].get(_STYLE + "parent-style-name")
        return None

    def pieces(node, style):
        style = node.get(_TEXT + "style-name") or style
        if node.tag == _TEXT + "s":
            yield " " * int(node.get(_TEXT + "c", "1")), style
        elif node.tag == _TEXT + "tab":
            yield "\t", style
        if node.text:
            yield node.text, style
        for child in node:
            yield from pieces(child, style)
            if child.tail:
                yield child.tail, style

    lines = []
    for paragraph in root.find(f"{_OFFICE}body/{_OFFICE}text").iter(_TEXT + "p"):
        line = []
        for text, style in pieces(paragraph, None):
            look = (look_up(style, "font-weight") == "bold", look_up(style, "color"))
            if line and line[-1][1:] == look:
                line[-1] = (line[-1][0] + text, *look)
            else:
                line.append((text, *look))
        lines.append(line)
    return lines


def outline_and_lines(path):
    """The headings of a flat OpenDocument text as (level, text), and all its lines, with plain
    quotation marks."""
    def text_of(node):
        text = "".join(node.itertext()).translate(str.maketrans("\u2018\u2019\u201c\u201d", "''\"\""))
        return re.sub(r"\s+", " ", text).strip()

    root = xml.etree.ElementTree.parse(path).getroot().find(f"{_OFFICE}body/{_OFFICE}text")
    outline = [(int(node.get(_TEXT + "outline-level")), text_of(node))
               for node in root.iter(_TEXT + "h")]
    lines = [text_of(node) for node in root.iter() if node.tag in (_TEXT + "p", _TEXT + "h")]
    return outline, [line for line in lines if line]


def unrtf_lines(path):
    """The lines that unrtf makes of a rich-text file."""
    text = _output("unrtf", "--text", path)
    return text.partition("-----------------\n")[2].splitlines()


def pdf_fonts(path):
    """The names of the fonts in a PDF file, all of which have to be embedded."""
    names = []
    for line in _output("pdffonts", path).splitlines()[2:]:
        columns = line.split()
        if columns[-5] != "yes":
            raise AssertionError(f"not embedded: {line}")
        names.append(columns[0])
    return names


class PdfText:
    """The words of a PDF file that lie within `margin` (in points) of the paper's edges, and how
    they look. Words outside are cut off on paper."""

    def __init__(self, path, margin=0):
        root = xml.etree.ElementTree.fromstring(
            re.sub("<!DOCTYPE.*?>", "", _output("pdftohtml", "-xml", "-i", "-zoom", "1", "-stdout",
                                                path)))
        self.words, self.bold_words = [], []
        fonts, seen = {}, set()
        for page in root.iter("page"):
            fonts |= {font.get("id"): font.get("color") for font in page.iter("fontspec")}
            for line in page.iter("text"):
                middle = int(line.get("top")) + int(line.get("height")) / 2
                if not margin < middle < int(page.get("height")) - margin:
                    continue
                seen.add(line.get("font"))
                self.words += words("".join(line.itertext()))
                for bold in line.iter("b"):
                    self.bold_words += words("".join(bold.itertext()))
        self.colours = {fonts[font] for font in seen}
