#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    ends.py PROGRAM DATA [CASE...]

Checks that the operator's settings are stored however the program ends: by a signal, with a box, a dialogue or a modal form open, and
when the screen is lost. Runs every case, or those named. Those that begin with "sending" need a sound system and run only if they are
named. Skipped if the virtual screen or the window manager is not installed.
"""
import os
import signal
import sys
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = sys.argv[1], sys.argv[2]
MAIN = "Vatro OZ7FD/P"
QUESTION = "Bånd/modeskift"


def up(desktop, **settings):
    """Starts the program and changes the band and the place of the main window, so that both differ from the stored ones."""
    desktop.set(**settings)
    desktop.start(PROGRAM)
    desktop.press("ctrl+F3")
    desktop.keys_go_to(QUESTION)
    desktop.press("Return")
    until(lambda: not desktop.windows(QUESTION), "the end of the question")
    desktop.xdotool("windowmove", desktop.window(MAIN), "300", "200")
    time.sleep(0.5)


def expect(found, wanted, what):
    assert found == wanted, f"{what} is {found!r} instead of {wanted!r}"


def expect_stored(desktop, band="20m"):
    expect(desktop.setting("Band"), band, "the band")
    for key in ("MainLeft", "MainTop"):
        assert desktop.setting(key) not in (None, "1500"), f"{key} is not stored"
    for key in ("QSOLeft", "CallTop", "B4Width", "QsoMode", "LastOP"):
        assert desktop.setting(key) is not None, f"{key} is missing"
    left = sorted(path.name for path in desktop.settings_file.parent.iterdir())
    expect(left, ["vatro.ini"], "what lies beside the settings")


def expect_regular_end(desktop, band="20m"):
    code, said = desktop.ended()
    expect(code, 0, "the exit code")
    expect(said, "", "what was said")
    expect_stored(desktop, band)


def signals_close_the_program():
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        with Desktop(DATA) as desktop:
            up(desktop)
            desktop.signal(number)
            expect_regular_end(desktop)


def an_open_question_is_answered_with_no_and_the_box_behind_it_with_ok():
    with Desktop(DATA) as desktop:
        up(desktop)
        desktop.press("ctrl+F4")
        desktop.window(QUESTION)
        desktop.signal(signal.SIGTERM)
        expect_regular_end(desktop, "40m")


def a_modal_form_closes_by_its_frame():
    with Desktop(DATA) as desktop:
        up(desktop)
        desktop.press("ctrl+n")
        time.sleep(1)
        desktop.keys_go_to(NOTE)
        desktop.press("h", "e", "j")
        desktop.signal(signal.SIGTERM)
        expect_regular_end(desktop)
        expect(list(desktop.log.glob("FD*")), [], "the log")


def a_file_dialogue_is_left():
    with Desktop(DATA) as desktop:
        up(desktop)
        desktop.press("alt+f")
        time.sleep(0.5)
        desktop.press("s")
        desktop.window("Vælg eller opret logbibliotek")
        desktop.signal(signal.SIGTERM)
        expect_regular_end(desktop)
        expect(desktop.setting("gsLogLib"), str(desktop.log), "the log directory")


def an_open_menu_does_not_hold_the_end():
    with Desktop(DATA) as desktop:
        up(desktop)
        desktop.press("alt+f")
        time.sleep(0.5)
        desktop.signal(signal.SIGTERM)
        expect_regular_end(desktop)


def ask_for_log_directory(desktop):
    """Starts the program for the first time and leaves its page, so that it asks."""
    desktop.start(PROGRAM, "Vatro - første start")
    desktop.press("Escape")
    desktop.window("Vælg eller opret logbibliotek")


def the_first_start_ends_without_a_log_directory():
    with Desktop(DATA) as desktop:
        ask_for_log_directory(desktop)
        desktop.signal(signal.SIGTERM)
        code, _ = desktop.ended()
        expect(code, 0, "the exit code")
        expect(desktop.setting("Band"), None, "the band")


def a_signal_at_the_start_stores_nothing_but_what_was_there():
    with Desktop(DATA) as desktop:
        desktop.set(Band="15m")
        for wait in (0.02, 0.05, 0.1, 0.2, 0.4):
            desktop.start(PROGRAM, None)
            time.sleep(wait)
            desktop.signal(signal.SIGTERM)
            desktop.ended()
            expect(desktop.setting("Band"), "15m", "the band")
            expect(desktop.setting("MyCall"), "OZ7FD/P", "the call")


def a_program_started_to_outlive_its_terminal_does():
    with Desktop(DATA) as desktop:
        desktop.set()
        before = signal.signal(signal.SIGHUP, signal.SIG_IGN)
        desktop.start(PROGRAM)
        signal.signal(signal.SIGHUP, before)
        desktop.signal(signal.SIGHUP)
        time.sleep(1)
        assert desktop.program.poll() is None, "the program has ended"
        desktop.signal(signal.SIGTERM)
        desktop.ended()


def a_lost_screen_loses_no_setting():
    with Desktop(DATA) as desktop:
        up(desktop)
        desktop.lose_screen()
        code, said = desktop.ended()
        assert code > 0, f"Qt has not ended the program: {code} {said}"
        expect_stored(desktop)


def a_lost_screen_loses_no_setting_behind_a_box_or_a_modal_form():
    for key, title, band in (("ctrl+F4", QUESTION, "40m"), ("ctrl+n", NOTE, "20m")):
        with Desktop(DATA) as desktop:
            up(desktop)
            desktop.press(key)
            desktop.window(title)
            desktop.lose_screen()
            code, said = desktop.ended()
            assert code > 0, f"Qt has not ended the program: {code} {said}"
            expect_stored(desktop, band)


def a_lost_screen_loses_no_operator():
    with Desktop(DATA) as desktop:
        up(desktop)
        # The focus has not left the field, so the name is only in the box.
        desktop.press("alt+o", "O", "Z", "7", "Q", "Q", "Return")
        time.sleep(0.5)
        desktop.lose_screen()
        desktop.ended()
        expect_stored(desktop)
        expect(desktop.setting("LastOP"), "OZ7QQ ", "the operator")
        assert "OZ7QQ" in (desktop.data / "operator.txt").read_text(), "the list has not got the operator"


def a_lost_wayland_compositor_loses_no_setting():
    with Desktop(DATA) as desktop:
        desktop.set(Band="15m")
        compositor = desktop.start_compositor()
        desktop.start(PROGRAM, None, WAYLAND_DISPLAY=compositor.name, QT_QPA_PLATFORM="wayland")
        until(lambda: list(desktop.log.iterdir()), "the lock of the log directory")
        time.sleep(2)
        expect(desktop.setting("QsoMode"), None, "the mode before the end")
        compositor.process.kill()
        compositor.process.wait()
        code, said = desktop.ended()
        assert code > 0, f"Qt has not ended the program: {code} {said}"
        expect(desktop.setting("QsoMode"), "SSB", "the mode")
        expect(desktop.setting("Band"), "15m", "the band")


def a_screen_lost_at_the_first_start_stores_nothing():
    with Desktop(DATA) as desktop:
        ask_for_log_directory(desktop)
        desktop.lose_screen()
        desktop.ended()
        expect(desktop.setting("Band"), None, "the band")


def sending_a_lost_screen_loses_no_setting():
    with Desktop(DATA) as desktop:
        up(desktop, Mode="CW", QsoMode="CW", LastOP="OZ1AB ")
        desktop.press("F5")
        desktop.window("CW TX")
        # The sound system is at work now.
        time.sleep(0.5)
        desktop.lose_screen()
        code, said = desktop.ended()
        assert code > 0, f"Qt has not ended the program: {code} {said}"
        expect_stored(desktop)


NOTE = "Note"

if __name__ == "__main__":
    skip_without_tools()
    os.umask(0o022)
    cases = [case for name, case in list(globals().items()) if name.startswith(("a_", "an_", "the_", "signals_", "sending_"))]
    chosen = sys.argv[3:]
    sys.exit(run([case for case in cases if case.__name__ in chosen or (not chosen and not case.__name__.startswith("sending_"))]))
