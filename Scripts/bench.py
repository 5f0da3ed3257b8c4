#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs the benchmark programs one after another and prints their rows: ours against the reference of the same run."""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile

# Each program, and what the page calls its rows.
PROGRAMS = {"PromiseBenchmark": "Promises", "FeedBenchmark": "Feeds", "MetricsBenchmark": "Metrics",
            "FindingsBenchmark": "Attention", "FindBenchmark": "Find", "HistoryBenchmark": "History",
            "StoreBenchmark": "The store", "RefreshBenchmark": "Refreshing",
            "LatencyBenchmark": "Refreshing through a slow network", "ListBenchmark": "The main thread during a refresh",
            "ScrollBenchmark": "Long lists", "StartBenchmark": "Start", "ChartsBenchmark": "Charts"}
# Takes a quarter of an hour or longer, so it runs only when asked for.
LONG = {"SoakBenchmark": "A very large fleet, and a day of pulls"}


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


def is_absolute(row):
    """Whether the row's goal is a figure in its unit, and no ratio."""
    return row["reference"] == 1 and row.get("unit", "ns") != "ns"


def figure(value, unit):
    if unit == "ns":
        size, unit = next((each for each in ((1e9, "s"), (1e6, "ms"), (1e3, "µs")) if value >= each[0]), (1, "ns"))
        value /= size
    elif unit == "bytes" and value >= 1e6:
        value, unit = value / 1e6, "MB"
    return f"{value:,.{0 if value >= 100 or value == int(value) else 1 if value >= 10 else 2}f} {unit}".rstrip()


def page_row(row):
    unit = row.get("unit", "ns")
    name = row["name"].replace("|", "\\|")
    missed = "" if row["met"] else " **missed**"
    if is_absolute(row):
        return f"| {name} | {figure(row['ours'], unit)}{missed} | ≤ {figure(row['goal'], unit)} | | |"
    return (f"| {name} | {row['ratio']:.2f} ×{missed} | ≤ {row['goal']:g} × | {figure(row['ours'], unit)} |"
            f" {figure(row['reference'], unit)} |")


def page(rows):
    titles = PROGRAMS | LONG
    parts = [f"\n## {titles[program]}\n\n| path | measured | goal | Lodestar | reference |\n|---|---|---|---|---|\n" +
             "\n".join(map(page_row, found)) + "\n"
             for program in titles if (found := [row for row in rows if row["program"] == program])]
    met = sum(row["met"] for row in rows)
    return f"""# How fast Lodestar is

Made by `./bench --page docs/performance.md`. {met} of {len(rows)} goals are met.

A ratio is Lodestar's figure divided by that of the reference that the row names behind its stroke: something known doing
the same work, in the same run. Times are compared by turns in random order, at least eleven times, and the medians
count. A row without a reference has a limit that a person would notice, such as a frame of 16 ms. Compare ratios: the
times are those of one machine on one day.
{"".join(parts)}"""


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True, help="write the rows there as JSON")
    parser.add_argument("--page", type=pathlib.Path, help="write the rows there as Markdown")
    parser.add_argument("--again", action="store_true", help="run nothing: take the rows that were written last")
    parser.add_argument("--long", action="store_true", help="run the long programs as well")
    parser.add_argument("only", nargs="*", help="programs to run instead of all")
    arguments = parser.parse_args()
    rows = json.loads(arguments.out.read_text()) if arguments.again else []
    print(f"{'row':<76} {'ours':>14} {'reference':>14} {'unit':<5} {'ratio':>7}    {'goal':<6}")
    built = {path.name for path in (arguments.build / "bin").glob("*Benchmark")}
    if left_out := built - PROGRAMS.keys() - LONG.keys():
        sys.exit(f"no row of this script runs {', '.join(sorted(left_out))}")
    for row in rows:
        print(line(row))
    for name in [] if arguments.again else arguments.only or [*PROGRAMS, *(LONG if arguments.long else [])]:
        found = [{"program": name, **row} for row in rows_of(arguments.build / "bin" / name)]
        for row in found:
            print(line(row), flush=True)
        rows += found
    arguments.out.write_text(json.dumps(rows, indent=2) + "\n")
    if arguments.page:
        arguments.page.write_text(page(rows))
    sys.exit(0 if all(row["met"] for row in rows) else 2)


if __name__ == "__main__":
    main()
