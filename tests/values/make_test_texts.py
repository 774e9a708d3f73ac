#!/usr/bin/env python3
"""Writes the texts of the libraries that these tests load.

usage: make_test_texts.py TypeNames.po folder

Makes in the folder KrxOPMRes.po, the real type names and a few of awkward length, and
KwValuesTest.po, texts for the look-up by number, which lacks the module's own.
"""

import sys
from pathlib import Path

HEADER = 'msgid ""\nmsgstr "Language: en\\n"\n'


def message(number, text):
    return f'\nmsgctxt "{number}"\nmsgid "{text}"\nmsgstr "{text}"\n'


def counted(length):
    """A text in which a cut shows: each group of ten begins with its number."""
    return "".join(f"{i:<10}" for i in range(length // 10 + 1)).replace(" ", ".")[:length]


def main(type_names, folder):
    folder = Path(folder)
    names = Path(type_names).read_text(encoding="utf-8")
    names += "".join(message(90000 + length, counted(length)) for length in (1023, 1024, 3000))
    names += message(99000, "before\0behind")
    (folder / "KrxOPMRes.po").write_text(names, encoding="utf-8")

    texts = [(80000 + length, counted(length)) for length in (1, 252, 253, 254, 255, 256, 5000)]
    texts += [(48281, "DOT"), (48283, "Point"), (34492, "Rot"), (35508, "rot")]
    (folder / "KwValuesTest.po").write_text(
        HEADER + "".join(message(*text) for text in texts), encoding="utf-8")


main(*sys.argv[1:])
