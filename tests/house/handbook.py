#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    handbook.py ROOT

Checks the handbook in help/: each page is well-formed and uses only HTML that the viewer supports, each link and image has a target,
each page can be reached from the table of contents, and vinduer.html names each item of the menu bar with its key.
"""
import html.parser
import pathlib
import re
import sys

CONTENTS = "indhold.html"
ITEMS = "vinduer.html"
KEYS = "operatoer.html"
# The part of HTML 4 that the rich text viewer supports.
TAGS = set("a b body br code h1 h2 h3 head html img li meta ol p pre table td th title tr ul".split())
VOID = {"br", "img", "meta"}

faults = []


def complain(text):
    faults.append(text)


class Page(html.parser.HTMLParser):
    """A page: its links, its anchors, and its table rows by the heading above them."""

    def __init__(self, path):
        super().__init__()
        self.name = path.name
        self.links, self.anchors, self.rows = [], set(), []
        self.open, self.heading, self.title = [], "", ""
        self.row = None
        self.feed(path.read_text(encoding="utf-8"))
        self.close()
        if self.open:
            complain(f"{self.name}: <{self.open[-1]}> is not closed")
        if not self.title.strip():
            complain(f"{self.name}: no title")

    def fault(self, text):
        complain(f"{self.name}:{self.getpos()[0]}: {text}")

    def handle_starttag(self, tag, attrs):
        if self.row is not None and tag in ("td", "th", "br"):
            self.row["text"] += " "
        if tag not in TAGS:
            self.fault(f"<{tag}> is not for the viewer")
        attrs = dict(attrs)
        if tag == "a" and "href" in attrs:
            self.links.append((self.getpos()[0], attrs["href"]))
        if tag == "a" and "name" in attrs:
            if attrs["name"] in self.anchors:
                self.fault(f"the anchor {attrs['name']} stands twice")
            self.anchors.add(attrs["name"])
        if tag == "img":
            self.links.append((self.getpos()[0], attrs.get("src", "")))
            if not attrs.get("alt"):
                self.fault("an image without words for it")
        if tag not in VOID:
            self.open.append(tag)
        if tag in ("h1", "h2"):
            self.heading = ""
        if tag == "tr":
            self.row = {"heading": self.heading.strip(), "bold": [], "text": ""}
            self.rows.append(self.row)
        if tag == "b" and self.row is not None:
            self.row["bold"].append("")

    def handle_endtag(self, tag):
        if not self.open or self.open[-1] != tag:
            self.fault(f"</{tag}> closes nothing that is open there")
            return
        self.open.pop()
        if tag == "tr":
            self.row = None

    def handle_data(self, data):
        if "title" in self.open:
            self.title += data
        if "h1" in self.open or "h2" in self.open:
            self.heading += data
        if self.row is not None:
            self.row["text"] += data
            if "b" in self.open and self.row["bold"]:
                self.row["bold"][-1] += data


class Item:
    def __init__(self, found, parent):
        self.parent = parent
        self.caption = found["caption"].replace("&", "")
        options = found["options"] or ""
        key = re.search(r'\.shortcut\s*=\s*"([^"]*)"', options)
        # As it is written on the screen.
        self.key = key[1].replace("Shift+", "Skift+") if key else ""
        self.shown = "separator" not in options and "hidden" not in options


def menu_items(header):
    """The entries that the operator can choose, from the header of the menu bar."""
    entry = re.compile(
        r'(?:MenuItem\s+(?P<variable>\w+))?\{\*this,\s*(?:nullptr|&(?P<parent>\w+)),\s*"[^"]*"(?:_t)?,\s*'
        r'"(?P<caption>[^"]*)"(?:_t)?(?:,\s*-?\d+)?(?:,\s*\{(?P<options>[^}]*)\})?\}')
    text = header.read_text(encoding="utf-8")
    by_name, items = {}, []
    for found in entry.finditer(text):
        item = Item(found, by_name.get(found["parent"]))
        if found["parent"] and item.parent is None:
            complain(f"{header.name}: the menu {found['parent']} of \"{found['caption']}\" is not known")
        if found["variable"]:
            by_name[found["variable"]] = item
        items.append(item)
    if not items or len(items) != len(re.findall(r"\{\s*\*this,", text)):
        complain(f"{header.name}: {len(items)} entries were understood, and that is not all of them")
    menus = {item.parent for item in items}
    return [item for item in items if item.shown and item not in menus]


def check_links(pages, folder):
    reached, waiting = set(), [CONTENTS]
    while waiting:
        name = waiting.pop()
        if name in reached or name not in pages:
            continue
        reached.add(name)
        for line, link in pages[name].links:
            target, _, anchor = link.partition("#")
            target = target or name
            if not (folder / target).is_file():
                complain(f"{name}:{line}: {link} leads nowhere")
            elif anchor and (target not in pages or anchor not in pages[target].anchors):
                complain(f"{name}:{line}: there is no place {anchor} in {target}")
            waiting.append(target)
    for name in sorted(set(pages) - reached):
        complain(f"{name} is not reachable from {CONTENTS}")


def check_menus(pages, items):
    plain = lambda text: " ".join(text.split())
    tells = lambda row, key: re.search(rf"(?<![\w+]){re.escape(key)}(?!\w)", row["text"])
    for item in items:
        path = [item]
        while path[0].parent is not None:
            path.insert(0, path[0].parent)
        told = ", ".join(step.caption for step in path)
        rows = [row for row in pages[ITEMS].rows if row["heading"] == "Menuen " + path[0].caption
                and {step.caption for step in path[1:]} <= {plain(bold) for bold in row["bold"]}]
        if not rows:
            complain(f"{ITEMS} has no row for {told}")
        elif item.key and not any(tells(row, item.key) for row in rows):
            complain(f"{ITEMS} does not tell the key {item.key} of {told}")
        if item.key and not any(tells(row, item.key) for row in pages[KEYS].rows):
            complain(f"{KEYS} does not tell the key {item.key} of {told}")


def main():
    root = pathlib.Path(sys.argv[1])
    folder = root / "help"
    pages = {path.name: Page(path) for path in sorted(folder.glob("*.html"))}
    for name in (CONTENTS, ITEMS, KEYS):
        if name not in pages:
            sys.exit(f"help/{name} is missing")
    check_links(pages, folder)
    check_menus(pages, menu_items(root / "src/desk/entry/main_menu.h"))
    print("\n".join(faults))
    sys.exit(bool(faults))


main()
