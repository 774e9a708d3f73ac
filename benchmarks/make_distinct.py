#!/usr/bin/env python3
"""Writes a drawing in which hardly anything stands twice: make_distinct.py --entities N --output FILE

Half of the entities are texts and half are block references. Each text has a content and a layer of
its own, each reference a block and a layer of its own. The same arguments give the same bytes.
"""

import argparse


def groups(*pairs):
    return "".join(f"{code:3}\n{value}\n" for code, value in pairs)


def section(name, content):
    yield groups((0, "SECTION"), (2, name))
    yield from content
    yield groups((0, "ENDSEC"))


def point(x, y):
    return (10, float(x)), (20, float(y)), (30, 0.0)


def tables(count):
    yield groups((0, "TABLE"), (2, "LAYER"), (70, 2 * count + 1))
    yield groups((0, "LAYER"), (2, "0"), (70, 0), (62, 7), (6, "CONTINUOUS"))
    for i in range(2 * count):
        yield groups((0, "LAYER"), (2, f"LAYER-{i:07}"), (70, 0), (62, i % 255 + 1), (6, "CONTINUOUS"))
    yield groups((0, "ENDTAB"))


def blocks(count):
    for i in range(count):
        name = f"PART-{i:07}"
        yield groups((0, "BLOCK"), (8, "0"), (2, name), (70, 0), *point(0, 0), (3, name))
        yield groups((0, "POINT"), (8, "0"), *point(1, 1), (0, "ENDBLK"), (8, "0"))


def entities(count):
    for i in range(count):
        text = (40, 2.5), (1, f"Pump {i:07}")
        yield groups((0, "TEXT"), (8, f"LAYER-{2 * i:07}"), *point(i, 0), *text)
        name = (2, f"PART-{i:07}")
        yield groups((0, "INSERT"), (8, f"LAYER-{2 * i + 1:07}"), name, *point(i, 5))


def drawing(count):
    yield from section("HEADER", [groups((9, "$ACADVER"), (1, "AC1009"))])
    yield from section("TABLES", tables(count))
    yield from section("BLOCKS", blocks(count))
    yield from section("ENTITIES", entities(count))
    yield groups((0, "EOF"))


def main():
    parser = argparse.ArgumentParser(description=__doc__.split(":")[0])
    parser.add_argument("--entities", type=int, required=True)
    parser.add_argument("--output", required=True)
    arguments = parser.parse_args()
    with open(arguments.output, "w", encoding="ascii") as file:
        file.writelines(drawing(arguments.entities // 2))


if __name__ == "__main__":
    main()
