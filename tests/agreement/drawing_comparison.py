"""Compares what one of our programs tells of the entities of drawings with what ezdxf finds.

The program prints a JSON object in a line for each entity, with its handle as a number. A check is a
generator that takes the entity as ezdxf has it, and our row, and yields pairs of a name and whether
the two agree.

Handles that occur twice, or are 0, are replaced by either reader as it likes, so entities that bear
one are left out; so are entities of the oldest drawings, which have none. ezdxf also makes blocks of
arrow heads, "_" before their names, where a drawing lacks them.
"""

import collections
import json
import math
import re
import subprocess

import ezdxf
from ezdxf import recover

BINARY_MARK = bytes.fromhex("4175746f434144")
TURN = 2 * math.pi


def load_or_repair(path):
    """The document, and whether it had to be repaired; None if ezdxf can't read it, nor repair it."""
    try:
        return ezdxf.readfile(path), False
    except Exception:
        pass
    try:
        return recover.readfile(path)[0], True
    except Exception:
        return None, True


def load(path):
    return load_or_repair(path)[0]


def stated_once(path):
    """Handles that the file states exactly once; None for binary files, which are not searched."""
    with open(path, "rb") as file:
        data = file.read()
    if data.startswith(BINARY_MARK):
        return None
    lines = [line.strip() for line in re.split(b"\r\n|\n|\r", data)]
    pairs = zip(lines[0::2], lines[1::2])
    counts = collections.Counter(v.upper().decode("latin1") for c, v in pairs if c in (b"5", b"105"))
    return {handle for handle, count in counts.items() if count == 1}


def unescaped(word):
    """A text of which our program made one word."""
    if word == "-":
        return ""
    return re.sub(r"\\u\{([0-9a-f]+)\}", lambda m: chr(int(m.group(1), 16)), word)


def close(a, b, scale=1.0):
    return abs(a - b) <= 1e-9 * max(scale, abs(a), abs(b))


def same_angle(a, b):
    return abs((a - b + math.pi) % TURN - math.pi) < 1e-9


def same_point(a, b):
    scale = max(1.0, *map(abs, a), *map(abs, b))
    return all(close(x, y, scale) for x, y in zip(a, b))


def rows_of(program, path):
    output = subprocess.run([program, path], capture_output=True, check=True).stdout
    return {row["handle"]: row for row in map(json.loads, output.splitlines())}


def is_made_up(entity, document):
    """Whether ezdxf may have made the entity itself."""
    owner = document.entitydb.get(entity.dxf.owner)
    return owner is None or (owner.dxftype() == "BLOCK_RECORD" and owner.dxf.name.startswith("_"))


def entities_to_compare(document, path, checks, counts):
    handles = stated_once(path)
    for entity in list(document.entitydb.values()):
        handle = entity.dxf.handle
        if entity.dxftype() in checks and entity.is_alive and handle and counts(entity):
            if handles is None or handle.upper() in handles:
                yield entity


def compare(program, path, checks, counts):
    """Whether all agree, and how many were compared."""
    document = load(path)
    if document is None:
        print("not readable by ezdxf, left out:", path)
        return True, 0
    rows = rows_of(program, path)
    faults, compared = [], 0
    for entity in entities_to_compare(document, path, checks, counts):
        kind, handle = entity.dxftype(), entity.dxf.handle
        row = rows.get(int(handle, 16))
        if row is None:
            if not is_made_up(entity, document):
                faults.append((kind, handle, "missing"))
            continue
        compared += 1
        faults += [(kind, handle, name) for name, good in checks[kind](entity, row) if not good]
    for fault in faults[:5]:
        print("%s: %s %s: %s" % (path, *fault))
    return not faults, compared


def compare_all(program, paths, checks, what, counts=lambda entity: True):
    """Compares several drawings; the exit status of the calling script.

    checks: by kind, as DXF names it; of those, `counts` may leave entities out
    what: names the entities in the summary
    """
    results = [compare(program, path, checks, counts) for path in paths]
    compared = sum(count for _, count in results)
    differ = sum(not good for good, _ in results)
    print("%d drawings with %d %s, %d differ" % (len(results), compared, what, differ))
    return 0 if compared and not differ else 1
