#!/usr/bin/env python3
"""Checks the C++ files of the tree against the rules of the house.

    include_rules.py <root of the tree>

Prints a line for each breach and exits with 1 if there is one. The rules:

- An include in quotes names a file beside the one that includes it.
- module/ includes its own headers, host/include, Qt and the standard library.
- A folder of host/ includes itself and the folders below it (see HOST_LEVELS), their public headers
  alone, Qt, the standard and system libraries; never module/.
- programs/ include their own headers, host/include, Qt, the standard and system libraries, the
  option parser and the JSON library; never module/.
- Headers have `#pragma once` and no `using namespace`.
- Files end within 500 lines, tests and tables of data within 700.
"""

import re
import sys
from pathlib import Path

CODE_FOLDERS = ("host", "module", "programs", "tests", "benchmarks", "fuzz", "examples")
SUFFIXES = {".h", ".cpp"}

# A folder may use itself and everything on a lower level.
HOST_LEVELS = {
    "runtime": 0,
    "geometry": 1,
    "database": 2,
    "entities": 3,
    "editor": 4,
    "exchange": 4,
    "platform": 4,
    "ui": 5,
    "plugin": 6,  # what the module offers to programs; no part of the host itself
}

STANDARD = set(
    """
    algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
    condition_variable coroutine deque exception execution expected filesystem format forward_list
    fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator latch
    limits list locale map memory memory_resource mutex new numbers numeric optional ostream queue
    random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span
    sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread
    tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    version cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal
    cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype
    """.split()
)
THIRD_PARTY = {
    "host": ("fast_float/", "hwy/"),
    "module": (),
    "programs": ("CLI/", "nlohmann/"),
}
KERNEL_OF_GEOMETRY = re.compile(r"^([A-Z][A-Za-z0-9_]*|math(_[A-Z][A-Za-z0-9_]*)?)\.hxx$")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
PRAGMA_ONCE = re.compile(r"^\s*#\s*pragma\s+once\b", re.MULTILINE)
USING_NAMESPACE = re.compile(r"^\s*using\s+namespace\b", re.MULTILINE)
TABLE_OF_DATA = re.compile(r"_(tables?|rows|names|variables)\.(h|cpp)$")
MOST_LINES = 500
MOST_LINES_OF_DATA = 700


def is_qt(name):
    return re.match(r"^(Qt[A-Z][A-Za-z]*/)?Q[A-Za-z]\w*$", name) is not None


def is_system(name):
    """Headers of the operating system and of C: `unistd.h`, `sys/mman.h`."""
    return re.match(r"^(sys/|linux/|netinet/)?[a-z0-9_]+\.h$", name) is not None


class Tree:
    def __init__(self, root):
        self.root = Path(root)
        self.breaches = []

    def files(self):
        for folder in CODE_FOLDERS:
            base = self.root / folder
            if base.is_dir():
                yield from sorted(p for p in base.rglob("*") if p.suffix in SUFFIXES)

    def check(self):
        for path in self.files():
            self.check_file(path)
        return self.breaches

    def report(self, path, message, line=None):
        place = str(path.relative_to(self.root))
        self.breaches.append(f"{place}:{line}: {message}" if line else f"{place}: {message}")

    def check_file(self, path):
        text = path.read_text(encoding="utf-8")
        self.check_form(path, text)
        area = path.relative_to(self.root).parts[0]
        if area not in THIRD_PARTY:
            return  # tests and their like may look everywhere
        for number, line in enumerate(text.splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            quoted, angled = match.groups()
            fault = self.quoted_fault(path, quoted) if quoted else self.fault(path, area, angled)
            if fault:
                self.report(path, f"{fault}: {quoted or angled}", number)

    def check_form(self, path, text):
        if path.suffix == ".h":
            if not PRAGMA_ONCE.search(text):
                self.report(path, "header without #pragma once")
            if USING_NAMESPACE.search(text):
                self.report(path, "using namespace in a header")
        is_data = path.relative_to(self.root).parts[0] == "tests" or TABLE_OF_DATA.search(path.name)
        most = MOST_LINES_OF_DATA if is_data else MOST_LINES
        count = len(text.splitlines())
        if count > most:
            self.report(path, f"{count} lines, more than {most}")

    def quoted_fault(self, path, name):
        if name.endswith(".moc"):
            return None  # made by the build
        if self.root / "host" / "include" in path.parents:
            return "public header includes in quotes"
        if "/" in name or not (path.parent / name).is_file():
            return "not beside the file that includes it"
        return None

    def fault(self, path, area, name):
        if name in STANDARD or is_qt(name) or name.startswith(THIRD_PARTY[area]):
            return None
        if area == "host" and KERNEL_OF_GEOMETRY.match(name):
            return None
        if (self.root / "host" / "include" / name).is_file():
            return self.host_fault(path, name) if area == "host" else None
        if area != "host" and (self.root / area / name).is_file():
            return None
        if area != "module" and is_system(name):
            return None
        return f"not for {area}/ to include"

    def host_fault(self, path, name):
        parts = path.relative_to(self.root / "host").parts
        folder = parts[1] if parts[0] == "include" else parts[0]
        used = name.split("/")[0]
        for known in (folder, used):
            if known not in HOST_LEVELS:
                return f"folder {known} has no level"
        if used == folder or HOST_LEVELS[used] < HOST_LEVELS[folder]:
            return None
        return f"{used} is not below {folder}"


def main():
    breaches = Tree(sys.argv[1]).check()
    print("\n".join(breaches))
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
