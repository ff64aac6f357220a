#include "UIVelocityTracker.h"

#include <algorithm>
#include <cmath>

namespace gx {

void UIVelocityTracker::reset() { count_ = next_ = 0; }

void UIVelocityTracker::add(NSTimeInterval time, CGFloat place) {
    samples_[next_] = {time, place};
    next_ = (next_ + 1) % samples_.size();
    count_ = std::min(count_ + 1, samples_.size());
}

double UIVelocityTracker::velocityAt(NSTimeInterval time) const {
    const std::size_t size = samples_.size();
    const Sample& latest = samples_[(next_ + size - 1) % size];
    if (!(time - latest.time <= stillness)) return 0;
    Sample earliest = latest;
    for (std::size_t back = 2; back <= count_; ++back) {
        const Sample& sample = samples_[(next_ + size - back) % size];
        // Only places in the order of time give a speed.
        if (!(latest.time - sample.time <= memory && sample.time <= earliest.time)) break;
        earliest = sample;
    }
    // With fewer than two places this is 0 / 0, which is not finite.
    const double velocity = (latest.place - earliest.place) / (latest.time - earliest.time);
    return std::isfinite(velocity) ? std::clamp(velocity, -highest, highest) : 0;
}

} // namespace gx
