#include "UIScrollMotion.h"

#include <algorithm>
#include <cmath>

namespace gx {

namespace {

// The rate as a drag: a free fling follows v(t) = v0·e^(−drag·t), and so runs v0 / drag.
const double drag = -1000.0 * std::log(UIScrollMotion::decelerationRate);

// A fling that has come down to this speed is over; in rows per second. Chosen by eye: what is
// slower looks still.
constexpr double restSpeed = 0.25;
// Chosen by eye: as long as coming to rest on the nearest row (`snapDuration`), since a shorter
// fling looks like a jump too.
constexpr NSTimeInterval shortestFling = UIScrollMotion::snapDuration;

// How hard the end pulls back, per second: critically damped, so it swings over once and never
// through. Chosen so that a strong fling (50 rows a second) shows about one empty row and is back
// within half a second.
constexpr double endStiffness = 18;
// Chosen by eye. At most 0.006 rows of the swing are left by then: 100 · 0.5 · e^(−18 · 0.5).
constexpr NSTimeInterval bounceDuration = 0.5;
// No end is hit harder than this, in rows per second: it swings over by 100 / (18·e) = 2.04 rows,
// so that the last row stays in sight.
constexpr double hardestImpact = 100;

// How much of a finger's first step beyond an end the content follows. Prescribed by the phone's
// platform.
constexpr double rubberBandStiffness = 0.55;
// The largest share of its extent at which a pull is taken up again. Chosen just below 1, where the
// finger's way would be endless.
constexpr double largestShareOfPull = 0.99;

// Frames may be timed a little before the finger that they follow, by no more than this. Chosen: no
// frame takes so long.
constexpr NSTimeInterval furthestAhead = 1;

/// The share of its way that a fling has run. 0 at 0, 1 at `duration`.
///
/// Drag and a constant friction bring it to a stop at `duration` exactly, with no speed left.
double flingShare(NSTimeInterval elapsed, NSTimeInterval duration) {
    const double left = std::exp(-drag * duration);
    const double whole = 1 - left - drag * duration * left;
    return (1 - std::exp(-drag * elapsed) - drag * elapsed * left) / whole;
}

/// The speed with which that curve begins, in ways per second.
double flingStartSpeed(NSTimeInterval duration) {
    const double left = std::exp(-drag * duration);
    return drag * (1 - left) / (1 - left - drag * duration * left);
}

/// The duration for which a fling over `distance` begins with `velocity`, both positive. The start
/// speed falls as the duration grows, so the interval can be halved.
NSTimeInterval flingDuration(double distance, double velocity) {
    NSTimeInterval shortest = shortestFling;
    NSTimeInterval longest = std::max(shortest, std::log(std::max(velocity / restSpeed, 1.0)) / drag);
    constexpr int halvings = 40;
    for (int i = 0; i < halvings; ++i) {
        const NSTimeInterval middle = 0.5 * (shortest + longest);
        (distance * flingStartSpeed(middle) > velocity ? shortest : longest) = middle;
    }
    return 0.5 * (shortest + longest);
}

} // namespace

double UIScrollMotion::travelOfVelocity(double velocity) { return velocity / drag; }

double UIScrollMotion::rubberBand(double distance, double extent) {
    if (!(extent > 0) || !(distance > 0)) return 0;
    return (1 - 1 / (rubberBandStiffness * distance / extent + 1)) * extent;
}

double UIScrollMotion::rubberBandInverse(double displayed, double extent) {
    if (!(extent > 0) || !(displayed > 0)) return 0;
    const double share = std::min(displayed / extent, largestShareOfPull);
    return (1 / (1 - share) - 1) * extent / rubberBandStiffness;
}

UIScrollMotion UIScrollMotion::ease(double from, double to, NSTimeInterval duration, std::optional<NSTimeInterval> start) {
    UIScrollMotion motion;
    motion.from_ = from;
    motion.to_ = to;
    motion.duration_ = duration;
    motion.start_ = start;
    return motion;
}

UIScrollMotion UIScrollMotion::fling(double from, double velocity, double to, double end, NSTimeInterval start) {
    const double distance = to - from;
    const bool isOnward = distance * velocity > 0;
    // Rounding to a row may send a slow fling back, or nowhere: then there is no speed to keep.
    if (!isOnward) return ease(from, to, snapDuration, start);

    UIScrollMotion motion = ease(from, to, 0, start);
    motion.velocity_ = velocity;
    const double travel = travelOfVelocity(velocity);
    // An end that is met slowly is reached as any other row: the bounce would be invisible, and
    // only delay the report.
    const bool hitsEnd = to == end && std::fabs(travel) > std::fabs(distance) && std::fabs(velocity - drag * distance) >= restSpeed;
    if (hitsEnd) {
        motion.curve_ = Curve::Bounce;
        motion.impact_ = -std::log(1 - distance / travel) / drag;
        motion.impactSpeed_ = std::clamp(velocity - drag * distance, -hardestImpact, hardestImpact);
        motion.duration_ = motion.impact_ + bounceDuration;
    } else {
        motion.curve_ = Curve::Fling;
        motion.duration_ = flingDuration(std::fabs(distance), std::fabs(velocity));
    }
    return motion;
}

NSTimeInterval UIScrollMotion::startSeenAt(NSTimeInterval start, NSTimeInterval time) {
    return start - time > furthestAhead ? time : start;
}

void UIScrollMotion::beginAt(NSTimeInterval time) { start_ = startSeenAt(start_.value_or(time), time); }

double UIScrollMotion::flownAt(NSTimeInterval elapsed) const {
    const double distance = to_ - from_;
    switch (curve_) {
    case Curve::Ease: {
        const double left = 1 - elapsed / duration_;
        return distance * (1 - left * left * left);
    }
    case Curve::Fling:
        return distance * flingShare(elapsed, duration_);
    case Curve::Bounce:
        if (elapsed < impact_) return velocity_ / drag * (1 - std::exp(-drag * elapsed));
        const NSTimeInterval since = elapsed - impact_;
        return distance + impactSpeed_ * since * std::exp(-endStiffness * since);
    }
    return distance;
}

double UIScrollMotion::positionAt(NSTimeInterval time) const {
    if (isOverAt(time)) return to_;
    const NSTimeInterval elapsed = start_ ? time - *start_ : 0;
    // Time that runs backward, or is no number, stands still.
    return elapsed > 0 ? from_ + flownAt(elapsed) : from_;
}

bool UIScrollMotion::isOverAt(NSTimeInterval time) const { return start_ && time - *start_ >= duration_; }

NSTimeInterval UIScrollMotion::timeLeftAt(NSTimeInterval time) const {
    const NSTimeInterval elapsed = start_ ? std::max(time - *start_, 0.0) : 0;
    return elapsed < duration_ ? duration_ - elapsed : 0;
}

double UIScrollMotion::flingVelocityAt(NSTimeInterval time) const {
    const NSTimeInterval elapsed = start_ ? time - *start_ : 0;
    if (!(elapsed >= 0) || isOverAt(time)) return 0;
    switch (curve_) {
    case Curve::Ease:
        return 0;
    case Curve::Fling: {
        // The share's slope: at the start that of the start speed, at the end none.
        const double left = std::exp(-drag * duration_);
        return (to_ - from_) * flingStartSpeed(duration_) * (std::exp(-drag * elapsed) - left) / (1 - left);
    }
    case Curve::Bounce:
        return elapsed < impact_ ? velocity_ * std::exp(-drag * elapsed) : 0;
    }
    return 0;
}

} // namespace gx
