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
    /// In places per second; 0 if the finger had stopped before `time`.
    double velocityAt(NSTimeInterval time) const;

private:
    // Faster than any finger or flick that a screen reports; what lies beyond comes from two places at nearly one time.
    static constexpr double highest = 1e6;
    // A finger that has not moved for so long is holding still.
    static constexpr NSTimeInterval stillness = 0.06;
    // Older places say nothing about the speed now.
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
