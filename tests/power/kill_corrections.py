#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
kill_corrections.py VATRO DATA [--lives N] [--lines N] [--at-random N] [--seed N]

Kills the real program during corrections, again and again with the same files, and looks for lost contacts.

Each life starts the program on a virtual screen, accepts with Enter what the recovery window proposes, logs two contacts, corrects a
visible line and is killed with SIGKILL while the log is written: before one of the system calls that touch the log directory, each in
its turn, or at a random moment. The first life is not killed; it shows which calls there are. This script keeps a journal of the
confirmed lines. A contact is confirmed when the call field is empty again, which the script concludes from the log having grown by the
line; a correction is confirmed when its window has closed. After each start every line of the journal must be in the log. An
unconfirmed correction may be in the log or not.

Prints one line per life, with the call before which it ended, and at the end how many lines were missing.
"""
import argparse
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

CALLS = "openat,open,creat,write,ftruncate,fdatasync,fsync,rename,renameat,renameat2,link,linkat,unlink,unlinkat,chmod,fchmod," \
        "chown,fchown,close,mkdir"
LOG = "FD80mSSB.txt"


def calls_in(trace):
    """The system calls in strace's output, as (name, how many of that name so far, the line)."""
    seen, counts = [], {}
    with open(trace) as told:
        for line in told:
            match = re.match(r"\d+ +(\w+)\(", line)
            if match:
                counts[match[1]] = counts.get(match[1], 0) + 1
                seen.append((match[1], counts[match[1]], line.split(None, 1)[1].strip()))
    return seen


def call_of(number):
    """A call that is different for each number."""
    return f"DL{number % 10}{''.join(chr(65 + number // 10 // 26 ** i % 26) for i in range(3))}"


def line_of(number):
    return (f"{12 + number // 60 % 12:02d}:{number % 60:02d} {call_of(number):15s} 59 -{number:04d} 59 -{number % 900 + 1:04d}  3 "
            f"{'DL' if number == 1 else '':10s} {'OZ1AB':6s} {'':3s} SSB   21-11-26")


class Screen:
    def __init__(self, home):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset"],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.display = ":" + number.readline().strip()
        self.env = dict(os.environ, HOME=home, DISPLAY=self.display, QT_QPA_PLATFORM="xcb", XDG_CONFIG_HOME=home + "/config",
                        XDG_STATE_HOME=home + "/state", XDG_RUNTIME_DIR=home + "/run")
        for _ in range(200):
            if self.xdotool("getdisplaygeometry"):
                break
            time.sleep(0.05)
        self.manager = subprocess.Popen(["openbox"], env=self.env, stderr=subprocess.DEVNULL)
        # A window shown while the window manager starts may stay invisible.
        for _ in range(200):
            if self.xdotool("get_num_desktops"):
                break
            time.sleep(0.05)
        # The window manager sets this property before it looks for windows.
        time.sleep(1)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def xdotool(self, *arguments):
        result = subprocess.run(["xdotool", *map(str, arguments)], env=self.env, capture_output=True, text=True)
        return result.stdout.strip()

    def window(self, title):
        found = self.xdotool("search", "--onlyvisible", "--name", title).split()
        return found[0] if found else None

    def activate(self, window):
        """Waits until the main window keeps the focus: the side windows are shown after it."""
        kept = 0
        for _ in range(200):
            kept = kept + 1 if self.xdotool("getactivewindow") == window else 0
            if kept >= 5:
                return
            if kept == 0:
                self.xdotool("windowactivate", window)
            time.sleep(0.03)

    def wait(self, title, seconds=20.0, gone=False, alive=lambda: True):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            window = self.window(title)
            if gone != bool(window):
                return window or True
            if not alive():
                return None
            time.sleep(0.03)
        return None


class Driver:
    def __init__(self, arguments, world):
        self.arguments, self.world = arguments, world
        arguments.vatro = os.path.abspath(arguments.vatro)
        self.log = os.path.join(world, "log", LOG)
        self.random = random.Random(arguments.seed)
        for directory in ("log", "tables", "config/vatro", "run", "state"):
            os.makedirs(os.path.join(world, directory))
        os.chmod(os.path.join(world, "run"), 0o700)
        for table in os.listdir(arguments.data):
            if table.endswith(".txt"):
                shutil.copy(os.path.join(arguments.data, table), os.path.join(world, "tables"))
        with open(os.path.join(world, "config/vatro/vatro.ini"), "w") as settings:
            settings.write(f"[Settings]\ngsLogLib={world}/log\ngsFDLib={world}/tables\nLastOP=OZ1AB\nMyCall=OZ1AB\nVisInfo2002=False\n"
                           "Band=80m\nMode=SSB\nQsoMode=SSB\nMainLeft=300\nMainTop=300\nB4Left=15300\nB4Top=300\nB4Width=4000\n"
                           "QSOLeft=300\nQSOTop=9800\nQSOHeight=1200\nCallLeft=8000\nCallTop=9800\nCallHeight=1200\n")
        self.journal = [line_of(number) for number in range(1, arguments.lines + 1)]
        with open(self.log, "wb") as log:
            log.write("".join(line + "\r\n" for line in self.journal).encode("cp1252"))
        self.next = arguments.lines + 1
        # The received number of the correction that was being made when the last life ended, 0 if there was none.
        self.received = 0
        self.missing = 0
        self.recoveries = 0
        self.screen = Screen(world)

    def lines(self):
        try:
            with open(self.log, "rb") as log:
                return log.read().decode("cp1252").split("\r\n")[:-1]
        except FileNotFoundError:
            return []

    def judge(self, life):
        known, before = set(self.lines()), self.missing
        for row, line in enumerate(self.journal):
            if line in known:
                continue
            # The correction that was being made when the life ended may be in the log.
            corrected = line[:35] + f"{self.received:04d}" + line[39:]
            if self.received and corrected in known:
                self.journal[row] = corrected
                self.received = 0
                continue
            self.missing += 1
            if self.missing - before <= 3:
                print(f"  MISSING {line}")
        if self.missing > before:
            print(f"life {life}: {self.missing - before} confirmed lines are not in the log")
        # Counts them only once.
        self.journal = [line for line in self.journal if line in known]
        self.received = 0

    def fail(self, message):
        subprocess.run(["import", "-window", "root", os.path.join(self.world, "failed.png")], env=self.screen.env, check=False)
        raise SystemExit(f"{message}; the world is left in {self.world}")

    def live(self, life, kill_before):
        screen = self.screen
        program = subprocess.Popen([self.arguments.vatro], cwd=os.path.join(self.world, "tables"), env=screen.env,
                                   stderr=subprocess.DEVNULL)
        alive = lambda: program.poll() is None
        title = "^Vatro OZ1AB$|^Vatro - f"
        if not screen.wait(title, alive=alive):
            self.fail("the program does not come")
        recovered = screen.window("^Vatro - f")
        if recovered:
            self.recoveries += 1
            screen.activate(recovered)
            screen.xdotool("key", "Return")
        main = screen.wait("^Vatro OZ1AB$", alive=alive)
        if not main:
            self.fail("the main window does not come")
        self.judge(life)
        screen.activate(main)
        for _ in range(2):
            self.contact()
        return self.correct(program, main, life, kill_before, recovered)

    def contact(self):
        number, self.next = self.next, self.next + 1
        size = lambda: os.path.getsize(self.log) if os.path.exists(self.log) else 0
        before = size()
        self.screen.xdotool("type", "--delay", "2", call_of(number).lower() + " " + str(number % 900 + 1))
        self.screen.xdotool("key", "Return")
        for _ in range(300):
            if size() >= before + 81:
                break
            time.sleep(0.01)
        else:
            self.fail(f"{call_of(number)} is not logged")
        line = self.lines()[-1]
        if line[6:21].strip() != call_of(number):
            self.fail(f"{call_of(number)} is logged as {line}")
        self.journal.append(line)

    def correct(self, program, main, life, kill_before, recovered):
        screen = self.screen
        geometry = dict(re.findall(r"(\w+)=(-?\d+)", screen.xdotool("getwindowgeometry", "--shell", main)))
        # A row that is visible in the list.
        x, y = int(geometry["X"]) + 200, int(geometry["Y"]) + 180 + 20 * self.random.randrange(8)
        screen.xdotool("mousemove", x, y, "click", "--repeat", "2", "--delay", "40", "1")
        form = screen.wait("^Ret QSO$", 5)
        if not form:
            self.fail("the correction does not open")
        screen.activate(form)
        received = self.random.randrange(1000, 9999)
        screen.xdotool("key", "alt+m", "Tab", "End", "BackSpace", "BackSpace", "BackSpace", "BackSpace")
        screen.xdotool("type", "--delay", "2", str(received))
        before = self.lines()
        trace = os.path.join(self.world, "trace")
        tracer = None
        if kill_before != "random":
            log = os.path.join(self.world, "log")
            paths = [log, log + "/FDkopi.txt", log + "/" + LOG, log + "/historik"]
            kill = [] if kill_before is None else ["-e", f"inject={kill_before[0]}:signal=SIGKILL:when={kill_before[1]}"]
            tracer = subprocess.Popen(["strace", "-f", "-qq", "-o", trace, "-e", "trace=" + CALLS, *kill,
                                       *sum((["-P", p] for p in paths), []), "-p", str(program.pid)], stderr=subprocess.PIPE)
            self.wait_for_tracer(program)
        screen.xdotool("key", "Return")
        if kill_before == "random":
            time.sleep(self.random.uniform(0, 0.08))
            program.send_signal(signal.SIGKILL)
        try:
            program.wait(4 if kill_before is None else 8)
            ended = True
        except subprocess.TimeoutExpired:
            ended = False
        # A life stops after its correction. If there were fewer calls than that, the correction was confirmed.
        confirmed = not ended and screen.window("^Ret QSO$") is None
        if not ended:
            program.kill()
            program.wait()
        if tracer is not None:
            tracer.wait()
        self.remember(before, received, confirmed)
        where = "at random"
        if kill_before is None:
            self.calls = calls_in(trace)
            where = f"after its correction, which has {len(self.calls)} calls"
        elif kill_before != "random":
            # strace may have started too late to see a call; then the life was not ended.
            seen = calls_in(trace) if os.path.exists(trace) else []
            where = f"before call {len(seen)}, {seen[-1][2][:150]}" if seen else "before any call"
        print(f"life {life}: {'recovered, ' if recovered else ''}{'ended' if ended or kill_before is None else 'not ended'} {where}", flush=True)
        return ended

    def wait_for_tracer(self, program):
        for _ in range(200):
            with open(f"/proc/{program.pid}/status") as status:
                if "TracerPid:\t0" not in status.read():
                    # strace attaches to the threads one after the other.
                    time.sleep(0.1)
                    return
            time.sleep(0.02)
        self.fail("strace does not attach")

    def remember(self, before, received, confirmed):
        self.received = received
        if not confirmed:
            return
        now = self.lines()
        row = next((row for row, line in enumerate(now) if row >= len(before) or line != before[row]), None)
        if row is None or len(now) != len(before) or now[row] != before[row][:35] + f"{received:04d}" + before[row][39:]:
            self.fail("a confirmed correction is not in the log")
        self.journal[self.journal.index(before[row])] = now[row]
        self.received = 0

    def run(self):
        # The first correction also creates the history folder.
        self.live(0, None)
        self.live(0, None)
        at_calls, ended = self.arguments.lives - self.arguments.at_random, 0
        for life in range(1, self.arguments.lives + 1):
            if life <= at_calls:
                ended += self.live(life, self.calls[(life - 1) % len(self.calls)][:2])
            else:
                self.live(life, "random")
        # One more life checks what the last one left.
        self.live(self.arguments.lives + 1, "random")
        print(f"{self.arguments.lines} lines at the start, {len(self.journal) + self.missing} in the journal; {ended} of {at_calls} lives ended before "
              f"one of the {len(self.calls)} calls of a correction, {self.arguments.at_random} at random; {self.recoveries} recoveries, "
              f"{self.missing} lines missing")
        return self.missing == 0


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("vatro")
    parser.add_argument("data")
    parser.add_argument("--lives", type=int, default=12)
    parser.add_argument("--at-random", type=int, default=4)
    parser.add_argument("--lines", type=int, default=500)
    parser.add_argument("--seed", type=int, default=20260905)
    arguments = parser.parse_args()
    for program in ("Xvfb", "openbox", "xdotool", "strace"):
        if shutil.which(program) is None:
            print(f"{program} is not installed")
            sys.exit(1 if os.environ.get("CI") == "true" else 77)
    world = tempfile.mkdtemp(prefix="vatro-kill-")
    driver = Driver(arguments, world)
    try:
        right = driver.run()
    finally:
        driver.screen.close()
    shutil.rmtree(world)
    sys.exit(0 if right else 1)


if __name__ == "__main__":
    main()
