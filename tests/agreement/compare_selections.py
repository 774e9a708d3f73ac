#!/usr/bin/env python3
"""Selects in real drawings, and holds the handles against what ezdxf and a formula find.

Runs with the interpreter of the system, which has ezdxf. The criteria come from the drawings: of each
property the value in the middle, so that some entities pass and some do not.
"""

import math
import subprocess
import sys
from pathlib import Path

from drawing_comparison import load, stated_once

TOLERANCE_DIGITS = "$LUPREC"


def length(line):
    return (line.dxf.end - line.dxf.start).magnitude


def angle(line):
    across = line.dxf.end - line.dxf.start
    return math.atan2(across.y, across.x) % (2 * math.pi)


def area(polyline):
    """The shoelace sum with a circular segment for each bulge; closed by a straight line."""
    points = [(p[0], p[1], p[2]) for p in polyline.get_points("xyb")]
    if len(points) < 2:
        return 0.0
    total = 0.0
    for i, (x1, y1, bulge) in enumerate(points):
        x2, y2, _ = points[(i + 1) % len(points)]
        total += (x1 * y2 - x2 * y1) / 2
        is_drawn = i + 1 < len(points) or polyline.closed
        if bulge and is_drawn:
            span = 4 * math.atan(bulge)
            radius = math.hypot(x2 - x1, y2 - y1) / (2 * math.sin(span / 2))
            total += radius * radius * (span - math.sin(span)) / 2
    return abs(total)


def middle(values):
    ordered = sorted(values)
    return ordered[len(ordered) // 2] if ordered else None


class Drawing:
    def __init__(self, program, path):
        self.program, self.path = program, path
        self.document = load(path)
        self.once = stated_once(path) if self.document else None
        self.tolerance = 10.0 ** -self.document.header.get(TOLERANCE_DIGITS, 4) if self.document else 0

    def entities(self, kind, layout=None):
        frozen = {layer.dxf.name.lower() for layer in self.document.layers if layer.is_frozen()}
        return [e for e in (layout or self.document.modelspace()).query(kind)
                if e.dxf.layer.lower() not in frozen and
                (self.once is None or e.dxf.handle.upper() in self.once)]

    def select(self, expression, *options):
        done = subprocess.run([self.program, self.path, expression, *options],
                              capture_output=True, check=False)
        if done.returncode not in (0, 1, 3):
            raise RuntimeError(done.stderr.decode())
        return set(done.stdout.decode().split())

    def disagree(self, kind, expression, passes):
        """Handles on which the two disagree; those near the border count for neither."""
        return self.differences(self.entities(kind), passes, self.select(expression))

    @staticmethod
    def differences(entities, passes, found):
        verdicts = {e.dxf.handle.upper().lstrip("0"): passes(e) for e in entities}
        return [h for h, verdict in verdicts.items() if verdict is not None and verdict != (h in found)]

    def above(self, kind, expression, measure, bound):
        def passes(entity):
            excess = measure(entity) - bound
            near = abs(excess) <= 2 * self.tolerance or abs(excess) < 1e-9 * abs(bound)
            return None if near else excess > 0
        return self.disagree(kind, expression, passes)


def checks(drawing):
    """Pairs of an expression and the handles on which the two disagree."""
    for kind, name, measure in (("CIRCLE", "Circle: Radius", lambda e: e.dxf.radius),
                                ("ARC", "Arc: Radius", lambda e: e.dxf.radius),
                                ("LINE", "Line: Length", length),
                                ("LWPOLYLINE", "Polyline: Area", area)):
        bound = middle(map(measure, drawing.entities(kind)))
        if bound is not None:
            expression = f"{name} > {bound!r}"
            yield expression, drawing.above(kind, expression, measure, bound)

    lines = [e for e in drawing.entities("LINE") if math.hypot(*(e.dxf.end - e.dxf.start).vec2) > 1e-6]
    if lines:
        bound = middle(map(angle, lines))
        expression = f"Line: Angle > {bound!r}r"
        yield expression, [h for h in drawing.above("LINE", expression, angle, bound)
                           if h in {e.dxf.handle.upper().lstrip("0") for e in lines}]

    polylines = drawing.entities("LWPOLYLINE")
    if polylines:
        x = polylines[len(polylines) // 2].get_points("xy")[0][0]
        expression = f"Polyline: Vertex X = {x!r}"
        near = drawing.tolerance
        yield expression, drawing.disagree(
            "LWPOLYLINE", expression,
            lambda e: any(abs(p[0] - x) < near * 0.9 for p in e.get_points("xy")) or
            (None if any(abs(p[0] - x) < near * 1.1 for p in e.get_points("xy")) else False))

    yield from block_checks(drawing)

    texts = [e for e in drawing.entities("TEXT") if e.dxf.text.isascii() and e.dxf.text.isalnum()]
    if texts:
        word = middle(e.dxf.text for e in texts)
        expression = f'Text: Contents * "*{word}*"'
        yield expression, drawing.disagree(
            "TEXT", expression, lambda e: word in e.dxf.text if e.dxf.text.isascii() else None)


def is_plain(text):
    return bool(text) and text.isascii() and '"' not in text


def block_checks(drawing):
    """References by the name of their block and by an attribute, and what a block holds."""
    references = [e for e in drawing.entities("INSERT") if e.mcount == 1]
    name = middle(e.dxf.name for e in references if is_plain(e.dxf.name) and e.dxf.name[0] != "*")
    if name:
        expression = f'Block Reference: Name = "{name}"'
        # An anonymous copy goes by the name of its original, which the other reader does not tell.
        yield expression, drawing.differences(
            references, lambda e: None if e.dxf.name[0] == "*" else e.dxf.name == name,
            drawing.select(expression))

    attribute = next((a for e in references for a in e.attribs
                      if is_plain(a.dxf.tag) and is_plain(a.dxf.text) and a.dxf.text.isalnum()), None)
    if attribute is not None:
        tag, text = attribute.dxf.tag, attribute.dxf.text
        expression = f'Block Reference: "Attributes:{tag}" = "{text}"'
        yield expression, drawing.differences(
            references, lambda e: any(a.dxf.tag == tag and a.dxf.text == text for a in e.attribs),
            drawing.select(expression))

    blocks = [b for b in drawing.document.blocks
              # Names with an underscore may be arrowheads that the other reader has added.
              if b.name[0] not in "*_" and is_plain(b.name) and drawing.entities("LINE", b)]
    if blocks:
        block = max(blocks, key=lambda b: len(b.query("LINE")))
        lines = drawing.entities("LINE", block)
        bound = middle(map(length, lines))
        expression = f"Line: Length > {bound!r}"
        near = 2 * drawing.tolerance + 1e-9 * bound
        yield f"{block.name}: {expression}", drawing.differences(
            lines, lambda e: None if abs(length(e) - bound) <= near else length(e) > bound,
            drawing.select(expression, "--space", f"block:{block.name}"))


def main(program, paths):
    compared, wrong = 0, []
    for path in paths:
        drawing = Drawing(program, path)
        if drawing.document is None or drawing.document.dxfversion < "AC1012":
            continue
        for expression, handles in checks(drawing):
            compared += 1
            wrong += [f"{path}: {expression}: {handle}" for handle in handles]
    print(f"{compared} selections compared, {len(wrong)} entities differ")
    print("\n".join(wrong[:50]))
    return 1 if wrong or compared == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2:]))
