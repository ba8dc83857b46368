#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints each measured thing beside its yardstick.

    vatro-bench --benchmark_format=json --benchmark_repetitions=9 | bench/ratios.py

A benchmark names its yardstick and its limit in its label, as "bare scan, at most 2". The median of the repetitions
counts. Exit 1 if a limit is not kept or a yardstick is missing.
"""

import json
import re
import statistics
import sys


def text(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def main():
    report = json.load(sys.stdin)
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    times, labels = {}, {}
    for run in sorted(report["benchmarks"], key=lambda run: (run["family_index"], run["per_family_instance_index"])):
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        if run["run_type"] != "iteration":
            continue
        name = re.sub(r"/(iterations|repeats|real_time|manual_time|min_time).*$", "", run["run_name"])
        times.setdefault(name, []).append(run["real_time"] * units[run["time_unit"]])
        labels[name] = run.get("label", "")

    fault = False
    print("| measured | time | yardstick | time | ratio | limit |")
    print("|---|---|---|---|---|---|")
    for name, label in labels.items():
        match = re.fullmatch(r"(.+), at most ([0-9.]+)", label)
        if not match:
            continue
        yardstick, limit = match[1], float(match[2])
        if yardstick not in times:
            print(f"no yardstick {yardstick} for {name}", file=sys.stderr)
            fault = True
            continue
        measured, compared = statistics.median(times[name]), statistics.median(times[yardstick])
        ratio = measured / compared
        over = " **over**" if ratio > limit else ""
        print(f"| {name} | {text(measured)} | {yardstick} | {text(compared)} | {ratio:.2f}{over} | {limit:g} |")
        fault |= ratio > limit
    sys.exit(1 if fault else 0)


if __name__ == "__main__":
    main()
