#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    names.py ROOT             checks the names of the sources
    names.py ROOT --places    brings the column "where" of docs/glossary.md up to date first

Names are English, except for the given ones, which docs/glossary.md lists. Every name declared in src, tests, fuzz or bench, and the
name of every file with declarations, must be in the glossary or consist of English words: words of Debian's wamerican, or of words.txt
beside this file. Parts joined by "_" are checked one by one, so `Text1_LostFocus` passes. The class of the form `frmNote` is
`FrmNote`.

Some Danish words are spelled like English ones. The words in danish.txt never count as English.

declared.py decides which names are declared.
"""
import collections
import itertools
import pathlib
import re
import sys

sys.dont_write_bytecode = True
from declared import READERS, sample_faults

FOLDERS = ("src", "tests", "fuzz", "bench")
DICTIONARY = pathlib.Path("/usr/share/dict/american-english")
MOST_WORDS = 150

# Every run first proves that these names are judged correctly.
GOOD = ("Text1_LostFocus", "FrmNote", "formRigAnt", "IndlæsLogfil", "IndlæsLogfil_Reads", "kCallField", "width_", "OKGivesTheLine2")
BAD = {"SkrivBlad": ["skriv", "blad"], "FindLand": ["land"], "næste_": ["næste"], "kTiLogge": ["ti", "logge"],
       "IndlæsLogfiler": ["indlæs", "logfiler"]}

CAMEL = re.compile(r"[A-ZÆØÅ]+(?![a-zæøå])|[A-ZÆØÅ]?[a-zæøå]+")


def words_of(part):
    return [word.lower() for piece in re.split(r"\d+", part) for word in CAMEL.findall(piece)]


def listed(path):
    """The words of a list, one per line; "#" begins a comment."""
    lines = (line.partition("#")[0].strip() for line in path.read_text(encoding="utf-8").split("\n"))
    return [line for line in lines if line]


class Glossary:
    """docs/glossary.md: tables whose first column holds names in backticks. `mnuEfter{10,15}m{CW,SSB}` stands for every
    combination. The file of a name is given in its line, or in the heading above. Settings keys are in quotation marks."""

    ROW = re.compile(r"\| (`.*?`(?:, `.*?`)*) \|(.*)\|")
    PLACE = re.compile(r"`((?:src|data|tests)/[^`]*)`")

    def __init__(self, path):
        self.path = path
        # Each name with its line and the line that names its file.
        self.names = {}
        self.lines = path.read_text(encoding="utf-8").split("\n")
        heading = 0
        for number, line in enumerate(self.lines):
            if line.startswith("#"):
                heading = number
            row = self.ROW.match(line)
            if row is None:
                continue
            for pattern in re.findall(r"`(.*?)`", row.group(1)):
                for name in self.choices(pattern):
                    self.names.setdefault(name, []).append((number, number if self.PLACE.search(line) else heading))
        self.allowed = {name for name in self.names if re.fullmatch(r"\w+", name)}
        self.allowed |= {name[0].upper() + name[1:] for name in self.allowed if re.match(r"frm[A-ZÆØÅ]", name)}
        self.allowed |= {name[0].lower() + name[1:] for name in self.allowed if re.match(r"Form[A-ZÆØÅ]", name)}

    @staticmethod
    def choices(pattern):
        pieces = re.split(r"\{(.*?)\}", pattern)
        return ["".join(choice) for choice in itertools.product(*(piece.split(",") if at % 2 else [piece]
                                                                  for at, piece in enumerate(pieces)))]

    def places(self):
        """Each name with its line, the line of its file, and the file, or "" where none is given."""
        for name, rows in self.names.items():
            for row, at in rows:
                found = self.PLACE.findall(self.lines[at])
                yield name, row, at, found[-1] if found else ""

    @staticmethod
    def stands_in(name, text):
        return re.search(r"(?<!\w)" + re.escape(name) + r"(?!\w)", text) is not None

    def faults(self, root):
        for name, row, _, place in self.places():
            where = f"{self.path.name}:{row + 1}: {name}"
            if not place:
                yield f"{where}: no file is given"
            elif not (root / place).is_file():
                yield f"{where}: there is no {place}"
            elif not self.stands_in(name, (root / place).read_text(encoding="utf-8")):
                yield f"{where}: does not stand in {place}"

    def move(self, root, declared):
        """Replaces a file that no longer contains its name with one that declares it, or at least contains it."""
        sources = {path.relative_to(root).as_posix(): path.read_text(encoding="utf-8")
                   for path in sorted((root / "src").rglob("*")) if path.suffix in (".h", ".cpp")}
        for name, _, at, place in list(self.places()):
            if self.stands_in(name, sources.get(place, "")) or place.startswith("data/"):
                continue
            files = [file for file, text in sources.items() if self.stands_in(name, text)]
            files.sort(key=lambda file: (file not in declared.get(name, ()), not file.endswith(".h"), file))
            if files:
                self.lines[at] = self.lines[at].replace(f"`{place}`", f"`{files[0]}`")
        self.path.write_text("\n".join(self.lines), encoding="utf-8")


def main(root, *options):
    if sample_faults():
        sys.exit(f"the sample is not read as it should be: {' '.join(sample_faults())}")
    if not DICTIONARY.exists():
        sys.exit(f"{DICTIONARY} is missing (Debian's package wamerican)")

    faults = []
    declared = collections.defaultdict(dict)
    for file in sorted(path for folder in FOLDERS for path in (root / folder).rglob("*")):
        place = file.relative_to(root).as_posix()
        if file.suffix in (*READERS, ".ui"):
            for part in (*file.relative_to(root).parts[1:-1], file.stem):
                declared[re.sub(r"\W", "_", part)].setdefault(place, 1)
        if file.suffix in READERS:
            text = file.read_text(encoding="utf-8")
            for name, start in READERS[file.suffix](text):
                declared[name].setdefault(place, text.count("\n", 0, start) + 1)

    glossary = Glossary(root / "docs/glossary.md")
    if "--places" in options:
        glossary.move(root, declared)
    faults += glossary.faults(root)

    here = root / "tests/house"
    dictionary = {word.lower() for word in DICTIONARY.read_text(encoding="utf-8").split()}
    added = listed(here / "words.txt")
    danish = listed(here / "danish.txt")
    if len(added) >= MOST_WORDS:
        faults.append(f"words.txt has {len(added)} words; it stays under {MOST_WORDS}")
    faults += [f"words.txt: {word} stands there twice" for word, count in collections.Counter(added).items() if count > 1]
    faults += [f"words.txt: {word} is in {DICTIONARY.name} already" for word in added if word in dictionary]
    faults += [f"danish.txt: {word} is not in {DICTIONARY.name}, so it counts as no English word anyway"
               for word in danish if word not in dictionary]
    english = (dictionary | set(added)) - set(danish)

    used = set()

    def not_english(name):
        words = [] if name in glossary.allowed else [
            word for part in name.split("_") if part not in glossary.allowed for word in words_of(part)]
        used.update(words)
        return [word for word in words if len(word) > 1 and word not in english]

    misjudged = [name for name in GOOD if not_english(name)] + [name for name, words in BAD.items() if not_english(name) != words]
    if misjudged:
        sys.exit(f"misjudged: {' '.join(misjudged)}")
    used.clear()
    for name, places in declared.items():
        unknown = not_english(name)
        if unknown:
            place, number = min(places.items())
            more = f" and {len(places) - 1} more" if len(places) > 1 else ""
            faults.append(f"{place}:{number}{more}: {name}: not English: {' '.join(unknown)}")
    faults += [f"words.txt: no name uses {word}" for word in added if word not in used]

    for fault in sorted(faults):
        print(fault)
    print(f"{len(declared)} names, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), *sys.argv[2:]))
