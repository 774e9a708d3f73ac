"""The sample drawings in the tree, and the scripts that make drawings."""

import collections
import hashlib
import math
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import ezdxf
import ezdxf.math

ROOT = Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"
NAMES = ["floor_plan.dxf", "minimal_r12.dxf", "all_basic_kinds_r2010.dxf"]


def run(script, *arguments):
    subprocess.run([sys.executable, "-B", ROOT / script, *map(str, arguments)], check=True)


def read(name):
    return ezdxf.readfile(EXAMPLES / name)


def kinds(entities):
    return collections.Counter(entity.dxftype() for entity in entities)


class AuditedTestCase(unittest.TestCase):
    def assert_sound(self, drawing):
        auditor = drawing.audit()
        problems = [problem.message for problem in auditor.errors + auditor.fixes]
        self.assertEqual(problems, [])


class SampleDrawings(AuditedTestCase):
    def test_are_all_there_are(self):
        self.assertEqual(sorted(path.name for path in EXAMPLES.glob("*.dxf")), sorted(NAMES))

    def test_are_sound(self):
        for name in NAMES:
            with self.subTest(name):
                self.assert_sound(read(name))

    def test_are_small(self):
        for name in NAMES:
            with self.subTest(name):
                self.assertLess((EXAMPLES / name).stat().st_size, 60_000)

    def test_are_what_the_script_writes(self):
        with tempfile.TemporaryDirectory() as folder:
            run("examples/make_examples.py", "--output", folder)
            for name in NAMES:
                with self.subTest(name):
                    made = (Path(folder) / name).read_bytes()
                    self.assertEqual(made, (EXAMPLES / name).read_bytes())


class FloorPlan(unittest.TestCase):
    def setUp(self):
        self.drawing = read("floor_plan.dxf")
        self.model = self.drawing.modelspace()

    def test_is_of_release_2000(self):
        self.assertEqual(self.drawing.dxfversion, "AC1015")

    def test_freezes_one_layer_with_entities(self):
        frozen = [layer.dxf.name for layer in self.drawing.layers if layer.is_frozen()]
        self.assertEqual(frozen, ["FURNITURE-OLD"])
        self.assertEqual(len(self.model.query('*[layer=="FURNITURE-OLD"]')), 5)

    def test_draws_pipes_as_circles_of_several_radii(self):
        for layer, radii in {
            "PIPES-HOT": {7.5: 3, 11.0: 4, 14.0: 2, 25.0: 1},
            "PIPES-COLD": {7.5: 4, 11.0: 3, 17.5: 2, 27.0: 1},
        }.items():
            circles = self.model.query(f'CIRCLE[layer=="{layer}"]')
            self.assertEqual(collections.Counter(c.dxf.radius for c in circles), radii)

    def test_places_doors_and_valves(self):
        blocks = collections.Counter(insert.dxf.name for insert in self.model.query("INSERT"))
        self.assertEqual(blocks, {"DOOR": 3, "VALVE-DN50": 4})

    def test_numbers_the_valves(self):
        valves = self.model.query('INSERT[name=="VALVE-DN50"]')
        numbers = [valve.get_attrib("TAG").dxf.text for valve in valves]
        self.assertEqual(numbers, ["HV-01", "HV-02", "CV-01", "CV-02"])

    def test_measures_the_outer_walls(self):
        dimensions = self.model.query('DIMENSION[layer=="DIM"]')
        measured = sorted(dimension.get_measurement() for dimension in dimensions)
        self.assertEqual(measured, [7000.0, 8000.0, 12000.0])
        for dimension in dimensions:
            shown = dimension.get_geometry_block().query("MTEXT").first.text
            self.assertEqual(float(shown), dimension.get_measurement())

    def test_rounds_pipes_and_a_bay_with_bulges(self):
        polylines = self.model.query("LWPOLYLINE")
        bulged = [line.dxf.layer for line in polylines if any(point[4] for point in line)]
        self.assertEqual(sorted(bulged), ["PIPES-COLD", "PIPES-HOT", "WALLS", "WALLS"])

    def test_gives_the_wall_of_the_bay_one_thickness(self):
        bulged = [
            ezdxf.math.bulge_to_arc(points[index][:2], points[index + 1][:2], points[index][4])
            for points in (list(line) for line in self.model.query('LWPOLYLINE[layer=="WALLS"]'))
            for index in range(len(points) - 1)
            if points[index][4]
        ]
        (outer, _, _, outer_radius), (inner, _, _, inner_radius) = bulged
        self.assertTrue(outer.isclose(inner, abs_tol=1e-6))
        self.assertAlmostEqual(outer_radius - inner_radius, 365.0, places=6)

    def test_holds_texts_that_still_want_work(self):
        texts = [text.dxf.text for text in self.model.query("TEXT")]
        self.assertEqual(sum("TODO" in text for text in texts), 2)

    def test_has_a_sheet_with_a_window_into_the_model(self):
        viewports = self.drawing.layout("Sheet").query("VIEWPORT")
        self.assertEqual(sorted(viewport.dxf.id for viewport in viewports), [1, 2])


class AllBasicKinds(unittest.TestCase):
    def setUp(self):
        self.drawing = read("all_basic_kinds_r2010.dxf")
        self.model = self.drawing.modelspace()

    def only(self, kind):
        return self.model.query(kind).first

    def test_is_of_release_2010(self):
        self.assertEqual(self.drawing.dxfversion, "AC1024")

    def test_holds_one_of_each_and_two_hatches(self):
        each = (
            "LINE CIRCLE ARC POINT TEXT LWPOLYLINE INSERT ELLIPSE SPLINE MTEXT 3DFACE SOLID".split()
        )
        self.assertEqual(kinds(self.model), {**dict.fromkeys(each, 1), "HATCH": 2})

    def test_sets_true_colours(self):
        self.assertEqual(self.only("LWPOLYLINE").rgb, (0x33, 0x66, 0xCC))

    def test_sets_lineweights(self):
        self.assertEqual(self.only("LINE").dxf.lineweight, 50)
        self.assertEqual(self.only("SPLINE").dxf.lineweight, 100)

    def test_sets_transparency(self):
        self.assertAlmostEqual(self.only("ELLIPSE").transparency, 0.5, places=2)

    def test_sets_linetype_and_scale(self):
        arc = self.only("ARC").dxf
        self.assertEqual((arc.linetype, arc.ltscale), ("CENTER", 0.5))

    def test_links_the_circle(self):
        self.assertEqual(self.only("CIRCLE").get_hyperlink()[0], "https://example.org/")

    def test_writes_letters_beyond_ascii(self):
        text = self.only("TEXT").dxf
        self.assertEqual((text.text, text.layer), ("Rohr Ø 50, heiß", "Beschriftung Größe"))

    def test_carries_the_number_of_the_mark(self):
        self.assertEqual(self.only("INSERT").get_attrib("NUMBER").dxf.text, "17")

    def test_bends_the_spline_through_its_ends(self):
        points = list(self.only("SPLINE").construction_tool().approximate(20))
        self.assertTrue(points[0].isclose((0.0, 60.0, 0.0)))
        self.assertTrue(points[-1].isclose((40.0, 60.0, 0.0)))


class MinimalR12(unittest.TestCase):
    def setUp(self):
        self.lines = (EXAMPLES / "minimal_r12.dxf").read_text("ascii").splitlines()
        self.model = read("minimal_r12.dxf").modelspace()

    def test_has_no_other_section_than_the_entities(self):
        self.assertEqual(self.lines.count("SECTION"), 1)
        self.assertEqual(self.lines[:4], ["  0", "SECTION", "  2", "ENTITIES"])

    def test_holds_the_kinds_of_its_time(self):
        expected = {"LINE": 1, "CIRCLE": 2, "ARC": 1, "POINT": 1, "TEXT": 1, "POLYLINE": 1}
        self.assertEqual(kinds(self.model), expected)

    def test_closes_its_outline_with_a_half_circle(self):
        outline = self.model.query("POLYLINE").first
        self.assertTrue(outline.is_closed)
        self.assertEqual([vertex.dxf.bulge for vertex in outline.vertices], [0.0, 1.0, 0.0, 0.0])


class LargeDrawing(AuditedTestCase):
    """What benchmarks/make_drawing.py writes, in a small size."""

    ENTITIES = 2000

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.drawings = {form: cls.make(form, f"{form}.dxf") for form in ("ascii", "binary")}

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @classmethod
    def make(cls, form, name, *more):
        file = Path(cls.folder.name) / name
        run("benchmarks/make_drawing.py", "--entities", cls.ENTITIES, "--output", file,
            "--format", form, *more)
        return file

    @staticmethod
    def digest(file):
        return hashlib.sha256(file.read_bytes()).hexdigest()

    def test_is_sound_in_both_forms(self):
        for form, file in self.drawings.items():
            with self.subTest(form):
                self.assert_sound(ezdxf.readfile(file))

    def test_is_the_same_drawing_in_both_forms(self):
        text, binary = (ezdxf.readfile(file).modelspace() for file in self.drawings.values())
        for one, other in zip(text, binary, strict=True):
            self.assertEqual(one.dxfattribs(), other.dxfattribs())

    def test_holds_as_many_entities_as_asked_for(self):
        model = ezdxf.readfile(self.drawings["ascii"]).modelspace()
        self.assertEqual(len(model), self.ENTITIES)

    def test_mixes_the_kinds_as_real_drawings_do(self):
        counts = kinds(ezdxf.readfile(self.drawings["ascii"]).modelspace())
        self.assertAlmostEqual(counts["LINE"] / self.ENTITIES, 0.5, delta=0.05)
        others = "LWPOLYLINE TEXT ARC CIRCLE INSERT HATCH DIMENSION SPLINE".split()
        self.assertEqual(sorted(counts), sorted(["LINE", *others]))

    def test_has_three_hundred_layers_and_fifty_parts(self):
        drawing = ezdxf.readfile(self.drawings["ascii"])
        self.assertEqual(len(drawing.layers), 300)
        parts = [block for block in drawing.blocks if block.name.startswith("PART-")]
        self.assertEqual(len(parts), 50)

    def test_gives_each_dimension_its_own_block(self):
        dimensions = ezdxf.readfile(self.drawings["ascii"]).modelspace().query("DIMENSION")
        blocks = {dimension.dxf.geometry for dimension in dimensions}
        self.assertEqual(len(blocks), len(dimensions))
        for dimension in dimensions:
            shown = dimension.get_geometry_block().query("MTEXT").first.text
            self.assertTrue(math.isclose(float(shown), dimension.get_measurement(), abs_tol=0.1))

    def test_follows_from_the_seed(self):
        first = self.digest(self.drawings["ascii"])
        self.assertEqual(self.digest(self.make("ascii", "again.dxf")), first)
        self.assertNotEqual(self.digest(self.make("ascii", "other.dxf", "--seed", 2)), first)


if __name__ == "__main__":
    unittest.main()
