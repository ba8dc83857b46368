#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""bench.py BENCH

Tests the scripts that judge the benchmarks: what is over a limit fails, what is within it passes, and what was not measured is missed.
"""

import contextlib
import io
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BENCH = Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(BENCH))
sys.dont_write_bytecode = True
import instructions  # noqa: E402


def judged(*benchmarks):
    """The exit code and the output of ratios.py for (name, label, times in µs)."""
    runs = [{"name": name, "run_name": name, "run_type": "iteration", "family_index": index, "per_family_instance_index": 0,
             "real_time": time, "time_unit": "us", "label": label}
            for index, (name, label, times) in enumerate(benchmarks) for time in times]
    with tempfile.NamedTemporaryFile("w", suffix=".json") as report:
        json.dump({"context": {"num_cpus": 2, "mhz_per_cpu": 2000, "load_avg": [0.1]}, "benchmarks": runs}, report)
        report.flush()
        done = subprocess.run([sys.executable, "-B", BENCH / "ratios.py", report.name], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    return done.returncode, done.stdout


class Ratios(unittest.TestCase):
    YARDSTICK = ("yardstick", "", [10, 10, 10])

    def test_the_median_counts(self):
        self.assertEqual(judged(("key", "vs yardstick, at most 2", [1, 19, 999]), self.YARDSTICK)[0], 0)

    def test_the_range_is_shown(self):
        self.assertIn("| key | 19 µs | 1 µs - 999 µs | yardstick | 10 µs | 1.9 | 2 |",
                      judged(("key", "vs yardstick, at most 2", [1, 19, 999]), self.YARDSTICK)[1])

    def test_a_ratio_over_its_limit_fails(self):
        code, output = judged(("key", "vs yardstick, at most 2", [1, 21, 999]), self.YARDSTICK)
        self.assertEqual(code, 1)
        self.assertIn("**over**", output)

    def test_a_limit_can_be_a_difference(self):
        self.assertEqual(judged(("key", "vs yardstick, at most 20 µs more", [29]), self.YARDSTICK)[0], 0)
        self.assertEqual(judged(("key", "vs yardstick, at most 20 µs more", [31]), self.YARDSTICK)[0], 1)

    def test_a_missing_yardstick_fails(self):
        self.assertEqual(judged(("key", "vs yardstick, at most 2", [1]))[0], 1)

    def test_growth_over_its_limit_fails(self):
        self.assertEqual(judged(("long", "over yardstick, at most 5", [49]), self.YARDSTICK)[0], 0)
        self.assertEqual(judged(("long", "over yardstick, at most 5", [51]), self.YARDSTICK)[0], 1)

    def test_a_missed_goal_is_shown_and_is_no_failure(self):
        code, output = judged(("key", "goal 20 µs", [21]))
        self.assertEqual(code, 0)
        self.assertIn("**missed**", output)
        self.assertIn("| reached |", judged(("key", "goal 20 µs", [19]))[1])

    def test_an_unknown_label_fails(self):
        self.assertNotEqual(judged(("key", "versus yardstick", [1]), self.YARDSTICK)[0], 0)


class Instructions(unittest.TestCase):
    PIECE = ("key", 100)

    def check(self, count, value):
        with contextlib.redirect_stdout(io.StringIO()) as output:
            kept = instructions.check({self.PIECE: count}, {self.PIECE: value} if value else {}, "one version", "one version")
        return kept, output.getvalue()

    def test_more_than_five_per_cent_above_its_value_fails(self):
        self.assertFalse(self.check(1051, 1000)[0])
        self.assertTrue(self.check(1050, 1000)[0])

    def test_below_its_value_passes_and_is_told(self):
        kept, output = self.check(900, 1000)
        self.assertTrue(kept)
        self.assertIn("--write", output)

    def test_a_count_without_a_value_fails(self):
        self.assertFalse(self.check(1000, None)[0])

    def test_other_versions_are_told(self):
        with contextlib.redirect_stdout(io.StringIO()) as output:
            instructions.check({self.PIECE: 1}, {self.PIECE: 1}, "g++ 12", "g++ 13")
        self.assertIn("g++ 12", output.getvalue())

    def test_the_tree_has_a_value_for_each_goal(self):
        values, counted_with = instructions.stored()
        self.assertLessEqual(set(instructions.GOALS), set(values))
        self.assertNotEqual(counted_with, "nothing")


unittest.main()
