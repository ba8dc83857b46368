#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints each measured thing beside its yardstick, what has a goal, and what may not grow faster than its log.

    vatro-bench --benchmark_format=json --benchmark_repetitions=9 >report; bench/ratios.py [--write] report...

A benchmark says in its label what it is compared with. The label has these parts, in any order, with "; " between them:

    vs YARDSTICK, at most 3              the ratio of the medians has this limit; "at most 20 µs more" limits the difference
    memory at most 2                     the same for the counter "bytes" of both
    over OTHER, at most 5                how much more it takes than another benchmark, which is the same with less to do
    goal 20 µs, memory goal 40 MiB       what is wanted; a goal that is missed is shown and is no failure

The median of the repetitions counts, and its range is shown. Exit 1 if a limit is not kept, or if what a label names was not measured.
With --write the tables replace those of README.md.
"""

import json
import re
import statistics
import sys
from pathlib import Path

PAGE = Path(__file__).resolve().parent / "README.md"
UNITS = {"s": 1.0, "ms": 1e-3, "µs": 1e-6, "ns": 1e-9, "us": 1e-6, "MiB": 2.0**20}


def time_text(seconds):
    for unit in ("s", "ms", "µs"):
        if seconds >= UNITS[unit]:
            return f"{seconds / UNITS[unit]:.3g} {unit}"
    return f"{seconds / UNITS['ns']:.3g} ns"


def memory_text(size):
    return f"{size / UNITS['MiB']:.1f} MiB"


class Results:
    """The times and sizes of all repetitions, and the label, of each benchmark by its name."""

    def __init__(self, reports):
        self.times, self.memory, self.labels = {}, {}, {}
        for report in reports:
            for run in sorted(report["benchmarks"], key=lambda run: (run["family_index"], run["per_family_instance_index"])):
                if run.get("error_occurred"):
                    sys.exit(f"{run['name']}: {run['error_message']}")
                if run["run_type"] == "iteration":
                    self._take(run)

    def _take(self, run):
        name = re.sub(r"/(iterations|repeats|real_time|manual_time|min_time).*$", "", run["run_name"])
        self.times.setdefault(name, []).append(run["real_time"] * UNITS[run["time_unit"]])
        if "bytes" in run:
            self.memory.setdefault(name, []).append(run["bytes"])
        self.labels[name] = run.get("label", "")


def with_range(values, text):
    return f"{text(statistics.median(values))} | {text(min(values))} - {text(max(values))}"


class Tables:
    HEADS = {
        "times": "| measured | | range | yardstick | | ratio | limit |\n|---|---:|---|---|---:|---:|---:|\n",
        "goals": "| | goal | median | range | |\n|---|---:|---:|---|---|\n",
        "growth": "| | takes so many times as long as | | limit |\n|---|---|---:|---:|\n",
    }

    def __init__(self):
        self.rows = {name: "" for name in self.HEADS}
        self.fault = False

    def compare(self, name, values, yardstick, compared, text, limit):
        more = re.fullmatch(r"([0-9.]+) (µs|ms) more", limit)
        median, against = statistics.median(values), statistics.median(compared)
        over = median - against > float(more[1]) * UNITS[more[2]] if more else median / against > float(limit)
        self.fault |= over
        self.rows["times"] += (f"| {name} | {with_range(values, text)} | {yardstick} | {text(against)} | "
                               f"{median / against:.3g}{' **over**' if over else ''} | {limit} |\n")

    def grow(self, name, values, other, compared, limit):
        ratio = statistics.median(values) / statistics.median(compared)
        over = ratio > float(limit)
        self.fault |= over
        self.rows["growth"] += f"| {name} | {other} | {ratio:.3g}{' **over**' if over else ''} | {limit} |\n"

    def aim(self, name, values, text, goal):
        reached = statistics.median(values) < goal
        self.rows["goals"] += f"| {name} | < {text(goal)} | {with_range(values, text)} | {'reached' if reached else '**missed**'} |\n"

    def text(self, name):
        return self.HEADS[name] + self.rows[name]


def take(tables, results, name, part):
    """Adds the rows of one part of a label."""
    times, memory = results.times, results.memory
    vs = re.search(r"(?:^|; )vs (.+?), at most", results.labels[name])

    def known(other, of):
        if other in of and name in of:
            return True
        print(f"{name} is compared with {other}, which was not measured", file=sys.stderr)
        tables.fault = True
        return False

    if match := re.fullmatch(r"vs (.+), at most (.+)", part):
        if known(match[1], times):
            tables.compare(name, times[name], match[1], times[match[1]], time_text, match[2])
    elif match := re.fullmatch(r"memory at most (.+)", part):
        if known(vs[1], memory):
            tables.compare(f"memory: {name}", memory[name], vs[1], memory[vs[1]], memory_text, match[1])
    elif match := re.fullmatch(r"over (.+), at most (.+)", part):
        if known(match[1], times):
            tables.grow(name, times[name], match[1], times[match[1]], match[2])
    elif match := re.fullmatch(r"goal ([0-9.]+) (.+)", part):
        tables.aim(name, times[name], time_text, float(match[1]) * UNITS[match[2]])
    elif match := re.fullmatch(r"memory goal ([0-9.]+) (.+)", part):
        tables.aim(f"memory: {name}", memory[name], memory_text, float(match[1]) * UNITS[match[2]])
    else:
        sys.exit(f"{name}: what does \"{part}\" mean?")


def replace_block(name, text):
    """Replaces what stands between two marks in README.md: <!-- name --> and <!-- /name -->."""
    page = PAGE.read_text()
    begin, end = f"<!-- {name} -->\n", f"<!-- /{name} -->\n"
    before, found, rest = page.partition(begin)
    _, ended, after = rest.partition(end)
    if not found or not ended:
        sys.exit(f"{PAGE.name} has no place for the table {name}")
    PAGE.write_text(before + begin + "\n" + text + "\n" + end + after)


def main():
    write = "--write" in sys.argv[1:]
    reports = [json.loads(Path(name).read_text()) for name in sys.argv[1:] if name != "--write"]
    results = Results(reports)
    tables = Tables()
    for name, label in results.labels.items():
        for part in filter(None, label.split("; ")):
            take(tables, results, name, part)
    context = reports[0]["context"]
    texts = {"times": f"{context['num_cpus']} processors of {context['mhz_per_cpu']} MHz, load average at the beginning "
                      f"{context['load_avg'][0]:.2f}, {max(map(len, results.times.values()))} repetitions:\n\n" + tables.text("times"),
             "growth": tables.text("growth"), "goals": tables.text("goals")}
    for name, text in texts.items():
        print(text)
        if write:
            replace_block(name, text)
    sys.exit(1 if tables.fault else 0)


if __name__ == "__main__":
    main()
