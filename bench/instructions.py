#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts instructions with valgrind, prints them as tables, and compares them with the values in the tree.

    bench/instructions.py [--quick] [--check] [--write] [BUILD]

BUILD is a build directory, build/release if none is named; bench/run builds it first. Valgrind counts what a program does, not how long
that takes, so neither the speed of the machine nor what else it does changes the result. Each process runs at fixed addresses, with fixed
hash seeds, in one locale and without a screen.

--check fails if a count is more than 5 % above its value in bench/instructions.tsv. One that is below passes, and is reported.
--write stores the counts there and puts the tables into README.md. With --quick the logs of 100,000 lines and the longer import into the window are left out.
"""

import glob
import os
import re
import statistics
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.dont_write_bytecode = True
from ratios import replace_block  # noqa: E402

BENCH = Path(__file__).resolve().parent
VALUES = BENCH / "instructions.tsv"
TOLERANCE = 1.05
LENGTHS = (100, 1_000, 10_000, 100_000)
START_LINES = 10_000
# What is wanted. A goal that is missed is shown and is no failure.
GOALS = {("start to the painted log", START_LINES): 120_000_000, ("country lookup, ZS", 0): 2_500, ("error list of ten logs", 0): 67_800_000}


def environment(home, **more):
    kept = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH") if name in os.environ}
    return kept | {"HOME": home, "XDG_RUNTIME_DIR": home, "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen",
                   "QT_HASH_SEED": "0", "QT_LOGGING_RULES": "*=false"} | more


def profiles(command, home, *options, **variables):
    """Runs a program below valgrind and returns its profiles in the order in which they were written."""
    with tempfile.TemporaryDirectory(dir=home) as directory:
        done = subprocess.run(["setarch", "-R", "valgrind", "-q", "--tool=callgrind", *options, f"--callgrind-out-file={directory}/out",
                               *command], env=environment(home, **variables), cwd=home, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
        if done.returncode:
            sys.exit(f"{command[0]} has failed below valgrind:\n{done.stdout}")
        # The first dump is out.1; out itself is written at the end.
        files = sorted(glob.glob(directory + "/out*"), key=lambda name: int(name.rpartition(".")[2]) if name[-1].isdigit() else sys.maxsize)
        return [Path(name).read_text(errors="replace") for name in files]


def total(profile):
    return int(re.search(r"^(?:summary|totals): (\d+)", profile, re.M)[1])


def pieces(build, program, arguments, home):
    """The counts of the pieces of work that a program marks, see counted.h: {(name, lines): instructions}."""
    rounds = {}
    for profile in profiles([f"{build}/bin/{program}", *map(str, arguments)], home, "--instr-atstart=no", "--collect-atstart=no"):
        mark = re.search(r"^desc: Trigger: Client Request: (.*)\|(\d+)\|(\d+)$", profile, re.M)
        if mark:
            rounds.setdefault((mark[1], int(mark[2])), []).append(total(profile) / int(mark[3]))
    return {piece: round(statistics.median(counts)) for piece, counts in rounds.items()}


def start(build, name, program, lines, home):
    """The whole process up to its painted window, see probe.cpp."""
    profile = profiles([f"{build}/bin/{program}"], home, QT_PLUGIN_PATH=f"{build}/bench/plugins",
                        QT_QPA_GENERIC_PLUGINS=f"vatroprobe:{lines}")[-1]
    return {(name, lines): total(profile)}


def count_all(build, quick):
    lengths = [length for length in LENGTHS if not (quick and length == 100_000)]
    imports = ["import:2500"] + ([] if quick else ["import:10000"])
    with tempfile.TemporaryDirectory(prefix="vatro-count-") as directory:
        homes = [f"{directory}/{name}" for name in ("logic", "window", "start", "empty")]
        for home in homes:
            os.mkdir(home, 0o700)
        logic, window, program, empty = homes
        subprocess.run([f"{build}/bin/vatro-count", "--furnish", program, str(START_LINES)], check=True, cwd=directory)
        # The longest first. A process has few threads of its own, and one of them is counted, so they can run side by side.
        with ThreadPoolExecutor(os.cpu_count()) as workers:
            jobs = [workers.submit(pieces, build, "vatro-count-window", [*lengths, *imports], window),
                    workers.submit(start, build, "start to the painted log", "vatro", START_LINES, program),
                    workers.submit(start, build, "start to an empty window", "vatro-bench-empty", 0, empty),
                    workers.submit(pieces, build, "vatro-count", lengths, logic)]
            counts = {}
            for job in reversed(jobs):
                counts |= job.result()
    return counts


def versions(build):
    """What the counts depend on besides the tree."""
    cache = (Path(build) / "CMakeCache.txt").read_text()
    compiler = re.search(r"^CMAKE_CXX_COMPILER:[^=]*=(.*)$", cache, re.M)[1]
    first = lambda *command: subprocess.run(command, stdout=subprocess.PIPE, text=True).stdout.partition("\n")[0]
    linked = subprocess.run(["ldd", f"{build}/bin/vatro-bench-empty"], stdout=subprocess.PIPE, text=True).stdout
    qt = re.search(r"libQt6Core\.so\.6 => (\S+)", linked)
    told = [first(compiler, "-dumpfullversion"), first("getconf", "GNU_LIBC_VERSION"),
            os.path.basename(os.path.realpath(qt[1])) if qt else "no Qt", first("valgrind", "--version")]
    # The C library chooses its functions by what the processor has, of which valgrind shows it AVX2 at most.
    told.append("AVX2" if re.search(r"^flags.* avx2\b", Path("/proc/cpuinfo").read_text(), re.M) else "no AVX2")
    return f"{Path(compiler).name} {', '.join(told)}"


def stored():
    values = {}
    counted_with = "nothing"
    if not VALUES.exists():
        return values, counted_with
    for line in VALUES.read_text().splitlines():
        if line.startswith("# counted with: "):
            counted_with = line.removeprefix("# counted with: ")
        elif line and not line.startswith("#"):
            name, lines, count = line.split("\t")
            values[name, int(lines)] = int(count)
    return values, counted_with


def store(counts, counted_with):
    VALUES.write_text("# What bench/run --instructions has counted: a piece of work, the lines of its log (0: none), instructions. Written by\n"
                      "# bench/run --instructions --write\n"
                      f"# counted with: {counted_with}\n"
                      + "".join(f"{name}\t{lines}\t{count}\n" for (name, lines), count in counts.items()))


def tables(counts):
    """The counts as Markdown: what grows with the log, and the rest."""
    grows = {}
    for (name, lines), count in counts.items():
        if lines in LENGTHS and not name.startswith("start"):
            grows.setdefault(name, {})[lines] = count
    grows = {name: row for name, row in grows.items() if len(row) > 1}
    text = "| instructions | " + " | ".join(f"{length:,} lines" for length in LENGTHS) + " |\n|---|" + "---:|" * len(LENGTHS) + "\n"
    for name, row in grows.items():
        text += f"| {name} | " + " | ".join(f"{row[length]:,}" if length in row else "-" for length in LENGTHS) + " |\n"
    text += "\n| | lines | instructions |\n|---|---:|---:|\n"
    for (name, lines), count in counts.items():
        if name not in grows:
            text += f"| {name} | {f'{lines:,}' if lines else ''} | {count:,} |\n"
    text += "\n| | goal | instructions | |\n|---|---:|---:|---|\n"
    for (name, lines), goal in GOALS.items():
        count = counts[name, lines]
        text += f"| {name} | < {goal:,} | {count:,} | {'reached' if count < goal else '**missed**'} |\n"
    return text


def check(counts, values, counted_with, now_with):
    """Prints what differs from the values of the tree. False if a count is too high, or has no value."""
    kept = True
    for piece, count in counts.items():
        told = f"{piece[0]}, {piece[1]:,} lines" if piece[1] else piece[0]
        if piece not in values:
            print(f"{told}: {count:,} instructions, and {VALUES.name} has no value")
            kept = False
        elif count > values[piece] * TOLERANCE:
            print(f"{told}: {count:,} instructions, {count / values[piece] - 1:.1%} above the {values[piece]:,} of {VALUES.name}")
            kept = False
        elif count * TOLERANCE < values[piece]:
            print(f"{told}: {count:,} instructions, {1 - count / values[piece]:.1%} below; store it with bench/run --instructions --write")
    if now_with != counted_with:
        print(f"The values were counted with {counted_with};\nthese with {now_with}. Other versions give other counts.")
    print("Instructions: " + ("all within their values." if kept else "some are more than 5 % above their values, or have none."))
    return kept


def main():
    options = {argument for argument in sys.argv[1:] if argument.startswith("--")}
    if unknown := options - {"--quick", "--check", "--write"}:
        sys.exit(f"unknown option: {' '.join(unknown)}")
    rest = [argument for argument in sys.argv[1:] if not argument.startswith("--")]
    build = Path(rest[0] if rest else BENCH.parent / "build/release").resolve()
    counts = count_all(build, "--quick" in options)
    print(tables(counts), flush=True)
    now_with = versions(build)
    if "--write" in options:
        counts = (stored()[0] if "--quick" in options else {}) | counts
        store(counts, now_with)
        replace_block("instructions", f"Counted with {now_with}:\n\n{tables(counts)}")
    if "--check" in options and not check(counts, *stored(), now_with):
        sys.exit(1)


if __name__ == "__main__":
    main()
