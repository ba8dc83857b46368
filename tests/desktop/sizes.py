#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    sizes.py PROGRAM DATA MANAGER [CASE...]

Checks the main window while it is maximised, restored and restarted, and while the text grows and shrinks: the size and the state are
those of before, and the newest line of the log is in sight. Runs every case, or those named, under this window manager. Skipped if
something it needs is not installed.
"""
import contextlib
import sys
import time

from accessible import CALL, LOG, MAIN, TWIPS, Rectangle, missing_tools, within
from desktop import expect, run, skip_without_tools, until
from main_window import FULL_SCREEN, TOOLS, MainWindow

PROGRAM, DATA, MANAGER = sys.argv[1:4]
CONTACTS = 60
# A window that was shown, maximised or restored less than a quarter of a second ago is not moved by the operator. With some to spare.
SETTLED = 0.6
SCREEN = Rectangle(0, 0, 1400, 900)


class Station(MainWindow):
    """One screen for all cases; each case starts the program with fresh settings."""

    @contextlib.contextmanager
    def up(self, state=None, **settings):
        """`state`: the stored state of the window; only together with a stored size."""
        (self.log / "FD80mSSB.txt").write_text("".join(
            f"13:{number % 60:02d} DL{number}AA".ljust(21) + f"59 -{number:04d} 59 -{number:04d}  3 {'DL' if number == 1 else '':10s} "
            "OZ1AB      SSB   05-09-26\r\n" for number in range(1, CONTACTS + 1)), newline="")
        self.set(UTC=0, **settings)
        if state is not None:
            with self.settings_file.open("a") as file:
                file.write(f"Tilstand={state}\n")
        with self.alive(PROGRAM):
            yield

    def restart(self):
        self.end()
        self.start(PROGRAM)

    # The text

    def zoom(self, key, times=1):
        """Presses a key that changes the size of the text, and waits for each change."""
        for _ in range(times):
            before = self.text_size()
            self.type(key)
            until(lambda: self.text_size() != before, f"the effect of {key}")
        self.settled()

    def text_size(self):
        return self.node("label", "UTC: Call: RST sendt: RST modtaget:").rectangle.height, self.node("text", CALL).rectangle.height

    # The log

    def newest_in_sight(self):
        rows = self.node("list", LOG)
        shown, newest = rows.rectangle, rows.children[-1]
        assert f"DL{CONTACTS}AA" in newest.name, f"the last line is {newest.name!r}"
        # A list that is too narrow can be scrolled; the lines begin at its left edge.
        row = newest.rectangle
        row = row._replace(width=min(row.width, shown.left + shown.width - row.left))
        return within(row, shown) and within(row, self.top(MAIN).rectangle)

    def expect_newest_in_sight(self, when):
        until(self.newest_in_sight, "the newest line " + when)


def the_newest_line_is_in_sight_at_each_size():
    with station.up():
        station.expect_newest_in_sight("at the start")
        for when, change in (("when maximised", station.click_title), ("with larger text", lambda: station.zoom("ctrl+plus", 3)),
                             ("when restored", station.click_title), ("in full screen", station.full_screen),
                             ("after full screen", station.full_screen), ("with smaller text", lambda: station.zoom("ctrl+minus", 5))):
            change()
            station.expect_newest_in_sight(when)
        station.restart()
        station.expect_newest_in_sight("after a restart")


def a_maximised_window_comes_back_maximised_and_restores_to_its_size():
    with station.up():
        normal = station.size()
        station.click_title()
        large = station.size()
        station.restart()
        until(station.maximised, "the maximised window")
        station.settled()
        station.wait_size(large, "the maximised size after the restart")
        station.click_title()
        station.wait_size(normal, "the restored size")


def a_place_comes_back_however_large_the_window_was():
    for change in (station.full_screen, station.click_title):
        with station.up(MainLeft=1502, MainTop=1204):
            before = station.frame(MAIN)
            for _ in range(2):
                change()
                station.restart()
                change()
                until(lambda: station.frame(MAIN) == before, lambda: f"the place of before, {before}; it is {station.frame(MAIN)}")
                station.restart()
                expect(station.frame(MAIN), before, "the place after a restart")
        expect([station.setting(key) for key in ("MainLeft", "MainTop")], ["1502", "1204"], "the stored place")


def a_place_that_the_operator_chooses_is_stored_at_once():
    with station.up():
        station.click_title()
        station.click_title()
        time.sleep(SETTLED)
        station.xdotool("windowmove", station.window(MAIN), "300", "200")
        until(lambda: station.rectangle(MAIN)[:2] != (0, 0) and station.frame(MAIN).left in (300, 295), "the effect of the move")
        place = station.frame(MAIN)
    expect([station.setting(key) for key in ("MainLeft", "MainTop")], [str(TWIPS * place.left), str(TWIPS * place.top)], "the stored place")


def a_size_and_a_text_size_come_back():
    with station.up():
        # Another size than the one that fits the text.
        width, height = station.size()
        wanted = width + 130, height + 70
        station.xdotool("windowsize", station.window(MAIN), *map(str, wanted))
        station.wait_size(wanted, "the size that the operator gives the window")
        station.zoom("ctrl+plus", 2)
        zoomed, text = station.size(), station.text_size()
        station.restart()
        station.settled()
        expect(station.text_size(), text, "the size of the text after the restart")
        station.wait_size(zoomed, "the size of the window after the restart")


def the_normal_text_brings_back_the_size_of_before():
    with station.up():
        normal, text = station.size(), station.text_size()
        for key in ("ctrl+plus", "ctrl+minus"):
            station.zoom(key, 3)
            station.zoom("ctrl+0")
            expect(station.text_size(), text, f"the size of the text after {key} and Ctrl+0")
            station.wait_size(normal, f"the size after {key} and Ctrl+0")


def the_place_is_kept_while_larger_text_needs_more_room():
    stored = {"MainLeft": 200 * TWIPS + 2, "MainTop": 100 * TWIPS + 2}
    with station.up(**stored):
        before = station.frame(MAIN)
        expect(before[:2], (200, 100), "the place at the start")
        # The rows of both lists no longer fit into the screen right of the window.
        station.zoom("ctrl+plus", 3)
        until(lambda: station.frame(MAIN).left < before.left, "a window that has moved to the left")
        assert within(station.frame(MAIN), SCREEN), f"the window is not on the screen: {station.frame(MAIN)}"
        station.zoom("ctrl+0")
        until(lambda: station.frame(MAIN) == before, lambda: f"the frame of before, {before}; it is {station.frame(MAIN)}")
        station.zoom("ctrl+plus", 3)
    expect({key: station.setting(key) for key in stored}, {key: str(twips) for key, twips in stored.items()}, "what is stored")
    # The text is large from the beginning now, and the stored place is the same.
    with station.up(TekstStr=3, **stored):
        until(lambda: station.frame(MAIN).left < before.left, "a window that is left of its place")
    expect({key: station.setting(key) for key in stored}, {key: str(twips) for key, twips in stored.items()}, "what is still stored")


def the_normal_text_in_a_maximised_window_leaves_its_size():
    with station.up():
        normal = station.size()
        station.click_title()
        large = station.size()
        station.zoom("ctrl+plus", 3)
        station.wait_size(large, "the maximised size with larger text")
        station.zoom("ctrl+0")
        station.wait_size(large, "the maximised size after Ctrl+0")
        station.click_title()
        station.wait_size(normal, "the restored size")


# A window that was wholly in sight on a larger screen.
LARGER = {"MainLeft": 500 * TWIPS + 2, "MainTop": 300 * TWIPS + 2}
LARGER_SIZE = 1200, 780


def expect_larger_stored(state=""):
    wanted = {key: str(twips) for key, twips in LARGER.items()} | {"Bredde": str(LARGER_SIZE[0]), "Hojde": str(LARGER_SIZE[1]),
                                                                  "Tilstand": state}
    expect({key: station.setting(key) for key in wanted}, wanted, "what is stored")


def expect_on_screen(when):
    # The width of the frame is not known before the window is on the screen.
    screen = SCREEN._replace(width=SCREEN.width + 10, height=SCREEN.height + 10)
    until(lambda: within(station.frame(MAIN), screen), lambda: f"{when}, a window on the screen; it is {station.frame(MAIN)}")
    time.sleep(SETTLED)
    assert within(station.frame(MAIN), screen), f"{when}, the window is outside: {station.frame(MAIN)}"


def a_window_of_a_larger_screen_is_restored_on_a_smaller_one():
    for state, change in (("hele", station.full_screen), ("maksimeret", station.click_title)):
        with station.up(state, docked=False, size=LARGER_SIZE, **LARGER):
            time.sleep(SETTLED)
            change()
            expect_on_screen("restored")
        expect_larger_stored()


def the_keys_for_the_text_leave_the_place_of_a_larger_screen():
    with station.up(docked=False, size=LARGER_SIZE, **LARGER):
        expect_on_screen("at the start")
        before = station.frame(MAIN)
        for keys in (["ctrl+0"], ["ctrl+plus", "ctrl+0"], ["ctrl+plus", "ctrl+plus", "ctrl+plus", "ctrl+0"], ["ctrl+plus"]):
            for key in keys:
                station.type(key)
                time.sleep(SETTLED)
                expect_on_screen(f"{key} of {keys}")
            if keys[-1] == "ctrl+0":
                until(lambda: station.frame(MAIN) == before, lambda: f"the frame of before, {before}; it is {station.frame(MAIN)}")
    expect_larger_stored()


def a_minimised_window_comes_back_as_it_was():
    for state, change in (("hele", station.full_screen), ("maksimeret", station.click_title)):
        with station.up(docked=False):
            change()
            station.xdotool("windowminimize", station.window(MAIN))
            until(lambda: not station.windows(MAIN), "the minimised window")
        expect(station.setting("Tilstand"), state, "the stored state")


def a_maximised_window_is_maximised_again_after_full_screen_and_a_restart():
    with station.up():
        normal = station.frame(MAIN)
        station.click_title()
        large = station.frame(MAIN)
        station.full_screen()
        station.restart()
        until(lambda: FULL_SCREEN in station.states(MAIN), "full screen")
        station.full_screen()
        until(lambda: station.maximised() and station.frame(MAIN) == large, lambda: f"the maximised window; it is {station.frame(MAIN)}")
        station.click_title()
        until(lambda: station.frame(MAIN) == normal, lambda: f"the frame of before, {normal}; it is {station.frame(MAIN)}")


if __name__ == "__main__":
    skip_without_tools(MANAGER, *TOOLS, others=missing_tools())
    chosen = sys.argv[4:]
    with Station(DATA, MANAGER, size=f"{SCREEN.width}x{SCREEN.height}") as station:
        sys.exit(run([case for name, case in list(globals().items())
                      if name.startswith(("a_", "the_")) and (not chosen or name in chosen)]))
