# SPDX-License-Identifier: MIT
"""The main window as the window manager treats it: its size and state, and those of the windows above it."""
import re
import subprocess
import time

from accessible import MAIN, ReadableDesktop, Rectangle
from desktop import until

# What is needed besides the tools of every desktop.
TOOLS = ("dbus-daemon", "xprop", "xwininfo")
MAXIMISED = {"_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ"}
FULL_SCREEN = "_NET_WM_STATE_FULLSCREEN"


class MainWindow(ReadableDesktop):
    def size(self):
        return self.rectangle(MAIN)[2:]

    def wait_size(self, wanted, what):
        until(lambda: self.size() == wanted, lambda: f"{what}, {wanted}; it is {self.size()}")

    def maximised(self):
        return MAXIMISED <= self.states(MAIN)

    def click_title(self):
        """Maximises or restores the window with a double click on its title."""
        before = self.maximised()
        left, top, width, _ = self.rectangle(MAIN)

        def changed():
            self.xdotool("mousemove", str(left + width // 2), str(top - 8), "click", "--repeat", "2", "--delay", "50", "1")
            # On a busy machine two clicks may be too slow to be a double click.
            end = time.monotonic() + 2
            while self.maximised() == before and time.monotonic() < end:
                time.sleep(0.02)
            return self.maximised() != before

        until(changed, "the effect of a double click on the title")
        # The program follows the window manager.
        self.settled()

    def full_screen(self):
        before = FULL_SCREEN in self.states(MAIN)
        self.type("F11")
        until(lambda: (FULL_SCREEN in self.states(MAIN)) != before, "the effect of F11")
        self.settled()

    def settled(self):
        """Waits until the window of the screen and the one that the program knows are the same."""
        until(lambda: self.size() == self.top(MAIN).rectangle[2:], "a size that the program and the screen agree on")

    def frame(self, title):
        """The rectangle of a window with its frame."""
        told = subprocess.run(["xprop", "-id", self.window(title), "_NET_FRAME_EXTENTS"], env=self.surroundings, capture_output=True,
                              text=True, check=True).stdout
        left, right, top, bottom = map(int, re.findall(r"\d+", told.partition("=")[2])) if "=" in told else (0, 0, 0, 0)
        window = Rectangle(*self.rectangle(title))
        return Rectangle(window.left - left, window.top - top, left + window.width + right, top + window.height + bottom)

    def fields(self):
        """What can be filled in or pressed below the log: names and rectangles."""
        return {node.name: node.rectangle for node in self.top(MAIN).all(("menu bar", "tool bar", "list", "combo box"))
                if node.role in ("text", "check box", "push button", "combo box") and "showing" in node.states}

    def choose(self, access, menu, entry):
        """Chooses an entry of the menu that opens with Alt and this letter."""
        entries = [item for item in self.node("menu item", menu).find("popup menu")[0].children
                   # Separators and hidden entries take no Down.
                   if item.role == "menu item" and item.rectangle.height]
        place = [item.name for item in entries].index(entry)
        self.type("alt+" + access, *["Down"] * place)
        until(lambda: "focused" in entries[place].states, f"the entry {entry} of {menu}")
        self.type("Return")
