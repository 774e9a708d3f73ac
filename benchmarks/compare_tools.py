#!/usr/bin/env python3
"""Puts the same questions about one drawing to several programs: compare_tools.py [--drawing FILE]

Each question is a whole run of a program, from start to the printed count, without anything kept
from one run to the next. Programs that are not installed are left out. Prints a Markdown table.
"""

import argparse
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
BUILD = HERE.parent / "build-benchmark"
PYTHON = "/usr/bin/python3"

RADIUS = 50.0
LAYER = "PIPE-003"

EZDXF = """
import sys, ezdxf
space = ezdxf.readfile(sys.argv[1]).modelspace()
if sys.argv[2] == "radius":
    print(sum(1 for e in space if e.dxftype() == "CIRCLE" and e.dxf.radius > float(sys.argv[3])))
else:
    print(sum(1 for e in space if e.dxf.layer == sys.argv[3]))
"""

EZDXF_ONE_PASS = """
import sys
from ezdxf.addons import iterdxf
drawing = iterdxf.opendxf(sys.argv[1])
if sys.argv[2] == "radius":
    circles = drawing.modelspace(types=["CIRCLE"])
    print(sum(1 for e in circles if e.dxf.radius > float(sys.argv[3])))
else:
    print(sum(1 for e in drawing.modelspace() if e.dxf.layer == sys.argv[3]))
"""


def has_ezdxf():
    test = [PYTHON, "-c", "import ezdxf"]
    return os.path.exists(PYTHON) and subprocess.run(test, capture_output=True).returncode == 0


def build_libdime_counter(folder):
    """The program that asks libdime; none where the library or a compiler is missing."""
    program = Path(folder) / "count_with_libdime"
    compiler = shutil.which("g++") or shutil.which("clang++")
    if not compiler:
        return None
    source = HERE / "count_with_libdime.cpp"
    build = [compiler, "-O2", source, "-o", program, "-ldime"]
    return program if subprocess.run(build, capture_output=True).returncode == 0 else None


def commands(drawing, folder):
    """Name of the program, question, command. None for a question that it can't answer."""
    kwselect = BUILD / "bin" / "kwselect"
    yield "kwselect", "radius", [kwselect, drawing, f"Circle:Radius > {RADIUS:g}", "--count"]
    yield "kwselect", "layer", [kwselect, drawing, f"*:Layer = {LAYER}", "--count"]
    values = {"radius": str(RADIUS), "layer": LAYER}
    if counter := build_libdime_counter(folder):
        for question, value in values.items():
            yield "libdime", question, [counter, drawing, question, value]
    if shutil.which("ogrinfo"):
        # It turns circles into chains of points, so their radius can't be asked for.
        sql = f"SELECT COUNT(*) FROM entities WHERE Layer='{LAYER}'"
        yield "ogrinfo", "radius", None
        yield "ogrinfo", "layer", ["ogrinfo", "-ro", "-q", drawing, "-sql", sql]
    if has_ezdxf():
        for name, script in (("ezdxf, one pass", EZDXF_ONE_PASS), ("ezdxf", EZDXF)):
            for question, value in values.items():
                yield name, question, [PYTHON, "-c", script, drawing, question, value]


def run(command):
    """Processor time and wall-clock time in seconds, memory in bytes, and the printed number."""
    begin = time.monotonic()
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
        output = process.stdout.read().decode(errors="replace")
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
    elapsed = time.monotonic() - begin
    if process.returncode != 0:
        return None
    words = output.split()
    answer = words[-1] if words else ""
    return usage.ru_utime + usage.ru_stime, elapsed, usage.ru_maxrss * 1024, answer


def best(command, repetitions):
    runs = [run(command) for _ in range(repetitions)]
    return None if None in runs else min(runs, key=lambda measured: measured[0])


def row(name, question, measured, reference):
    if measured is None:
        return [name, question, "can't answer", "", "", "", ""]
    processor, elapsed, memory, answer = measured
    ratio = f"{processor / reference[0]:.1f}"
    agrees = answer if answer == reference[3] else f"{answer} (differs)"
    return [name, question, f"{processor:.2f}", ratio, f"{elapsed:.2f}", f"{memory / 1e6:.0f}", agrees]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split(":")[0])
    parser.add_argument("--drawing", default=BUILD / "benchmarks" / "drawings" / "100000.dxf")
    parser.add_argument("--repetitions", type=int, default=3, help="the best of so many counts")
    parser.add_argument("--without", action="append", default=[], help="leave a program out")
    options = parser.parse_args()
    size = os.path.getsize(options.drawing) / 1e6
    load = os.getloadavg()[0]
    print(f"{Path(options.drawing).name}, {size:.0f} MB, load {load:.1f}\n")
    heads = ["Program", "Question", "CPU (s)", "Ratio", "Wall (s)", "Memory (MB)", "Answer"]
    print("|", " | ".join(heads), "|")
    print("|---|---|" + "--:|" * (len(heads) - 2))
    references = {}
    with tempfile.TemporaryDirectory() as folder:
        for name, question, command in commands(options.drawing, folder):
            if name in options.without:
                continue
            measured = command and best(command, options.repetitions)
            reference = references.setdefault(question, measured)
            if reference is None:
                sys.exit(f"{name} does not answer the question about the {question}")
            print("|", " | ".join(row(name, question, measured, reference)), "|", flush=True)


if __name__ == "__main__":
    main()
