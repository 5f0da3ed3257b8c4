#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs the benchmark programs one after another and prints their rows: ours against the reference of the same run."""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile

PROGRAMS = ["PromiseBenchmark", "FeedBenchmark", "MetricsBenchmark", "FindingsBenchmark", "HistoryBenchmark", "StoreBenchmark",
            "RefreshBenchmark", "LatencyBenchmark", "ListBenchmark", "ScrollBenchmark", "StartBenchmark", "ChartsBenchmark"]
# Takes a quarter of an hour or longer, so it runs only when asked for.
LONG = ["SoakBenchmark"]


def rows_of(program):
    with tempfile.TemporaryDirectory() as folder:
        rows = pathlib.Path(folder) / "rows.json"
        done = subprocess.run([program, "--rows", rows], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode != 0:
            sys.stderr.write(done.stdout)
            sys.exit(f"{program.name} ended with {done.returncode}")
        return json.loads(rows.read_text())


def line(row):
    unit = row.get("unit", "ns")
    met = "met" if row["met"] else "NOT MET"
    return (f"{row['name']:<76} {row['ours']:>14.1f} {row['reference']:>14.1f} {unit:<5}"
            f" {row['ratio']:>7.3f} <= {row['goal']:<6g} {met}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True)
    parser.add_argument("--long", action="store_true", help="run the long programs as well")
    parser.add_argument("only", nargs="*", help="programs to run instead of all")
    arguments = parser.parse_args()
    rows = []
    print(f"{'row':<76} {'ours':>14} {'reference':>14} {'unit':<5} {'ratio':>7}    {'goal':<6}")
    for name in arguments.only or PROGRAMS + (LONG if arguments.long else []):
        found = rows_of(arguments.build / "bin" / name)
        for row in found:
            print(line(row), flush=True)
        rows += found
    arguments.out.write_text(json.dumps(rows, indent=2) + "\n")
    sys.exit(0 if all(row["met"] for row in rows) else 2)


if __name__ == "__main__":
    main()
