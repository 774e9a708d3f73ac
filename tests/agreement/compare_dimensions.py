#!/usr/bin/env python3
"""Reads sample drawings with our reader and with ezdxf and compares their dimensions.

usage: compare_dimensions.py <print_dimensions> <drawing>...

Compared for each dimension, found by its handle: class, style, override text, the effective value
of each variable, and the measurement with the one that ezdxf computes or the file states.
Differences that are allowed, and why:

- ezdxf says nothing of variables that neither the style nor the dimension holds; the initial values
  are typed here again.
- ezdxf gives arrows, linetypes and text styles by handle or by name; names are compared, without
  case and without the underscore of a standard arrow.
- Extended data of applications, in which versions up to R2004 keep some variables, is unknown to
  ezdxf; those variables are left out where a style has such data.
- Some programs write colours as whole words where an index is expected, which ezdxf passes on.
- A caret is written with a blank behind it, which ezdxf leaves there.
- ezdxf measures aligned and two-line dimensions otherwise than it draws them, so they are measured
  here anew.
- Drawings older than R12 have no handles.
"""

import math
import subprocess
import sys

from ezdxf.entities.dimstyle import DimStyle
from ezdxf.math import intersection_line_line_2d

from drawing_comparison import load, unescaped

NAMES = DimStyle.CODE_TO_DXF_ATTRIB

INITIAL = dict(
    dimpost="", dimapost="", dimscale=1, dimasz=0.18, dimexo=0.0625, dimdli=0.38, dimexe=0.18,
    dimrnd=0, dimdle=0, dimtp=0, dimtm=0, dimfxl=1, dimjogang=math.pi / 4, dimtfill=0,
    dimtfillclr=0, dimtol=0, dimlim=0, dimtih=1, dimtoh=1, dimse1=0, dimse2=0, dimtad=0, dimzin=0,
    dimazin=0, dimarcsym=0, dimtxt=0.18, dimcen=0.09, dimtsz=0, dimaltf=25.4, dimlfac=1, dimtvp=0,
    dimtfac=1, dimgap=0.09, dimaltrnd=0, dimalt=0, dimaltd=2, dimtofl=0, dimsah=0, dimtix=0,
    dimsoxd=0, dimclrd=0, dimclre=0, dimclrt=0, dimadec=0, dimdec=4, dimtdec=4, dimaltu=2,
    dimalttd=2, dimaunit=0, dimfrac=0, dimlunit=2, dimdsep=46, dimtmove=0, dimjust=0, dimsd1=0,
    dimsd2=0, dimtolj=1, dimtzin=0, dimaltz=0, dimalttz=0, dimupt=0, dimatfit=3, dimfxlon=0,
    dimlwd=-2, dimlwe=-2, dimtxsty="Standard", dimldrblk="", dimblk="", dimblk1="", dimblk2="",
    dimltype="", dimltex1="", dimltex2="",
)  # fmt: skip
OBJECTS = {"dimtxsty", "dimldrblk", "dimblk", "dimblk1", "dimblk2", "dimltype", "dimltex1", "dimltex2"}
IN_APPLICATION_DATA = {"dimltype", "dimltex1", "dimltex2", "dimjogang", "dimtfill", "dimtfillclr", "dimfxl"}  # fmt: skip
COLORS = {"dimclrd", "dimclre", "dimclrt", "dimtfillclr"}
CLASSES = {
    0: "AcDbRotatedDimension", 1: "AcDbAlignedDimension", 2: "AcDb2LineAngularDimension",
    3: "AcDbDiametricDimension", 4: "AcDbRadialDimension", 5: "AcDb3PointAngularDimension",
    6: "AcDbOrdinateDimension", 8: "AcDbArcDimension",
}  # fmt: skip


def actual_dimensions(program, path):
    result = subprocess.run([program, path], capture_output=True, check=True)
    dimensions = {}
    for line in result.stdout.decode("ascii").splitlines():
        key, _, value = line.partition(" ")
        if key == "dimension":
            handle, kind = value.split(" ")
            current = dimensions.setdefault(handle, {"class": kind})
        else:
            current[key.lower()] = unescaped(value)
    return dimensions


def name_of(document, value):
    """The name of an object that is given by handle or by name."""
    entity = document.entitydb.get(value) if value else None
    if entity is not None and entity.dxf.hasattr("name"):
        value = entity.dxf.name
    return bare(value or "") if value != "0" else ""


def bare(name):
    return name.lower()[1:] if name.startswith("_") else name.lower()


class Expected:
    """What ezdxf says of a dimension."""

    def __init__(self, document, dimension):
        self.document = document
        self.dimension = dimension
        self.name = dimension.dxf.get("dimstyle", "Standard")
        known = self.name in document.dimstyles
        self.style = document.dimstyles.get(self.name) if known else DimStyle()
        self.overrides = self.read_overrides()

    def read_overrides(self):
        """The pairs of the list of overrides as they stand, by the name of the variable."""
        if not self.dimension.has_xdata_list("ACAD", "DSTYLE"):
            return {}
        tags = self.dimension.get_xdata_list("ACAD", "DSTYLE")[2:-1]
        pairs = zip(tags[0::2], tags[1::2])
        named = {NAMES[key.value]: value.value for key, value in pairs if key.value in NAMES}
        if named.get("dimtxsty_handle") == "0":  # no style overrides none
            del named["dimtxsty_handle"]
        return named

    def kind(self):
        if self.dimension.dxftype() == "ARC_DIMENSION":
            return "AcDbArcDimension"
        if self.dimension.dxftype() == "LARGE_RADIAL_DIMENSION":
            return "AcDbRadialDimensionLarge"
        return CLASSES[self.dimension.dimtype]

    def style_name(self):
        return self.name

    def value(self, variable):
        if variable in self.overrides:
            value = self.overrides[variable]
            if variable in COLORS:
                return index_of(value)
            return name_of(self.document, value) if variable in OBJECTS else value
        if variable + "_handle" in self.overrides:
            return name_of(self.document, self.overrides[variable + "_handle"])
        if variable in OBJECTS:
            return self.style_object(variable)
        value = self.style.dxf.get(variable) if self.style.dxf.hasattr(variable) else None
        if value is not None and variable == "dimjogang":
            return math.radians(value)
        if value is not None and variable in COLORS:
            return index_of(value)
        return INITIAL[variable] if value is None else value

    def style_object(self, variable):
        for name in (variable + "_handle", variable):
            if self.style.dxf.hasattr(name) and self.style.dxf.get(name):
                return name_of(self.document, self.style.dxf.get(name))
        return bare(INITIAL[variable])

    def has_application_data(self):
        carriers = [e for e in (self.style, self.dimension) if e.xdata]
        return any(a.startswith("ACAD_DSTYLE") for e in carriers for a in e.xdata.data)

    def measurement(self):
        """The stated one where it agrees with the points, else the one that the points give; None
        if neither is known."""
        stated = self.dimension.dxf.get("actual_measurement", -1)
        computed = self.computed()
        if computed is None:
            return stated if stated >= 0 else None
        return computed * (1 if self.is_angular() else self.value("dimlfac"))

    def is_angular(self):
        return self.dimension.dimtype in (2, 5)

    def computed(self):
        dimension = self.dimension
        if dimension.dxftype() != "DIMENSION":
            return None
        if dimension.dimtype == 1:  # for ezdxf the horizontal distance
            return dimension.dxf.defpoint2.distance(dimension.dxf.defpoint3)
        if dimension.dimtype == 2:  # for ezdxf counter-clockwise, wherever the arc is
            return sector_angle(dimension)
        value = dimension.get_measurement()
        if not isinstance(value, (int, float)):  # a vector for ordinates
            return None
        return math.radians(value) if dimension.dimtype == 5 else abs(value)


def sector_angle(dimension):
    """The angle between those two of the four rays between which the arc point lies."""
    dxf = dimension.dxf
    lines = (dxf.defpoint2.vec2, dxf.defpoint3.vec2), (dxf.defpoint4.vec2, dxf.defpoint.vec2)
    vertex = intersection_line_line_2d(*lines)
    if vertex is None:
        return None
    wanted = (dimension.ocs().to_wcs(dxf.defpoint5).vec2 - vertex).angle % math.tau
    directions = [(end - start).angle for start, end in lines]
    rays = sorted(d % math.tau for d in directions + [d + math.pi for d in directions])
    after = next((ray for ray in rays if ray >= wanted), rays[0] + math.tau)
    before = max((ray for ray in rays if ray < wanted), default=rays[-1] - math.tau)
    return after - before


def same(expected, actual):
    if isinstance(expected, str):
        return bare(expected) == bare(actual)
    return math.isclose(float(expected), float(actual), rel_tol=1e-9, abs_tol=1e-9)


def faults_of(expected, actual):
    yield from (
        (key, wanted, actual[key])
        for key, wanted in (("class", expected.kind()), ("style", expected.style_name()))
        if wanted.lower() != actual[key].lower()
    )
    text = expected.dimension.dxf.get("text", "").replace("^ ", "^")
    if " ".join(text.split()) != " ".join(actual["text"].split()):
        yield "text", text, actual["text"]
    for variable in INITIAL:
        if variable in IN_APPLICATION_DATA and expected.has_application_data():
            continue
        if not same(expected.value(variable), actual[variable]):
            yield variable, expected.value(variable), actual[variable]
    wanted, ours = expected.measurement(), actual["measurement"]
    if wanted is not None and (ours == "none" or not near(wanted, float(ours))):
        yield "measurement", wanted, ours


def index_of(color):
    """The index in a colour that is written as a word: its method in the top byte."""
    word = color & 0xFFFFFFFF
    if word >> 24 == 0:
        return color
    return {0xC0: 256, 0xC1: 0, 0xC3: word & 0xFF}.get(word >> 24, 256)


def near(a, b):
    return math.isclose(a, b, rel_tol=1e-6, abs_tol=1e-6)


def compare(program, path):
    document = load(path)
    if document is None:
        print("not readable by ezdxf, left out:", path)
        return 0, 0
    actual = actual_dimensions(program, path)
    count = failed = 0
    for entity in document.entitydb.values():
        if not entity.is_alive or entity.dxftype() not in ("DIMENSION", "ARC_DIMENSION"):
            continue
        if document.loaded_dxfversion is not None and document.loaded_dxfversion < "AC1009":
            continue
        count += 1
        handle = entity.dxf.handle
        if handle not in actual:
            faults = [("dimension", handle, "nothing")]
        else:
            faults = list(faults_of(Expected(document, entity), actual[handle]))
        failed += bool(faults)
        for key, wanted, got in faults:
            print("%s, %s of %s: ezdxf %r, we %r" % (path, key, handle, wanted, got))
    return count, failed


def main():
    program, paths = sys.argv[1], sys.argv[2:]
    results = [compare(program, path) for path in paths]
    count, failed = (sum(column) for column in zip(*results)) if results else (0, 0)
    print("%d dimensions in %d drawings, %d differ" % (count, len(paths), failed))
    return 0 if count and not failed else 1


if __name__ == "__main__":
    sys.exit(main())
