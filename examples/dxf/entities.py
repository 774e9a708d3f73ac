"""The groups of entities, as drawings from R2000 on hold them.

Points are tuples of two or three numbers, angles are degrees. Any value may be `FIELD`.
"""

import math
from collections import namedtuple


def point(code, position):
    """A point; without a height it takes two groups."""
    return [(code + 10 * axis, value) for axis, value in enumerate(position)]


def flat(position):
    """A point in space on the ground plane."""
    return (position[0], position[1], 0.0)


def common(kind, handle, owner, layer, look=(), subclass="AcDbEntity"):
    """What every entity begins with; `look` is more of the common groups."""
    return [(0, kind), (5, handle), (330, owner), (100, subclass), (8, layer), *look]


def line(start, end):
    return [(100, "AcDbLine"), *point(10, start), *point(11, end)]


def node(position):
    return [(100, "AcDbPoint"), *point(10, position)]


def circle(center, radius):
    return [(100, "AcDbCircle"), *point(10, center), (40, radius)]


def arc(center, radius, start, end):
    return [*circle(center, radius), (100, "AcDbArc"), (50, start), (51, end)]


def ellipse(center, major_axis, ratio, start=0.0, end=2.0 * math.pi):
    groups = [(100, "AcDbEllipse"), *point(10, center), *point(11, major_axis)]
    return [*groups, (210, 0.0), (220, 0.0), (230, 1.0), (40, ratio), (41, start), (42, end)]


def polyline_head(vertices, closed, width=0.0):
    return [(100, "AcDbPolyline"), (90, vertices), (70, closed), (43, width)]


def polyline(vertices, closed=False, width=0.0):
    """Vertices are (x, y) or (x, y, bulge of the segment that follows)."""
    groups = polyline_head(len(vertices), int(closed), width)
    for x, y, *bulge in vertices:
        groups += [(10, x), (20, y), *((42, value) for value in bulge)]
    return groups


def spline_head(knots, points, degree=3):
    flags_for_planar = 8
    return [
        (100, "AcDbSpline"), (210, 0.0), (220, 0.0), (230, 1.0), (70, flags_for_planar),
        (71, degree), (72, knots), (73, points), (74, 0), (42, 1e-7), (43, 1e-7),
    ]


def clamped_knots(points, degree=3):
    inner = points - degree
    return [0.0] * degree + [float(step) for step in range(inner + 1)] + [float(inner)] * degree


def spline(points, degree=3):
    knots = clamped_knots(len(points), degree)
    groups = spline_head(len(knots), len(points), degree) + [(40, knot) for knot in knots]
    return groups + [group for position in points for group in point(10, position)]


def text(position, height, contents, rotation=0.0, style="Standard"):
    return [
        (100, "AcDbText"), *point(10, position), (40, height), (1, contents), (50, rotation),
        (7, style), (100, "AcDbText"),
    ]


def mtext(position, height, width, contents, attachment=1):
    return [
        (100, "AcDbMText"), *point(10, position), (40, height), (41, width), (71, attachment),
        (72, 1), (1, contents), (7, "Standard"), (73, 1), (44, 1.0),
    ]


def insert(block, position, scale=1.0, rotation=0.0, has_attributes=False):
    head = [(100, "AcDbBlockReference")] + ([(66, 1)] if has_attributes else [])
    scales = [(41, scale), (42, scale), (43, scale)]
    return [*head, (2, block), *point(10, position), *scales, (50, rotation)]


def attribute(position, height, tag, value, version=()):
    """The value of an attribute. `version` is (280, 0), (280, 1) from R2010 on."""
    body = text(position, height, value)[:-1]
    return [*body, (100, "AcDbAttribute"), *version, (2, tag), (70, 0)]


def attribute_definition(position, height, tag, prompt, default, version=()):
    body = text(position, height, default)[:-1]
    return [*body, (100, "AcDbAttributeDefinition"), *version, (3, prompt), (2, tag), (70, 0)]


def four_corners(subclass, corners):
    """A solid (corners 3 and 4 crosswise) or a face."""
    groups = [(100, subclass)]
    for index, corner in enumerate(corners):
        groups += point(10 + index, corner)
    return groups


def solid_hatch_head(vertices, has_bulge=1):
    """A filled area; its vertices follow."""
    return [
        (100, "AcDbHatch"), *point(10, (0.0, 0.0, 0.0)), (210, 0.0), (220, 0.0), (230, 1.0),
        (2, "SOLID"), (70, 1), (71, 0), (91, 1), (92, 3), (72, has_bulge), (73, 1), (93, vertices),
    ]


SOLID_HATCH_TAIL = [(97, 0), (75, 0), (76, 1), (47, 1.0), (98, 1), (10, 0.0), (20, 0.0)]


def solid_hatch(vertices):
    """A filled area inside vertices (x, y, bulge)."""
    groups = solid_hatch_head(len(vertices))
    for x, y, bulge in vertices:
        groups += [(10, x), (20, y), (42, bulge)]
    return groups + SOLID_HATCH_TAIL


def hatch_pattern(angle, spacing):
    """What makes a hatch one of parallel lines, as the pattern ANSI31 has them."""
    radians = math.radians(angle)
    offset = (round(-spacing * math.sin(radians), 12), round(spacing * math.cos(radians), 12))
    return [
        (75, 0), (76, 1), (52, 0.0), (41, 1.0), (77, 0), (78, 1), (53, angle), (43, 0.0),
        (44, 0.0), (45, offset[0]), (46, offset[1]), (79, 0), (98, 1), (10, 0.0), (20, 0.0),
    ]


def hatched_disc(center, radius, angle=45.0, spacing=3.175):
    """Parallel lines inside a full circle, which is a loop of one arc edge."""
    groups = [
        (100, "AcDbHatch"), *point(10, (0.0, 0.0, 0.0)), (210, 0.0), (220, 0.0), (230, 1.0),
        (2, "ANSI31"), (70, 0), (71, 0), (91, 1), (92, 1), (93, 1), (72, 2),
        *point(10, center), (40, radius), (50, 0.0), (51, 360.0), (73, 1), (97, 0),
    ]
    return groups + hatch_pattern(angle, spacing)


def rotated_dimension(block, start, end, foot, middle, measurement, angle, style):
    """A dimension from `start` to `end`; its line runs through `foot`."""
    own_block = 32
    return [
        (100, "AcDbDimension"), (2, block), *point(10, foot), *point(11, middle), (70, own_block),
        (71, 5), (42, measurement), (3, style), (100, "AcDbAlignedDimension"),
        *point(13, start), *point(14, end), (50, angle), (100, "AcDbRotatedDimension"),
    ]


DimensionPicture = namedtuple("DimensionPicture", "lines arrows feet middle measurement angle")


def dimension_picture(start, end, offset, arrow=2.5):
    """What a dimension along the X or the Y axis looks like.

    The dimension line lies `offset` above a horizontal distance, or left of a vertical one.
    """
    along = 0 if start[1] == end[1] else 1
    assert start[1 - along] == end[1 - along], "the distance must lie along an axis"
    level = start[1] + offset if along == 0 else start[0] - offset

    def place(distance, across):
        return (distance, across) if along == 0 else (across, distance)

    near, far = sorted((start[along], end[along]))
    feet = [place(near, level), place(far, level)]
    base = start[1 - along]
    lines = [(place(near, base), feet[0]), (place(far, base), feet[1]), (feet[0], feet[1])]
    half = arrow / 6.0
    arrows = []
    for tip, inward in ((near, arrow), (far, -arrow)):
        wings = [place(tip + inward, level - half), place(tip + inward, level + half)]
        arrows.append([*wings, place(tip, level), place(tip, level)])
    gap = arrow if along == 0 else -arrow
    middle = place((near + far) / 2.0, level + gap)
    return DimensionPicture(lines, arrows, feet, middle, far - near, 90.0 * along)


def viewport(center, size, number, view_center, view_height, status=1):
    """A window of a sheet into the model, looking straight down; number 1 is the sheet itself."""
    return [
        (100, "AcDbViewport"), *point(10, flat(center)), (40, size[0]), (41, size[1]),
        (68, status), (69, number), *point(12, view_center), *point(13, (0.0, 0.0)),
        *point(14, (10.0, 10.0)), *point(15, (10.0, 10.0)), *point(16, (0.0, 0.0, 1.0)),
        *point(17, (0.0, 0.0, 0.0)), (42, 50.0), (43, 0.0), (44, 0.0), (45, view_height),
        (50, 0.0), (51, 0.0), (72, 1000), (90, 32800), (1, ""), (281, 0), (71, 1), (74, 0),
        *point(110, (0.0, 0.0, 0.0)), *point(111, (1.0, 0.0, 0.0)), *point(112, (0.0, 1.0, 0.0)),
        (79, 0), (146, 0.0),
    ]


def hyperlink(address, description=""):
    """Extended data that makes an entity a link."""
    return [
        (1001, "PE_URL"), (1000, address), (1002, "{"), (1000, description), (1000, ""),
        (1002, "}"),
    ]


ALL_OPAQUE = 0x020000FF


def transparency(percent):
    """The value of group 440 for so much transparency."""
    return 0x02000000 | round(255 * (1.0 - percent / 100.0))
