# SPDX-License-Identifier: MIT
"""The windows of a program as a screen reader finds them: names, roles, states, texts and rectangles, read from the accessibility bus."""
import collections
import contextlib
import functools
import os
import subprocess
import sys

from desktop import Desktop, Gone, until

# The bindings of the system belong to the system's Python, which need not be the first in the path.
SYSTEM = "/usr/bin/python3"
LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
# The titles of the side windows.
NEXT, OWN = "Næste QSO nr", "Contest Call"
CHECK = "Call check                         QSOnr/modt.     UTC"
SIDES = (NEXT, OWN, CHECK)
# What shows their content in the main window: the role, and how the name begins.
DOCKED = {NEXT: ("label", ("SSB 59 ", "CW 599 ", "*** DUPE")), OWN: ("label", "OZ7FD/P"), CHECK: ("list", "Call check")}
# The main window, and the names of its widgets.
MAIN = "Vatro OZ7FD/P"
CALL, NUMBER = "Indtast call for den kørte station", "Modtaget rapportløbenr"
LOG = "Loggede QSO'er"
PACKAGE = "org.a11y.atspi."
ROOT = "/org/a11y/atspi/accessible/root"
PATIENCE = 5000

# Of AtspiStateType, the bits that the tests ask for.
STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "focused": 12, "selected": 23, "sensitive": 24, "showing": 25,
          "visible": 30}
# Of AtspiCoordType.
SCREEN = 0

Rectangle = collections.namedtuple("Rectangle", "left top width height")


def missing_tools():
    """What a test of the accessibility tree needs and cannot find. May start the script anew with the system's Python."""
    missing = [] if any(os.path.exists(path) for path in LAUNCHERS) else ["at-spi2-core"]
    try:
        import gi  # noqa: F401
    except ImportError:
        found = os.path.realpath(sys.executable) != os.path.realpath(SYSTEM) and os.path.exists(SYSTEM) and subprocess.run(
            [SYSTEM, "-c", "import gi"], stderr=subprocess.DEVNULL, check=False).returncode == 0
        if found and not missing:
            sys.stdout.flush()
            os.execv(SYSTEM, [SYSTEM, *sys.argv])
        missing.append("python3-gi")
    return missing


def overlap(one, other):
    """The pixels that both rectangles cover."""
    width = min(one.left + one.width, other.left + other.width) - max(one.left, other.left)
    height = min(one.top + one.height, other.top + other.height) - max(one.top, other.top)
    return max(0, width) * max(0, height)


def within(inner, outer):
    return overlap(inner, outer) == inner.width * inner.height


def contrast(one, other):
    """The contrast of two colours such as 0xff0000, from 1 to 21, as the guidelines for web content define it."""
    def light(colour):
        parts = [(colour >> shift & 0xff) / 255 for shift in (16, 8, 0)]
        return sum(weight * (part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4)
                   for weight, part in zip((0.2126, 0.7152, 0.0722), parts))

    lights = sorted((light(one), light(other)))
    return (lights[1] + 0.05) / (lights[0] + 0.05)


def persistent(question):
    """Asks again if a window has closed meanwhile."""
    @functools.wraps(question)
    def asked(*arguments):
        for _ in range(20):
            with contextlib.suppress(Gone):
                return question(*arguments)
        return question(*arguments)
    return asked


class Node:
    """One accessible object. Every question goes to the program, so no answer is older than the question."""

    def __init__(self, tree, sender, path):
        self.tree, self.sender, self.path = tree, sender, path

    def __eq__(self, other):
        return (self.sender, self.path) == (other.sender, other.path)

    def __hash__(self):
        return hash((self.sender, self.path))

    def ask(self, interface, method, *arguments):
        return self.tree.call(self.sender, self.path, PACKAGE + interface, method, *arguments)

    def get(self, interface, name):
        return self.tree.property(self.sender, self.path, PACKAGE + interface, name)

    @property
    def name(self):
        return self.get("Accessible", "Name")

    @property
    def role(self):
        return self.ask("Accessible", "GetRoleName")[0]

    @property
    def states(self):
        words = self.ask("Accessible", "GetState")[0]
        return {name for name, bit in STATES.items() if words[bit // 32] >> bit % 32 & 1}

    @property
    def children(self):
        return [Node(self.tree, sender, path) for sender, path in self.ask("Accessible", "GetChildren")[0]]

    @property
    def text(self):
        return self.ask("Text", "GetText", "(ii)", 0, self.get("Text", "CharacterCount"))[0]

    @property
    def rectangle(self):
        """On the screen."""
        return Rectangle(*self.ask("Component", "GetExtents", "(u)", SCREEN)[0])

    def all(self, closed=()):
        """This object and all below it, but nothing below objects with a role in `closed`."""
        yield self
        if closed and self.role in closed:
            return
        for child in self.children:
            yield from child.all(closed)

    def find(self, role, name=None):
        """The objects below this one with this role and name."""
        return [node for node in self.all() if node.role == role and name in (None, node.name)]

    def __repr__(self):
        return f"{self.role} {self.name!r}"


class Tree:
    """What the program with this number tells, by the session bus at this address."""

    def __init__(self, address, process):
        from gi.repository import Gio, GLib
        self.connections, self.values = Gio, GLib
        self.process = process
        session = self.connect(address)
        answer = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, PATIENCE, None)
        session.close_sync(None)
        self.bus = self.connect(answer.unpack()[0])

    def connect(self, address):
        flags = self.connections.DBusConnectionFlags
        return self.connections.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    def close(self):
        self.bus.close_sync(None)

    def call(self, sender, path, interface, method, signature=None, *arguments):
        packed = self.values.Variant(signature, arguments) if signature else None
        try:
            return self.bus.call_sync(sender, path, interface, method, packed, None, 0, PATIENCE, None).unpack()
        except self.values.Error as fault:
            raise Gone(fault.message) from fault

    def property(self, sender, path, interface, name):
        return self.call(sender, path, "org.freedesktop.DBus.Properties", "Get", "(ss)", interface, name)[0]

    def program(self):
        """The program, or None while it has not connected."""
        for sender, path in self.call(PACKAGE + "Registry", ROOT, PACKAGE + "Accessible", "GetChildren")[0]:
            number, = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                "(s)", sender)
            if number == self.process:
                return Node(self, sender, path)
        return None

    def windows(self):
        program = self.program()
        return program.children if program else []


# The side windows leave a main window of this width and height and its title free.
SIZE = 1000, 600
TWIPS = 15
PLACES = {name: TWIPS * pixels for name, pixels in {
    "MainLeft": 60, "MainTop": 60, "QSOLeft": 20, "QSOTop": 760, "QSOHeight": 60, "CallLeft": 420, "CallTop": 760, "CallHeight": 60,
    "B4Left": 900, "B4Top": 740, "B4Width": 300, "B4Height": 100}.items()}


class ReadableDesktop(Desktop):
    """A desktop whose program tells what is on the screen."""

    def __init__(self, data, manager="openbox", **more):
        super().__init__(data, manager, bus=True, **more)
        self.surroundings["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.tree = None
        self.nodes = {}

    def close(self):
        if self.tree is not None:
            self.tree.close()
        super().close()

    def start(self, program, main=MAIN, **more):
        super().start(program, main, **more)
        self.nodes = {}
        if self.tree is not None:
            self.tree.close()
        self.tree = Tree(self.surroundings["DBUS_SESSION_BUS_ADDRESS"], self.program.pid)
        until(self.tree.program, "the accessibility of the program")

    def set(self, docked=True, size=SIZE, **settings):
        """`docked`: as at a first start. Otherwise the side windows float at PLACES, and the main window has this size."""
        super().set(**PLACES | settings)
        if not docked:
            with self.settings_file.open("a") as file:
                file.write("[Vindue]\nSaml=False\nBredde={}\nHojde={}\n".format(*size))

    @contextlib.contextmanager
    def alive(self, program, said="", **more):
        """The program. Asked to end afterwards, when it must have said this; killed if the case fails, because cases share a screen."""
        self.start(program, **more)
        try:
            yield
            self.end(said)
        except BaseException:
            self.picture_of_fault()
            raise
        finally:
            self.program.kill()
            self.program.wait()

    def end(self, said=""):
        self.program.terminate()
        told = self.ended()
        assert told == (0, said), f"the program ended with {told}"

    # What is there

    @persistent
    def shown(self):
        return [node for node in self.tree.windows() if "showing" in node.states]

    def top(self, title):
        """The shown window with this title."""
        for node in self.shown():
            if node.name == title:
                return node
        raise Gone(title)

    @persistent
    def active(self):
        """The title of the window of the program that has the keys, or None."""
        return next((node.name for node in self.tree.windows() if "active" in node.states), None)

    @persistent
    def focus(self):
        """The name of the widget with the keys, or None. Not looked for in a list, whose current line always calls itself focused."""
        return next((node.name for window in self.tree.windows() if "active" in window.states
                     for node in window.all(("menu bar", "list")) if "focused" in node.states), None)

    def node(self, role, name, title=MAIN):
        """Found once in the life of the program, because looking through a whole window takes long."""
        key = role, name, title
        if key not in self.nodes:
            self.nodes[key] = until(lambda: self.top(title).find(role, name), f"{role} {name} of {title}")[0]
        return self.nodes[key]

    def docked(self, side):
        """What a side window in the main window shows."""
        role, begin = DOCKED[side]
        for node in self.top(MAIN).all(("menu bar", "list")):
            if node.role == role and node.name.startswith(begin) and "showing" in node.states:
                return node
        raise Gone(side)

    def text(self, name):
        return self.node("text", name).text.strip()

    def status(self):
        """The texts of the status bar, from the left."""
        return [label.name.strip() for label in self.node("status bar", "Statuslinje").find("label")]

    # Waiting

    def wait_active(self, title):
        until(lambda: self.active() == title, lambda: f"the keys of {title}; they are at {self.active()}")

    def wait_focus(self, name):
        until(lambda: self.focus() == name, lambda: f"the focus in {name}; it is in {self.focus()}")

    def wait_text(self, name, wanted):
        until(lambda: self.text(name) == wanted, lambda: f"{wanted!r} in {name}, which has {self.text(name)!r}")

    def wait_gone(self, title):
        until(lambda: all(node.name != title for node in self.shown()), "the end of " + title)

    def type(self, *keys, delay=15):
        self.xdotool("key", "--delay", str(delay), *keys)

    def expect_letters_in_call(self, letters="dl9x"):
        self.type(*letters)
        self.wait_text(CALL, letters.upper())
        self.type("Escape")
        self.wait_text(CALL, "")
