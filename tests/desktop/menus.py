#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    menus.py PROGRAM DATA MANAGER

Chooses every command of every menu by keyboard under this window manager, except the one that ends the program, and closes what opens.
After each of them a typed letter must arrive in the call field. Commands that open a window are listed here with its title; a command
that is not listed must open none. Skipped if something it needs is not installed.
"""
import sys
import time

from accessible import CALL, CHECK, MAIN, NEXT, OWN, ReadableDesktop, missing_tools
from desktop import run, skip_without_tools, until

PROGRAM, DATA, MANAGER = sys.argv[1:4]
ACCESS = {"Filer": "f", "Vis": "v", "Bånd/mode": "b", "Indstillinger": "i", "Funktioner": "k", "CW": "w", "Ekstra": "e", "Hjælp": "h"}
LINE = "13:00 DL9XYZ          59 -0001 59 -0345  3 DL         OZ1AB      SSB   05-09-26\r\n"
BOX, QUESTION = "Vatro", "Bånd/modeskift"
PDF = "Gem udskriften som PDF"
ENDS = ("Filer", "Afslut")
# What opens, one after the other, by the command or by the menu that it is in.
OPENS = {
    ("Filer", "Sæt Logbibliotek..."): ["Vælg eller opret logbibliotek", BOX],
    ("Filer", "Backup", "Kopi af log"): [BOX],
    ("Filer", "Backup", "Sæt bibliotek..."): ["Vælg eller opret Backupbibliotek", BOX],
    ("Filer", "Diskettekopi"): [BOX],
    ("Filer", "Dan fejlliste"): ["Dan fejlliste"],
    ("Filer", "Dan log"): ["Dan log"],
    ("Filer", "Dan html"): ["Dan html"],
    ("Filer", "Dan ADIF"): ["Dan ADIF"],
    ("Filer", "Printer..."): ["Udskriv"],
    ("Filer", "Udskriv log..."): ["Udskriv log"],
    ("Filer", "Udskriv log...", "Ukendte"): [BOX, "Udskriv log"],
    **{("Filer", "Udskriv log...", what): [PDF, "Udskriv log"] for what in ("80m SSB", "Mult Check", "Summary", "Alt")},
    ("Vis", "Kørte EDR stationer..."): ["Kørte EDR stationer"],
    ("Vis", "Ikke kørte EDR stationer..."): ["Ikke kørte EDR stationer"],
    ("Bånd/mode",): [QUESTION],
    ("Indstillinger", "Nyt QSO nummer..."): ["Nyt QSO nummer"],
    ("Indstillinger", "Contest Call..."): ["Contest Call"],
    ("Indstillinger", "Udstyr..."): ["Udstyr"],
    ("Indstillinger", "UTC offset..."): ["UTC offset"],
    ("Funktioner", "Indsæt Note..."): ["Note"],
    ("Funktioner", "Streg-P calls..."): ["Mangler nogle calls '/P'?"],
    ("Funktioner", "Importer CTY.DAT..."): ["Import af CTY.DAT"],
    ("Funktioner", "Importer CT-log..."): ["Åbn"],
    # The first text. The message that there is no sound card comes once.
    ("CW", "CQ TEST DE #R #R TEST K"): [BOX],
    ("CW", "CW Indstillinger..."): ["CW indstillinger"],
    ("Ekstra", "Løbende kopi..."): ["Vælg bibliotek til løbende kopi"],
    ("Hjælp", "Indhold"): ["Vatro - hjælp"],
    ("Hjælp", "Quick Info..."): ["Quick Info"],
    ("Hjælp", "Start information..."): ["Information til Fieldday 2004"],
    ("Hjælp", "Om Vatro"): ["Om Vatro"],
}
# A tick moves from one to the other.
ONE_OF_SOME = {("Bånd/mode",), ("Indstillinger", "Klasse")}
SIDES = {("Vis", "Næste QSOnr"): NEXT, ("Vis", "Call check"): CHECK, ("Vis", "Contest Call"): OWN}
# Yes to a change of band or mode; everything else is closed with Esc.
ANSWERS = {QUESTION: "Return"}
# What Qt says when there is no sound system.
SILENT = "PulseAudioService: pa_context_connect() failed\n"
# A box answers no key for a fifth of a second. In seconds, with some to spare.
BOXES, UNSEEN = (BOX, QUESTION, "Import af CTY.DAT"), 0.25


class Station(ReadableDesktop):
    """The program with one contact in its log, and without a sound system."""

    def commands(self, item, path=(), steps=()):
        """The commands below this entry of the menu bar: each with its path, its keys and its node."""
        menu = item.find("popup menu")[:1]
        if not menu:
            yield path, steps, item
            return
        # Separators and hidden entries take no Down.
        entries = [entry for entry in menu[0].children if entry.role == "menu item" and entry.rectangle.height]
        for place, entry in enumerate(entries):
            opened = ("alt+" + ACCESS[path[0]],) if not steps else (*steps, "Right")
            yield from self.commands(entry, (*path, entry.name), (*opened, *["Down"] * place))

    def choose(self, path, steps, item):
        self.type(*steps, delay=4)
        until(lambda: "focused" in item.states, f"the entry {', '.join(path)}")
        self.type("Return")

    def close_what_opens(self, path):
        opens = next((OPENS[path[:length]] for length in (3, 2, 1) if path[:length] in OPENS), [])
        for title in opens:
            if title != opens[0] and title not in BOXES:
                # When a box over this window closes, the window manager may give the keys back to the main window.
                self.keys_go_to(title)
            until(lambda: self.active() == title, lambda: f"{title} after {', '.join(path)}; the keys are at {self.active()}")
            if title in BOXES:
                time.sleep(UNSEEN)
            self.type(ANSWERS.get(title, "Escape"))
            until(lambda: self.active() != title, f"the end of {title}")
        self.wait_active(MAIN)

    def expect_letter_in_call(self, path):
        self.type("x")
        until(lambda: self.text(CALL) == "X",
              lambda: f"the letter in the call field after {', '.join(path)}; the keys are at {self.focus()}")
        self.type("Escape")
        self.wait_text(CALL, "")

    def expect_letters_after(self, menus):
        """Chooses every command of these menus, and those that can be ticked twice, so that they end as they were."""
        faults, count = [], 0
        for menu in self.top(MAIN).find("menu bar")[0].children:
            if menu.name not in menus:
                continue
            for path, steps, item in list(self.commands(menu, (menu.name,))):
                if path == ENDS:
                    continue
                ticked = "checked" in item.states
                self.choose(path, steps, item)
                self.close_what_opens(path)
                again = ("checked" in item.states) != ticked and path[:-1] not in ONE_OF_SOME
                faults += self.faults_after(path)
                if again:
                    self.choose(path, steps, item)
                    if path in SIDES:
                        # It must not take the keys.
                        until(lambda path=path: self.docked(SIDES[path]), SIDES[path])
                    faults += self.faults_after(path)
                count += 1
        assert not faults, "\n".join(faults)
        return count

    def faults_after(self, path):
        try:
            self.expect_letter_in_call(path)
        except AssertionError as fault:
            self.picture_of_fault()
            self.type("alt+c", "Escape")
            return [str(fault)]
        return []


def after_each_command_a_letter_goes_to_the_call():
    station.set(UTC=0)
    (station.log / "FD80mSSB.txt").write_text(LINE, newline="")
    with station.alive(PROGRAM):
        count = station.expect_letters_after(set(ACCESS) - {"CW"})
        assert count > 70, f"only {count} commands were found"


def after_each_text_that_cannot_be_sent_a_letter_goes_to_the_call():
    station.set(UTC=0, Mode="CW", QsoMode="CW")
    with station.alive(PROGRAM, said=SILENT, PULSE_SERVER="unix:/nowhere/native"):
        count = station.expect_letters_after({"CW"})
        assert count == 9, f"{count} commands were found"


if __name__ == "__main__":
    skip_without_tools(MANAGER, "dbus-daemon", others=missing_tools())
    with Station(DATA, MANAGER) as station:
        sys.exit(run([after_each_command_a_letter_goes_to_the_call, after_each_text_that_cannot_be_sent_a_letter_goes_to_the_call]))
