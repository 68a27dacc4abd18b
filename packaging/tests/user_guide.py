"""user_guide.py ORRAVANE-REPORT USER-GUIDE

The user guide has every topic, in a table and under a heading of its own, and its worked
examples end at the numbers that the program gives."""

import json
import re
import subprocess
import sys

CLARA = ["--first", "Clara", "--middle", "Jane", "--last", "Winter", "--date", "1985-03-29",
         "--today", "2026-11-21"]

program, guide = sys.argv[1:]
with open(guide, encoding="utf-8") as file:
    text = file.read()
topics = text.split("\n## The twenty-two topics\n")[1].split("\n## ")[0]
table, *sections = topics.split("\n### ")
examples = dict(section.split("\n", 1) for section in sections)
rows = dict(re.findall(r"^\| \[(.*?)\].*\| (.*?) \|$", table, re.MULTILINE))


def run(*arguments):
    return subprocess.run([program, *arguments], capture_output=True, text=True, check=True).stdout


def values(words):
    """The numbers in a text, or the word that stands for one."""
    return re.findall(r"\d+|Mental|Physical|Emotional|Intuitive", words)


captions = run("--list-topics").splitlines()[:-1]  # the last is all of them together
assert len(captions) == 22, captions
assert sorted(rows) == sorted(captions), sorted(rows)
assert list(examples) == list(rows), list(examples)

numbers = json.loads(run(*CLARA, "--numbers"))
shown = {topic["caption"]: topic["number"]
         for topic in json.loads(run(*CLARA, "--format", "json"))["topics"]}
shown["Pinnacle Phases"] = " ".join(str(numbers[f"pinnacle_{n}"]) for n in (1, 2, 3, 4))
shown["Planes Of Expression / Personal Aspects"] = numbers["plane"]
for caption in captions:
    expected = values(shown[caption])
    assert expected, caption
    assert values(rows[caption]) == expected, f"{caption}: {rows[caption]} in the table, {expected}"
    bold = values(" ".join(re.findall(r"\*\*(.*?)\*\*", examples[caption], re.DOTALL)))
    assert bold == expected, f"{caption}: {bold} in the example, {expected}"

planes = examples["Planes Of Expression / Personal Aspects"]
shares = dict(re.findall(r"^\| (\w+) .*: (\d+) \|", planes, re.MULTILINE))
assert len(shares) == 4, shares
for plane, share in shares.items():
    assert int(share) == numbers[f"{plane.lower()}_percent"], f"{plane}: {share}"
