#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks with an independent decoder what the program sends.

    decode_morse.py VATRO-REPLAY

A scenario sends texts at several speeds and writes the sound to WAV files. This script generates the same texts itself from
dots and dashes. multimon-ng must read both alike, and must read letters, digits and punctuation exactly as written. Exit 77:
multimon-ng is not installed; where CI is "true", exit 1.
"""

import array
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
import wave
from pathlib import Path

RATE = 44100
TONE = 800
SPEEDS = (16, 20, 24, 30)
# Above this speed the silence after a text is shorter than the half second within which the program ends it.
FASTEST_WITHOUT_A_TAIL = 24

MORSE = {
    "A": ".-", "B": "-...", "C": "-.-.", "D": "-..", "E": ".", "F": "..-.", "G": "--.", "H": "....", "I": "..",
    "J": ".---", "K": "-.-", "L": ".-..", "M": "--", "N": "-.", "O": "---", "P": ".--.", "Q": "--.-", "R": ".-.",
    "S": "...", "T": "-", "U": "..-", "V": "...-", "W": ".--", "X": "-..-", "Y": "-.--", "Z": "--..",
    "0": "-----", "1": ".----", "2": "..---", "3": "...--", "4": "....-", "5": ".....", "6": "-....", "7": "--...",
    "8": "---..", "9": "----.",
    ".": ".-.-.-", "/": "-..-.", ",": "--..--", "?": "..--..", ":": "---...", "=": "-...-", "-": "-....-",
    "(": "-.--.", ")": "-.--.-", "+": ".-.-.", '"': ".-..-.", "_": "..--.-", "'": ".----.", ";": "-.-.-.",
    "$": "...-..-", "!": "-.-.--",
    "Æ": ".-.-", "Ø": "---.", "Å": ".--.-", "É": "..-..", "Ü": "..--", "Ñ": "--.--",
    "<SK>": "...-.-", "<AR>": ".-.-.", "<KN>": "-.--.", "<KA>": "-.-.-", "<BT>": "-...-", "<CH>": "----",
    "<HH>": "........", "<AS>": ".-...", "<SN>": "...-.",
}  # fmt: skip
PUNCTUATION = "./,?:=-()+\"_';$!"
FOREIGN = ("Æ", "Ø", "Å", "É", "Ü", "Ñ")
JOINED = ("<SK>", "<AR>", "<KN>", "<KA>", "<BT>", "<CH>", "<HH>", "<AS>", "<SN>")


def between_letters(signs):
    """One word per character, so that a misread character does not affect others."""
    return " ".join(f"E{sign}T" for sign in signs)


# For each key: the stored text, the text that must be sent if it differs, and whether it must be read exactly as written.
TEXTS = (
    ("THE QUICK BROWN FOX JUMPS OVER THE LAZY DOG", None, True),
    ("0123456789 9876543210 E T 5 0", None, True),
    (between_letters(PUNCTUATION), None, True),
    ("#C UR #T #N BK", "DL1ABC/P UR 5NN TT1 BK", True),
    ("cq test de #r #r test k", "CQ TEST DE OZ1AB OZ1AB TEST K", True),
    (between_letters(FOREIGN), None, False),
    (between_letters(JOINED), None, False),
)
KEYS = ("F5", "F6", "F7", "F8", "Shift+F5", "Shift+F6", "Shift+F7")

WORLD = """\
file data/lande.txt
| DL        Fed. Rep. of Germany     EU -1 
file data/refpfx.txt
| DL        DL        14 28
file data/edr.txt
| OZ1ABC Test, formand
file data/operator.txt
| OZ1AB
setting Settings gsLogLib log
setting Settings LastOP OZ1AB
setting Settings VisInfo2002 False
setting Settings Mode CW
setting Settings QsoMode CW
setting Settings MyCall OZ1AB
setting CW N --1
setting CW T 5nn
"""


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def scenario(speed):
    tail = "" if speed <= FASTEST_WITHOUT_A_TAIL else "   "
    lines = [WORLD + f"setting CW WPM {speed}"]
    lines += [f"setting CW Tekst{i} {quoted(stored + tail)}" for i, (stored, _, _) in enumerate(TEXTS, 1)]
    lines += ["start", "type dl1abc/p"]
    for i, key in enumerate(KEYS, 1):
        lines += [f"key {key}", "advance 300", f"sound data/text{i}.wav"]
    return "\n".join(lines) + "\n"


def keyed(text, speed):
    """The samples of a text as raw bytes: a dot takes 1.2 seconds divided by the speed, and edges take 5 ms."""
    dot = round(RATE * 1.2 / speed)
    edge = round(RATE * 0.005)

    def tone(length):
        return [
            round(10000 * min(1, i / edge, (length - i) / edge) * math.sin(2 * math.pi * TONE * i / RATE)) for i in range(length)
        ]

    def silence(dots):
        return array.array("h", bytes(2 * dot * dots))

    element = {".": array.array("h", tone(dot)) + silence(1), "-": array.array("h", tone(3 * dot)) + silence(1)}
    samples = array.array("h")
    for sign in re.findall(r"<..>|.", text):
        if sign == " ":
            samples += silence(4)
            continue
        for part in MORSE[sign]:
            samples += element[part]
        samples += silence(2)
    return samples.tobytes()


def read_back(raw, speed):
    """The text that multimon-ng reads. It treats the 44.1 kHz as 22.05 kHz, so it sees dots of twice the length."""
    second = bytes(2 * RATE)
    dot = str(round(2400 / speed))
    run = subprocess.run(
        ["multimon-ng", "-q", "-c", "-a", "MORSE_CW", "-y", "-d", dot, "-g", dot, "-t", "raw", "-"],
        input=second + raw + second, check=True, capture_output=True,
    )  # fmt: skip
    return " ".join(run.stdout.decode("utf-8", "replace").split())


def heard(path):
    """The samples of a WAV file as raw bytes."""
    with wave.open(str(path)) as file:
        assert (file.getnchannels(), file.getsampwidth(), file.getframerate()) == (1, 2, RATE)
        return file.readframes(file.getnframes())


def compare(speed, world):
    """The faults at one speed."""
    faults = []
    for i, (stored, sent, as_written) in enumerate(TEXTS, 1):
        text = sent or stored
        wanted = read_back(keyed(text, speed), speed)
        words = wanted.split()
        if (as_written and wanted != text) or len(words) != len(text.split()) or (not as_written and len(set(words)) < len(words)):
            faults.append(f"{speed} WPM: multimon-ng does not read this script's own {text!r}, but {wanted!r}")
        read = read_back(heard(world / "data" / f"text{i}.wav"), speed)
        if read != wanted:
            faults.append(f"{speed} WPM: wanted {wanted!r}\n        read   {read!r}")
    return faults


def main():
    if shutil.which("multimon-ng") is None:
        print("multimon-ng is not installed")
        return 1 if os.environ.get("CI") == "true" else 77
    faults = []
    for speed in SPEEDS:
        with tempfile.TemporaryDirectory() as directory:
            world = Path(directory)
            story = world / "texts.scn"
            story.write_text(scenario(speed), encoding="utf-8")
            played = subprocess.run([sys.argv[1], "--print", "--keep", str(world), str(story)], capture_output=True, text=True)
            if played.returncode != 0 or "\n> box" in played.stdout:
                print(played.stdout + played.stderr)
                return 1
            faults += compare(speed, world)
        print(f"{speed} WPM: {len(TEXTS)} texts, {len(faults)} faults so far")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
