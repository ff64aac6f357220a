#include "GXRounding.h"

#include <cmath>
#include <limits>

namespace gx {

// Narrowing a double that is out of range is only defined, as an infinity, for these floating-point
// numbers.
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

float toNearestFloat(double value) { return static_cast<float>(value); }

float toBiggerFloat(double value) {
    const float nearest = toNearestFloat(value);
    // False for NaN, which is therefore returned unchanged.
    if (static_cast<double>(nearest) < value) return std::nextafterf(nearest, std::numeric_limits<float>::max());
    return nearest;
}

} // namespace gx
