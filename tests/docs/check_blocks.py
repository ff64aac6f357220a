#!/usr/bin/env python3
"""Every block of code in the guide and the README is one that a test compiles or runs: check_blocks.py

- In a chapter with examples: each example and what it prints, which `check_example.cmake` compares.
- In the guide's overview: the CMake project, which `check_cmake.cmake` configures.
- In the chapter about Qt widgets: the project of the chapter about installing, with `gx::qt`. The
  component is one that `components.cmake` finds, and `scripts/packages try` builds all.
- In the chapter about Qt Quick: the files of its program, which `installed.cmake` builds and runs.
- In the chapter about installing: project and commands, which `check_installing.cmake` runs, and the
  packages, which `scripts/packages try` installs.
- In the README: its program and what that prints, which the consumer's tests build; commands, each of
  which is a script that CI runs; the page's element, which the tests in the browser have; and the
  document of QML that `tst_reference.qml` shows.

Prints each block that is none of these and exits with 1 if there is one.
"""

import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
COMMANDS = {"./run", "./test"}
INSTALLING = ("scripts/packages build", "cmake -S . -B build/install ", "c++ -std=c++20 main.cpp ")


def read(name):
    with open(os.path.join(ROOT, name), encoding="utf-8") as file:
        return file.read()


def blocks_of(text):
    return re.findall(r"^```(\w*)\n(.*?)^```$", text, re.M | re.S)


def examples():
    """The sources of each chapter's examples."""
    sources = {}
    for name, chapter in re.findall(r"gx_add_example\((\w+) ([\w-]+)", read("tests/docs/CMakeLists.txt")):
        sources.setdefault(chapter, []).append(read(f"docs/examples/{name}.cpp"))
    return sources


def is_known(name, language, block, sources, count_of):
    first_of = {kind: count == 1 for kind, count in count_of.items()}
    if name == "README.md":
        if language == "" and "└─►" in block:
            return True  # A drawing of the folders.
        if language == "sh":
            return all(line.split()[0] in COMMANDS for line in block.splitlines() if line.strip())
        if language == "qml":
            return block == read("docs/examples/readme/Distance.qml")
        return language in ("cpp", "text", "html") and first_of[language]
    if name == "docs/guide/README.md":
        return language == "cmake" and first_of[language]
    if name == "docs/guide/qt-quick.md":
        source = {"cmake": "CMakeLists.txt", "cpp": "main.cpp", "qml": "Main.qml"}.get(language)
        return source is not None and block == read(f"docs/examples/qt_quick/{source}") or language == "text" and first_of[language]
    if name == "docs/guide/qt-widgets.md" and language == "cmake":
        project = dict(reversed(blocks_of(read("docs/guide/installing.md"))))["cmake"]
        return block == project.replace("COMPONENTS pickers", "COMPONENTS qt pickers").replace("PRIVATE gx::pickers", "PRIVATE gx::qt gx::pickers")
    if name == "docs/guide/installing.md":
        return language == "cmake" and first_of[language] or language == "sh" and block.startswith(INSTALLING)
    # Each example prints one block.
    return language == "cpp" and block in sources or language == "text" and count_of[language] <= len(sources)


def main():
    known = examples()
    findings = []
    chapters = sorted(name for name in os.listdir(os.path.join(ROOT, "docs/guide")) if name.endswith(".md"))
    for name in ["README.md"] + [f"docs/guide/{chapter}" for chapter in chapters]:
        sources = known.get(os.path.basename(name)[:-len(".md")], [])
        count_of = {}
        for language, block in blocks_of(read(name)):
            count_of[language] = count_of.get(language, 0) + 1
            if not is_known(name, language, block, sources, count_of):
                findings.append(f"{name}: no test knows this block of {language or 'text'}: {block.strip().splitlines()[0]}")
    for finding in findings:
        print(finding)
    if not known or findings:
        sys.exit(f"{len(findings)} findings, {len(known)} chapters with examples")


main()
