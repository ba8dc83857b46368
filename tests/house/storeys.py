#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
#
#   storeys.py TARGETS SRC CMAKE
#
# Checks that no storey below the window front sees a storey that it does not use. TARGETS comes from CMake and has a line
# for each storey's target: storey, include directories, definitions, options, build dependencies and the compiler; lists are
# joined by ";".
#
# - A one-line source that includes a header of another storey, compiled with the options of its own target, compiles only if the
#   storey uses the other one. Otherwise it must fail because the header is not found, and for no other reason.
# - The same with "..": the include check that every target depends on refuses it, and the build stops there.
import os
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from circles import STOREYS, seen_from, sources

CHECKS = Path(__file__).resolve().parents[2] / "cmake"
CHECK = CHECKS / "check_includes.cmake"


class Target:
    def __init__(self, line):
        self.storey, includes, definitions, options, waits_for, self.compiler = line.split("\t")
        self.includes = [path for path in includes.split(";") if path]
        self.flags = [f"-D{name}" for name in definitions.split(";") if name]
        self.flags += [option for option in options.split(";") if option]
        self.waits_for = waits_for.split(";")


def run(command, **more):
    return subprocess.run(command, capture_output=True, text=True, env=os.environ | {"LC_ALL": "C"}, **more)


def header_of(storey, src):
    """A header of the storey, by its path below the include root."""
    headers = [path for path in sources(src / storey) if path.suffix == ".h"]
    return headers[0].relative_to(src / storey).as_posix()


def try_include(target, name, folder):
    """The compiler's output for a source that includes only this header; empty if it compiles."""
    source = Path(tempfile.mkstemp(suffix=".cpp", dir=folder)[1])
    source.write_text(f'#include "{name}"\n', encoding="utf-8")
    command = [target.compiler, "-std=c++20", "-fsyntax-only", *target.flags, *[f"-I{path}" for path in target.includes], str(source)]
    result = run(command)
    return "" if result.returncode == 0 else result.stderr


def try_all(target, src, folder):
    """Problems with what one storey sees of the others."""
    seen = seen_from(target.storey)
    problems = []
    for other in STOREYS:
        if other == target.storey:
            continue
        name = header_of(other, src)
        said = try_include(target, name, folder)
        if other in seen and said:
            problems.append(f"{target.storey} uses {other}, but cannot include {name}:\n{said}")
        elif other not in seen and not said:
            problems.append(f"{target.storey} does not use {other}, but {name} compiles there")
        elif other not in seen and name not in said.split("\n")[0]:
            problems.append(f"{target.storey} includes {name} of {other} and fails for another reason:\n{said}")
    return problems


def refused(list_file, cmake):
    """The output of the include check for the files listed; empty if it finds nothing."""
    stamp = list_file.with_suffix(".stamp")
    result = run([cmake, "-D", f"LIST={list_file}", "-D", f"STAMP={stamp}", "-P", str(CHECK)])
    if (result.returncode == 0) != stamp.exists():
        return "the step touches its stamp although it refuses, or the other way round"
    return "" if result.returncode == 0 else result.stderr


def try_ways_round(target, src, folder, cmake):
    """Plants includes with ".." and from the root of the disk in a copy of the storey: each must be refused."""
    copy = folder / target.storey / "src"
    shutil.copytree(src / target.storey, copy / target.storey)
    list_file = folder / target.storey / "files.txt"
    planted = copy / target.storey / "planted.cpp"

    def step(text):
        planted.write_text(text, encoding="utf-8")
        list_file.write_text("".join(f"{path}\n" for path in sources(copy)), encoding="utf-8")
        return refused(list_file, cmake)

    own = header_of(target.storey, src)
    said = step(f'#include <string>\n#include "{own}"  // ../ stands only behind it\n')
    problems = [f"{target.storey} is refused as it is:\n{said}"] if said else []
    for other in STOREYS:
        if other in seen_from(target.storey):
            continue
        name = header_of(other, src)
        for include in (f'"../{other}/{name}"', f'"{own.rpartition("/")[0] or "."}/../../{other}/{name}"', f"<../{other}/{name}>",
                        f'"{src}/{other}/{name}"'):
            said = step(f"#include {include}\n")
            if "planted.cpp" not in said or "must not" not in said:
                problems.append(f"#include {include} is not refused in {target.storey}")
    return problems


def try_build(compiler, folder, cmake):
    """Builds a library with the include check. An include that leads out of its folder must stop the build, although the compiler
    finds the header."""
    project = folder / "project"
    for name in ("low", "high"):
        (project / name).mkdir(parents=True)
    (project / "high" / "high.h").write_text("#pragma once\n", encoding="utf-8")
    (project / "CMakeLists.txt").write_text(f"""cmake_minimum_required(VERSION 3.25)
project(house LANGUAGES CXX)
include({CHECKS}/storey.cmake)
add_library(low STATIC low/low.cpp)
target_include_directories(low PUBLIC low)
vatro_check_includes(low low)
""", encoding="utf-8")
    source = project / "low" / "low.cpp"
    build = project / "build"

    def builds(text):
        source.write_text(text, encoding="utf-8")
        return run([cmake, "--build", str(build)])

    good = "int Low() { return 1; }\n"
    source.write_text(good, encoding="utf-8")
    configured = run([cmake, "-S", str(project), "-B", str(build), f"-DCMAKE_CXX_COMPILER={compiler}"])
    if configured.returncode != 0:
        return [f"the small project is not configured:\n{configured.stderr}"]
    problems = []
    if builds(good).returncode != 0:
        problems.append("a library without a wrong include is not built")
    result = builds('#include "../high/high.h"\n' + good)
    if result.returncode == 0 or "must not" not in result.stdout + result.stderr:
        problems.append(f"a library with a wrong include is built:\n{result.stdout}{result.stderr}")
    if builds(good).returncode != 0:
        problems.append("a library is not built after its wrong include has gone")
    return problems


def main():
    lines = Path(sys.argv[1]).read_text(encoding="utf-8").splitlines()
    src, cmake = Path(sys.argv[2]).resolve(), sys.argv[3]
    targets = [Target(line) for line in lines if line]
    problems = [f"no target for {storey}" for storey in STOREYS if storey not in [target.storey for target in targets] + ["qt"]]
    for target in targets:
        if f"vatro_{target.storey}_includes" not in target.waits_for:
            problems.append(f"the target of {target.storey} does not wait for the check of its includes")
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        with ThreadPoolExecutor() as pool:
            for found in pool.map(lambda target: try_all(target, src, folder), targets):
                problems += found
            for found in pool.map(lambda target: try_ways_round(target, src, folder, cmake), targets):
                problems += found
        problems += try_build(targets[0].compiler, folder, cmake)
    print("\n".join(problems) if problems else f"{len(targets)} storeys see what they use and nothing else")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
