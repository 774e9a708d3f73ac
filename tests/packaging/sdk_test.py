#!/usr/bin/env python3
"""The SDK as makers of hosts and of providers get it: installed, moved, and built against.

That each header compiles alone is shown in tests/tree; here the installed ones are the same files,
and all of them together need nothing but what is installed."""

import argparse
import filecmp
import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

given = argparse.Namespace()

BUILD_OF_ALL = """
cmake_minimum_required(VERSION 3.16)
project(Outside LANGUAGES CXX)
add_subdirectory({examples}/host host)
add_subdirectory({examples}/provider provider)
find_package(KwQselect {version} REQUIRED)
add_library(all_headers OBJECT all_headers.cpp)
target_link_libraries(all_headers PRIVATE KwQselect::hostui)
"""
SEARCH_ALONE = """
cmake_minimum_required(VERSION 3.16)
project(Search LANGUAGES NONE)
find_package(KwQselect {version} REQUIRED)
"""


def run(*command, **options):
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=300, check=False, **options)


def output(*command, **options):
    done = run(*command, **options)
    assert done.returncode == 0, f"{command}: {done.stdout}"
    return done.stdout


def files_below(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file()}


class Sdk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # Always the same folder, so that the compiler's cache knows what it compiled the last time.
        cls.work = Path(given.work)
        shutil.rmtree(cls.work, ignore_errors=True)
        cls.sdk = cls.work / "sdk"
        output(given.cmake, "--install", given.build, "--component", "sdk", "--prefix", cls.sdk)
        # An install may be moved as a whole.
        cls.prefix = cls.work / "moved"
        shutil.copytree(cls.sdk, cls.work / "first")
        output(given.cmake, "--install", given.build, "--component", "runtime",
               "--prefix", cls.work / "first")
        os.rename(cls.work / "first", cls.prefix)
        cls.examples = cls.prefix / "share/doc/kwqselect-dev/examples"
        cls.build_outside()

    @classmethod
    def build_outside(cls):
        source = cls.work / "outside"
        source.mkdir()
        headers = sorted(files_below(cls.prefix / "include/kwqselect"))
        (source / "all_headers.cpp").write_text(
            "".join(f"#include <{header}>\n" for header in headers))
        (source / "CMakeLists.txt").write_text(BUILD_OF_ALL.format(
            examples=cls.examples, version=given.version))
        cls.outside = cls.work / "built"
        output(given.cmake, "-S", source, "-B", cls.outside, "-G", "Ninja",
               f"-DCMAKE_PREFIX_PATH={cls.prefix}", f"-DCMAKE_CXX_COMPILER={given.compiler}",
               f"-DCMAKE_CXX_COMPILER_LAUNCHER={given.launcher}",
               "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror")
        output(given.cmake, "--build", cls.outside)

    def plan_host(self, plan, *question, provider=False):
        """What it prints, messages and the count line included."""
        library = self.outside / "provider/libfall_provider.so"
        options = ("--provider", library) if provider else ()
        return run(self.outside / "host/plan_host", *options, plan, *question,
                   env={"HOME": str(self.work), "LANG": "C"})

    def selected(self, *comparison, provider=False):
        done = self.plan_host(self.examples / "host/drains.plan", *comparison, provider=provider)
        self.assertEqual(done.returncode, 0, done.stdout)
        handles = re.findall(r"^[0-9A-F]+$", done.stdout, re.MULTILINE)
        self.assertIn(f"{len(handles)} item(s) selected.", done.stdout)
        return handles

    # What is installed.

    def test_holds_headers_packages_and_examples_alone(self):
        folders = ("include/kwqselect/", "lib/cmake/KwQselect/", "lib/pkgconfig/",
                   "share/doc/kwqselect-dev/")
        others = [str(path) for path in files_below(self.sdk)
                  if not str(path).startswith(folders)]
        self.assertEqual(others, [])

    def test_holds_the_public_headers_as_they_are(self):
        tree = Path(given.source) / "host/include"
        headers = [str(path) for path in files_below(tree)]
        self.assertEqual({str(path) for path in files_below(self.sdk / "include/kwqselect")},
                         set(headers))
        _, different, missing = filecmp.cmpfiles(tree, self.sdk / "include/kwqselect", headers,
                                                 shallow=False)
        self.assertEqual(different + missing, [])

    def test_names_no_place_of_the_machine_that_built_it(self):
        for folder in ("lib/cmake/KwQselect", "lib/pkgconfig"):
            for path in files_below(self.sdk / folder):
                text = (self.sdk / folder / path).read_text()
                for place in (given.source, given.build, str(self.sdk)):
                    self.assertNotIn(place, text, path)

    def test_refuses_another_version_than_it_is(self):
        source = self.work / "search"
        source.mkdir()
        for version in ("0.0.1", "9.0"):
            (source / "CMakeLists.txt").write_text(SEARCH_ALONE.format(version=version))
            done = run(given.cmake, "-S", source, "-B", self.work / f"search-{version}",
                       f"-DCMAKE_PREFIX_PATH={self.prefix}")
            self.assertNotEqual(done.returncode, 0)
            self.assertIn(f"version: {given.version}", done.stdout)

    def test_is_found_by_pkg_config(self):
        environment = dict(os.environ, PKG_CONFIG_PATH=str(self.prefix / "lib/pkgconfig"))
        flags = output("pkg-config", "--cflags", "--libs", "kwhostui", env=environment).split()
        folders = [os.path.realpath(flag[2:]) for flag in flags if re.match("-[IL]", flag)]
        self.assertIn(os.path.realpath(self.prefix / "include/kwqselect"), folders)
        self.assertIn(os.path.realpath(self.prefix / "lib"), folders)
        self.assertIn("-lkwhost", flags)
        self.assertIn("-lkwhostui", flags)
        self.assertEqual(output("pkg-config", "--modversion", "kwhost", env=environment).strip(),
                         given.version)

    # What is built with it.

    def test_host_selects_in_a_drawing_of_its_own_form(self):
        self.assertEqual(self.selected("Circle", "Geometry:Radius", ">", "1"), ["2001"])
        self.assertEqual(self.selected("Circle", "Geometry:Radius", ">", "0.1"), ["2001", "2002"])
        self.assertEqual(self.selected("Circle", "Geometry:Radius", ">", "3"), [])

    def test_host_tells_what_is_wrong(self):
        plan = self.work / "broken.plan"
        plan.write_text("circle 2001  5 5 0  2.5\ncircle 2002  5 5\n")
        done = self.plan_host(plan, "Circle")
        self.assertEqual((done.returncode, done.stdout),
                         (1, f"plan_host: {plan}: line 2 is no entity\n"))

    def test_lines_have_no_fall_without_the_provider(self):
        done = self.plan_host(self.examples / "host/drains.plan", "Line")
        self.assertNotIn("Drainage", done.stdout)
        self.assertIn("Geometry:\tLength = ", done.stdout)

    def test_provider_adds_its_properties_behind_those_that_lines_have(self):
        done = self.plan_host(self.examples / "host/drains.plan", "Line", provider=True)
        lines = done.stdout.splitlines()
        self.assertIn("\tGeneral:Layer = 0", lines)
        self.assertIn("Geometry:\t\tDelta = 10 0 -0.5", lines)
        # 0.5 down on a way of 10
        self.assertEqual(lines[-2:], ["Drainage:Fall = 5",
                                      "Drainage:Course = falling of level, falling, rising"])

    def test_falls_can_be_searched(self):
        # In the order of the plan: 5 %, 1 %, -5 %, level, and a vertical line, which has none; what
        # an entity lacks is compared as 0.
        for operator, value, expected in ((">", "2", ["1001"]), (">", "0.5", ["1001", "1002"]),
                                          ("<", "0", ["1003"]), ("=", "0", ["1004", "1005"]),
                                          ("<>", "5", ["1002", "1003", "1004", "1005"])):
            with self.subTest(operator=operator, value=value):
                self.assertEqual(
                    self.selected("Line", "Drainage:Fall", operator, value, provider=True),
                    expected)

    def test_courses_can_be_searched(self):
        for course, expected in (("falling", ["1001", "1002", "1005"]), ("rising", ["1003"]),
                                 ("level", ["1004"])):
            self.assertEqual(
                self.selected("Line", "Drainage:Course", "=", course, provider=True), expected)

    def test_other_properties_of_lines_are_searched_as_before(self):
        # lengths: 10.01, 5.0, 20.02, 10, 3
        self.assertEqual(
            self.selected("Line", "Geometry:\tLength", ">", "10.005", provider=True),
            ["1001", "1003"])


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    for option in ("--source", "--build", "--work", "--cmake", "--compiler", "--version"):
        parser.add_argument(option, required=True)
    parser.add_argument("--launcher", default="")
    given, rest = parser.parse_known_args()
    unittest.main(argv=sys.argv[:1] + rest)
