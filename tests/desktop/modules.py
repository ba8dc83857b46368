#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    modules.py PROGRAM DATA

Checks that the program loads the libraries for sound and for printers when they are used and not before, and that it says so if its modules
are missing: papers are then offered as PDF files, and nothing else is lost. Skipped if the virtual screen or the window manager is not
installed.
"""
import pathlib
import shutil
import sys
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = pathlib.Path(sys.argv[1]), sys.argv[2]
LINE = "13:00 DL9XYZ          59 -0001 59 -0345  3 DL         OZ1AB      SSB   05-09-26\r\n"
SOUND, PRINT = "libQt6Multimedia", "libQt6PrintSupport"
# The box about the module, and the one about the sound card.
BOXES = 2


def loaded(desktop, library):
    return library in pathlib.Path(f"/proc/{desktop.program.pid}/maps").read_text()


def start(desktop, program, **settings):
    (desktop.log / "FD80mSSB.txt").write_text(LINE, newline="")
    desktop.set(Band="80m", **settings)
    desktop.start(program, PULSE_SERVER="unix:/nowhere/native")


def print_log(desktop):
    """Chooses Filer, Udskriv log, 80m SSB."""
    desktop.press("alt+f", "u")
    time.sleep(0.3)
    desktop.press("8", "8", "Return")


def save_pdf(desktop):
    pdf = desktop.log / f"Log 80m SSB {time.localtime().tm_year}.pdf"
    desktop.press("Return")
    until(lambda: pdf.exists() and pdf.read_bytes().startswith(b"%PDF-"), "the PDF")
    desktop.keys_go_to("Vatro OZ7FD/P")


def each_is_loaded_at_its_first_use():
    with Desktop(DATA) as desktop:
        start(desktop, PROGRAM, Mode="CW", QsoMode="CW")
        assert not loaded(desktop, SOUND) and not loaded(desktop, PRINT), "a start has loaded a module"
        print_log(desktop)
        desktop.keys_go_to("Gem udskriften som PDF")
        assert loaded(desktop, PRINT) and not loaded(desktop, SOUND), "the paper has not loaded its module alone"
        save_pdf(desktop)
        desktop.press("F5")
        until(lambda: loaded(desktop, SOUND), "the module for sound")


def without_modules_papers_are_pdf_files_and_the_log_goes_on():
    with Desktop(DATA) as desktop:
        alone = desktop.home / "alone"
        alone.mkdir()
        shutil.copy(PROGRAM, alone)
        start(desktop, alone / PROGRAM.name, Mode="CW", QsoMode="CW")
        print_log(desktop)
        desktop.keys_go_to("Vatros del til printere mangler: gem udskriften som PDF")
        save_pdf(desktop)
        desktop.press("alt+f", "p")
        desktop.keys_go_to("Vatro")
        desktop.press("Return")
        desktop.keys_go_to("Vatro OZ7FD/P")
        desktop.press("F5")
        for _ in range(BOXES):
            desktop.keys_go_to("Vatro", rest=0.4)
            desktop.press("Return")
        desktop.keys_go_to("Vatro OZ7FD/P")
        desktop.xdotool("type", "--delay", "30", "on4un 123")
        desktop.press("Return")
        until(lambda: "ON4UN" in (desktop.log / "FD80mCW.txt").read_text(), "the contact in the log")


if __name__ == "__main__":
    skip_without_tools()
    sys.exit(run([each_is_loaded_at_its_first_use, without_modules_papers_are_pdf_files_and_the_log_goes_on]))
