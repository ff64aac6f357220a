"""Random ranges, steps, values, unit switches and sequences of turns for the tables."""

from arithmetic import INT32_MAX
from scenario import Scenario

# How many random scenarios each table gets.
COUNTS = {
    "bpm": 150, "calories": 60, "distance": 300, "duration": 300, "heartrate": 220, "height": 200, "pace": 250, "speed": 250,
    "temperature": 200, "weight": 250,
}


def number(r, value):
    """A box type and a value for it; whole numbers come in every type."""
    if value != int(value):
        return r.choice(("f32", "f64")), value
    if abs(value) > INT32_MAX:
        return r.choice(("i64", "f64")), int(value)
    return r.choice(("i32", "i32", "i64", "f32", "f64")), int(value)


def either_order(r, s, low, high):
    """The bounds, in either order."""
    steps = [("min", low), ("max", high)]
    r.shuffle(steps)
    for name, value in steps:
        s.set(name, *value)


def random_row(r, rows):
    """Both ends and their neighbours as often as all the rest."""
    return r.choice((0, min(1, rows - 1), max(rows - 2, 0), rows - 1, r.randrange(rows), r.randrange(rows), r.randrange(rows)))


# Counts up from a minimum.

def bpm_range(r, s):
    low = r.choice((0, 1, 5, 30, -20, -7, 2147483600))
    span = r.randrange(130) if low else r.choice((r.randrange(130), r.randrange(100000)))
    either_order(r, s, number(r, low), number(r, low + span))


def bpm_value(r, s):
    what = r.randrange(4)
    low = s.model.min.integer()
    if what == 0:
        s.set("step", *r.choice((("i32", 0), ("i32", -5), ("f64", 0.5), ("f64", 2.75), ("i32", 3), ("i64", 7), ("i32", 10))))
    elif what == 1:
        s.set("current", *number(r, low + r.randrange(-3, 140)))
    elif what == 2 and low < 1000000:
        s.set("current", *number(r, low + r.randrange(-8, 800) / 8))
    else:
        s.set("current", *number(r, low))


# Distance: minimums on and off the boundaries of kilometres, miles, tenths and hundredths.

DISTANCE_MINIMUMS = (0, 1000, 1234, 1500, 500, 90, 1609, 1610, 2414, 3219, 5000, 8046.72, 1609.344, 1999.5, 12345)


def distance_range(r, s):
    low = r.choice(DISTANCE_MINIMUMS)
    high = low + r.choice((500, 2000, 8000, 20000, 42195, 50000 + r.randrange(1000)))
    either_order(r, s, number(r, low), number(r, high))
    s.set("current", *number(r, low + r.choice((0, 0, r.randrange(2000), r.randrange(int(high - low))))))


def distance_value(r, s):
    low, high = s.model.min.double(), s.model.max.double()
    what = r.randrange(6)
    if what == 0:
        s.set("metric", "flag", r.randrange(2))
    elif what == 1:
        s.set("fraction", "number", r.choice((1, 2, 2, 0, 3, -1)))
        s.set("current", *number(r, low + r.randrange(1500)))
    elif what == 2 and r.randrange(3) == 0:
        s.set("step", *r.choice((("i32", 2), ("i32", 0), ("i64", 3))))
    elif what == 3:
        s.set("current", "f64", low + r.random() * 2500)
    else:
        s.set("current", *number(r, int(low + r.random() * (high - low) * 1.1)))


# Duration: minimums and maximums with minutes and seconds, in every layout.

DURATION_RANGES = ((5425000, 9910000), (5400000, 9900000), (0, 9910000), (5425000, 36000000), (90000, 3599000), (95500, 1510999),
                   (3600000, 7260000), (0, 356400000), (61000, 3541000), (7200000, 7500000), (1800000, 180060000))


def duration_range(r, s):
    low, high = r.choice(DURATION_RANGES)
    if r.randrange(4) == 0:
        low, high = sorted((r.randrange(3600) * 1000, r.randrange(7200, 20000) * 1000))
    either_order(r, s, number(r, low), number(r, high))
    s.set("type", "number", r.choice((0, 1, 1, 2, 2)))
    for unit in ("hours", "minutes", "seconds"):
        if r.randrange(2):
            s.set(unit, "number", r.choice((1, 5, 10, 0, -3, 2, 15) if unit != "hours" else (1, 2, 0)))
    duration_value(r, s)


def duration_value(r, s):
    low, high = s.model.min.integer(), s.model.max.integer()
    what = r.randrange(8)
    if what == 0:
        s.set("type", "number", r.choice((0, 1, 2, 2, 3)))
    elif what == 1:
        s.set(r.choice(("minutes", "seconds")), "number", r.choice((1, 5, 10)))
    elif what == 2:
        s.set("current", *number(r, r.choice((low, high, low - 1, high + 1, low - 61000, high + 61000))))
    elif what == 3:
        s.set("current", *number(r, low + r.randrange(3600000)))
    else:
        s.set("current", *number(r, r.randrange(low, high + 1) // 1000 * 1000))


# Pace: bounds as seconds for a kilometre or a mile.

def speed_of_pace(r, seconds):
    return r.choice((1000.0, 1609.344)) / seconds


def pace_range(r, s):
    fast = r.choice((90, 97, 120, 145, 200, 59, 30))
    slow = fast + r.choice((20, 100, 180, 600, 3000))
    either_order(r, s, ("f64", 1000.0 / fast), ("f64", 1000.0 / slow))
    s.set("current", "f64", 1000.0 / (fast + r.randrange(slow - fast + 1)))
    for unit in ("minutes", "seconds"):
        if r.randrange(2):
            s.set(unit, "number", r.choice((1, 5, 10, 0, -3, 2, 15) if unit == "seconds" else (1, 1, 2, 0, 3)))


def pace_value(r, s):
    what = r.randrange(5)
    if what == 0:
        s.set("metric", "flag", r.randrange(2))
    elif what == 1:
        s.set("current", *number(r, r.randrange(1, 20)))
    elif what == 2:
        s.set(r.choice(("minutes", "seconds")), "number", r.choice((1, 2, 5, 10)))
    else:
        s.set("current", r.choice(("f64", "f64", "f32")), speed_of_pace(r, r.randrange(60, 3000)))


# Speed: minimums with tenths in either unit.

def speed_in(r, tenths):
    return tenths / 10.0 * r.choice((0.277777778, 0.44704))


def speed_range(r, s):
    low = r.choice((0, 5, 10, 50, 55, 62, 99, 100, 148, 151, 204))
    high = low + r.choice((3, 10, 25, 60, 94, 181, 300))
    factor = r.choice((0.277777778, 0.44704))
    either_order(r, s, ("f64", low / 10.0 * factor), ("f64", high / 10.0 * factor))
    s.set("current", "f64", (low + r.randrange(high - low + 1)) / 10.0 * factor)


def speed_value(r, s):
    what = r.randrange(6)
    if what == 0:
        s.set("metric", "flag", r.randrange(2))
    elif what == 1:
        s.set("current", *number(r, r.randrange(0, 20)))
    elif what == 2 and r.randrange(3) == 0:
        s.set("step", *r.choice((("i32", 2), ("f64", 0.5), ("i64", 1))))
    else:
        s.set("current", r.choice(("f64", "f64", "f32")), speed_in(r, r.randrange(400)))


# Heart rate.

def heartrate_range(r, s):
    low = r.choice((25, 20, 40, 60))
    either_order(r, s, (r.choice(("i32", "i64")), low), (r.choice(("i32", "i64")), low + r.choice((20, 60, 130, 200))))
    if r.randrange(3) == 0:
        s.set("step", "i32", r.choice((1, 0, 2)))
    s.set("nullrow", "flag", r.randrange(2))
    s.set("gap", r.choice(("i32", "i64")), r.choice((0, 1, 2, 5, 5, 10, 30)))
    for name in r.sample(("average", "maximum"), 2):
        s.set(name, r.choice(("i32", "i64")), low + r.randrange(-2, 60))


def heartrate_value(r, s):
    low, high = s.model.min.integer(), s.model.max.integer()
    name = r.choice(("average", "maximum"))
    what = r.randrange(5)
    if what == 0:
        s.set(name, "none", None)
    elif what == 1:
        s.set(name, "i32", r.choice((low, low + 1, low - 1, high, high - 1, 0)))
    elif what == 2:
        s.set("nullrow", "flag", r.randrange(2))
    else:
        s.set(name, r.choice(("i32", "i64")), r.randrange(low, high))


# Weight.

def weight_range(r, s):
    if r.randrange(2):
        s.set("selectable", "flag", 1)
    s.set("unit", "number", r.choice((0, 1, 1, 2, 2, 2, 3, 7)))
    if r.randrange(3):
        s.bounds()
    weight_value(r, s)


def weight_value(r, s):
    what = r.randrange(10)
    if what == 0:
        s.set("unit", "number", r.choice((0, 1, 2)))
        if r.randrange(2):
            s.bounds()
    elif what == 1:
        s.set("selectable", "flag", r.randrange(2))
    elif what == 2:
        s.set("min", *number(r, r.choice((0, 10, 15, 40, 72.5))))
    elif what == 3:
        s.set("current", *number(r, r.choice((15, 350, 349.97, 349.9, 14.99, 355, 349.5, 345, 400))))
    else:
        s.set("current", *number(r, r.randrange(1200, 36000) / 100))


# Height.

HEIGHTS = (0, -5, 100, 119.99, 120, 121, 121.92, 121.93, 180, 182, 211.5, 213.36, 213.5, 220, 221, 250, 300)


def height_range(r, s):
    if r.randrange(3):
        s.set("metric", "flag", r.randrange(2))
    height_value(r, s)


def height_value(r, s):
    what = r.randrange(6)
    if what == 0:
        s.set("metric", "flag", r.randrange(2))
    elif what == 1:
        s.set("height", "real", r.choice(HEIGHTS))
    else:
        s.set("height", "real", r.choice((r.randrange(120, 221), r.randrange(1150, 2250) / 10.0)))
    if r.randrange(2):
        s.run_pass()


# Temperature: whole bounds, since it is as whole numbers that the picker reads them.

def temperature_range(r, s):
    low = r.randrange(-60, 30)
    either_order(r, s, (r.choice(("i32", "i64")), low), (r.choice(("i32", "i64")), low + r.randrange(0, 90)))
    s.set("step", *r.choice((("i32", 1), ("i32", 2), ("i64", 3), ("i32", 5), ("i32", 10), ("i32", 0), ("f64", 0.5))))
    temperature_value(r, s)


def temperature_value(r, s):
    if r.randrange(3) == 0:
        s.set("metric", "flag", r.randrange(2))
    else:
        s.set("current", *number(r, s.model.min.integer() + r.choice((r.randrange(-10, 90), r.randrange(-80, 800) / 8))))


RANGES = {
    "bpm": bpm_range, "calories": bpm_range, "distance": distance_range, "duration": duration_range, "heartrate": heartrate_range,
    "height": height_range, "pace": pace_range, "speed": speed_range, "temperature": temperature_range, "weight": weight_range,
}
VALUES = {
    "bpm": bpm_value, "calories": bpm_value, "distance": distance_value, "duration": duration_value, "heartrate": heartrate_value,
    "height": height_value, "pace": pace_value, "speed": speed_value, "temperature": temperature_value, "weight": weight_value,
}


def combination(picker, r):
    """Settings, then up to three turns, some of them after another setting."""
    s = Scenario(picker)
    switches = picker in ("distance", "pace", "speed", "temperature")
    if switches and r.randrange(2):
        s.set("metric", "flag", 1)
    if picker == "distance" and r.randrange(2):
        s.set("fraction", "number", 2)
    if r.randrange(8):
        RANGES[picker](r, s)
    if r.randrange(2):
        VALUES[picker](r, s)
    if switches and r.randrange(5) == 0:
        s.set("metric", "flag", r.randrange(2))
    s.state()
    for _ in range(r.choice((1, 2, 3, 3))):
        if r.randrange(4) == 0:
            VALUES[picker](r, s)
        turnable = [c for c in range(s.model.wheel.components()) if s.rows_of(c) > 0]
        # The columns that show nothing are turned rarely.
        telling = [c for c in turnable if s.rows_of(c) > 1 and s.model.title(0, c) is not None]
        if not turnable:
            break
        component = r.choice(telling if telling and r.randrange(12) else turnable)
        s.turn(component, random_row(r, s.rows_of(component)))
    if picker == "height" and r.randrange(2):
        s.run_pass()
        s.state()
    return s.line()
