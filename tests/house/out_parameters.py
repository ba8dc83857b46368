#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
#
#   out_parameters.py SRC BUILD
#
# Checks that no procedure of the rules returns results through a parameter. clang-query lists every parameter that is a
# reference or a pointer to something not const; streams and observers are interfaces and are not results. The lines of
# out_parameters.txt ("FILE: DECLARATION  # reason"), at most five, are exceptions. BUILD holds compile_commands.json.
import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

INTERFACES = ("LineSource", "LineSink", "PageSink", "LogReader", "LogObserver")
LIST = Path(__file__).with_suffix(".txt")
MOST = 5
QUERY = """set output diag
set bind-root false
match parmVarDecl(isExpansionInFileMatching("src/rules/"), hasType(lValueReferenceType(pointee(unless(isConstQualified()))))).bind("p")
match parmVarDecl(isExpansionInFileMatching("src/rules/"), hasType(pointerType(pointee(unless(isConstQualified()), unless(functionType()))))).bind("p")
"""
# clang cannot read GCC's precompiled header, and does not know all of its warnings.
FOREIGN = re.compile(r" -Winvalid-pch| -include \S*cmake_pch\.hxx| -Werror")
FOUND = re.compile(r'^(/[^:]+):(\d+):(\d+): note: "p" binds here', re.MULTILINE)


def main():
    src, build = Path(sys.argv[1]).resolve(), sys.argv[2]
    tool = shutil.which("clang-query-14") or shutil.which("clang-query")
    if tool is None:
        print("clang-query is not installed")
        return 1 if os.environ.get("CI") == "true" else 77
    sources = sorted((src / "rules").rglob("*.cpp"))
    work = Path(build) / "out_parameters"
    work.mkdir(exist_ok=True)
    query = work / "query"
    query.write_text(QUERY, encoding="utf-8")
    calls = json.loads((Path(build) / "compile_commands.json").read_text(encoding="utf-8"))
    for call in calls:
        call["command"] = FOREIGN.sub("", call["command"])
    (work / "compile_commands.json").write_text(json.dumps(calls), encoding="utf-8")
    result = subprocess.run([tool, "-p", work, "-f", query, *sources], capture_output=True, text=True)
    found = sorted({(Path(file), int(line), int(column)) for file, line, column in FOUND.findall(result.stdout)})
    if len(found) < 10:
        print("clang-query finds no streams among the parameters, of which there must be many:", result.stderr[-2000:], sep="\n")
        return 1
    allowed = [line.split("  #")[0] for line in LIST.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]
    problems = [f"{LIST.name} has more than {MOST} lines"] if len(allowed) > MOST else []
    seen = set()
    for file, line, column in found:
        text = file.read_text(encoding="utf-8").splitlines()[line - 1]
        # clang-query counts columns in bytes.
        parameter = text.encode()[: column - 1].decode(errors="replace").split("(")[-1].split(",")[-1] + text.encode()[column - 1 :].decode(errors="replace")
        if re.match(rf"\s*(const )?(vatro::)?({'|'.join(INTERFACES)})\s*[&*]", parameter):
            continue
        entry = f"{file.relative_to(src)}: {text.strip()}"
        seen.add(entry)
        if entry not in allowed:
            problems.append(f"{file.relative_to(src)}:{line}: {text.strip()}")
    problems += [f"{LIST.name}: not found any more: {entry}" for entry in allowed if entry not in seen]
    print(*problems, sep="\n")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
