#pragma once

#include <cstdint>
#include <optional>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSObject.h>

namespace gx::qt {

/// Brings the times of input events onto the clock of the frames.
///
/// - Supports: times in milliseconds on any clock of the system that runs evenly, also one that
///   starts again or wraps around; events without a time.
/// - Does not support: events that are delivered more than a second late; they count as fresh.
///
/// Events may wait in the queue and then be delivered together. By the times of delivery a finger
/// would rest and then jump, and a fling would get a wrong speed. The events' own times have the
/// right distances, but another zero.
///
/// Invariant: the event with the least delay since the input began sets the zero, and no event lies
/// in the future.
class GX_EXPORT QtEventClock {
public:
    /// `milliseconds` is the event's own time, 0 if it has none; `now` the frames' time of its
    /// delivery, in seconds.
    NSTimeInterval timeOfEvent(std::uint64_t milliseconds, NSTimeInterval now);

private:
    // Chosen: longer than an event waits in the queue. After a longer time an event is on another
    // clock than the last one, or nothing was touched meanwhile and the clocks may have drifted
    // apart.
    static constexpr NSTimeInterval longestDelay = 1;

    std::optional<NSTimeInterval> zero_; // The frames' time at the event clock's 0.
    NSTimeInterval latest_ = 0;          // The event clock's time of the last event.
};

} // namespace gx::qt
