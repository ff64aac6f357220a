#!/usr/bin/python3
"""Walks the example of Qt Quick as a client of the accessibility bus.

    quick.py --gallery PROGRAM --folder FOLDER

Every wheel is opened, takes the focus column by column, and each column is stepped, set and read, as
those of the gallery are.
"""

import argparse
import sys
from pathlib import Path

import application
from application import Application
from session import Session, TimedOut
from walk import Walk, is_focus

COLUMNS = {
    "Distance": ["Distance, kilometres", "Distance, tenths", "Distance, hundredths"],
    "Duration": ["Duration, hours", "Duration, minutes", "Duration, seconds"],
    "Heart rate": ["Average heart rate", "Maximum heart rate"],
    "Calories": ["Calories"],
    "Temperature": ["Temperature"],
    "Effort": ["Effort"],
}


class QuickWalk(Walk):
    def check(self, app):
        buttons = [element for element in app.elements() if element.role == "push button"]
        self.expect([button.name.split(",")[0] for button in buttons] == list(COLUMNS), f"the entries are {buttons}")
        for index, (button, names) in enumerate(zip(buttons, COLUMNS.values())):
            self.place = button.name
            if index > 0:  # The first one is open.
                button.act("Press")
                app.settle()
            columns = [element for element in app.elements() if element.role == "spin button" and "showing" in element.states]
            self.expect([column.name for column in columns] == names, f"the columns are {list(map(str, columns))}")
            for column in columns:
                self.counts["columns"] += 1
                self.check_focus_of(app, column)
                self.check_column(app, column)
            self.expect_not_again(app.settle())

    def check_focus_of(self, app, column):
        """The focus is said once; the group around the columns has it for a moment before them."""
        self.counts["focus moves"] += 1
        app.take_events()
        self.expect({"focusable", "enabled", "showing"} <= column.states, f"{column} is {sorted(column.states)}")
        self.expect(column.grab_focus(), f"{column} does not take the focus")
        try:
            app.wait_for(lambda event: is_focus(event) and event.source == column, f"focus of {column}")
        except TimedOut as fault:
            self.expect(False, str(fault))
        told = [event.source for event in app.settle() if is_focus(event)]
        self.expect(told in ([column], [column.parent, column]), f"{column} takes the focus with {list(map(str, told))}")
        focused = [element for element in app.elements() if "focused" in element.states]
        self.expect(focused == [column], f"with the focus are {list(map(str, focused))}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--gallery", required=True, help="the example's program")
    parser.add_argument("--folder", required=True, type=Path, help="for logs")
    arguments = parser.parse_args()
    with Session(arguments.folder) as session:
        session.environment["QT_QUICK_BACKEND"] = "software"
        application.connect(session)
        walk = QuickWalk(session, arguments.gallery)
        app = Application(session, arguments.gallery)
        walk.check(app)
        app.end()
    return walk.report()


if __name__ == "__main__":
    sys.exit(main())
