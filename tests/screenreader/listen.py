#!/usr/bin/python3
"""Presses the keys of a script and compares, line by line, what Debian's Orca says to them.

    listen.py SCRIPT --gallery PROGRAM --folder FOLDER [--write]

A script is a text of
    # why the keys are pressed
    > Key             one press, by its name in X11; the first step, "> (start)", opens the window
    what Orca says    one line for each utterance, in order
    ...               anything, but at least one line: what belongs to the toolkit's own dialogs

A step without a line is an error: a key press that says nothing leaves its user alone. With --write
the lines that were heard replace those of the script; its steps, comments and "..." stay.
"""

import argparse
import contextlib
import difflib
import re
import subprocess
import sys
from pathlib import Path

from session import Session, TimedOut, wait_until

ANYTHING = "..."
START = "(start)"
SCREEN_READER = Path(__file__).with_name("start_orca.py")
# Narrow as a phone: the list of pages is behind a button.
SIZE = "390x844"
# Qt asks the bus what is listened to while its first window opens, and sends nothing until it
# knows. On a busy machine that may be too late for the window's own event; then it is started
# again.
STARTS = 3


class Step:
    def __init__(self, key, comments):
        self.key = key
        self.comments = comments
        self.lines = []

    def text(self, lines):
        return "".join(line + "\n" for line in [*self.comments, "> " + self.key, *lines])


def steps_of(text):
    """The steps of a script, and the comments below the last one."""
    steps, comments = [], []
    for line in text.splitlines():
        if line.startswith("> "):
            steps.append(Step(line[2:].strip(), comments))
            comments = []
        elif line.startswith("#") or not line.strip():
            comments.append(line)
        elif not steps or comments:
            raise SystemExit(f"this line belongs to no key: {line}")
        else:
            steps[-1].lines.append(line)
    if not steps or steps[0].key != START:
        raise SystemExit(f"a script begins with > {START}")
    return steps, comments


def utterances(log):
    """What a debug file of Orca says was spoken, a line each."""
    spoken = re.findall(r"^[\d:.]+ - SPEECH OUTPUT: '(.*?)'(?: ?\{[^\n]*)?$", log, re.M | re.S)
    return [" ".join(line.split()) for line in spoken if line.strip()]


def is_as_expected(heard, expected):
    if ANYTHING in expected:
        at = expected.index(ANYTHING)
        before, after = expected[:at], expected[at + 1:]
        return (len(heard) > len(before) + len(after) and heard[:at] == before and
                (not after or heard[-len(after):] == after))
    return heard == expected


class Listener:
    """The gallery with Orca beside it."""

    def __init__(self, session, gallery, locale):
        self.session = session
        self.gallery = gallery
        self.locale = locale
        self.log = session.folder / "orca.debug"
        self.heard = 0

    def start_orca(self):
        self.log.unlink(missing_ok=True)
        self.session.start("orca", ["/usr/bin/python3", str(SCREEN_READER), "--debug-file", str(self.log)],
                           environment={"LANGUAGE": self.locale})
        wait_until(lambda: utterances(self.text()), "Orca's first words")
        self.session.wait_until_idle()

    def start(self):
        self.start_orca()
        command = [str(Path(self.gallery).resolve()), "--locale", self.locale, "--size", SIZE]
        for _ in range(STARTS):
            self.heard = len(utterances(self.text()))
            self.program = self.session.start("gallery", command)
            with contextlib.suppress(TimedOut):
                wait_until(lambda: len(utterances(self.text())) > self.heard, "what Orca says to the window", seconds=10)
                return
            self.session.stop(self.program)
        raise TimedOut(f"Orca has not noticed the window, {STARTS} times")

    def text(self):
        return self.log.read_text(errors="replace") if self.log.exists() else ""

    def press(self, key):
        subprocess.run(["xdotool", "key", "--clearmodifiers", key], env=self.session.environment, check=True)

    def lines(self):
        """What was said since the last call, when nothing happens any more."""
        self.session.wait_until_idle()
        if self.program.poll() is not None:
            raise SystemExit("the program has ended; its log is in " + str(self.session.folder))
        lines = utterances(self.text())
        new = lines[self.heard:]
        self.heard = len(lines)
        return new


def locale_of(arguments):
    return arguments.script.suffixes[0].lstrip(".")


def listen(arguments, steps, make_listener):
    """What was heard at each step."""
    heard = []
    with Session(arguments.folder) as session:
        listener = make_listener(session, locale_of(arguments))
        listener.start()
        for step in steps:
            if step.key != START:
                listener.press(step.key)
            heard.append(listener.lines())
    return heard


def parser_of(description, script):
    parser = argparse.ArgumentParser(description=description, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("script", type=Path, help=script)
    parser.add_argument("--folder", required=True, type=Path, help="for logs")
    parser.add_argument("--write", action="store_true", help="write what is heard into the script")
    return parser


def compare(arguments, make_listener):
    """Plays the script and prints how what is heard differs; the exit code."""
    text = arguments.script.read_text()
    steps, rest = steps_of(text)
    heard = listen(arguments, steps, make_listener)

    result, faults = [], 0
    for step, lines in zip(steps, heard):
        if not lines:
            print(f"SILENT: nothing is said to {step.key} ({' '.join(step.comments).replace('# ', '').strip()})")
            faults += 1
        if not step.lines and not arguments.write:
            print(f"The script expects nothing to be said to {step.key}, so it would not notice a silent key.")
            faults += 1
        if is_as_expected(lines, step.lines) or (arguments.write and ANYTHING in step.lines):
            lines = step.lines
        result.append(step.text(lines))
    new = "".join(result) + "".join(line + "\n" for line in rest)
    if arguments.write:
        arguments.script.write_text(new)
    elif new != text:
        faults += 1
        sys.stdout.writelines(difflib.unified_diff(text.splitlines(True), new.splitlines(True), "expected", "heard", n=4))
    if faults:
        print(f"{faults} faults; what Orca did stands in {arguments.folder / 'orca.debug'}")
        return 1
    print(f"{len(steps)} steps, {sum(len(lines) for lines in heard)} lines, none silent")
    return 0


def main():
    parser = parser_of(__doc__, "such as scripts/add-workout.en.txt; its name tells the language")
    parser.add_argument("--gallery", required=True)
    arguments = parser.parse_args()
    return compare(arguments, lambda session, locale: Listener(session, arguments.gallery, locale))


if __name__ == "__main__":
    sys.exit(main())
