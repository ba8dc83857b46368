# SPDX-License-Identifier: MIT
"""Pictures of the program's windows, taken by operating the program itself on a virtual screen, at a moment of the field day."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

import cairo

ROOT = pathlib.Path(__file__).resolve().parent.parent
TITLE_HEIGHT = 22
INK, BAR, WHITE = "1b2430", "3a4658", "ffffff"
MAIN = "Vatro OZ7FD/P"
# Local time, two hours ahead of UTC. Each start of the program begins at this moment.
MOMENT, TIME_ZONE = "2026-09-05 17:04:05", "SUMMER-2"

# A dark colour scheme in the form in which a desktop announces it to programs.
DARK = """[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:View]
BackgroundAlternate=35,38,41
BackgroundNormal=27,30,32
ForegroundNormal=252,252,252
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
"""
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}

# The logs by file name: the time of the first contact, and each contact with its points and its multiplier. Every suffix begins with Q.
LOGS = {
    "FD80mSSB.txt": ("13:01", """
        OZ1QAB/P 10 OZ, DL4QBK 3 DL, G3QYZ 3 G, SM7QXB/P 5 SM"""),
    "FD40mSSB.txt": ("13:14", """
        DL4QBK/P 5 DL, SM7QXB 3 SM, G3QYZ/P 5 G, LA2QOB 3 LA"""),
    "FD20mCW.txt": ("13:24", """
        DL4QBK/P 5 DL, SM7QXB 3 SM, G3QYZ/P 5 G, LA2QOB 3 LA, OZ2QEK/P 10 OZ, W1QAW 6 K, VE3QRT 6 VE, DL9QFT 3, F6QOP/P 5 F, SP9QDR/P 5 SP,
        DK0QD/P 5, OH3QAV 3 OH, G4QMD 3, I2QOK 3 I, UA3QPH 3 UA, PA3QRB/P 5 PA, DL6QGI 3, ON4QUD 3 ON, HB9QGL/P 5 HB, OZ7QRA/P 10,
        SM0QUS/P 5, EA3QAN 3 EA, OK1QXF 3 OK, DL7QNC 3, NOTE: Antennen drejet mod vest, UA9QBK 6 UA9, JA1QUT 6 JA, W3QLP 6, LY2QKR 3 LY,
        OZ6QOD/P 10, DK0QD/P 0 -DUPE-, YU1QEA 3 YU, F8QAA/P 5, 9A1QAB 3 9A, SP7QNN 3, LA6QEO/P 5, OE3QWU 3 OE, OZ1QDA/P 10, IK4QZN/P 5,
        SM5QHB 3"""),
}


def log_lines(name):
    """The lines of a log. The stations are worked two or three minutes apart, every seventh gets a QSL card, and the operator changes."""
    begin, contacts = LOGS[name]
    mode = "CW" if "CW" in name else "SSB"
    report = "599" if mode == "CW" else "59 "
    minute = int(begin[:2]) * 60 + int(begin[3:])
    lines, number = [], 0
    for contact in contacts.split(","):
        contact = contact.strip()
        if contact.startswith("NOTE"):
            lines.append(contact)
            continue
        call, points, multiplier = (contact.split() + [""])[:3]
        number += 1
        lines.append(f"{minute // 60}:{minute % 60:02} {call:15} {report}-{number:04} {report}-{number * 37 % 180 + 1:04} {points:>2} "
                     f"{multiplier:10} {'OZ7QTB' if number < 30 else 'OZ1QN':6} {'QSL' if number % 7 == 6 else '':3} {mode:5} 05-09-26")
        minute += 2 + number % 2
    return lines


class Desk:
    """The program itself on a virtual screen."""

    def __init__(self, programs, size=(1280, 960), settings=(), environment=(), window=(), data=None, sound=False):
        """`settings` and `window` are keys of the sections "Settings" and "Vindue" of the settings; a key that is None is left out.
        `data` are files of the program by name; None deletes one."""
        self.home = pathlib.Path(tempfile.mkdtemp())
        self.running = []
        try:
            self.prepare_files(dict(settings), dict(window), data or {})
            self.start_screen(size, dict(environment))
            self.start("openbox")
            time.sleep(1)
            if sound:
                self.start_sound_card()
            # Only the program's own clock is set. The times of files are left alone.
            library = self.do("faketime", "-f", "+0", "printenv", "LD_PRELOAD").strip()
            self.start(programs / "vatro", LD_PRELOAD=library, FAKETIME=f"@{MOMENT}", FAKETIME_DONT_FAKE_MONOTONIC="1", NO_FAKE_STAT="1")
        except BaseException:
            self.__exit__()
            raise

    def prepare_files(self, settings, window, data):
        for directory in ("data", "log", "copy", "run/pulse", ".config/vatro"):
            (self.home / directory).mkdir(parents=True)
        for file in [*ROOT.glob("data/*.txt"), ROOT / "data/cty.dat"]:
            shutil.copy(file, self.home / "data")
        for name in LOGS:
            (self.home / "log" / name).write_bytes("".join(line + "\r\n" for line in log_lines(name)).encode("cp1252"))
        for name, content in data.items():
            (self.home / "data" / name).write_bytes(content) if content is not None else (self.home / "data" / name).unlink()
        sections = {
            "Settings": {"gsFDLib": "data", "gsLogLib": "log", "gsBackupLib": "gone", "MyCall": "OZ7FD/P", "LastOP": "OZ1QN", "Band": "20m",
                         "Mode": "CW", "QsoMode": "CW", "VisInfo2002": False, "MainLeft": 0, "MainTop": 0, "KopiBib": self.home / "copy",
                         "KopiId": "1", **settings},
            "Vindue": window,
            "Equipment": {"Rig80": "FT-Q90 + 400 W", "Rig40": "FT-Q90 + 400 W", "Rig20": "TS-Q50", "Ant80": "Dipol, 12 m", "Ant40": "Dipol, 12 m",
                          "Ant20": "3-el. Yagi"}}
        (self.home / ".config/vatro/vatro.ini").write_text("".join(
            f"[{section}]\n" + "".join(f"{key}={value}\n" for key, value in keys.items() if value is not None)
            for section, keys in sections.items()))
        # A second copy that belongs to these settings.
        (self.home / "copy/vatro.kopi").write_text(f"Vatro\r\n1\r\n{self.home / 'log'}\r\n")
        (self.home / ".config/kdeglobals").write_text(DARK)

    def start_screen(self, size, environment):
        # Nothing of the caller's desktop: its colours, scale and language would show.
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / ".config"),
                            "XDG_RUNTIME_DIR": str(self.home / "run"), "LC_ALL": "C.UTF-8", "TZ": TIME_ZONE, "QT_QPA_PLATFORM": "xcb",
                            **environment}
        (self.home / "run").chmod(0o700)
        ours, theirs = os.pipe()
        self.start("Xvfb", "-displayfd", str(theirs), "-screen", "0", "%dx%dx24" % size, "-nolisten", "tcp", passed=(theirs,))
        os.close(theirs)
        with os.fdopen(ours) as told:
            self.environment["DISPLAY"] = ":" + told.readline().strip()

    def start_sound_card(self):
        """Starts a sound system with one silent card."""
        socket = self.home / "run/native"
        self.environment["PULSE_SERVER"] = f"unix:{socket}"
        self.start("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
                   "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}", "-L", "module-null-sink")
        self.wait_until(socket.exists, "sound system")

    def start(self, *command, passed=(), **environment):
        self.running.append(subprocess.Popen(command, cwd=self.home, env={**self.environment, **environment}, pass_fds=passed,
                                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self.running):
            process.terminate()
            process.wait()
        shutil.rmtree(self.home)

    def do(self, *command):
        return subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode()

    def wait_until(self, ready, what):
        """Waits until `ready` returns something, and returns it."""
        for _ in range(300):
            if found := ready():
                return found
            time.sleep(0.1)
        raise SystemExit(f"no {what}")

    def find(self, title, kind=""):
        for window in self.do("xdotool", "search", "--onlyvisible", "--name", title).split():
            # The search takes the title for a pattern and ignores case.
            if self.do("xdotool", "getwindowname", window).strip() == title and kind in self.do("xprop", "-id", window, "_NET_WM_WINDOW_TYPE"):
                return window
        return None

    def wait(self, title, kind=""):
        """Waits until the window of this title and kind is there and drawn, and returns it."""
        window = self.wait_until(lambda: self.find(title, kind), f"window {title}")
        time.sleep(0.7)
        return window

    def close(self, title):
        """Closes the active window, which has this title."""
        self.keys("alt+F4")
        self.wait_until(lambda: self.find(title) is None, f"end of {title}")

    def keys(self, *names):
        for name in names:
            self.do("xdotool", "key", name)
            time.sleep(0.3)

    def type(self, text):
        self.do("xdotool", "type", "--delay", "40", text)
        time.sleep(0.4)

    def log(self, call, number):
        self.type(call)
        self.keys("space")
        self.type(number)
        self.keys("Return")

    def double_click(self, title, x, y):
        self.do("xdotool", "mousemove", "--window", self.wait(title), str(x), str(y), "click", "--repeat", "2", "--delay", "60", "1")

    def aside(self, title, kind=""):
        """Moves a window into a corner, where it covers none of those in the middle of the screen."""
        self.do("xdotool", "windowmove", self.wait(title, kind), "20", "20")
        time.sleep(0.7)

    def content(self, title, kind=""):
        """A window's content, its full area, and its title."""
        with tempfile.NamedTemporaryFile(suffix=".png") as file:
            self.do("import", "-window", self.wait(title, kind), file.name)
            surface = cairo.ImageSurface.create_from_png(file.name)
        return surface, (0, 0, surface.get_width(), surface.get_height()), title

    def screen(self, file):
        self.do("import", "-window", "root", str(file))


def set_colour(context, rgb):
    context.set_source_rgb(*(int(rgb[i:i + 2], 16) / 255 for i in (0, 2, 4)))


def draw_window(context, surface, area, x, y, title, scale=1.0):
    """Draws an area of a picture, larger or smaller by `scale`, under a title bar, with a line around both."""
    w, h = area[2] * scale, area[3] * scale
    set_colour(context, BAR)
    context.rectangle(x, y, w, TITLE_HEIGHT)
    context.fill()
    context.select_font_face("DejaVu Sans", cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    context.set_font_size(13)
    set_colour(context, WHITE)
    context.save()
    context.rectangle(x, y, w, TITLE_HEIGHT)
    context.clip()
    context.move_to(x + 10, y + 16)
    context.show_text(title)
    context.restore()
    draw_area(context, surface, area, x, y + TITLE_HEIGHT, scale)
    context.rectangle(x + 0.5, y + 0.5, w - 1, h + TITLE_HEIGHT - 1)
    set_colour(context, BAR)
    context.set_line_width(1)
    context.stroke()


def draw_area(context, surface, area, x, y, scale=1.0):
    left, top, w, h = area
    context.save()
    context.translate(x, y)
    context.scale(scale, scale)
    context.rectangle(0, 0, w, h)
    context.clip()
    context.set_source_surface(surface, -left, -top)
    if scale != 1:
        context.get_source().set_filter(cairo.FILTER_BEST)
    context.paint()
    context.restore()
