#!/usr/bin/env python3
"""Holds docs/integration.md against the symbols of the module: a page for those who have to bring
what it imports must name all of it, and nothing that it no longer asks for."""

import re
import subprocess
import sys
import unittest
from pathlib import Path

MODULE = ""
ROOT = Path()

# What stands for a class as a whole: made by the compiler, or implied where objects are made.
OF_THE_WHOLE_CLASS = re.compile(r"^(vtable|typeinfo|VTT) for ")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def split(symbol):
    """Class and operation of a demangled symbol; the operation is empty for the class itself."""
    if OF_THE_WHOLE_CLASS.match(symbol):
        return symbol.split(" for ")[1], ""
    name = re.sub(r"\[abi:\w+\]", "", symbol)
    found = re.match(r"((?:\w+::)*)(operator ?\(\)|operator(?: new| delete|[^\w\s(]+)|~?\w+)", name)
    owner, operation = found[1].removesuffix("::"), found[2]
    last = owner.split("::")[-1]
    return owner, "" if operation in (last, f"~{last}") else operation


def host_libraries():
    lib = Path(MODULE).parent.parent
    return [lib / "libkwhost.so", lib / "libkwhostui.so"]


def imports():
    """Of the host's: those of Qt and of the system are not the host's to bring."""
    defined = set()
    for library in host_libraries():
        lines = output("nm", "-D", "--defined-only", library).splitlines()
        defined |= {line.split()[2] for line in lines}
    undefined = output("nm", "-D", "--undefined-only", MODULE).splitlines()
    asked = {line.split()[-1] for line in undefined}
    demangled = output("c++filt", *sorted(asked & defined)).splitlines()
    return {split(symbol) for symbol in demangled}


def quoted(cell):
    return re.findall(r"`([^`]+)`", cell)


class Page:
    """The tables of the page, told apart by the first cell of their heads."""

    def __init__(self, text):
        self.functions = []
        self.imported = []  # rows: classes, operations
        self.virtual = []
        kind = None
        for line in text[text.index("## What the module imports"):].splitlines():
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if not line.startswith("|"):
                kind = None
            elif kind is None:
                kind = cells[0]
            elif kind == "Function":
                self.functions += quoted(cells[0])
            elif kind in ("Class", "Virtual of") and not cells[0].startswith("---"):
                rows = self.imported if kind == "Class" else self.virtual
                rows.append((quoted(cells[0]), quoted(cells[1])))

    def named(self):
        pairs = {("", function) for function in self.functions}
        for classes, operations in self.imported:
            pairs |= {(owner, operation) for owner in classes for operation in ["", *operations]}
        return pairs


class Integration(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.page = Page((ROOT / "docs/integration.md").read_text())
        cls.imports = imports()

    def test_names_every_imported_operation(self):
        self.assertGreater(len(self.imports), 300)
        self.assertEqual(sorted(self.imports - self.page.named()), [])

    def test_names_no_function_that_is_not_imported(self):
        stale = [name for name in self.page.functions if ("", name) not in self.imports]
        self.assertEqual(stale, [])

    def test_names_no_class_that_is_not_imported(self):
        owners = {owner for owner, _ in self.imports}
        named = [owner for classes, _ in self.page.imported for owner in classes]
        self.assertEqual([owner for owner in named if owner not in owners], [])

    def test_names_no_operation_that_is_not_imported(self):
        stale = [(classes, operation) for classes, operations in self.page.imported
                 for operation in operations
                 if not any((owner, operation) in self.imports for owner in classes)]
        self.assertEqual(stale, [])

    def test_names_virtual_operations_as_the_headers_declare_them(self):
        headers = "\n".join(path.read_text() for path in (ROOT / "host/include").rglob("*.h"))
        self.assertNotEqual(self.page.virtual, [])
        for classes, operations in self.page.virtual:
            for owner in classes:
                body = re.search(rf"^class (?:KW_EXPORT )?{owner}\b.*?^}};", headers,
                                 re.MULTILINE | re.DOTALL)
                self.assertIsNotNone(body, owner)
                for operation in operations:
                    self.assertRegex(body[0], rf"virtual [^;]*\b{operation}\(", owner)


    def test_names_every_entry_function(self):
        text = (ROOT / "docs/integration.md").read_text()
        entries = text[text.index("## Entry functions"):text.index("## Order of loading")]
        named = set(re.findall(r"`(\w+)", entries))
        symbols = output("nm", "-D", "--defined-only", MODULE).splitlines()
        exported = {line.split()[2] for line in symbols}
        functions = {name for name in exported if re.match("QSelect|selectCmd|DllMain", name)}
        self.assertGreater(len(functions), 10)
        self.assertEqual(functions - named, set())


class Symbols(unittest.TestCase):
    def test_are_split_into_class_and_operation(self):
        for symbol, expected in (
                ("kdutPrintf(wchar_t const*, ...)", ("", "kdutPrintf")),
                ("kdToUtf8[abi:cxx11](int)", ("", "kdToUtf8")),
                ("KdString::KdString(wchar_t const*)", ("KdString", "")),
                ("CWnd::~CWnd()", ("CWnd", "")),
                ("vtable for KdDbArc", ("KdDbArc", "")),
                ("KdGePoint3d::kOrigin", ("KdGePoint3d", "kOrigin")),
                ("KwdrawConfig::Update::Update(KwdrawConfig&)", ("KwdrawConfig::Update", "")),
                ("KdString::operator new(unsigned long)", ("KdString", "operator new")),
                ("KdString::operator+=(int)", ("KdString", "operator+=")),
                ("KdNameHash::operator()(int) const", ("KdNameHash", "operator()"))):
            self.assertEqual(split(symbol), expected)


if __name__ == "__main__":
    ROOT = Path(sys.argv.pop(1))
    MODULE = sys.argv.pop(1)
    unittest.main()
