#pragma once

#include <cstdint>
#include <optional>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSObject.h>

namespace gx::qt {

/// Brings the times of input events onto the clock of the frames.
///
/// Supports: times in milliseconds on any clock of the system that runs evenly, also one that starts anew or wraps around; events without
/// a time. Does not support: events that are delivered more than a second late; they count as fresh.
///
/// Events may lie in the queue for a while and then come in a bunch: by their delivery a finger would seem to stand and
/// then to jump, and a fling would get a wrong speed. Their own times tell how far they lie apart, but have another zero.
/// So the event that came with the least delay since the input began fixes the zero, and no event lies in the future.
class GX_EXPORT QtEventClock {
public:
    /// `milliseconds` is the event's own time, 0 if it has none; `now` the frames' time of its delivery, in seconds.
    NSTimeInterval timeOfEvent(std::uint64_t milliseconds, NSTimeInterval now);

private:
    // Beyond this an event's time is on another clock than the last one's, or nobody touched anything meanwhile and the two
    // clocks may have drifted apart.
    static constexpr NSTimeInterval longestDelay = 1;

    std::optional<NSTimeInterval> zero_; // The frames' time at the event clock's 0.
    NSTimeInterval latest_ = 0;          // The event clock's time of the last event.
};

} // namespace gx::qt
