#!/usr/bin/env python3
"""Turns the texts of a gettext PO file, and dialog layouts, into the source of a resource library.

usage: compile_texts.py texts.po library.cpp [group/name=layout.ui ...]

In the PO file msgctxt is the number of a text, msgid its English default and msgstr the text in the
file's language. A text that is missing or marked fuzzy stays English. The source holds one constant,
a ResourceTable (see platform/resource_table.h), laid out here so that nothing is built at run time.
"""

import re
import sys
from pathlib import Path

import layouts

GREATEST_ID = 2**31 - 1
HASH_MULTIPLIER = 2654435769  # the same as in platform/resource_table.h

ESCAPES = {"n": "\n", "t": "\t", "r": "\r", "a": "\a", "b": "\b", "f": "\f", "v": "\v",
           '"': '"', "\\": "\\"}
KEYWORD = re.compile(r'(msgctxt|msgid|msgstr)\s+(".*)$')


class PoError(Exception):
    """A fault of the PO file, at a line of it."""

    def __init__(self, line, message):
        super().__init__(message)
        self.line = line


class Entry:
    """One message of the file as it is read: the text of each keyword met so far."""

    def __init__(self, line):
        self.line = line
        self.texts = {}
        self.fuzzy = False


def unquote(quoted, line):
    """The text inside a quoted string, its escapes resolved."""
    if len(quoted) < 2 or quoted[0] != '"' or quoted[-1] != '"':
        raise PoError(line, "the quoted text is not closed")
    parts = re.findall(r'\\.|[^\\"]+|"|\\', quoted[1:-1])
    for part in parts:
        if part == '"' or part == "\\":
            raise PoError(line, "a quote or a backslash inside the text lacks its backslash")
        if part[0] == "\\" and part[1] not in ESCAPES:
            raise PoError(line, f"unknown escape {part}")
    return "".join(ESCAPES[part[1]] if part[0] == "\\" else part for part in parts)


def entries_of(lines):
    """The messages of the file, in their order, the header among them."""
    entry = None
    keyword = None
    fuzzy = False
    for number, line in enumerate(lines, 1):
        line = line.strip()
        match = KEYWORD.match(line)
        if match:
            keyword = match[1]
            if entry is None or "msgstr" in entry.texts:
                if entry:
                    yield entry
                entry = Entry(number)
                entry.fuzzy = fuzzy
                fuzzy = False
            if keyword in entry.texts:
                raise PoError(number, f"{keyword} stands twice in one message")
            entry.texts[keyword] = unquote(match[2], number)
        elif line.startswith('"'):
            if keyword is None:
                raise PoError(number, "a text without msgctxt, msgid or msgstr before it")
            entry.texts[keyword] += unquote(line, number)
        elif line.startswith("#"):
            fuzzy = fuzzy or (line.startswith("#,") and "fuzzy" in line)
        elif line:
            raise PoError(number, f"neither a message nor a comment: {line}")
        else:
            fuzzy = False  # the flag of an obsolete message is not that of the next one
    if entry:
        yield entry


def id_of(entry):
    context = entry.texts.get("msgctxt")
    if context is None:
        raise PoError(entry.line, "the message has no msgctxt with its number")
    if not re.fullmatch(r"[0-9]{1,10}", context) or not 0 < int(context) <= GREATEST_ID:
        raise PoError(entry.line, f'"{context}" is no number from 1 to {GREATEST_ID}')
    return int(context)


def texts_of(lines):
    """Maps each number to its text."""
    texts = {}
    places = {}
    for entry in entries_of(lines):
        for keyword in ("msgid", "msgstr"):
            if keyword not in entry.texts:
                raise PoError(entry.line, f"the message has no {keyword}")
        if entry.texts["msgid"] == "" and "msgctxt" not in entry.texts:
            continue  # the header
        number = id_of(entry)
        if number in places:
            raise PoError(entry.line, f"{number} stands in line {places[number]} already")
        if not entry.texts["msgid"]:
            raise PoError(entry.line, f"{number} has no English default")
        translated = "" if entry.fuzzy else entry.texts["msgstr"]
        texts[number] = translated or entry.texts["msgid"]
        places[number] = entry.line
    if not texts:
        raise PoError(len(lines), "the file holds no text")
    return texts


def literal(text):
    """A wide literal of the text; three-digit escapes can't run into the character behind them."""

    def character(c):
        if c in '"\\':
            return "\\" + c
        if c < " " or c == "\x7f":
            return f"\\{ord(c):03o}"
        if c < "\x7f":
            return c
        return f"\\{ord(c):03o}" if ord(c) < 0xA0 else f"\\U{ord(c):08x}"

    return 'L"' + "".join(map(character, text)) + '"'


def slots_of(offsets, texts):
    """Open addressing over a power of two of slots, at most half of them taken."""
    bits = max(2, (2 * len(texts) - 1).bit_length())
    slots = [(0, 0, 0)] * 2**bits
    for number, text in texts.items():
        at = (number * HASH_MULTIPLIER % 2**32) >> (32 - bits)
        while slots[at][0]:
            at = (at + 1) % len(slots)
        slots[at] = (number, offsets[text], len(text))
    return 32 - bits, slots


def rows_of(layout_bytes):
    """The constants of the layouts and the rows that name them."""
    constants = ""
    rows = []
    for number, (path, data) in enumerate(layout_bytes.items()):
        constants += f"constexpr char kLayout{number}[] =\n{layouts.literal(data)};\n\n"
        rows.append(f"    {{{literal(path)}, kLayout{number}, {len(data)}u}},")
    if rows:
        constants += "constexpr ResourceLayout kLayouts[] = {\n" + "\n".join(rows) + "\n};\n\n"
    return constants, "kLayouts" if rows else "nullptr"


def source_of(texts, origin, layout_bytes):
    offsets = {}  # of each text; numbers with the same text share it
    end = 0
    for text in dict.fromkeys(texts.values()):
        offsets[text] = end
        end += len(text)
    shift, slots = slots_of(offsets, texts)
    characters = "\n".join("    " + literal(text) for text in offsets)
    rows = "\n".join(f"    {{{number}u, {offset}u, {length}u}}," for number, offset, length in slots)
    constants, layout_rows = rows_of(layout_bytes)
    return f"""// Made from {origin}; change that file instead.
#include <platform/resource_table.h>

namespace {{

constexpr wchar_t kCharacters[] =
{characters};

constexpr ResourceSlot kSlots[] = {{
{rows}
}};

{constants}}} // namespace

extern "C" const ResourceTable kwResourceTable = {{
    kResourceTableVersion, {shift}u, kSlots, kCharacters, {layout_rows}, {len(layout_bytes)}u}};
"""


def main(arguments):
    pairs = [argument.partition("=") for argument in arguments[2:]]
    if len(arguments) < 2 or not all(path and file for path, _, file in pairs):
        print(__doc__, file=sys.stderr)
        return 2
    po = Path(arguments[0])
    try:
        lines = po.read_text(encoding="utf-8").split("\n")
        texts = texts_of(lines)
        layout_bytes = {path: layouts.layout_of(file, texts) for path, _, file in pairs}
        Path(arguments[1]).write_text(source_of(texts, po.name, layout_bytes), encoding="ascii")
    except PoError as error:
        print(f"{po}:{error.line}: {error}", file=sys.stderr)
    except layouts.LayoutError as error:
        print(error, file=sys.stderr)
    except UnicodeDecodeError as error:
        line = error.object.count(b"\n", 0, error.start) + 1
        print(f"{po}:{line}: the text is not UTF-8", file=sys.stderr)
    except OSError as error:
        print(f"{error.filename}: {error.strerror}", file=sys.stderr)
    else:
        return 0
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
