#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    first_page.py PROGRAM DATA [CASE...]

Checks the page of a first start in the real program, with keys: its answers are on the disk when it has closed, the program goes on without
a question, also after a kill, and Esc leaves the question to the program. Runs every case, or those named. Skipped if the virtual screen or
the window manager is not installed.
"""
import sys
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = sys.argv[1], sys.argv[2]
PAGE = "Vatro - første start"
INFORMATION = "Information til Fieldday 2004"
QUESTION = "Vælg eller opret logbibliotek"


def start(desktop, **more):
    """Starts the program, with a clock in Denmark, and waits for the page."""
    desktop.start(PROGRAM, PAGE, TZ="CET-1", **more)


def type_in(desktop, text):
    desktop.xdotool("type", "--delay", "5", text)


def expect(found, wanted, what):
    assert found == wanted, f"{what}: {found!r}, not {wanted!r}"


def kill(desktop):
    desktop.program.kill()
    desktop.program.communicate()


def proposed(desktop):
    return desktop.home / time.strftime("Vatro %Y")


def expect_answers(desktop):
    for key, value in {"MyCall": "OZ7FD/P", "gsKlasse": "B", "gsTelefon": "86123456", "LastOP": "OZ1AB ", "UTC": "-1",
                       "gsLogLib": str(proposed(desktop))}.items():
        expect(desktop.setting(key), value, key)


def log_contact(desktop, title):
    desktop.keys_go_to(title)
    type_in(desktop, "dl7qnc")
    desktop.press("space")
    type_in(desktop, "12")
    desktop.press("Return")
    log = proposed(desktop) / "FD80mSSB.txt"
    until(lambda: log.exists() and b"DL7QNC" in log.read_bytes(), "the contact")
    return log.read_text()


def answers_typed_fast_are_on_the_disk_and_a_kill_loses_none():
    with Desktop(DATA) as desktop:
        (desktop.data / "operator.txt").write_bytes(b"OZ9XY\r\n")
        start(desktop)
        type_in(desktop, "oz7fd/p")
        desktop.press("Return", "Right", "Return")
        type_in(desktop, "86123456")
        desktop.press("Return")
        type_in(desktop, "oz1ab")
        desktop.press("Return", "Return", "Return")
        desktop.window(INFORMATION)
        expect_answers(desktop)
        expect((proposed(desktop) / "setlog.txt").read_bytes(), b"", "the marker file")
        expect((desktop.data / "operator.txt").read_bytes(), b"OZ9XY\r\nOZ1AB\r\n", "the operators")
        kill(desktop)
        # The same information again, but no question.
        desktop.start(PROGRAM, INFORMATION)
        assert not desktop.windows(PAGE) and not desktop.windows(QUESTION), "the second start asks again"
        desktop.press("Return")
        line = log_contact(desktop, "Vatro OZ7FD/P")
        assert " OZ1AB " in line, f"the operator is not in the log: {line}"
        kill(desktop)
        desktop.start(PROGRAM, INFORMATION)
        desktop.press("Return")
        desktop.keys_go_to("Vatro OZ7FD/P")
        desktop.press("alt+F4")
        expect(desktop.ended()[0], 0, "the exit code")
        expect_answers(desktop)


def enter_alone_asks_for_the_call():
    with Desktop(DATA) as desktop:
        start(desktop)
        desktop.press(*["Return"] * 9)
        assert desktop.windows(PAGE), "the page has gone without a call"
        type_in(desktop, "oz7fd/p")
        desktop.press(*["Return"] * 6)
        desktop.window(INFORMATION)
        expect(desktop.setting("MyCall"), "OZ7FD/P", "the call")


def a_held_enter_does_not_run_through_the_page():
    with Desktop(DATA) as desktop:
        start(desktop)
        type_in(desktop, "oz7fd/p")
        desktop.xdotool("keydown", "Return")
        time.sleep(2)
        desktop.xdotool("keyup", "Return")
        assert desktop.windows(PAGE), "holding Enter has accepted the page"
        assert not desktop.settings_file.exists(), "holding Enter has stored something"


def a_wrong_directory_is_told_and_nothing_is_lost():
    with Desktop(DATA) as desktop:
        file = desktop.home / "file"
        file.write_text("x")
        start(desktop)
        type_in(desktop, "oz7fd/p")
        desktop.press("alt+l")
        type_in(desktop, str(file))
        desktop.press("Return", "alt+g")
        time.sleep(0.5)
        assert desktop.windows(PAGE), "a file was taken for a directory"
        expect(file.read_text(), "x", "the file")
        desktop.press("ctrl+a")
        type_in(desktop, str(desktop.log))
        desktop.press("alt+g")
        desktop.window(INFORMATION)
        expect(desktop.setting("gsLogLib"), str(desktop.log), "the log directory")
        expect(desktop.setting("MyCall"), "OZ7FD/P", "the call")


def esc_leaves_the_question_to_the_program_and_a_kill_forgets_no_directory():
    with Desktop(DATA) as desktop:
        start(desktop)
        type_in(desktop, "oz7fd/p")
        desktop.press("Escape")
        desktop.keys_go_to(QUESTION)
        assert not proposed(desktop).exists(), "Esc has created a directory"
        expect(desktop.setting("MyCall"), None, "the call")
        type_in(desktop, str(desktop.log))
        desktop.press("Return")
        until(lambda: desktop.setting("gsLogLib") == str(desktop.log), "the log directory in the settings")
        kill(desktop)
        desktop.start(PROGRAM, INFORMATION)
        assert not desktop.windows(PAGE) and not desktop.windows(QUESTION), "the second start asks again"


def a_signal_ends_the_program_at_the_page():
    with Desktop(DATA) as desktop:
        start(desktop)
        desktop.program.terminate()
        expect(desktop.ended()[0], 0, "the exit code")
        assert not desktop.settings_file.exists(), "the signal has stored something"


def a_screen_lost_at_the_page_stores_nothing():
    with Desktop(DATA) as desktop:
        start(desktop)
        type_in(desktop, "oz7fd/p")
        desktop.lose_screen()
        desktop.ended()
        assert not desktop.settings_file.exists(), "the loss of the screen has stored something"
        assert not proposed(desktop).exists(), "the loss of the screen has created a directory"


if __name__ == "__main__":
    skip_without_tools()
    CASES = [answers_typed_fast_are_on_the_disk_and_a_kill_loses_none, enter_alone_asks_for_the_call,
             a_held_enter_does_not_run_through_the_page, a_wrong_directory_is_told_and_nothing_is_lost,
             esc_leaves_the_question_to_the_program_and_a_kill_forgets_no_directory, a_signal_ends_the_program_at_the_page,
             a_screen_lost_at_the_page_stores_nothing]
    sys.exit(run([case for case in CASES if not sys.argv[3:] or case.__name__ in sys.argv[3:]]))
