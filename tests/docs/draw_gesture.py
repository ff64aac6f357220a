#!/usr/bin/env python3
"""Draws the way of a gesture, from the finger to the delegate: draw_gesture.py PROGRAM [--svg FILE | --check FILE]

PROGRAM is gesture_path, built without optimisation: the calls are those that really ran.
"""

import argparse
import bisect
import html
import re
import subprocess
import sys

# The rooms that a call may be in, by the first letters of its class, and what they are called.
COLOURS = [("UIWindow", "#d7e6f5", "window"), ("UIPicker", "#dff0df", "wheel"), ("UI", "#e8e8ee", "views"),
           ("GX", "#fbe6cf", "picker"), ("Host", "#f6d9e2", "host"), ("Delegate", "#e6dcf5", "application")]


def symbols(program):
    """Addresses of functions, from the start of the program, and their names, in order."""
    lines = subprocess.run(["nm", "-C", "--defined-only", program], check=True, capture_output=True, text=True).stdout.splitlines()
    named = [match.groups() for match in (re.match(r"([0-9a-f]+) (\w) (.*)$", line) for line in lines) if match]
    start = next((int(address, 16) for address, _, name in named if name == "__executable_start"), 0)
    return sorted((int(address, 16) - start, name) for address, kind, name in named if kind in "tTwW")


def name_of(symbol):
    """Class::operation; nothing for what is no operation of a class of ours, or only passes on."""
    if symbol.startswith(("non-virtual thunk", "virtual thunk")) or "{lambda" in symbol or symbol.startswith("std::"):
        return None
    symbol = re.sub(r"\(anonymous namespace\)::", "", symbol)
    match = re.match(r"(?:.*? )?(?:gx::)?(?:detail::)?((?:\w+::)+\w+)(?:<.*>)?\(", symbol)
    return match.group(1) if match and not match.group(1).startswith("std::") else None


def chains(program):
    """For each step its calls, the host's first."""
    table = symbols(program)
    starts = [address for address, _ in table]
    output = subprocess.run([program], check=True, capture_output=True, text=True).stdout
    result = []
    for line in output.splitlines():
        if not line.startswith("  "):
            result.append((line, []))
            continue
        # A return address is behind the call.
        at = bisect.bisect_right(starts, int(line, 16) - 1) - 1
        name = name_of(table[at][1]) if at >= 0 else None
        if name and (not result[-1][1] or result[-1][1][-1] != name):
            result[-1][1].append(name)
    return [(step, calls[::-1]) for step, calls in result]


def colour_of(name):
    return next((colour for start, colour, _ in COLOURS if name.startswith(start)), "#ffffff")


def svg(steps):
    width, row, gap, left, title = 262, 30, 12, 16, 34
    most = max(len(calls) for _, calls in steps)
    total = left * 2 + len(steps) * width + (len(steps) - 1) * gap
    height = title + 24 + most * row + 46
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {total} {height}" font-family="Inter, system-ui, sans-serif" font-size="10">',
           '<title>A gesture from the finger to the delegate: the calls that ran, from top to bottom</title>',
           f'<rect width="{total}" height="{height}" fill="#ffffff"/>',
           '<defs><marker id="tip" viewBox="0 0 6 6" refX="3" refY="5" markerWidth="5" markerHeight="5" orient="0">'
           '<path d="M0 0 L3 6 L6 0 z" fill="#7b8794"/></marker></defs>']
    for column, (step, calls) in enumerate(steps):
        x = left + column * (width + gap)
        out.append(f'<text x="{x}" y="{title - 12}" font-size="13" font-weight="600" fill="#1c1c1e">{column + 1}. {html.escape(step)}</text>')
        for index, call in enumerate(calls):
            y = title + index * row
            owner, _, operation = call.rpartition("::")
            shown = operation if len(operation) < 49 else operation[:47] + "…"
            out.append(f'<rect x="{x}" y="{y}" width="{width}" height="{row - 6}" rx="4" fill="{colour_of(owner)}"/>')
            out.append(f'<text x="{x + 6}" y="{y + 10}" font-size="8" fill="#5b5b62">{html.escape(owner)}</text>')
            out.append(f'<text x="{x + 6}" y="{y + 20}" fill="#1c1c1e">{html.escape(shown)}</text>')
            if index + 1 < len(calls):
                out.append(f'<path d="M{x + width - 14} {y + row - 6} v5" stroke="#7b8794" marker-end="url(#tip)"/>')
    x = left
    for _, colour, word in COLOURS:
        out.append(f'<rect x="{x}" y="{height - 30}" width="14" height="14" rx="3" fill="{colour}"/>')
        out.append(f'<text x="{x + 20}" y="{height - 19}" fill="#1c1c1e">{word}</text>')
        x += 100
    return "\n".join(out + ["</svg>"]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--svg")
    parser.add_argument("--check")
    arguments = parser.parse_args()
    steps = chains(arguments.program)
    if len(steps) != 5 or any(len(calls) < 3 for _, calls in steps):
        sys.exit(f"The gesture has lost a step: {[(step, len(calls)) for step, calls in steps]}")
    text = svg(steps)
    if arguments.svg:
        with open(arguments.svg, "w", encoding="utf-8") as file:
            file.write(text)
    elif arguments.check:
        with open(arguments.check, encoding="utf-8") as file:
            if file.read() != text:
                sys.exit(f"{arguments.check} shows other calls than ran. Draw it again: tests/docs/draw_gesture.py {arguments.program} --svg {arguments.check}")
    else:
        for step, calls in steps:
            print(step, *calls, sep="\n  ")


main()
