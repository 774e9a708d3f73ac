#!/usr/bin/env python3
"""Writes the sample drawings of this folder: make_examples.py [--output FOLDER]

The drawings are kept in the tree; run this after changing it. It gives the same bytes each time.
"""

import argparse
import math
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from dxf import entities as dxf
from dxf.forms import TextForm
from dxf.frame import Drawing, Layer, Linetype, Sheet

HANDLE_SEED = 0x10000

DASHED = Linetype("DASHED", "Dashed __ __ __", (12.0, -6.0))
CENTER = Linetype("CENTER", "Center ____ _ ____", (32.0, -6.0, 6.0, -6.0))


class Pen:
    """Adds entities to one block of a drawing."""

    def __init__(self, drawing, block):
        self.drawing = drawing
        self.block = block
        self.block.entities = []
        self._space = [(67, 1)] if block is drawing.paper else []

    def add(self, kind, layer, groups, look=()):
        """Adds an entity and gives its handle."""
        return self._append(kind, self.block.handle, layer, groups, [*self._space, *look])

    def add_insert(self, layer, block, position, attributes, attribute_version=(), **options):
        """Adds a block reference with attributes: tuples of position, height, tag and value."""
        groups = dxf.insert(block, position, has_attributes=bool(attributes), **options)
        parent = self.add("INSERT", layer, groups)
        for attribute in attributes:
            values = dxf.attribute(*attribute, version=attribute_version)
            self._append("ATTRIB", parent, layer, values, self._space)
        if attributes:
            self._append("SEQEND", parent, layer, [], self._space)

    def add_dimension(self, layer, start, end, offset):
        """Adds a dimension along an axis, with the block that shows it."""
        drawing = self.drawing
        anonymous = 1
        number = sum(block.name.startswith("*D") for block in drawing.blocks) + 1
        block = drawing.add_block(f"*D{number}", flags=anonymous)
        arrow = 150.0
        picture = dxf.dimension_picture(start, end, offset, arrow)
        inner = Pen(drawing, block)
        for line_start, line_end in picture.lines:
            inner.add("LINE", layer, dxf.line(dxf.flat(line_start), dxf.flat(line_end)))
        for corners in picture.arrows:
            flat_corners = [dxf.flat(corner) for corner in corners]
            inner.add("SOLID", layer, dxf.four_corners("AcDbTrace", flat_corners))
        label = dxf.mtext(dxf.flat(picture.middle), arrow, 0.0, f"{picture.measurement:.0f}", 5)
        inner.add("MTEXT", layer, [*label, (50, picture.angle)])
        inner.add("POINT", "Defpoints", dxf.node(dxf.flat(start)))
        self.add("DIMENSION", layer, dxf.rotated_dimension(
            block.name, dxf.flat(start), dxf.flat(end), dxf.flat(picture.feet[1]),
            dxf.flat(picture.middle), picture.measurement, picture.angle, "Standard",
        ))

    def _append(self, kind, owner, layer, groups, look):
        handle = self.drawing.new_handle()
        head = dxf.common(kind, handle, owner, layer, look)
        self.block.entities.append(self.drawing.form.groups(head + groups))
        return handle


def floor_plan():
    """A flat in millimetres with its water pipes, and a sheet that shows it."""
    drawing = Drawing(TextForm("cp1252"), "AC1015")
    drawing.extents = ((-1350.0, -1350.0, 0.0), (12750.0, 8000.0, 0.0))
    drawing.linetypes = [DASHED, CENTER]
    drawing.layers += [
        Layer("WALLS", 7, lineweight=50),
        Layer("DOORS", 3, lineweight=25),
        Layer("DIM", 2, lineweight=13),
        Layer("TEXT", 4),
        Layer("PIPES-HOT", 1, lineweight=35),
        Layer("PIPES-COLD", 5, linetype="DASHED", lineweight=35),
        Layer("FURNITURE-OLD", 8, frozen=True),
        Layer("Defpoints", 7),
    ]
    add_door_block(drawing)
    add_valve_block(drawing)
    model = Pen(drawing, drawing.model)
    add_walls(model)
    add_doors(model)
    add_pipes(model)
    add_labels(model)
    add_old_furniture(model)
    model.add_dimension("DIM", (0.0, 0.0), (12000.0, 0.0), -1200.0)
    model.add_dimension("DIM", (0.0, 0.0), (7000.0, 0.0), -600.0)
    model.add_dimension("DIM", (0.0, 0.0), (0.0, 8000.0), 1200.0)
    add_sheet(Pen(drawing, drawing.paper), drawing.sheet)
    return drawing


def add_door_block(drawing):
    pen = Pen(drawing, drawing.add_block("DOOR"))
    pen.add("LINE", "0", dxf.line((0.0, 0.0, 0.0), (0.0, 900.0, 0.0)))
    pen.add("ARC", "0", dxf.arc((0.0, 0.0, 0.0), 900.0, 0.0, 90.0))


def add_valve_block(drawing):
    has_attributes = 2
    pen = Pen(drawing, drawing.add_block("VALVE-DN50", flags=has_attributes))
    bow_tie = [(-60.0, -40.0), (60.0, 40.0), (60.0, -40.0), (-60.0, 40.0)]
    pen.add("LWPOLYLINE", "0", dxf.polyline(bow_tie, closed=True))
    pen.add("CIRCLE", "0", dxf.circle((0.0, 0.0, 0.0), 25.0))
    definition = dxf.attribute_definition((80.0, 60.0, 0.0), 80.0, "TAG", "Number of the valve", "")
    pen.add("ATTDEF", "0", definition)


def add_walls(pen):
    """Walls of 365 and 115, with a bay whose two faces have one centre."""
    inside, outside = 1875.0, 1875.0 + 365.0
    half_inside = 1500.0
    center = 11635.0 - math.sqrt(inside**2 - half_inside**2)
    half_outside = math.sqrt(outside**2 - (12000.0 - center) ** 2)
    outer = [
        (0.0, 0.0), (12000.0, 0.0), (12000.0, 4000.0 - half_outside, bulge(outside, half_outside)),
        (12000.0, 4000.0 + half_outside), (12000.0, 8000.0), (0.0, 8000.0),
    ]
    inner = [
        (365.0, 365.0), (11635.0, 365.0),
        (11635.0, 4000.0 - half_inside, bulge(inside, half_inside)),
        (11635.0, 4000.0 + half_inside), (11635.0, 7635.0), (365.0, 7635.0),
    ]
    pen.add("LWPOLYLINE", "WALLS", dxf.polyline(outer, closed=True, width=20.0))
    pen.add("LWPOLYLINE", "WALLS", dxf.polyline(inner, closed=True))
    for start, end in (
        ((7000.0, 365.0), (7000.0, 3000.0)),
        ((7115.0, 365.0), (7115.0, 3000.0)),
        ((7000.0, 3900.0), (7000.0, 7635.0)),
        ((7115.0, 3900.0), (7115.0, 7635.0)),
        ((365.0, 4500.0), (3000.0, 4500.0)),
        ((365.0, 4615.0), (3000.0, 4615.0)),
        ((3900.0, 4500.0), (7000.0, 4500.0)),
        ((3900.0, 4615.0), (7000.0, 4615.0)),
    ):
        pen.add("LINE", "WALLS", dxf.line(dxf.flat(start), dxf.flat(end)))
    pen.add("ARC", "WALLS", dxf.arc((7000.0, 365.0, 0.0), 1500.0, 90.0, 180.0), [(6, "CENTER")])


def bulge(radius, half_chord):
    """The bulge of an arc to the left that is less than a half circle."""
    return round(math.tan(math.asin(half_chord / radius) / 2.0), 12)


def add_doors(pen):
    for position, rotation in (
        ((7000.0, 3000.0, 0.0), 90.0),
        ((3000.0, 4500.0, 0.0), 0.0),
        ((1200.0, 365.0, 0.0), 0.0),
    ):
        pen.add("INSERT", "DOORS", dxf.insert("DOOR", position, rotation=rotation))


def add_pipes(pen):
    """Pipes that rise through the floor are circles of their radius."""
    risers = {
        "PIPES-HOT": [(7.5, 3), (11.0, 4), (14.0, 2), (25.0, 1)],
        "PIPES-COLD": [(7.5, 4), (11.0, 3), (17.5, 2), (27.0, 1)],
    }
    for row, (layer, pipes) in enumerate(risers.items()):
        y = 7300.0 - 300.0 * row
        radii = [radius for radius, count in pipes for _ in range(count)]
        centers = [(7500.0 + 250.0 * column, y, 0.0) for column in range(len(radii))]
        for center, radius in zip(centers, radii):
            pen.add("CIRCLE", layer, dxf.circle(center, radius))
        corner = 10300.0 - 300.0 * row
        quarter_turn = -math.tan(math.radians(22.5))
        main = [(7500.0, y), (corner - 200.0, y, round(quarter_turn, 12)), (corner, y - 200.0)]
        pen.add("LWPOLYLINE", layer, dxf.polyline([*main, (corner, 5400.0)]))
        for number, x in enumerate((7650.0, 9150.0), start=1):
            tag = f"{layer[6]}V-{number:02}"
            label = ((x + 80.0, y + 60.0, 0.0), 80.0, "TAG", tag)
            pen.add_insert(layer, "VALVE-DN50", (x, y, 0.0), [label])


def add_labels(pen):
    for position, contents in (
        ((1500.0, 6000.0, 0.0), "Living room"),
        ((1500.0, 2500.0, 0.0), "Bedroom"),
        ((8300.0, 5000.0, 0.0), "Kitchen"),
        ((8300.0, 2000.0, 0.0), "Bath"),
        ((4200.0, 5000.0, 0.0), "TODO: check the width of this door"),
        ((8300.0, 1600.0, 0.0), "Floor tiles 30x30, TODO colour"),
    ):
        height = 100.0 if "TODO" in contents else 250.0
        pen.add("TEXT", "TEXT", dxf.text(position, height, contents))
    note = "All pipes are copper.\\PClear height 2.50 m."
    pen.add("MTEXT", "TEXT", dxf.mtext((8300.0, 4500.0, 0.0), 150.0, 3000.0, note))


def add_old_furniture(pen):
    layer = "FURNITURE-OLD"
    table = [(4800.0, 5600.0), (6400.0, 5600.0), (6400.0, 6400.0), (4800.0, 6400.0)]
    pen.add("LWPOLYLINE", layer, dxf.polyline(table, closed=True))
    for x in (5000.0, 5600.0, 6200.0):
        pen.add("CIRCLE", layer, dxf.circle((x, 6700.0, 0.0), 200.0))
    pen.add("TEXT", layer, dxf.text((5000.0, 5900.0, 0.0), 120.0, "Dining table"))


def add_sheet(pen, sheet):
    middle = (sheet.width / 2.0, sheet.height / 2.0)
    whole = (sheet.width, sheet.height)
    pen.add("VIEWPORT", "0", dxf.viewport(middle, whole, 1, middle, sheet.height))
    view = dxf.viewport((200.0, 160.0), (360.0, 240.0), 2, (5500.0, 3700.0), 12000.0, status=2)
    pen.add("VIEWPORT", "0", view)
    frame = [(10.0, 10.0), (410.0, 10.0), (410.0, 287.0), (10.0, 287.0)]
    pen.add("LWPOLYLINE", "0", dxf.polyline(frame, closed=True))
    pen.add("TEXT", "TEXT", dxf.text((15.0, 15.0, 0.0), 5.0, "Flat 3, second floor, scale 1:50"))


def all_basic_kinds():
    """One entity of each basic kind, with all that entities have in common set on some."""
    drawing = Drawing(TextForm("utf-8"), "AC1024")
    drawing.extents = ((0.0, 0.0, 0.0), (200.0, 100.0, 0.0))
    drawing.linetypes = [DASHED, CENTER]
    drawing.applications += ["PE_URL"]
    drawing.layers += [
        Layer("CURVES", 3, "DASHED", 25),
        Layer("FACES", 30),
        Layer("Beschriftung Größe", 6),
    ]
    mark = Pen(drawing, drawing.add_block("MARK", flags=2))
    mark.add("LINE", "0", dxf.line((-2.0, 0.0, 0.0), (2.0, 0.0, 0.0)))
    mark.add("LINE", "0", dxf.line((0.0, -2.0, 0.0), (0.0, 2.0, 0.0)), [(62, 0), (6, "ByBlock")])
    version = ((280, 0), (280, 1))
    definition = dxf.attribute_definition(
        (3.0, 0.0, 0.0), 2.5, "NUMBER", "Number of the mark", "0", version
    )
    mark.add("ATTDEF", "0", definition)
    model = Pen(drawing, drawing.model)
    add_basic_curves(model)
    add_basic_faces(model)
    add_basic_texts(model)
    label = ((123.0, 10.0, 0.0), 2.5, "NUMBER", "17")
    model.add_insert("0", "MARK", (120.0, 10.0, 0.0), [label], version, scale=1.5, rotation=30.0)
    add_sheet(Pen(drawing, drawing.paper), drawing.sheet)
    return drawing


def add_basic_curves(pen):
    layer = "CURVES"
    pen.add("LINE", layer, dxf.line((0.0, 0.0, 0.0), (30.0, 40.0, 0.0)), [(370, 50)])
    circle = dxf.circle((50.0, 20.0, 0.0), 12.5) + dxf.hyperlink("https://example.org/", "Example")
    pen.add("CIRCLE", layer, circle, [(62, 1)])
    arc = dxf.arc((80.0, 20.0, 0.0), 10.0, 30.0, 210.0)
    pen.add("ARC", layer, arc, [(6, "CENTER"), (48, 0.5)])
    pen.add("POINT", layer, dxf.node((100.0, 20.0, 5.0)))
    slot = [(110.0, 30.0), (140.0, 30.0, 1.0), (140.0, 40.0), (110.0, 40.0, 1.0)]
    pen.add("LWPOLYLINE", layer, dxf.polyline(slot, closed=True), [(420, 0x3366CC)])
    ellipse = dxf.ellipse((160.0, 20.0, 0.0), (15.0, 0.0, 0.0), 0.4)
    pen.add("ELLIPSE", layer, ellipse, [(440, dxf.transparency(50))])
    wave = [(0.0, 60.0), (10.0, 75.0), (20.0, 45.0), (30.0, 75.0), (40.0, 60.0)]
    pen.add("SPLINE", layer, dxf.spline([dxf.flat(place) for place in wave]), [(370, 100)])


def add_basic_faces(pen):
    layer = "FACES"
    disc = [(60.0, 60.0, 1.0), (80.0, 60.0, 1.0)]
    look = [(420, 0xFFB000), (440, dxf.transparency(30))]
    pen.add("HATCH", layer, dxf.solid_hatch(disc), look)
    pen.add("HATCH", layer, dxf.hatched_disc((95.0, 60.0), 8.0), [(62, 5)])
    face = [(110.0, 50.0, 0.0), (130.0, 50.0, 0.0), (130.0, 70.0, 10.0), (110.0, 70.0, 10.0)]
    pen.add("3DFACE", layer, dxf.four_corners("AcDbFace", face))
    solid = [(140.0, 50.0, 0.0), (160.0, 50.0, 0.0), (140.0, 70.0, 0.0), (160.0, 70.0, 0.0)]
    pen.add("SOLID", layer, dxf.four_corners("AcDbTrace", solid))


def add_basic_texts(pen):
    layer = "Beschriftung Größe"
    pen.add("TEXT", layer, dxf.text((0.0, 85.0, 0.0), 3.5, "Rohr Ø 50, heiß", 15.0))
    note = "First line\\PSecond line: 2 × 45°"
    pen.add("MTEXT", layer, dxf.mtext((60.0, 90.0, 0.0), 2.5, 50.0, note), [(370, 13)])


def minimal_r12():
    """The least that a drawing can be: entities alone, without handles."""
    corner = [(0, "VERTEX"), (8, "OUTLINE")]
    vertices = [
        [*corner, *dxf.point(10, (0.0, 0.0, 0.0))],
        [*corner, *dxf.point(10, (100.0, 0.0, 0.0)), (42, 1.0)],
        [*corner, *dxf.point(10, (100.0, 50.0, 0.0))],
        [*corner, *dxf.point(10, (0.0, 50.0, 0.0))],
    ]
    outline = [(0, "POLYLINE"), (8, "OUTLINE"), (66, 1), *dxf.point(10, (0.0, 0.0, 0.0)), (70, 1)]
    records = [
        [(0, "SECTION"), (2, "ENTITIES")],
        [(0, "LINE"), (8, "0"), *dxf.point(10, (0.0, 0.0)), *dxf.point(11, (100.0, 50.0))],
        [(0, "CIRCLE"), (8, "HOLES"), (62, 1), *dxf.point(10, (20.0, 25.0)), (40, 5.0)],
        [(0, "CIRCLE"), (8, "HOLES"), *dxf.point(10, (80.0, 25.0)), (40, 10.0)],
        [(0, "ARC"), (8, "0"), *dxf.point(10, (50.0, 25.0)), (40, 15.0), (50, 0.0), (51, 180.0)],
        [(0, "POINT"), (8, "0"), *dxf.point(10, (50.0, 25.0))],
        [(0, "TEXT"), (8, "LABELS"), *dxf.point(10, (5.0, 55.0)), (40, 4.0), (1, "Plate 100x50")],
        outline, *vertices, [(0, "SEQEND"), (8, "OUTLINE")],
        [(0, "ENDSEC")],
        [(0, "EOF")],
    ]
    form = TextForm("cp1252")
    return b"".join(form.groups(record) for record in records)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    here = Path(__file__).resolve().parent
    parser.add_argument("--output", type=Path, default=here, help="the folder to write to")
    folder = parser.parse_args().output
    folder.mkdir(parents=True, exist_ok=True)
    drawings = {"floor_plan": floor_plan(), "all_basic_kinds_r2010": all_basic_kinds()}
    for name, drawing in drawings.items():
        with open(folder / f"{name}.dxf", "wb") as file:
            drawing.write(file, HANDLE_SEED)
    (folder / "minimal_r12.dxf").write_bytes(minimal_r12())


if __name__ == "__main__":
    main()
