#!/usr/bin/env python3
"""Compares docs/screen-readers.md with the scripts; --write copies them there."""

import argparse
import re
import sys
from pathlib import Path

SCRIPTS = Path(__file__).with_name("scripts")
DOCUMENT = Path(__file__).parents[2] / "docs" / "screen-readers.md"
SHOWN = re.compile(r"(`tests/screenreader/scripts/([\w.-]+)`:\n\n```text\n)(.*?)(```\n)", re.S)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    text = DOCUMENT.read_text(encoding="utf-8")
    shown = [match[2] for match in SHOWN.finditer(text)]
    scripts = sorted(path.name for path in SCRIPTS.glob("*.txt"))
    if sorted(shown) != scripts:
        print(f"{DOCUMENT.name} shows {shown}, and the scripts are {scripts}")
        return 1
    new = SHOWN.sub(lambda match: match[1] + (SCRIPTS / match[2]).read_text(encoding="utf-8") + match[4], text)
    if arguments.write:
        DOCUMENT.write_text(new, encoding="utf-8")
    elif new != text:
        print(f"{DOCUMENT.name} does not show the scripts as they are: python3 {Path(__file__).name} --write copies them there")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
