#!/usr/bin/env python3
"""Reads sample drawings with our reader and with ezdxf and compares the entities of the model.

usage: compare_model_space.py <print_model_space> <drawing>...

Compared for each entity, in order: kind, layer, colour, linetype, lineweight, linetype scale, and
the handle where the file states one. Differences that are allowed, and why:

- Names are compared without case: ezdxf gives a layer or linetype as the entity spells it, we give
  it as its table does. "ByLayer" stands for no linetype.
- Kinds with two names (3DLINE of the oldest drawings, MLEADER) have one for us.
- Some old drawings say a code page and hold UTF-8. ezdxf trusts the page, we trust the bytes.
- ezdxf drops entities that it finds invalid when it has to recover a damaged file, and calls
  entities that it does not know by their name in the file, where we say ACAD_PROXY_ENTITY.
- A handle that occurs twice, or is 0 or missing, is replaced by either reader as it likes.
- ezdxf gives raw values: a colour out of range is one by layer for us.
"""

import subprocess
import sys

from ezdxf.entities import DXFTagStorage
from ezdxf.lldxf.const import DXFKeyError

from drawing_comparison import load_or_repair, stated_once, unescaped

BY_LAYER = "bylayer"
KINDS_WITH_OTHER_NAMES = {"MLEADER": "MULTILEADER", "3DLINE": "LINE"}


def value_of(entity, name, code, default):
    """A general property; of kinds that ezdxf does not know, from the groups as they stand."""
    if not isinstance(entity, DXFTagStorage):
        return entity.dxf.get(name, default)
    try:
        tags = entity.xtags.get_subclass("AcDbEntity")
    except DXFKeyError:
        tags = entity.xtags.noclass
    return tags.get_first_value(code, default)


def color_of(entity):
    true_color = value_of(entity, "true_color", 420, None)
    if true_color is not None:
        return "rgb:%06x" % (true_color & 0xFFFFFF)
    color = value_of(entity, "color", 62, 256)
    return str(color if 0 <= color <= 256 else 256)


def expected_rows(document):
    for entity in document.modelspace():
        kind = entity.dxftype()
        yield (
            KINDS_WITH_OTHER_NAMES.get(kind, kind),
            entity.dxf.handle,
            value_of(entity, "layer", 8, "0").lower(),
            color_of(entity),
            (value_of(entity, "linetype", 6, None) or BY_LAYER).lower(),
            value_of(entity, "lineweight", 370, -1),
            "%.12g" % value_of(entity, "ltscale", 48, 1.0),
        )


def actual_rows(program, path):
    result = subprocess.run([program, path], capture_output=True, check=True)
    for line in result.stdout.decode("ascii").splitlines():
        kind, handle, layer, color, linetype, weight, scale = line.split(" ")
        yield (
            kind,
            handle,
            unescaped(layer).lower(),
            color,
            unescaped(linetype).lower(),
            int(weight),
            scale,
        )


def same_name(expected, actual, encoding):
    if expected == actual:
        return True
    try:
        return expected.encode(encoding).decode("utf8").lower() == actual
    except UnicodeError:
        return False


def same(expected, actual, handles, encoding):
    kinds_agree = expected[0] == actual[0] or actual[0] == "ACAD_PROXY_ENTITY"
    handles_agree = expected[1] == actual[1] or expected[1] not in handles
    names_agree = all(same_name(expected[i], actual[i], encoding) for i in (2, 4))
    values_agree = all(expected[i] == actual[i] for i in (3, 5, 6))
    return kinds_agree and handles_agree and names_agree and values_agree


def compare(program, path):
    document, repaired = load_or_repair(path)
    if document is None:
        print("not readable by ezdxf, left out:", path)
        return True
    expected = list(expected_rows(document))
    actual = list(actual_rows(program, path))
    handles = {handle for handle in stated_once(path) or () if handle.strip("0")}
    if repaired:  # what ezdxf has kept must be there, in that order
        kept = {row[1] for row in expected}
        actual = [row for row in actual if row[1] in kept or len(actual) == len(expected)]
    if len(expected) != len(actual):
        print("%s: ezdxf finds %d entities, we find %d" % (path, len(expected), len(actual)))
        return False
    faults = [pair for pair in zip(expected, actual) if not same(*pair, handles, document.encoding)]
    for wanted, got in faults[:5]:
        print("%s:\n  ezdxf %s\n  we    %s" % (path, wanted, got))
    return not faults


def main():
    program, paths = sys.argv[1], sys.argv[2:]
    results = [compare(program, path) for path in paths]
    print("%d drawings, %d differ" % (len(results), results.count(False)))
    return 0 if paths and all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
