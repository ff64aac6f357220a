"""Writes what the models answer into tables/<picker>.txt. Run it on its own: `python3 make_tables.py`.

The tables are the same on every run; `python3 make_tables.py --check` writes nothing and fails if one of them differs from what
would be written. The first line of a table is

    scenarios <count> <picker>

and each line after it is one scenario, which starts with a new picker: steps, separated by "|", each of words separated by
one blank. What is done:

    set <property> i32|i64|f32|f64 <value>   a boxed number: 32- or 64-bit integer, float, double
    set <property> none                      no number
    set <property> flag 0|1                  a truth value
    set <property> number <value>            a plain integer
    set <property> real <value>              a plain double
    bounds                                   the weight picker takes the bounds of its unit
    pass                                     one pass of the main run loop
    turn <component> <row>                   the user turns a column to a row

with the properties min, max, step, current, metric, fraction (number of fraction digits), type, hours, minutes, seconds
(step sizes), nullrow, gap, average, maximum (heart rates), unit, selectable (weight unit), height. What is expected
follows each turn and some of the settings, always the last of them before the first turn, in this order:

    told <component> <type> <value>          one notice, in the order told since the last `rows`; none where none is listed.
                                             For the height, the component is 1 for metric and 0 for imperial
    rows <count>...                          the rows of each component
    at <row>...                              the selected row of each component; ? where no rule settles it
    show <title>...                          the titles of those rows: ~ for no title, . where there is no row to ask for,
                                             _ for a blank
    is <type> <value>...                     the stored value (heart rate: average, then maximum)
    is told                                  the stored value is what was just told

Integers are decimal. Floating-point values are C99 hex floats of a whole mantissa and a power of two (0x9c4p1 is 5000), so
that no decimal separator takes part. The type `int` in an expectation is an integer of either width.
"""

import os
import random
import sys

import boundaries
import combinations
from scenario import Scenario

SEED = 20240817
FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "tables")


def every_row(picker, settings, columns=None, pick=None):
    """From a new picker with these settings, one turn to every row of every column that shows something."""
    def start():
        scenario = Scenario(picker)
        for setting in settings:
            if setting == "bounds":
                scenario.bounds()
            elif setting == "pass":
                scenario.run_pass()
            else:
                scenario.set(*setting)
        return scenario

    first = start()
    first.state()
    yield first.line()
    if columns is None:
        columns = [c for c in range(first.model.wheel.components()) if first.model.title(0, c) is not None]
    for column in columns:
        rows = range(first.rows_of(column))
        for row in pick(rows) if pick else rows:
            scenario = start()
            scenario.turn(column, row)
            yield scenario.line()


def thinned(rows):
    """Every 37th row, the second, and both ends."""
    return sorted(set(rows[::37]) | {rows[0], rows[1], rows[-2], rows[-1]})


def sweeps(picker):
    metric = ("metric", "flag", 1)
    if picker == "bpm":
        yield from every_row(picker, [])
    elif picker == "calories":
        yield from every_row(picker, [], pick=thinned)
    elif picker == "distance":
        two = ("fraction", "number", 2)
        for settings in ([], [metric], [two], [metric, two]):
            yield from every_row(picker, settings)
    elif picker == "duration":
        hour = ("max", "i32", 3599000)
        for settings in ([], [("type", "number", 1)], [("type", "number", 2)], [("type", "number", 2), hour]):
            yield from every_row(picker, settings)
        ranges = [("min", "i32", 5425000), ("max", "i32", 9910000)]
        for kind in (0, 1):
            for current in (5425000, 5460000, 7200000, 9900000):
                yield from every_row(picker, [("type", "number", kind)] + ranges + [("current", "i32", current)])
    elif picker == "heartrate":
        for null_row in (1, 0):
            for gap in (1, 5):
                yield from every_row(picker, [("nullrow", "flag", null_row), ("gap", "i32", gap)])
    elif picker == "height":
        yield from every_row(picker, [])
        for height in (0.0, 100.0, 150.0, 180.0, 182.0):
            for flag in (0, 1):
                columns = None if height == 180.0 else [1, 2] if flag == 0 else [1]
                yield from every_row(picker, [("metric", "flag", flag), ("height", "real", height), "pass"], columns)
    elif picker in ("pace", "speed"):
        yield from every_row(picker, [])
        yield from every_row(picker, [metric])
    elif picker == "temperature":
        for settings in ([], [metric], [("min", "i32", -18)], [("step", "i32", 1)], [metric, ("step", "i32", 1)]):
            yield from every_row(picker, settings)
    elif picker == "weight":
        current = ("current", "f64", 80.0)
        for unit in (0, 1, 2):
            own = [("unit", "number", unit), "bounds"]
            yield from every_row(picker, own)
            yield from every_row(picker, own + [current], [2])
            yield from every_row(picker, [("selectable", "flag", 1), current] + own, [1, 2, 3])


def table(picker, count):
    # Each table has its own random numbers, so that a change of one leaves the others as they are.
    generator = random.Random(f"{SEED} {picker}")
    lines = list(sweeps(picker)) + list(boundaries.boundaries(picker))
    lines += [combinations.combination(picker, generator) for _ in range(count)]
    return "\n".join([f"scenarios {len(lines)} {picker}"] + lines) + "\n"


def main(check_only):
    total = 0
    stale = []
    for picker, count in combinations.COUNTS.items():
        path = os.path.join(FOLDER, picker + ".txt")
        text = table(picker, count)
        if check_only:
            with open(path, encoding="utf-8", newline="") as file:
                if file.read() != text:
                    stale.append(picker)
        else:
            with open(path, "w", encoding="utf-8", newline="\n") as file:
                file.write(text)
        total += len(text)
        print(f"{picker:12} {text.split()[1]:>5} scenarios {len(text):8} bytes")
    print(f"{'together':12} {total:24} bytes")
    if stale:
        print("not as written by the models: " + ", ".join(stale))
    return 1 if stale else 0


if __name__ == "__main__":
    os.makedirs(FOLDER, exist_ok=True)
    sys.exit(main(sys.argv[1:] == ["--check"]))
