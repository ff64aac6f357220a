"""One line of a table: what is done to a picker, and what the model answers."""

from arithmetic import Box
from pickers import PICKERS
from wheel import Wheel

# The setter of each property, by its name in the tables.
SETTERS = {
    "min": "set_min", "max": "set_max", "step": "set_step", "current": "set_current",
    "metric": "set_metric", "fraction": "set_fraction", "type": "set_type",
    "hours": "set_hours_step", "minutes": "set_minutes_step", "seconds": "set_seconds_step",
    "nullrow": "set_null_row", "gap": "set_gap", "average": "set_average", "maximum": "set_maximum",
    "unit": "set_unit", "selectable": "set_selectable", "height": "set_height",
}


def exact(x):
    """A C99 hex float without a radix character: a whole mantissa and a power of two."""
    if x == 0:
        return "0x0p0"
    mantissa, denominator = abs(x).as_integer_ratio()
    power = 1 - denominator.bit_length()
    while mantissa % 2 == 0:
        mantissa //= 2
        power += 1
    return f"{'-' if x < 0 else ''}0x{mantissa:x}p{power}"


def boxed(box):
    return f"{box.kind} {exact(box.value) if box.is_float() else box.value}"


class Scenario:
    def __init__(self, picker):
        self.model = PICKERS[picker]()
        self.steps = []

    def set(self, name, kind, value):
        setter = getattr(self.model, SETTERS[name])
        if kind in ("i32", "i64", "f32", "f64"):
            box = Box(kind, value)
            setter(box)
            self.steps.append(f"set {name} {boxed(box)}")
        elif kind == "none":
            setter(None)
            self.steps.append(f"set {name} none")
        elif kind == "flag":
            setter(bool(value))
            self.steps.append(f"set {name} flag {int(value)}")
        elif kind == "real":
            setter(float(value))
            self.steps.append(f"set {name} real {exact(float(value))}")
        else:
            setter(value)
            self.steps.append(f"set {name} number {value}")

    def bounds(self):
        self.model.update_min_max()
        self.steps.append("bounds")

    def run_pass(self):
        self.model.run_pass()
        self.steps.append("pass")

    def turn(self, component, row):
        self.model.turn(row, component)
        self.steps.append(f"turn {component} {row}")
        self.state()

    def state(self):
        """What the delegate was told since the state before, and all that the wheel shows now."""
        told = [(component, boxed(box)) for component, box in self.model.told]
        self.steps += [f"told {component} {box}" for component, box in told]
        self.model.told.clear()
        wheel = self.model.wheel
        components = range(wheel.components())
        rows = [wheel.rows(c) for c in components]
        selected = [wheel.selected(c) for c in components]
        titles = []
        for c in components:
            if rows[c] == 0 or selected[c] is Wheel.UNKNOWN:
                titles.append(".")
            else:
                title = self.model.title(selected[c], c)
                titles.append("~" if title is None else title.replace(" ", "_"))
        self.steps.append("rows " + " ".join(map(str, rows)))
        self.steps.append("at " + " ".join("?" if row is Wheel.UNKNOWN else str(row) for row in selected))
        self.steps.append("show " + " ".join(titles))
        values = [boxed(box) for box in self.model.values()]
        # Heart rate tells the maximum first and stores the average first.
        as_told = values == [box for _, box in reversed(told)]
        self.steps.append("is told" if as_told else "is " + " ".join(values))

    def rows_of(self, component):
        return self.model.wheel.rows(component)

    def line(self):
        return "|".join(self.steps)
