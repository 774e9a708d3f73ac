#!/usr/bin/env bash
# Builds the benchmarks, makes their drawings, measures, and prints the results as a table. Takes the
# options of the benchmark program, such as --benchmark_filter=load
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup" --tests
"$root/scripts/build" build-benchmark -DCMAKE_BUILD_TYPE=Release -DKW_BUILD_TESTS=OFF \
  -DKW_BUILD_BENCHMARKS=ON -- quick_select_benchmark dialog_benchmark benchmark_drawings >&2

results="$root/build-benchmark/benchmarks/results.json"
"$root/build-benchmark/bin/quick_select_benchmark" \
  --benchmark_out="$results" --benchmark_out_format=json "$@" >&2
QT_QPA_PLATFORM=offscreen "$root/build-benchmark/bin/dialog_benchmark" >&2
python3 "$root/benchmarks/results_table.py" "$results"
