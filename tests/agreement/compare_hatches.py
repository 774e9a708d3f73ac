#!/usr/bin/env python3
"""Reads sample drawings with our reader and with ezdxf and compares their hatches.

usage: compare_hatches.py <print_hatches> <drawing>...

The area is found in another way than ours: boundaries are broken into short straight pieces, and
level lines measure how far they run through the filled parts, where a point is filled by the number
of loops that it lies in.
"""

import math
import subprocess
import sys

from ezdxf.math import BSpline, bulge_to_arc

from drawing_comparison import load, unescaped

LEVELS = 700
PIECES = 400
AREA_TOLERANCE = 0.01  # of the area, for so many levels and pieces
TEXT_BOX = 8


def ellipse_points(center, major, ratio, start, end):
    """Angles in radians as seen from the center; counter-clockwise."""
    if end <= start:
        end += 2 * math.pi
    axis = math.atan2(major[1], major[0])
    long_radius = math.hypot(major[0], major[1])
    for i in range(PIECES + 1):
        angle = start + (end - start) * i / PIECES
        c, s = math.cos(angle), math.sin(angle)
        radius = long_radius / math.sqrt(c * c + (s / ratio) ** 2)
        yield (center[0] + radius * math.cos(axis + angle), center[1] + radius * math.sin(axis + angle))


def edge_points(edge):
    kind = type(edge).__name__
    if kind == "LineEdge":
        return [tuple(edge.start)[:2], tuple(edge.end)[:2]]
    if kind == "SplineEdge":
        points = [tuple(p)[:2] for p in edge.control_points]
        if not points:
            return [tuple(p)[:2] for p in edge.fit_points]
        spline = BSpline(
            edge.control_points, order=edge.degree + 1, knots=edge.knot_values, weights=edge.weights or None
        )
        return [tuple(p)[:2] for p in spline.approximate(PIECES)]
    start, end = math.radians(edge.start_angle), math.radians(edge.end_angle)
    if kind == "ArcEdge":
        major, ratio = (edge.radius, 0.0), 1.0
    else:
        major, ratio = edge.major_axis, edge.ratio
    points = list(ellipse_points(edge.center, major, ratio, start, end))
    return points if edge.ccw else points[::-1]


def side_points(start, end):
    bulge = start[2]
    if abs(bulge) < 1e-12 or start[:2] == end[:2]:
        return [start[:2]]
    center, first, last, radius = bulge_to_arc(start[:2], end[:2], bulge)
    points = list(ellipse_points(center, (radius, 0.0), 1.0, first, last))
    return points[:-1] if bulge > 0 else points[:0:-1]


def loop_points(loop):
    points = []
    if hasattr(loop, "vertices"):
        corners = [tuple(v) for v in loop.vertices]
        for start, end in zip(corners, corners[1:] + corners[:1]):
            points += side_points(start, end)
        return points
    for edge in loop.edges:
        more = edge_points(edge)
        if points and math.dist(points[-1], more[-1]) < math.dist(points[-1], more[0]):
            more = more[::-1]
        points += more
    return points


def crossings(points, y):
    """In order, each with the loop's number: where it is entered or left."""
    found = []
    for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
        if (y0 <= y) != (y1 <= y):
            found.append(x0 + (x1 - x0) * (y - y0) / (y1 - y0))
    return found


def is_filled(style, inside, boxes):
    if style == 2:
        return len(inside) > 0
    if inside & boxes:
        return False
    return len(inside) % 2 == 1 if style == 0 else len(inside) == 1


def filled_area(hatch):
    loops = [loop_points(loop) for loop in hatch.paths]
    boxes = {i for i, loop in enumerate(hatch.paths) if loop.path_type_flags & TEXT_BOX}
    heights = [y for points in loops for _, y in points]
    if not heights:
        return 0.0
    low, step = min(heights), (max(heights) - min(heights)) / LEVELS
    total = 0.0
    for level in range(LEVELS):
        y = low + (level + 0.5) * step
        events = sorted((x, i) for i, points in enumerate(loops) for x in crossings(points, y))
        inside, before = set(), None
        for x, i in events:
            if before is not None and is_filled(hatch.dxf.hatch_style, inside, boxes):
                total += x - before
            inside ^= {i}
            before = x
    return total * step


def expected_row(hatch):
    name = hatch.dxf.pattern_name
    name = name[:-3] if name.endswith(",_O") else name
    gradient = hatch.gradient if hatch.has_gradient_data else None
    scale = hatch.dxf.get("pattern_scale", 1.0)
    user = hatch.dxf.pattern_type == 0
    return {
        "name": name,
        "type": hatch.dxf.pattern_type,
        "style": hatch.dxf.hatch_style,
        "solid": hatch.dxf.solid_fill,
        "associative": hatch.dxf.associative,
        "gradient": int(bool(gradient and gradient.kind)),
        "loops": len(hatch.paths),
        "angle": math.radians(hatch.dxf.get("pattern_angle", 0.0)),
        "scale": 1.0 if user else scale,
        "space": scale if user else 1.0,
        "elevation": hatch.dxf.elevation.z,
        "area": filled_area(hatch),
        "gradient name": gradient.name if gradient else "",
        "gradient angle": math.radians(gradient.rotation) if gradient else 0.0,
    }


def actual_rows(program, path):
    result = subprocess.run([program, path], capture_output=True, check=True)
    for line in result.stdout.decode("ascii").splitlines():
        handle, *fields = line.split(" ")
        names = ("name type style solid associative gradient loops angle scale space elevation area").split()
        names += ["gradient name", "gradient angle"]
        yield handle, dict(zip(names, map(unescaped, fields)))


def same(name, wanted, got):
    if isinstance(wanted, str):
        return wanted == got
    tolerance = AREA_TOLERANCE if name == "area" else 1e-9
    return abs(wanted - float(got)) <= tolerance * max(abs(wanted), 1e-6)


def compare(program, path):
    """How many hatches were compared, and how many of them differ."""
    document = load(path)
    if document is None:
        print("not readable by ezdxf, left out:", path)
        return 0, 0
    actual = dict(actual_rows(program, path))
    hatches = [e for e in document.entitydb.values() if e.dxftype() == "HATCH" and e.is_alive]
    faulty = 0
    for hatch in hatches:
        wanted, got = expected_row(hatch), actual.get(hatch.dxf.handle)
        faults = [n for n in wanted if got is None or not same(n, wanted[n], got[n])]
        if faults:
            faulty += 1
            for n in faults:
                print("%s %s %s: ezdxf %s, we %s" % (path, hatch.dxf.handle, n, wanted[n], got and got[n]))
    return len(hatches), faulty


def main():
    program, paths = sys.argv[1], sys.argv[2:]
    results = [compare(program, path) for path in paths]
    compared, faulty = sum(r[0] for r in results), sum(r[1] for r in results)
    print("%d hatches, %d differ" % (compared, faulty))
    return 0 if compared and not faulty else 1


if __name__ == "__main__":
    sys.exit(main())
