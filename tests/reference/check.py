"""Checks the models against numbers worked by hand. Run it on its own: `python3 check.py`."""

import sys

from arithmetic import (Box, celsius_to_fahrenheit, divide, f32, fahrenheit_to_celsius, kg_to_lb, lb_to_kg, next_float_up, remainder,
                        round_away, st_to_kg, to_bigger_float, truncate, wrap)
from body import Height, Temperature, Weight
from movement import Distance, Pace, Speed, meter_to_miles, miles_to_meter
from timing import Duration, HeartRate
from wheel import BasePicker, Bpm, Calories

checks = 0
failures = 0


def same(actual, expected, what=""):
    global checks, failures
    checks += 1
    if actual != expected:
        failures += 1
        frame = sys._getframe(1)
        print(f"check.py:{frame.f_lineno}: {what or 'value'} is {actual!r}, expected {expected!r}")


def near(actual, expected, tolerance):
    same(abs(actual - expected) <= tolerance, True, f"{actual!r} near {expected!r}")


def titles(picker, component):
    return [picker.title(row, component) for row in range(picker.wheel.rows(component))]


def rows(picker):
    return [picker.wheel.rows(c) for c in range(picker.wheel.components())]


def at(picker):
    return [picker.wheel.selected(c) for c in range(picker.wheel.components())]


def shown(picker):
    return [picker.title(row, c) for c, row in enumerate(at(picker))]


def told(picker):
    notices = [(component, box.kind, box.value) for component, box in picker.told]
    picker.told.clear()
    return notices


def i32(n):
    return Box("i32", n)


def f64(x):
    return Box("f64", x)


def check_arithmetic():
    same(f32(16777217.0), 16777216.0)
    same(next_float_up(1.0), 1.00000011920928955078125)
    same(next_float_up(-1.0), -0.999999940395355224609375)
    same(next_float_up(0.0), 2.0**-149)
    same(to_bigger_float(1.0), 1.0)
    same(to_bigger_float(1.0 + 2.0**-40), 1.0 + 2.0**-23)
    same(to_bigger_float(1.0 - 2.0**-40), 1.0)
    same(to_bigger_float(float("nan")) != to_bigger_float(float("nan")), True)
    same(divide(-7, 2), -3)
    same(divide(7, -2), -3)
    same(divide(7, 0), 0)
    same(remainder(-7, 5), -2)
    same([round_away(x) for x in (0.5, -0.5, 0.49999999999999994, 2.5, -2.4, 3.0)], [1, -1, 0, 3, -2, 3])
    same(wrap(2**31, 32), -(2**31))
    same([truncate(3e10), truncate(-3e10), truncate(-1.9)], [2147483647, -2147483648, -1])
    same(Box("f32", 7.9).integer(), 7)
    near(kg_to_lb(lb_to_kg(f32(770.9))), 770.9, 1e-4)
    same(celsius_to_fahrenheit(20.0), 68.0)
    same(celsius_to_fahrenheit(-20.0), -4.0)
    same(fahrenheit_to_celsius(-4.0), -20.0)
    same(fahrenheit_to_celsius(68.0), 20.0)
    near(fahrenheit_to_celsius(66.0), 18.89, 0.005)
    near(fahrenheit_to_celsius(1.0), -17.22, 0.005)
    same(st_to_kg(1.0) >= 14 * 0.45359237, True)


def check_base():
    p = BasePicker()
    same(rows(p), [100])
    same(titles(p, 0), [str(n) for n in range(100)])
    p.turn(37, 0)
    same(told(p), [(0, "i64", 37)])
    p = BasePicker()
    p.set_max(i32(240))
    p.set_step(i32(10))
    p.set_current(i32(160))
    same((rows(p), at(p), p.title(23, 0)), ([24], [16], "230"))
    p = BasePicker()
    p.set_max(i32(25))
    p.set_step(i32(10))
    same(titles(p, 0), ["0", "10"])
    p.set_max(i32(0))
    same((rows(p), p.title(-1, 0)), ([0], "-10"))
    for step in (i32(0), i32(-5), f64(0.5)):
        p.set_step(step)
        same((p.step.kind, p.step.value), ("i32", 1))
    p = BasePicker()
    p.set_current(i32(40))
    p.set_current(i32(-1))
    same((at(p), p.current.value, told(p)), ([40], -1, []))
    p.set_current(f64(7.9))
    same(at(p), [7])
    p.set_current(i32(500))
    same((p.wheel.requests[0], at(p)), (500, [99]))
    p.set_max(i32(600))
    same(at(p), [500])
    p = BasePicker()
    p.set_min(i32(2147483647))
    same(p.title(1, 0), "-2147483648")

    p = Bpm()
    same((rows(p), at(p), p.title(0, 0), p.title(1, 0), p.title(23, 0)), ([24], [16], "0", "10", "230"))
    p.turn(23, 0)
    same(told(p), [(0, "i64", 230)])
    p = Calories()
    same((rows(p), at(p), p.title(9999, 0)), ([10000], [0], "99990"))
    p.turn(12, 0)
    same(told(p), [(0, "i64", 120)])


def check_distance():
    p = Distance()
    same(rows(p), [186, 1, 10])  # 0 to 185 miles
    same(p.title(185, 0), "185")
    p.set_metric(True)
    same((rows(p), at(p), p.title(299, 0)), ([300, 1, 10], [5, 0, 0], "299"))
    p.set_fraction(0)
    p.set_fraction(3)
    same(p.wheel.components(), 3)
    p.set_fraction(2)
    same(p.wheel.components(), 4)

    p = Distance()
    p.set_metric(True)
    p.set_min(i32(1500))
    p.set_current(i32(1700))
    same((rows(p)[2], titles(p, 2), at(p)[2]), (5, ["5", "6", "7", "8", "9"], 2))
    p.set_current(i32(2300))
    same(titles(p, 2), [str(n) for n in range(10)])

    p = Distance()
    p.set_metric(True)
    p.set_fraction(2)
    p.set_current(i32(1230))
    same(shown(p), ["1", None, "2", "3"])
    p.turn(3, 3)
    same(told(p), [(0, "f64", 1230.0)])
    p = Distance()
    p.set_fraction(2)
    p.set_current(f64(miles_to_meter(1.23)))
    same(shown(p), ["1", None, "2", "3"])
    p.turn(3, 3)
    component, kind, value = told(p)[0]
    same((component, kind, value), (0, "f64", miles_to_meter(1.23)))
    near(value, 1979.49, 0.01)
    same(meter_to_miles(miles_to_meter(1.0)) >= 1.0, True)

    p = Distance()
    p.set_metric(True)
    p.set_metric(False)
    same((shown(p), at(p), p.current.value, p.current.kind), (["3", None, "1"], [3, 0, 1], 5000.0, "f32"))
    p = Distance()
    p.set_min(i32(1000))
    p.set_current(i32(1200))
    same(titles(p, 2), ["7", "8", "9"])

    # Crossed bounds: the minimum wins.
    p = Distance()
    p.set_metric(True)
    p.set_max(i32(5000))
    p.set_min(i32(8000))
    p.turn(4, 2)
    same(told(p), [(0, "f64", 8000.0)])


def check_duration():
    p = Duration()
    same((rows(p), at(p)), ([99, 1, 60], [0, 0, 5]))
    same((titles(p, 0)[0], titles(p, 0)[98]), ("00", "98"))
    p.set_type(1)
    same((rows(p), titles(p, 4)[:3], titles(p, 4)[11]), ([99, 1, 60, 1, 12], ["00", "05", "10"], "55"))
    p = Duration()
    p.set_type(2)
    same(rows(p)[0], 0)
    p.set_max(i32(3599000))
    same(rows(p)[0], 60)

    p = Duration()
    p.set_type(2)
    p.set_min(i32(90000))
    p.set_max(i32(3599000))
    p.set_current(i32(90000))
    same((titles(p, 2), at(p)), (["30", "35", "40", "45", "50", "55"], [0, 0, 0]))
    same((p.title(0, 0), rows(p)[0]), ("00", 59))

    p = Duration()
    p.set_max(i32(7200000))
    p.set_current(i32(9000000))
    same((p.current.kind, p.current.value, p.wheel.requests[0], told(p)), ("i64", 7200000, 2, []))
    for step in (0, -3):
        p.set_seconds_step(step)
        same(p.seconds_step, 1)

    # 50:00:05 is no float: a float of that size counts in sixteens, and the tie goes to 180004992,
    # which reads 50:00:04.
    p = Duration()
    p.set_type(1)
    p.set_current(i32(180000000))
    p.turn(1, 4)
    same((told(p), at(p)), ([(0, "f32", 180004992.0)], [50, 0, 0, 0, 0]))

    # A maximum with minutes keeps its own hour, and stops one minute before itself: 2:45 offers
    # 2:00 to 2:44.
    p = Duration()
    p.set_max(i32(9900000))
    p.set_current(i32(7200000))
    same(rows(p), [3, 1, 45])
    # With seconds at the end of the maximum, its own minute is offered too.
    p = Duration()
    p.set_type(1)
    p.set_max(i32(9910000))
    p.set_current(i32(9900000))
    same(rows(p), [3, 1, 46, 1, 2])

    # The minimum's seconds are carried into hh:mm when the minute matches: 1:30:25, turned to hour
    # 2.
    p = Duration()
    p.set_min(i32(5425000))
    p.set_max(i32(36000000))
    p.set_current(i32(5425000))
    same((at(p), shown(p)), ([0, 0, 0], ["01", None, "30"]))
    p.turn(1, 0)
    same(told(p), [(0, "f32", 9025000.0)])
    # Crossed bounds: the maximum stays.
    p = Duration()
    p.set_min(i32(7200000))
    p.set_max(i32(3600000))
    same((p.current.kind, p.current.value), ("i64", 3600000))


def check_pace():
    p = Pace()
    same((p.components_of(p.min), p.components_of(p.max)), ((2, 25), (96, 34)))
    same((rows(p)[0], p.title(0, 0), p.title(94, 0)), (95, "02", "96"))
    same(p.components_of(f64(0.0)), (0, 0))
    same(p.components_of(f64(-1.0)), (0, 0))
    p.set_metric(True)
    same((p.components_of(p.min), p.components_of(p.max)), ((1, 30), (60, 0)))
    same((rows(p)[0], p.title(0, 0), p.title(59, 0)), (60, "01", "60"))
    p.set_current(f64(1000 / 89.5))
    same(p.current is p.min, True)
    p.set_current(f64(10.0))
    # 1:40 is on the first minute.
    same((shown(p), titles(p, 2)), (["01", None, "40"], ["30", "35", "40", "45", "50", "55"]))
    p.set_current(f64(1000 / 160))
    same((shown(p), rows(p)[2], titles(p, 2)[0], titles(p, 2)[11]), (["02", None, "40"], 12, "00", "55"))
    p.set_current(f64(0.2777777777777778))
    same((shown(p), rows(p)[2]), (["60", None, "00"], 1))
    p.set_current(f64(0.1))
    same((p.current is p.max, p.current.value), (True, 0.2777777777777778))
    p.set_current(f64(11.2))
    same((p.current is p.min, p.current.value), (True, 11.11111111111111))
    p.set_current(f64(11.11111111111111))
    same((p.current is p.min, p.current.value), (False, 11.11111111111111))
    p.set_seconds_step(0)
    p.set_current(f64(1000 / 160))
    same(rows(p)[2], 60)

    p = Pace()
    p.set_metric(True)
    same(p.components_of(f64(1000 / 3599.6)), (60, 0))
    same(p.components_of(f64(1000 / 89.5)), (1, 30))
    # A total of no seconds is infinitely fast.
    p = Pace()
    p.set_metric(True)
    p.set_min(f64(1000 / 30.0))
    p.set_current(f64(1000 / 90.0))
    p.turn(0, 2)
    p.turn(0, 0)
    same(told(p), [(0, "f64", 1.0 / (60 / 1000.0)), (0, "f64", 1000 / 30.0)])
    # The minutes' step multiplies the first minute as well: (1 + 1) × 60 × 2 is 4:00.
    p = Pace()
    p.set_metric(True)
    p.set_minutes_step(2)
    p.set_current(f64(1000 / 120.0))
    p.turn(1, 0)
    same(told(p), [(0, "f64", 1.0 / (240 / 1000.0))])
    # Crossed bounds: the one whose test failed first.
    p = Pace()
    p.set_max(f64(9.0))
    p.set_min(f64(4.0))
    p.set_current(f64(6.0))
    same(p.current.value, 9.0)
    p.set_current(f64(9.5))
    same(p.current.value, 4.0)


def check_speed():
    p = Speed()
    same(p.max_shown, 31.06855960818818)
    same((rows(p)[0], p.title(0, 0), p.title(31, 0)), (32, "0", "31"))
    p.set_current(f64(13.8888889))
    same(rows(p)[2], 2)
    p = Speed()
    p.set_metric(True)
    same((rows(p)[0], p.title(50, 0), shown(p), rows(p)[2]), (51, "50", ["10", None, "0"], 10))
    p.set_current(f64(13.8888889))
    same((shown(p), rows(p)[2]), (["50", None, "0"], 1))
    p = Speed()
    p.set_metric(True)
    p.turn(5, 0)
    same((told(p), shown(p)), ([(0, "f64", 5.0 * 0.277777778)], ["5", None, "0"]))
    near(p.current_shown, 5.000000004, 1e-12)
    # A whole number of miles with tenth 0 comes back one lower.
    p = Speed()
    p.set_current(f64(4.3 * 0.44704))
    p.turn(0, 2)
    p = Speed()
    p.set_current(f64(5.5 * 0.44704))
    same(shown(p)[0], "5")
    p.turn(0, 2)
    same((told(p), shown(p)), ([(0, "f64", 2.2352)], ["4", None, "0"]))
    near(p.current_shown, 4.999999995, 1e-9)
    p = Speed()
    p.set_current(f64(13.8888889))
    p.turn(31, 0)
    p.turn(1, 2)
    same(told(p)[-1], (0, "f64", 13.8888889))
    p = Speed()
    p.set_metric(True)
    p.set_min(f64(5.5 * 0.277777778))
    p.set_current(f64(6.2 * 0.277777778))
    same((p.wheel.requests[0], p.wheel.requests[2], p.title(0, 0)), (0, 1, "5"))
    p = Speed()
    before = (p.min.value, p.max.value, p.current.value)
    p.set_metric(True)
    p.set_metric(False)
    same((p.min.value, p.max.value, p.current.value), before)
    # Crossed bounds: the minimum wins.
    p = Speed()
    p.set_metric(True)
    p.set_max(f64(2.0))
    p.set_min(f64(3.0))
    p.turn(1, 2)
    same(told(p), [(0, "f64", 3.0)])


def check_heart_rate():
    p = HeartRate()
    same((rows(p), at(p)), ([204, 205, 205], [95, 0, 135]))
    same((titles(p, 0)[:2], titles(p, 0)[-1]), (["-", "26"], "228"))
    same((titles(p, 2)[:2], titles(p, 2)[-1]), (["-", "26"], "229"))
    p.turn(0, 0)
    same(told(p), [(1, "int", 160), (0, "int", 0)])
    p.turn(0, 2)
    same(told(p), [(1, "int", 0), (0, "int", 0)])
    p = HeartRate()
    p.set_maximum(Box("int", 140))
    p.turn(125, 0)
    same((told(p), at(p)), ([(1, "int", 151), (0, "int", 150)], [125, 0, 126]))
    p = HeartRate()
    p.set_gap(i32(5))
    p.turn(201, 0)
    same((told(p), at(p)), ([(1, "int", 229), (0, "int", 224)], [199, 0, 204]))
    p = HeartRate()
    p.turn(0, 2)
    same((told(p), at(p)), ([(1, "int", 0), (0, "int", 0)], [0, 0, 0]))
    p = HeartRate()
    p.set_null_row(False)
    p.turn(0, 2)
    same((told(p), shown(p)), ([(1, "int", 26), (0, "int", 25)], ["25", None, "26"]))
    p = HeartRate()
    p.turn(7, 1)
    same((told(p), at(p)), ([], [95, 7, 135]))
    p.set_average(None)
    p.set_maximum(None)
    same([box.value for box in p.values()], [120, 160])
    p.set_average(i32(10))
    same((p.average.value, at(p)[0]), (10, 0))
    p.set_min(i32(40))
    same((at(p), p.average.value), ([0, 7, 135], 10))


def check_weight():
    p = Weight()
    same((rows(p), p.wheel.requests, p.title(0, 0), p.title(334, 0)), ([335, 1, 10], {}, "15", "349"))
    p.set_current(f64(72.46))
    same((at(p), shown(p)), ([57, 0, 5], ["72", None, "5"]))
    p.set_current(f64(72.96))
    same((p.wheel.requests[0], p.wheel.requests[2]), (57, 10))
    p.set_current(i32(350))
    same(p.wheel.requests[0], 335)
    p.turn(0, 1)
    same(told(p), [(0, "i32", 350)])

    p = Weight()
    p.set_unit(1)
    p.update_min_max()
    same((rows(p)[0], p.title(0, 0), p.title(736, 0)), (737, "34", "770"))
    p.set_current(i32(350))
    same((at(p), p.current.kind, p.current.value), ([736, 0, 9], "f32", lb_to_kg(f32(770.9))))

    p = Weight()
    p.set_unit(2)
    p.update_min_max()
    same((rows(p)[0], p.title(0, 0), p.title(51, 0)), (52, "3", "54"))
    p.set_current(f64(st_to_kg(f32(54.9))))
    same(at(p), [51, 0, 9])
    p.set_current(f64(st_to_kg(3.0)))
    same(at(p), [0, 0, 0])

    p = Weight()
    p.set_selectable(True)
    same((rows(p), titles(p, 3)), ([335, 1, 10, 3], ["  kg", "  lb", "  st"]))
    p.set_current(f64(80.0))
    p.turn(2, 3)
    same((told(p), rows(p)[0], shown(p)), ([(0, "f64", 80.0)], 52, ["12", None, "6", "  st"]))


def check_height():
    p = Height()
    p.set_metric(True)
    p.set_height(175.6)
    p.run_pass()
    same((at(p), shown(p)), ([55, 0], ["175", "cm"]))
    p.turn(55, 0)
    same(told(p), [(1, "f64", 175.0)])
    p.set_height(0.0)
    same((shown(p)[0], p.height), ("180", 0.0))
    p.set_height(90.0)
    same((p.wheel.requests[0], at(p)[0]), (-30, 0))

    p = Height()
    p.set_height(100.0)
    p.run_pass()
    same((shown(p), p.height), (["5'", '10"', "ft"], 100.0))
    p.turn(10, 1)
    component, kind, value = told(p)[0]
    same((component, kind), (0, "f64"))
    near(value, 177.8, 1e-4)
    p.set_height(250.0)
    same(shown(p)[:2], ["6'", '11"'])
    p.set_height(121.0)
    same(shown(p)[:2], ["4'", '0"'])
    p.set_height(182.0)
    same((p.wheel.requests[0], p.wheel.requests[1], shown(p)[1]), (1, 12, '11"'))

    p = Height()
    p.set_metric(True)
    p.set_height(180.0)
    p.run_pass()
    p.turn(1, 1)
    p.run_pass()
    component, kind, value = told(p)[0]
    near(value, 180.34, 0.001)
    same((component, shown(p)), (0, ["5'", '11"', "ft"]))
    p.turn(0, 2)
    p.run_pass()
    same((told(p), shown(p)), ([(1, "f64", 180.0)], ["180", "cm"]))


def check_temperature():
    p = Temperature()
    same((rows(p), titles(p, 0)[:3], titles(p, 0)[-1], at(p), shown(p)), ([28], ["-4", "1", "6"], "131", [14], ["66"]))
    p.set_metric(True)
    same((rows(p), titles(p, 0)[:2], titles(p, 0)[-1], at(p), shown(p)), ([16], ["-20", "-15"], "55", [8], ["20"]))
    p.turn(0, 0)
    p.turn(3, 0)
    same(told(p), [(0, "f32", -20.0), (0, "f32", -5.0)])
    p.set_current(i32(-22))
    same(p.wheel.requests[0], 0)
    p.set_current(i32(-27))
    same(p.wheel.requests[0], -1)
    p.set_current(f64(22.7))
    same(at(p), [8])
    p = Temperature()
    p.turn(0, 0)
    same(told(p), [(0, "f32", -20.0)])
    p.turn(1, 0)
    near(told(p)[0][2], -17.22, 0.005)
    p.turn(14, 0)
    near(told(p)[0][2], 18.89, 0.005)
    same(shown(p), ["66"])
    p.set_metric(True)
    same((at(p), shown(p)), ([7], ["15"]))
    p = Temperature()
    p.set_min(i32(-18))
    same(titles(p, 0)[:3], ["0", "4", "9"])


for name, function in sorted(globals().copy().items()):
    if name.startswith("check_"):
        function()
print(f"{checks} checks, {failures} failures")
sys.exit(1 if failures else 0)
