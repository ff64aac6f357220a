#!/usr/bin/python3
"""Walks the gallery as a client of the accessibility bus, and reports what the client misses.

    walk.py --gallery PROGRAM --folder FOLDER [--page NAME]… [--half pages|entry]

On every page each element has a name, a role, states and a place; what can take the focus takes it
and says so once; each column of each wheel is stepped, set and read. The entry screen, the settings
and the messages have checks of their own.
"""

import argparse
import re
import subprocess
import sys
import time
from pathlib import Path

from gi.repository import GLib

import application
from application import Application
from session import Session, TimedOut, wait_until

ROLES = {"label", "heading", "icon", "image", "panel", "list", "list item", "push button", "radio button", "spin button"}
OPERATED = {"list item", "push button", "radio button", "spin button"}
# Before it are the entry screen, the settings and the overview.
FIRST_PICKER_PAGE = 3
WIDE = "800x640"
LOW = "360x320"
SECTIONS = ["Workout", "Best interval", "Heart", "Conditions", "Body"]
ROWS = ["Distance and time", "Average speed", "Calories", "Distance", "Duration", "Pace", "Heart rate", "Resting pulse",
        "Weather", "Water temperature", "Weight", "Height"]
CHOICES = ["Units", "Weight", "Text size", "Look", "Contrast", "Decimal separator", "Motion"]
# What these columns show depends on another one, by the picker's own rules.
BOUND_TO_OTHERS = {"Average heart rate", "Maximum heart rate"}


class Walk:
    def __init__(self, session, gallery):
        self.session = session
        self.gallery = gallery
        self.faults = []
        self.counts = {"pages": 0, "elements": 0, "focus moves": 0, "columns": 0, "values": 0}
        self.place = ""
        self.changed = None

    def report(self):
        """Says what was looked at and found; returns the program's exit code."""
        print(", ".join(f"{count} {what}" for what, count in self.counts.items()))
        if self.faults:
            print(f"{len(self.faults)} faults")
            return 1
        return 0

    def expect(self, holds, message):
        if not holds:
            self.faults.append(f"{self.place}: {message}")
            print("  FAULT", self.faults[-1], flush=True)
        return holds

    def report(self):
        """Prints what was checked; the exit code."""
        print(", ".join(f"{count} {what}" for what, count in self.counts.items()))
        if self.faults:
            print(f"{len(self.faults)} faults")
        return 1 if self.faults else 0

    def start(self, size, *options):
        return Application(self.session, self.gallery, "--locale", "en", "--size", size, *options)

    # Every element of a page

    def check_elements(self, app):
        x, _, width, _ = app.window.place
        for element in app.elements():
            self.counts["elements"] += 1
            states = element.states
            role = element.role
            self.expect(role in ROLES, f"the role of {element} is none of those expected")
            self.expect(element.name or role == "list", f"a {role} at {element.place} has no name")
            self.expect({"enabled", "sensitive"} <= states, f"{element} is only {sorted(states)}")
            left, top, wide, high = element.place
            self.expect(wide > 0 and high > 0 or "showing" not in states, f"{element} has no size")
            self.expect(x <= left and left + wide <= x + width + 1 or "showing" not in states, f"{element} lies beside the window: {element.place}")
            if role in OPERATED:
                self.expect("focusable" in states, f"{element} cannot take the focus")
                self.expect(element.actions, f"{element} has no action")
            self.expect(element.parent.children.count(element) == 1, f"{element} is not among the children of its parent")

    def check_focus(self, app):
        """Grabbing the focus moves it, shows the element and says so once."""
        x, y, width, height = app.window.place
        app.settle()
        wanted = []
        for element in app.elements():
            if "focusable" not in element.states:
                continue
            self.counts["focus moves"] += 1
            app.take_events()
            had_focus = "focused" in element.states
            if not self.expect(element.grab_focus(), f"{element} does not take the focus"):
                continue
            if not had_focus:
                try:
                    app.wait_for(lambda event: is_focus(event) and event.source == element, f"focus of {element}")
                except TimedOut as fault:
                    self.expect(False, str(fault))
            events = [event for event in app.take_events() if is_focus(event)]
            self.expect(len(events) == (0 if had_focus else 1), f"{element} took the focus with: " + "; ".join(map(str, events)))
            self.expect("focused" in element.states, f"{element} does not say that it has the focus")
            wanted.append(element)
        late = [event for event in app.settle() if is_focus(event)]
        self.expect(not late, "the focus is told again: " + "; ".join(map(str, late)))
        focused = [element for element in app.elements() if "focused" in element.states]
        self.expect(focused == wanted[-1:], "with the focus are: " + ", ".join(map(str, focused)))
        for element in wanted[:: max(1, len(wanted) // 4)]:
            element.grab_focus()
            app.settle()
            left, top, wide, high = element.place
            middle = top + min(high, height) / 2
            self.expect(y <= middle <= y + height and x <= left + wide / 2 <= x + width, f"{element} has the focus out of sight, at {element.place}")
            self.expect("showing" in element.states, f"{element} has the focus and is not showing")

    # Wheels

    def check_wheels(self, app):
        columns = [element for element in app.elements() if element.role == "spin button"]
        for column in columns:
            self.counts["columns"] += 1
            self.check_column(app, column)
        self.expect_not_again(app.settle())
        for column in columns:
            self.check_text(column)
        return columns

    def expect_not_again(self, events):
        """The column that was changed last does not tell its value again, as at rest."""
        again = [event for event in events if is_value(event) and event.source == self.changed]
        self.expect(not again, "told again: " + "; ".join(map(str, again)))

    def check_column(self, app, column):
        least, most, step = column.bounds
        first = column.value
        if not self.expect(least <= first <= most and step > 0, f"{column} is at {first} of {least} to {most} by {step}"):
            return
        self.check_text(column)
        steps = round((most - least) / step)
        self.expect(steps > 0 and abs(least + steps * step - most) < 1e-9, f"{column} has {most - least} of room for steps of {step}")
        middle = least + steps // 2 * step
        is_bound = column.name in BOUND_TO_OTHERS
        texts = {}
        for asked, expected in ((middle, middle), (most, most), (least, least), (most + 1000, most), (least - 1000, least), (first, first)):
            self.change(app, column, lambda: setattr(column, "value", asked), expected, f"set to {asked:g}", is_bound)
            texts[column.value] = column.text
        self.expect(len(set(texts.values())) == len(texts), f"{column} reads the same for several values: {texts}")
        up = first + step <= most
        near = first + step if up else first - step
        self.change(app, column, lambda: column.act("Increase" if up else "Decrease"), near, "stepped", is_bound)
        self.change(app, column, lambda: column.act("Decrease" if up else "Increase"), first, "stepped back", is_bound)

    def change(self, app, column, act, expected, what, is_bound):
        """A change is told once, and read back as a number and as a text."""
        self.counts["values"] += 1
        self.expect_not_again(app.take_events())
        self.changed = None if is_bound else column
        before = column.value
        act()
        if before != expected:
            try:
                app.wait_for(lambda event: is_value(event) and event.source == column, f"new value of {column}, {what}")
            except TimedOut as fault:
                self.expect(False, str(fault))
                return
        value = column.value
        events = [event for event in app.take_events() if event.source == column]
        if not is_bound:
            self.expect(value == expected, f"{column}, {what}, is at {value:g} instead of {expected:g}")
            kinds = [event.type.removeprefix("object:") for event in events]
            values = kinds.count("property-change:accessible-value")
            inserts = kinds.count("text-changed:insert")
            self.expect(values == (before != expected) and inserts <= 1, f"{column}, {what}, is told by {kinds}")
        self.check_text(column)

    def check_text(self, column):
        """The text says the number, if it says any; a person does not say "0 hours 20 minutes".

        Of a column that chooses the unit the number is the index, and the text the whole value.
        """
        text = column.text
        numbers = [0] + [int(number) for number in re.findall(r"\d+", text)]
        # Tenths and hundredths have a column each.
        numbers += [int(digit) for fraction in re.findall(r"\.(\d+)", text) for digit in fraction]
        shows_index = column.name.endswith(", unit")
        self.expect(text and (shows_index or numbers == [0] or abs(column.value) in numbers), f"{column} is at {column.value:g} and reads '{text}'")

    # Pages

    def open_page(self, app, name):
        button = next(element for element in app.elements() if element.name == name and element.role in OPERATED and is_in_sidebar(app, element))
        button.act("Press" if "Press" in button.actions else button.actions[0])
        app.settle()

    def check_page(self, app, name):
        self.place = name
        started = time.monotonic()
        self.open_page(app, name)
        self.counts["pages"] += 1
        self.check_elements(app)
        self.check_focus(app)
        self.check_wheels(app)
        print(f"{name}: {time.monotonic() - started:.1f} s", flush=True)

    # The entry screen

    def check_entry(self, app):
        """Sections have headings, rows have positions, and a row opens and closes its picker."""
        self.place = "Add workout, as a list"
        self.open_page(app, "Add workout")
        elements = app.elements()
        headings = [element.name for element in elements if element.role == "heading"]
        self.expect(headings == ["Add workout", *SECTIONS], f"the headings are {headings}")
        lists = [element for element in elements if element.role == "list"]
        rows = [row.name for found in lists for row in found.children]
        self.expect([row.split(",")[0] for row in rows] == ROWS, f"the rows are {rows}")
        for found in lists:
            kinds = {row.role for row in found.children}
            self.expect(kinds == {"list item"}, f"{found} has children that are {kinds}, which count as positions")
        for name in ROWS:
            self.place = f"Add workout, {name}"
            row = app.find("list item", name + ",")
            self.expect({"expandable"} <= row.states and "expanded" not in row.states, f"the row is {sorted(row.states)}")
            row.grab_focus()
            self.expect(self.open_row(app, row, True), "it opens, and there is no wheel")
            self.check_wheels(app)
            self.expect(not self.open_row(app, row, False), "it closes, and its wheel is still there")

    def open_row(self, app, row, opens):
        """Activates a row, expects one event for it, and returns the columns of its wheels."""
        row.act(row.actions[0])
        told = [event.detail for event in app.settle() if event.type.endswith(":expanded") and event.source == row]
        self.expect(told == [int(opens)], f"it {'opens' if opens else 'closes'} and says so with {told}")
        self.expect(("expanded" in row.states) == opens, f"it {'opens' if opens else 'closes'} and is {sorted(row.states)}")
        return [element for element in app.elements() if element.role == "spin button"]

    def check_rows_out_of_sight(self):
        """In a low window the last row is there, and taking the focus brings it into sight."""
        self.place = "Add workout in a low window"
        app = self.start(LOW)
        row = app.find("list item", ROWS[-1])
        x, y, width, height = app.window.place
        self.expect("showing" not in row.states, f"{row} shows already, at {row.place}")
        row.grab_focus()
        app.settle()
        left, top, wide, high = row.place
        self.expect("showing" in row.states and y <= top and top + high <= y + height and x <= left and left + wide <= x + width,
                    f"{row} has the focus and is at {row.place}, {sorted(row.states)}")
        app.end()

    def check_messages(self, app):
        """What goes wrong is announced once: here a file that is no workout."""
        self.place = "Opening a file that is no workout"
        self.open_page(app, "Add workout")
        broken = self.session.folder / "broken.json"
        broken.write_text("no workout")
        app.find("push button", "Open").grab_focus()
        app.settle()
        self.key("Return")
        # The dialog belongs to the toolkit. Typed names would open its list of completions.
        dialog = wait_until(app.dialog, "the dialog")
        app.settle()
        app.find("text", "File name", dialog).write(str(broken))
        app.settle()
        app.find("push button", "Open", dialog).act("Press")
        told = [event.name for event in app.settle() if event.type.endswith(":showing") and event.detail == 1
                and event.role == "notification"]
        self.expect(len(told) == 1 and told[0].startswith("broken.json: "), f"it is announced with {told}")

    def check_dialogs(self, app):
        """A press on a button that opens a dialog has a reply while the dialog is open."""
        self.open_page(app, "Add workout")
        for name in ("Open", "Save"):
            self.place = f"Pressing {name}"
            button = app.find("push button", name)
            app.settle()
            self.press(button)
            try:
                dialog = wait_until(app.dialog, "the dialog", seconds=5)
            except TimedOut as fault:
                self.expect(False, str(fault))
                continue
            app.settle()
            self.press(button)  # The dialog is in front of it.
            app.settle()
            self.expect(app.dialog() == dialog, "another dialog is open")
            app.find("push button", "Cancel", dialog).act("Press")
            app.settle()
            self.expect(app.dialog() is None, "the dialog stays open")

    def press(self, button):
        try:
            button.act("Press")
        except GLib.GError as error:
            self.expect(False, f"no reply: {error.message}")

    # The settings

    def check_settings(self, app):
        """Each choice is a group with a name, of which one is checked."""
        self.place = "Settings, as choices"
        self.open_page(app, "Settings")
        groups = {}
        for element in app.elements():
            if element.role == "radio button":
                groups.setdefault(element.parent, []).append(element)
        for group, buttons in groups.items():
            checked = [button.name for button in buttons if "checked" in button.states]
            self.expect(group.name and len(checked) == 1, f"of {group} these are checked: {checked}")
        names = [group.name for group in groups]
        self.expect([name for name in names if name in CHOICES] == CHOICES, f"the groups are {names}")
        self.choose(app, "Motion", "Reduced", "Full")

    def choose(self, app, group, choice, before):
        self.place = f"Settings, {group}"
        buttons = {button.name: button for button in app.find("panel", group).children}
        app.settle()
        buttons[choice].act(buttons[choice].actions[0])
        told = [(event.name, event.detail) for event in app.settle() if event.type.endswith(":checked")]
        self.expect(sorted(told) == sorted([(before, 0), (choice, 1)]), f"{choice} is chosen, and this is said: {told}")
        states = {name: "checked" in button.states for name, button in buttons.items()}
        self.expect(states == {name: name == choice for name in buttons}, f"{choice} is chosen, and checked are {states}")

    # Gestures

    def check_gestures(self, app):
        """A key says each step at once; a finger's turn is said once, at rest."""
        self.place = "Speed, by hand"
        self.open_page(app, "Speed")
        column = next(element for element in app.elements() if element.role == "spin button")
        column.grab_focus()
        app.settle()
        first = column.value
        for presses in (1, 2, 3):
            self.key("Down")
            app.wait_for(lambda event: is_value(event) and event.source == column, "new value")
            self.expect(column.value == first + presses, f"after {presses} keys {column} is at {column.value:g}")
            app.take_events()
        late = [event for event in app.settle() if is_value(event) and event.source == column]
        self.expect(not late, f"the keys are told again at rest: {len(late)} times")
        left, top, wide, high = column.place
        x, y = left + wide // 2, top + high // 2
        self.by_hand("mousemove", x, y, "mousedown", 1)
        for step in range(1, 13):
            self.by_hand("mousemove", x, y - 8 * step)
        self.by_hand("mouseup", 1)
        told = [event for event in app.settle() if is_value(event) and event.source == column]
        self.expect(len(told) == 1 and column.value > first + 3, f"a drag to {column.value:g} is told {len(told)} times")

    def key(self, name):
        self.by_hand("key", name)

    def by_hand(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.session.environment, check=True)


def is_focus(event):
    return event.type == "object:state-changed:focused" and event.detail == 1


def is_value(event):
    return event.type == "object:property-change:accessible-value"


def is_in_sidebar(app, element):
    return element.place[0] < app.window.place[0] + 40


def page_names(app):
    return [element.name for element in app.elements() if element.role in OPERATED and is_in_sidebar(app, element)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--gallery", required=True)
    parser.add_argument("--folder", required=True, type=Path, help="for logs")
    parser.add_argument("--page", action="append", help="only this one")
    parser.add_argument("--half", choices=["pages", "entry"], help="only the pages of pickers, or all but these")
    arguments = parser.parse_args()
    with Session(arguments.folder) as session:
        application.connect(session)
        walk = Walk(session, arguments.gallery)
        app = walk.start(WIDE)
        names = arguments.page or page_names(app)
        if arguments.half:
            names = names[FIRST_PICKER_PAGE:] if arguments.half == "pages" else names[:FIRST_PICKER_PAGE]
        has_entry = not arguments.page and arguments.half != "pages"
        if has_entry:
            walk.check_gestures(app)
        walk.check_settings(app)  # From here on wheels arrive at once.
        for name in names:
            walk.check_page(app, name)
        if has_entry:
            walk.check_entry(app)
            walk.check_messages(app)
            walk.check_dialogs(app)
            walk.check_rows_out_of_sight()
        app.end()
    return walk.report()


if __name__ == "__main__":
    sys.exit(main())
