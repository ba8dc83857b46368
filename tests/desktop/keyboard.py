#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    keyboard.py PROGRAM DATA MANAGER [CASE...]

Checks what becomes of keys under this window manager: an Enter that bounces, thirty contacts typed faster than anybody can, and letters
typed after a click on a side window. Runs every case, or those named. Skipped if something it needs is not installed.
"""
import contextlib
import sys
import time

from accessible import CALL, MAIN, NUMBER, SIDES, ReadableDesktop, contrast, missing_tools
from desktop import expect, run, skip_without_tools, until

PROGRAM, DATA, MANAGER = sys.argv[1:4]
LOG = "FD80mSSB.txt"
QUESTION = "Modtaget rapport"
# Milliseconds from one Enter to the next.
BOUNCES = (0, 40, 180)
# A box answers no key for a fifth of a second; see the handbook. In seconds, with some to spare.
UNSEEN = 0.25
# Milliseconds between two Enters that no box can count as more than that.
LONGEST = 195
# The least contrast of what must be seen at arm's length (WCAG, for graphics).
VISIBLE = 3


class Station(ReadableDesktop):
    """One screen for all cases; each case starts the program with an empty log."""

    @contextlib.contextmanager
    def up(self, **settings):
        for old in self.log.glob("FD*"):
            old.unlink()
        self.set(UTC=0, **settings)
        with self.alive(PROGRAM):
            self.wait_focus(CALL)
            yield

    def contacts(self):
        """The call, the sent number and the received number of each line of the log."""
        file = self.log / LOG
        text = file.read_text(encoding="cp1252") if file.exists() else ""
        return [(line[6:21].strip(), line[26:30], line[35:39]) for line in text.splitlines()]

    def wait_for_contacts(self, count):
        until(lambda: len(self.contacts()) >= count, f"contact {count}")

    def boxes(self):
        return [node.name for node in self.shown() if node.name not in (MAIN, *SIDES)]

    def click(self, left, top, button="1"):
        self.xdotool("mousemove", str(left), str(top), "click", button)

    def click_middle(self, rectangle, button):
        self.click(rectangle.left + rectangle.width // 2, rectangle.top + rectangle.height // 2, button)

    def asked_with_two_enters(self, bounce):
        """Whether the machine was fast enough for two Enters at this distance. If not, the question is answered."""
        self.type(*"dl9xyz")
        self.wait_text(CALL, "DL9XYZ")
        begin = time.monotonic()
        self.type("Return", "Return", delay=bounce)
        took = 1000 * (time.monotonic() - begin)
        # The last key keeps the tool waiting too.
        if took - bounce < LONGEST:
            self.wait_active(QUESTION)
            return True
        print(f"       two Enters {bounce} ms apart took {took:.0f} ms: once more", flush=True)
        until(lambda: self.focus() == NUMBER or self.active() == QUESTION, "the question")
        if self.active() == QUESTION:
            self.answer_with_esc()
        return False

    def answer_with_esc(self):
        self.wait_active(QUESTION)
        # Until then no key answers.
        time.sleep(UNSEEN)
        self.type("Escape")
        self.wait_gone(QUESTION)
        self.wait_active(MAIN)
        self.type("Escape")
        self.wait_text(CALL, "")


def an_enter_that_bounces_logs_one_contact_and_opens_no_box():
    with station.up():
        for number, bounce in enumerate(BOUNCES, 1):
            station.type(*f"dl{number}aa", "space", "1", str(number))
            station.type("Return", "Return", delay=bounce)
            station.wait_for_contacts(number)
            # The letter arrives after the second Enter, so that one has been dealt with.
            station.type("x")
            station.wait_text(CALL, "X")
            expect(station.boxes(), [], f"with {bounce} ms between two Enters, what has opened")
            expect(station.contacts()[-1], (f"DL{number}AA", f"{number:04d}", f"001{number}"), "the last contact")
            expect(len(station.contacts()), number, "the number of contacts")
            station.type("Escape")
            station.wait_text(CALL, "")


def an_enter_that_bounces_does_not_answer_the_box_that_it_opens():
    with station.up():
        for bounce in BOUNCES:
            # The number is missing, so the program asks.
            until(lambda: station.asked_with_two_enters(bounce), "two Enters at the right distance")
            # A letter answers nothing either. Tab goes on, so the keys before it have been dealt with when the focus has moved.
            preset = until(station.focus, "the preset button")
            station.type("x", "Tab")
            until(lambda: station.focus() not in (preset, None), "the other button")
            expect(station.boxes(), [QUESTION], f"with {bounce} ms between two Enters, what is open")
            expect(station.contacts(), [], "the log")
            station.answer_with_esc()


def thirty_contacts_at_four_milliseconds_a_key_are_thirty_right_lines():
    with station.up():
        calls = [f"{prefix}{digit}{letters}" for prefix in ("DL", "SM", "ON") for digit in range(1, 6) for letters in ("AB", "QRS")]
        # The first contact with a country has it as its multiplier; all these countries give three points.
        wanted = [f"{call:15s} 59 -{number:04d} 59 -{100 + number:04d}  3 {call[:2] if call.endswith('1AB') else '':10s} OZ1AB      SSB   "
                  for number, call in enumerate(calls, 1)]
        began = time.gmtime()
        station.type(*(key for number, call in enumerate(calls, 1) for key in (*call.lower(), "space", *str(100 + number), "Return")),
                     delay=4)
        station.wait_for_contacts(len(calls))
        lines = (station.log / LOG).read_text(encoding="cp1252").splitlines()
        expect([line[6:-8] for line in lines], wanted, "the log")
        times = {time.strftime("%H:%M %d-%m-%y", moment) for moment in (began, time.gmtime())}
        expect({f"{line[:5]} {line[-8:]}" for line in lines} - times, set(), "wrong times")
        # 90 points times 3 multipliers.
        until(lambda: station.status()[1::2] == ["90", "3", "270"], lambda: f"the sums; there is {station.status()}")
        expect(station.boxes(), [], "what has opened")


def letters_go_to_the_call_whatever_docked_window_was_clicked():
    with station.up():
        for title in SIDES:
            for button in "1", "3":
                station.click_middle(until(lambda: station.docked(title), title + " in the main window").rectangle, button)
                station.expect_letters_in_call("dl9x")


def letters_go_to_the_call_whatever_floating_window_was_clicked():
    with station.up(docked=False):
        for title in SIDES:
            place = until(lambda: station.top(title), "the window " + title).rectangle
            for button in "1", "3":
                station.click_middle(place, button)
                station.expect_letters_in_call("dl9x")
            # By the title, which drags the window.
            station.click(place.left + place.width // 2, place.top - 8)
            station.expect_letters_in_call("sm7a")


def the_field_with_the_keys_has_a_frame_that_can_be_seen():
    with station.up():
        for name, key in ((CALL, "space"), (NUMBER, "Escape")):
            station.wait_focus(name)
            field = station.node("text", name).rectangle
            outside = station.pixels(field.left - 2, field.top, 1, field.height)
            # The window's own colour, in the gap between two fields.
            ground = station.pixels(station.node("text", "Sendt rapport").rectangle.left - 3, field.top, 1, 1)[0][0]
            assert all(contrast(row[0], ground) >= VISIBLE for row in outside), f"the frame around {name} is hard to see"
            station.type(key)


if __name__ == "__main__":
    skip_without_tools(MANAGER, "dbus-daemon", others=missing_tools())
    chosen = sys.argv[4:]
    with Station(DATA, MANAGER) as station:
        sys.exit(run([case for name, case in list(globals().items())
                      if name.startswith(("a_", "an_", "letters_", "the_", "thirty_")) and (not chosen or name in chosen)]))
