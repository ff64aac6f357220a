"""Duration and heart rate."""

from arithmetic import Box, divide, f32, remainder, wrap
from wheel import BasePicker


def hours_of(ms):
    return wrap(divide(ms, 3600000), 32)


def minutes_of(ms):
    return remainder(divide(ms, 60000), 60)


def seconds_of(ms):
    return remainder(divide(ms, 1000), 60)


class Duration(BasePicker):
    """Milliseconds, shown as hh:mm (type 0), hh:mm:ss (1) or mm:ss (2). Any other type shows nothing."""

    def __init__(self):
        super().__init__()
        self.type = 0
        self.hours_step, self.minutes_step, self.seconds_step = 1, 1, 5
        self.set_min(Box("i32", 0))
        self.set_max(Box("i32", 356400000))
        self.set_current(Box("i32", 300000))

    def set_type(self, number):
        if number == self.type:
            return
        self.type = number
        self.wheel.reload()
        self.select_current_value()

    def set_hours_step(self, step):
        self.hours_step = max(step, 1)
        self.wheel.reload()

    def set_minutes_step(self, step):
        self.minutes_step = max(step, 1)
        self.wheel.reload()

    def set_seconds_step(self, step):
        self.seconds_step = max(step, 1)
        self.wheel.reload()

    def pick(self, component, hours, minutes, seconds, otherwise):
        """What belongs to a component in this layout."""
        if self.type in (0, 1):
            return hours if component == 0 else minutes if component == 2 else seconds
        if self.type == 2:
            return minutes if component == 0 else seconds
        return otherwise

    def part(self, box, component):
        ms = box.integer()
        return max(self.pick(component, hours_of(ms), minutes_of(ms), seconds_of(ms), 0), 0)

    def min_part(self, component):
        return self.part(self.min, component)

    def max_part(self, component):
        return self.part(self.max, component)

    def current_part(self, component):
        return self.part(self.current, component)

    def step_of(self, component):
        return self.pick(component, self.hours_step, self.minutes_step, self.seconds_step, 1)

    def on_minimum(self, component):
        return self.current_part(component) == self.min_part(component)

    def on_maximum(self, component):
        return self.current_part(component) == self.max_part(component)

    def number_of_components(self):
        return 5 if self.type == 1 else 3

    def number_of_rows(self, component):
        if component == 0:
            span = self.max_part(0) - self.min_part(0)
            return divide(span, self.step_of(0)) + (1 if self.max_part(2) != 0 else 0)
        if component == 2:
            units = self.max_part(2) if self.on_maximum(0) else 60
            if self.on_minimum(0):
                units -= self.min_part(2)
            rows = divide(units, self.step_of(2))
            return rows + 1 if self.on_maximum(0) and self.type == 1 and self.max_part(4) != 0 else rows
        if component == 4:
            units = self.max_part(4) if self.on_maximum(0) and self.on_maximum(2) else 60
            if self.on_minimum(0) and self.on_minimum(2):
                units -= self.min_part(4)
            return divide(units, self.step_of(4))
        return 1

    def title(self, row, component):
        if component not in (0, 2, 4):
            return None
        number = self.step_of(component) * row
        if component == 0:
            shifted = self.type in (0, 1)
        elif component == 2:
            shifted = self.on_minimum(0)
        else:
            shifted = self.on_minimum(0) and self.on_minimum(2)
        return "%02d" % (number + self.min_part(component) if shifted else number)

    def did_select(self, row, component):
        minimum = self.min.integer()
        row0, row2 = self.wheel.selected(0), self.wheel.selected(2)
        total = 0.0
        if self.type in (0, 1):
            total = f32((row0 * self.step_of(0) + hours_of(minimum)) * 3600)
            minutes = row2 * self.step_of(2) + (minutes_of(minimum) if self.on_minimum(0) else 0)
            total = f32(total + minutes * 60)
            if self.type == 1:
                # Only the minutes are compared here.
                seconds = self.wheel.selected(4) * self.step_of(4)
                total = f32(total + seconds + (seconds_of(minimum) if self.on_minimum(2) else 0))
            elif self.on_minimum(2):
                total = f32(total + seconds_of(minimum))
        elif self.type == 2:
            total = f32((row0 * self.step_of(0) + minutes_of(minimum)) * 60)
            seconds = row2 * self.step_of(2) + (seconds_of(minimum) if self.on_minimum(0) else 0)
            total = f32(total + seconds)
        self.set_current(Box("f32", f32(total * 1000.0)))
        self.inform()
        self.select_current_value()

    def select_current_value(self):
        # The maximum last, so that it is stored where the two are crossed.
        if self.current.integer() < self.min.integer():
            self.current = Box("i64", self.min.integer())
        if self.current.integer() > self.max.integer():
            self.current = Box("i64", self.max.integer())
        ms = self.current.integer()
        if self.type in (0, 1):
            self.wheel.select(max(divide(hours_of(ms) - self.min_part(0), self.step_of(0)), 0), 0)
            minutes = minutes_of(ms) - (self.min_part(2) if self.on_minimum(0) else 0)
            self.wheel.select(max(divide(minutes, self.step_of(2)), 0), 2)
            if self.type == 1:
                # Only the minutes are compared, unlike in the row count.
                seconds = seconds_of(ms) - (self.min_part(4) if self.on_minimum(2) else 0)
                self.wheel.select(max(divide(seconds, self.step_of(4)), 0), 4)
        elif self.type == 2:
            # Divided before the minimum is subtracted, unlike the hours.
            self.wheel.select(max(divide(minutes_of(ms), self.step_of(0)) - self.min_part(0), 0), 0)
            seconds = seconds_of(ms) - (self.min_part(2) if self.on_minimum(0) else 0)
            self.wheel.select(max(divide(seconds, self.step_of(2)), 0), 2)


class HeartRate(BasePicker):
    """Average and maximum side by side, the maximum kept a gap above the average; 0 is no value, the "-" row."""

    def __init__(self):
        super().__init__()
        self.null_row = True
        self.gap = Box("int", 1)
        self.average, self.maximum = Box("int", 0), Box("int", 0)
        self.set_min(Box("i32", 25))
        self.set_max(Box("i32", 230))
        self.set_average(Box("int", 120))
        self.set_maximum(Box("int", 160))
        self.wheel.select(self.average.integer() - self.min.integer(), 0)
        self.wheel.select(self.maximum.integer() - self.min.integer(), 2)

    def set_null_row(self, flag):
        self.null_row = flag

    def set_gap(self, box):
        self.gap = box

    def set_average(self, box):
        self.average = self.settle(box, 120, 0)

    def set_maximum(self, box):
        self.maximum = self.settle(box, 160, 2)

    def settle(self, box, default, component):
        """Shows a rate on its wheel and answers what is stored for it."""
        if box is None:
            box = Box("int", default)
        if self.wheel.rows(0) != 0:
            self.wheel.select(max(box.integer() - self.min.integer(), 0), component)
        return Box("int", 0) if self.null_row and box.integer() == self.min.integer() else box

    def number_of_components(self):
        return 3

    def number_of_rows(self, component):
        rows = divide(self.max.integer() - self.min.integer(), self.step.integer())
        return rows - 1 if component == 0 else rows

    def title(self, row, component):
        if component == 1:
            return None
        return "-" if row == 0 and self.null_row else "%d" % (self.min.integer() + row)

    def select_current_value(self):
        self.wheel.select(divide(self.current.integer(), self.step.integer()), 0)

    def did_select(self, row, component):
        minimum, top = self.min.integer(), self.max.integer()
        if component == 0:
            self.set_average(Box("int", minimum + row))
        elif component == 2:
            self.set_maximum(Box("int", minimum + row))
        else:
            return
        gap, average, maximum = self.gap.integer(), self.average.integer(), self.maximum.integer()
        if component == 0 and maximum < average + gap:
            if average + gap >= top:
                self.set_maximum(Box("int", top - 1))
                self.set_average(Box("int", self.maximum.integer() - gap))
            else:
                self.set_maximum(Box("int", average + gap))
        if component == 2 and average > maximum - gap:
            if maximum - gap < minimum:
                self.set_average(Box("int", minimum))
                if not self.null_row:
                    self.set_maximum(Box("int", self.average.integer() + gap))
            else:
                self.set_average(Box("int", maximum - gap))
        self.told.append((1, self.maximum))
        self.told.append((0, self.average))

    def values(self):
        return [self.average, self.maximum]
