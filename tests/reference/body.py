"""Weight, height and temperature."""

import math

from arithmetic import (Box, celsius_to_fahrenheit, divide, f32, fahrenheit_to_celsius, kg_to_lb, kg_to_st, lb_to_kg,
                        round_away, st_to_kg, truncate)
from wheel import BasePicker, Wheel


class Weight(BasePicker):
    """Kilograms, shown in kilograms (unit 0), pounds (1) or decimal stones (2 and any other number)."""

    def __init__(self):
        super().__init__()
        self.unit = 0
        self.selectable = False
        self.update_min_max()

    def set_unit(self, unit):
        self.unit = unit
        self.wheel.reload()

    def set_selectable(self, flag):
        self.selectable = flag
        self.wheel.reload()

    def update_min_max(self):
        if self.unit == 0:
            self.set_min(Box("i32", 15))
            self.set_max(Box("i32", 350))
        elif self.unit == 1:
            self.set_min(Box("f32", lb_to_kg(34.0)))
            self.set_max(Box("f32", lb_to_kg(771.0)))
        elif self.unit == 2:
            self.set_min(Box("f32", st_to_kg(3.0)))
            self.set_max(Box("f32", st_to_kg(55.0)))

    def first(self):
        return {0: 15, 1: 34}.get(self.unit, 3)

    def number_of_components(self):
        return 4 if self.selectable else 3

    def number_of_rows(self, component):
        if component == 0:
            return {0: 335, 1: 737}.get(self.unit, 52)
        return {1: 1, 2: 10}.get(component, 3)

    def title(self, row, component):
        if component == 0:
            return "%d" % (row + self.first())
        if component == 2:
            return "%d" % row
        if component == 3:
            return "  " + {1: "lb", 2: "st"}.get(row, "kg")
        return None

    def select_current_value(self):
        current = self.current.single()
        if current < self.min.single():
            return
        if self.unit == 0:
            shown = current
        elif self.unit == 1:
            shown = kg_to_lb(current)
            if shown > 771.0:
                # Only pounds are clamped to the wheel's range.
                self.set_current(Box("f32", lb_to_kg(f32(770.9))))
                shown = f32(770.9)
        else:
            shown = kg_to_st(current)
        whole = math.floor(shown)
        self.wheel.select(whole - self.first(), 0)
        self.wheel.select(round_away(f32(f32(shown - whole) * 10.0)), 2)
        if self.selectable and self.unit in (0, 1, 2):
            self.wheel.select(self.unit, 3)

    def did_select(self, row, component):
        if component == 0:
            self.store(row + self.first() + self.wheel.selected(2) / 10.0)
        elif component == 2:
            self.store(self.wheel.selected(0) + self.first() + row / 10.0)
        elif component == 3:
            self.set_unit(row if row in (1, 2) else 0)
            self.select_current_value()
        self.inform()

    def store(self, shown):
        if self.unit == 0:
            self.set_current(Box("f64", shown))
        elif self.unit == 1:
            self.set_current(Box("f32", lb_to_kg(f32(shown))))
        else:
            self.set_current(Box("f32", st_to_kg(f32(shown))))


class Height:
    """Centimetres, or feet and inches, with the unit as a column of the wheel. The unit's row is selected one pass later."""

    def __init__(self):
        self.is_metric = False
        self.height = 0.0
        self.told = []  # (metric, box)
        self.queued = 0
        self.wheel = Wheel(self)

    def set_metric(self, flag):
        self.is_metric = flag
        self.reload()

    def set_height(self, cm):
        self.height = cm
        self.reload()

    def reload(self):
        self.calculate_picker_values()
        self.wheel.reload()
        self.queued += 1

    def run_pass(self):
        for _ in range(self.queued):
            if self.is_metric:
                self.wheel.select(0, 1)
            else:
                self.wheel.select(1, 2)
        self.queued = 0

    def number_of_components(self):
        return 2 if self.is_metric else 3

    def number_of_rows(self, component):
        if component == 0:
            return 101 if self.is_metric else 3
        return 12 if component == 1 and not self.is_metric else 2

    def title(self, row, component):
        if component == 0:
            return "%d" % (row + 120) if self.is_metric else "%d'" % (row + 4)
        if component == 1 and not self.is_metric:
            return '%d"' % row
        return "cm" if row == 0 else "ft"

    def calculate_picker_values(self):
        if self.is_metric:
            self.wheel.select(truncate(self.height - 120.0, 64) if self.height > 0.0 else 60, 0)
            return
        if self.height < 120.0:
            feet_row, inch_row = 1, 10
        else:
            feet = math.floor(self.height * 0.032808399)
            if feet < 4:
                feet_row, inch_row = 0, 0
            elif feet <= 6:
                feet_row, inch_row = feet - 4, round_away(self.height * 0.393700787 - feet * 12)
            else:
                feet_row, inch_row = 2, 11
        self.wheel.select(feet_row, 0)
        self.wheel.select(inch_row, 1)

    def recalculate_height(self):
        if self.is_metric:
            cm = float(self.wheel.selected(0) + 120)
        else:
            feet = f32((self.wheel.selected(0) + 4) * f32(30.48))
            cm = f32(feet + f32(self.wheel.selected(1) * f32(2.54)))
        self.set_height(cm)
        self.told.append((1 if self.is_metric else 0, Box("f64", self.height)))

    def turn(self, row, component):
        self.wheel.select(row, component)
        if component == (1 if self.is_metric else 2):
            self.set_metric(row == 0)
            self.calculate_picker_values()
        self.recalculate_height()

    def values(self):
        return [Box("f64", self.height)]


class Temperature(BasePicker):
    """Degrees Celsius; the Fahrenheit rows start at the minimum's Fahrenheit value and are a step of degrees Fahrenheit apart."""

    def __init__(self):
        super().__init__()
        self.set_min(Box("i32", -20))
        self.set_max(Box("i32", 60))
        self.set_step(Box("i32", 5))
        self.set_current(Box("f32", 20.0))

    def set_metric(self, flag):
        if flag == self.is_metric:
            return
        self.is_metric = flag
        self.wheel.reload()
        self.select_current_value()

    def min_fahrenheit(self):
        return celsius_to_fahrenheit(f32(self.min.integer()))

    def number_of_rows(self, component):
        if self.is_metric:
            return super().number_of_rows(component)
        span = f32(celsius_to_fahrenheit(f32(self.max.integer())) - self.min_fahrenheit())
        return divide(truncate(span, 64), self.step.integer())

    def title(self, row, component):
        if self.is_metric:
            return super().title(row, component)
        return "%d" % truncate(f32(self.min_fahrenheit() + f32(self.step.integer() * row)))

    def select_current_value(self):
        if self.is_metric:
            degrees = self.current.integer() - self.min.integer()
        else:
            degrees = truncate(f32(celsius_to_fahrenheit(self.current.single()) - self.min_fahrenheit()), 64)
        self.wheel.select(divide(degrees, self.step.integer()), 0)

    def did_select(self, row, component):
        offset = self.step.integer() * row
        if self.is_metric:
            value = f32(self.min.integer() + offset)
        else:
            value = fahrenheit_to_celsius(f32(self.min_fahrenheit() + f32(offset)))
        self.set_current(Box("f32", value))
        self.inform()
