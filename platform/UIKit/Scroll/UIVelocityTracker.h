#pragma once

#include <array>
#include <cstddef>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// The speed of a finger, from its latest places.
class GX_EXPORT UIVelocityTracker {
public:
    void reset();
    void add(NSTimeInterval time, CGFloat place);
    /// In places per second. 0 with fewer than two places, and if the finger had stopped before
    /// `time`.
    double velocityAt(NSTimeInterval time) const;

private:
    // In places per second, faster than any finger. Chosen as a bound for two places at nearly one
    // time.
    static constexpr double highest = 1e6;
    // A finger that has not moved for so long is resting. Chosen: longer than the time between two
    // reports of a slow touch screen.
    static constexpr NSTimeInterval stillness = 0.06;
    // Older places say nothing about the present speed. Chosen: a few reports, even of a slow touch
    // screen.
    static constexpr NSTimeInterval memory = 0.1;

    struct Sample {
        NSTimeInterval time = 0;
        CGFloat place = 0;
    };
    std::array<Sample, 8> samples_;
    std::size_t count_ = 0;
    std::size_t next_ = 0;
};

} // namespace gx
