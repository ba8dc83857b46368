# SPDX-License-Identifier: MIT
"""The program on a virtual screen with a temporary home, settings and logs, operated with keys."""
import collections
import contextlib
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

TOOLS = ("Xvfb", "openbox", "xdotool", "weston")
SKIPPED = 77
PATIENCE = 20


def skip_without_tools(*more, others=()):
    """`others`: what is missing besides programs."""
    missing = [tool for tool in TOOLS + more if shutil.which(tool) is None] + list(others)
    if missing:
        print("not installed:", *missing)
        # CI skips nothing silently.
        sys.exit(1 if os.environ.get("CI") == "true" else SKIPPED)


class Gone(AssertionError):
    """What the question is about has closed."""


def until(holds, what):
    """Waits until `holds` returns a true value, and returns it. `what` may be a procedure that tells it at the end."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        with contextlib.suppress(Gone):
            if result := holds():
                return result
        time.sleep(0.02)
    raise AssertionError("waited in vain for " + (what if isinstance(what, str) else what()))


def expect(found, wanted, what):
    assert found == wanted, f"{what} is {found!r} instead of {wanted!r}"


Compositor = collections.namedtuple("Compositor", "name process")


class Desktop:
    """A screen with a window manager, and a home directory."""

    def __init__(self, data, manager="openbox", bus=False, size="1400x900"):
        """`bus`: starts a session bus that nobody else is on; xfwm4 always needs one."""
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="vatro-desktop-"))
        self.log = self.home / "log"
        self.data = self.home / "data"
        self.log.mkdir()
        (self.home / "Documents").mkdir()
        shutil.copytree(data, self.data)
        (self.home / "runtime").mkdir(mode=0o700)
        told, tell = os.pipe()
        self.screen = subprocess.Popen(["Xvfb", "-displayfd", str(tell), "-screen", "0", size + "x24", "-nolisten", "tcp",
                                        "-fbdir", str(self.home)], pass_fds=[tell], stderr=subprocess.DEVNULL)
        os.close(tell)
        with os.fdopen(told) as number:
            display = ":" + number.readline().strip()
        self.surroundings = dict(os.environ, DISPLAY=display, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / ".config"),
                                 XDG_RUNTIME_DIR=str(self.home / "runtime"), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                                 CUPS_SERVER="/nowhere")
        self.manager = self.program = self.compositor = self.bus = None
        # Openbox runs this command when it has looked for windows.
        self.command = ["openbox", "--startup", f"touch {self.home}/managed"] if manager == "openbox" else ["xfwm4", "--compositor=off"]
        if bus or manager == "xfwm4":
            self.start_bus()
        # A window shown before the window manager starts is not always managed by it.
        until(self.managed, "the window manager")
        if manager == "xfwm4":
            # It sets the property before it looks for windows, and has no other sign.
            time.sleep(1)

    def managed(self):
        if self.manager is None or self.manager.poll() is not None:
            self.manager = subprocess.Popen(self.command, env=self.surroundings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if self.command[0] == "openbox":
            return (self.home / "managed").exists()
        return subprocess.run(["xdotool", "get_desktop"], env=self.surroundings, capture_output=True, check=False).returncode == 0

    def start_bus(self):
        for variable in ("AT_SPI_BUS_ADDRESS", "XDG_CURRENT_DESKTOP", "SESSION_MANAGER"):
            self.surroundings.pop(variable, None)
        self.bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"], env=self.surroundings,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.surroundings["DBUS_SESSION_BUS_ADDRESS"] = self.bus.stdout.readline().strip()

    def start_compositor(self):
        """Starts a Wayland compositor without a display."""
        name = "vatro-test"
        self.compositor = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=" + name], env=self.surroundings,
                                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until((self.home / "runtime" / name).exists, "the compositor")
        return Compositor(name, self.compositor)

    def close(self):
        for process in (self.program, self.compositor, self.manager, self.bus, self.screen):
            if process is None:
                continue
            if process.poll() is None:
                # The X server removes its lock file when it ends.
                process.terminate() if process in (self.screen, self.bus) else process.kill()
            process.wait()
        shutil.rmtree(self.home)

    def __enter__(self):
        return self

    def __exit__(self, fault, *_):
        if fault is not None and fault is not SystemExit:
            self.picture_of_fault()
        self.close()

    def picture_of_fault(self):
        if "VATRO_PICTURES" in os.environ:
            self.picture(os.path.join(os.environ["VATRO_PICTURES"], f"fault-{os.getpid()}-{time.time():.0f}.png"))

    def lose_screen(self):
        self.screen.kill()
        self.screen.wait()

    # Settings

    @property
    def settings_file(self):
        return self.home / ".config/vatro/vatro.ini"

    def set(self, **settings):
        """Writes the settings of a station that was used before, with these changes."""
        told = dict({"gsLogLib": self.log, "gsFDLib": self.data, "MyCall": "OZ7FD/P", "LastOP": "OZ1AB ", "VisInfo2002": "False",
                     "MainLeft": 1500, "MainTop": 1500}, **settings)
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_text("[Settings]\n" + "".join(f'{key}="{value}"\n' for key, value in told.items()))

    def setting(self, key):
        for line in self.settings_file.read_text().splitlines():
            name, _, value = line.partition("=")
            if name.lower() == key.lower():
                return value.strip('"')
        return None

    # The program

    def start(self, program, main="Vatro OZ7FD/P", **more):
        self.program = subprocess.Popen([program], cwd=self.data, env=dict(self.surroundings, **more), stderr=subprocess.PIPE)
        if main is not None:
            self.keys_go_to(main, rest=0.1)

    def rectangle(self, title):
        """Left, top, width and height of the window without its frame."""
        told = subprocess.run(["xwininfo", "-id", self.window(title)], env=self.surroundings, capture_output=True, text=True,
                              check=True).stdout
        return tuple(int(re.search(key + r":\s+(-?\d+)", told)[1])
                     for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def states(self, title):
        """What the window manager says of the window, such as "_NET_WM_STATE_MAXIMIZED_VERT"."""
        told = subprocess.run(["xprop", "-id", self.window(title), "_NET_WM_STATE"], env=self.surroundings, capture_output=True, text=True,
                              check=True).stdout
        return set(told.partition("=")[2].replace(",", " ").split())

    def windows(self, title):
        """The visible windows with exactly this title."""
        # The search breaks off if any window of the screen closes meanwhile.
        while True:
            search = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^" + title + "$"], env=self.surroundings,
                                    capture_output=True, text=True, check=False)
            if "BadWindow" not in search.stderr:
                break
        found = search.stdout.split()
        names = {window: subprocess.run(["xdotool", "getwindowname", window], env=self.surroundings, capture_output=True, text=True,
                                        check=False).stdout.strip() for window in found}
        return [window for window, name in names.items() if name == title]

    def window(self, title):
        return until(lambda: self.windows(title), "the window " + title)[0]

    def keys_go_to(self, title, rest=0.25):
        """`rest`: the seconds to wait after that. A box answers no key for a fifth of a second."""
        window = self.window(title)

        def told(question):
            return subprocess.run(["xdotool", question], env=self.surroundings, capture_output=True, text=True, check=False).stdout.strip()

        def active():
            if told("getactivewindow") == told("getwindowfocus") == window:
                return True
            subprocess.run(["xdotool", "windowactivate", window], env=self.surroundings, capture_output=True, check=False)
            return False

        until(active, "the keys of " + title)
        time.sleep(rest)

    def xdotool(self, *words):
        subprocess.run(["xdotool", *words], env=self.surroundings, check=True, stderr=subprocess.DEVNULL)

    def press(self, *keys):
        self.xdotool("key", "--delay", "60", *keys)

    def choose_copy(self, directory, main="Vatro OZ7FD/P"):
        """Chooses the directory of the second copy with keys, and gives these back to the main window."""
        self.press("alt+e", "l")
        self.keys_go_to("Vælg bibliotek til løbende kopi")
        self.xdotool("type", "--delay", "10", str(directory))
        self.press("Return")
        until(lambda: (directory / "vatro.kopi").exists(), "the marker file")
        self.keys_go_to(main)

    def ended(self, within=PATIENCE):
        """The exit code (negative if a signal ended the program) and the program's output."""
        try:
            _, said = self.program.communicate(timeout=within)
        except subprocess.TimeoutExpired as late:
            raise AssertionError("the program does not end") from late
        return self.program.returncode, said.decode(errors="replace")

    def signal(self, number):
        self.program.send_signal(number)

    def pixels(self, left, top, width, height):
        """The rows of this part of the screen, each a list of colours such as 0xff0000 for red."""
        # The X server maps its screen to this file in the format of xwd: a header of big-endian words, a colour table, the rows.
        screen = (self.home / "Xvfb_screen0").read_bytes()
        words = struct.unpack(">25I", screen[:100])
        header, order, bits, row_length, table = words[0], "<>"[words[7]], words[11], words[12], words[19]
        assert bits == 32, f"the screen has {bits} bits per pixel"
        row = struct.Struct(f"{order}{width}I")
        begin = header + 12 * table + 4 * left
        return [[pixel & 0xffffff for pixel in row.unpack_from(screen, begin + row_length * y)] for y in range(top, top + height)]

    def picture(self, file):
        subprocess.run(["import", "-window", "root", file], env=self.surroundings, check=False)


SIGNALS = {"TERM": signal.SIGTERM, "INT": signal.SIGINT, "HUP": signal.SIGHUP}


def run(cases):
    """Runs each test and prints its result; returns the exit code of the script."""
    faults = 0
    for case in cases:
        begin = time.monotonic()
        try:
            case()
            print("ok    ", case.__name__.replace("_", " "), f"({time.monotonic() - begin:.1f} s)", flush=True)
        except (AssertionError, subprocess.CalledProcessError) as fault:
            faults += 1
            print("FAILED", case.__name__.replace("_", " ") + ":", fault, flush=True)
    return 1 if faults else 0
