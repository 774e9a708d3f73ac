#!/usr/bin/env python3
"""What kwselect prints: formats, columns, counts, groups, files."""

import csv
import io
import json
import os
import signal
import subprocess
import tempfile
import unittest
from collections import Counter
from pathlib import Path

import support
from support import CANNOT_WORK, NOTHING, SELECTED, Run, model_entities


class Formats(unittest.TestCase):
    def setUp(self):
        self.plan = support.plan()
        self.circles = [(e["handle"], "Circle", e["layer"]) for e in model_entities(self.plan)
                        if e["kind"] == "CIRCLE" and e["layer"] != "FURNITURE-OLD"]

    def test_csv_has_names_and_line_ends_of_two_characters(self):
        run = Run(self.plan, "Circle", "--format", "csv")
        self.assertTrue(run.output.endswith(b"\r\n"))
        rows = list(csv.reader(io.StringIO(run.output.decode(), newline="")))
        self.assertEqual(rows[0], ["Handle", "Type", "Layer"])
        self.assertEqual([tuple(row) for row in rows[1:]], self.circles)

    def test_csv_puts_quotes_where_they_are_needed(self):
        run = Run(support.kinds(), "Text or MText", "--columns", "Handle,Contents", "--format",
                  "csv")
        values = {row["Handle"]: row["Contents"]
                  for row in csv.DictReader(io.StringIO(run.output.decode(), newline=""))}
        listed = {row["Handle"]: row["Contents"] for row in json.loads(
            Run(support.kinds(), "Text or MText", "--columns", "Handle,Contents", "--format",
                "json").output)}
        self.assertEqual(values, listed)

    def test_json_is_one_array_of_objects(self):
        rows = json.loads(Run(self.plan, "Circle", "--format", "json").output)
        self.assertEqual([tuple(row.values()) for row in rows], self.circles)
        self.assertEqual(list(rows[0]), ["Handle", "Type", "Layer"])
        self.assertEqual(json.loads(Run(self.plan, "Layer = NONE", "--format", "json").output), [])

    def test_json_lines_are_an_object_each(self):
        rows = [json.loads(line) for line in Run(self.plan, "Circle", "--format", "jsonl").lines]
        self.assertEqual([tuple(row.values()) for row in rows], self.circles)

    def test_a_table_is_aligned_under_its_names(self):
        lines = Run(self.plan, "Circle", "--format", "table").lines
        place = lines[0].index("Layer")
        self.assertEqual([line[place:] for line in lines[1:]], [c[2] for c in self.circles])
        self.assertTrue(all(line[place - 1] == " " for line in lines))

    def test_tabs_stand_between_columns_without_names(self):
        lines = Run(self.plan, "Circle", "--format", "tsv").lines
        self.assertEqual([tuple(line.split("\t")) for line in lines], self.circles)

    def test_handles_stand_alone(self):
        lines = Run(self.plan, "Circle", "--format", "handles").lines
        self.assertEqual(lines, [c[0] for c in self.circles])

    def test_lists_come_in_every_format(self):
        types = json.loads(Run(self.plan, "--list", "types", "--format", "json").output)
        self.assertIn({"Type": "Circle", "Count": len(self.circles), "Class": "AcDbCircle"}, [
            {**row, "Count": len(self.circles)} if row["Type"] == "Circle" else row
            for row in types])
        rows = list(csv.DictReader(io.StringIO(
            Run(self.plan, "--list", "properties", "-t", "Circle", "--format", "csv").output.decode(),
            newline="")))
        self.assertEqual(rows[0], {"Property": "Color", "Category": "General",
                                   "Operators": "= <> > < all"})


class Columns(unittest.TestCase):
    def test_hold_values_as_numbers_points_and_texts(self):
        rows = json.loads(Run(support.kinds(), "Circle", "--columns",
                              "Handle,Class,Space,Radius,Center,Center Y,Layer", "--format",
                              "json").output)
        self.assertEqual(len(rows), 1)
        row = rows[0]
        self.assertEqual(row["Class"], "AcDbCircle")
        self.assertEqual(row["Space"], "model")
        self.assertEqual(row["Radius"], 12.5)
        self.assertEqual(len(row["Center"]), 3)
        self.assertEqual(row["Center Y"], row["Center"][1])

    def test_make_a_table_unless_told_otherwise(self):
        lines = Run(support.kinds(), "Circle", "--columns", "Handle,Radius").lines
        self.assertEqual(lines[0].split(), ["Handle", "Radius"])
        self.assertEqual(lines[1].split()[1], "12.5")

    def test_are_empty_where_an_entity_lacks_the_property(self):
        rows = json.loads(Run(support.kinds(), "Circle or Line", "--columns", "Type,Radius",
                              "--format", "json").output)
        self.assertEqual({row["Type"]: row["Radius"] for row in rows},
                         {"Circle": 12.5, "Line": None})

    def test_that_no_entity_has_are_told(self):
        run = Run(support.kinds(), "Circle", "--columns", "Handle,Radus")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn('has the property "Radus"', run.errors)


class Counting(unittest.TestCase):
    def test_count_is_a_number(self):
        run = Run(support.plan(), "Circle", "--count")
        self.assertEqual(run.lines, [str(len(Run(support.plan(), "Circle").lines))])
        none = Run(support.plan(), "Layer = NONE", "-c")
        self.assertEqual((none.lines, none.status), (["0"], NOTHING))
        self.assertEqual(json.loads(Run(support.plan(), "Layer = NONE", "-c", "--format",
                                        "json").output), [{"Count": 0}])

    def test_groups_come_with_the_most_frequent_first(self):
        layers = Counter(e["layer"] for e in model_entities(support.plan())
                         if e["layer"] != "FURNITURE-OLD")
        lines = [line.split("\t") for line in Run(support.plan(), "--group-by", "Layer").lines]
        self.assertEqual({layer: int(count) for layer, count in lines}, dict(layers))
        counts = [int(count) for _, count in lines]
        self.assertEqual(counts, sorted(counts, reverse=True))

    def test_groups_of_a_number_keep_it_a_number(self):
        rows = json.loads(Run(support.plan(), "Circle", "--group-by", "Radius", "--format",
                              "json").output)
        self.assertTrue(all(isinstance(row["Radius"], float) for row in rows))
        self.assertEqual(sum(row["Count"] for row in rows),
                         len(Run(support.plan(), "Circle").lines))


class Files(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.file = self.folder / "out.csv"

    def test_are_written_whole(self):
        direct = Run(support.plan(), "Circle", "--format", "csv")
        run = Run(support.plan(), "Circle", "--format", "csv", "--output", self.file)
        self.assertEqual((run.status, run.output), (SELECTED, b""))
        self.assertEqual(self.file.read_bytes(), direct.output)
        self.assertEqual(os.listdir(self.folder), ["out.csv"])

    def test_are_not_overwritten_unasked(self):
        self.file.write_text("mine")
        run = Run(support.plan(), "Circle", "--output", self.file)
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("is there already", run.errors)
        self.assertEqual(self.file.read_text(), "mine")
        self.assertEqual(Run(support.plan(), "Circle", "--output", self.file,
                             "--overwrite").status, SELECTED)
        self.assertNotEqual(self.file.read_text(), "mine")

    def test_in_a_folder_that_is_not_there_are_told(self):
        run = Run(support.plan(), "Circle", "--output", self.folder / "none" / "out.csv")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("The folder does not exist.", run.errors)

    def test_are_left_out_when_the_drawing_can_not_be_read(self):
        run = Run(self.folder / "none.dxf", "Circle", "--output", self.file)
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertEqual(os.listdir(self.folder), [])


class Pipes(unittest.TestCase):
    def test_that_are_closed_end_the_program_quietly(self):
        process = subprocess.Popen([support.program, str(support.plan()), "--dump"],
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        process.stdout.close()
        errors = process.stderr.read()
        process.stderr.close()
        self.assertEqual(process.wait(timeout=60), -signal.SIGPIPE)
        self.assertEqual(errors, b"")


if __name__ == "__main__":
    support.main()
