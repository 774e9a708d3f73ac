#!/usr/bin/env python3
"""Filters of kwselect: expressions, steps, spaces, tolerance, and accounts of the answer."""

import tempfile
import unittest
from pathlib import Path

import support
from support import CANNOT_WORK, NOTHING, SELECTED, Run, model_entities


def handles(*arguments, **more):
    run = Run(*arguments, **more)
    assert run.status in (SELECTED, NOTHING), run.errors
    return run.lines


class Plan(unittest.TestCase):
    def setUp(self):
        self.plan = support.plan()
        self.entities = [e for e in model_entities(self.plan) if e["layer"] != "FURNITURE-OLD"]

    def handles_of(self, wanted):
        return [e["handle"] for e in self.entities if wanted(e)]


class Expressions(Plan):
    def check(self, expression, wanted):
        expected = self.handles_of(wanted)
        self.assertTrue(expected)
        self.assertEqual(handles(self.plan, expression), expected)

    def test_one_comparison_is_the_same_as_the_options(self):
        options = handles(self.plan, "-t", "Circle", "-p", "Radius", "-o", ">", "-v", "10")
        self.assertTrue(options)
        self.assertEqual(handles(self.plan, "Circle: Radius > 10"), options)
        self.assertEqual(handles(self.plan, "--filter", "circle: geometry:radius > 10"), options)

    def test_and_takes_what_both_find(self):
        self.check("Line and Layer = WALLS",
                   lambda e: e["kind"] == "LINE" and e["layer"] == "WALLS")

    def test_or_takes_what_either_finds_in_the_order_of_the_drawing(self):
        self.check("Circle or Line", lambda e: e["kind"] in ("LINE", "CIRCLE"))

    def test_not_takes_the_rest_but_nothing_on_frozen_layers(self):
        self.check("not Layer = WALLS", lambda e: e["layer"] != "WALLS")

    def test_brackets_and_words_go_together(self):
        self.check("not (Line or Layer = PIPES-HOT) and not Layer = WALLS",
                   lambda e: e["kind"] != "LINE" and e["layer"] not in ("WALLS", "PIPES-HOT"))

    def test_a_star_stands_for_all_types(self):
        self.check("*: Layer = WALLS", lambda e: e["layer"] == "WALLS")

    def test_a_property_alone_selects_all_that_have_it(self):
        self.check("Circle: Radius", lambda e: e["kind"] == "CIRCLE")

    def test_no_filter_selects_everything(self):
        self.assertEqual(handles(self.plan), self.handles_of(lambda e: True))

    def test_sets_agree_with_their_parts(self):
        every = handles(self.plan)
        big, hot = handles(self.plan, "Circle: Radius > 10"), handles(self.plan, "Layer = PIPES-HOT")
        for expression, wanted in (
                ("Circle: Radius > 10 and Layer = PIPES-HOT", lambda h: h in big and h in hot),
                ("Circle: Radius > 10 or Layer = PIPES-HOT", lambda h: h in big or h in hot),
                ("not Circle: Radius > 10", lambda h: h not in big),
                ("Circle: Radius > 10 and not Layer = PIPES-HOT",
                 lambda h: h in big and h not in hot)):
            with self.subTest(expression):
                self.assertEqual(handles(self.plan, expression), [h for h in every if wanted(h)])

    def test_a_mistake_is_shown_at_its_place(self):
        for expression, reason, mark in (
                ("Circle: Radius > ", "a value is expected", 17),
                ("Line or (Circle", "never closed", 8),
                ("Circle: Radius > 1 Layer", '"1 Layer" is no value', 17),
                ("Line or Circle: Radus > 1", 'did you mean "Radius"?', 8),
                ("Circle: Layer > A", 'There are: =, <>, all', 16),
                ("Polyline: Closed = yes", "it is true or false", 19),
                ("Color = reddish", "a name such as red", 8),
                ("Kreis: Radius > 1", 'no object type "Kreis"', 0)):
            with self.subTest(expression):
                run = Run(self.plan, expression)
                self.assertEqual((run.status, run.lines), (CANNOT_WORK, []))
                self.assertIn(reason, run.errors)
                lines = run.errors.splitlines()
                self.assertEqual(lines[-1].index("^") - 2, mark, run.errors)
                self.assertEqual(lines[-2][2:], expression)

    def test_two_filters_are_one_too_many(self):
        run = Run(self.plan, "Line", "Circle")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("two filters", run.errors)
        self.assertEqual(Run(self.plan, "Line", "-t", "Circle").status, CANNOT_WORK)


class Steps(Plan):
    def test_then_searches_what_is_selected(self):
        self.assertEqual(handles(self.plan, "Line", "--then", "Layer = WALLS"),
                         self.handles_of(lambda e: e["kind"] == "LINE" and e["layer"] == "WALLS"))

    def test_then_over_nothing_finds_nothing(self):
        self.assertEqual(handles(self.plan, "Layer = NONE", "--then", "Line"), [])
        self.assertEqual(handles(self.plan, "Layer = NONE", "--then", "Length > 1"), [])

    def test_then_knows_the_properties_that_the_selected_have_in_common(self):
        long = handles(self.plan, "Line: Length > 3000")
        walls = handles(self.plan, "Line: Layer = WALLS")
        both = [h for h in walls if h in long]
        self.assertTrue(both and len(both) < len(walls))
        self.assertEqual(handles(self.plan, "Line: Layer = WALLS", "--then", "Length > 3000"), both)
        self.assertEqual(handles(self.plan, "Line", "--then", "Layer = WALLS and Length > 3000"),
                         both)
        self.assertEqual(Run(self.plan, "Length > 3000").status, CANNOT_WORK)

    def test_then_finds_nothing_of_a_type_that_only_the_drawing_has(self):
        self.assertEqual(handles(self.plan, "Line", "--then", "Circle: Radius > 1"), [])
        self.assertEqual(handles(self.plan, "Line", "--then", "Circle: Radius > 1", "--exclude"),
                         handles(self.plan, "Line"))
        self.assertEqual(Run(self.plan, "Line", "--then", "Kreis").status, CANNOT_WORK)

    def test_append_adds_behind_what_is_selected(self):
        self.assertEqual(handles(self.plan, "Circle", "--append", "Line"),
                         self.handles_of(lambda e: e["kind"] == "CIRCLE") +
                         self.handles_of(lambda e: e["kind"] == "LINE"))

    def test_append_adds_nothing_twice(self):
        self.assertEqual(handles(self.plan, "Line", "--append", "Layer = WALLS or Line"),
                         self.handles_of(lambda e: e["kind"] == "LINE") +
                         self.handles_of(lambda e: e["layer"] == "WALLS" and e["kind"] != "LINE"))

    def test_exclude_belongs_to_the_filter_before_it(self):
        walls = handles(self.plan, "Layer = WALLS")
        every = handles(self.plan)
        self.assertEqual(handles(self.plan, "Layer = WALLS", "--exclude"),
                         [h for h in every if h not in walls])
        self.assertEqual(handles(self.plan, "Line", "--then", "Layer = WALLS", "--exclude"),
                         [h for h in handles(self.plan, "Line") if h not in walls])
        self.assertEqual(handles(self.plan, "Line or Circle", "--exclude"),
                         [h for h in every if h not in handles(self.plan, "Line or Circle")])

    def test_steps_run_in_the_order_in_which_they_are_typed(self):
        first = handles(self.plan, "Line", "--append", "Circle", "--then", "Layer = WALLS")
        second = handles(self.plan, "Line", "--then", "Layer = WALLS", "--append", "Circle")
        self.assertEqual(first, handles(self.plan, "(Line or Circle) and Layer = WALLS"))
        self.assertEqual(len(second), len(first) + len(handles(self.plan, "Circle")))

    def test_the_count_is_told_once(self):
        run = Run(self.plan, "Line or Circle", "--append", "Arc", "--then", "Layer = WALLS")
        self.assertEqual(run.errors, f"{len(run.lines)} item(s) selected.\n")
        self.assertEqual(Run(self.plan, "Layer = NONE or Layer = NIX").errors,
                         "0 item(s) selected.\n")


class NamedFilters(Plan):
    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.settings = Path(folder.name)
        self.file = self.settings / "kwqselect" / "filters.txt"
        self.file.parent.mkdir()
        self.file.write_text("# of the house\nwalls = Layer = WALLS\nstraight = Line and @walls\n")
        self.environment = {"XDG_CONFIG_HOME": str(self.settings)}

    def test_stand_for_their_expressions(self):
        for option in ([], ["--filters", self.file]):
            environment = {} if option else self.environment
            self.assertEqual(handles(self.plan, "@straight", *option, environment=environment),
                             handles(self.plan, "Line and Layer = WALLS"))

    def test_can_be_part_of_an_expression(self):
        self.assertEqual(handles(self.plan, "Line and not @walls", environment=self.environment),
                         handles(self.plan, "Line and not Layer = WALLS"))

    def test_are_listed_without_a_drawing(self):
        run = Run("--list", "filters", environment=self.environment)
        self.assertEqual(run.lines, ["walls\tLayer = WALLS", "straight\tLine and @walls"])

    def test_that_are_unknown_or_broken_are_told(self):
        run = Run(self.plan, "@wals", environment=self.environment)
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn('no filter "wals"; did you mean "walls"?', run.errors)
        self.file.write_text("walls = (Line\n")
        run = Run(self.plan, "@walls", environment=self.environment)
        self.assertIn("filters.txt:1: this bracket is never closed", run.errors)
        self.assertEqual(run.status, CANNOT_WORK)


class RecentFilters(Plan):
    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.environment = {"XDG_CONFIG_HOME": folder.name}
        self.file = Path(folder.name) / "kwqselect" / "recent_filters.txt"
        self.file.parent.mkdir()
        self.file.write_text("Line and Layer = WALLS\nCircle: Radius > 5\n")

    def test_are_listed_with_their_numbers(self):
        run = Run("--list", "recent", environment=self.environment)
        self.assertEqual(run.lines, ["1\tLine and Layer = WALLS", "2\tCircle: Radius > 5"])
        self.assertEqual(run.status, SELECTED)

    def test_are_none_at_first(self):
        self.file.unlink()
        run = Run("--list", "recent", environment=self.environment)
        self.assertEqual((run.lines, run.status), ([], NOTHING))

    def test_are_run_by_their_numbers(self):
        for number, filter in enumerate(self.file.read_text().splitlines(), 1):
            found = handles(self.plan, "--recent", str(number), environment=self.environment)
            self.assertEqual(found, handles(self.plan, filter))
            self.assertTrue(found)

    def test_can_be_followed_by_others(self):
        found = handles(self.plan, "--recent", "2", "--append", "Arc", environment=self.environment)
        self.assertEqual(found, handles(self.plan, "Circle: Radius > 5", "--append", "Arc"))

    def test_are_not_run_beyond_their_end(self):
        for number in ("3", "0", "x"):
            run = Run(self.plan, "--recent", number, environment=self.environment)
            self.assertEqual(run.status, CANNOT_WORK, number)
        run = Run(self.plan, "--recent", "3", environment=self.environment)
        self.assertIn("recent_filters.txt holds 2", run.errors)

    def test_are_no_second_filter(self):
        for other in (["Circle"], ["--filter", "Circle"], ["--type", "Circle"]):
            run = Run(self.plan, "--recent", "1", *other, environment=self.environment)
            self.assertEqual(run.status, CANNOT_WORK, other)


class Tolerance(Plan):
    def test_decides_what_is_equal(self):
        drawing = support.kinds()  # its circle has the radius 12.5
        self.assertEqual(handles(drawing, "Circle: Radius = 12.4"), [])
        self.assertEqual(len(handles(drawing, "Circle: Radius = 12.4", "--tolerance", "0.11")), 1)
        self.assertEqual(len(handles(drawing, "Circle: Radius = 12.5", "--tolerance", "0")), 1)
        self.assertEqual(handles(drawing, "Circle: Radius > 12.4", "--tolerance", "0.11"), [])

    def test_must_not_be_negative(self):
        self.assertEqual(Run(self.plan, "Circle", "--tolerance", "-1").status, CANNOT_WORK)


class Spaces(Plan):
    def test_the_model_is_searched_unless_told_otherwise(self):
        self.assertEqual(handles(self.plan, "--space", "model"), handles(self.plan))

    def test_a_sheet_is_found_by_name_without_case(self):
        sheet = handles(self.plan, "--space", "paper:Sheet")
        self.assertTrue(sheet)
        self.assertFalse(set(sheet) & set(handles(self.plan)))
        self.assertEqual(handles(self.plan, "--space", "paper:SHEET"), sheet)

    def test_all_is_the_model_and_every_sheet(self):
        self.assertEqual(handles(self.plan, "--space", "all"),
                         handles(self.plan) + handles(self.plan, "--space", "paper:Sheet"))

    def test_a_type_of_one_space_alone_is_no_mistake(self):
        self.assertEqual(handles(self.plan, "Circle", "--space", "all"),
                         handles(self.plan, "Circle"))

    def test_a_block_is_found_by_name_without_case(self):
        inside = Run(self.plan, "--space", "block:door", "--columns", "Space,Handle,Type",
                     "--format", "tsv").lines
        self.assertTrue(inside)
        self.assertEqual({line.split("\t")[0] for line in inside}, {"block:DOOR"})
        handles_inside = [line.split("\t")[1] for line in inside]
        self.assertFalse(set(handles_inside) & set(handles(self.plan, "--space", "all")))
        self.assertEqual(handles_inside, self.handles_in_block("DOOR"))
        unknown = Run(self.plan, "--space", "block:DOR")
        self.assertEqual(unknown.status, CANNOT_WORK)
        self.assertIn('no block "DOR"; did you mean "DOOR"?', unknown.errors)

    def handles_in_block(self, name):
        lines = [line.strip() for line in self.plan.read_text().splitlines()]
        pairs = list(zip(lines[0::2], lines[1::2]))
        start = next(i for i, pair in enumerate(pairs)
                     if pair == ("0", "BLOCK") and ("2", name) in pairs[i:i + 9])
        found, kind = [], None
        for code, value in pairs[start + 1:]:
            if code == "0":
                if value == "ENDBLK":
                    return found
                kind = value
            elif code == "5" and kind is not None:
                found.append(value)

    def test_attributes_are_asked_for_by_their_tags(self):
        expected = [h for h, tag in (line.split("\t") for line in Run(
            self.plan, "Block Reference: Name = VALVE-DN50", "--columns", "Handle,Attributes:TAG",
            "--format", "tsv").lines) if tag.endswith("1")]
        self.assertTrue(expected)
        self.assertEqual(handles(self.plan, 'Block Reference: Attributes:TAG * "*1"'), expected)

    def test_one_that_is_not_there_is_told(self):
        run = Run(self.plan, "--space", "paper:Shet")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn('no sheet "Shet"; did you mean "Sheet"?', run.errors)
        self.assertIn("there are model", Run(self.plan, "--space", "moon").errors)


class Accounts(Plan):
    def test_explain_tells_how_many_match_lack_and_are_left_out(self):
        run = Run(self.plan, "Circle: Radius > 10 or Line", "--explain")
        circles = self.handles_of(lambda e: e["kind"] == "CIRCLE")
        lines = self.handles_of(lambda e: e["kind"] == "LINE")
        big = handles(self.plan, "Circle: Radius > 10")
        frozen = len(model_entities(self.plan)) - len(self.entities)
        self.assertIn(f"{len(run.lines)} of {len(self.entities)} selected", run.errors)
        self.assertIn(f"Circle: Radius > 10: {len(big)} of {len(circles)} match, 0 lack the "
                      "property; 10 equals 9.9999 to 10.0001 (LUPREC 4)", run.errors)
        self.assertIn(f"Line: {len(lines)} of {len(lines)} match\n", run.errors)
        self.assertIn(f"{frozen} on frozen layers are left out, 0 could not be read", run.errors)

    def test_why_tells_the_value_that_decides(self):
        circle = handles(self.plan, "Circle: Radius > 10")[0]
        line = handles(self.plan, "Line")[0]
        expression = "Circle: Radius > 10 and not Layer = WALLS"
        yes = Run(self.plan, expression, "--why", circle)
        self.assertEqual(yes.status, SELECTED)
        self.assertIn("is selected", yes.lines[0])
        self.assertEqual(yes.lines[1], "  yes  Circle: Radius > 10: Radius is 11")
        self.assertTrue(yes.lines[2].startswith("  no   Layer = WALLS: Layer is PIPES"), yes.lines)
        no = Run(self.plan, expression, "--why", line)
        self.assertEqual(no.status, NOTHING)
        self.assertIn("is not selected", no.lines[0])
        self.assertEqual(no.lines[1], "  no   Circle: Radius > 10: it is a Line")

    def test_each_filter_is_explained_over_what_it_searches(self):
        run = Run(self.plan, "Line", "--then", "Length > 3000", "--explain")
        lines = len(handles(self.plan, "Line"))
        self.assertRegex(run.errors, rf"Length > 3000: {len(run.lines)} of {lines} match")
        nothing = Run(self.plan, "Layer = NONE", "--then", "Length > 3000", "--explain")
        self.assertIn("Length > 3000: nothing is selected to search in", nothing.errors)

    def test_why_tells_that_a_filter_before_left_the_entity_out(self):
        circle = handles(self.plan, "Circle")[0]
        run = Run(self.plan, "Line", "--then", "Length > 3000", "--why", circle)
        self.assertIn("no   Line: it is a Circle", run.lines[1])
        self.assertIn("no   Length > 3000: it is not selected by the filters before", run.lines[2])

    def test_why_of_a_frozen_entity_says_so(self):
        frozen = next(e["handle"] for e in model_entities(self.plan)
                      if e["layer"] == "FURNITURE-OLD")
        run = Run(self.plan, "Layer = FURNITURE-OLD", "--why", frozen)
        self.assertIn("frozen", "\n".join(run.lines))
        self.assertEqual(run.status, NOTHING)

    def test_why_of_a_handle_that_is_not_there_is_told(self):
        for handle in ("FFFFFF", "xyz"):
            run = Run(self.plan, "Line", "--why", handle)
            self.assertEqual(run.status, CANNOT_WORK)
            self.assertIn(f"no entity with the handle {handle}", run.errors)


if __name__ == "__main__":
    support.main()
