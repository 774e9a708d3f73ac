#!/usr/bin/env python3
"""Selects block references of real drawings by their block, their attributes, their grid and their
dynamic properties, and compares with what an independent reader sees."""

import subprocess
import sys
from collections import defaultdict
from pathlib import Path

from drawing_comparison import load


PROGRAM = sys.argv[1]
failures = []
compared = 0


def select(drawing, *arguments):
    done = subprocess.run([PROGRAM, str(drawing), *arguments], capture_output=True, timeout=120,
                          check=False)
    return sorted(int(line, 16) for line in done.stdout.decode().split())


def expect(drawing, expected, *arguments):
    global compared
    compared += 1
    found = select(drawing, *arguments)
    if found != sorted(expected):
        failures.append(f"{drawing.name} {arguments}: {found}, expected {sorted(expected)}")


def original(document, insert):
    """The name of the block that an anonymous copy was made from."""
    block = document.blocks.get(insert.dxf.name)
    record = block.block_record if block is not None else None
    if record is not None and record.has_xdata("AcDbBlockRepBTag"):
        for code, value in record.get_xdata("AcDbBlockRepBTag"):
            if code == 1005:
                return document.entitydb[value].dxf.name
    return insert.dxf.name


def is_grid(insert):
    return insert.dxf.row_count > 1 or insert.dxf.column_count > 1


def is_visible(document, insert):
    return not document.layers.get(insert.dxf.layer).is_frozen() \
        if insert.dxf.layer in document.layers else True


def stored(document, insert):
    """What a reference keeps under the numbers of parameters: the groups behind the four heads."""
    dictionary = insert.extension_dict if insert.has_extension_dict else None
    for key in ("AcDbBlockRepresentation", "AppDataCache", "ACAD_ENHANCEDBLOCKDATA"):
        if dictionary is None or key not in dictionary:
            return {}
        dictionary = dictionary[key]
    values = {}
    for key, record in dictionary.items():
        values[int(key)] = [(tag.code, tag.value) for tag in record.tags][4:]
    return values


def states(document):
    """Names of the visibility parameters with their node numbers."""
    found = {}
    for entity in document.objects:
        if entity.dxftype() != "BLOCKVISIBILITYPARAMETER":
            continue
        tags = [tag for subclass in entity.xtags.subclasses for tag in subclass]
        node = next(tag.value for tag in tags if tag.code == 90)
        found[int(node)] = next(tag.value for tag in tags if tag.code == 301)
    return found


def compare(drawing):
    document = load(drawing)
    inserts = [i for i in document.modelspace().query("INSERT") if is_visible(document, i)]
    names, attributes, columns = defaultdict(list), defaultdict(list), defaultdict(list)
    visibility = defaultdict(list)
    parameters = states(document) if document.dxfversion >= "AC1032" else {}
    for insert in inserts:
        handle = int(insert.dxf.handle, 16)
        if is_grid(insert):
            columns[insert.dxf.column_count].append(handle)
            continue
        names[original(document, insert)].append(handle)
        block = document.blocks.get(insert.dxf.name)
        if block is not None and block.has_attdef("*") or any(
                e.dxftype() == "ATTDEF" for e in block or []):
            seen = set()
            for attribute in insert.attribs:
                if attribute.dxf.tag not in seen and attribute.dxf.text and \
                        ":" not in attribute.dxf.tag:
                    seen.add(attribute.dxf.tag)
                    attributes[attribute.dxf.tag, attribute.dxf.text].append(handle)
        for node, groups in stored(document, insert).items():
            if node in parameters:
                visibility[parameters[node], dict(groups)[1]].append(handle)
    for name, handles in names.items():
        expect(drawing, handles, "-t", "Block Reference", "-p", "Misc:Name", "-v", name)
    for (tag, text), handles in attributes.items():
        expect(drawing, handles, "-t", "Block Reference", "-p", "Attributes:" + tag, "-v", text)
    for count, handles in columns.items():
        expect(drawing, handles, "-t", "Multiple Block Reference", "-p", "Misc:Columns", "-v",
               str(count))
    for (name, state), handles in visibility.items():
        expect(drawing, handles, "-t", "Block Reference", "-p", "Custom:" + name, "-v", state)


for argument in sys.argv[2:]:
    compare(Path(argument))
print(f"{compared} selections compared")
print("\n".join(failures))
sys.exit(1 if failures or not compared else 0)
