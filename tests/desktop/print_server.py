#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    print_server.py PROGRAM DATA

Checks that a print server that accepts connections and never answers does not block the program. The start does not ask the server,
and a print job offers a PDF file after two seconds. Skipped if the virtual screen or the window manager is not installed.
"""
import pathlib
import socket
import sys
import threading
import time

from desktop import Desktop, run, skip_without_tools, until

PROGRAM, DATA = sys.argv[1], sys.argv[2]
LINE = "13:00 DL9XYZ          59 -0001 59 -0345  3 DL         OZ1AB      SSB   05-09-26\r\n"
PATIENCE = 2
# The time that a busy machine needs to show a window.
SLACK = 2


class SilentServer:
    """Accepts every connection and never answers."""

    def __init__(self):
        self.listening = socket.create_server(("127.0.0.1", 0))
        self.connections = []
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            try:
                self.connections.append(self.listening.accept()[0])
            except OSError:
                return

    @property
    def address(self):
        return "127.0.0.1:%d" % self.listening.getsockname()[1]


def prepared(desktop, **settings):
    (desktop.log / "FD80mSSB.txt").write_text(LINE, newline="")
    desktop.set(Band="80m", **settings)


def print_log(desktop):
    """Chooses Filer, Udskriv log, 80m SSB."""
    desktop.press("alt+f", "u")
    time.sleep(0.3)
    desktop.press("8", "8", "Return")


def is_pdf(file):
    return file.exists() and file.read_bytes().startswith(b"%PDF-")


def children(desktop):
    pid = desktop.program.pid
    return pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split()


def time_of_start(server):
    with Desktop(DATA) as desktop:
        prepared(desktop)
        begin = time.monotonic()
        desktop.start(PROGRAM, None, CUPS_SERVER=server)
        desktop.window("Vatro OZ7FD/P")
        return time.monotonic() - begin


def the_start_asks_no_server():
    silent = SilentServer()
    without = min(time_of_start("/nowhere") for _ in range(2))
    with_it = min(time_of_start(silent.address) for _ in range(2))
    assert not silent.connections, "the server was asked"
    assert with_it < without + 0.5, f"{with_it:.2f} s instead of {without:.2f} s"
    print(f"        {without:.2f} s without a server, {with_it:.2f} s with a silent one")


def a_job_is_offered_as_a_pdf_after_two_seconds():
    silent = SilentServer()
    with Desktop(DATA) as desktop:
        prepared(desktop)
        desktop.start(PROGRAM, CUPS_SERVER=silent.address)
        for _ in range(2):
            connections = len(silent.connections)
            print_log(desktop)
            begin = time.monotonic()
            desktop.keys_go_to("Printserveren svarer ikke: gem udskriften som PDF")
            took = time.monotonic() - begin
            assert len(silent.connections) > connections, "the server was not asked"
            assert PATIENCE - 1 < took < PATIENCE + SLACK, f"the offer came after {took:.1f} s"
            print(f"        offered after {took:.1f} s")
            pdf = desktop.log / f"Log 80m SSB {time.localtime().tm_year}.pdf"
            pdf.unlink(missing_ok=True)
            desktop.press("Return")
            until(lambda: is_pdf(pdf), "the PDF")
            desktop.keys_go_to("Vatro OZ7FD/P")
        assert not children(desktop), "somebody still asks"


def the_printer_cannot_be_chosen_meanwhile():
    silent = SilentServer()
    with Desktop(DATA) as desktop:
        prepared(desktop)
        desktop.start(PROGRAM, CUPS_SERVER=silent.address)
        desktop.press("alt+f", "p")
        desktop.keys_go_to("Vatro")
        desktop.press("Return")
        until(lambda: not desktop.windows("Vatro"), "the end of the box")


def a_server_that_refuses_costs_nothing():
    with Desktop(DATA) as desktop:
        prepared(desktop)
        desktop.start(PROGRAM, CUPS_SERVER="127.0.0.1:1")
        print_log(desktop)
        begin = time.monotonic()
        desktop.keys_go_to("Gem udskriften som PDF")
        took = time.monotonic() - begin
        assert took < PATIENCE, f"the offer came after {took:.1f} s"


if __name__ == "__main__":
    skip_without_tools()
    sys.exit(run([the_start_asks_no_server, a_job_is_offered_as_a_pdf_after_two_seconds, the_printer_cannot_be_chosen_meanwhile,
                  a_server_that_refuses_costs_nothing]))
