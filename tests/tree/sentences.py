#!/usr/bin/env python3
"""Holds the sentences that kwdraw translates against those that the program says: sentences.py FOLDER

The readers, writers and filters say them in English, and kwdraw knows them by their words, so a
sentence that is said in another way would no longer be translated.
"""

import re
import sys
from pathlib import Path

LIST = Path("programs/kwdraw/document/sentences.cpp")
SAID_IN = ("programs/common", "programs/kwdraw/panels", "host/exchange")

LITERALS = re.compile(r'L?"((?:[^"\\\n]|\\.)*)"(?:\s*L?"((?:[^"\\\n]|\\.)*)")*')
ONE = re.compile(r'L?"((?:[^"\\\n]|\\.)*)"')
LISTED = re.compile(r'QT_TRANSLATE_NOOP\("Sentences",\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+)\)')


def joined(text):
    """What adjacent literals say together."""
    return "".join(ONE.findall(text)).replace('\\"', '"')


def listed(text):
    return [joined(literals) for literals in LISTED.findall(text)]


def said(text):
    """All that a source may say, a run of literals a line."""
    return "\n".join(joined(match[0]) for match in LITERALS.finditer(text))


def pieces(sentence):
    """The words between what is put in, without signs at their ends."""
    for piece in re.split(r"%\d", sentence):
        piece = piece.strip(' ";:?').removeprefix("no ")
        if piece:
            yield piece


def main(root):
    sentences = listed((root / LIST).read_text(encoding="utf-8"))
    sources = "\n".join(said(source.read_text(encoding="utf-8"))
                        for folder in SAID_IN for source in sorted((root / folder).glob("*.cpp")))
    found = 0 if sentences else 1
    for sentence in sentences:
        for piece in pieces(sentence):
            if piece not in sources:
                print(f'{LIST}: nobody says "{piece}" of "{sentence}"')
                found += 1
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
