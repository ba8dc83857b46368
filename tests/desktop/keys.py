#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    with_sound_card.sh keys.py PROGRAM DATA

Plays the commonest tasks with the keys that the handbook tells for them in help/operatoer.html, proves the effect of each, and counts
the presses. Fails if a task needs more presses than it may, or if the handbook counts otherwise. A combination such as Ctrl+F3 is one
press; a call, a number or a note that is typed does not count. Skipped if something it needs is not installed.
"""
import html.parser
import pathlib
import sys
import time

from accessible import CALL, LOG, MAIN, NEXT, NUMBER, ReadableDesktop, missing_tools
from desktop import expect, skip_without_tools, until

PROGRAM, DATA = sys.argv[1:3]
HANDBOOK = pathlib.Path(__file__).resolve().parents[2] / "help/operatoer.html"
# The section of the handbook.
SECTION = "tryk"
QUESTION, SENDER = "Bånd/modeskift", "CW TX"
# A box answers no key for a fifth of a second. In seconds, with some to spare.
UNSEEN = 0.25
PRESSES = {"mellemrum": "space", "Enter": "Return", "Esc": "Escape", "Ctrl+PgUp": "ctrl+Prior"}


class Table(html.parser.HTMLParser):
    """The rows of the table in the handbook: the task, the steps in the order of the text, and the number of presses. A step is a key,
    which is bold, or what the operator types."""

    def __init__(self):
        super().__init__()
        self.rows, self.here, self.bold = [], False, False
        self.feed(HANDBOOK.read_text(encoding="utf-8"))
        self.close()

    def handle_starttag(self, tag, attrs):
        if tag == "a" and "name" in dict(attrs):
            self.here = dict(attrs)["name"] == SECTION
        if self.here and tag == "tr":
            self.rows.append([])
        if self.here and tag == "td":
            self.rows[-1].append([])
        self.bold = tag == "b"

    def handle_endtag(self, tag):
        self.bold = False

    def handle_data(self, data):
        if not (self.here and self.rows and self.rows[-1]):
            return
        for words in (data,) if self.bold else data.split(","):
            if words.strip():
                self.rows[-1][-1].append((self.bold, " ".join(words.split())))

    def tasks(self):
        return {name[0][1] if len(name) == 1 else ", ".join(words for _, words in name): (steps, int(count[0][1]))
                for name, steps, count in (row for row in self.rows if row)}


def line(number, call, multiplier, mode, report):
    return (f"12:{number:02d} {call:15s} {report:3s}-{number:04d} {report:3s}-{number:04d}  3 {multiplier:10s} OZ1AB      {mode:6s}"
            "05-09-26\r\n")


class Player(ReadableDesktop):
    """Plays the steps of a task and counts the presses."""

    def __init__(self):
        super().__init__(DATA)
        self.presses = 0

    def play(self, steps, typed=(), after=()):
        """`typed`: what to type for a step that is no key. `after`: what to wait for after the key of this number, from 1."""
        typed, after = dict(typed), dict(after)
        self.presses = 0
        for is_key, step in steps:
            if not is_key:
                if step in typed:
                    self.type(*typed[step])
                continue
            step = step.replace("Skift+", "shift+")
            self.type(PRESSES.get(step, step[:-1] + step[-1].lower() if step[-2:-1] == "+" else step))
            self.presses += 1
            if self.presses in after:
                after[self.presses]()

    def lines(self, log):
        file = self.log / log
        return file.read_text(encoding="cp1252").splitlines() if file.exists() else []

    def wait_for_line(self, log, count):
        until(lambda: len(self.lines(log)) >= count, f"line {count} of {log}")
        expect(len(self.lines(log)), count, f"the number of lines of {log}")
        return self.lines(log)[-1]

    def asked(self):
        self.wait_active(QUESTION)
        time.sleep(UNSEEN)

    def sums(self):
        """The points, the multipliers and their product, as the status bar tells them."""
        told = self.status()
        return [told[told.index(what) - 1] for what in ("Point", "Mult.", "I alt")]


def chosen(name):
    """Whether the button of this band or mode is pressed."""
    return "checked" in player.node("check box", name).states


# Each procedure plays the steps of its task and proves their effect. They are played in this order, by one operator.


def log_a_contact(steps):
    player.play(steps, {"kaldesignal": "dl1xyz", "nummer": "42"})
    told = player.wait_for_line("FD80mSSB.txt", 3)
    expect(told[6:39], "DL1XYZ          59 -0003 59 -0042", "the contact")


def wipe(steps):
    player.type(*"dl2xyz", "space", "4")
    player.wait_text(NUMBER, "4")
    player.play(steps)
    player.wait_text(NUMBER, "")
    player.wait_text(CALL, "")
    player.wait_focus(CALL)


def see_a_duplicate(steps):
    player.play(steps, {"kaldesignal": "dl1xyz"})
    until(lambda: "DUPE" in player.docked(NEXT).name, "the word DUPE beside the number")
    until(lambda: "DUPE" in player.status()[0], "the word DUPE in the status bar")
    player.type("Escape")
    player.wait_text(CALL, "")


def correct_the_last_line(steps):
    before = player.lines("FD80mSSB.txt")
    player.play(steps, {"kaldesignal": "dl7qrs"}, {1: lambda: player.wait_active("Ret QSO")})
    wanted = [*before[:-1], before[-1].replace("DL1XYZ", "DL7QRS")]
    until(lambda: player.lines("FD80mSSB.txt") == wanted, lambda: f"the corrected line; there is {player.lines('FD80mSSB.txt')[-1]}")
    player.wait_active(MAIN)
    player.wait_focus(CALL)


def change_the_band(steps):
    assert not chosen("20m"), "the band is the wanted one already"
    player.play(steps, (), {1: player.asked})
    until(lambda: chosen("20m"), "the band")
    player.wait_active(MAIN)
    player.wait_focus(CALL)


def change_the_mode(steps):
    assert not chosen("CW"), "the mode is the wanted one already"
    player.play(steps, (), {1: player.asked})
    until(lambda: chosen("CW"), "the mode")
    player.wait_active(MAIN)
    player.wait_text("Sendt rapport", "599")
    expect(len(player.node("list", LOG).children), len(player.lines("FD20mCW.txt")), "the number of lines on the screen")


def change_the_operator(steps):
    player.play(steps, {"operatør": "oz9zz"})
    player.wait_focus(CALL)
    player.type(*"on4aa", "space", "7", "Return")
    told = player.wait_for_line("FD20mCW.txt", 4)
    expect(told[6:63], "ON4AA           599-0004 599-0007  3 ON         OZ9ZZ    ", "the contact of the new operator")


def write_a_note(steps):
    player.play(steps, {"note": "regn"}, {1: lambda: player.wait_active("Note")})
    told = player.wait_for_line("FD20mCW.txt", 5)
    expect(told.rstrip(), "NOTE: regn", "the line of the note")
    player.wait_active(MAIN)
    player.wait_focus(CALL)


def send(steps):
    player.play(steps)
    player.wait_active(SENDER)
    until(lambda: player.top(SENDER).find("text")[0].text.startswith("CQ TEST DE OZ7FD/P"), "the text on its way")


def stop(steps):
    player.type(*"sm5x")
    player.wait_text(CALL, "SM5X")
    expect(player.active(), SENDER, "the window with the keys")
    player.play(steps)
    player.wait_gone(SENDER)
    player.wait_active(MAIN)
    player.wait_text(CALL, "SM5X")
    player.type("Escape")
    player.wait_text(CALL, "")


def send_faster(steps):
    player.play(steps)
    until(lambda: player.setting("WPM") == "12", lambda: f"the speed 12 in the settings, where it is {player.setting('WPM')}")


def see_the_total(steps):
    player.play(steps)
    until(lambda: player.sums() == ["12", "3", "36"], lambda: f"the sums; there is {player.status()}")


# The most presses of each task.
TASKS = {
    "Log en kontakt": (2, log_a_contact),
    "Tøm felterne": (1, wipe),
    "Se, om det er en dublet": (1, see_a_duplicate),
    "Ret kaldesignalet i den sidste linje": (4, correct_the_last_line),
    "Skift bånd": (2, change_the_band),
    "Skift mode": (2, change_the_mode),
    "Skift operatør": (2, change_the_operator),
    "Skriv en note": (2, write_a_note),
    "Send en morsetekst": (1, send),
    "Stop teksten": (1, stop),
    "Send hurtigere": (1, send_faster),
    "Se jeres stilling": (0, see_the_total),
}


def play_all():
    """The faults of all tasks."""
    told = Table().tasks()
    if list(told) != list(TASKS):
        return [f"the handbook has the tasks {list(told)}"]
    faults = []
    for name, (most, task) in TASKS.items():
        steps, count = told[name]
        try:
            task(steps)
        except AssertionError as fault:
            player.picture_of_fault()
            # What follows builds on it.
            return [*faults, f"{name}: {fault}"]
        print(f"{player.presses:3d} of {most}  {name}", flush=True)
        if player.presses > most:
            faults.append(f"{name}: {player.presses} presses, and {most} are enough")
        if player.presses != count:
            faults.append(f"{name}: {player.presses} presses; the handbook says {count}")
    return faults


if __name__ == "__main__":
    skip_without_tools("dbus-daemon", others=missing_tools())
    with Player() as player:
        player.set(UTC=0, Band="80m")
        with player.settings_file.open("a") as settings:
            settings.write("[CW]\nWPM=10\n")
        for file, mode, report in (("FD80mSSB.txt", "SSB", "59 "), ("FD20mCW.txt", "CW", "599")):
            calls = (("DL1AA", "DL"), ("SM1AA", "SM"), ("DL2AA", ""))[:2 if mode == "SSB" else 3]
            (player.log / file).write_text("".join(line(number, call, multiplier, mode, report)
                                                   for number, (call, multiplier) in enumerate(calls, 1)), newline="")
        with player.alive(PROGRAM):
            player.wait_focus(CALL)
            found = play_all()
        print("\n".join(found))
        sys.exit(bool(found))
