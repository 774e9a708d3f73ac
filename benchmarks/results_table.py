#!/usr/bin/env python3
"""Prints the results of the benchmark program as a Markdown table: results_table.py RESULTS.json"""

import json
import sys


def read_results(file):
    """The context, and the measurements by benchmark and by number of entities."""
    with open(file, encoding="utf-8") as stream:
        results = json.load(stream)
    measured = {}
    for result in results["benchmarks"]:
        if result["run_type"] != "iteration":
            continue
        name, entities, _clock = result["name"].rsplit("/", 2)
        measured.setdefault(name, {})[int(entities)] = result
    return results["context"], measured


def milliseconds(result):
    if result is None:
        return ""
    if result.get("error_occurred"):
        return "failed"
    return f"{result['cpu_time']:.1f}"


def rates(result):
    """Nanoseconds for an entity, bytes a second, and memory for each entity where it was measured."""
    if result is None or result.get("error_occurred"):
        return ["", "", ""]
    # What the library tells as rates goes by wall-clock time.
    seconds = result["real_time"] / 1e3
    entities = result["items_per_second"] * seconds
    size = result["bytes_per_second"] * seconds
    nanoseconds = f"{result['cpu_time'] * 1e6 / entities:.0f}"
    megabytes = f"{size / result['cpu_time'] / 1e3:.0f}"
    memory = f"{result['bytes_per_entity']:.0f}" if "bytes_per_entity" in result else ""
    return [nanoseconds, megabytes, memory]


def main():
    context, measured = read_results(sys.argv[1])
    distinct = {name: results for name, results in measured.items() if name.startswith("distinct")}
    mixed = {name: results for name, results in measured.items() if name not in distinct}
    load = ", ".join(f"{value:.1f}" for value in context["load_avg"])
    print(f"{context['num_cpus']} cores of {context['mhz_per_cpu']} MHz, load {load},", end=" ")
    print(f"{context['date'][:10]}\n")
    for table in filter(None, (mixed, distinct)):
        print_table(table)


def print_table(measured):
    """One table; its columns are the sizes that were measured."""
    sizes = sorted({size for results in measured.values() for size in results})
    heads = [f"{size:,} (ms)" for size in sizes]
    heads += ["ns/entity", "MB/s", "bytes/entity"]
    print("| Benchmark |", " | ".join(heads), "|")
    print("|---|" + "--:|" * len(heads))
    for name, results in measured.items():
        times = [milliseconds(results.get(size)) for size in sizes]
        print("|", " | ".join([name, *times, *rates(results.get(sizes[-1]))]), "|")
    print()


if __name__ == "__main__":
    main()
