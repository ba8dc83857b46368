#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    idle.py PROGRAM DATA

Checks how often a program that nobody uses wakes the processor: all threads together at most once a second, besides the cursor of the field
with the keys. On the screen the log gets the keys for this, as it has no cursor. Skipped if the virtual screen or the window manager is not
installed.
"""
import pathlib
import sys
import time

from desktop import Desktop, run, skip_without_tools

PROGRAM, DATA = sys.argv[1], sys.argv[2]
SECONDS = 20
# One wake-up a second, and half as many again for what a busy machine splits in two.
MOST = SECONDS * 3 // 2
# The cursor appears and disappears once a second.
CURSOR = 2 * SECONDS


def wake_ups(process):
    """How often each thread has waited for something, by its name and number."""
    counts = {}
    for task in pathlib.Path(f"/proc/{process}/task").iterdir():
        lines = (task / "status").read_text().splitlines()
        counts[(task / "comm").read_text().strip(), task.name] = int(next(
            line for line in lines if line.startswith("voluntary_ctxt_switches")).split()[1])
    return counts


def check(process, most):
    before = wake_ups(process)
    time.sleep(SECONDS)
    more = {task: number - before.get(task, 0) for task, number in wake_ups(process).items()}
    told = ", ".join(f"{name} {number}" for (name, _), number in more.items() if number)
    print(f"        in {SECONDS} s: {told}")
    assert sum(more.values()) <= most, f"woken {sum(more.values())} times in {SECONDS} s: {told}"


def let_alone(with_a_copy):
    with Desktop(DATA) as desktop:
        desktop.set(Band="80m")
        desktop.start(PROGRAM)
        if with_a_copy:
            stick = desktop.home / "stick"
            stick.mkdir()
            desktop.choose_copy(stick)
        left, top, width, height = desktop.rectangle("Vatro OZ7FD/P")
        desktop.xdotool("mousemove", str(left + width // 3), str(top + height // 3), "click", "1")
        time.sleep(3)
        check(desktop.program.pid, MOST)


def on_a_screen():
    let_alone(with_a_copy=False)


def on_a_screen_with_a_second_copy():
    let_alone(with_a_copy=True)


def off_the_screen():
    with Desktop(DATA) as desktop:
        desktop.set(Band="80m")
        desktop.start(PROGRAM, None, QT_QPA_PLATFORM="offscreen")
        time.sleep(3)
        check(desktop.program.pid, MOST + CURSOR)


if __name__ == "__main__":
    skip_without_tools()
    sys.exit(run([on_a_screen, on_a_screen_with_a_second_copy, off_the_screen]))
