#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    copy.py PROGRAM DATA [CASE...]

Checks the live second copy of the logs in the real program: chosen with keys, pulled and brought back, found with more contacts than the
log, and in a directory that never answers. Runs every case, or those named. Skipped if the virtual screen, the window manager or strace
is not installed.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = sys.argv[1], sys.argv[2]
HERE = pathlib.Path(__file__).resolve().parent
MAIN = "Vatro OZ7FD/P"
LOG = "FD80mSSB.txt"
STATION = {"Band": "80m", "Mode": "SSB", "QsoMode": "SSB", "UTC": "0"}
NO_MOUNT = 77
# Of the lamps in the light scheme.
RED = 0xb00020
# The part of the screen where the main window has its menus: left, top, width, height.
HEAD = (100, 100, 1200, 70)


def contact(number, call):
    return (f"12:{number:02d} {call:15s} 59 -{number:04d} 59 -{number:04d}  3 {'DL' if number == 1 else '':10s} OZ1AB      SSB   "
            + time.strftime("%d-%m-%y"))


def log_contact(desktop, call, number):
    """Logs with keys, and returns the seconds from Enter to the line in the file."""
    desktop.xdotool("type", "--delay", "20", call)
    desktop.press("space")
    desktop.xdotool("type", "--delay", "20", str(number))
    before = (desktop.log / LOG).read_bytes() if (desktop.log / LOG).exists() else b""
    desktop.press("Return")
    pressed = time.monotonic()
    until(lambda: (desktop.log / LOG).exists() and len((desktop.log / LOG).read_bytes()) > len(before), f"the contact with {call}")
    assert call.upper().encode() in (desktop.log / LOG).read_bytes()[len(before):], f"{call} is not the contact that was logged"
    return time.monotonic() - pressed


def red(desktop):
    """Whether a lamp is red."""
    return sum(row.count(RED) for row in desktop.pixels(*HEAD)) > 500


def equal(desktop, stick):
    return (stick / LOG).exists() and (stick / LOG).read_bytes() == (desktop.log / LOG).read_bytes()


def a_stick_is_chosen_with_keys_pulled_and_brought_back():
    with Desktop(DATA) as desktop:
        stick = desktop.home / "stick"
        stick.mkdir()
        desktop.set(**STATION)
        desktop.start(PROGRAM)
        desktop.choose_copy(stick)
        log_contact(desktop, "dl7qnc", 12)
        until(lambda: equal(desktop, stick), "the copy of the first contact")
        assert not red(desktop), "a lamp is red although all is well"
        away = stick.rename(desktop.home / "away")
        stick.mkdir()
        until(lambda: red(desktop), "the red lamp")
        log_contact(desktop, "sm7aa", 13)
        assert not list(stick.iterdir()), "something was written into the empty mount point"
        stick.rmdir()
        away.rename(stick)
        back = time.monotonic()
        until(lambda: equal(desktop, stick), "the copy after the stick is back")
        assert time.monotonic() - back < 2.5, "the copy took too long to be brought up to date"
        until(lambda: not red(desktop), "the end of the red lamp")
        desktop.program.kill()
        desktop.program.wait()
        assert equal(desktop, stick), "the copy differs after a kill"
        # It goes on by itself.
        desktop.start(PROGRAM)
        log_contact(desktop, "la1zz", 14)
        until(lambda: equal(desktop, stick), "the copy after the next start")
        desktop.press("alt+F4")
        code, said = desktop.ended()
        assert (code, said) == (0, ""), (code, said)


def contacts_of_the_copy_are_offered_at_the_start():
    with Desktop(DATA) as desktop:
        stick = desktop.home / "stick"
        stick.mkdir()
        whole = "".join(contact(number, f"DL{number}AA") + "\r\n" for number in range(1, 6))
        (stick / LOG).write_text(whole)
        (desktop.log / LOG).write_text("".join(line + "\r\n" for line in whole.splitlines()[:2]))
        desktop.set(**STATION)
        desktop.start(PROGRAM)
        choose_and_wait(desktop, stick, "Vatro - løbende kopi")
        # What somebody goes on typing is no answer.
        desktop.xdotool("type", "--delay", "60", "sm7aa 13")
        desktop.press("Return")
        time.sleep(1)
        assert (desktop.log / LOG).read_bytes().decode() != whole, "a contact typed blindly has merged the logs"
        desktop.press("alt+g")
        until(lambda: (desktop.log / LOG).read_bytes().decode() == whole, "the merged log")
        desktop.keys_go_to(MAIN)
        log_contact(desktop, "sm7aa", 13)
        last = (desktop.log / LOG).read_text().splitlines()[-1]
        assert "-0006 " in last, f"the number after the merge is wrong: {last}"
        until(lambda: equal(desktop, stick), "the copy of the merged log")
        kept = [path.read_bytes().decode() for path in (stick / "tidligere").iterdir()]
        assert kept == [whole], "the copy as it was is not kept"


def choose_and_wait(desktop, directory, title):
    desktop.press("alt+e", "l")
    desktop.keys_go_to("Vælg bibliotek til løbende kopi")
    desktop.xdotool("type", "--delay", "10", str(directory))
    desktop.press("Return")
    desktop.keys_go_to(title)


def traced(desktop, stick, delays):
    """A program that runs the program under strace. If it `delays`, strace makes every call on the stick take a minute."""
    script = desktop.home / "traced"
    seam = f'-e inject=%file,%desc:delay_enter=60000000 -P "{stick}"' if delays else ""
    script.write_text(f'#!/bin/sh\nexec strace -f -y -qq -s 300 -e trace=%file,%desc {seam} -o "{desktop.home}/trace" "{PROGRAM}"\n')
    script.chmod(0o755)
    return script


def gone(process):
    """Whether the first thread of the process has ended."""
    try:
        return pathlib.Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()[0] == "Z"
    except FileNotFoundError:
        return True


def expect_no_wait(desktop, stick, delays):
    desktop.set(KopiBib=stick, KopiId="id", **STATION)
    begin = time.monotonic()
    desktop.start(traced(desktop, stick, delays))
    assert time.monotonic() - begin < 15, "the start waits for the copy"
    tracer = desktop.program.pid
    window = pathlib.Path(f"/proc/{tracer}/task/{tracer}/children").read_text().strip()
    for number, call in enumerate(("dl7qnc", "sm7aa", "la1zz"), 1):
        took = log_contact(desktop, call, number)
        assert took < 1.5, f"Enter took {took:.1f} s"
    until(lambda: red(desktop), "the red lamp")
    closed = time.monotonic()
    desktop.press("alt+F4")
    desktop.keys_go_to("Løbende kopi")
    took = time.monotonic() - closed
    assert took < 6, f"the last word came after {took:.1f} s"
    desktop.press("Return")
    until(lambda: not desktop.windows("Løbende kopi"), "the end of the last word")
    # The process as a whole may have to wait for the disk, but the thread of the window has gone.
    until(lambda: gone(window), "the end of the program")
    return window


def expect_calls_on_another_thread(desktop, stick, window):
    """`window` is the number of the thread of the window in the trace."""
    lines = (desktop.home / "trace").read_text(errors="replace").splitlines()
    # The path may be what is called, or what is open; the settings file has it as a text.
    calls = [line for line in lines if re.match(rf'\d+ +\w+\(([^"]*"{stick}|\d+<{stick})', line)]
    assert calls, "no call on the directory was traced, so this proves nothing"
    mine = [line for line in calls if line.split()[0] == window]
    assert not mine, "the thread of the window called:\n" + "\n".join(mine[:5])


def a_directory_that_never_answers_keeps_nobody_waiting():
    with Desktop(DATA) as desktop:
        stick = desktop.home / "stick"
        stick.mkdir()
        server = subprocess.Popen([sys.executable, HERE / "hanging.py", stick], stdout=subprocess.PIPE, text=True)
        try:
            if server.stdout.readline() != "mounted\n":
                assert server.wait() == NO_MOUNT, "the file system that hangs has failed"
                print("       this process may not mount: strace delays the calls instead", flush=True)
                window = expect_no_wait(desktop, stick, delays=True)
            else:
                window = expect_no_wait(desktop, stick, delays=False)
        finally:
            server.kill()
            server.wait()
            subprocess.run(["umount", "-l", stick], stderr=subprocess.DEVNULL, check=False)
        desktop.program.terminate()
        desktop.ended()
        expect_calls_on_another_thread(desktop, stick, window)


def calls_that_take_a_minute_keep_nobody_waiting():
    with Desktop(DATA) as desktop:
        stick = desktop.home / "stick"
        stick.mkdir()
        window = expect_no_wait(desktop, stick, delays=True)
        desktop.program.kill()
        desktop.program.wait()
        expect_calls_on_another_thread(desktop, stick, window)


if __name__ == "__main__":
    skip_without_tools("strace")
    CASES = (a_stick_is_chosen_with_keys_pulled_and_brought_back, contacts_of_the_copy_are_offered_at_the_start,
             a_directory_that_never_answers_keeps_nobody_waiting, calls_that_take_a_minute_keep_nobody_waiting)
    sys.exit(run([case for case in CASES if len(sys.argv) < 4 or case.__name__ in sys.argv[3:]]))
