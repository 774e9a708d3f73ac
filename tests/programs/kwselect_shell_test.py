#!/usr/bin/env python3
"""The man page and the completions of kwselect: right in form, and true to the program."""

import os
import re
import shlex
import subprocess
import tempfile
import unittest
from pathlib import Path

import support
from support import Run

PACKAGING = Path(__file__).resolve().parents[2] / "packaging"
MAN_PAGE = PACKAGING / "man" / "kwselect.1"
COMPLETION = PACKAGING / "completion"


def options():
    return set(re.findall(r"(?:^|[ ,])(--[a-z][a-z-]*)", "\n".join(Run("--help").lines)))


def output(*command):
    path = os.pathsep.join([str(Path(support.program).parent), os.environ["PATH"]])
    done = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False,
                          env={**os.environ, "PATH": path})
    assert done.returncode == 0, done.stderr
    return done.stdout


class ManPage(unittest.TestCase):
    def test_has_no_complaint(self):
        done = subprocess.run(["mandoc", "-T", "lint", str(MAN_PAGE)], capture_output=True,
                              text=True, check=False)
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))

    def test_tells_of_every_option_and_no_other(self):
        told = {f"--{name}" for name in re.findall(r"(?:Fl|,) -([a-z-]{2,})", MAN_PAGE.read_text())}
        self.assertEqual(told, options())


class Completions(unittest.TestCase):
    def test_know_every_option_and_no_other(self):
        zsh = (COMPLETION / "_kwselect").read_text()
        self.assertEqual(set(re.findall(r"(--[a-z][a-z-]*)[\['}]", zsh)), options())
        fish = (COMPLETION / "kwselect.fish").read_text()
        self.assertEqual({f"--{name}" for name in re.findall(r"^complete.* -l ([a-z-]+)", fish, re.MULTILINE)}, options())

    def test_are_right_in_form(self):
        output("zsh", "-n", str(COMPLETION / "_kwselect"))
        output("fish", "-n", str(COMPLETION / "kwselect.fish"))


class Bash(unittest.TestCase):
    def complete(self, *words):
        script = (f"source {COMPLETION / 'kwselect.bash'}; COMP_WORDS=({shlex.join(words)}); "
                  f"COMP_CWORD={len(words) - 1}; _kwselect; printf '%s\\n' \"${{COMPREPLY[@]}}\"")
        return output("bash", "-c", script).splitlines()

    def test_offers_the_types_of_the_drawing(self):
        self.assertEqual(self.complete("kwselect", str(support.plan()), "--type", "ci"), ["Circle"])
        self.assertEqual(self.complete("kwselect", str(support.plan()), "-t", "Block"),
                         ["Block\\ Reference"])

    def test_offers_the_properties_of_the_type(self):
        words = ["kwselect", str(support.plan()), "-t", "Circle", "-p", "Rad"]
        self.assertEqual(self.complete(*words), ["Radius"])
        self.assertEqual(self.complete("kwselect", str(support.plan()), "-p", "Rad"), [""])

    def test_offers_the_operators_and_values_of_the_property(self):
        words = ["kwselect", str(support.plan()), "-t", "Circle", "-p"]
        self.assertEqual(self.complete(*words, "Layer", "-o", ""), ["=", "\\<\\>", "all"])
        self.assertEqual(self.complete(*words, "Radius", "-o", "'>"), ["\\>"])
        self.assertEqual(self.complete(*words, "Layer", "-v", "pipes-h"), ["PIPES-HOT"])

    def test_offers_options_and_their_values(self):
        self.assertEqual(self.complete("kwselect", "--exp"), ["--explain"])
        self.assertEqual(self.complete("kwselect", "--format", "j"), ["json", "jsonl"])

    def test_offers_drawings(self):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "a.dxf").touch()
            (Path(folder) / "a.txt").touch()
            self.assertEqual(self.complete("kwselect", f"{folder}/a"), [f"{folder}/a.dxf"])


class Fish(unittest.TestCase):
    def complete(self, line):
        script = f"source {COMPLETION / 'kwselect.fish'}; complete -C {shlex.quote(line)}"
        return [offer.split("\t")[0] for offer in output("fish", "-c", script).splitlines()]

    def test_offers_the_types_of_the_drawing(self):
        self.assertIn("Circle", self.complete(f"kwselect {support.plan()} --type "))

    def test_offers_the_properties_of_the_type(self):
        self.assertIn("Radius", self.complete(f"kwselect {support.plan()} -t Circle -p "))

    def test_offers_the_operators_and_values_of_the_property(self):
        line = f"kwselect {support.plan()} -t Circle -p Layer "
        self.assertEqual(set(self.complete(line + "-o ")), {"=", "<>", "all"})
        self.assertIn("PIPES-HOT", self.complete(line + "-v "))


class Pipelines(unittest.TestCase):
    """The pipelines of the user's guide."""

    def test_with_xargs_give_what_one_run_gives(self):
        drawings = sorted(str(path) for path in support.drawings.glob("*.dxf"))
        direct = Run(*drawings, "Circle", "--count")
        piped = output("sh", "-c", f"printf '%s\\0' {shlex.join(drawings)} | "
                       "xargs -0 -P 1 -n 2 kwselect 'Circle' --count 2>/dev/null || true")
        counts = [line.split("\t")[-1] for line in piped.splitlines()]
        self.assertEqual(counts, [line.split("\t")[-1] for line in direct.lines])

    def test_with_parallel_give_what_one_run_gives(self):
        drawings = sorted(str(path) for path in support.drawings.glob("*.dxf"))
        direct = Run(*drawings, "Circle", "--count")
        # ":" is this machine, in the place of the names of others.
        piped = output("sh", "-c", f"printf '%s\\n' {shlex.join(drawings)} | "
                       "parallel --will-cite -k --sshlogin 2/: kwselect {} Circle --count "
                       "2>/dev/null || true")
        self.assertEqual(piped.splitlines(), [line.split("\t")[-1] for line in direct.lines])


if __name__ == "__main__":
    support.main()
