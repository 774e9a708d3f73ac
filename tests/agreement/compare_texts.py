#!/usr/bin/env python3
"""Reads sample drawings with our reader and with ezdxf and compares their texts and leaders.

usage: compare_texts.py <print_texts> <drawing>...

Compared for each text, attribute, shape, tolerance frame and leader of whatever block, found by its
handle: texts, places, sizes, angles, modes, styles, vertices. Differences that are allowed, and why:

- ezdxf leaves caret codes in texts, and `\\U+` codes in files that it has to recover or whose code
  page has other uses for them; they are resolved here.
- Some texts hold line feeds for the code that ends a paragraph, which ezdxf replaces at times.
- ezdxf drops styles that are not defined when it has to recover a file, and makes objects of its own
  with handles that the file only refers to.
- Some old drawings say a code page and hold UTF-8. ezdxf trusts the page, we trust the bytes.
- ezdxf's plain text differs from ours in how it shows stacks and what is no code; it is compared
  where a text has none of them.
"""

import math
import re
import sys

from ezdxf.math import OCS, Vec3

from drawing_comparison import close, compare_all, same_angle


def without_escapes(text):
    text = re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda m: chr(int(m[1], 16)), text)
    return re.sub(r"\^([@-_ ])", lambda m: "^" if m[1] == " " else chr(ord(m[1]) - 64), text)


def same_point(a, b):
    return all(close(x, y) for x, y in zip(a, tuple(Vec3(b))))


def same_text(entity, expected, actual):
    expected = without_escapes(expected).replace("\n", "\\P")
    actual = actual.replace("\n", "\\P")
    if expected == actual:
        return True
    try:
        return expected.encode(entity.doc.encoding, "surrogateescape").decode("utf8") == actual
    except UnicodeError:
        return False


def in_world(entity, name):
    point = Vec3(entity.dxf.get(name, (0, 0, 0)))
    return OCS(entity.dxf.get("extrusion", (0, 0, 1))).to_wcs(point)


def check_text(entity, row):
    dxf = entity.dxf
    yield "text", same_text(entity, dxf.get("text", ""), row["text"])
    yield "position", same_point(row["position"], in_world(entity, "insert"))
    yield "alignmentPoint", same_point(row["alignmentPoint"], in_world(entity, "align_point"))
    yield "height", close(dxf.get("height", 0), row["height"])
    yield "widthFactor", close(dxf.get("width", 1), row["widthFactor"])
    yield "rotation", same_angle(math.radians(dxf.get("rotation", 0)), row["rotation"])
    yield "oblique", same_angle(math.radians(dxf.get("oblique", 0)), row["oblique"])
    yield "horizontal", dxf.get("halign", 0) == row["horizontal"]
    yield "vertical", dxf.get("valign", 0) == row["vertical"]
    if dxf.hasattr("style"):
        yield "style", same_text(entity, dxf.style.lower(), row["style"].lower())
    flags = dxf.get("text_generation_flag", 0)
    yield "backward", bool(flags & 2) == row["backward"]
    yield "upsideDown", bool(flags & 4) == row["upsideDown"]


def check_attribute(entity, row):
    yield from check_text(entity, row)
    yield "tag", same_text(entity, entity.dxf.get("tag", ""), row["tag"])
    flags = entity.dxf.get("flags", 0)
    yield "modes", [bool(flags & bit) for bit in (1, 2, 4, 8)] == row["modes"]
    if entity.dxftype() == "ATTDEF":
        yield "prompt", same_text(entity, entity.dxf.get("prompt", ""), row["prompt"])
    if entity.has_embedded_mtext_entity:
        lines = entity.virtual_mtext_entity()
        yield "lines", "lines" in row
        yield "lines' text", same_text(entity, lines.text, row["lines"]["contents"])
        yield "lines' place", same_point(row["lines"]["location"], lines.dxf.insert)
        yield "lines' height", close(lines.dxf.char_height, row["lines"]["textHeight"])


def check_mtext(entity, row):
    dxf = entity.dxf
    if entity.has_columns and entity.columns.linked_columns:
        whole = entity.all_columns_raw_content()
        yield "contents", same_text(entity, whole, row["contents"])
    else:
        yield "contents", same_text(entity, entity.text, row["contents"])
        if not re.search(r"\\[SNUX]|%%|\\\W|\^|\t", entity.text) and entity.text.isascii():
            yield "plain", entity.plain_text(split=False) == row["plain"]
    yield "location", same_point(row["location"], dxf.insert)
    yield "normal", same_point(row["normal"], Vec3(dxf.get("extrusion", (0, 0, 1))).normalize())
    yield "textHeight", close(dxf.get("char_height", 0), row["textHeight"])
    if not entity.has_columns:
        yield "width", close(dxf.get("width", 0), row["width"])
        yield "height", close(dxf.get("defined_height", row["height"]), row["height"])
    elif entity.columns.column_type:
        yield "columns", entity.columns.count == row["columns"]
    yield "attachment", dxf.get("attachment_point", 1) == row["attachment"]
    yield "flow", dxf.get("flow_direction", 1) == row["flow"]
    yield "spacing", close(dxf.get("line_spacing_factor", 1), row["spacing"])
    yield "spacingStyle", dxf.get("line_spacing_style", 1) == row["spacingStyle"]
    yield "fill", bool(dxf.get("bg_fill", 0) & 3) == row["fill"]
    if dxf.hasattr("style"):
        yield "style", same_text(entity, dxf.style.lower(), row["style"].lower())
    ocs = OCS(dxf.get("extrusion", (0, 0, 1)))
    if dxf.hasattr("text_direction"):
        yield "rotation", same_angle(ocs.from_wcs(Vec3(dxf.text_direction)).angle, row["rotation"])
    else:
        yield "rotation", same_angle(math.radians(dxf.get("rotation", 0)), row["rotation"])


def check_leader(entity, row):
    dxf = entity.dxf
    yield "count", len(entity.vertices) == len(row["vertices"])
    yield "vertices", all(same_point(b, a) for a, b in zip(entity.vertices, row["vertices"]))
    yield "arrow", bool(dxf.get("has_arrowhead", 1)) == row["arrow"]
    yield "splined", bool(dxf.get("path_type", 0)) == row["splined"]
    annotation = entity.doc.entitydb.get(dxf.get("annotation_handle"))
    wanted = int(annotation.dxf.handle, 16) if annotation else 0
    yield "annotation", wanted == row["annotation"]
    yield "dimensionStyle", dxf.get("dimstyle", "Standard").lower() == row["dimensionStyle"].lower()


def check_mleader(entity, row):
    dxf = entity.dxf
    context = entity.context
    lines = [line.vertices for leader in context.leaders for line in leader.lines]
    yield "count", [len(line) for line in lines] == [len(line) for line in row["lines"]]
    yield "lines", all(
        same_point(b, a) for wanted, got in zip(lines, row["lines"]) for a, b in zip(wanted, got)
    )
    yield "lineType", dxf.leader_type == row["lineType"]
    yield "arrowSize", close(dxf.arrow_head_size, row["arrowSize"])
    yield "dogleg", bool(dxf.has_dogleg) == row["dogleg"]
    yield "doglegLength", close(dxf.dogleg_length, row["doglegLength"])
    yield "left", dxf.text_left_attachment_type == row["left"]
    yield "right", dxf.text_right_attachment_type == row["right"]
    yield "frame", bool(dxf.has_text_frame) == row["frame"]
    yield "lineWeight", dxf.leader_lineweight == row["lineWeight"]
    yield "gap", close(context.landing_gap_size / context.scale, row["gap"])
    style = entity.doc.entitydb.get(dxf.text_style_handle)
    if row["textStyle"]:
        yield "textStyle", style.dxf.name.lower() == row["textStyle"].lower()
    yield "has text", (context.mtext is not None) == ("text" in row)
    if context.mtext:
        text, got = context.mtext, row["text"]
        yield "contents", same_text(entity, text.default_content, got["contents"])
        yield "location", same_point(got["location"], text.insert)
        yield "rotation", same_angle(text.text_direction.angle, got["rotation"])
        yield "width", close(text.width, got["width"])
        yield "textHeight", close(context.char_height, got["textHeight"])
        yield "spacing", close(text.line_spacing_factor, got["spacing"])
        yield "flow", text.flow_direction == got["flow"]
        yield "attachment", text.alignment == got["attachment"]


def check_shape(entity, row):
    yield "name", entity.dxf.name == row["name"]
    yield "size", close(entity.dxf.size, row["size"])
    yield "position", same_point(row["position"], in_world(entity, "insert"))


def check_tolerance(entity, row):
    yield "text", same_text(entity, entity.dxf.content, row["text"])
    yield "location", same_point(row["location"], entity.dxf.insert)
    style = entity.dxf.get("dimstyle", "Standard")
    yield "dimensionStyle", style.lower() == row["dimensionStyle"].lower()


CHECKS = {
    "TEXT": check_text,
    "ATTRIB": check_attribute,
    "ATTDEF": check_attribute,
    "MTEXT": check_mtext,
    "LEADER": check_leader,
    "MULTILEADER": check_mleader,
    "MLEADER": check_mleader,
    "SHAPE": check_shape,
    "TOLERANCE": check_tolerance,
}


if __name__ == "__main__":
    sys.exit(compare_all(sys.argv[1], sys.argv[2:], CHECKS, "texts and leaders"))
