#!/usr/bin/env python3
"""Tries the rules of the house on made-up trees."""

import tempfile
import unittest
from pathlib import Path

from include_rules import Tree

GOOD = {
    "host/include/runtime/text.h": "#pragma once\n#include <string>\n",
    "host/include/database/object.h": "#pragma once\n#include <runtime/text.h>\n",
    "host/include/entities/line.h": "#pragma once\n#include <database/object.h>\n",
    "host/include/editor/command.h": "#pragma once\n",
    "host/include/exchange/reader.h": "#pragma once\n#include <entities/line.h>\n",
    "host/include/ui/dialog.h": "#pragma once\n#include <editor/command.h>\n#include <QDialog>\n",
    "host/exchange/reader.cpp": "#include <exchange/reader.h>\n"
    '#include "scan.h"\n#include <sys/mman.h>\n#include <fast_float/fast_float.h>\n',
    "host/exchange/scan.h": "#pragma once\n",
    "module/values/compare.h": "#pragma once\n#include <runtime/text.h>\n",
    "module/command/run.cpp": "#include <values/compare.h>\n#include <editor/command.h>\n"
    "#include <vector>\n#include <QString>\n#include <QtCore/QFile>\n",
    "programs/common/module.h": "#pragma once\n",
    "programs/tool/main.cpp": "#include <common/module.h>\n#include <CLI/CLI.hpp>\n"
    "#include <nlohmann/json.hpp>\n#include <dlfcn.h>\n#include <exchange/reader.h>\n",
    "tests/values/compare_test.cpp": "#include <values/compare.h>\n#include <gtest/gtest.h>\n",
}


def breaches_of(files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return Tree(folder).check()


class HouseRules(unittest.TestCase):
    def assert_breach(self, name, text, message):
        self.assertEqual(breaches_of(GOOD | {name: text}), [f"{name}{message}"])

    def test_a_good_tree_has_no_breach(self):
        self.assertEqual(breaches_of(GOOD), [])

    def test_the_module_includes_no_private_header_of_the_host(self):
        self.assert_breach("module/values/bad.cpp", "#include <exchange/scan.h>\n",
                           ":1: not for module/ to include: exchange/scan.h")

    def test_the_module_reaches_nothing_by_a_path(self):
        self.assert_breach("module/values/bad.cpp", '\n#include "../../host/exchange/scan.h"\n',
                           ":2: not beside the file that includes it: ../../host/exchange/scan.h")

    def test_the_module_includes_no_system_or_foreign_header(self):
        for name in ("unistd.h", "nlohmann/json.hpp", "fast_float/fast_float.h", "gtest/gtest.h"):
            self.assert_breach("module/values/bad.cpp", f"#include <{name}>\n",
                               f":1: not for module/ to include: {name}")

    def test_the_host_never_includes_the_module(self):
        self.assert_breach("host/editor/bad.cpp", "#include <values/compare.h>\n",
                           ":1: not for host/ to include: values/compare.h")

    def test_a_host_folder_uses_lower_ones_alone(self):
        for folder, used in (("runtime", "database/object.h"), ("database", "entities/line.h"),
                             ("editor", "exchange/reader.h"), ("exchange", "ui/dialog.h"),
                             ("platform", "editor/command.h")):
            message = f":1: {used.split('/')[0]} is not below {folder}: {used}"
            self.assert_breach(f"host/{folder}/bad.cpp", f"#include <{used}>\n", message)

    def test_the_order_holds_for_public_headers_too(self):
        self.assert_breach("host/include/database/bad.h",
                           "#pragma once\n#include <entities/line.h>\n",
                           ":2: entities is not below database: entities/line.h")

    def test_a_new_host_folder_needs_a_level(self):
        self.assert_breach("host/extra/bad.cpp", "#include <runtime/text.h>\n",
                           ":1: folder extra has no level: runtime/text.h")

    def test_public_headers_include_no_neighbour_in_quotes(self):
        self.assert_breach("host/include/runtime/bad.h", '#pragma once\n#include "text.h"\n',
                           ":2: public header includes in quotes: text.h")

    def test_programs_never_include_the_module(self):
        self.assert_breach("programs/tool/bad.cpp", "#include <values/compare.h>\n",
                           ":1: not for programs/ to include: values/compare.h")

    def test_programs_include_no_private_header_of_the_host(self):
        self.assert_breach("programs/tool/bad.cpp", "#include <exchange/scan.h>\n",
                           ":1: not for programs/ to include: exchange/scan.h")

    def test_headers_have_pragma_once(self):
        for folder in ("host/include/runtime", "module/values", "tests/values"):
            self.assert_breach(f"{folder}/bad.h", "// #pragma once\n",
                               ": header without #pragma once")

    def test_headers_open_no_namespace(self):
        self.assert_breach("module/values/bad.h", "#pragma once\n  using namespace std;\n",
                           ": using namespace in a header")

    def test_files_stay_short(self):
        long = "\n" * 501
        self.assert_breach("host/editor/bad.cpp", long, ": 501 lines, more than 500")
        self.assertEqual(breaches_of({"host/editor/good.cpp": "\n" * 500}), [])
        self.assertEqual(breaches_of({"tests/editor/good_test.cpp": "\n" * 700}), [])
        self.assertEqual(breaches_of({"module/values/arrow_names.cpp": "\n" * 700}), [])
        self.assert_breach("tests/editor/bad_test.cpp", "\n" * 701, ": 701 lines, more than 700")


if __name__ == "__main__":
    unittest.main()
