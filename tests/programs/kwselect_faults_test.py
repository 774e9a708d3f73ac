#!/usr/bin/env python3
"""What kwselect does when the machine or the user's files are at fault: one clear message, and all data
as it was."""

import ctypes
import os
import resource
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import support
from support import CANNOT_WORK, INTERRUPTED, NOTHING, SELECTED, Run

DROP_CAPABILITY, OVERRIDE_RIGHTS, SEARCH_ALL = 24, 1, 2


def as_plain_user():
    """In the child: takes from root the right to pass over the rights of files."""
    if os.geteuid() != 0:
        return
    library = ctypes.CDLL(None, use_errno=True)
    for capability in (OVERRIDE_RIGHTS, SEARCH_ALL):
        if library.prctl(DROP_CAPABILITY, capability, 0, 0, 0) != 0:
            raise OSError(ctypes.get_errno(), "a capability can't be dropped")


def large_drawing(path, copies):
    """Lines, 20000 of them a copy."""
    with path.open("w") as file:
        file.write("0\nSECTION\n2\nENTITIES\n")
        for _ in range(copies):
            file.write("0\nLINE\n8\n0\n10\n1.0\n20\n2.0\n" * 20000)
        file.write("0\nENDSEC\n0\nEOF\n")
    return path


class FaultTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)
        self.drawing = self.folder / "plan.dxf"
        shutil.copy(support.plan(), self.drawing)

    def entries(self):
        return sorted(os.listdir(self.folder))

    def run_child(self, *arguments, **options):
        """As `Run`, with what subprocess offers."""
        environment = {**os.environ, **options.pop("environment", {})}
        done = subprocess.run([support.program, *map(str, arguments)], capture_output=True, timeout=120,
                              env=environment, check=False, **options)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def refused(self, message, *arguments, **options):
        """Ends with the status for that, prints nothing, and tells this in one line."""
        status, output, errors = self.run_child(*arguments, **options)
        self.assertEqual((status, output), (CANNOT_WORK, ""), errors)
        self.assertEqual(errors, f"kwselect: {message}\n")


class Drawings(FaultTest):
    def test_that_may_not_be_read_are_told(self):
        self.drawing.chmod(0)
        self.refused(f"{self.drawing}: The file can't be read: no permission.", self.drawing, "Circle",
                     preexec_fn=as_plain_user)

    def test_that_are_folders_are_told(self):
        folder = self.folder / "folder.dxf"
        folder.mkdir()
        self.refused(f"{folder}: The file is a folder, not a drawing.", folder, "Circle")

    def test_that_are_pipes_and_devices_are_told_at_once(self):
        pipe = self.folder / "pipe.dxf"
        os.mkfifo(pipe)
        for path in (pipe, Path("/dev/null")):
            self.refused(f"{path}: The file is no regular file.", path, "Circle")

    def test_that_are_empty_are_told(self):
        self.drawing.write_bytes(b"")
        status, output, errors = self.run_child(self.drawing, "Circle")
        self.assertEqual((status, output), (CANNOT_WORK, ""))
        self.assertRegex(errors, rf"^kwselect: {self.drawing}: [^\n]+\.\n$")

    CHANGED = "The file was changed by another program "

    def test_that_shrink_while_they_are_read_give_the_whole_answer_or_a_message(self):
        for part in (0.9, 0.5, 0.1):
            with self.subTest(part):
                large_drawing(self.drawing, 40)
                whole = self.drawing.stat().st_size
                program = subprocess.Popen([support.program, str(self.drawing), "Line", "--count"],
                                           stdout=subprocess.PIPE, stderr=subprocess.PIPE)
                os.truncate(self.drawing, int(whole * part))
                output, errors = program.communicate(timeout=120)
                if program.returncode == CANNOT_WORK:
                    self.assertIn(self.CHANGED, errors.decode())
                elif program.returncode == SELECTED:
                    self.assertEqual(int(output), 800000, errors)
                else: # it was cut short before it was opened
                    self.assertEqual(program.returncode, support.IN_PART, errors)
                    self.assertGreaterEqual(int(output), 800000 * part - 1)

    def test_that_change_while_they_are_read_do_no_harm(self):
        large_drawing(self.drawing, 40)
        program = subprocess.Popen([support.program, str(self.drawing), "Line", "--dump"],
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        with self.drawing.open("r+b") as file:
            for place in range(0, file.seek(0, os.SEEK_END), 1 << 16):
                if program.poll() is not None:
                    break
                file.seek(place)
                file.write(b"\xff" * 1000)
        _, errors = program.communicate(timeout=120)
        self.assertIn(program.returncode, (SELECTED, NOTHING, CANNOT_WORK, support.IN_PART), errors)

    def meddled_with(self, meddle):
        """Changes a drawing when rows of the answer have been printed and no more find room."""
        large_drawing(self.drawing, 5)
        program = subprocess.Popen([support.program, str(self.drawing), "Line", "--columns",
                                    "Handle,Layer", "--format", "csv"],
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        program.stdout.read(1)
        meddle()
        _, errors = program.communicate(timeout=120)
        return program.returncode, errors.decode()

    def test_that_are_cut_short_during_the_search_are_told(self):
        status, errors = self.meddled_with(lambda: os.truncate(self.drawing, 100000))
        self.assertEqual(status, CANNOT_WORK)
        self.assertEqual(errors.splitlines()[-1],
                         f"kwselect: {self.drawing}: {self.CHANGED}during the search; its answer may "
                         "be wrong.")

    def test_that_are_overwritten_during_the_search_are_told(self):
        def meddle():
            with self.drawing.open("r+b") as file:
                file.seek(200000)
                file.write(b"9" * 1000)
        status, errors = self.meddled_with(meddle)
        self.assertEqual(status, CANNOT_WORK)
        self.assertIn(self.CHANGED, errors)

    def test_that_are_replaced_during_the_search_are_searched_as_they_were(self):
        def meddle():
            other = self.folder / "other.dxf"
            other.write_text("nothing")
            other.replace(self.drawing)
        status, errors = self.meddled_with(meddle)
        self.assertEqual(status, SELECTED, errors)
        self.assertNotIn(self.CHANGED, errors)


class Lists(FaultTest):
    def test_that_name_themselves_hold_a_drawing_that_is_none(self):
        names = self.folder / "list.txt"
        for line in (str(names), f"@{names}"):
            names.write_text(f"{self.drawing}\n{line}\n")
            status, output, errors = self.run_child(f"@{names}", "Circle", "--count")
            self.assertEqual(status, CANNOT_WORK)
            self.assertEqual([row.split("\t")[0] for row in output.splitlines()], [str(self.drawing)])
            self.assertRegex(errors, rf"^kwselect: {line}: [^\n]+\.\n"
                                     r"kwselect: 1 drawings read, 1 failed\n$")

    def test_that_are_folders_or_may_not_be_read_are_told(self):
        self.refused(f"{self.folder}: the list of drawings can't be read", f"@{self.folder}", "Circle")
        names = self.folder / "list.txt"
        names.write_text(str(self.drawing))
        names.chmod(0)
        self.refused(f"{names}: the list of drawings can't be read", f"@{names}", "Circle",
                     preexec_fn=as_plain_user)


class Disks(FaultTest):
    def small_files(self):
        resource.setrlimit(resource.RLIMIT_FSIZE, (10, 10))

    def test_that_are_full_leave_the_old_drawing(self):
        target = self.folder / "part.dxf"
        target.write_text("old")
        status, _, errors = self.run_child(self.drawing, "Circle", "--write", target, "--overwrite",
                                           preexec_fn=self.small_files)
        self.assertEqual(status, CANNOT_WORK)
        self.assertIn(f"kwselect: {target}: There is no room for the file.\n", errors)
        self.assertEqual((target.read_text(), self.entries()), ("old", ["part.dxf", "plan.dxf"]))

    def test_that_are_full_leave_the_old_output(self):
        target = self.folder / "out.csv"
        target.write_text("old")
        status, output, errors = self.run_child(self.drawing, "Line", "--output", target, "--overwrite",
                                                preexec_fn=self.small_files)
        self.assertEqual((status, output), (CANNOT_WORK, ""))
        self.assertIn(f"kwselect: {target}: There is no room for the file.\n", errors)
        self.assertEqual((target.read_text(), self.entries()), ("old", ["out.csv", "plan.dxf"]))

    def test_that_are_full_are_told_by_each_format(self):
        for form in ("tsv", "csv", "json", "jsonl", "table", "handles"):
            with self.subTest(form), open("/dev/full", "wb") as full:
                done = subprocess.run([support.program, str(self.drawing), "Line", "--format", form],
                                      stdout=full, stderr=subprocess.PIPE, check=False, timeout=120)
                self.assertEqual(done.returncode, CANNOT_WORK)
                self.assertIn(b"kwselect: the output can't be written\n", done.stderr)

    def test_folders_that_are_read_only_are_told_and_stay(self):
        closed = self.folder / "closed"
        closed.mkdir()
        closed.chmod(0o500)
        self.addCleanup(closed.chmod, 0o700)
        self.refused(f"{closed}/out.csv: The folder can't be written to.", self.drawing, "Circle", "--output",
                     closed / "out.csv", preexec_fn=as_plain_user)
        status, _, errors = self.run_child(self.drawing, "Circle", "--write", closed / "part.dxf",
                                           preexec_fn=as_plain_user)
        self.assertEqual(status, CANNOT_WORK)
        self.assertIn(f"kwselect: {closed}/part.dxf: The folder can't be written to.\n", errors)
        self.assertEqual(os.listdir(closed), [])

    def test_devices_are_no_files_to_replace(self):
        self.refused("/dev/null: The target is no regular file.", self.drawing, "Circle", "--output", "/dev/null",
                     "--overwrite")
        self.assertTrue(Path("/dev/null").is_char_device())


class Homes(FaultTest):
    def test_that_are_gone_do_not_matter(self):
        expected = Run(self.drawing, "Circle").lines
        for home in ({"HOME": "/nowhere"}, {"HOME": ""}, {"HOME": "/dev/null"}):
            environment = {**home, "XDG_CONFIG_HOME": ""}
            status, output, _ = self.run_child(self.drawing, "Circle", environment=environment)
            self.assertEqual((status, output.splitlines()), (SELECTED, expected))
        self.assertEqual(self.entries(), ["plan.dxf"])

    def test_that_are_gone_have_no_filters(self):
        status, _, errors = self.run_child(self.drawing, "@pipes",
                                           environment={"HOME": "/nowhere", "XDG_CONFIG_HOME": ""})
        self.assertEqual(status, CANNOT_WORK)
        self.assertIn("/nowhere/.config/kwqselect/filters.txt holds none", errors)

    def test_a_folder_that_is_gone_is_no_place_to_start_from(self):
        gone = self.folder / "gone"
        gone.mkdir()
        status, output, _ = self.run_child(self.drawing, "Circle", "--count", cwd=gone,
                                           preexec_fn=gone.rmdir)
        self.assertEqual((status, output), (SELECTED, f"{len(Run(self.drawing, 'Circle').lines)}\n"))


class Modules(FaultTest):
    def test_that_are_gone_are_told(self):
        prefix = self.folder / "prefix"
        shutil.copytree(Path(support.program).parent.parent, prefix, symlinks=True)
        (prefix / "lib/kwqselect/KwQselectUtil.so").unlink()
        status, output, errors = run_program(prefix / "bin/kwselect", self.drawing, "Circle")
        self.assertEqual((status, output), (CANNOT_WORK, ""))
        self.assertRegex(errors, r"^kwselect: the quick-select module can't be loaded: [^\n]+\n$")

    def test_that_are_none_are_told(self):
        text = self.folder / "text.so"
        text.write_text("no module")
        for module in (text, self.folder):
            status, output, errors = self.run_child(self.drawing, "Circle",
                                                    environment={"KW_MODULE": str(module)})
            self.assertEqual((status, output), (CANNOT_WORK, ""))
            self.assertRegex(errors, r"^kwselect: the quick-select module can't be loaded: [^\n]+\n$")

    def test_that_lack_a_function_are_told(self):
        host = Path(support.program).parent.parent / "lib/libkwhost.so"
        self.refused("the quick-select module lacks the function DllMain", self.drawing, "Circle",
                     environment={"KW_MODULE": str(host)})

    def test_work_with_their_default_texts_where_the_resources_are_gone(self):
        expected = Run(self.drawing, "Layer = WALLS").lines
        prefix = self.folder / "prefix"
        shutil.copytree(Path(support.program).parent.parent, prefix, symlinks=True)
        shutil.rmtree(prefix / "lib/kwqselect/resources")
        status, output, errors = run_program(prefix / "bin/kwselect", self.drawing, "Layer = WALLS")
        self.assertEqual((status, output.splitlines()), (SELECTED, expected))
        self.assertRegex(errors, r'^(KwQselect: The string id \d+ "[^"]+" was not found in the resource '
                                 r'file\.\n)+\s*\d+ item\(s\) selected\.\n$')


def run_program(program, *arguments):
    done = subprocess.run([program, *map(str, arguments)], capture_output=True, timeout=120, check=False)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


class Signals(FaultTest):
    """Requests to end at any moment of writing leave the old file, or the new one, and nothing else."""

    def end_while_writing(self, number, option, target):
        large_drawing(self.drawing, 10)
        for delay in (0.0, 0.02, 0.05, 0.1, 0.2, 0.4, 0.8):
            target.write_text("old")
            program = subprocess.Popen([support.program, str(self.drawing), "Line", option, str(target),
                                        "--overwrite"], stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
            time.sleep(delay)
            program.send_signal(number)
            program.communicate(timeout=120)
            self.assertIn(program.returncode, (-number, INTERRUPTED, SELECTED))
            self.assertEqual(self.entries(), sorted(["plan.dxf", target.name]))
            if program.returncode != SELECTED:
                self.assertEqual(target.read_text(), "old")

    def test_to_end(self):
        self.end_while_writing(signal.SIGTERM, "--write", self.folder / "part.dxf")

    def test_to_end_while_printing_into_a_file(self):
        self.end_while_writing(signal.SIGTERM, "--output", self.folder / "part.csv")

    def test_from_the_keyboard(self):
        self.end_while_writing(signal.SIGINT, "--write", self.folder / "part.dxf")

    def test_that_can_not_be_caught(self):
        self.end_while_writing(signal.SIGKILL, "--write", self.folder / "part.dxf")


class Streams(FaultTest):
    def test_without_an_output_nothing_is_printed_into_files(self):
        target = self.folder / "part.dxf"
        status, _, errors = self.closing([1], self.drawing, "Circle", "--write", target)
        self.assertEqual(status, CANNOT_WORK)
        self.assertIn("kwselect: the output can't be written\n", errors)
        expected = self.folder / "expected.dxf"
        Run(self.drawing, "Circle", "--write", expected)
        self.assertEqual(target.read_bytes(), expected.read_bytes())

    def test_without_any_of_them_the_answer_is_still_written(self):
        target = self.folder / "out.csv"
        status, _, _ = self.closing([0, 1, 2], self.drawing, "Circle", "--output", target)
        expected = self.folder / "expected.csv"
        Run(self.drawing, "Circle", "--output", expected)
        self.assertEqual(status, SELECTED)
        self.assertEqual(target.read_bytes(), expected.read_bytes())

    def closing(self, streams, *arguments):
        def close_them():
            for stream in streams:
                os.close(stream)

        return self.run_child(*arguments, preexec_fn=close_them)


if __name__ == "__main__":
    support.main()
