#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    places.py PROGRAM DATA MANAGER [CASE...]

Checks floating side windows with places of a larger screen on a small one: all of them are wholly on the screen and cover no entry
field, menu or bar, also while the main window is maximised or fills the screen, and only a window that the operator moves is stored
in another place.
Runs every case, or those named. Skipped if something it needs is not installed.
"""
import contextlib
import sys
import time

from accessible import CALL, CHECK, MAIN, NEXT, SIDES, TWIPS, Rectangle, missing_tools, overlap, within
from desktop import expect, run, skip_without_tools, until
from main_window import TOOLS, MainWindow

PROGRAM, DATA, MANAGER = sys.argv[1:4]
SCREEN = Rectangle(0, 0, 1024, 600)
# On a screen of 1366x768 the main window is in the upper left corner, the number and the call below it, and Call check right of it.
# Twips that are no whole pixels, so that a place that was measured anew would be another one.
STORED = {key: TWIPS * pixels + 2 for key, pixels in {
    "QSOLeft": 10, "QSOTop": 580, "QSOHeight": 80, "CallLeft": 700, "CallTop": 580, "CallHeight": 80, "B4Left": 1000, "B4Top": 10,
    "B4Width": 350, "B4Height": 520}.items()}
CORNER = STORED | {"MainLeft": 10 * TWIPS + 2, "MainTop": 10 * TWIPS + 4}
# The same with a main window of which a part is outside the small screen.
MIDDLE = STORED | {"MainLeft": 300 * TWIPS + 2, "MainTop": 100 * TWIPS + 4}
SIZE = 920, 480
# The main window is as high as the screen, so that it has no room for its frame.
HIGH = 920, 600
# A window that was shown or moved by the program less than a second ago is not moved by the operator. In seconds, with some to spare.
SETTLED = 1.3
# How long windows must stay where they are.
STAYS = 0.5


class Station(MainWindow):
    @contextlib.contextmanager
    def up(self, stored, size=SIZE):
        self.set(docked=False, size=size, UTC=0, **stored)
        with self.alive(PROGRAM):
            self.wait_focus(CALL)
            yield

    def frames(self):
        return {side: self.frame(side) for side in SIDES}

    def bars(self):
        return [self.node("status bar", "Statuslinje")] + [bar for role in ("menu bar", "tool bar") for bar in self.top(MAIN).find(role)]

    def faults(self):
        """What is not as it should be now."""
        found, fields = self.frames(), self.fields()
        # A field that is not in sight may be covered.
        main = self.top(MAIN).rectangle
        told = [f"{side} is not wholly on the screen: {frame}" for side, frame in found.items() if not within(frame, SCREEN)]
        told += [f"{side} covers {name}: {frame}, {field}" for side, frame in found.items() for name, field in fields.items()
                 if overlap(frame, field) and overlap(main, field)]
        told += [f"{one} covers {other}: {found[one]}, {found[other]}" for place, one in enumerate(SIDES) for other in SIDES[place + 1:]
                 if overlap(found[one], found[other])]
        bars = {bar: bar.rectangle for bar in self.bars()}
        told += [f"{side} covers {bar}: {frame}, {place}" for side, frame in found.items() for bar, place in bars.items()
                 if overlap(frame, place) and overlap(main, place)]
        return told

    def expect_in_sight(self, when):
        until(lambda: not self.faults(), lambda: f"{when}: " + "; ".join(self.faults()))
        time.sleep(STAYS)
        expect(self.faults(), [], when + ", what is wrong")
        self.expect_letters_in_call()

    def expect_stored(self, wanted):
        expect({key: self.setting(key) for key in wanted}, {key: str(twips) for key, twips in wanted.items()}, "what is stored")


def places_of_a_larger_screen_are_all_in_sight_and_stay_stored():
    # A window manager may move and reduce a main window that is partly outside the screen.
    for stored, size in ((CORNER, SIZE), (MIDDLE, SIZE), (MIDDLE, HIGH)):
        with station.up(stored, size):
            station.expect_in_sight("at the start")
        station.expect_stored(stored | {"Bredde": size[0], "Hojde": size[1]})


def windows_that_are_moved_are_the_only_ones_stored_elsewhere():
    with station.up(CORNER):
        station.expect_in_sight("at the start")
        time.sleep(SETTLED)
        wanted = dict(CORNER)
        for moved, key in ((NEXT, "QSO"), (CHECK, "B4")):
            before = station.frames()
            # To a place that is still over the log. Some window managers move a window without its frame there, others with it.
            left, top = station.rectangle(moved)[:2]
            station.xdotool("windowmove", station.window(moved), str(left + 15), str(top + 9))
            until(lambda moved=moved, old=before[moved]: station.frame(moved)[:2] != old[:2], "the effect of the move")
            station.expect_letters_in_call()
            # After this time the program has arranged its windows.
            time.sleep(STAYS)
            left, top = station.frame(moved)[:2]
            expect(station.frames(), before | {moved: before[moved]._replace(left=left, top=top)}, "the places after the move")
            # A moved window is stored as it is shown, and it had been lent less height than it has.
            height = station.rectangle(moved)[3] * TWIPS
            assert height < STORED[key + "Height"], f"{moved} has not been lent less height"
            wanted |= {key + "Left": left * TWIPS, key + "Top": top * TWIPS, key + "Height": height}
    station.expect_stored(wanted)


def a_main_window_that_fills_the_screen_has_no_field_covered():
    with station.up(CORNER):
        station.expect_in_sight("at the start")
        for when, change in (("maximised", station.click_title), ("restored", station.click_title), ("full screen", station.full_screen),
                             ("after full screen", station.full_screen)):
            change()
            station.expect_in_sight(when)
    station.expect_stored(CORNER | {"Bredde": SIZE[0], "Hojde": SIZE[1]})


def a_window_that_a_small_screen_has_maximised_is_not_stored_so():
    size = 1261, 703
    with station.up(MIDDLE, size):
        until(station.maximised, "the maximised window")
        time.sleep(SETTLED)
    station.expect_stored(MIDDLE | {"Bredde": size[0], "Hojde": size[1], "Tilstand": ""})
    with station.up(MIDDLE, size):
        time.sleep(SETTLED)
        station.click_title()
        # The width of the frame is not known before the window is on the screen.
        room = SCREEN._replace(width=SCREEN.width + 10, height=SCREEN.height + 10)
        until(lambda: within(station.frame(MAIN), room), lambda: f"a window on the screen; it is {station.frame(MAIN)}")
        time.sleep(SETTLED)
    station.expect_stored(MIDDLE | {"Bredde": size[0], "Hojde": size[1], "Tilstand": ""})


def a_place_partly_outside_the_screen_stays_stored():
    beyond = CORNER | {"QSOLeft": 800 * TWIPS + 2, "QSOTop": 40 * TWIPS + 2, "QSOHeight": 60 * TWIPS}
    with station.up(beyond):
        until(lambda: within(station.frame(NEXT), SCREEN), lambda: f"a window on the screen; it is at {station.frame(NEXT)}")
        time.sleep(SETTLED)
        assert station.frame(NEXT).left < 800, "the window manager has left the window alone"
    station.expect_stored(beyond)


def a_place_of_a_larger_screen_is_not_over_the_menus():
    # Less than half of the number would be on the screen, and the window manager would push it over the menus.
    wide = CORNER | {"QSOLeft": 695 * TWIPS, "QSOTop": 31 * TWIPS, "QSOHeight": 152 * TWIPS, "QSOWidth": 840 * TWIPS}
    with station.up(wide, (1261, 703)):
        station.expect_in_sight("at the start")
    wide.pop("QSOWidth")
    station.expect_stored(wide)


def a_warning_at_the_edge_of_the_screen_leaves_the_number_where_it_was():
    stored = CORNER | {"QSOLeft": 600 * TWIPS, "QSOTop": 40 * TWIPS, "QSOHeight": 60 * TWIPS}
    with station.up(stored):
        station.type(*"dl9xyz", "space", "5", "Return")
        time.sleep(SETTLED)
        station.xdotool("windowmove", station.window(NEXT), str(SCREEN.width - station.frame(NEXT).width), "50")
        until(lambda: station.frame(NEXT).left > 600, "the effect of the move")
        time.sleep(STAYS)
        before = station.frame(NEXT)
        for _ in range(2):
            station.type(*"dl9xyz", "space")
            until(lambda: station.frame(NEXT).width > before.width, "a wider window")
            until(lambda: within(station.frame(NEXT), SCREEN), "a warning on the screen")
            time.sleep(STAYS)
            station.type("Escape")
            until(lambda: station.frame(NEXT) == before, lambda: f"the place of before, {before}; it is {station.frame(NEXT)}")
        time.sleep(STAYS)
    station.expect_stored(stored | {"QSOLeft": before.left * TWIPS, "QSOTop": before.top * TWIPS})


def windows_that_leave_the_main_window_cover_nothing_of_it():
    with Station(DATA, MANAGER, size="1920x1080") as large:
        large.set(UTC=0, MainLeft=5505, MainTop=3255, **dict.fromkeys(("QSOLeft", "QSOTop", "CallLeft", "CallTop"), 0),
                  QSOHeight=3000, CallHeight=3000, B4Left=2000, B4Top=2000, B4Width=6000, B4Height=6000)
        with large.settings_file.open("a") as file:
            file.write("[Vindue]\nBredde=1261\nHojde=703\n")
        with large.alive(PROGRAM):
            large.wait_focus(CALL)
            large.choose("e", "Ekstra", "Saml vinduerne")
            until(lambda: all(large.windows(side) for side in SIDES), "three windows")
            time.sleep(SETTLED)
            main, places = large.frame(MAIN), large.frames()
            expect([side for side in SIDES if overlap(places[side], main)], [], f"what covers the main window at {main} with {places}")


if __name__ == "__main__":
    skip_without_tools(MANAGER, *TOOLS, others=missing_tools())
    chosen = sys.argv[4:]
    with Station(DATA, MANAGER, size=f"{SCREEN.width}x{SCREEN.height}") as station:
        sys.exit(run([case for name, case in list(globals().items())
                      if name.startswith(("a_", "places_", "windows_")) and (not chosen or name in chosen)]))
