#!/usr/bin/env python3
"""The Debian packages: what is in them, what they ask for, that what is installed is in order for
the desktop and the shell, and that the programs run where they are unpacked."""

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


class DebianPackages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        output(given.cpack, "-G", "DEB", "-B", cls.folder.name,
               "--config", Path(given.build) / "CPackConfig.cmake")
        packages = Path(cls.folder.name).glob("*.deb")
        cls.packages = {package.name.split("_")[0]: package for package in packages}
        cls.roots = {}
        for name, package in cls.packages.items():
            cls.roots[name] = Path(cls.folder.name) / "roots" / name
            cls.roots[name].mkdir(parents=True)
            output("dpkg-deb", "-x", package, cls.roots[name])
        cls.installed = cls.roots["kwqselect"] / "usr"

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def field(self, name, package="kwqselect"):
        return output("dpkg-deb", "-f", self.packages[package], name).strip()

    def test_are_named_as_debian_has_it(self):
        self.assertEqual(set(self.packages), {"kwqselect", "kwqselect-dev"})
        for name, section in (("kwqselect", "graphics"), ("kwqselect-dev", "libdevel")):
            self.assertRegex(self.packages[name].name, rf"^{name}_[0-9.]+_[a-z0-9]+\.deb$")
            self.assertEqual(self.field("Package", name), name)
            self.assertEqual(self.field("Section", name), section)

    def test_tell_what_they_are_for(self):
        self.assertRegex(self.field("Description"), r"^find entities of CAD drawings .*\n Finds every")
        self.assertRegex(self.field("Description", "kwqselect-dev"),
                         r"^build hosts and property providers .*\n Headers, CMake package")

    def test_ask_for_the_libraries_that_the_programs_link(self):
        wanted = self.field("Depends")
        for library in ("libc6", "libqt5core5a", "libqt5widgets5", "libocct-foundation"):
            self.assertIn(library, wanted)

    def test_recommend_the_texts_of_qt(self):
        self.assertEqual(self.field("Recommends"), "qttranslations5-l10n")

    def test_of_the_sdk_asks_for_the_libraries_of_its_own_version(self):
        self.assertEqual(self.field("Depends", "kwqselect-dev"),
                         f"kwqselect (= {self.field('Version')}), qtbase5-dev")

    def test_lie_below_usr_alone(self):
        for root in self.roots.values():
            self.assertEqual(os.listdir(root), ["usr"])

    def test_hold_programs_module_texts_pages_and_completions(self):
        for name in ("bin/kwselect", "lib/kwqselect/KwQselectUtil.so",
                     "lib/kwqselect/resources/en/KwQselectUtilRes.so",
                     "lib/kwqselect/resources/de/kwdraw.qm",
                     "share/man/man1/kwselect.1", "share/man/man1/kwdraw.1",
                     "share/bash-completion/completions/kwselect",
                     "share/zsh/vendor-completions/_kwselect",
                     "share/fish/vendor_completions.d/kwselect.fish",
                     "share/doc/kwqselect/LICENSE"):
            self.assertTrue((self.installed / name).is_file(), name)

    def test_leave_the_sdk_to_a_package_of_its_own(self):
        self.assertFalse((self.installed / "include").exists())
        for name in ("include/kwqselect/plugin/quick_select.h",
                     "lib/cmake/KwQselect/KwQselectConfig.cmake", "lib/pkgconfig/kwhost.pc",
                     "share/doc/kwqselect-dev/examples/provider/fall_provider.cpp"):
            self.assertTrue((self.roots["kwqselect-dev"] / "usr" / name).is_file(), name)

    def test_run_where_they_are_unpacked(self):
        program = self.installed / "bin" / "kwselect"
        drawing = Path(given.drawings) / "floor_plan.dxf"
        environment = {"PATH": "/usr/bin:/bin", "HOME": self.folder.name}
        handles = output(program, drawing, "Circle: Radius > 20", env=environment)
        self.assertEqual(handles, "41\n52\n")
        self.assertIn(self.field("Version"), output(program, "--version", env=environment))

    # What other programs read.

    def every(self, pattern):
        found = sorted(self.installed.glob(pattern))
        self.assertNotEqual(found, [], pattern)
        return found

    def test_desktop_entries_are_valid_and_name_what_is_installed(self):
        for entry in self.every("share/applications/*.desktop"):
            output("desktop-file-validate", entry)
            lines = entry.read_text().splitlines()
            keys = dict(line.split("=", 1) for line in lines if "=" in line)
            self.assertTrue((self.installed / "bin" / keys["Exec"].split()[0]).is_file())
            icons = self.installed.glob(f"share/icons/**/{keys['Icon']}.svg")
            self.assertEqual(len(list(icons)), 1)

    def test_metadata_of_the_application_are_valid_and_tell_this_version(self):
        for metadata in self.every("share/metainfo/*.xml"):
            output("appstreamcli", "validate", "--no-net", "--no-color", metadata)
            self.assertIn(f'<release version="{self.field("Version")}"', metadata.read_text())

    def test_manual_pages_are_in_order(self):
        for page in self.every("share/man/man*/*"):
            self.assertEqual(output("mandoc", "-T", "lint", "-W", "warning", page), "")


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    for option in ("--build", "--cpack", "--drawings"):
        parser.add_argument(option, required=True)
    given, rest = parser.parse_known_args()
    unittest.main(argv=sys.argv[:1] + rest)
