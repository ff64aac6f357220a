#pragma once

#include <optional>

#include "NSObject.h"

namespace gx {

/// Where something that scrolls by itself is, as a function of time alone: the same curve at any frame rate, ending exactly on
/// its landing. Positions are in rows, of a wheel or of a list, speeds in rows per second, times in seconds.
class UIScrollMotion {
public:
    /// What is left of a fling's speed after each millisecond. Prescribed: it is the pace at which everything that
    /// scrolls on the phone comes to rest.
    static constexpr double decelerationRate = 0.998;
    /// How long a request with animation takes, and a tap on a row. Prescribed.
    static constexpr NSTimeInterval requestDuration = 0.3;
    /// How long it takes to sit down on the nearest row. Chosen by eye: shorter looks like a jump, longer like glue.
    static constexpr NSTimeInterval snapDuration = 0.22;
    /// How long one notch of the mouse wheel takes. Chosen by eye, short enough not to lag behind a fast finger.
    static constexpr NSTimeInterval notchDuration = 0.14;

    /// How far a fling of this speed runs by itself.
    static double travelOfVelocity(double velocity);
    /// The finger's way `distance` beyond an end, as far as the column follows it; never more than `extent`. Both in one unit.
    static double rubberBand(double distance, double extent);
    /// The way of the finger that gives a column this far beyond its end.
    static double rubberBandInverse(double displayed, double extent);

    /// Slows down evenly from `from` to `to`. Without a start it begins at the first time it is asked about.
    static UIScrollMotion ease(double from, double to, NSTimeInterval duration, std::optional<NSTimeInterval> start);
    /// Begins with `velocity`, as far as the rounding to a row allows, and comes to rest on `to`. `end` is the
    /// last row that way: a fling that would run beyond it bounces there, over by little more than two rows however fast it is.
    static UIScrollMotion fling(double from, double velocity, double to, double end, NSTimeInterval start);

    /// When something began that a frame at `time` shows: at `start`, or with that frame if the start lies more than a second after it.
    /// Such a start was told by another clock, and waiting for it might take for ever.
    static NSTimeInterval startSeenAt(NSTimeInterval start, NSTimeInterval time);

    /// For each frame that shows the movement: fixes a start that is still open, and one that lies too far ahead (`startSeenAt`). A clock
    /// that goes back takes the movement back with it, to its start; one that goes back further runs on from there.
    void beginAt(NSTimeInterval time);
    double positionAt(NSTimeInterval time) const;
    bool isOverAt(NSTimeInterval time) const;
    /// How long it goes on yet: the whole duration before the start, 0 once it is over and for a time that is no number.
    NSTimeInterval timeLeftAt(NSTimeInterval time) const;
    /// How fast a fling still runs. 0 for an ease, for a fling that has met an end or is over, and before the start.
    double flingVelocityAt(NSTimeInterval time) const;
    double landing() const { return to_; }
    /// Counts all positions from a row that lies `rows` further on.
    void shiftOrigin(double rows);

private:
    enum class Curve { Ease, Fling, Bounce };

    double flownAt(NSTimeInterval elapsed) const;

    Curve curve_ = Curve::Ease;
    double from_ = 0;
    double to_ = 0;
    double velocity_ = 0;
    NSTimeInterval duration_ = 0;
    NSTimeInterval impact_ = 0; // Bounce: when the end is reached …
    double impactSpeed_ = 0;    // … and how fast.
    std::optional<NSTimeInterval> start_;
};

} // namespace gx
