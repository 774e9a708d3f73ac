#!/usr/bin/env python3
"""Writes selections of drawings and looks at the outcome with kwselect and with an independent reader.

For each drawing: all of its entities, and those of each of its rarest types, are written as drawings of their
own. Such a drawing must hold the chosen entities with every property as it was, read without complaint, and
show an independent reader no fault that the source does not have."""

import argparse
import collections
import json
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

SELECTED, NOTHING, CANNOT_WORK, IN_PART = 0, 1, 2, 3
MOST_TYPES = 3


class Check:
    def __init__(self, program, folder):
        self.program, self.target = program, folder / "written.dxf"
        self.faults = []
        self.count = 0

    def run(self, *arguments):
        done = subprocess.run([self.program, *map(str, arguments)], capture_output=True, timeout=300, check=False)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def expect(self, condition, *message):
        self.count += 1
        if not condition:
            self.faults.append(": ".join(map(str, message)))

    def dump(self, drawing):
        """The entities of the current space by their handles, and the exit status."""
        status, output, _ = self.run(drawing, "--dump")
        entities = [json.loads(line) for line in output.splitlines()]
        return {entity["handle"]: entity for entity in entities}, status

    def drawing(self, source):
        entities, status = self.dump(source)
        if status not in (SELECTED, IN_PART) or not entities:
            return
        counts = collections.Counter(entity["displayName"] for entity in entities.values())
        rarest = sorted(counts, key=lambda name: (counts[name], name))[:MOST_TYPES]
        before = faults_of(source)
        for name in [None, *rarest]:
            wanted = {handle for handle, entity in entities.items() if name in (None, entity["displayName"])}
            self.selection(source, name, wanted, entities, status)
            if before is not None and name in (None, rarest[0]):
                self.audit(source, name, before)

    def selection(self, source, name, wanted, entities, source_status):
        self.target.unlink(missing_ok=True)
        chosen = [] if name is None else ["--type", name]
        status, output, errors = self.run(source, *chosen, "--write", self.target)
        self.expect(status in (SELECTED, source_status), source, name, status, errors)
        selected = set(output.split())
        self.expect(selected and selected <= wanted, source, name, "selected", selected ^ wanted)
        written, status = self.dump(self.target)
        self.expect(status in (SELECTED, source_status), source, name, "written file has status", status)
        if not has_handles(source):
            chosen = [entity["properties"] for handle, entity in entities.items() if handle in selected]
            self.expect(chosen == [entity["properties"] for entity in written.values()], source, name, "differs")
            return
        for handle in selected:
            self.expect(written.get(handle) == entities[handle], source, name, handle,
                        difference(entities[handle], written.get(handle)))
        sheets = {h for h, entity in written.items() if entity["className"] == "AcDbViewport"}
        if name is not None and not needs_others(name):
            self.expect(set(written) - sheets <= selected, source, name, "came along", set(written) - selected)

    def audit(self, source, name, before):
        after = faults_of(self.target)
        self.expect(after is not None, source, name, "the independent reader refuses it")
        if after is not None:
            self.expect(not after - before, source, name, "new faults", after - before)


def has_handles(drawing):
    """Old drawings may do without; then entities get new ones at each reading."""
    content = drawing.read_bytes()
    codes = {line.strip() for line in content.splitlines()[0::2]}
    return b"\0" in content or b"5" in codes


def needs_others(type_name):
    return type_name in ("Leader", "Viewport", "Multileader")


def difference(before, after):
    if after is None:
        return "not there"
    old = {p["key"]: p for p in before["properties"]}
    new = {p["key"]: p for p in after["properties"]}
    keys = [key for key in {**old, **new} if old.get(key) != new.get(key)]
    return [(old.get(key), new.get(key)) for key in keys]


def faults_of(path):
    """What the independent reader finds wrong, with numbers; None if it can't read the file."""
    try:
        document = ezdxf.readfile(path)
        auditor = document.audit()
    except Exception:  # it refuses files in many ways
        return None
    return collections.Counter(entry.code for entry in [*auditor.errors, *auditor.fixes])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("drawings", nargs="+", type=Path)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        check = Check(options.program, Path(folder))
        for drawing in options.drawings:
            check.drawing(drawing)
    for fault in check.faults:
        print(fault[:2000])
    print(f"{check.count - len(check.faults)} passed, {len(check.faults)} failed")
    return 1 if check.faults or check.count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
