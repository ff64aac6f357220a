"""Numbers as the pickers know them: single precision, 32-bit integers, boxed numbers and the six unit conversions.

Python's float is the platform's double. A single-precision operation is the double operation followed by `f32`: a
double holds more than twice the digits of a float, so rounding twice gives what rounding once would.
"""

import ctypes
import math
import struct

INT32_MIN, INT32_MAX = -(2**31), 2**31 - 1
INT64_MIN, INT64_MAX = -(2**63), 2**63 - 1


def f32(x):
    """The nearest single-precision value, widened back to a double."""
    return ctypes.c_float(x).value


def next_float_up(f):
    """The next single-precision value above f, by counting its bit pattern one on."""
    if f == 0:
        return struct.unpack("<f", struct.pack("<I", 1))[0]
    bits = struct.unpack("<I", struct.pack("<f", f))[0]
    return struct.unpack("<f", struct.pack("<I", bits + 1 if f > 0 else bits - 1))[0]


def to_bigger_float(d):
    """The smallest single-precision value that is not below d."""
    f = f32(d)
    return next_float_up(f) if f < d else f


def wrap(n, bits):
    n &= (1 << bits) - 1
    return n - (1 << bits) if n >> (bits - 1) else n


def truncate(x, bits=32):
    """Toward zero into an integer of so many bits; what does not fit stops at the end of the range."""
    if math.isnan(x):
        return 0
    low, high = (INT32_MIN, INT32_MAX) if bits == 32 else (INT64_MIN, INT64_MAX)
    if math.isinf(x):
        return high if x > 0 else low
    return max(low, min(high, math.trunc(x)))


def round_away(x):
    """The nearest whole number, halves away from zero."""
    whole = math.trunc(x)
    if abs(x - whole) >= 0.5:
        whole += 1 if x > 0 else -1
    return whole


def divide(a, b):
    """Integer division toward zero; a division by zero answers 0."""
    if b == 0:
        return 0
    q = abs(a) // abs(b)
    return q if (a < 0) == (b < 0) else -q


def remainder(a, b):
    """The remainder with the sign of the dividend."""
    return a - b * divide(a, b)


class Box:
    """A boxed number that remembers its type: i32, i64, f32, f64, or `int`, an integer whose width no rule settles."""

    def __init__(self, kind, value):
        if kind in ("i32", "i64"):
            assert value == wrap(value, int(kind[1:])), f"{value} is no {kind}"
        self.kind = kind
        self.value = f32(value) if kind == "f32" else float(value) if kind == "f64" else value

    def is_float(self):
        return self.kind in ("f32", "f64")

    def integer(self):
        return truncate(self.value, 64) if self.is_float() else self.value

    def int32(self):
        return truncate(self.value, 32) if self.is_float() else wrap(self.value, 32)

    def single(self):
        return f32(self.value)

    def double(self):
        return float(self.value)

    def __repr__(self):
        return f"{self.kind} {self.value}"


KILOGRAMS_PER_POUND = 0.45359237
POUNDS_PER_STONE = 14


def kg_to_lb(kg):
    return f32(kg / KILOGRAMS_PER_POUND)


def lb_to_kg(lb):
    return to_bigger_float(lb * KILOGRAMS_PER_POUND)


def kg_to_st(kg):
    return f32(kg / (KILOGRAMS_PER_POUND * POUNDS_PER_STONE))


def st_to_kg(st):
    return to_bigger_float(st * (KILOGRAMS_PER_POUND * POUNDS_PER_STONE))


def celsius_to_fahrenheit(c):
    return f32(c * 9.0 / 5.0 + 32.0)


def fahrenheit_to_celsius(f):
    return to_bigger_float((f - 32.0) * 5.0 / 9.0)
