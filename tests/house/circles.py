#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
#
#   circles.py [--report] SRC
#
# Limits circular includes: within a storey at most three modules may include each other in a circle. A module is a header
# together with the sources of the same base name (order.h, order.cpp, order_posix.cpp). Also, a folder of the rules may use
# only the folders before it, and no two headers visible to one target may have the same name. --report also lists the circles
# that are small enough.
import re
import sys
from pathlib import Path

# Each storey and the storeys it uses. A target sees the include roots of all storeys below it.
STOREYS = {
    "text": [],
    "system": ["text"],
    "platform": ["text"],
    "rules": ["text"],
    "forms": ["platform"],
    "desk": ["rules", "forms"],
    "disk": ["platform", "system"],
    "extras": ["rules", "platform", "system"],
    "replay": ["desk", "disk"],
    "qt": ["desk", "extras", "disk"],
}
# The folders of the rules; each may use those before it. The Morse folder uses none of them, and none uses it.
RULES = ["call", "log", "country", "score", "checks", "papers"]
APART = "morse"
LARGEST_CIRCLE = 3

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
SYSTEMS = re.compile(r"_(posix|windows)$")


def seen_from(storey):
    """The storey and everything below it, nearest first."""
    roots = [storey]
    for used in STOREYS[storey]:
        roots += [root for root in seen_from(used) if root not in roots]
    return roots


def sources(folder):
    return sorted(path for path in folder.rglob("*") if path.suffix in (".h", ".cpp"))


def module_of(path, root):
    """The name of a file's module: "log/duplicates"."""
    relative = path.relative_to(root).with_suffix("")
    stem = SYSTEMS.sub("", relative.name)
    return (relative.parent / stem).as_posix()


def resolve(name, source, roots):
    """The file that the compiler would find for an include, or None."""
    for folder in [source.parent, *roots]:
        if (folder / name).is_file():
            return folder / name
    return None


def graph_of(root):
    """Each module of a storey with the modules of the same storey that it includes."""
    graph = {}
    for source in sources(root):
        module = module_of(source, root)
        uses = graph.setdefault(module, set())
        for name in INCLUDE.findall(source.read_text(encoding="utf-8")):
            found = resolve(name, source, [root])
            if found is None:
                continue
            other = module_of(found, root)
            if other != module:
                uses.add(other)
    return graph


def circles_of(graph):
    """The strongly connected components of more than one module (Tarjan), largest first."""
    index, low, stack, found = {}, {}, [], []

    def visit(start):
        work = [(start, iter(sorted(graph[start])))]
        index[start] = low[start] = len(index)
        stack.append(start)
        while work:
            module, uses = work[-1]
            for used in uses:
                if used not in index:
                    index[used] = low[used] = len(index)
                    stack.append(used)
                    work.append((used, iter(sorted(graph[used]))))
                    break
                if used in stack:
                    low[module] = min(low[module], index[used])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[module])
                if low[module] == index[module]:
                    cut = stack.index(module)
                    if len(stack) - cut > 1:
                        found.append(sorted(stack[cut:]))
                    del stack[cut:]

    for module in sorted(graph):
        if module not in index:
            visit(module)
    return sorted(found, key=len, reverse=True)


def wrong_order(graph):
    """Forbidden uses between folders of the rules: of a later folder by an earlier one, and of or by the Morse folder."""
    for module, uses in sorted(graph.items()):
        folder = module.split("/")[0]
        for used in sorted(uses):
            other = used.split("/")[0]
            if folder == other:
                continue
            if APART in (folder, other):
                yield f"rules: {module} uses {used}: {APART} stands apart"
            elif folder not in RULES or other not in RULES:
                yield f"rules: {module} uses {used}: a folder that has no place in the order"
            elif RULES.index(folder) < RULES.index(other):
                yield f"rules: {module} uses {used}, which comes after it"


def shared_names(src):
    """Headers of the same name in two include roots of a target, and folder names that two storeys share."""
    for storey in STOREYS:
        names = {}
        for root in seen_from(storey):
            for header in sources(src / root):
                if header.suffix == ".h":
                    names.setdefault(header.relative_to(src / root).as_posix(), []).append(f"src/{root}")
        for name, roots in sorted(names.items()):
            if len(roots) > 1:
                yield f"{storey}: {name} stands in {' and in '.join(roots)}"
    owners = {}
    for storey in STOREYS:
        for folder in sorted(path for path in (src / storey).iterdir() if path.is_dir()):
            if folder.name in owners:
                yield f"src/{owners[folder.name]} and src/{storey} share the folder name {folder.name}"
            owners[folder.name] = storey


def main():
    report = "--report" in sys.argv
    src = Path([argument for argument in sys.argv[1:] if argument != "--report"][0])
    missing = [storey for storey in STOREYS if not (src / storey).is_dir()]
    if missing:
        sys.exit(f"no storey {', '.join(missing)} below {src}")
    problems = []
    modules = 0
    for storey in STOREYS:
        graph = graph_of(src / storey)
        modules += len(graph)
        for circle in circles_of(graph):
            line = f"{storey}: {len(circle)} modules include each other in a circle: {', '.join(circle)}"
            if len(circle) > LARGEST_CIRCLE:
                problems.append(line)
            elif report:
                print(line)
        if storey == "rules":
            problems += wrong_order(graph)
    problems += dict.fromkeys(shared_names(src))
    print("\n".join(problems) if problems else f"{modules} modules in {len(STOREYS)} storeys, no circle of more than {LARGEST_CIRCLE}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
