#!/usr/bin/env python3
"""Reads sample drawings with our reader and with ezdxf and compares their curves.

usage: compare_curves.py <print_curves> <drawing>...

Compared for each curve of whatever block, found by its handle: ends, lengths, areas, points along
the way, and that the box holds them; radii, angles, vertices and control points. What ezdxf does not
compute itself is worked out here from its values, by closed formulas or by Gauss's rule, and never
the way our programs go.

ezdxf reads a smoothed polyline as its vertices, so which of them are drawn is decided here as well.
"""

import math
import sys

from ezdxf.math import OCS, Vec2, Vec3, bulge_to_arc

from drawing_comparison import TURN, close, compare_all, same_angle, same_point

CONTROL_POINT = 16
GAUSS = (
    (0.0, 128 / 225),
    (math.sqrt(5 - 2 * math.sqrt(10 / 7)) / 3, (322 + 13 * math.sqrt(70)) / 900),
    (math.sqrt(5 + 2 * math.sqrt(10 / 7)) / 3, (322 - 13 * math.sqrt(70)) / 900),
)
PARTS = 64


def integral(function, start, end):
    """By Gauss's rule of five points over many parts; values may be vectors."""
    half = (end - start) / PARTS / 2
    total = None
    for i in range(PARTS):
        middle = start + (2 * i + 1) * half
        for place, weight in GAUSS:
            for sign in (1, -1) if place else (1,):
                value = function(middle + sign * place * half) * (weight * half)
                total = value if total is None else total + value
    return total


def check_box(row):
    low, high = (Vec3(corner) for corner in row["extents"])
    size = max(1.0, high.magnitude, low.magnitude)
    for point in map(Vec3, row["points"]):
        for axis in range(3):
            if not low[axis] - 1e-9 * size <= point[axis] <= high[axis] + 1e-9 * size:
                return False
    return True


def check_ends(row, start, end):
    yield "start", same_point(row["points"][0], start)
    yield "end", same_point(row["points"][-1], end)
    yield "box", check_box(row)


def check_line(line, row):
    start, end = Vec3(line.dxf.start), Vec3(line.dxf.end)
    yield from check_ends({**row, "extents": row["flatExtents"]}, start, end)
    yield "length", close(row["length"], (end - start).magnitude)
    yield "angle", same_angle(math.atan2(end.y - start.y, end.x - start.x), row["angle"])


def check_round(entity, row, start, span):
    radius = entity.dxf.radius
    yield "radius", close(row["radius"], radius)
    yield "center", same_point(row["center"], entity.ocs().to_wcs(Vec3(entity.dxf.center)))
    yield "length", close(row["length"], radius * span)
    yield "area", close(row["area"], radius**2 / 2 * (span - math.sin(span)))
    for i, point in enumerate(row["points"]):
        angle = start + span * i / (len(row["points"]) - 1)
        flat = Vec3(entity.dxf.center) + Vec3(math.cos(angle), math.sin(angle)) * radius
        yield "point", same_point(point, entity.ocs().to_wcs(flat))
    yield "box", check_box(row)


def check_circle(circle, row):
    yield from check_round(circle, row, 0, TURN)


def check_arc(arc, row):
    start, end = math.radians(arc.dxf.start_angle), math.radians(arc.dxf.end_angle)
    span = (end - start) % TURN
    if abs(span) < 1e-10 and abs(end - start) > 1:
        span = TURN
    yield from check_round(arc, row, start, span)


def check_ellipse(ellipse, row):
    start, end = ellipse.dxf.start_param, ellipse.dxf.end_param
    span = (end - start) % TURN
    if span < 1e-9 or TURN - span < 1e-9:
        span = TURN
    major, minor = ellipse.dxf.major_axis.magnitude, ellipse.minor_axis.magnitude
    params = [start + span * i / (len(row["points"]) - 1) for i in range(len(row["points"]))]
    for point, wanted in zip(row["points"], ellipse.vertices(params)):
        yield "point", same_point(point, wanted)
    speed = lambda t: math.hypot(major * math.sin(t), minor * math.cos(t))
    if minor > 0.01 * major:  # flatter ones turn too sharply for the rule above
        yield "length", close(row["length"], integral(speed, start, start + span))
    yield "area", close(row["area"], major * minor / 2 * (span - math.sin(span)))
    yield "box", check_box(row)


def length_and_area(points, bulges, closed):
    """Of lines and arcs in the plane; the area is closed by a straight line."""
    count = len(points)
    length = area = 0.0
    for i in range(count):
        start, end = points[i], points[(i + 1) % count]
        area += (start.x - points[0].x) * (end.y - points[0].y) / 2
        area -= (end.x - points[0].x) * (start.y - points[0].y) / 2
        if i == count - 1 and not closed:
            break
        if abs(bulges[i]) < 1e-9 or start.isclose(end):
            length += start.distance(end)
            continue
        _, first, last, radius = bulge_to_arc(start, end, bulges[i])
        span = (last - first) % TURN
        length += radius * span
        area += math.copysign(radius**2 / 2 * (span - math.sin(span)), bulges[i])
    return length, abs(area)


def check_flat(row, points, bulges, closed, ocs, elevation):
    length, area = length_and_area(points, bulges, closed)
    size = max([1.0] + [point.magnitude for point in points])
    wanted = [ocs.to_wcs(Vec3(point.x, point.y, elevation)) for point in points]
    yield "vertices", len(wanted) == len(row["vertices"]) and all(
        same_point(a, tuple(b)) for a, b in zip(row["vertices"], wanted)
    )
    yield "bulges", all(close(a, b) for a, b in zip(row["bulges"], bulges))
    yield "closed", closed == row["closed"]
    yield "length", close(row["length"], length, size)
    yield "area", close(row["area"], area, size * size)
    yield "box", check_box(row)


def check_lwpolyline(polyline, row):
    with polyline.points("xyb") as content:
        points = [Vec2(x, y) for x, y, _ in content]
        bulges = [bulge for _, _, bulge in content]
    if points:
        elevation = polyline.dxf.elevation
        yield from check_flat(row, points, bulges, polyline.closed, polyline.ocs(), elevation)


def check_polyline(polyline, row):
    drawn = [v for v in polyline.vertices if not v.dxf.flags & CONTROL_POINT]
    closed = polyline.is_closed
    if not drawn:
        return
    points = [Vec3(vertex.dxf.location) for vertex in drawn]
    if polyline.is_2d_polyline:
        flat = [Vec2(point) for point in points]
        bulges = [vertex.dxf.get("bulge", 0.0) for vertex in drawn]
        elevation = Vec3(polyline.dxf.get("elevation", (0, 0, 0))).z
        yield from check_flat(row, flat, bulges, closed, polyline.ocs(), elevation)
    elif polyline.is_3d_polyline:
        if closed:
            points.append(points[0])
        length = sum(a.distance(b) for a, b in zip(points, points[1:]))
        yield "length", close(row["length"], length)
        yield from check_ends(row, points[0], points[-1])


def check_spline(spline, row):
    yield "control points", len(spline.control_points) == len(row["controlPoints"]) and all(
        same_point(a, tuple(b)) for a, b in zip(row["controlPoints"], map(Vec3, spline.control_points))
    )
    yield "knots", list(spline.knots) == row["knots"]
    yield "weights", list(spline.weights) == row["weights"]
    yield "fit points", len(spline.fit_points) == len(row["fitPoints"]) and all(
        same_point(a, tuple(b)) for a, b in zip(row["fitPoints"], map(Vec3, spline.fit_points))
    )
    curve = spline.construction_tool()
    degree = curve.degree
    yield "range", row["range"] == [spline.knots[degree], spline.knots[-degree - 1]]
    start, end = curve.knots()[degree], curve.knots()[-degree - 1]  # ezdxf begins at 0
    knots = [knot for knot in sorted(set(curve.knots())) if start <= knot <= end]
    count = len(row["points"]) - 1
    for i, point in enumerate(row["points"]):
        if i < count:  # ezdxf finds no span for the very end of a curve whose end knots are apart
            yield "point", same_point(point, tuple(curve.point(start + (end - start) * i / count)))
    origin = Vec3(curve.point(start))

    def moment(t):
        point, derivative = map(Vec3, curve.derivative(t, 1))
        return (point - origin).cross(derivative) * 0.5

    speed = lambda t: Vec3(curve.derivative(t, 1)[1]).magnitude
    spans = list(zip(knots, knots[1:]))
    yield "length", close(row["length"], sum(integral(speed, a, b) for a, b in spans))
    if "area" in row:
        area = sum((integral(moment, a, b) for a, b in spans), Vec3()).magnitude
        yield "area", close(row["area"], area, origin.magnitude)
    yield "box", check_box(row)


def check_helix(helix, row):
    yield from check_spline(helix, row)
    dxf = helix.dxf
    base = Vec3(dxf.axis_base_point)
    yield "position", same_point(row["position"], tuple(base))
    yield "base radius", close(row["baseRadius"], base.distance(Vec3(dxf.start_point)))
    yield "top radius", close(row["topRadius"], dxf.radius)
    yield "turns", close(row["turns"], dxf.turns)
    yield "turn height", close(row["turnHeight"], dxf.turn_height)
    yield "twist", bool(dxf.handedness) == row["twist"]


def check_ray(ray, row):
    yield "base", same_point(row["base"], tuple(Vec3(ray.dxf.start)))
    yield "direction", same_point(row["direction"], tuple(Vec3(ray.dxf.unit_vector).normalize()))


CHECKS = {
    "LINE": check_line,
    "CIRCLE": check_circle,
    "ARC": check_arc,
    "ELLIPSE": check_ellipse,
    "LWPOLYLINE": check_lwpolyline,
    "POLYLINE": check_polyline,
    "SPLINE": check_spline,
    "HELIX": check_helix,
    "RAY": check_ray,
    "XLINE": check_ray,
}


def is_curve(entity):
    return entity.dxftype() != "POLYLINE" or entity.is_2d_polyline or entity.is_3d_polyline


if __name__ == "__main__":
    sys.exit(compare_all(sys.argv[1], sys.argv[2:], CHECKS, "curves", is_curve))
