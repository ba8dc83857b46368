#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    docking.py PROGRAM DATA MANAGER

Checks the side windows as parts of the main window: at a first start, while the main window is maximised, hidden and shown, made windows
of their own and docked again, minimised and restored. After each step letters arrive in the call field, and at the end the stored places
are those of before. The cases follow each other in one run of the program. Skipped if something it needs is not installed.
"""
import sys

from accessible import CALL, CHECK, LOG, MAIN, NEXT, OWN, SIDES, TWIPS, missing_tools, overlap
from desktop import Gone, expect, run, skip_without_tools, until
from main_window import TOOLS, MainWindow

PROGRAM, DATA, MANAGER = sys.argv[1:4]
# Twips that are no whole pixels, so that a place that was measured anew would be another one. As windows of their own, the side windows
# are over the log and leave the fields free.
STORED = {"MainLeft": 1502, "MainTop": 1204, "QSOLeft": 1504, "QSOTop": 2707, "QSOHeight": 899, "CallLeft": 1496, "CallTop": 4801,
          "CallHeight": 751, "B4Left": 12007, "B4Top": 2993, "B4Width": 4502, "B4Height": 3004}
# The entries of the menu Vis.
ENTRIES = {NEXT: "Næste QSOnr", CHECK: "Call check", OWN: "Contest Call"}
ROUNDS = 3


class Station(MainWindow):
    def expect_docked(self, *wanted):
        """Exactly these side windows are parts of the main window, and no side window is a window of its own."""
        def holds():
            for side in SIDES:
                try:
                    self.docked(side)
                except Gone:
                    if side in wanted:
                        return False
                else:
                    if side not in wanted:
                        return False
            return [node.name for node in self.shown()] == [MAIN]

        until(holds, lambda: f"{wanted} in the main window; there are the windows {self.shown()}")
        # The program has windows that it does not tell of, if at all.
        expect([side for side in SIDES if self.windows(side)], [], "what has a window of its own")

    def places(self):
        return {side: self.docked(side).rectangle for side in SIDES}

    def expect_fields_free(self):
        covered = [(side, name) for side, place in self.places().items() for name, field in self.fields().items() if overlap(place, field)]
        expect(covered, [], "what covers a field")

    def floating(self):
        """The stored places, as the windows have them now: the left and upper edge of the frame, the height, and the list's width."""
        found = {}
        for side, key in ((NEXT, "QSO"), (OWN, "Call"), (CHECK, "B4")):
            frame, (_, _, width, height) = self.frame(side), self.rectangle(side)
            found |= {key + "Left": frame.left, key + "Top": frame.top, key + "Height": height}
            if side == CHECK:
                found[key + "Width"] = width
        return found

    def expect_floating(self):
        wanted = {key: round(twips / TWIPS) for key, twips in STORED.items() if not key.startswith("Main")}
        until(lambda: all(self.windows(side) for side in SIDES), "three windows")
        until(lambda: self.floating() == wanted, lambda: f"the places {wanted}; they are {self.floating()}")
        for side in SIDES:
            try:
                found = self.docked(side)
            except Gone:
                continue
            raise AssertionError(f"{side} is in the main window too: {found}")

    def choose_side(self, side):
        self.choose("v", "Vis", ENTRIES[side])

    def choose_docking(self):
        self.choose("e", "Ekstra", "Saml vinduerne")


def at_a_first_start_they_stand_around_the_log():
    station.expect_docked(*SIDES)
    log, fields, places = station.node("list", LOG).rectangle, station.fields(), station.places()
    assert CALL in fields and len(fields) == 9, f"the fields are {list(fields)}"
    for side in NEXT, OWN:
        place = places[side]
        assert log.top + log.height <= place.top, f"{side} is not below the log: {place}, {log}"
        for name, field in fields.items():
            assert place.top + place.height <= field.top, f"{side} is not above {name}: {place}, {field}"
    assert places[NEXT].left + places[NEXT].width <= places[OWN].left, f"the number is not left of the call: {places}"
    assert log.left + log.width <= places[CHECK].left, f"{CHECK} is not right of the log: {places[CHECK]}, {log}"
    station.expect_fields_free()
    station.expect_letters_in_call()


def they_grow_with_the_main_window():
    before = station.places()
    station.click_title()
    until(lambda: all(place.width > before[side].width and place.height > before[side].height for side, place in station.places().items()),
          lambda: f"larger ones than {before}; they are {station.places()}")
    station.expect_fields_free()
    station.expect_letters_in_call()
    station.click_title()
    until(lambda: station.places() == before, lambda: f"the places of before, {before}; they are {station.places()}")
    station.expect_letters_in_call()


def the_menu_hides_and_shows_each_of_them():
    before = station.places()
    for side in SIDES:
        station.choose_side(side)
        station.expect_docked(*(other for other in SIDES if other != side))
        station.expect_letters_in_call()
        station.choose_side(side)
        station.expect_docked(*SIDES)
        until(lambda: station.places() == before, lambda: f"the places of before, {before}; they are {station.places()}")
        station.expect_letters_in_call()


def a_log_without_a_neighbour_has_its_room():
    width = station.node("list", LOG).rectangle.width
    station.choose_side(CHECK)
    until(lambda: station.node("list", LOG).rectangle.width > width, "a wider log")
    station.choose_side(CHECK)
    until(lambda: station.node("list", LOG).rectangle.width == width, "the width of before")


def minimised_and_restored_they_are_all_there():
    before = station.places()
    window = station.window(MAIN)
    for _ in range(ROUNDS):
        station.xdotool("windowminimize", window)
        until(lambda: not station.windows(MAIN), "the minimised window")
        expect([side for side in SIDES if station.windows(side)], [], "what is on the screen without the main window")
        station.xdotool("windowactivate", window)
        until(lambda: station.windows(MAIN), "the restored window")
        station.wait_active(MAIN)
        station.wait_focus(CALL)
        station.expect_docked(*SIDES)
        until(lambda: station.places() == before, lambda: f"the places of before, {before}; they are {station.places()}")
        station.expect_letters_in_call()


def alone_they_are_at_the_stored_places():
    station.choose_docking()
    station.expect_floating()
    station.expect_letters_in_call()
    for side in SIDES:
        station.choose_side(side)
        until(lambda side=side: not station.windows(side), "the end of " + side)
        station.expect_letters_in_call()
        station.choose_side(side)
        station.expect_floating()
        station.expect_letters_in_call()


def docked_again_they_are_where_they_were():
    station.choose_docking()
    station.expect_docked(*SIDES)
    until(lambda: station.places() == first, lambda: f"the places at the start, {first}; they are {station.places()}")
    station.expect_fields_free()
    station.expect_letters_in_call()


def the_stored_places_are_those_of_before():
    station.end()
    expect({key: station.setting(key) for key in STORED}, {key: str(twips) for key, twips in STORED.items()}, "what is stored")


if __name__ == "__main__":
    skip_without_tools(MANAGER, *TOOLS, others=missing_tools())
    with Station(DATA, MANAGER) as station:
        station.set(UTC=0, **STORED)
        station.start(PROGRAM)
        station.wait_focus(CALL)
        station.expect_docked(*SIDES)
        first = station.places()
        sys.exit(run([at_a_first_start_they_stand_around_the_log, they_grow_with_the_main_window, the_menu_hides_and_shows_each_of_them,
                      a_log_without_a_neighbour_has_its_room, minimised_and_restored_they_are_all_there,
                      alone_they_are_at_the_stored_places, docked_again_they_are_where_they_were, the_stored_places_are_those_of_before]))
