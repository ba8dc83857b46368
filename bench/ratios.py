#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints each measured thing beside its yardstick.

    vatro-bench --benchmark_format=json --benchmark_repetitions=9 | bench/ratios.py

A benchmark names its yardstick in its label, and its limit if it has one, as "vs bare scan, at most 2" or "vs bare scan, at most 20 µs more".
The median of the repetitions counts. A benchmark with the counter "bytes" has a second line for its memory. Exit 1 if a limit is not kept or a yardstick is missing.
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


def row(name, measured, yardstick, compared, limit):
    """Prints a row of figures with their unit; false if the limit is not kept."""
    ratio = measured[0] / compared[0]
    more = re.fullmatch(r"([0-9.]+) µs more", limit or "")
    over = measured[0] - compared[0] > float(more[1]) * 1e-6 if more else limit is not None and ratio > float(limit)
    print(f"| {name} | {measured[1]} | {yardstick} | {compared[1]} | {ratio:.3g}{' **over**' if over else ''} | {limit or '-'} |")
    return not over


def main():
    report = json.load(sys.stdin)
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    times, memory, labels = {}, {}, {}
    for run in sorted(report["benchmarks"], key=lambda run: (run["family_index"], run["per_family_instance_index"])):
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        if run["run_type"] != "iteration":
            continue
        name = re.sub(r"/(iterations|repeats|real_time|manual_time|min_time).*$", "", run["run_name"])
        times.setdefault(name, []).append(run["real_time"] * units[run["time_unit"]])
        if "bytes" in run:
            memory.setdefault(name, []).append(run["bytes"])
        labels[name] = run.get("label", "")

    fault = False
    print("| measured | | yardstick | | ratio | limit |")
    print("|---|---|---|---|---|---|")
    for name, label in labels.items():
        match = re.fullmatch(r"vs (.+?)(?:, at most ([0-9.]+(?: µs more)?))?", label)
        if not match:
            continue
        yardstick, limit = match[1], match[2]
        if yardstick not in times:
            print(f"no yardstick {yardstick} for {name}", file=sys.stderr)
            fault = True
            continue
        seconds = [statistics.median(times[which]) for which in (name, yardstick)]
        fault |= not row(name, (seconds[0], text(seconds[0])), yardstick, (seconds[1], text(seconds[1])), limit)
        if name in memory and yardstick in memory:
            size = [statistics.median(memory[which]) for which in (name, yardstick)]
            told = [f"{bytes / 1e6:.1f} MB" for bytes in size]
            row("its memory", (size[0], told[0]), "its memory", (size[1], told[1]), None)
    sys.exit(1 if fault else 0)


if __name__ == "__main__":
    main()
