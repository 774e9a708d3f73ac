"""What the tests of kwselect share: running it as a person does, and the raw drawing."""

import argparse
import os
import subprocess
import sys
import unittest
from pathlib import Path

SELECTED, NOTHING, CANNOT_WORK, IN_PART, INTERRUPTED = 0, 1, 2, 3, 130
program = ""
drawings = Path()


def plan():
    return drawings / "floor_plan.dxf"


def kinds():
    return drawings / "all_basic_kinds_r2010.dxf"


class Run:
    """One run: exit status, output as bytes and as lines, and what went to standard error."""

    def __init__(self, *arguments, environment=None, folder=None, text=None):
        done = subprocess.run([program, *map(str, arguments)], capture_output=True, timeout=120,
                              env={**os.environ, "LC_ALL": "C.UTF-8", **(environment or {})}, cwd=folder, check=False,
                              input=None if text is None else text.encode())
        self.status = done.returncode
        self.output = done.stdout
        self.lines = done.stdout.decode().splitlines()
        self.errors = done.stderr.decode()


def raw_entities(drawing):
    """Kind, handle, layer and colour of the entities in the ENTITIES section, read by eye, so to say."""
    lines = drawing.read_text().splitlines()
    pairs = list(zip((int(code) for code in lines[0::2]), lines[1::2]))
    start = next(i for i, pair in enumerate(pairs) if pair == (2, "ENTITIES")) + 1
    entities = []
    for code, value in pairs[start:]:
        if (code, value) == (0, "ENDSEC"):
            break
        if code == 0:
            entities.append({"kind": value, "sheet": False, "layer": "0", "color": "256"})
        elif entities and code in (5, 8, 62) and value:
            entities[-1].setdefault({5: "handle", 8: "layer", 62: "color"}[code], value)
            if code in (8, 62):
                entities[-1][{8: "layer", 62: "color"}[code]] = value
        elif entities and code == 67 and value.strip() == "1":
            entities[-1]["sheet"] = True
    return [e for e in entities if not e["sheet"]]


def model_entities(drawing):
    """Those that stand for themselves: parts of others left out."""
    return [e for e in raw_entities(drawing) if e["kind"] not in ("ATTRIB", "SEQEND", "VERTEX")]


def main():
    global program, drawings
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--drawings", type=Path, required=True)
    options, rest = parser.parse_known_args()
    program, drawings = options.program, options.drawings
    unittest.main(module="__main__", argv=[sys.argv[0], *rest])
