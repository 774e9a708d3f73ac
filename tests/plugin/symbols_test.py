#!/usr/bin/env python3
"""Holds the symbols of the module against what a host may see of it and what it may need."""

import re
import subprocess
import sys
import unittest

EXPORTED = {
    # the entry functions
    "DllMain",
    "QSelectInit",
    "QSelectUnInit",
    "selectCmd",
    "selectCmdEx",
    "QSelectCmd",
    "QSelectDialog",
    # for programs without the dialog
    "QSelectRun",
    "QSelectListTypes",
    "QSelectListEntities",
    "QSelectListProperties",
    "QSelectListOperators",
    # globals
    "gComboValues",
    "theArxDLL",
    "g_pstrMulti",
    "CKdModuleResourceOverride::m_extensionModule",
    # helpers that other modules use
    "KdadNewResbuf(int)",
    "PropListUtil::findLineTypeIdByName(KdString&)",
    "strings_i_compare(wchar_t const*, wchar_t const*)",
    "ic_setext(wchar_t*, wchar_t*)",
    "ic_trim(wchar_t*, wchar_t*)",
    "ic_getext(wchar_t*, wchar_t*, unsigned long)",
}

# Besides the host's libraries: Qt, the languages' and the system's, and those of the sanitizers.
NEEDED = re.compile(
    r"lib(kwhost|kwhostui|Qt5\w+|stdc\+\+|gcc_s|c|m|asan|ubsan)\.so[.\d]*|ld-linux-[\w-]+\.so\.\d+")

MODULE = ""


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Exports(unittest.TestCase):
    def test_are_those_that_hosts_call_and_no_others(self):
        lines = output("nm", "-D", "-C", "--defined-only", MODULE).splitlines()
        exported = {line.split(" ", 2)[2] for line in lines}
        self.assertEqual(exported, EXPORTED)


class Imports(unittest.TestCase):
    def test_come_from_the_host_the_widgets_and_the_system_alone(self):
        needed = re.findall(r"\(NEEDED\).*\[(.*)\]", output("readelf", "-d", MODULE))
        self.assertIn("libkwhost.so", needed)
        self.assertEqual([name for name in needed if not NEEDED.fullmatch(name)], [])

    def test_are_all_found_there(self):
        found = subprocess.run(["ldd", "-r", MODULE], capture_output=True, text=True)
        unresolved = [line for line in (found.stdout + found.stderr).splitlines()
                      if "undefined symbol" in line or "not found" in line]
        # The runtime of the sanitizers comes with the program.
        self.assertEqual([line for line in unresolved if not re.search(r"__(a|ub)san", line)], [])


if __name__ == "__main__":
    MODULE = sys.argv.pop(1)
    unittest.main()
