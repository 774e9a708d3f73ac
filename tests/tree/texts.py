#!/usr/bin/env python3
"""Holds the texts of every language against the English ones: texts.py FOLDER

Numbers, signs of formats, tabs, colons and the blanks around a text have to agree, and keys that
differ in English have to differ everywhere.
"""

import re
import sys
from pathlib import Path

ENTRY = re.compile(r'^msgctxt "(\d+)"\nmsgid "(.*)"\nmsgstr "(.*)"$', re.MULTILINE)
MNEMONIC = re.compile(r"&(?=\w)")


def texts(file):
    return {number: text for number, _, text in ENTRY.findall(file.read_text(encoding="utf-8"))}


def form(text):
    """What a translation must not change."""
    edge = len(text) - len(text.lstrip(" ")), len(text) - len(text.rstrip(" "))
    category, _, _ = text.partition(":")
    return {"blanks at the ends": edge,
            "colons": text.count(":"),
            "tabs in front": len(re.match(r"(?:\\t)*", text)[0]),
            "tabs": text.count("\\t"),
            "tabs before the colon": category.count("\\t"),
            "line feeds": text.count("\\n"),
            "formats": re.findall(r"%[a-z]+", text),
            "letter to press": len(MNEMONIC.findall(text))}


def problems(english, other):
    """Sentences on what is wrong with a translation."""
    for number in sorted(english.keys() - other.keys()):
        yield f"{number} is missing"
    for number in sorted(other.keys() - english.keys()):
        yield f"{number} is not in English"
    for number in sorted(english.keys() & other.keys()):
        wanted = form(english[number])
        for what, value in form(other[number]).items():
            if value != wanted[what]:
                yield f"{number}: {what}: {value}, in English {wanted[what]}"
    yield from collisions(english, other)


def collisions(english, other):
    sources = {}
    for number, text in other.items():
        if number in english and ":" in text:
            sources.setdefault(text.lower(), set()).add(english[number].lower())
    for text, keys in sources.items():
        if len(keys) > 1:
            yield f"{text!r} stands for {sorted(keys)}"


def main(folder):
    found = 0
    for file in sorted(folder.glob("*/*.po")):
        english = texts(folder / "en" / file.name)
        if not english:
            print(f"{file}: no English texts")
            found += 1
        for problem in problems(english, texts(file)):
            print(f"{file}: {problem}")
            found += 1
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
