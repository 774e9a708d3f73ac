#!/usr/bin/env python3
"""Holds the catalogues of kwdraw's texts against its sources: catalogues.py FOLDER

Each text of the sources has to be in each catalogue and finished, and nothing else. A translation
has the same places to fill in, patterns of files, letters to press and edges as its source, and
every form that its language needs.
"""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SCRIPT = Path(__file__).parents[2] / "scripts" / "texts"
CATALOGUE = "kwdraw.ts"
PLURAL_FORMS = 2  # of the languages that there are
DIGITS = "Unterminated C++ character"  # said of numbers such as 50'000, and of no importance


def form(text):
    """What a translation must not change."""
    return {"places": sorted(set(re.findall(r"%(?:\d+|n)", text))),
            "patterns": re.findall(r"\((\*[^)]*)\)", text),
            "letter to press": len(re.findall(r"&(?=[^ &])", text)),
            "dots at the end": text.endswith("..."),
            "colon at the end": text.endswith(":"),
            "full stop at the end": text.endswith(".") and not text.endswith("..."),
            "line feeds": text.count("\n"),
            "blanks at the ends": (len(text) - len(text.lstrip()), len(text) - len(text.rstrip()))}


def problems(catalogue):
    """Sentences on what is wrong with a catalogue that was brought up to date."""
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            name = f'{context.findtext("name")}: "{message.findtext("source")}"'
            yield from (f"{name} {problem}" for problem in problems_of(message))


def problems_of(message):
    translation = message.find("translation")
    state = translation.get("type")
    if state == "unfinished":
        yield "is not translated"
        return
    if state in ("vanished", "obsolete"):
        yield "is no longer in the sources"
        return
    forms = [each.text or "" for each in translation.iter("numerusform")]
    is_plural = message.get("numerus") == "yes"
    if is_plural and len(forms) != PLURAL_FORMS:
        yield f"has {len(forms)} forms and not {PLURAL_FORMS}"
    wanted = form(message.findtext("source"))
    for text in forms if is_plural else [translation.text or ""]:
        if not text:
            yield "is empty"
            continue
        for what, value in form(text).items():
            if value != wanted[what]:
                yield f"has other {what} in {text!r}: {value}, not {wanted[what]}"


def brought_up_to_date(root, work):
    """Copies what the script needs, runs it there, and tells what it says."""
    shutil.copytree(root / "programs" / "kwdraw", work / "programs" / "kwdraw")
    for catalogue in (root / "resources").glob(f"*/{CATALOGUE}"):
        copy = work / catalogue.relative_to(root)
        copy.parent.mkdir(parents=True)
        shutil.copy(catalogue, copy)
    run = subprocess.run([SCRIPT, work], capture_output=True, text=True, check=True)
    said = (run.stdout + run.stderr).splitlines()
    return "\n".join(line for line in said if line and DIGITS not in line)


def main(root):
    found = 0
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        complaints = brought_up_to_date(root, work)
        if complaints:
            print(complaints)
            found += 1
        catalogues = sorted((work / "resources").glob(f"*/{CATALOGUE}"))
        for catalogue in catalogues:
            for problem in problems(catalogue):
                print(f"{catalogue.relative_to(work)}: {problem}")
                found += 1
        if not catalogues:
            print("there is no catalogue")
            found += 1
    if found:
        print("scripts/texts brings the catalogues up to date")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
