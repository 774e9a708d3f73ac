#!/usr/bin/env python3
"""The Debian package: what is in it, what it asks for, and that it runs where it is unpacked."""

import argparse
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

given = argparse.Namespace()


def output(*command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          timeout=500, check=False, **options)
    assert done.returncode == 0, f"{command}: {done.stdout}{done.stderr}"
    return done.stdout


class DebianPackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.root = Path(cls.folder.name) / "root"
        output(given.cpack, "-G", "DEB", "-B", cls.folder.name,
               "--config", Path(given.build) / "CPackConfig.cmake")
        cls.package, = Path(cls.folder.name).glob("*.deb")
        output("dpkg-deb", "-x", cls.package, cls.root)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def field(self, name):
        return output("dpkg-deb", "-f", self.package, name).strip()

    def test_is_named_as_debian_has_it(self):
        self.assertRegex(self.package.name, r"^kwqselect_[0-9.]+_[a-z0-9]+\.deb$")
        self.assertEqual(self.field("Package"), "kwqselect")
        self.assertEqual(self.field("Section"), "graphics")

    def test_asks_for_the_libraries_that_its_programs_link(self):
        wanted = self.field("Depends")
        for library in ("libc6", "libqt5core5a", "libqt5widgets5", "libocct-foundation"):
            self.assertIn(library, wanted)

    def test_lies_below_usr_alone(self):
        self.assertEqual(os.listdir(self.root), ["usr"])

    def test_holds_programs_module_texts_pages_and_completions(self):
        for name in ("bin/kwselect", "lib/kwqselect/KwQselectUtil.so",
                     "lib/kwqselect/resources/en/KwQselectUtilRes.so",
                     "share/man/man1/kwselect.1", "share/bash-completion/completions/kwselect",
                     "share/zsh/vendor-completions/_kwselect",
                     "share/fish/vendor_completions.d/kwselect.fish",
                     "share/doc/kwqselect/LICENSE"):
            self.assertTrue((self.root / "usr" / name).is_file(), name)

    def test_runs_where_it_is_unpacked(self):
        program = self.root / "usr" / "bin" / "kwselect"
        drawing = Path(given.drawings) / "floor_plan.dxf"
        environment = {"PATH": "/usr/bin:/bin", "HOME": self.folder.name}
        self.assertEqual(output(program, drawing, "Circle: Radius > 20", env=environment), "41\n52\n")
        self.assertIn(self.field("Version"), output(program, "--version", env=environment))


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    for option in ("--build", "--cpack", "--drawings"):
        parser.add_argument(option, required=True)
    given, rest = parser.parse_known_args()
    unittest.main(argv=sys.argv[:1] + rest)
