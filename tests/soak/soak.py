#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
#
#   soak.py GENERATOR CONTACTS ROUNDS FRONT[=TOOLKIT]...
#
# Plays a field day of 24 hours on each front, each with its own files, and checks the memory at the end of each hour. All
# output must match the generator's. The generator does not compute the output of printer and sound; there the fronts must
# agree with each other, and they must leave the same files. The memory may grow only by what the data need.
#
# At the end of an hour the program writes to two pipes. The second one blocks it while it is measured.
#
# Memory that may be in use at the end of the day and was not at half of it:
#   - the record of the play, which the player keeps: its size is known exactly, because it is printed at the end;
#   - PER_LINE for each line that the log in memory may have gained: 79 columns and the overhead of a string and its heap
#     block, twice, because a list grows by doubling and the window has an index of its own. None of the ten logs gains more
#     than two tenths of the contacts;
#   - what the toolkit keeps for each choice from a menu: TOOLKIT measures it in a bare window, and half is added, because
#     the menus of the program are longer;
#   - SLACK for memory that the allocator cannot give back: heap blocks with a few bytes in use.
# A leak of two hundred bytes per contact, or of ten thousand per round, exceeds this.
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

HOURS = 24
HALF = HOURS // 2
PER_LINE = 2 * (80 + 32 + 16)
SLACK = 256 * 1024
NOT_WORKED_OUT = ("pages", "sound")
INNER_MENU = re.compile("menu mnu(Efter|FilerBackup|FilerDanMult|FilerUdskrivMult|Udskriv|IndstillingerKlasse)")
# The heap shrinks as soon as possible, so that the measured size shows what is in use.
SURROUNDINGS = dict(os.environ, LC_ALL="C", QT_QPA_PLATFORM="offscreen", MALLOC_ARENA_MAX="1", MALLOC_TRIM_THRESHOLD_="65536",
                    MALLOC_MMAP_THRESHOLD_="131072")


def anonymous_memory(pid):
    """The private memory of the process in bytes, without the files of its libraries, of which more is loaded over time."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as memory:
        for line in memory:
            if line.startswith("Anonymous:"):
                return int(line.split()[1]) * 1024
    raise OSError("the system does not tell the memory of a process")


def resident_memory(pid):
    with open(f"/proc/{pid}/statm", encoding="ascii") as statm:
        return int(statm.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def listen(pipe, process):
    """Reads what a writer puts into the pipe, which lets the writer continue. Returns nothing if the process ends."""
    end = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
    try:
        while process.poll() is None:
            try:
                text = os.read(end, 100)
            except BlockingIOError:
                text = b""
            if text:
                return text.decode("ascii").strip()
            time.sleep(0.001)
        return None
    finally:
        os.close(end)


def play(front, scenario, world, account):
    """The memory at the end of each hour, and the exit code of the front."""
    data = world / "data"
    data.mkdir(parents=True)
    for name in ("measure", "go"):
        os.mkfifo(data / name)
    measured = []
    with open(account, "wb") as played:
        process = subprocess.Popen([front, "--print", "--keep", str(world), str(scenario)], stdout=played, env=SURROUNDINGS)
        while (hour := listen(data / "measure", process)) is not None:
            time.sleep(0.01)
            measured.append((int(hour), resident_memory(process.pid), anonymous_memory(process.pid)))
            listen(data / "go", process)
        code = process.wait()
    for name in ("measure", "go"):
        (data / name).unlink()
    return measured, code


def kept(account):
    """The bytes that the player needs for its output lines so far, at the end of each hour."""
    total, hours = 0, []
    for line in account:
        if line.startswith("> "):
            length = len(line.encode()) - 2
            # A string of more than 15 bytes has a heap block of its own, and each line takes a place in a short list.
            total += 32 + (0 if length < 16 else (length + 1 + 8 + 15) // 16 * 16) + 16
        elif line == "file data/measure":
            hours.append(total)
    return hours


def without_unforeseen(account):
    """The output without the parts that the generator does not compute."""
    lines, command = [], ""
    for line in account:
        if not line.startswith("> "):
            command = line
        elif command.split(" ")[0] in NOT_WORKED_OUT:
            continue
        lines.append(line)
    return lines


def differences(wanted, found, name):
    lines = difflib.unified_diff(wanted, found, "worked out", name, lineterm="", n=2)
    return [line for _, line in zip(range(60), lines)]


def files_below(directory):
    return {str(path.relative_to(directory)): path.read_bytes() for path in directory.rglob("*") if path.is_file()}


def judge_copies(world):
    """Checks that the copies of the last hour equal the logs."""
    faults = []
    for log in sorted((world / "log").iterdir()):
        if not (log.name.startswith("FD") or log.name == "ukendt.txt"):
            continue
        for target in ("backup", "floppy"):
            copies = [path for path in (world / target).iterdir() if path.name.lower() == log.name.lower()]
            if len(copies) != 1 or copies[0].read_bytes() != log.read_bytes():
                faults.append(f"{target} has no true copy of {log.name}")
    return faults


def second_half(account):
    marks = [number for number, line in enumerate(account) if line == "file data/measure"]
    return account[marks[HALF - 1]:marks[-1]]


def kept_by_menus(toolkit, account):
    if not toolkit:
        return 0
    told = subprocess.run([toolkit], stdout=subprocess.PIPE, env=SURROUNDINGS, check=True).stdout.split()
    outer, inner = int(told[0]), int(told[1])
    chosen = [line for line in account if line.startswith("menu ")]
    deep = sum(1 for line in chosen if INNER_MENU.match(line))
    print(f"  a bare window keeps {outer} bytes of a choice from a menu, {inner} from a menu in it; chosen {len(chosen) - deep} and {deep}")
    return (outer * (len(chosen) - deep) + inner * deep) * 3 // 2


def judge_memory(measured, account, contacts, toolkit):
    by_account = kept(account)
    grown = measured[-1][2] - measured[HALF - 1][2]
    told = by_account[-1] - by_account[HALF - 1]
    lines = PER_LINE * (contacts // 2) * 2 // 10
    menus = kept_by_menus(toolkit, second_half(account))
    limit = told + lines + menus + SLACK
    print("  hour   resident  its own  without the account, in KiB")
    for (hour, resident, own), account_then in zip(measured, by_account):
        print(f"  {hour:4} {resident // 1024:10} {own // 1024:8} {(own - account_then) // 1024:8}")
    print(f"  from hour {HALF} to {HOURS}: {grown // 1024} KiB, of them {told // 1024} KiB of account, {(grown - told) // 1024} KiB other")
    print(f"  at most {(limit - told) // 1024} KiB other: {lines // 1024} of lines, {menus // 1024} of menus, {SLACK // 1024} of slack")
    return [] if grown <= limit else [f"the memory has grown by {grown} bytes in the second half, {limit} are its data"]


def main(generator, contacts, rounds, fronts):
    place = "/dev/shm" if os.access("/dev/shm", os.W_OK) and "TMPDIR" not in os.environ else None
    work = pathlib.Path(tempfile.mkdtemp(prefix="vatro-soak-", dir=place))
    faults = []
    try:
        scenario = work / "day.scn"
        with open(scenario, "wb") as text:
            subprocess.run([generator, "20260905", str(contacts), str(rounds)], stdout=text, check=True)
        wanted = scenario.read_text(encoding="utf-8").splitlines()
        first = None
        for front in fronts:
            front, _, toolkit = front.partition("=")
            name = os.path.basename(front)
            world = work / name
            began = time.monotonic()
            measured, code = play(front, scenario, world, work / (name + ".scn"))
            print(f"{name}: {contacts} contacts and {rounds * HOURS} rounds in {time.monotonic() - began:.0f} s")
            account = (work / (name + ".scn")).read_text(encoding="utf-8").splitlines()
            found = []
            if code != 0:
                found.append(f"exit {code}")
            found += differences(wanted, without_unforeseen(account), name)
            if [hour for hour, _, _ in measured] != list(range(1, HOURS + 1)):
                found.append(f"measured at the hours {[hour for hour, _, _ in measured]}")
            else:
                found += judge_memory(measured, account, contacts, toolkit)
            found += judge_copies(world)
            files = files_below(world / "log")
            if first is None:
                first = (account, files)
            else:
                found += differences(first[0], account, name)
                found += [f"{file} is another" for file in files.keys() | first[1].keys() if files.get(file) != first[1].get(file)]
            faults += [f"{name}: {fault}" for fault in found]
    finally:
        shutil.rmtree(work)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    if len(sys.argv) < 5:
        sys.exit("usage: soak.py GENERATOR CONTACTS ROUNDS FRONT[=TOOLKIT]...")
    sys.exit(main(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]), sys.argv[4:]))
