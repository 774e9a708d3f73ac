"""All of a drawing from R2000 on but its entities: header, tables, blocks, layouts and objects."""

import itertools
from dataclasses import dataclass, field

from dxf.entities import point


@dataclass
class Layer:
    name: str
    color: int = 7
    linetype: str = "Continuous"
    lineweight: int = -3  # the default one
    frozen: bool = False


@dataclass
class Linetype:
    name: str
    description: str = ""
    dashes: tuple = ()


@dataclass
class Block:
    """A block. `entities` is any iterable of encoded entities; it is walked once, when written."""

    name: str
    handle: int
    begin: int
    end: int
    entities: object = ()
    flags: int = 0
    layout: int = 0


@dataclass
class Sheet:
    """The paper of a layout in millimetres."""

    name: str = "Sheet"
    width: float = 420.0
    height: float = 297.0


@dataclass
class Drawing:
    """Gives out handles and writes the whole. The model and the sheet are its first two blocks."""

    form: object
    version: str = "AC1015"
    millimetres: int = 4
    layers: list = field(default_factory=lambda: [Layer("0")])
    linetypes: list = field(default_factory=list)
    applications: list = field(default_factory=lambda: ["ACAD"])
    sheet: Sheet = field(default_factory=Sheet)
    extents: tuple = ((0.0, 0.0, 0.0), (1000.0, 1000.0, 0.0))

    def __post_init__(self):
        self._handles = itertools.count(0x10)
        names = "root groups layouts styles placeholder multilines multiline model paper"
        self._objects = {name: self.new_handle() for name in names.split()}
        self.blocks = []
        self.model = self.add_block("*Model_Space", layout=self._objects["model"])
        self.paper = self.add_block("*Paper_Space", layout=self._objects["paper"])

    def new_handle(self):
        return next(self._handles)

    def add_block(self, name, flags=0, layout=0):
        handles = [self.new_handle() for _ in range(3)]
        block = Block(name, *handles, flags=flags, layout=layout)
        self.blocks.append(block)
        return block

    def write(self, file, handle_seed):
        """Writes the drawing to a binary file. No handle may reach the seed."""
        file.write(self.form.opening)
        for name, content in (
            ("HEADER", self._header(handle_seed)),
            ("CLASSES", []),
            ("TABLES", self._tables()),
            ("BLOCKS", self._blocks()),
            ("ENTITIES", self._entities()),
            ("OBJECTS", self._all_objects()),
        ):
            file.write(self._groups([(0, "SECTION"), (2, name)]))
            file.writelines(content)
            file.write(self._groups([(0, "ENDSEC")]))
        file.write(self._groups([(0, "EOF")]))
        if self.new_handle() >= handle_seed:
            raise ValueError("more handles were given out than the seed tells")

    def _groups(self, groups):
        return self.form.groups(groups)

    def _header(self, handle_seed):
        variables = {
            "ACADVER": [(1, self.version)],
            "DWGCODEPAGE": [(3, "ANSI_1252")],
            "INSBASE": point(10, (0.0, 0.0, 0.0)),
            "EXTMIN": point(10, self.extents[0]),
            "EXTMAX": point(10, self.extents[1]),
            "LIMMIN": point(10, self.extents[0][:2]),
            "LIMMAX": point(10, self.extents[1][:2]),
            "LTSCALE": [(40, 1.0)],
            "TEXTSTYLE": [(7, "Standard")],
            "CLAYER": [(8, "0")],
            "CELTYPE": [(6, "ByLayer")],
            "CECOLOR": [(62, 256)],
            "DIMSTYLE": [(2, "Standard")],
            "LUNITS": [(70, 2)],
            "LUPREC": [(70, 4)],
            "AUNITS": [(70, 0)],
            "AUPREC": [(70, 2)],
            "HANDSEED": [(5, handle_seed)],
            "TILEMODE": [(70, 1)],
            "MEASUREMENT": [(70, 1)],
            "INSUNITS": [(70, self.millimetres)],
        }
        return [self._groups([(9, f"${name}"), *groups]) for name, groups in variables.items()]

    def _tables(self):
        yield self._table("VPORT", "AcDbViewportTableRecord", [self._active_view()])
        linetypes = [Linetype("ByBlock"), Linetype("ByLayer"), Linetype("Continuous", "Solid line")]
        rows = [self._linetype_row(row) for row in linetypes + self.linetypes]
        yield self._table("LTYPE", "AcDbLinetypeTableRecord", rows)
        layers = [self._layer_row(layer) for layer in self.layers]
        yield self._table("LAYER", "AcDbLayerTableRecord", layers)
        yield self._table("STYLE", "AcDbTextStyleTableRecord", [self._style_row()])
        yield self._table("VIEW", "AcDbViewTableRecord", [])
        yield self._table("UCS", "AcDbUCSTableRecord", [])
        applications = [[(2, name), (70, 0)] for name in self.applications]
        yield self._table("APPID", "AcDbRegAppTableRecord", applications)
        yield self._table("DIMSTYLE", "AcDbDimStyleTableRecord", [self._dimension_style_row()])
        records = [[(2, block.name), (340, block.layout)] for block in self.blocks]
        handles = (block.handle for block in self.blocks)
        yield self._table("BLOCK_RECORD", "AcDbBlockTableRecord", records, handles)

    def _table(self, name, subclass, rows, handles=None):
        """A table of rows with new handles, or with the given ones."""
        table = self.new_handle()
        groups = [(0, "TABLE"), (2, name), (5, table), (330, 0), (100, "AcDbSymbolTable")]
        groups.append((70, len(rows)))
        if name == "DIMSTYLE":
            groups += [(100, "AcDbDimStyleTable"), (71, 0)]
        handle_code = 105 if name == "DIMSTYLE" else 5
        for row in rows:
            handle = self.new_handle() if handles is None else next(handles)
            groups += [(0, name), (handle_code, handle), (330, table)]
            groups += [(100, "AcDbSymbolTableRecord"), (100, subclass), *row]
        return self._groups([*groups, (0, "ENDTAB")])

    def _active_view(self):
        (left, bottom, _), (right, top, _) = self.extents
        center = ((left + right) / 2.0, (bottom + top) / 2.0)
        return [
            (2, "*Active"), (70, 0), *point(10, (0.0, 0.0)), *point(11, (1.0, 1.0)),
            *point(12, center), *point(13, (0.0, 0.0)), *point(14, (10.0, 10.0)),
            *point(15, (10.0, 10.0)), *point(16, (0.0, 0.0, 1.0)), *point(17, (0.0, 0.0, 0.0)),
            (40, 1.1 * (top - bottom)), (41, 1.6), (42, 50.0), (43, 0.0), (44, 0.0),
        ]

    @staticmethod
    def _linetype_row(linetype):
        dashes = [group for dash in linetype.dashes for group in ((49, dash), (74, 0))]
        length = float(sum(abs(dash) for dash in linetype.dashes))
        head = [(2, linetype.name), (70, 0), (3, linetype.description), (72, 65)]
        return [*head, (73, len(linetype.dashes)), (40, length), *dashes]

    def _layer_row(self, layer):
        plots = [] if layer.name != "Defpoints" else [(290, 0)]
        return [
            (2, layer.name), (70, int(layer.frozen)), (62, layer.color), (6, layer.linetype),
            *plots, (370, layer.lineweight), (390, self._objects["placeholder"]),
        ]

    @staticmethod
    def _style_row():
        return [
            (2, "Standard"), (70, 0), (40, 0.0), (41, 1.0), (50, 0.0), (71, 0), (42, 2.5),
            (3, "txt"), (4, ""),
        ]

    @staticmethod
    def _dimension_style_row():
        sizes = [(41, 2.5), (42, 0.625), (44, 1.25), (140, 2.5), (147, 0.6)]
        return [(2, "Standard"), (70, 0), *sizes]

    def _blocks(self):
        for block in self.blocks:
            head = [(0, "BLOCK"), (5, block.begin), (330, block.handle), (100, "AcDbEntity")]
            base = [(70, block.flags), *point(10, (0.0, 0.0, 0.0)), (3, block.name), (1, "")]
            on_paper = [(67, 1)] if block is self.paper else []
            layer = [*on_paper, (8, "0")]
            name = [(100, "AcDbBlockBegin"), (2, block.name)]
            yield self._groups([*head, *layer, *name, *base])
            if not block.layout:
                yield from block.entities
            tail = [(0, "ENDBLK"), (5, block.end), (330, block.handle), (100, "AcDbEntity")]
            yield self._groups([*tail, *layer, (100, "AcDbBlockEnd")])

    def _entities(self):
        return itertools.chain(self.model.entities, self.paper.entities)

    def _all_objects(self):
        own = self._objects
        root, layouts, styles = own["root"], own["layouts"], own["styles"]
        entries = [
            ("ACAD_GROUP", own["groups"]), ("ACAD_LAYOUT", layouts),
            ("ACAD_MLINESTYLE", own["multilines"]), ("ACAD_PLOTSTYLENAME", styles),
        ]
        default_style = [(100, "AcDbDictionaryWithDefault"), (340, own["placeholder"])]
        yield from (
            self._dictionary(root, 0, entries),
            self._dictionary(own["groups"], root, []),
            self._dictionary(
                layouts, root, [("Model", own["model"]), (self.sheet.name, own["paper"])]
            ),
            self._dictionary(own["multilines"], root, [("Standard", own["multiline"])]),
            self._multiline_style(),
            self._dictionary(
                styles, root, [("Normal", own["placeholder"])],
                "ACDBDICTIONARYWDFLT", default_style,
            ),
            self._groups(
                [(0, "ACDBPLACEHOLDER"), (5, own["placeholder"]), (330, own["styles"])]
            ),
            self._layout("Model", 0, self.model, self.extents),
            self._layout(
                self.sheet.name, 1, self.paper,
                ((0.0, 0.0, 0.0), (self.sheet.width, self.sheet.height, 0.0)),
            ),
        )

    def _dictionary(self, handle, owner, entries, kind="DICTIONARY", more=()):
        head = [(0, kind), (5, handle), (330, owner), (100, "AcDbDictionary"), (281, 1)]
        pairs = [group for name, entry in entries for group in ((3, name), (350, entry))]
        return self._groups([*head, *pairs, *more])

    def _multiline_style(self):
        handle, owner = self._objects["multiline"], self._objects["multilines"]
        head = [(0, "MLINESTYLE"), (5, handle), (330, owner), (100, "AcDbMlineStyle")]
        angles = [(2, "Standard"), (70, 0), (3, ""), (62, 256), (51, 90.0), (52, 90.0), (71, 2)]
        elements = [(49, 0.5), (62, 256), (6, "ByLayer"), (49, -0.5), (62, 256), (6, "ByLayer")]
        return self._groups([*head, *angles, *elements])

    def _layout(self, name, tab, block, extents):
        model_type = 1024 if tab == 0 else 0
        plot = [
            (100, "AcDbPlotSettings"), (1, ""), (2, "none_device"), (4, ""), (6, ""),
            *((code, 0.0) for code in (40, 41, 42, 43)), (44, self.sheet.width),
            (45, self.sheet.height), *((code, 0.0) for code in (46, 47, 48, 49, 140, 141)),
            (142, 1.0), (143, 1.0), (70, model_type + 688), (72, 1), (73, 0), (74, 5), (7, ""),
            (75, 16), (147, 1.0), (148, 0.0), (149, 0.0),
        ]
        return self._groups([
            (0, "LAYOUT"), (5, block.layout), (330, self._objects["layouts"]), *plot,
            (100, "AcDbLayout"), (1, name), (70, 1), (71, tab), *point(10, extents[0][:2]),
            *point(11, extents[1][:2]), *point(12, (0.0, 0.0, 0.0)), *point(14, extents[0]),
            *point(15, extents[1]), (146, 0.0), *point(13, (0.0, 0.0, 0.0)),
            *point(16, (1.0, 0.0, 0.0)), *point(17, (0.0, 1.0, 0.0)), (76, 0),
            (330, block.handle),
        ])
