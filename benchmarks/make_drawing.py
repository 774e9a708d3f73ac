#!/usr/bin/env python3
"""Writes a large drawing of mixed entities: make_drawing.py --entities N --output FILE

The same arguments give the same bytes. A million entities take about 400 MB as text.
"""

import argparse
import bisect
import itertools
import math
import random
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "examples"))

from dxf import entities as dxf
from dxf.forms import ENCODED, FIELD, BinaryForm, TextForm
from dxf.frame import Drawing, Layer, Linetype

#: Kinds in the model and their shares. An insert has attributes every second time, and each
#: dimension brings its own block of ten more entities.
SHARES = {
    "line": 0.50,
    "polyline": 0.18,
    "text": 0.10,
    "arc": 0.05,
    "circle": 0.05,
    "insert": 0.05,
    "hatch": 0.03,
    "dimension": 0.02,
    "spline": 0.02,
}

LAYERS = 300
BLOCKS = 50
LOOKS = 4096
WIDTH = 10000.0
ENCODING = "cp1252"

COLORS = list(range(1, 256))
LINEWEIGHTS = [13, 18, 25, 35, 50, 70, 100]
WORDS = "Pump Valve Wall Beam Column Duct Cable Tray Door Window Slab Stair Room Axis".split()

SPACE_POINT = (FIELD, FIELD, 0.0)
FLAT_POINT = (FIELD, FIELD)


def compile_records(form):
    """For each kind of record, the function that makes it from a tuple of fields."""

    def entity(kind, *body):
        # Layer and look are chosen together and come encoded.
        head = [(0, kind), (5, FIELD), (330, FIELD), (100, "AcDbEntity"), (ENCODED, FIELD)]
        return form.record([*head, *itertools.chain(*body)])

    def corners(subclass):
        return dxf.four_corners(subclass, [SPACE_POINT] * 4)

    return {
        "line": entity("LINE", dxf.line(SPACE_POINT, SPACE_POINT)),
        "polyline": entity("LWPOLYLINE", dxf.polyline_head(FIELD, FIELD)),
        "vertex": form.record(dxf.point(10, FLAT_POINT)),
        "bulge": form.record([(42, FIELD)]),
        "text": entity("TEXT", dxf.text(SPACE_POINT, FIELD, FIELD, FIELD)),
        "arc": entity("ARC", dxf.arc(SPACE_POINT, FIELD, FIELD, FIELD)),
        "circle": entity("CIRCLE", dxf.circle(SPACE_POINT, FIELD)),
        "insert": entity("INSERT", dxf.insert(FIELD, SPACE_POINT, FIELD, FIELD)),
        "insert with attributes": entity(
            "INSERT", dxf.insert(FIELD, SPACE_POINT, FIELD, FIELD, has_attributes=True)
        ),
        "attribute": entity("ATTRIB", dxf.attribute(SPACE_POINT, FIELD, FIELD, FIELD)),
        "attribute definition": entity(
            "ATTDEF", dxf.attribute_definition(SPACE_POINT, FIELD, FIELD, FIELD, FIELD)
        ),
        "sequence end": entity("SEQEND"),
        "hatch": entity("HATCH", dxf.solid_hatch_head(FIELD, has_bulge=0)),
        "hatch tail": form.record(dxf.SOLID_HATCH_TAIL),
        "dimension": entity(
            "DIMENSION",
            dxf.rotated_dimension(
                FIELD, SPACE_POINT, SPACE_POINT, SPACE_POINT, SPACE_POINT, FIELD, FIELD, "Standard"
            ),
        ),
        "solid": entity("SOLID", corners("AcDbTrace")),
        "mtext": entity("MTEXT", dxf.mtext(SPACE_POINT, FIELD, 0.0, FIELD, 5), [(50, FIELD)]),
        "point": entity("POINT", dxf.node(SPACE_POINT)),
        "spline": entity("SPLINE", dxf.spline_head(FIELD, FIELD)),
        "control point": form.record(dxf.point(10, SPACE_POINT)),
        "knot": form.record([(40, FIELD)]),
    }


class Generator:
    """Makes the entities of a drawing one after the other."""

    def __init__(self, entities, seed, form):
        self._entities = entities
        self._random = random.Random(seed)
        self._form = form
        self._records = compile_records(form)
        self._drawing = Drawing(form)
        self._drawing.extents = ((0.0, 0.0, 0.0), (WIDTH, WIDTH, 0.0))
        self._handle = self._drawing.new_handle
        self._add_layers()
        self._looks = [self._look() for _ in range(LOOKS)]
        self._plain = self._form.groups([(8, "0")])
        self._unplotted = self._form.groups([(8, "Defpoints")])
        self._block_names = [f"PART-{number:02}" for number in range(BLOCKS)]
        for name in self._block_names:
            block = self._drawing.add_block(name, flags=2)
            block.entities = self._part(block.handle)
        self._encoded_names = [name.encode() for name in self._block_names]
        self._kinds = self._choose_kinds()
        dimensions = self._kinds.count("dimension")
        self._dimensions = iter([self._dimension_block() for _ in range(dimensions)])
        self._drawing.model.entities = self._model()

    def write(self, file):
        most_handles_of_one_entity = 16
        few = 0x10000
        self._drawing.write(file, few + most_handles_of_one_entity * self._entities)

    # --- chances

    def _pick(self, values):
        return values[int(self._random.random() * len(values))]

    def _length(self, least, most):
        """A length in thousandths, as drawn with snap."""
        return int((least + self._random.random() * (most - least)) * 1000.0) / 1000.0

    def _place(self):
        """A point on the snap grid."""
        chance = self._random.random
        return int(chance() * 1e7) / 1000.0, int(chance() * 1e7) / 1000.0

    def _near(self, x, y, reach):
        """A point off the grid, written with all its digits."""
        chance = self._random.random
        step = 2.0 * reach
        return x + (chance() - 0.5) * step, y + (chance() - 0.5) * step

    def _angle(self):
        return self._random.random() * 360.0

    def _choose_kinds(self):
        """The kind of each entity, drawn by share; small drawings have one of each first."""
        kinds = list(SHARES)
        limits = list(itertools.accumulate(SHARES.values()))
        chance = self._random.random
        last = len(kinds) - 1
        drawn = [min(bisect.bisect(limits, chance()), last) for _ in range(self._entities)]
        return (kinds + [kinds[index] for index in drawn])[: self._entities]

    # --- the frame

    def _add_layers(self):
        self._drawing.linetypes = [
            Linetype("DASHED", "Dashed __ __ __", (12.0, -6.0)),
            Linetype("CENTER", "Center ____ _ ____", (32.0, -6.0, 6.0, -6.0)),
        ]
        disciplines = ["ARCH", "ELEC", "HVAC", "PIPE", "STRU", "SITE"]
        self._drawing.layers.append(Layer("Defpoints"))
        for number in range(len(self._drawing.layers), LAYERS):
            layer = Layer(
                f"{disciplines[number % len(disciplines)]}-{number:03}",
                color=self._pick(COLORS),
                linetype="Continuous" if number % 5 else "DASHED",
                frozen=number % 50 == 0,
            )
            self._drawing.layers.append(layer)

    def _look(self):
        """A layer with, at times, own colour, linetype, scale or lineweight."""
        groups = [(8, self._pick(self._drawing.layers).name)]
        if self._random.random() < 0.1:
            groups.append((6, self._pick(["DASHED", "CENTER", "Continuous"])))
        if self._random.random() < 0.3:
            groups.append((62, self._pick(COLORS)))
        if self._random.random() < 0.05:
            groups.append((48, self._pick([0.5, 2.0])))
        if self._random.random() < 0.15:
            groups.append((370, self._pick(LINEWEIGHTS)))
        return self._form.groups(groups)

    def _head(self, owner, look):
        return (self._handle(), owner, look)

    def _part(self, owner):
        """The entities of one of the blocks that are inserted."""
        records = self._records
        for _ in range(8):
            x, y = self._near(0.0, 0.0, 50.0)
            x2, y2 = self._near(0.0, 0.0, 50.0)
            yield records["line"]((*self._head(owner, self._plain), x, y, x2, y2))
        radius = self._length(5.0, 50.0)
        yield records["circle"]((*self._head(owner, self._plain), 0.0, 0.0, radius))
        for row, tag in enumerate((b"NUMBER", b"MAKER")):
            head = self._head(owner, self._plain)
            fields = (60.0, -12.0 * row, 8.0, b"-", b"Value to show", tag)
            yield records["attribute definition"]((*head, *fields))

    def _dimension_block(self):
        """A dimension's picture and its block, which stands before the model in the file."""
        x, y = self._place()
        length = self._length(50.0, 500.0)
        end = (x + length, y) if self._random.random() < 0.5 else (x, y + length)
        picture = dxf.dimension_picture((x, y), end, self._length(10.0, 60.0))
        anonymous = 1
        block = self._drawing.add_block(f"*D{len(self._drawing.blocks)}", flags=anonymous)
        block.entities = self._dimension_parts(block.handle, picture)
        return block.name.encode(), (x, y), end, picture

    def _dimension_parts(self, owner, picture):
        records = self._records
        for start, end in picture.lines:
            yield records["line"]((*self._head(owner, self._plain), *start, *end))
        for corners in picture.arrows:
            yield records["solid"](
                (*self._head(owner, self._plain), *itertools.chain.from_iterable(corners))
            )
        label = b"%.1f" % picture.measurement
        head = self._head(owner, self._plain)
        yield records["mtext"]((*head, *picture.middle, 2.5, label, picture.angle))
        for start, end in picture.lines[:2]:
            yield records["point"]((*self._head(owner, self._unplotted), *start))
            yield records["point"]((*self._head(owner, self._unplotted), *end))

    # --- the model

    def _model(self):
        makers = {
            "line": self._line,
            "polyline": self._polyline,
            "text": self._text,
            "arc": self._arc,
            "circle": self._circle,
            "insert": self._insert,
            "hatch": self._hatch,
            "dimension": self._dimension,
            "spline": self._spline,
        }
        owner = self._drawing.model.handle
        for kind in self._kinds:
            yield makers[kind](self._head(owner, self._pick(self._looks)))

    def _line(self, head):
        x, y = self._near(*self._place(), 100.0)
        return self._records["line"]((*head, x, y, *self._near(x, y, 100.0)))

    def _arc(self, head):
        radius = self._length(1.0, 100.0)
        return self._records["arc"]((*head, *self._place(), radius, self._angle(), self._angle()))

    def _circle(self, head):
        return self._records["circle"]((*head, *self._place(), self._length(1.0, 100.0)))

    def _text(self, head):
        contents = f"{self._pick(WORDS)} {self._pick(WORDS)} {int(self._random.random() * 1e4)}"
        height = self._pick((1.8, 2.5, 3.5, 5.0, 7.0))
        fields = (*self._place(), height, contents.encode(), self._pick((0.0, 0.0, 90.0)))
        return self._records["text"]((*head, *fields))

    def _polyline(self, head):
        """A chain of 2 to 24 vertices, one segment in four bulged."""
        records = self._records
        count = 2 + int(self._random.random() * 23)
        parts = [records["polyline"]((*head, count, int(self._random.random() < 0.4)))]
        x, y = self._place()
        for _ in range(count):
            x, y = self._near(x, y, 50.0)
            parts.append(records["vertex"]((x, y)))
            if self._random.random() < 0.25:
                parts.append(records["bulge"]((self._length(-1.0, 1.0),)))
        return b"".join(parts)

    def _insert(self, head):
        records = self._records
        x, y = self._place()
        block = self._pick(self._encoded_names)
        scale = self._pick((1.0, 1.0, 2.0))
        fields = (*head, block, x, y, scale, scale, scale, self._pick((0.0, 90.0, 45.0)))
        if self._random.random() < 0.5:
            return records["insert"](fields)
        parent, _, look = head
        number = b"%s-%04d" % (block[-2:], int(self._random.random() * 1e4))
        maker = self._pick(WORDS).encode()
        attributes = [
            records["attribute"]((*self._head(parent, look), x + 60.0, y, 8.0, value, tag))
            for tag, value in ((b"NUMBER", number), (b"MAKER", maker))
        ]
        end = records["sequence end"](self._head(parent, look))
        return b"".join([records["insert with attributes"](fields), *attributes, end])

    def _hatch(self, head):
        """A filled polygon around a point."""
        records = self._records
        x, y = self._place()
        count = 4 + int(self._random.random() * 9)
        radius = self._length(5.0, 100.0)
        angles = [2.0 * math.pi * corner / count for corner in range(count)]
        corners = [
            (x + radius * math.cos(angle), y + radius * math.sin(angle)) for angle in angles
        ]
        loop = [records["vertex"](corner) for corner in corners]
        return b"".join([records["hatch"]((*head, count)), *loop, records["hatch tail"](())])

    def _dimension(self, head):
        name, start, end, picture = next(self._dimensions)
        fields = (name, *picture.feet[1], *picture.middle, picture.measurement)
        return self._records["dimension"]((*head, *fields, *start, *end, picture.angle))

    def _spline(self, head):
        records = self._records
        count = 4 + int(self._random.random() * 7)
        knots = dxf.clamped_knots(count)
        parts = [records["spline"]((*head, len(knots), count))]
        parts += [records["knot"]((knot,)) for knot in knots]
        x, y = self._place()
        for _ in range(count):
            x, y = self._near(x, y, 30.0)
            parts.append(records["control point"]((x, y)))
        return b"".join(parts)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--entities", type=int, required=True, help="entities in the model")
    parser.add_argument("--output", type=Path, required=True)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--format", choices=["ascii", "binary"], default="ascii")
    options = parser.parse_args()
    form = (BinaryForm if options.format == "binary" else TextForm)(ENCODING)
    unfinished = options.output.with_name(options.output.name + ".part")
    with open(unfinished, "wb", buffering=1 << 20) as file:
        Generator(options.entities, options.seed, form).write(file)
    unfinished.replace(options.output)


if __name__ == "__main__":
    main()
