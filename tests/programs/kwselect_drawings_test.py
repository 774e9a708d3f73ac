#!/usr/bin/env python3
"""kwselect on many drawings at once."""

import json
import os
import pty
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import support
from support import CANNOT_WORK, IN_PART, INTERRUPTED, NOTHING, SELECTED, Run, plan


class Drawings(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def copies(self, count):
        sources = [support.plan(), support.kinds(), support.drawings / "minimal_r12.dxf"]
        paths = [self.folder / f"{i:03}.dxf" for i in range(count)]
        for i, path in enumerate(paths):
            shutil.copy(sources[i % len(sources)], path)
        return paths

    def test_come_in_their_order_whatever_the_number_of_processes(self):
        paths = self.copies(200)
        arguments = ["Circle or Line", "--columns", "File,Handle,Layer,Color", "--format", "csv"]
        one = Run(*paths, *arguments)
        two = Run(*paths, *arguments, "--jobs", "2")
        self.assertEqual(one.status, SELECTED)
        self.assertEqual(one.output, two.output)
        files = [line.split(",")[0] for line in one.lines[1:]]
        self.assertEqual(files, sorted(files))
        self.assertEqual(len(set(files)), 200)
        self.assertIn("200 drawings read, 0 failed", two.errors)

    def test_have_their_name_beside_the_handle(self):
        paths = self.copies(2)
        lines = Run(*paths, "Circle").lines
        singles = [f"{path}\t{handle}" for path in paths for handle in Run(path, "Circle").lines]
        self.assertEqual(lines, singles)

    def test_come_from_patterns_and_lists(self):
        paths = self.copies(3)
        expected = Run(*paths, "Circle").lines
        self.assertEqual(Run(self.folder / "*.dxf", "Circle").lines, expected)
        drawing_list = self.folder / "list.txt"
        drawing_list.write_text("".join(f"{path}\n" for path in paths))
        self.assertEqual(Run(f"@{drawing_list}", "Circle").lines, expected)
        self.assertEqual(Run("-", "Circle", text=drawing_list.read_text()).lines, expected)

    def test_that_are_bad_leave_the_rest_alone(self):
        paths = self.copies(3)
        paths[1].write_text("no drawing\n")
        run = Run(*paths, "Circle", "--count", "--jobs", "2")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertEqual([line.split("\t")[0] for line in run.lines], [str(paths[0]), str(paths[2])])
        self.assertIn(paths[1].name, run.errors)
        self.assertIn("2 drawings read, 1 failed", run.errors)

    def test_that_break_off_make_the_answer_partial(self):
        paths = self.copies(2)
        whole = paths[0].read_bytes()
        paths[0].write_bytes(whole[:whole.index(b"ENTITIES") + 3000])
        self.assertEqual(Run(*paths, "Line").status, IN_PART)

    def test_without_the_type_are_passed_over(self):
        paths = self.copies(3)
        run = Run(*paths, "Block Reference", "--count")
        self.assertEqual(run.status, SELECTED)
        self.assertNotIn("no object type", run.errors)
        nowhere = Run(*paths, "Blok Reference")
        self.assertEqual((nowhere.status, nowhere.lines), (NOTHING, []))
        self.assertIn("no drawing has what the filter names", nowhere.errors)

    def test_show_how_far_the_work_is_on_a_terminal_alone(self):
        paths = self.copies(60)
        self.assertNotIn(" of 60", Run(*paths, "Circle", "--count").errors)
        terminal, end = pty.openpty()
        done = subprocess.run([support.program, *map(str, paths), "Circle", "--count"],
                              stdout=subprocess.DEVNULL, stderr=end, check=False, timeout=120)
        os.close(end)
        shown = os.read(terminal, 1 << 16).decode()
        os.close(terminal)
        self.assertEqual(done.returncode, SELECTED)
        self.assertRegex(shown, r"\r\x1b\[K\d+ of 60 drawings")
        self.assertTrue(shown.rstrip().endswith("60 drawings read, 0 failed"))

    def test_are_grouped_each_for_itself(self):
        paths = self.copies(2)
        rows = json.loads(Run(*paths, "Circle", "--group-by", "Layer", "--format", "json").output)
        self.assertEqual(list(rows[0]), ["File", "Layer", "Count"])
        self.assertEqual({row["File"] for row in rows}, {str(path) for path in paths})

    def test_of_which_there_are_none_are_a_mistake(self):
        run = Run("Circle")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("DRAWING", run.errors)



class DwgDrawings(unittest.TestCase):
    """Drawings that only a converter can read. The one used here hands out a DXF file."""

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.drawing = Path(self.folder.name) / "plan.dwg"
        self.drawing.write_bytes(b"AC1027" + bytes(200))
        self.temporary = Path(self.folder.name) / "temporary"
        self.temporary.mkdir()

    def tearDown(self):
        self.folder.cleanup()

    def run_with(self, script, *arguments):
        programs = Path(self.folder.name) / "bin"
        programs.mkdir(exist_ok=True)
        if script:
            converter = programs / "dwg2dxf"
            converter.write_text("#!/bin/sh\n" + script)
            converter.chmod(0o755)
        run = Run(self.drawing, *arguments, environment={"PATH": f"{programs}:/usr/bin:/bin",
                                                         "TMPDIR": str(self.temporary)})
        self.assertEqual(list(self.temporary.iterdir()), [], "a temporary file is left")
        return run

    def test_are_read_through_a_converter_on_the_path(self):
        script = f'[ "$1 $2" = "-y -o" ] && [ "$4" = "{self.drawing}" ] && cp "{plan()}" "$3"\n'
        run = self.run_with(script, "Circle: Radius > 10")
        self.assertEqual(run.lines, Run(plan(), "Circle: Radius > 10").lines)
        self.assertEqual(run.status, SELECTED)

    def test_are_never_replaced_by_their_selection(self):
        run = self.run_with(f'cp "{plan()}" "$3"\n', "Circle", "--write", self.drawing,
                            "--overwrite")
        self.assertEqual(run.status, CANNOT_WORK)
        self.assertIn("written over the file that it comes from", run.errors)
        self.assertTrue(self.drawing.read_bytes().startswith(b"AC1027"))

    def test_are_refused_with_advice_where_there_is_none(self):
        run = self.run_with(None, "Circle")
        self.assertEqual((run.status, run.lines), (CANNOT_WORK, []))
        self.assertRegex(run.errors, r"plan\.dwg: The file is a DWG drawing\. Install .*dwg2dxf")

    def test_are_refused_where_the_converter_fails_or_writes_nothing(self):
        for script in ("exit 1\n", "exit 0\n", "kill -SEGV $$\n"):
            run = self.run_with(script, "Circle")
            self.assertEqual((run.status, run.lines), (CANNOT_WORK, []))
            self.assertIn("can't be converted", run.errors)

    def test_are_given_up_by_an_interrupt_with_their_converter(self):
        told = Path(self.folder.name) / "process"
        programs = Path(self.folder.name) / "bin"
        programs.mkdir()
        (programs / "dwg2dxf").write_text(f"#!/bin/sh\necho $$ > {told}\nexec sleep 60\n")
        (programs / "dwg2dxf").chmod(0o755)
        run = subprocess.Popen([support.program, str(self.drawing), "Circle"],
                               stderr=subprocess.PIPE,
                               env={**os.environ, "PATH": f"{programs}:/usr/bin:/bin",
                                    "TMPDIR": str(self.temporary)})
        while not (told.exists() and told.read_text().strip()):
            time.sleep(0.02)
        run.send_signal(signal.SIGINT)
        _, errors = run.communicate(timeout=30)
        self.assertEqual(run.returncode, INTERRUPTED, errors)
        self.assertFalse(Path(f"/proc/{told.read_text().strip()}").exists())
        self.assertEqual(list(self.temporary.iterdir()), [])


if __name__ == "__main__":
    support.main()
