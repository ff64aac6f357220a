#include "QtEventClock.h"

#include <algorithm>
#include <cmath>

namespace gx::qt {

NSTimeInterval QtEventClock::timeOfEvent(std::uint64_t milliseconds, NSTimeInterval now) {
    if (milliseconds == 0) return now;
    const NSTimeInterval own = static_cast<double>(milliseconds) / 1000;
    const NSTimeInterval zero = now - own;
    const bool isPaused = std::fabs(own - latest_) > longestDelay;
    latest_ = own;
    if (!zero_ || isPaused || zero < *zero_ || zero - *zero_ > longestDelay) zero_ = zero;
    return std::min(own + *zero_, now);
}

} // namespace gx::qt
