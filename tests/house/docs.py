#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    docs.py ROOT

Checks that the developers' pages are up to date: each relative link has a target, each path in backticks exists, and each code name
in backticks occurs in the sources. A code name has a capital letter, "::" or "()". One with "()", also in a drawing, must be called or
declared in the sources.
"""
import pathlib
import re
import sys

CODE = ("src", "tests", "bench", "fuzz")
WORD = re.compile(r"\w+")
PATH = re.compile(r"(?<![\w./~-])(?:src|tests|bench|fuzz|data|demo|docs|help|packaging)/[\w./*-]*")
NAME = re.compile(r"~?\w+(?:::~?\w+)*(?:\(\))?")
CALL = re.compile(r"(\w+)\(\)")

faults = []


def pages(root):
    return [page for page in sorted(root.rglob("*.md"))
            if not page.relative_to(root).parts[0].startswith("build") and "node_modules" not in page.parts]


def sources(root):
    files = [path for folder in CODE for path in (root / folder).rglob("*") if path.suffix in (".h", ".cpp")]
    files += root.glob("CMakeLists.txt")
    return "\n".join(path.read_text(encoding="utf-8") for path in files)


def anchors(page):
    """The anchors of a page that a link can lead to: its headings."""
    headings = re.findall(r"(?m)^#+ +(.+)$", page.read_text(encoding="utf-8"))
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def check_links(page, text):
    links = re.findall(r"\]\(([^)\s]+)\)", text)
    for link in links:
        target, _, anchor = link.partition("#")
        if re.match(r"[a-z]+:", target):
            continue
        path = page.parent / target if target else page
        if not path.exists():
            faults.append(f"{page}: the link {link} leads nowhere")
        elif anchor and anchor not in anchors(path):
            faults.append(f"{page}: there is no heading {anchor} in {path}")
    return len(links)


def check_spans(root, page, text, words, calls):
    spans = re.findall(r"`([^`]+)`", text)
    for span in spans:
        for path in PATH.findall(span):
            if not any(root.glob(path.rstrip("./"))):
                faults.append(f"{page}: there is no {path}")
        if NAME.fullmatch(span) and re.search(r"[A-ZÆØÅ]|::|\(\)", span):
            for word in WORD.findall(span):
                if word not in words:
                    faults.append(f"{page}: {word} is no name of the code")
    for name in CALL.findall(text):
        if name not in calls:
            faults.append(f"{page}: {name}() is not in the code")
    return len(spans)


def main():
    root = pathlib.Path(sys.argv[1])
    code = sources(root)
    words = set(WORD.findall(code))
    calls = set(re.findall(r"(\w+)\(", code))
    links = spans = 0
    for page in pages(root):
        text = page.read_text(encoding="utf-8")
        links += check_links(page, text)
        spans += check_spans(root, page, text, words, calls)
    if links == 0 or spans == 0:
        faults.append("no links or no names were found, where there must be some")
    print("\n".join(faults))
    sys.exit(bool(faults))


main()
