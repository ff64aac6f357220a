#!/usr/bin/env python3
"""Writes the scenarios in lists/: make_lists.py [--check]

- ways.json: each picker in each way of turning it. What the user then has picked is worked out
  here, from the rules and without the library.
- recorded.json: the keys of a recorded session of the demo application, at their times.
- random.json: gestures, keys and settings at random, from seeds. Nothing is expected here; both
  worlds have to agree with results.jsonl.

`--check` writes nothing and fails if a file would change.
"""

import json
import random
import sys
from pathlib import Path

FOLDER = Path(__file__).resolve().parent / "lists"
FRAME = 0.016  # In seconds.
ICONS = ["Sunny", "Cloudy", "Rain", "Snow", "Fog"]
DAYS = ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"]
REST = 8  # In seconds: longer than anything moves.


def pace(seconds):
    """Metres per second of so many seconds a kilometre."""
    return 1 / (seconds / 1000)


# What the user can change, of all kinds.
SHOWN = {"value", "distance", "duration", "average", "maximum", "weather", "temperature", "unit"}


def speed(kilometres):
    """Metres per second of so many kilometres an hour, by the factor that the pickers use."""
    return kilometres * 0.277777778


class Kind:
    """A picker, what it starts with, and what it has picked after turning.

    - rows: the height of a row of each column, in points;
    - two_down: what the first column's second next row picks;
    - both: that, and with it the second column's third next row; nothing for one column;
    - typed: a text for the first column and what it picks;
    - home, end: what the first column's first and last row pick;
    - sets: what a program sets, one after the other.
    """

    def __init__(self, picker, options, two_down, typed, home, end, sets, both=None, size=(400, 216), rows=(40,), back=None):
        self.picker = picker
        self.options = options
        self.two_down = two_down
        self.both = both
        self.typed = typed
        self.home = home
        self.end = end
        self.sets = sets
        self.size = size
        self.rows = rows if len(rows) > 1 or both is None else rows * 2
        self.start = back or {name: options[name] for name in two_down if name in options}


KINDS = [
    Kind("number", {"min": 0, "max": 100, "step": 5, "value": 50}, {"value": 60, "text": "60"}, ("35", {"value": 35}),
         {"value": 0}, {"value": 95}, [["value", 20], ["max", 40], ["value", 35], ["min", 10]]),
    Kind("bpm", {"min": 40, "max": 200, "step": 2, "value": 120}, {"value": 124}, ("150", {"value": 150}),
         {"value": 40}, {"value": 198}, [["value", 80], ["step", 1], ["value", 81]]),
    Kind("calories", {"min": 0, "max": 2000, "step": 10, "value": 500}, {"value": 520}, ("730", {"value": 730}),
         {"value": 0}, {"value": 1990}, [["value", 1200], ["max", 1500], ["value", 1400]]),
    Kind("distance", {"min": 0, "max": 20000, "value": 5000}, {"value": 7000, "text": "7.0 km"},
         ("12.7", {"value": 12700, "text": "12.7 km"}), {"value": 0}, {"value": 19000},
         [["value", 8200], ["fraction-digits", 2], ["value", 8250], ["unit", "imperial"]], both={"value": 7300}),
    Kind("distance-and-duration", {"distance": 5000, "duration": 1800000}, {"distance": 7000, "duration": 1800000},
         ("12.7", {"distance": 12700}), {"distance": 0}, None,
         [["distance", 9000], ["duration", 3600000], ["layout", "hours-minutes-seconds"], ["unit", "imperial"]],
         both={"distance": 7300, "duration": 1800000}, size=(640, 216)),
    Kind("duration", {"layout": "hours-minutes", "value": 300000}, {"value": 7500000}, ("1:30", {"value": 5400000}),
         {"value": 300000}, None, [["value", 3600000], ["layout", "minutes-seconds"], ["seconds-step", 15], ["value", 90000]],
         both={"value": 7680000}),
    Kind("heart-rate", {"average": 120, "maximum": 160}, {"average": 122, "maximum": 160}, ("135", {"average": 135}),
         {"average": 0}, None, [["average", 100], ["maximum", 150], ["gap", 10], ["no-null-row", True]],
         both={"average": 122, "maximum": 163}),
    Kind("height", {"value": 180}, {"value": 182, "unit": "metric", "text": "182 cm"}, ("175", {"value": 175, "text": "175 cm"}),
         {"value": 120}, {"value": 220}, [["value", 150], ["unit", "imperial"], ["value", 152.4]]),
    # 0 first: set while it passes 4, that would be taken for the echo of an input on a page.
    Kind("icon", {"icons": ICONS, "value": 1}, {"value": 3}, ("2", {"value": 1}), {"value": 0}, {"value": 4},
         [["value", 0], ["value", 4]], back={"value": 1}),
    Kind("pace", {"value": pace(300)}, {"value": pace(420)}, ("6:15", {"value": pace(375)}), None, None,
         [["value", pace(330)], ["seconds-step", 10], ["value", pace(250)], ["unit", "imperial"]], both={"value": pace(435)}),
    Kind("speed", {"value": speed(10)}, {"value": speed(12), "text": "12.0 km/h"}, ("14.3", {"value": speed(14.3), "text": "14.3 km/h"}),
         {"value": 0}, None, [["value", 5], ["unit", "imperial"], ["value", 4.4704]], both={"value": speed(12.3)}),
    Kind("temperature", {"step": 1, "value": 18}, {"value": 20}, ("-5", {"value": -5}), {"value": -20}, {"value": 59},
         [["value", 25], ["unit", "imperial"], ["value", 0]]),
    Kind("weather-and-temperature", {"icons": ICONS, "step": 1, "weather": 1, "temperature": 18}, {"weather": 3, "temperature": 18},
         ("2", {"weather": 1}), {"weather": 0}, {"weather": 4},
         [["temperature", -3], ["weather", 4], ["unit", "imperial"], ["temperature", 30]],
         both={"weather": 3, "temperature": 21}, size=(640, 216), rows=(56, 56), back={"weather": 1, "temperature": 18}),
    Kind("weight", {"unit": "kg", "value": 70}, {"value": 72, "unit": "kg", "text": "72.0 kg"}, ("81.5", {"value": 81.5}),
         {"value": 15}, {"value": 349}, [["value", 82.5], ["unit", "lb"], ["unit-selectable", True], ["unit", "st"]],
         both={"value": 72.3}),
    Kind("wheel", {"columns": [{"rows": DAYS, "label": "Day"}, {"rows": 1000, "label": "Number"}], "rows": [1, 500]},
         {"rows": [3, 500], "text": "Thursday 500"}, ("fr", {"rows": [4, 500]}), {"rows": [0, 500]}, {"rows": [6, 500]},
         [["rows", [6, 0]], ["rows", [0, 999]]], both={"rows": [3, 503]}),
]


def scenario(kind, way, steps, **more):
    found = {"name": f"{kind.picker}: {way}", "picker": kind.picker, "size": list(kind.size), "options": kind.options, **more}
    return {**found, "steps": steps}


def drag(kind, column, rows, finger=1, frames=10):
    """Slowly by so many rows, with a rest before the finger leaves."""
    way = rows * kind.rows[column]
    return [["down", finger, column, 0], ["glide", finger, column, 0, -way, frames, FRAME], *lift(finger, column, -way)]


def lift(finger, column, place):
    """After a rest, so without speed."""
    return [["wait", 0.2], ["move", finger, column, place], ["up", finger, column, place]]


def two_drags(kind):
    """By two rows of the first and by three of the second column, at the same time."""
    first, second = 2 * kind.rows[0], 3 * kind.rows[1]
    steps = [["down", 1, 0, 0], ["down", 2, 1, 0]]
    for i in range(1, 9):
        steps += [["wait", FRAME], ["move", 1, 0, -first * i / 8], ["move", 2, 1, -second * i / 8]]
    return steps + lift(1, 0, -first) + lift(2, 1, -second)


def fling(column, points, finger=1, frames=5, start=0):
    end = start - points
    return [["down", finger, column, start], ["glide", finger, column, start, end, frames, 0.012], ["up", finger, column, end]]


def rest(expected=None, changes=None, rows=None):
    wanted = dict(expected or {})
    if changes is not None:
        wanted["changes"] = changes
    if rows is not None:
        wanted["rows passed"] = rows
    return [["wait", REST]] + ([["expect", wanted]] if wanted else []) + [["state"]]


def numbers_of(expected):
    """Without the text, which changes do not have."""
    return {name: value for name, value in expected.items() if name != "text"}


def ways_of(kind):
    two_down = kind.two_down
    change = [numbers_of(two_down)]
    last = kind.end or {}
    yield scenario(kind, "a drag by two rows", drag(kind, 0, 2) + rest(two_down, change, 2))
    yield scenario(kind, "a drag there and back is no change",
                   drag(kind, 0, 2)[:-1] + [["wait", 0.1], ["move", 1, 0, 0], ["wait", 0.2], ["move", 1, 0, 0], ["up", 1, 0, 0]]
                   + rest(kind.start, [], 4))
    yield scenario(kind, "a tap on the row below", [["down", 1, 0, kind.rows[0]], ["wait", 0.05], ["up", 1, 0, kind.rows[0]]] + rest())
    yield scenario(kind, "flings to both ends and beyond",
                   fling(0, 90) + rest() + fling(0, 90) + [["wait", 0.1]] + fling(0, 90) + rest() + fling(0, -100, frames=2) + rest()
                   + 4 * (fling(0, -100, frames=2) + [["wait", 0.15]]) + rest() + 6 * (fling(0, 100, frames=2) + [["wait", 0.15]]) + rest())
    yield scenario(kind, "a fling that a finger stops", fling(0, 80) + [["wait", 0.2], ["down", 2, 0, 0], ["wait", 0.3], ["up", 2, 0, 0]] + rest())
    yield scenario(kind, "a fling that the end of the page finishes", fling(0, 80) + [["wait", 0.1], ["finish"]] + rest())
    yield scenario(kind, "a touch that the system takes away", drag(kind, 0, 2)[:-1] + [["cancel", 1]] + rest())
    if kind.both:
        yield scenario(kind, "two fingers on two columns", two_drags(kind) + rest(kind.both))
        yield scenario(kind, "two flings at once", fling(0, 60) + fling(1, -70, finger=2) + rest())
    else:
        yield scenario(kind, "a second finger on the same column",
                       [["down", 1, 0, 0], ["down", 2, 0, 20], ["move", 2, 0, -200], ["up", 2, 0, -200]] + drag(kind, 0, 2)[1:] + rest(two_down, change, 2))
    yield scenario(kind, "notches of the mouse wheel", [["notches", 0, 1], ["wait", 0.1], ["notches", 0, 1]] + rest(two_down, change, 2)
                   + [["notches", 0, -1], ["notches", 0, -1]] + rest(kind.start, [kind_numbers(kind)], 2)
                   + [["notches", 0, -500]] + rest(kind.home) + [["notches", 0, 1000]] + rest(last))
    yield scenario(kind, "strokes on a trackpad", [["points", 0, 2 * kind.rows[0]]] + rest(two_down, change, 2)
                   + [["points", 0, -13], ["points", 0, -11], ["points", 0, -50.5]] + rest())
    yield scenario(kind, "keys", [["focus", 0], ["key", "ArrowDown"], ["wait", 0.05], ["key", "ArrowDown"]] + rest(two_down, change, 2)
                   + [["key", "ArrowRight"], ["key", "ArrowDown"], ["key", "ArrowLeft"], ["key", "ArrowUp"]] + rest()
                   + [["key", "PageDown"]] + rest() + [["key", "PageUp"], ["key", "PageUp"]] + rest())
    yield scenario(kind, "the first and the last row by keys", [["focus", 0], ["key", "Home"]] + rest(kind.home) + [["key", "End"]] + rest(last))
    yield scenario(kind, "a key that is held", [["focus", 0], ["key", "ArrowDown"], ["wait", 0.3]] + 20 * [["key", "ArrowDown", "repeat"], ["wait", 0.03]] + rest())
    text, typed = kind.typed
    yield scenario(kind, "typed", [["focus", 0], ["type", text]] + rest(typed))
    yield scenario(kind, "typed, and no title", [["focus", 0], ["type", "9x7"]] + rest() + [["type", "1"], ["wait", 1.5], ["type", "2"]] + rest())
    settings = []
    for name, value in kind.sets:
        settings += [["set", name, value]] + rest({name: value} if name in SHOWN else None, [], 0)
    yield scenario(kind, "what a program sets is no change", settings + drag(kind, 0, 1) + rest())
    name, value = kind.sets[0]
    yield scenario(kind, "set by a program while it spins", fling(0, 80) + [["wait", 0.15], ["set", name, value]] + rest())
    yield scenario(kind, "right to left", drag(kind, 0, 2) + rest() + [["focus", 0], ["key", "ArrowLeft"], ["key", "ArrowDown"]] + rest()
                   + [["key", "ArrowRight"], ["key", "ArrowDown"], ["type", text]] + rest(), direction="rtl")
    yield scenario(kind, "in German", drag(kind, 0, 2) + rest(numbers_of(two_down)) + [["focus", 0], ["type", text.replace(".", ",")]] + rest(numbers_of(typed) if "icons" not in kind.options else None),
                   language="de")
    yield scenario(kind, "with reduced motion", fling(0, 90) + rest() + drag(kind, 0, -2) + rest() + [["notches", 0, 2]] + rest(), reducedMotion=True)
    for unit in ("imperial", "lb", "st"):
        if ["unit", unit] in kind.sets or unit == "imperial" and kind.picker == "speed":
            yield scenario(kind, f"in {unit}", [["set", "unit", unit], ["wait", 1]] + drag(kind, 0, 2) + rest() + [["notches", 0, 3]] + rest()
                           + [["focus", 0], ["key", "End"]] + rest() + [["key", "Home"]] + rest())


def kind_numbers(kind):
    return numbers_of(kind.start)


def random_scenario(kind, seed):
    chance = random.Random(f"{kind.picker} {seed}")
    columns = 2 if kind.both else 1
    steps = []
    for _ in range(8):
        column = chance.randrange(columns)
        way = chance.randrange(8)
        if way == 0:
            steps += fling(column, chance.choice([-1, 1]) * chance.uniform(10, 140), frames=chance.randint(1, 8), start=chance.choice([0, -50, 50]))
        elif way == 1:
            steps += drag(kind, column, chance.uniform(-4, 4), frames=chance.randint(2, 15))
        elif way == 2:
            steps += [["notches", column, chance.choice([-25, -3, -1, 1, 2, 7, 0.5])]]
        elif way == 3:
            steps += [["points", column, chance.uniform(-150, 150)]]
        elif way == 4:
            steps += [["focus", column]]
            for _ in range(chance.randint(1, 5)):
                steps += [["key", chance.choice(["ArrowUp", "ArrowDown", "ArrowDown", "PageUp", "PageDown", "ArrowRight", "ArrowLeft", "Home"])], ["wait", chance.uniform(0, 0.3)]]
        elif way == 5:
            steps += [["focus", column], ["type", "".join(chance.choice("0123456789.:") for _ in range(chance.randint(1, 4)))]]
        elif way == 6:
            steps += [["set", *chance.choice(kind.sets)]]
        else:
            steps += [["down", 7, column, 60], ["wait", 0.03], ["up", 7, column, 60]]
        steps += [["wait", chance.choice([0, 0.02, 0.2, 0.7])]] if chance.random() < 0.6 else [["wait", REST], ["state"]]
    return scenario(kind, f"at random, {seed}", steps + [["wait", REST], ["state"]])


def recorded_speed():
    """The keys of a recorded session of the demo application that go to its wheel of the speed."""
    recording = FOLDER.parent.parent / "application" / "recordings" / "average-speed.jsonl"
    events = [json.loads(line) for line in recording.read_text(encoding="utf-8").splitlines()]
    keys = [event for event in events if event.get("event") == "key"]
    # A row is opened by Return; the Tab after it goes to the wheel.
    opened = next(i for i, event in enumerate(keys) if event["key"] == "return")
    names = {"up": "ArrowUp", "down": "ArrowDown", "left": "ArrowLeft", "right": "ArrowRight"}
    steps, before = [], None
    for event in keys[opened + 1:]:
        if event["key"] == "tab":
            steps, before = [["focus", 0]], event["time"]
            continue
        steps += [["wait", event["time"] - before]]
        before = event["time"]
        if event["key"] == "character":
            steps += [["type", event["text"]]]
            before += 1 / 60  # A typed character takes a frame.
        else:
            steps += [["key", names[event["key"]]]]
    kind = Kind("speed", {"min": 0, "max": 13.8888889, "value": 12.5 / 3.6}, {}, None, None, None, None)
    return scenario(kind, "as recorded", steps + rest({"text": "14.3 km/h", "value": speed(14.3)}))


def text_of(scenarios):
    """One line a scenario but for its steps, of which a line has some."""
    lines = []
    for each in scenarios:
        head = json.dumps({name: value for name, value in each.items() if name != "steps"}, ensure_ascii=False)
        rows, row = [], ""
        for step in each["steps"]:
            text = json.dumps(step, ensure_ascii=False)
            if row and len(row) + len(text) > 140:
                rows.append(row)
                row = ""
            row += (", " if row else "") + text
        rows.append(row)
        lines.append(head[:-1] + ', "steps": [\n    ' + ",\n    ".join(rows) + "]}")
    return "[\n" + ",\n".join(lines) + "\n]\n"


def main():
    lists = {
        "ways.json": [found for kind in KINDS for found in ways_of(kind)],
        "recorded.json": [recorded_speed()],
        "random.json": [random_scenario(kind, seed) for kind in KINDS for seed in range(1, 5)],
    }
    FOLDER.mkdir(exist_ok=True)
    differing = []
    for name, scenarios in lists.items():
        names = [each["name"] for each in scenarios]
        assert len(set(names)) == len(names), "a name stands twice"
        path, text = FOLDER / name, text_of(scenarios)
        if path.exists() and path.read_text(encoding="utf-8") == text:
            continue
        differing.append(name)
        if "--check" not in sys.argv[1:]:
            path.write_text(text, encoding="utf-8")
    if "--check" in sys.argv[1:] and differing:
        sys.exit("make_lists.py would write others: " + ", ".join(differing))


main()
