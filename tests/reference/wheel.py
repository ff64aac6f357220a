"""The wheel as far as a picker can see it, the generic picker, and the two pickers that only choose a range."""

from arithmetic import Box, divide, wrap


class Wheel:
    """Remembers for each component the row last requested, exactly as given, and answers it held to the rows there are."""

    # The memory of a component that went away and came back: no rule says whether it lasted.
    UNKNOWN = None

    def __init__(self, source):
        self.source = source
        self.requests = {}

    def components(self):
        count = self.source.number_of_components()
        for component in self.requests:
            if component >= count:
                self.requests[component] = Wheel.UNKNOWN
        return count

    def rows(self, component):
        return max(self.source.number_of_rows(component), 0)

    def select(self, row, component):
        if 0 <= component < self.components():
            self.requests[component] = row

    def selected(self, component):
        if not 0 <= component < self.components():
            return -1
        if self.rows(component) == 0:
            return 0
        row = self.requests.get(component, 0)
        return row if row is Wheel.UNKNOWN else max(0, min(row, self.rows(component) - 1))

    def reload(self):
        self.components()


class BasePicker:
    """One column of integers: minimum, minimum + step, …; the maximum itself has no row."""

    def __init__(self):
        self.is_metric = False
        self.min = Box("i32", 0)
        self.max = Box("i32", 100)
        self.step = Box("i32", 1)
        self.current = Box("i32", 0)
        self.told = []  # (component, box), in the order told
        self.wheel = Wheel(self)

    # What an application sets.

    def set_min(self, box):
        self.min = box
        self.wheel.reload()
        self.select_current_value()

    def set_max(self, box):
        self.max = box
        self.wheel.reload()
        self.select_current_value()

    def set_step(self, box):
        self.step = box if box.integer() >= 1 else Box("i32", 1)
        self.wheel.reload()
        self.select_current_value()

    def set_current(self, box):
        self.current = box
        self.select_current_value()

    def set_metric(self, flag):
        self.is_metric = flag

    # What the wheel asks.

    def number_of_components(self):
        return 1

    def number_of_rows(self, component):
        return divide(self.max.integer() - self.min.integer(), self.step.integer())

    def title(self, row, component):
        return "%d" % wrap(self.min.integer() + self.step.integer() * row, 32)

    # What moves.

    def select_current_value(self):
        if self.current.single() < self.min.single():
            return
        self.wheel.select(divide(self.current.integer() - self.min.integer(), self.step.integer()), 0)

    def turn(self, row, component):
        """The user turns a column: the row becomes the requested one, then the picker hears of it."""
        self.wheel.select(row, component)
        self.did_select(row, component)

    def did_select(self, row, component):
        self.current = Box("i64", self.min.integer() + self.step.integer() * row)
        self.inform()

    def inform(self):
        self.told.append((0, self.current))

    # What a table states.

    def values(self):
        return [self.current]


class Bpm(BasePicker):
    def __init__(self):
        super().__init__()
        self.set_min(Box("i32", 0))
        self.set_max(Box("i32", 240))
        self.set_step(Box("i32", 10))
        self.set_current(Box("i32", 160))


class Calories(BasePicker):
    def __init__(self):
        super().__init__()
        self.set_min(Box("i32", 0))
        self.set_max(Box("i32", 100000))
        self.set_step(Box("i32", 10))
        self.set_current(Box("i32", 0))
