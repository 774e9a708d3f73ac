#!/usr/bin/env python3
"""Runs kwselect as a person does and looks at its output, messages and exit status."""

import json
import os
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import support
from support import CANNOT_WORK, IN_PART, INTERRUPTED, NOTHING, SELECTED, Run, raw_entities

GENERAL = ["Color", "Layer", "Linetype", "Linetype scale", "Plot style", "Lineweight",
           "Transparency", "Hyperlink"]


class Selecting(unittest.TestCase):
    plan = property(lambda self: support.plan())

    def expected(self, kind=None, **wanted):
        return [e["handle"] for e in raw_entities(self.plan)
                if (kind is None or e["kind"] == kind) and all(e[k] == v for k, v in wanted.items())]

    def test_prints_the_handles_of_the_matches_in_the_order_of_the_drawing(self):
        run = Run(self.plan, "--type", "Circle", "--property", "Layer", "--operator", "=",
                  "--value", "PIPES-HOT")
        self.assertEqual(run.lines, self.expected("CIRCLE", layer="PIPES-HOT"))
        self.assertEqual(run.status, SELECTED)

    def test_tells_the_count_on_standard_error(self):
        expected = self.expected("CIRCLE", layer="PIPES-HOT")
        run = Run(self.plan, "--type", "Circle", "--property", "Layer", "--value", "PIPES-HOT")
        self.assertEqual(run.errors, f"{len(expected)} item(s) selected.\n")

    def test_a_type_alone_selects_all_of_its_entities(self):
        run = Run(self.plan, "--type", "line")
        self.assertEqual(run.lines, self.expected("LINE"))

    def test_names_match_without_case_and_with_their_category(self):
        plain = Run(self.plan, "-t", "Line", "-p", "Layer", "-v", "WALLS")
        spelled = Run(self.plan, "-t", "LINE", "-p", "general:layer", "-v", "walls")
        self.assertEqual(spelled.lines, plain.lines)
        self.assertEqual(plain.lines, self.expected("LINE", layer="WALLS"))

    def test_without_a_type_all_types_are_searched(self):
        run = Run(self.plan, "--property", "Layer", "--value", "WALLS")
        self.assertEqual(run.lines, self.expected(layer="WALLS"))

    def test_exclude_selects_the_rest_but_nothing_on_frozen_layers(self):
        circles = self.expected("CIRCLE")
        run = Run(self.plan, "--type", "Circle", "--exclude")
        others = [e["handle"] for e in raw_entities(self.plan)
                  if e["handle"] not in circles and e["layer"] != "FURNITURE-OLD"
                  and e["kind"] not in ("ATTRIB", "SEQEND", "VERTEX")]
        self.assertEqual(run.lines, others)

    def test_nothing_found_is_exit_status_1(self):
        run = Run(self.plan, "--property", "Layer", "--value", "NO-SUCH-LAYER")
        self.assertEqual((run.status, run.lines), (NOTHING, []))
        self.assertEqual(run.errors, "0 item(s) selected.\n")

    def test_a_number_is_compared_by_size(self):
        drawing = support.kinds()
        scales = {json.loads(line)["handle"]: value_of(json.loads(line), "Linetype scale")
                  for line in Run(drawing, "--dump").lines}
        run = Run(drawing, "--property", "Linetype scale", "--operator", "<", "--value", "1")
        self.assertEqual(run.lines, [h for h, scale in scales.items() if scale < 1])
        self.assertTrue(run.lines)

    def test_a_colour_is_found_by_name(self):
        drawing = support.kinds()
        red = [e["handle"] for e in raw_entities(drawing) if e["color"].strip() == "1"]
        self.assertEqual(Run(drawing, "-p", "Color", "-v", "red").lines, red)
        self.assertTrue(red)

    def test_a_circle_is_found_by_its_radius(self):
        drawing = support.kinds()
        circles = [e["handle"] for e in raw_entities(drawing) if e["kind"] == "CIRCLE"]
        run = Run(drawing, "-t", "Circle", "-p", "Radius", "-o", ">", "-v", "12.4")
        self.assertEqual(run.lines, circles)
        self.assertEqual(Run(drawing, "-t", "Circle", "-p", "Radius", "-v", "12.4").status, NOTHING)

    def test_an_angle_is_found_by_the_text_that_lists_it(self):
        drawing = support.kinds()
        listed = Run(drawing, "--list", "values", "-t", "Arc", "-p", "End angle").lines
        text, count = listed[0].split("\t")
        run = Run(drawing, "-t", "Arc", "-p", "End angle", "-v", text)
        self.assertEqual(len(run.lines), int(count))

    def test_an_empty_drawing_has_nothing_to_select(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "empty.dxf"
            path.write_text("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n")
            run = Run(path, "--type", "Circle")
        self.assertEqual((run.status, run.lines), (NOTHING, []))
        self.assertIn("the space holds no objects", run.errors)

    def test_texts_match_wildcards(self):
        drawing = support.kinds()
        run = Run(drawing, "-p", "Hyperlink", "-o", "*", "-v", "*example.org*")
        self.assertEqual(len(run.lines), 1)


def value_of(entity, name):
    return next(p["value"] for p in entity["properties"] if p["key"].split(":", 1)[1] == name)


class Listing(unittest.TestCase):
    plan = property(lambda self: support.plan())

    def test_types_come_with_their_number_and_class(self):
        lines = [line.split("\t") for line in Run(self.plan, "--list", "types").lines]
        circles = [e for e in raw_entities(self.plan) if e["kind"] == "CIRCLE"]
        self.assertIn(["Circle", str(len(circles)), "AcDbCircle"], lines)
        self.assertIn("Block Reference", [line[0] for line in lines])

    def test_properties_begin_with_the_general_ones_in_their_order(self):
        lines = Run(self.plan, "--list", "properties", "--type", "Circle").lines
        self.assertEqual([line.split("\t")[0] for line in lines[:8]], GENERAL)
        self.assertEqual(lines[0], "Color\tGeneral\t= <> > < all")

    def test_values_come_with_the_number_of_entities_that_have_them(self):
        lines = Run(self.plan, "--list", "values", "--type", "Circle", "--property", "Layer").lines
        counts = {}
        for entity in raw_entities(self.plan):
            if entity["kind"] == "CIRCLE":
                counts[entity["layer"]] = counts.get(entity["layer"], 0) + 1
        self.assertEqual(dict(line.split("\t") for line in lines),
                         {layer: str(count) for layer, count in counts.items()})

    def test_operators_are_those_of_the_property(self):
        listed = Run(self.plan, "--list", "operators", "-t", "Circle", "-p", "Radius").lines
        self.assertEqual(listed, ["=", "<>", ">", "<", "all"])
        listed = Run(self.plan, "--list", "operators", "-p", "Layer").lines
        self.assertEqual(listed, ["=", "<>", "all"])
        run = Run(self.plan, "--list", "operators")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("--list operators needs --property", run.errors)

    def test_values_that_are_numbers_come_by_their_size(self):
        lines = Run(self.plan, "--list", "values", "--type", "Circle", "--property", "Radius").lines
        radii = [float(line.split("\t")[0]) for line in lines]
        self.assertEqual(radii, sorted(radii))
        self.assertEqual((radii[0], radii[-1]), (7.5, 200.0))

    def test_values_without_a_property_are_refused(self):
        run = Run(self.plan, "--list", "values")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("--property", run.errors)

    def test_dump_has_one_json_object_for_each_entity(self):
        entities = [json.loads(line) for line in Run(self.plan, "--dump").lines]
        raw = [e for e in raw_entities(self.plan) if e["kind"] not in ("ATTRIB", "SEQEND", "VERTEX")]
        self.assertEqual([e["handle"] for e in entities], [e["handle"] for e in raw])
        self.assertEqual([value_of(e, "Layer") for e in entities], [e["layer"] for e in raw])
        first = entities[0]
        self.assertEqual(list(first), ["handle", "className", "displayName", "properties"])
        self.assertEqual(first["properties"][0]["key"], "\tGeneral:Color")
        self.assertEqual(first["properties"][0]["restype"], 5011)


def damaged(folder):
    """A drawing with a fault of each weight, and the place of each."""
    path = Path(folder) / "damaged.dxf"
    path.write_text("0\nSECTION\n2\nENTITIES\n0\nLINE\n5\nAB\n8\nPIPES\n48\nwide\n"
                    "0\nCIRCLE\n5\nAC\n8\n0\n40\n2.0\n0\nENDSEC\n0\nEOF\n")
    return path


class Auditing(unittest.TestCase):
    plan = property(lambda self: support.plan())

    def test_a_sound_drawing_has_no_findings(self):
        run = Run(self.plan, "--audit")
        self.assertEqual((run.status, run.lines, run.errors), (SELECTED, [], "0 finding(s).\n"))

    def test_findings_come_with_line_handle_and_number(self):
        with tempfile.TemporaryDirectory() as folder:
            run = Run(damaged(folder), "--audit")
        self.assertEqual(run.lines, [
            "line 5: handle AB: A layer is used and not defined; it was made with defaults: PIPES [16]",
            "line 11: handle AB: A number is malformed; what could be read of it was used [2]"])
        self.assertEqual(run.status, IN_PART)

    def test_findings_that_lose_nothing_are_another_status(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "layer.dxf"
            path.write_text("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nPIPES\n0\nENDSEC\n0\nEOF\n")
            self.assertEqual(Run(path, "--audit").status, NOTHING)

    def test_json_tells_the_same(self):
        with tempfile.TemporaryDirectory() as folder:
            run = Run(damaged(folder), "--audit", "--format", "json")
        audit = json.loads("\n".join(run.lines))
        self.assertEqual([(f["number"], f["line"], f["handle"]) for f in audit["findings"]],
                         [(16, 5, "AB"), (2, 11, "AB")])
        self.assertTrue(audit["findings"][0]["sentence"].endswith("defaults: PIPES"))
        self.assertEqual((audit["version"], audit["binary"], audit["entities"], audit["complete"]),
                         ("AC1009", False, 2, False))
        sound = json.loads("\n".join(Run(self.plan, "--audit", "--format", "json").lines))
        self.assertEqual((sound["findings"], sound["complete"]), ([], True))

    def test_every_finding_is_listed(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "many.dxf"
            path.write_text("0\nSECTION\n2\nENTITIES\n" + "0\nSTRANGE\n8\n0\n" * 3000 +
                            "0\nENDSEC\n0\nEOF\n")
            run = Run(path, "--audit")
        self.assertEqual(len(run.lines), 3000)
        self.assertEqual(run.lines[-1], "line 12001: The kind of an entity is not known; its general "
                                        "properties were read: STRANGE [20]")

    def test_a_file_that_can_not_be_read_is_one_line(self):
        for form in ([], ["--format", "json"]):
            run = Run("no_such.dxf", "--audit", *form)
            self.assertEqual((run.status, run.lines), (CANNOT_WORK, []))
            self.assertEqual(run.errors, "kwselect: no_such.dxf: The file does not exist.\n")

    def test_an_audit_needs_no_module_and_no_entities(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "empty.dxf"
            path.write_text("0\nEOF\n")
            run = Run(path, "--audit", environment={"KW_MODULE": "/nowhere/module.so"})
        self.assertEqual(run.status, SELECTED)

    def test_it_stands_alone(self):
        self.assertEqual(Run(self.plan, "--audit", "--type", "Circle").status, CANNOT_WORK)
        self.assertEqual(Run(self.plan, "--audit", "--format", "csv").status, CANNOT_WORK)

    def test_damage_inside_entities_shows_in_the_status_of_a_search(self):
        with tempfile.TemporaryDirectory() as folder:
            run = Run(damaged(folder), "--property", "Linetype scale", "--value", "0")
            sound = Run(damaged(folder), "--type", "Circle", "--property", "Radius", "--value", "2")
        self.assertEqual((run.status, run.lines), (IN_PART, ["AB"]))
        self.assertIn("line 11: A number is malformed", run.errors)
        self.assertEqual((sound.status, sound.lines), (SELECTED, ["AC"]))


class Writing(unittest.TestCase):
    plan = property(lambda self: support.plan())

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)
        self.target = self.folder / "circles.dxf"

    def write(self, *arguments, **options):
        return Run(self.plan, "--type", "Circle", "--write", self.target, *arguments, **options)

    def test_writes_the_selection_and_prints_it(self):
        run = self.write()
        self.assertEqual(run.status, SELECTED)
        self.assertEqual(Run(self.target, "--type", "Circle").lines, run.lines)
        self.assertEqual([line.split("\t")[0] for line in Run(self.target, "--list", "types").lines],
                         ["Circle"])

    def test_replaces_a_file_only_when_told_to(self):
        self.target.write_text("old")
        run = self.write()
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("circles.dxf: The file exists already.", run.errors)
        self.assertEqual(self.target.read_text(), "old")
        self.assertEqual(self.write("--overwrite").status, SELECTED)
        self.assertIn("CIRCLE", self.target.read_text())

    def test_never_replaces_its_source(self):
        copy = self.folder / "plan.dxf"
        copy.write_bytes(self.plan.read_bytes())
        run = Run(copy, "--type", "Circle", "--write", copy, "--overwrite")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("written over the file that it comes from", run.errors)
        self.assertEqual(copy.read_bytes(), self.plan.read_bytes())

    def test_writes_nothing_where_nothing_is_selected(self):
        run = Run(self.plan, "-p", "Layer", "-v", "NO-SUCH-LAYER", "--write", self.target)
        self.assertEqual(run.status, NOTHING)
        self.assertFalse(self.target.exists())

    def test_a_folder_that_can_not_be_written_to_is_told(self):
        if os.geteuid() == 0:
            target = Path("/proc/circles.dxf")
        else:
            self.folder.chmod(0o500)
            target = self.target
        run = Run(self.plan, "--type", "Circle", "--write", target)
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertRegex(run.errors, r"(?m)^kwselect: .*circles.dxf: The (folder|file) .*\.$")

    def test_overwrite_is_for_writing(self):
        self.assertEqual(Run(self.plan, "--type", "Circle", "--overwrite").status, CANNOT_WORK)
        self.assertEqual(Run(self.plan, "--dump", "--write", self.target).status, CANNOT_WORK)


class Interrupting(unittest.TestCase):
    def test_ctrl_c_cancels_the_reading(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "large.dxf"
            with path.open("w") as file:
                file.write("0\nSECTION\n2\nENTITIES\n")
                for _ in range(200):
                    file.write("0\nLINE\n8\n0\n10\n1.0\n20\n2.0\n" * 20000)
                file.write("0\nENDSEC\n0\nEOF\n")
            program = subprocess.Popen([support.program, str(path), "--audit"], stdout=subprocess.PIPE,
                                       stderr=subprocess.PIPE)
            while program.poll() is None and not catches_interrupts(program.pid):
                time.sleep(0.001)
            program.send_signal(signal.SIGINT)
            _, errors = program.communicate(timeout=120)
        self.assertEqual(program.returncode, INTERRUPTED)
        self.assertEqual(errors.decode(), f"kwselect: {path}: Reading was cancelled.\n")


def catches_interrupts(process):
    status = Path(f"/proc/{process}/status").read_text()
    mask = next(int(line.split()[1], 16) for line in status.splitlines() if line.startswith("SigCgt"))
    return bool(mask & 1 << (signal.SIGINT - 1))


class Refusing(unittest.TestCase):
    plan = property(lambda self: support.plan())

    def refused(self, *arguments):
        run = Run(*arguments)
        self.assertEqual(run.status, CANNOT_WORK, run.errors)
        self.assertEqual(run.lines, [])
        return run.errors

    def test_a_wrong_type_names_the_nearest(self):
        message = self.refused(self.plan, "--type", "Circel")
        self.assertIn('no object type "Circel"; did you mean "Circle"?', message)

    def test_a_wrong_property_names_the_nearest(self):
        message = self.refused(self.plan, "--property", "Layr", "--value", "X")
        self.assertIn('no property "Layr"; did you mean "Layer"?', message)

    def test_a_wrong_property_like_no_other_names_all(self):
        message = self.refused(self.plan, "--property", "Quux", "--value", "X")
        self.assertIn('no property "Quux"; there are: Color, Layer, ', message)

    def test_a_wrong_operator_names_the_right_ones(self):
        message = self.refused(self.plan, "--property", "Layer", "--operator", ">", "--value", "X")
        self.assertIn("There are: =, <>, all", message)

    def test_a_value_that_is_none_is_refused(self):
        self.assertIn('"orange" is no value', self.refused(self.plan, "-p", "Color", "-v", "orange"))
        message = self.refused(self.plan, "-p", "Linetype scale", "-v", "wide")
        self.assertIn('"wide" is no value', message)

    def test_a_transparency_is_a_number_or_a_word(self):
        self.assertIn('"thin" is no value', self.refused(self.plan, "-p", "Transparency", "-v", "thin"))
        self.assertEqual(Run(self.plan, "-p", "Transparency", "-v", "bylayer").status, SELECTED)

    def test_options_that_would_have_no_effect_are_refused(self):
        self.assertIn("--dump", self.refused(self.plan, "--dump", "--type", "Circle"))
        self.assertIn("--list", self.refused(self.plan, "--list", "types", "--exclude"))

    def test_an_operator_needs_a_value(self):
        self.assertIn("needs --value", self.refused(self.plan, "-p", "Layer", "-o", "="))

    def test_a_value_needs_a_property(self):
        self.assertIn("needs --property", self.refused(self.plan, "--value", "1"))

    def test_a_wrong_option_is_named(self):
        self.assertIn("--bogus", self.refused(self.plan, "--bogus"))
        self.assertIn("did you mean --property?", self.refused(self.plan, "--proprety", "Layer"))
        self.assertIn("DRAWING", self.refused("--dump"))

    def test_a_missing_file_is_one_line(self):
        message = self.refused("no_such.dxf", "--dump")
        self.assertIn("no_such.dxf", message)
        self.assertEqual(message.count("\n"), 1)

    def test_a_file_that_is_no_drawing_is_one_line(self):
        with tempfile.TemporaryDirectory() as folder:
            for name, content in {"text.dxf": b"hello\nworld\n", "empty.dxf": b"",
                                  "drawing.dwg": b"AC1027\0\0\0\0\0" + bytes(200)}.items():
                path = Path(folder) / name
                path.write_bytes(content)
                with self.subTest(name):
                    message = self.refused(path, "--dump")
                    self.assertIn(name, message)
                    self.assertEqual(message.count("\n"), 1)

    def test_a_drawing_that_breaks_off_is_read_in_part_and_says_so(self):
        with tempfile.TemporaryDirectory() as folder:
            cut = Path(folder) / "cut.dxf"
            whole = self.plan.read_bytes()
            cut.write_bytes(whole[:whole.index(b"ENTITIES") + 3000])
            run = Run(cut, "--list", "types")
        self.assertEqual(run.status, IN_PART)
        self.assertTrue(run.lines)
        self.assertIn("read only in part", run.errors)

    def test_speaks_the_users_language(self):
        german = {"LC_ALL": "de_DE.UTF-8"}
        run = Run(self.plan, "Kreis: Durchmesser > 50", environment=german)
        self.assertEqual((run.status, run.lines), (SELECTED, ["52"]))
        self.assertEqual(run.errors, "1 Objekt(e) gewählt.\n")
        types = Run(self.plan, "--list", "types", environment=german).lines
        self.assertIn("Blockreferenz\t7\tAcDbBlockReference", types)

    def test_a_missing_module_is_one_line(self):
        run = Run(self.plan, "--dump", environment={"KW_MODULE": "/nowhere/module.so"})
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("module can't be loaded", run.errors)
        self.assertEqual(run.errors.count("\n"), 1)

    def test_output_that_can_not_be_written_is_told(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([support.program, str(self.plan), "--dump"], stdout=full,
                                  stderr=subprocess.PIPE, check=False)
        self.assertEqual(done.returncode, CANNOT_WORK)
        self.assertIn(b"can't be written", done.stderr)

    def test_help_and_version_end_well(self):
        self.assertIn("Examples:", "\n".join(Run("--help").lines))
        self.assertRegex(Run("--version").lines[0], r"^kwselect \d+\.\d+\.\d+$")


if __name__ == "__main__":
    support.main()
