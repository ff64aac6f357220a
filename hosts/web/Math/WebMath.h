#pragma once

#include <array>

namespace gx::web {

/// Functions of the C library in a smaller form, which the browser's module has instead of them.
///
/// They return the same to the last bit for what a wheel computes; the C library's own also treat
/// the largest, smallest and negative arguments, or save time where nobody waits.
struct WebMath {
    /// An angle less multiples of π/2.
    struct Reduced {
        int quarters = 0;
        /// What is left, between −π/4 and π/4, and what that is off as a double.
        std::array<double, 2> rest = {};
    };

    /// For angles below a million, which rows of a wheel never reach: the height of an element is a
    /// whole number of pixels, and a row is less than a million times as high.
    static Reduced reducedAngle(double angle);

    /// For coordinates between 1e-130 and 1e150, or zero.
    static double hypot(double x, double y);

    /// For coordinates that are not negative, and not both zero.
    static double atan2(double y, double x);

    /// Halves go away from zero.
    static double round(double number);
};

} // namespace gx::web
