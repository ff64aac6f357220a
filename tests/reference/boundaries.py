"""Scenarios chosen by hand: values at which one rule alone decides, and the few crossed ranges."""

from scenario import Scenario


def chosen(picker, settings, turns=()):
    """Settings, with a state after the last of them and where "state" asks for one, then turns of (component, row)."""
    s = Scenario(picker)
    for setting in settings:
        if setting == "state":
            s.state()
        elif setting == "bounds":
            s.bounds()
        elif setting == "pass":
            s.run_pass()
        else:
            s.set(*setting)
    s.state()
    for component, row in turns:
        s.turn(component, row)
    return s.line()


def bpm():
    # The lower bound is tested in single precision, the row computed in integers: these two are
    # not below 30, the third is.
    for current in (("f64", 29.99999999), ("f64", 29.9999999), ("f64", 29.999)):
        yield chosen("bpm", [("min", "i32", 30), ("current", "i32", 160), ("current",) + current])
    yield chosen("bpm", [("min", "f64", 29.8), ("current", "i32", 160), ("current", "f64", 29.5)])


def distance():
    # Miles whose tenths or hundredths are whole in single precision and a little more in double
    # precision.
    one = ((160.9344, "f64"), (321.8688, "f64"), (643.7376, "f64"), (965.6064, "f64"), (1287.4752, "f64"), (71133, "i32"), (90767, "i32"))
    two = ((80.4672, "f64"), (160.9344, "f64"), (24285, "i32"), (34102, "i32"), (42197, "i32"), (48570, "i32"))
    for fraction, minimums in ((1, one), (2, two)):
        for minimum, kind in minimums:
            for more in (0, 60, 400):
                settings = [("fraction", "number", fraction), ("min", kind, minimum), ("current", "f64", minimum + more)]
                yield chosen("distance", settings, ((2, 0), (fraction + 1, 1)))
    # Kilometres on the first row with the tenths' digit 0 or not, and the hundredths of the
    # minimum.
    for minimum in (0, 1040, 1234, 2070):
        for current in (minimum, minimum + 30, minimum // 1000 * 1000 + 90, minimum // 1000 * 1000 + 590):
            settings = [("metric", "flag", 1), ("fraction", "number", 2), ("min", "i32", minimum), ("current", "i32", current)]
            yield chosen("distance", settings, ((3, 1), (2, 1)))


def duration():
    # A minimum of 1:30:25 at its own minute of another hour, in both layouts with hours.
    for kind in (0, 1):
        for current in (9000000, 9030000, 12600000):
            settings = [("type", "number", kind), ("min", "i32", 5425000), ("max", "i32", 36000000), ("current", "i32", current)]
            for turn in ((0, 0), (0, 1), (2, 0), (2, 30)) + (((4, 0), (4, 3)) if kind else ()):
                yield chosen("duration", settings, (turn,))


def heartrate():
    # Whether a rate is shown is asked of the average's rows, for both: with no row there, the
    # request of before stands.
    yield chosen("heartrate", [("max", "i32", 26), "state", ("maximum", "i32", 100), "state", ("max", "i32", 230)])
    yield chosen("heartrate", [("max", "i32", 27), "state", ("maximum", "i32", 100), "state", ("max", "i32", 230)])
    # Around the top with a gap of 5, and around the bottom.
    for null_row in (0, 1):
        for turn in ((0, 199), (0, 200), (0, 201), (2, 4), (2, 5), (2, 6)):
            settings = [("gap", "i32", 5), ("nullrow", "flag", null_row), ("average", "i32", 100), ("maximum", "i32", 110)]
            yield chosen("heartrate", settings, (turn,))


def height():
    # Every half inch, where rounding decides, and the boundaries of the feet.
    heights = [(inches + 0.5) * 2.54 for inches in range(47, 84)]
    heights += [119.99, 120.0, 121.91, 121.92, 121.93, 152.39, 152.39999999, 152.4, 152.41, 182.87, 182.87999999, 182.88, 182.89]
    heights += [213.35, 213.36, 213.37]
    for cm in heights:
        yield chosen("height", [("height", "real", cm), "pass"], ((2, 1),))
    for cm in (-5.0, 0.5, 120.99, 219.99, 220.0, 221.0):
        yield chosen("height", [("metric", "flag", 1), ("height", "real", cm), "pass"], ((1, 0),))


def pace():
    # Rounded to the whole second, halves away from zero, and carried into the minute.
    for seconds in (119.49, 119.5, 119.51, 3599.49, 3599.5, 179.5, 180.4999):
        yield chosen("pace", [("metric", "flag", 1), ("current", "f64", 1000.0 / seconds)])


def temperature():
    for metric in (0, 1):
        for current in (-0.5, 0.5, -4.9, -5.0, -5.1, 17.7, 17.8):
            settings = [("metric", "flag", metric), ("min", "i32", 0), ("step", "i32", 1), ("min", "i32", -5)]
            yield chosen("temperature", settings + [("current", "f64", current)])


def weight():
    # Compared with the minimum in single precision: the first of these is the minimum, the second
    # lies below it.
    for current in (14.99999999, 14.999):
        yield chosen("weight", [("current", "i32", 80), ("current", "f64", current)])
    # Kilograms whose pounds or stones lie between two floats just below a whole unit or a tenth's
    # boundary.
    between = {1: (0xF6C115 / 2**20, 0x3DC77F / 2**18, 0x7BEBE3 / 2**19, 0xF8919 / 2**16, 0xF94B5B / 2**20),
               2: (0x986833 / 2**19, 0x2D164B / 2**17, 0x5CB6DB / 2**18, 0x2FA09 / 2**13, 0xCDBFDF / 2**19)}
    for unit, kilograms in between.items():
        for kg in kilograms:
            yield chosen("weight", [("unit", "number", unit), ("min", "i32", 0), ("current", "f32", kg)])
    # The end of the pounds.
    for current in (349.67, 349.6, 349.71, 349.72, 349.8):
        yield chosen("weight", [("unit", "number", 1), "bounds", ("current", "f64", current)], ((2, 9),))


BOUNDARIES = {
    "bpm": bpm, "distance": distance, "duration": duration, "heartrate": heartrate, "height": height, "pace": pace,
    "temperature": temperature, "weight": weight,
}


def boundaries(picker):
    if picker in BOUNDARIES:
        yield from BOUNDARIES[picker]()
    yield from crossed(picker)


def crossed(picker):
    """Ranges whose minimum lies above their maximum, where the outcome is settled."""
    if picker == "distance":
        for flag in (0, 1):
            for component, row in ((2, 4), (2, 0), (1, 0)):
                s = Scenario(picker)
                s.set("metric", "flag", flag)
                s.set("max", "i32", 5000)
                s.set("min", "i32", 8000)
                s.state()
                s.turn(component, row)
                yield s.line()
    elif picker == "duration":
        for current in (1800000, 5400000, 9000000):
            s = Scenario(picker)
            s.set("min", "i32", 7200000)
            s.set("max", "i32", 3600000)
            s.set("current", "i32", current)
            s.state()
            yield s.line()
    elif picker == "pace":
        for current in (6.0, 9.5, 3.0):
            s = Scenario(picker)
            s.set("max", "f64", 9.0)
            s.set("min", "f64", 4.0)
            s.set("current", "f64", current)
            s.state()
            yield s.line()
    elif picker == "speed":
        for flag in (0, 1):
            for component, row in ((2, 1), (2, 0), (1, 0)):
                s = Scenario(picker)
                s.set("metric", "flag", flag)
                s.set("max", "f64", 2.0)
                s.set("min", "f64", 3.0)
                s.state()
                s.turn(component, row)
                yield s.line()
    elif picker in ("bpm", "heartrate", "temperature"):
        s = Scenario(picker)
        s.set("max", "i32", 20)
        s.set("min", "i32", 50)
        s.state()
        yield s.line()
