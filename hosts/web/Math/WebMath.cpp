#include "WebMath.h"

#include <cmath>

namespace gx::web {

namespace {

// π/2 as a sum. Products of the first two parts with whole numbers below 2^20 are exact.
constexpr double firstPart = 0x1.921fb544p+0;
constexpr double secondPart = 0x1.0b4611a6p-34;
// What is left of it after one part, and after two.
constexpr double afterFirst = 0x1.0b4611a626331p-34;
constexpr double afterSecond = 0x1.3198a2e037073p-69;
// An angle this much closer to a multiple of π/2 than to zero needs the second part.
constexpr double closeness = 0x1p16;

/// The square of a number, and what that is off as a double.
struct Square {
    double rounded;
    double rest;
};

Square squareOf(double number) {
    // In two halves, whose products are exact.
    constexpr double splitter = 0x1p27 + 1;
    const double scaled = number * splitter;
    const double high = number - scaled + scaled;
    const double low = number - high;
    const double rounded = number * number;
    return {rounded, high * high - rounded + 2 * high * low + low * low};
}

} // namespace

WebMath::Reduced WebMath::reducedAngle(double angle) {
    const double quarters = std::rint(angle / (firstPart + afterFirst));
    double left = angle - quarters * firstPart;
    double tail = quarters * afterFirst;
    if (std::fabs(left - tail) * closeness < std::fabs(angle)) {
        const double before = left;
        const double part = quarters * secondPart;
        left = before - part;
        tail = quarters * afterSecond - ((before - left) - part);
    }
    const double rest = left - tail;
    return {static_cast<int>(quarters), {rest, (left - rest) - tail}};
}

double WebMath::hypot(double x, double y) {
    const double longer = std::fmax(std::fabs(x), std::fabs(y));
    const double shorter = std::fmin(std::fabs(x), std::fabs(y));
    const Square one = squareOf(longer);
    const Square other = squareOf(shorter);
    return std::sqrt(other.rest + one.rest + other.rounded + one.rounded);
}

double WebMath::atan2(double y, double x) { return std::atan(y / x); }

double WebMath::round(double number) {
    const double whole = std::trunc(number);
    return std::fabs(number - whole) >= 0.5 ? whole + std::copysign(1.0, number) : whole;
}

} // namespace gx::web
