#pragma once

#include <cstdint>
#include <limits>
#include <optional>

#include "CGGeometry.h"
#include "NSObject.h"
#include "UIScrollMotion.h"
#include "UIVelocityTracker.h"

namespace gx {

/// What differs between the users of a scroll axis. All values stand here, one for each of them.
struct UIScrollFeel {
    enum class Landing {
        Free,      ///< anywhere between the ends
        NearestRow ///< on a whole position
    };

    Landing landing = Landing::Free;
    /// A finger that moved less has not moved: in points, what a resting finger trembles.
    CGFloat touchSlop = 0;
    /// Whether content follows from where the finger crossed the slop, or from where it is found
    /// beyond it. Neither jumps.
    bool startsAtSlop = false;
    /// Whether a finger can pull content that has nowhere to go.
    bool pullsWhenAllFits = false;
    /// A bound for pulls, in positions.
    double furthestPull = 0;
    /// How many positions are one row. `UIScrollMotion` counts in rows, since its constants were
    /// chosen on them.
    double positionsPerRow = 1;

    static const UIScrollFeel wheelColumn;
    static const UIScrollFeel scrollView;
};

// A column is spun and nothing in it is pressed, so it follows after less of a tremble than a list,
// where each touch may be a tap. Both were chosen by hand on a touch screen.
//
// A column counts from one of up to 2^63 rows, and is bounded by what is finite. A scroll view's
// bound is further than any finger pulls and keeps sums finite. 44 of its positions, which are
// points, are a row of a list: on those the curves' lowest and highest speeds were chosen.
inline constexpr UIScrollFeel UIScrollFeel::wheelColumn = {
    .landing = Landing::NearestRow,
    .touchSlop = 6,
    .startsAtSlop = true,
    .pullsWhenAllFits = true,
    .furthestPull = std::numeric_limits<double>::infinity(),
    .positionsPerRow = 1,
};
inline constexpr UIScrollFeel UIScrollFeel::scrollView = {
    .landing = Landing::Free,
    .touchSlop = 8,
    .startsAtSlop = false,
    .pullsWhenAllFits = false,
    .furthestPull = 1e15,
    .positionsPerRow = 44,
};

/// A position along one axis, and what fingers, the program and time do to it.
///
/// The wheel's columns (positions are rows) and scroll views (positions are points) both use it. It
/// knows no views and has no callbacks. docs/motion.md shows its states as a table.
///
/// Invariant: the position lies between the ends of the range, but while a finger pulls beyond one
/// or a movement springs back.
///
/// - Where a movement lands is chosen by `landingNear`, according to the feel.
/// - The owner passes that to `easeTo` or `flingTo`, since it may first move the origin of
///   positions there (`moveOrigin`).
class UIScrollAxis {
public:
    enum class State {
        AtRest,
        Touched,   ///< a finger lies on it and has not moved
        Dragged,   ///< it follows a finger
        Scrolled,  ///< it follows a trackpad
        Gliding,   ///< it goes on by itself to where the user's gesture ends
        Requested, ///< it is on its way to where the program wants it
        /// the user's gesture has ended, and is still to be reported; only where it lands on rows
        Landed
    };

    explicit UIScrollAxis(const UIScrollFeel& feel) : feel_(feel) {}

    State state() const { return state_; }
    double position() const { return position_; }
    /// Where it is on its way to, or else where it is.
    double target() const { return isGoing() ? target_ : position_; }
    /// Whether it moves by itself: with time, and with no finger and no trackpad.
    bool isGoing() const { return state_ == State::Gliding || state_ == State::Requested; }

    // The range

    struct Range {
        double first = 0;
        double last = 0;
        /// How much is in sight, in positions: content is never pulled further beyond an end.
        double extent = 0;
        /// How far a finger goes for one position.
        CGFloat pointsPerPosition = 1;
    };
    const Range& range() const { return range_; }
    /// Changes no position yet.
    void setRange(const Range& range) { range_ = range; }
    /// After the range has changed. A pull follows the new ends, a movement to where nothing is any
    /// more ends, and what is at rest is clamped.
    void adjustToRange();
    double clamped(double position) const;
    bool isBeyondEnd() const { return position_ != clamped(position_); }
    /// Where a movement that is heading for the position comes to rest.
    double landingNear(double position) const;
    /// Counts positions from a place that lies so much further on. The range is set again
    /// afterwards.
    void moveOrigin(double distance);
    /// For an owner that keeps the position itself.
    void setPosition(double position) { position_ = position; }

    // Rest

    /// Ends what goes on, also a finger's touch.
    void restAt(double position);
    /// The same for a gesture whose end is still to be reported.
    void landAt(double position);

    // Fingers

    bool hasFinger(std::int64_t identifier) const { return finger_ == identifier; }
    bool isHeld() const { return finger_.has_value(); }
    /// Stops what moves, under the finger.
    void touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time);
    /// Ignored for a place that is no finite number. Returns whether this begins to drag.
    bool touchMoved(CGFloat y, NSTimeInterval time);
    /// Whether a finger that lets go there has moved since its last place. Some systems report the
    /// last piece of a way only so.
    bool isMoveTo(CGFloat y) const;
    /// Takes the finger away. What follows is the owner's choice, by the state before.
    void touchEnded();
    /// Whether the present touch, or the last one, came down on something that was not at rest.
    bool hasCaughtMovement() const { return hasCaughtMovement_; }
    /// How fast a finger that lets go now throws the content, in positions per second.
    double releaseVelocityAt(NSTimeInterval time) const;

    // The trackpad

    /// Where a finger or trackpad wants to be, ends or not; a pull beyond an end shows less of it.
    double rawPosition() const { return state_ == State::Scrolled ? raw_ : rawOf(position_); }
    /// Follows a trackpad.
    void scrollTo(double rawPosition);

    // Movement

    /// Begins to slow down from here to the target. Without a start its clock begins with the next
    /// frame.
    void easeTo(double target, NSTimeInterval duration, std::optional<NSTimeInterval> start, State state = State::Gliding);
    /// Goes on at a velocity, as far as the target allows, and bounces if that is an end.
    void flingTo(double target, double velocity, NSTimeInterval start);
    double flingVelocityAt(NSTimeInterval time) const;
    /// How long a glide goes on yet; 0 in any other state.
    NSTimeInterval timeLeftAt(NSTimeInterval time) const;
    /// Moves to where it is at the time. Returns whether it has arrived: it is at the target then,
    /// and the owner ends the movement.
    bool advanceToTime(NSTimeInterval time);

private:
    double shown(double raw) const;
    double rawOf(double shown) const;
    void follow(double raw);

    UIScrollFeel feel_;
    Range range_;
    State state_ = State::AtRest;
    double position_ = 0;
    // Counted in rows from the target, so that the movement ends exactly there.
    UIScrollMotion motion_;
    double target_ = 0;

    std::optional<std::int64_t> finger_;
    bool hasCaughtMovement_ = false;
    CGFloat touchStart_ = 0;
    CGFloat lastTouch_ = 0;
    double raw_ = 0; // Where finger or trackpad want to be.
    UIVelocityTracker velocity_;
};

} // namespace gx
