#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes lande.txt and refpfx.txt from a public country file (cty.dat).

    data/make_tables.py CTY.DAT [DIRECTORY]

The two tables are written to DIRECTORY (default: where this script lies), in the form in which the program itself
writes them when it imports a country file. Exact calls ("=") are left out, because a full country file has more items
than the program's table has rows; so are the entries whose primary prefix begins with "*", which are countries of one
contest alone.

The run fails, and writes nothing, if a table would be larger than the program's or a lookup in it would go astray.
"""

import re
import sys
from pathlib import Path

MAX_COUNTRIES = 500
MAX_PREFIXES = 5999
FILLER = "\xe5"  # lies above all digits and letters: a prefix sorts behind the longer ones that begin with it


def columns(line, first, last):
    return line[first - 1 : last]


def up_to_colon(line, first):
    """The text from column `first` to the first colon at or after the next column."""
    return line[first - 1 : line.index(":", first)]


def zone(override, default):
    return default if override is None else ("00" + override)[-2:]


def entries(text):
    """Header line and all items of each entry."""
    lines = iter(text.splitlines())
    for header in lines:
        items = []
        for line in lines:
            items += line[4:].rstrip(";").rstrip(",").split(",")
            if line.endswith(";"):
                break
        yield header, items


def number(text):
    """Sign or blank, digits without trailing zeros, one blank."""
    value = float(text)
    return f"{value: g} " if value else " 0 "


def make(text):
    countries, prefixes = [], []
    for header, items in entries(text):
        primary = up_to_colon(header, 70)
        if primary.startswith("*"):
            continue
        name = header[: header.index(":")]
        continent = up_to_colon(header, 37)
        countries.append(f"{primary:<10.10}{name:<25.25}{continent:<2.2} {number(columns(header, 62, 66))}")
        for item in items:
            if item.startswith("="):
                continue
            cq = re.search(r"\((.*?)\)", item)
            itu = re.search(r"\[(.*?)\]", item)
            prefix = re.sub(r"\(.*?\)|\[.*?\]", "", item)[:10]
            row = f"{prefix:<10}{primary:<10.10}"
            row += zone(cq and cq[1], columns(header, 27, 28)) + " " + zone(itu and itu[1], columns(header, 32, 33))
            prefixes.append((prefix.ljust(10, FILLER), row))
    prefixes.sort(key=lambda prefix: prefix[0].encode("cp1252"))
    return countries, [row for _, row in prefixes]


def check(countries, prefixes):
    if not countries or len(countries) > MAX_COUNTRIES:
        raise ValueError(f"{len(countries)} countries, there is room for {MAX_COUNTRIES}")
    if not prefixes or len(prefixes) > MAX_PREFIXES:
        raise ValueError(f"{len(prefixes)} prefixes, there is room for {MAX_PREFIXES}")
    keys = [line[:10] for line in countries]
    if keys != sorted(keys):
        raise ValueError("the countries do not stand in the order of their primary prefix, as the lookup takes them to")
    for line in countries:
        if not re.fullmatch(r"(?s).{35}[A-Z]{2} [- ][0-9]*\.?[0-9]+ ", line):
            raise ValueError(f"a country line is not in its columns: {line!r}")
    for line in prefixes:
        if not re.fullmatch(r"\S[^=()\[\]{}<>~]{19}[0-9]{2} [0-9]{2}", line):
            raise ValueError(f"a prefix line is not in its columns: {line!r}")
        if line[10:20] not in keys:
            raise ValueError(f"a prefix of no country: {line!r}")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit("usage: make_tables.py CTY.DAT [DIRECTORY]")
    target = Path(sys.argv[2]) if len(sys.argv) == 3 else Path(__file__).resolve().parent
    countries, prefixes = make(Path(sys.argv[1]).read_text(encoding="cp1252"))
    try:
        check(countries, prefixes)
    except ValueError as fault:
        sys.exit(f"make_tables.py: {fault}")
    for name, lines in (("lande.txt", countries), ("refpfx.txt", prefixes)):
        (target / name).write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))
    print(f"{len(countries)} countries, {len(prefixes)} prefixes")


if __name__ == "__main__":
    main()
