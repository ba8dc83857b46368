#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    clock.py PROGRAM DATA [CASE...]

Checks the time and date of logged contacts, and the lamp in the menu bar, while the test sets the clock of the program: in 24 time zones,
when summer time begins and ends, and when the clock jumps. Runs every case, or those named. Skipped if the virtual screen, the window
manager or libfaketime is not installed.

Every moment in this script is universal time. Denmark is two hours ahead of it in summer, one in winter; the setting UTC is the number of
hours to add to local time.
"""
import contextlib
import datetime
import os
import pathlib
import signal
import subprocess
import sys
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = sys.argv[1], sys.argv[2]
MAIN = "Vatro OZ7FD/P"
DENMARK = "Europe/Copenhagen"
QUESTION = "Bånd/modeskift"
NOUGHT = "Modtaget rapport"

RED, YELLOW = 0xb00020, 0xffd54f
# A lamp has many more pixels of its colour than this, even without words.
LIT = 100

# The place of the main window, and the height of its title, menus and tools.
LEFT = TOP = 100
HEAD = 70
TWIPS = 15
PLACES = {"MainLeft": TWIPS * LEFT, "MainTop": TWIPS * TOP}


class Station(Desktop):
    """The program with a clock of its own. The clock runs on between the moments to which it is set."""

    def __init__(self):
        super().__init__(DATA)
        self.lives = 0
        self.main = None
        self.ahead = 0.0
        library = subprocess.run(["faketime", "-f", "+0", "printenv", "LD_PRELOAD"], capture_output=True, text=True, check=True).stdout
        # The times of files are not faked, because they would jump together with the clock.
        self.clock = {"LD_PRELOAD": library.strip(), "FAKETIME_TIMESTAMP_FILE": str(self.home / "clock"), "FAKETIME_NO_CACHE": "1",
                      "FAKETIME_DONT_FAKE_MONOTONIC": "1", "NO_FAKE_STAT": "1"}

    def close(self):
        super().close()
        # A program that was killed leaves these behind, and a later process with the same number could not start.
        if self.program is not None:
            for left in pathlib.Path("/dev/shm").glob(f"*faketime_*_{self.program.pid}"):
                left.unlink()

    # The clock

    def set_clock(self, moment):
        wanted = datetime.datetime.fromisoformat(moment).replace(tzinfo=datetime.timezone.utc)
        self.ahead = wanted.timestamp() - time.time()
        # The program may read the file at any moment.
        new = self.home / "clock.new"
        new.write_text(f"{self.ahead:+.3f}")
        new.rename(self.home / "clock")

    def before(self, moment):
        wanted = datetime.datetime.fromisoformat(moment).replace(tzinfo=datetime.timezone.utc)
        return time.time() + self.ahead < wanted.timestamp()

    # The program

    @contextlib.contextmanager
    def up(self, moment, zone=DENMARK, with_keys=True, **settings):
        """The program with an empty log, started at this moment and closed at the end. Without keys it starts faster."""
        self.lives += 1
        self.log = self.home / f"log{self.lives}"
        self.log.mkdir()
        self.set(**PLACES, **settings)
        self.set_clock(moment)
        self.start(PROGRAM, MAIN if with_keys else None, TZ=zone, **self.clock)
        self.main = self.window(MAIN)
        yield
        self.program.terminate()
        expect(self.ended(), (0, ""), "the end")

    def keys(self, *keys):
        """Types faster than the program looks at its clock by itself."""
        self.xdotool("key", "--delay", "15", *keys)

    def log_contact(self, call="DL9XYZ"):
        self.keys(*call.lower(), "space", "3", "4", "5", "Return")

    def lines(self, log):
        """Time, call, received number and date of each contact."""
        file = self.log / log
        text = file.read_text(encoding="cp1252") if file.exists() else ""
        return [f"{line[:5]} {line[6:21].strip()} {line.split()[5][1:]} {line[71:79]}" for line in text.splitlines()]

    def expect_log(self, *wanted, log="FD80mSSB.txt"):
        until(lambda: len(self.lines(log)) >= len(wanted), f"contact {len(wanted)}")
        expect(self.lines(log), list(wanted), "the log")

    def size(self):
        told = subprocess.run(["xdotool", "getwindowgeometry", "--shell", self.main], env=self.surroundings, capture_output=True,
                              text=True, check=True).stdout
        numbers = dict(line.split("=") for line in told.splitlines())
        return int(numbers["WIDTH"]), int(numbers["HEIGHT"])

    # The lamp

    def lamp(self):
        """The places on the screen that have the colour of a lamp: red ones and yellow ones."""
        width, _ = self.size()
        # The lamps are in the right half.
        left = LEFT + width // 2
        found = {RED: [], YELLOW: []}
        for y, row in enumerate(self.pixels(left, TOP, width // 2, HEAD), TOP):
            for x, pixel in enumerate(row, left):
                if pixel in found:
                    found[pixel].append((x, y))
        return found

    def colour(self):
        found = self.lamp()
        return "red" if len(found[RED]) > LIT else "yellow" if len(found[YELLOW]) > LIT else "none"

    def wait_for_lamp(self, colour):
        until(lambda: self.colour() == colour, f"the lamp: {colour}")

    def expect_no_colour(self):
        found = self.lamp()
        expect([len(found[RED]), len(found[YELLOW])], [0, 0], "the number of red and yellow pixels")


def expect(found, wanted, what):
    assert found == wanted, f"{what} is {found!r} instead of {wanted!r}"


# A zone called Etc/GMT+5 is five hours behind universal time.
ZONES = {offset: f"Etc/GMT{offset:+d}" for offset in range(-11, 13)}


def every_offset_logs_universal_time_in_its_zone():
    with Station() as station:
        for offset, zone in ZONES.items():
            # The zone and universal time have different dates, unless they are the same.
            moment, line = (("2026-09-05 23:30:05", "23:30 DL9XYZ 0345 05-09-26") if offset < 0
                            else ("2026-09-06 00:10:05", "00:10 DL9XYZ 0345 06-09-26"))
            with station.up(moment, zone, UTC=offset):
                station.log_contact()
                station.expect_log(line)
                station.expect_no_colour()


def an_offset_that_is_an_hour_wrong_is_red_in_every_zone():
    with Station() as station:
        for offset, zone in ZONES.items():
            with station.up("2026-09-05 14:30:05", zone, with_keys=False, UTC=offset - 1 if offset > -11 else offset + 1):
                station.wait_for_lamp("red")


def summer_time(night, offset, flowed, jumped):
    """`night` is the date of the change, which is at one o'clock. Until then the offset is right."""
    with Station() as station:
        with station.up(f"{night} 00:58:30", UTC=offset):
            station.set_clock(f"{night} 00:59:57")
            # The program looks at its clock every second.
            time.sleep(1.2)
            station.expect_no_colour()
            assert station.before(f"{night} 01:00:00"), "the machine is too slow for this test"
            until(lambda: not station.before(f"{night} 01:00:00.200"), "the change")
            station.log_contact()
            station.expect_log(flowed)
            station.wait_for_lamp("red")
        with station.up(f"{night} 00:30:05", UTC=offset):
            station.expect_no_colour()
            station.set_clock(f"{night} 01:30:05")
            station.log_contact()
            station.expect_log(jumped)
            station.wait_for_lamp("red")


def the_beginning_of_summer_time_turns_the_lamp_red():
    # At 01:00 it is 03:00 in Denmark, and the log takes off one hour only.
    summer_time("2026-03-29", -1, "02:00 DL9XYZ 0345 29-03-26", "02:30 DL9XYZ 0345 29-03-26")


def the_end_of_summer_time_turns_the_lamp_red():
    # At 01:00 it is 02:00 in Denmark, and the log takes off two hours.
    summer_time("2026-10-25", -2, "00:00 DL9XYZ 0345 25-10-26", "00:30 DL9XYZ 0345 25-10-26")


def a_click_on_the_red_lamp_leads_to_the_right_offset():
    with Station() as station:
        with station.up("2026-10-25 14:30:05"):
            station.wait_for_lamp("red")
            places = station.lamp()[RED]
            x, y = places[len(places) // 2]
            station.xdotool("mousemove", str(x), str(y), "click", "1")
            station.keys_go_to("UTC offset")
            # From -2 to -1.
            station.press("Down", "alt+o")
            until(lambda: not station.windows("UTC offset"), "the end of the window")
            station.wait_for_lamp("none")
            station.keys_go_to(MAIN)
            station.log_contact()
            station.expect_log("14:30 DL9XYZ 0345 25-10-26")
            station.expect_no_colour()


def the_first_key_after_a_jump_finds_the_new_time_and_date():
    with Station() as station:
        for moment, line in (("2026-09-05 14:33:05", "14:33 DL9XYY 0345 05-09-26"), ("2026-09-06 14:30:05", "14:30 DL9XYY 0345 06-09-26"),
                             ("2026-09-05 14:20:05", "14:20 DL9XYY 0345 05-09-26"), ("2026-09-04 14:30:05", "14:30 DL9XYY 0345 04-09-26")):
            with station.up("2026-09-05 14:30:05"):
                station.log_contact()
                station.expect_log("14:30 DL9XYZ 0345 05-09-26")
                station.expect_no_colour()
                station.set_clock(moment)
                station.log_contact("DL9XYY")
                station.expect_log("14:30 DL9XYZ 0345 05-09-26", line)
                station.wait_for_lamp("yellow")


def a_jump_of_a_minute_is_followed_but_not_shown():
    with Station() as station:
        with station.up("2026-09-05 14:30:05"):
            station.set_clock("2026-09-05 14:31:05")
            station.log_contact()
            station.expect_log("14:31 DL9XYZ 0345 05-09-26")
            time.sleep(1.2)
            station.expect_no_colour()


def the_minutes_go_on_after_a_jump():
    with Station() as station:
        with station.up("2026-09-05 14:30:35"):
            station.set_clock("2026-09-05 23:59:58")
            until(lambda: not station.before("2026-09-06 00:00:00.500"), "midnight")
            station.log_contact()
            station.expect_log("00:00 DL9XYZ 0345 06-09-26")


def a_jump_in_the_middle_of_a_contact_loses_nothing_of_it():
    with Station() as station:
        for seen in (True, False):
            with station.up("2026-09-05 14:30:05"):
                station.keys(*"dl9xyz")
                station.set_clock("2026-09-06 02:45:05")
                if seen:
                    station.wait_for_lamp("yellow")
                station.keys("space", "3", "4", "5", "Return")
                station.expect_log("02:45 DL9XYZ 0345 06-09-26")


def an_enter_alone_finds_the_new_time():
    with Station() as station:
        with station.up("2026-09-05 14:30:05"):
            station.keys(*"dl9xyz", "space", "3", "4", "5")
            station.set_clock("2026-09-06 02:45:05")
            station.keys("Return")
            station.expect_log("02:45 DL9XYZ 0345 06-09-26")


def a_click_on_log_finds_the_new_time():
    with Station() as station:
        with station.up("2026-09-05 14:30:05"):
            width, height = station.size()
            # The button Log.
            station.xdotool("mousemove", "--window", station.main, str(width * 7 // 10), str(height - 60))
            station.keys(*"dl9xyz", "space", "3", "4", "5")
            station.set_clock("2026-09-06 02:45:05")
            station.xdotool("click", "1")
            station.expect_log("02:45 DL9XYZ 0345 06-09-26")


def an_enter_that_waited_while_the_program_slept_finds_the_new_time():
    with Station() as station:
        with station.up("2026-09-05 14:30:05"):
            station.keys(*"dl9xyz", "space", "3", "4", "5")
            time.sleep(0.3)
            station.signal(signal.SIGSTOP)
            station.set_clock("2026-09-06 02:45:05")
            station.keys("Return")
            station.signal(signal.SIGCONT)
            station.expect_log("02:45 DL9XYZ 0345 06-09-26")
            station.wait_for_lamp("yellow")


def a_jump_behind_a_question_is_followed():
    with Station() as station:
        for seen in (True, False):
            with station.up("2026-09-05 14:30:05"):
                station.press("ctrl+F3")
                station.keys_go_to(QUESTION)
                station.set_clock("2026-09-06 02:45:05")
                if seen:
                    station.wait_for_lamp("yellow")
                station.press("Return")
                until(lambda: not station.windows(QUESTION), "the end of the question")
                station.keys_go_to(MAIN)
                station.log_contact()
                station.expect_log("02:45 DL9XYZ 0345 06-09-26", log="FD20mSSB.txt")


def a_contact_that_waits_for_an_answer_during_a_jump_gets_the_new_time():
    with Station() as station:
        for seen in (True, False):
            with station.up("2026-09-05 14:30:05"):
                # The number is missing, so the program asks whether there was none.
                station.keys(*"dl9xyz", "Return")
                station.keys_go_to(NOUGHT)
                station.set_clock("2026-09-06 02:45:05")
                if seen:
                    station.wait_for_lamp("yellow")
                station.press("alt+j")
                station.expect_log("02:45 DL9XYZ 0000 06-09-26")


def a_time_that_is_being_typed_stays():
    with Station() as station:
        for seen in (True, False):
            with station.up("2026-09-05 14:30:05"):
                station.keys("shift+Tab", "1", "2", "colon", "3")
                station.set_clock("2026-09-06 02:45:05")
                if seen:
                    station.wait_for_lamp("yellow")
                station.keys("4", "Tab", *"dl9xyz", "space", "3", "4", "5", "Return")
                # The date is always that of the clock.
                station.expect_log("12:34 DL9XYZ 0345 06-09-26")
                station.log_contact("DL9XYY")
                station.expect_log("12:34 DL9XYZ 0345 06-09-26", "02:45 DL9XYY 0345 06-09-26")


def without_automatic_time_no_jump_touches_the_time():
    with Station() as station:
        with station.up("2026-09-05 14:30:05"):
            station.press("alt+i")
            time.sleep(0.3)
            station.press("a")
            time.sleep(0.3)
            station.set_clock("2026-09-06 02:45:05")
            station.wait_for_lamp("yellow")
            station.log_contact()
            station.expect_log("14:30 DL9XYZ 0345 06-09-26")
            # The program asks for the time first now, and proposes the last one.
            station.keys("Tab")
            station.set_clock("2026-09-06 03:50:05")
            station.log_contact("DL9XYY")
            station.expect_log("14:30 DL9XYZ 0345 06-09-26", "14:30 DL9XYY 0345 06-09-26")


if __name__ == "__main__":
    skip_without_tools("faketime")
    os.umask(0o022)
    chosen = sys.argv[3:]
    sys.exit(run([case for name, case in list(globals().items())
                  if name.startswith(("a_", "an_", "every_", "the_", "without_")) and (not chosen or name in chosen)]))
