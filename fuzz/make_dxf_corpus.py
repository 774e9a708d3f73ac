#!/usr/bin/python3
"""Writes the seeds of the DXF fuzz target: one small drawing for each kind of entity, tables and objects,
each in the text form and in the binary form. The seeds are kept in the tree; run this after changing it."""

import struct
from pathlib import Path

import ezdxf
from ezdxf.lldxf.tagwriter import TagCollector
from ezdxf.math import Vec2

FOLDER = Path(__file__).parent / "corpus" / "dxf"
SENTINEL = bytes.fromhex("4175746F4341442042696E617279204458460D0A1A00")
STORED = [(10, 59, "<d"), (60, 79, "<h"), (90, 99, "<i"), (110, 149, "<d"), (160, 169, "<q"), (170, 179, "<h"),
          (210, 239, "<d"), (270, 289, "<h"), (290, 299, "<B"), (370, 389, "<h"), (400, 409, "<h"),
          (420, 429, "<i"), (440, 459, "<i"), (460, 469, "<d"), (1010, 1059, "<d"), (1060, 1070, "<h"),
          (1071, 1071, "<i")]


def as_text(groups):
    return "".join(f"{code}\n{value}\n" for code, value in groups).encode()


def as_binary(groups):
    data = bytearray(SENTINEL)
    for code, value in groups:
        data += struct.pack("<h", code)
        form = next((form for first, last, form in STORED if first <= code <= last), None)
        if form:
            data += struct.pack(form, float(value) if form == "<d" else int(float(value)))
        elif 310 <= code <= 319 or code == 1004:
            chunk = bytes.fromhex(str(value))
            data += bytes([len(chunk)]) + chunk
        else:
            data += str(value).encode() + b"\0"
    return bytes(data)


def section(name, groups):
    return [(0, "SECTION"), (2, name), *groups, (0, "ENDSEC")]


def header(version="AC1024"):
    return section("HEADER", [(9, "$ACADVER"), (1, version), (9, "$DWGCODEPAGE"), (3, "ANSI_1252"),
                              (9, "$LUNITS"), (70, 2), (9, "$EXTMIN"), (10, 0.0), (20, 0.0), (30, 0.0)])


def tags_of(*entities):
    tags = []
    for entity in entities:
        for tag in TagCollector.dxftags(entity, dxfversion="AC1024"):
            value = tag.value
            if isinstance(value, bytes):
                value = value.hex().upper()
            tags.append((tag.code, value))
    return tags


def parts_of(entity):
    names = {"POLYLINE": "vertices", "INSERT": "attribs"}
    return getattr(entity, names[entity.dxftype()]) if entity.dxftype() in names else []


def made_by_library():
    """Kinds that the library can make, each with its parts."""
    document = ezdxf.new("R2010", setup=True)
    space = document.modelspace()
    block = document.blocks.new("DOOR")
    block.add_attdef("TAG", (0, 0))
    block.add_line((0, 0), (1, 0))
    reference = space.add_blockref("DOOR", (1, 2))
    reference.add_attrib("TAG", "12", (1, 2))
    hatch = space.add_hatch(color=2)
    hatch.paths.add_polyline_path([(0, 0), (10, 0), (10, 10)], is_closed=True)
    edges = hatch.paths.add_edge_path()
    edges.add_line((0, 0), (1, 0))
    edges.add_arc((0, 0), 1, 0, 90)
    edges.add_ellipse((0, 0), (1, 0), 0.5, 0, 360)
    pattern = space.add_hatch()
    pattern.set_pattern_fill("ANSI31", scale=2)
    pattern.paths.add_polyline_path([(0, 0, 1), (10, 0, 0), (10, 10, 0)])
    gradient = space.add_hatch()
    gradient.set_gradient((1, 2, 3), (4, 5, 6))
    image = space.add_image(document.add_image_def("a.png", (640, 480)), (0, 0), (4, 3))
    with space.add_mesh().edit_data() as mesh:
        mesh.vertices, mesh.faces = [(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)]
    made = {
        "line": space.add_line((0, 0), (1, 1)),
        "circle": space.add_circle((0, 0), 2, dxfattribs={"thickness": 1, "extrusion": (0, 0, -1)}),
        "arc": space.add_arc((0, 0), 2, 10, 90),
        "ellipse": space.add_ellipse((0, 0), (2, 0), 0.5),
        "spline": space.add_spline([(0, 0), (1, 1), (2, 0), (3, 1)]),
        "lwpolyline": space.add_lwpolyline([(0, 0, 0.1, 0.1, 1), (1, 0)], close=True),
        "polyline": space.add_polyline2d([(0, 0), (1, 1)]),
        "polyline3d": space.add_polyline3d([(0, 0, 0), (1, 1, 1)]),
        "polymesh": space.add_polymesh((2, 2)),
        "polyface": space.add_polyface(),
        "text": space.add_text("a^Jb\\U+00E4%%c"),
        "mtext": space.add_mtext("a\\Pb{\\H2;c}" * 30),
        "attdef": space.add_attdef("TAG", (0, 0)),
        "insert": reference,
        "point": space.add_point((1, 2, 3)),
        "solid": space.add_solid([(0, 0), (1, 0), (0, 1), (1, 1)]),
        "trace": space.add_trace([(0, 0), (1, 0), (0, 1), (1, 1)]),
        "face": space.add_3dface([(0, 0), (1, 0), (0, 1), (1, 1)]),
        "hatch": hatch,
        "hatch_pattern": pattern,
        "hatch_gradient": gradient,
        "ray": space.add_ray((0, 0), (1, 0)),
        "xline": space.add_xline((0, 0), (1, 0)),
        "shape": space.add_shape("BAT"),
        "image": image,
        "wipeout": space.add_wipeout([(0, 0), (1, 1)]),
        "mesh": space.query("MESH").first,
        "mline": space.add_mline([(0, 0), (1, 0), (1, 1)]),
        "dimension": space.add_linear_dim((0, 2), (0, 0), (1, 0), override={"dimtxt": 3}).dimension,
        "dimension_radius": space.add_radius_dim((0, 0), radius=2, angle=45).dimension,
        "dimension_angular": space.add_angular_dim_3p((0, 2), (0, 0), (1, 0), (0, 1)).dimension,
        "leader": space.add_leader([(0, 0), (1, 1)]),
        "region": space.add_region(),
        "solid3d": space.add_3dsolid(),
        "light": space.new_entity("LIGHT", {}),
        "helix": space.add_helix(1, 1, 3),
        "viewport": document.layout("Layout1").add_viewport((1, 1), (2, 2), (0, 0), 5),
    }
    seeds = {name: tags_of(entity, *parts_of(entity)) for name, entity in made.items()}
    builder = space.add_multileader_mtext("Standard")
    builder.set_content("text")
    builder.build(Vec2(0, 0))
    seeds["multileader"] = tags_of(space.query("MULTILEADER").first)
    return seeds


def made_by_hand():
    """Kinds that the library does not make."""
    return {
        "proxy": [(0, "ACAD_PROXY_ENTITY"), (5, "AA"), (100, "AcDbEntity"), (8, "0"), (100, "AcDbProxyEntity"),
                  (90, 498), (91, 500), (92, 3), (310, "010203"), (93, 8), (310, "FF"), (330, "AA"), (94, 0)],
        "section": [(0, "SECTIONOBJECT"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbSection"), (90, 1), (91, 0),
                    (1, "A"), (10, 0.0), (20, 0.0), (30, 1.0), (40, 1.0), (41, 1.0), (70, 70), (63, 1), (92, 1),
                    (11, 0.0), (21, 0.0), (31, 0.0), (93, 0), (360, "AB")],
        "table": [(0, "ACAD_TABLE"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbBlockReference"), (2, "*T1"),
                  (10, 0.0), (20, 0.0), (30, 0.0), (100, "AcDbTable"), (91, 2), (92, 2), (141, 1.0), (142, 1.0),
                  (171, 1), (1, "cell")],
        "tolerance": [(0, "TOLERANCE"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbFcf"), (3, "STANDARD"),
                      (10, 0.0), (20, 0.0), (30, 0.0), (1, "{\\Fgdt;j}%%v0.1%%vA")],
        "ole": [(0, "OLE2FRAME"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbOle2Frame"), (70, 2), (3, "Paint"),
                (10, 0.0), (20, 1.0), (30, 0.0), (11, 1.0), (21, 0.0), (31, 0.0), (71, 2), (72, 0), (90, 2),
                (310, "8055"), (1, "OLE")],
        "underlay": [(0, "PDFUNDERLAY"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbUnderlayReference"),
                     (340, "AB"), (10, 0.0), (20, 0.0), (30, 0.0), (41, 1.0), (280, 2), (11, 0.0), (21, 0.0)],
        "point_cloud": [(0, "ACDBPOINTCLOUDEX"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbPointCloudEx"),
                        (70, 1), (10, 0.0), (20, 0.0), (30, 0.0), (11, 1.0), (21, 1.0), (31, 1.0), (330, "AB")],
        "position_marker": [(0, "POSITIONMARKER"), (5, "AA"), (100, "AcDbEntity"),
                            (100, "AcDbGeoPositionMarker"), (90, 0), (10, 0.0), (20, 0.0), (30, 0.0), (40, 1.0),
                            (1, "here"), (101, "Embedded Object"), (10, 0.0)],
        "surface": [(0, "REVOLVEDSURFACE"), (5, "AA"), (100, "AcDbEntity"), (100, "AcDbModelerGeometry"), (70, 1),
                    (1, "@nn l m o"), (3, "n"), (100, "AcDbSurface"), (71, 6), (72, 6),
                    (100, "AcDbRevolvedSurface"), (10, 0.0), (20, 0.0), (30, 0.0), (40, 1.0)],
        "extended_data": [(0, "LINE"), (5, "AA"), (102, "{ACAD_REACTORS"), (330, "AB"), (102, "}"),
                          (102, "{ACAD_XDICTIONARY"), (360, "AB"), (102, "}"), (100, "AcDbEntity"), (8, "A"),
                          (420, 255), (440, 33554559), (1001, "ACAD"), (1000, "DSTYLE"), (1002, "{"), (1070, 3),
                          (1040, 2.0), (1002, "}"), (1004, "0102"), (1005, "AB"), (1010, 1.0), (1020, 2.0),
                          (1030, 3.0), (1071, 7)],
        "parts_without_parent": [(0, "VERTEX"), (5, "AA"), (0, "SEQEND"), (0, "ATTRIB"), (5, "AB"), (1, "x")],
    }


def tables():
    return section("TABLES", [
        (0, "TABLE"), (2, "LAYER"), (5, "2"), (70, 1), (0, "LAYER"), (5, "10"), (2, "A"), (70, 5), (62, -3),
        (6, "DASHED"), (390, "F"), (1001, "AcCmTransparency"), (1071, 33554559), (0, "ENDTAB"),
        (0, "TABLE"), (2, "LTYPE"), (0, "LTYPE"), (5, "11"), (2, "DASHED"), (3, "__"), (73, 2), (40, 1.0),
        (49, 0.5), (74, 2), (75, 0), (340, "12"), (46, 1.0), (50, 0.0), (9, "T"), (49, -0.5), (0, "ENDTAB"),
        (0, "TABLE"), (2, "STYLE"), (0, "STYLE"), (5, "12"), (2, "S"), (3, "txt"), (1001, "ACAD"), (1000, "Arial"),
        (1071, 0), (0, "ENDTAB"),
        (0, "TABLE"), (2, "DIMSTYLE"), (0, "DIMSTYLE"), (105, "13"), (2, "D"), (40, 2.0), (342, "14"),
        (340, "12"), (0, "ENDTAB"),
        (0, "TABLE"), (2, "BLOCK_RECORD"), (0, "BLOCK_RECORD"), (5, "14"), (2, "*Model_Space"), (340, "E"),
        (0, "BLOCK_RECORD"), (5, "15"), (2, "DOOR"), (0, "ENDTAB"),
        (0, "TABLE"), (2, "VPORT"), (0, "VPORT"), (5, "16"), (2, "*Active"), (40, 10.0), (0, "ENDTAB"),
        (0, "TABLE"), (2, "UCS"), (0, "UCS"), (5, "17"), (2, "U"), (10, 0.0), (20, 0.0), (30, 0.0), (0, "ENDTAB"),
        (0, "TABLE"), (2, "APPID"), (0, "APPID"), (5, "18"), (2, "ACAD"), (0, "ENDTAB")])


def blocks():
    return section("BLOCKS", [
        (0, "BLOCK"), (5, "20"), (330, "14"), (100, "AcDbEntity"), (100, "AcDbBlockBegin"), (2, "*Model_Space"),
        (10, 0.0), (20, 0.0), (30, 0.0), (0, "ENDBLK"), (5, "21"),
        (0, "BLOCK"), (5, "22"), (330, "15"), (100, "AcDbBlockBegin"), (2, "DOOR"), (70, 2), (0, "LINE"),
        (5, "23"), (8, "A"), (0, "INSERT"), (5, "24"), (2, "DOOR"), (0, "ENDBLK"), (5, "25")])


def objects():
    return section("OBJECTS", [
        (0, "DICTIONARY"), (5, "C"), (330, "0"), (100, "AcDbDictionary"), (3, "ACAD_LAYOUT"), (350, "D"),
        (3, "ACAD_GROUP"), (350, "D"), (3, "AcDbVariableDictionary"), (350, "D"),
        (0, "DICTIONARY"), (5, "D"), (330, "C"), (100, "AcDbDictionary"), (3, "Model"), (350, "E"),
        (3, "CANNOSCALE"), (350, "F1"), (0, "LAYOUT"), (5, "E"), (330, "D"), (100, "AcDbPlotSettings"), (1, ""),
        (40, 1.0), (100, "AcDbLayout"), (1, "Model"), (71, 0), (330, "14"), (331, "16"),
        (0, "GROUP"), (5, "F0"), (330, "D"), (100, "AcDbGroup"), (300, "g"), (340, "30"), (340, "31"),
        (0, "DICTIONARYVAR"), (5, "F1"), (330, "D"), (280, 0), (1, "1:1"),
        (0, "SCALE"), (5, "F2"), (330, "D"), (300, "1:1"), (140, 1.0), (141, 1.0), (290, 1),
        (0, "SORTENTSTABLE"), (5, "F3"), (330, "C"), (100, "AcDbSortentsTable"), (330, "14"), (331, "30"), (5, "30"),
        (0, "XRECORD"), (5, "F4"), (330, "C"), (280, 1), (102, "{X"), (40, 1.0), (102, "}"),
        (0, "IMAGEDEF"), (5, "AB"), (330, "C"), (1, "a.png"), (10, 640.0), (20, 480.0)])


def drawings():
    entities = {**made_by_library(), **made_by_hand()}
    for name, groups in entities.items():
        yield name, [*header(), *section("ENTITIES", groups), (0, "EOF")]
    lines = [(0, "LINE"), (5, "30"), (330, "14"), (8, "A"), (0, "LINE"), (5, "31"), (8, "A")]
    yield "objects", [*header("AC1015"), *tables(), *blocks(), *section("ENTITIES", lines), *objects(), (0, "EOF")]
    yield "r12", [*header("AC1009"), *tables(), *blocks(),
                  *section("ENTITIES", [(0, "POLYLINE"), (66, 1), (70, 8), (0, "VERTEX"), (10, 1.0), (20, 1.0),
                                        (0, "SEQEND"), (0, "INSERT"), (2, "DOOR"), (66, 1), (0, "ATTRIB"),
                                        (1, "x"), (2, "T"), (0, "SEQEND")]), (0, "EOF")]


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, groups in drawings():
        (FOLDER / name).write_bytes(as_text(groups))
        (FOLDER / f"{name}_binary").write_bytes(as_binary(groups))


if __name__ == "__main__":
    main()
