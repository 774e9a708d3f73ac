"""Puts what gcov says of all objects together: a table by folder, and the lines that were not run.

A line or a branch counts as run if any object that holds it ran it, as several test programs and
libraries hold the same code. Branches that the compiler adds for exceptions do not count, nor do asserts,
which only fail where we are wrong ourselves, nor lines of a closing brace alone, whose code is only run on
the way out of an exception."""

import collections
import json
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

AREAS = ("module", "host")


def reports(data_file):
    done = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", str(data_file)],
                          cwd=data_file.parent, capture_output=True, check=False)
    return [json.loads(line) for line in done.stdout.splitlines() if line.startswith(b"{")]


def counts(text):
    """Whether a line of this text is one that a test can be expected to run."""
    return "assert(" not in text and text.strip() not in ("}", "};")


class Coverage:
    """By source file: the counts of its lines, and of the branches of each line."""

    def __init__(self, root):
        self.root = root
        self.lines = collections.defaultdict(collections.Counter)
        self.branches = collections.defaultdict(dict)

    def add(self, report):
        folder = Path(report["current_working_directory"])
        for file in report["files"]:
            path = (folder / file["file"]).resolve()
            if not path.is_relative_to(self.root) or path.relative_to(self.root).parts[0] not in AREAS:
                continue
            name = str(path.relative_to(self.root))
            for line in file["lines"]:
                number = line["line_number"]
                self.lines[name][number] += line["count"]
                counts = [b["count"] for b in line["branches"] if not b["throw"]]
                self.add_branches(name, (number, line.get("function_name", ""), len(counts)), counts)

    def add_branches(self, name, place, counts):
        if counts:
            before = self.branches[name].get(place, [0] * len(counts))
            self.branches[name][place] = [a + b for a, b in zip(before, counts)]

    def counted(self, name):
        """The lines that count, and the text of all."""
        texts = (self.root / name).read_text().splitlines()
        return [n for n in sorted(self.lines[name]) if n <= len(texts) and counts(texts[n - 1])], texts

    def uncovered(self, name):
        """The lines that no test ran, and the text of all."""
        lines, texts = self.counted(name)
        return [n for n in lines if self.lines[name][n] == 0], texts

    def rows(self):
        folders = collections.defaultdict(lambda: [0, 0, 0, 0])
        for name in self.lines:
            lines, texts = self.counted(name)
            missed, _ = self.uncovered(name)
            row = folders[str(Path(name).parent)]
            row[0] += len(lines) - len(missed)
            row[1] += len(lines)
            for (number, _, _), counts_of_line in self.branches[name].items():
                if number > len(texts) or not counts(texts[number - 1]):
                    continue
                row[2] += sum(count > 0 for count in counts_of_line)
                row[3] += len(counts_of_line)
        return dict(sorted(folders.items()))


def percent(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else "-"


def main():
    root, build = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    coverage = Coverage(root)
    with ThreadPoolExecutor() as pool:
        for found in pool.map(reports, sorted(build.rglob("*.gcda"))):
            for report in found:
                coverage.add(report)

    print("| Folder | Lines | Branches |\n|---|---:|---:|")
    total = [0, 0, 0, 0]
    for folder, row in coverage.rows().items():
        print(f"| {folder} | {percent(*row[:2])} of {row[1]} | {percent(*row[2:])} of {row[3]} |")
        total = [a + b for a, b in zip(total, row)]
    print(f"| all | {percent(*total[:2])} of {total[1]} | {percent(*total[2:])} of {total[3]} |")

    with (build / "uncovered.txt").open("w") as file:
        for name in sorted(coverage.lines):
            missed, texts = coverage.uncovered(name)
            for number in missed:
                file.write(f"{name}:{number}: {texts[number - 1].strip()}\n")


if __name__ == "__main__":
    main()
