#pragma once

#include <optional>

#include "NSObject.h"

namespace gx {

/// Where something that scrolls by itself is, as a function of time alone.
///
/// The curve is the same at any frame rate and ends exactly on its landing. Positions are in rows,
/// of a wheel or of a list, speeds in rows per second, times in seconds. `UIScrollAxis` chooses the
/// landing and keeps the position.
class UIScrollMotion {
public:
    /// What is left of a fling's speed after each millisecond. Prescribed: it is the pace at which
    /// everything that scrolls on the phone comes to rest.
    static constexpr double decelerationRate = 0.998;
    /// How long a request with animation takes, and a tap on a row. Prescribed.
    static constexpr NSTimeInterval requestDuration = 0.3;
    /// How long it takes to come to rest on the nearest row. Chosen by eye: shorter looks like a
    /// jump, longer like glue.
    static constexpr NSTimeInterval snapDuration = 0.22;
    /// How long one notch of the mouse wheel takes. Chosen by eye, short enough not to lag behind a
    /// fast finger.
    static constexpr NSTimeInterval notchDuration = 0.14;

    /// How far a fling of this speed runs by itself.
    static double travelOfVelocity(double velocity);
    /// How far content follows a finger that is `distance` beyond an end; never more than `extent`.
    /// Both in one unit.
    static double rubberBand(double distance, double extent);
    /// The finger's distance for content that is shown this far beyond its end.
    static double rubberBandInverse(double displayed, double extent);

    /// Slows down evenly from `from` to `to`. Without a start it begins with the first time passed
    /// to `beginAt`.
    static UIScrollMotion ease(double from, double to, NSTimeInterval duration, std::optional<NSTimeInterval> start);
    /// Begins with `velocity`, as far as the rounding to a row allows, and comes to rest on `to`.
    ///
    /// `end` is the last row that way. A fling that would run beyond it bounces there, over by
    /// little more than two rows at any speed.
    static UIScrollMotion fling(double from, double velocity, double to, double end, NSTimeInterval start);

    /// When something began that a frame at `time` shows: at `start`, or with that frame if the
    /// start is more than a second later. Such a start comes from another clock, which may never
    /// get there.
    static NSTimeInterval startSeenAt(NSTimeInterval start, NSTimeInterval time);

    /// For each frame that shows the movement: fixes a start that is open, or too far ahead
    /// (`startSeenAt`).
    ///
    /// A clock that goes back takes the movement back with it, to its start. One that goes back
    /// further continues from there.
    void beginAt(NSTimeInterval time);
    double positionAt(NSTimeInterval time) const;
    bool isOverAt(NSTimeInterval time) const;
    /// The rest of its duration: all of it before the start, 0 once it is over and for a time that
    /// is no number.
    NSTimeInterval timeLeftAt(NSTimeInterval time) const;
    /// The present speed of a fling. 0 for an ease, for a fling that has met an end or is over, and
    /// before the start.
    double flingVelocityAt(NSTimeInterval time) const;

private:
    enum class Curve { Ease, Fling, Bounce };

    double flownAt(NSTimeInterval elapsed) const;

    Curve curve_ = Curve::Ease;
    double from_ = 0;
    double to_ = 0;
    double velocity_ = 0;
    NSTimeInterval duration_ = 0;
    // Of a bounce: when the end is reached, and how fast.
    NSTimeInterval impact_ = 0;
    double impactSpeed_ = 0;
    std::optional<NSTimeInterval> start_;
};

} // namespace gx
