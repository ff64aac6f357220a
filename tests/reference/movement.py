"""Distance, pace and speed."""

import math

from arithmetic import Box, divide, f32, remainder, round_away, to_bigger_float, truncate
from wheel import BasePicker


def meter_to_miles(meters):
    return to_bigger_float(meters * 3.2808399 / 5280.0)


def miles_to_meter(miles):
    return to_bigger_float(miles * 5280.0 / 3.2808399)


class Distance(BasePicker):
    """Metres, shown as whole kilometres or miles and one or two digits. The formatter's flag always equals the picker's."""

    def __init__(self):
        super().__init__()
        self.fraction = 1
        self.set_max(Box("i32", 300000))
        self.set_min(Box("i32", 0))
        self.set_current(Box("f32", 5000.0))

    def set_fraction(self, count):
        if count in (1, 2) and count != self.fraction:
            self.fraction = count
            self.wheel.reload()

    def set_metric(self, flag):
        if flag == self.is_metric:
            return
        self.is_metric = flag
        self.wheel.reload()
        self.select_current_value()

    def set_current(self, box):
        super().set_current(box)
        self.wheel.reload()

    def number_of_components(self):
        return self.fraction + 2

    def on_minimums_unit(self):
        if self.is_metric:
            return truncate(self.current.double() / 1000.0) == truncate(self.min.double() / 1000.0)
        return truncate(meter_to_miles(self.current.double())) == truncate(meter_to_miles(self.min.double()))

    def minimums_digit(self, component):
        """The fraction digit of the minimum at which the tenths (2) or the hundredths (3) start."""
        if self.is_metric:
            return remainder(divide(self.min.integer(), 100 if component == 2 else 10), 10)
        scaled = f32(meter_to_miles(self.min.double()) * (10.0 if component == 2 else 100.0))
        return remainder(math.ceil(scaled), 10)

    def number_of_rows(self, component):
        if component == 0 and self.is_metric:
            return math.ceil((self.max.double() - self.min.double()) / 1000.0)
        if component == 0:
            return truncate(meter_to_miles(float(self.max.integer() - self.min.integer())))
        if component in (2, 3):
            return 10 - self.minimums_digit(component) if self.on_minimums_unit() else 10
        return 1

    def title(self, row, component):
        if component == 0 and self.is_metric:
            return "%d" % (divide(self.min.int32(), 1000) + row)
        if component == 0:
            return "%d" % (truncate(meter_to_miles(self.min.double())) + row)
        if component in (2, 3):
            return "%d" % (self.minimums_digit(component) + row if self.on_minimums_unit() else row)
        return None

    def selected_number(self, component):
        return int(self.title(self.wheel.selected(component), component))

    def did_select(self, row, component):
        components = self.wheel.components()
        whole = self.selected_number(0)
        tenths = self.selected_number(2) * 100.0 if components >= 3 else 0
        hundredths = self.selected_number(3) * 10.0 if components > 3 else 0
        self.check_metric_and_inform(whole * 1000.0 + tenths + hundredths)
        self.select_current_value()

    def check_metric_and_inform(self, value):
        if not self.is_metric:
            value = miles_to_meter(value / 1000.0)
        # The maximum first, so that the minimum wins where the two are crossed.
        if value > self.max.double():
            value = self.max.double()
        if value < self.min.double():
            value = self.min.double()
        self.set_current(Box("f64", value))
        self.inform()

    def select_current_value(self):
        if self.is_metric:
            self.select_metric()
        else:
            self.select_imperial()

    def select_metric(self):
        current, minimum = self.current.double(), self.min.integer()
        row0 = divide(truncate(current / 1000.0), self.step.integer()) - divide(minimum, 1000)
        self.wheel.select(row0, 0)
        digit1 = remainder(truncate(current / 100.0), 10)
        self.wheel.select(digit1 - remainder(divide(minimum, 100), 10) if row0 == 0 else digit1, 2)
        if self.fraction < 2:
            return
        digit2 = remainder(truncate(current / 10.0), 10)
        # The digit, not its row, decides here.
        on_first = row0 == 0 and digit1 == 0
        self.wheel.select(digit2 - remainder(divide(minimum, 10), 10) if on_first else digit2, 3)

    def select_imperial(self):
        miles, min_miles = meter_to_miles(self.current.double()), meter_to_miles(self.min.double())
        self.wheel.select(divide(truncate(miles), self.step.integer()) - truncate(min_miles), 0)
        digit1 = remainder(truncate(miles * 10.0), 10)
        if self.wheel.selected(0) == 0:
            digit1 = max(digit1 - remainder(math.ceil(min_miles * 10.0), 10), 0)
        self.wheel.select(digit1, 2)
        if self.fraction < 2:
            return
        digit2 = remainder(truncate(miles * 100.0), 10)
        if self.wheel.selected(0) == 0 and self.wheel.selected(2) == 0:
            digit2 = max(digit2 - remainder(math.ceil(min_miles * 100.0), 10), 0)
        self.wheel.select(digit2, 3)


METERS_PER_MILE = 1609.344


class Pace(BasePicker):
    """Metres per second, shown as minutes and seconds per kilometre or mile; the minimum is the faster, larger speed."""

    def __init__(self):
        super().__init__()
        self.minutes_step = 1
        self.seconds_step = 5
        self.set_max(Box("f64", 0.2777777777777778))
        self.set_min(Box("f64", 11.11111111111111))
        self.set_current(Box("f64", 10.0))

    def set_minutes_step(self, step):
        self.minutes_step = max(step, 1)
        self.wheel.reload()

    def set_seconds_step(self, step):
        self.seconds_step = max(step, 1)
        self.wheel.reload()

    def set_metric(self, flag):
        if flag == self.is_metric:
            return
        self.is_metric = flag
        self.wheel.reload()
        self.select_current_value()

    def components_of(self, box):
        """(minutes, seconds) of a speed; a negative speed has none and reads as zeros."""
        speed = box.double()
        per_meter = 0.0 if speed == 0 else 1.0 / speed
        if per_meter < 0:
            return 0, 0
        total = round_away(per_meter * (1000.0 if self.is_metric else METERS_PER_MILE))
        return truncate(total / 60.0), remainder(truncate(float(total)), 60)

    def set_current(self, box):
        # Each bound is applied once: where the two are crossed, the bound whose test failed first
        # is stored.
        if box.double() < self.max.double():
            box = self.max
        elif box.double() > self.min.double():
            box = self.min
        super().set_current(box)
        self.wheel.reload()

    def number_of_components(self):
        return 3

    def number_of_rows(self, component):
        minimum, maximum = self.components_of(self.min), self.components_of(self.max)
        if component == 0:
            return divide(maximum[0] - minimum[0], self.minutes_step) + 1
        if component != 2:
            return 1
        minute = self.components_of(self.current)[0]
        if minute == minimum[0]:
            return divide(60 - minimum[1], self.seconds_step)
        if minute == maximum[0]:
            return divide(maximum[1], self.seconds_step) + 1
        return divide(60, self.seconds_step)

    def title(self, row, component):
        minimum = self.components_of(self.min)
        if component == 0:
            number = minimum[0] + self.minutes_step * row
        elif component == 2:
            number = self.seconds_step * row
            if self.components_of(self.current)[0] == minimum[0]:
                number += minimum[1]
        else:
            return None
        return ("0" if number < 10 else "") + "%d" % number

    def select_current_value(self):
        current, minimum = self.components_of(self.current), self.components_of(self.min)
        self.wheel.select(max(divide(current[0] - minimum[0], self.minutes_step), 0), 0)
        seconds = current[1] - minimum[1] if current[0] == minimum[0] else current[1]
        self.wheel.select(max(divide(seconds, self.seconds_step), 0), 2)

    def did_select(self, row, component):
        current, minimum = self.components_of(self.current), self.components_of(self.min)
        # The step multiplies the sum of the first minute and the row.
        total = (minimum[0] + self.wheel.selected(0)) * 60.0 * self.minutes_step
        total += self.wheel.selected(2) * self.seconds_step
        if minimum[0] == current[0]:
            total += minimum[1]
        per_meter = total / (1000.0 if self.is_metric else METERS_PER_MILE)
        self.set_current(Box("f64", 1.0 / per_meter if per_meter != 0 else math.inf))
        self.inform()
        self.select_current_value()


def tenth(x):
    return remainder(round_away(x * 10.0), 10)


class Speed(BasePicker):
    """Metres per second, with copies of the three values in the unit shown; the factors are no exact reciprocals."""

    def __init__(self):
        super().__init__()
        self.min_shown = self.max_shown = self.current_shown = 0.0
        self.set_max(Box("f64", 13.8888889))
        self.set_min(Box("f64", 0.0))
        self.set_current(Box("f64", 2.7777777799999996))

    def shown(self, box):
        return box.double() * (3.6 if self.is_metric else 2.23693629)

    def set_min(self, box):
        self.min_shown = self.shown(box)
        super().set_min(box)

    def set_max(self, box):
        self.max_shown = self.shown(box)
        super().set_max(box)

    def set_current(self, box):
        self.current_shown = self.shown(box)
        super().set_current(box)

    def set_metric(self, flag):
        if flag == self.is_metric:
            return
        self.is_metric = flag
        self.max_shown, self.min_shown = self.shown(self.max), self.shown(self.min)
        self.current_shown = self.shown(self.current)
        self.wheel.reload()
        self.select_current_value()

    def number_of_components(self):
        return 3

    def number_of_rows(self, component):
        if component == 0:
            return truncate(float(math.floor(self.max_shown - self.min_shown)), 64) + 1
        if component != 2:
            return 1
        whole = truncate(self.current_shown, 64)
        if whole == truncate(self.min_shown, 64):
            return 10 - tenth(self.min_shown)
        if whole == truncate(self.max_shown, 64):
            return tenth(self.max_shown) + 1
        return 10

    def title(self, row, component):
        if component == 0:
            return "%d" % (truncate(self.min_shown, 64) + row)
        if component == 2:
            on_minimum = truncate(self.current_shown, 64) == truncate(self.min_shown, 64)
            return "%d" % (tenth(self.min_shown) + row if on_minimum else row)
        return None

    def select_current_value(self):
        row0 = divide(truncate(max(self.current_shown - self.min_shown, 0.0), 64), self.step.integer())
        self.wheel.select(row0, 0)
        row2 = tenth(self.current_shown)
        if row0 == 0:
            # The minimum is divided by ten here, not multiplied.
            row2 -= remainder(round_away(self.min_shown / 10.0), 10)
        self.wheel.select(row2, 2)

    def did_select(self, row, component):
        whole = float(self.title(self.wheel.selected(0), 0))
        tenths = float(self.title(self.wheel.selected(2), 2))
        value = (whole + tenths / 10.0) * (0.277777778 if self.is_metric else 0.44704)
        # The minimum last, so that it wins where the two are crossed.
        if value > self.max.double():
            value = self.max.double()
        if value < self.min.double():
            value = self.min.double()
        self.set_current(Box("f64", value))
        self.inform()
        self.select_current_value()
