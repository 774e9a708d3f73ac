"""Compares faces, images, multilines and lights with what an independent reader finds.

Usage: compare_lone_kinds.py <print_lone_kinds> <drawing>...
"""

import math
import subprocess
import sys

import ezdxf
from ezdxf import DXFError
from ezdxf.math import OCS, Vec3

TOLERANCE = 1e-9


def flat(points):
    return [coordinate for point in points for coordinate in Vec3(point)]


CORNERS = ("vtx0", "vtx1", "vtx2", "vtx3")


def corners_of(entity):
    third = entity.dxf.vtx2
    return [Vec3(entity.dxf.get(name, third)) for name in CORNERS]


def of_face(entity):
    numbers = []
    for index, corner in enumerate(corners_of(entity)):
        numbers += [*corner, float(not entity.is_invisible_edge(index))]
    return numbers


def of_filled(entity):
    ocs = OCS(entity.dxf.get("extrusion", (0, 0, 1)))
    return [entity.dxf.get("thickness", 0.0), *flat(map(ocs.to_wcs, corners_of(entity)))]


def of_image(entity):
    dxf = entity.dxf
    size = Vec3(dxf.image_size)
    u = Vec3(dxf.u_pixel)
    v = Vec3(dxf.v_pixel)
    numbers = [size.x, size.y, dxf.brightness, dxf.contrast, dxf.fade]
    numbers += flat([dxf.insert, u * size.x, v * size.y])
    if dxf.clipping:
        points = [Vec3(point) for point in entity.boundary_path]
        if len(points) == 2:
            first, last = points
            points = [first, Vec3(last.x, first.y), last, Vec3(first.x, last.y)]
        elif points[0].isclose(points[-1]):
            points.pop()
        numbers += flat(
            Vec3(dxf.insert) + u * (point.x + 0.5) + v * (size.y - point.y - 0.5)
            for point in points)
    return numbers


def of_mline(entity):
    dxf = entity.dxf
    style = int(dxf.get("style_handle") or "0", 16)
    return [dxf.scale_factor, dxf.justification, float(entity.is_closed), style,
            *flat(vertex.location for vertex in entity.vertices)]


def of_light(entity):
    dxf = entity.dxf
    return [dxf.type, dxf.intensity, math.radians(dxf.hotspot_angle),
            math.radians(dxf.falloff_angle), float(dxf.status), *flat([dxf.location, dxf.target])]


KINDS = {
    "3DFACE": of_face,
    "SOLID": of_filled,
    "TRACE": of_filled,
    "IMAGE": of_image,
    "WIPEOUT": of_image,
    "MLINE": of_mline,
    "LIGHT": of_light,
}


def expected(drawing):
    found = {}
    for entity in drawing.entitydb.values():
        reader = KINDS.get(entity.dxftype())
        if reader and entity.is_alive and entity.dxf.get("owner") is not None:
            found[entity.dxf.handle] = (entity.dxftype(), reader(entity))
    return found


def printed(program, path):
    output = subprocess.run([program, path], capture_output=True, text=True, check=True).stdout
    lines = (line.split() for line in output.splitlines())
    return {handle: [float(number) for number in numbers] for handle, *numbers in lines}


def agrees(ours, theirs):
    return len(ours) == len(theirs) and all(
        abs(a - b) <= TOLERANCE * max(1.0, abs(b)) for a, b in zip(ours, theirs))


def compare(program, path):
    """The number of entities compared and the complaints."""
    try:
        drawing = ezdxf.readfile(path)
    except (DXFError, AttributeError, OSError, UnicodeError, ValueError):
        return 0, []
    if drawing.loaded_dxfversion < "AC1015":
        return 0, []  # the other reader adds entities and handles of its own
    ours = printed(program, path)
    complaints = []
    theirs = expected(drawing)
    for handle, (kind, numbers) in theirs.items():
        if not agrees(ours.get(handle, []), numbers):
            complaints.append(f"{path}: {kind} {handle}: {ours.get(handle)} is not {numbers}")
    return len(theirs), complaints


def main(arguments):
    program, *drawings = arguments
    compared = 0
    failed = False
    for path in drawings:
        count, complaints = compare(program, path)
        compared += count
        failed = failed or bool(complaints)
        for complaint in complaints:
            print(complaint)
    print(f"{compared} entities compared")
    return 1 if failed or compared == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
