#!/usr/bin/env python3
"""The recipes of the documentation print what it says."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import support

RECIPES = Path(__file__).resolve().parents[2] / "docs" / "filters.md"


def recipes():
    text = RECIPES.read_text()
    return re.findall(r"^### (.+?)\n(?:.*?)^```\n\$ (.+?)\n(.*?)^```", text, re.MULTILINE | re.DOTALL)


class Recipes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        for drawing in support.drawings.glob("*.dxf"):
            shutil.copy(drawing, self.folder)

    def test_are_thirty_at_least_and_all_are_found(self):
        self.assertGreaterEqual(len(recipes()), 30)
        self.assertEqual(len(recipes()), RECIPES.read_text().count("\n$ "))

    def test_print_what_they_say(self):
        path = os.pathsep.join([str(Path(support.program).parent), os.environ["PATH"]])
        for title, command, wanted in recipes():
            with self.subTest(title):
                done = subprocess.run(["bash", "-c", command], cwd=self.folder, timeout=60,
                                      env={**os.environ, "PATH": path}, capture_output=True,
                                      text=True, check=False)
                self.assertEqual(done.stdout, wanted, done.stderr)


if __name__ == "__main__":
    support.main()
