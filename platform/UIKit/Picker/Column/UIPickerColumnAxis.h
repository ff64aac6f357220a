#pragma once

#include "UIScrollAxis.h"

namespace gx {

/// Where one column of a wheel is, on which row it lands, and which landings are to be reported.
///
/// It is a scroll axis whose positions are rows, with what only a wheel has: notches and steps that
/// add up, flings that add up, and reports. It knows no views and has no callbacks.
///
/// A position is a row and a part of one, kept as a whole row (the anchor) and an offset from it.
/// So the last of 10^18 rows is met as exactly as the first.
///
/// Invariant: a movement's target is the anchor itself.
class UIPickerColumnAxis {
public:
    using State = UIScrollAxis::State;

    /// A trackpad that was silent for so long has let go. Chosen: a few reports of a slow one.
    static constexpr NSTimeInterval scrollIdle = 0.12;
    /// A finger that catches a fling and lets go within this time, flinging on the same way, adds
    /// its speed to the fling's. Later it has stopped the column. Chosen to be longer than a swipe
    /// and shorter than a look at the row.
    static constexpr NSTimeInterval flingSuccession = 0.25;
    /// Up to where flings add up, in rows per second. Chosen: such a fling runs 125 rows, and
    /// faster rows only flicker.
    static constexpr double fastestSuccession = 250;
    /// How much parts of a notch may be short of a whole one that counts. Chosen far below the
    /// finest part that a mouse wheel reports (1/120), and far above the rounding of their sum.
    static constexpr double notchTolerance = 1e-6;
    /// After a pause longer than this a part of a notch that has not made a row is dropped. Chosen
    /// to be longer than the pauses within a slow movement of the mouse wheel.
    static constexpr NSTimeInterval notchSuccession = 1;

    State state() const { return axis_.state(); }
    /// Whether the position changes with time alone, or a landing is to be reported.
    bool isMoving() const;
    /// Whether anything is going on, so that the column may be elsewhere than on the row it
    /// reports.
    bool isActive() const { return state() != State::AtRest; }
    /// Whether that is the user's doing, and so to be reported.
    bool isUsersGesture() const { return isActive() && state() != State::Requested; }
    /// The row that the movement ends on.
    NSInteger landingRow() const;
    /// The row that the last step of this gesture goes to, which a screen reader says at once.
    ///
    /// It stays until the column rests, whatever follows: a finger or a fling is said at rest.
    /// Nothing at rest, and for a gesture without a step.
    std::optional<NSInteger> steppedRow() const { return isUsersGesture() ? stepped_ : std::nullopt; }

    NSInteger anchorRow() const { return anchor_; }
    /// From the anchor, in rows.
    double offset() const { return axis_.position(); }
    /// The row nearest to the middle, clamped to the rows there are.
    NSInteger nearestRow() const;

    /// Takes the rows there are now. A movement whose landing row is gone ends: a user's gesture
    /// then lands on `reportedRow`.
    void setRows_height_extent(NSInteger count, CGFloat rowHeight, CGFloat extent, NSInteger reportedRow);
    /// Moves to a row at once. Whatever went on is over, and a finger that lies there is ignored
    /// from now on.
    void restOnRow(NSInteger row);
    /// Moves there in the time of an animated request.
    void requestRow(NSInteger row);

    bool hasFinger(std::int64_t identifier) const { return axis_.hasFinger(identifier); }
    /// Whether any finger lies on it.
    bool isHeld() const { return axis_.isHeld(); }
    /// A moving column stops under the finger. Ignored while another finger holds it, and without
    /// rows.
    void touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time);
    void touchMoved(CGFloat y, NSTimeInterval time) { axis_.touchMoved(y, time); }
    /// `tappedRow`: the row under the finger, if it lies on one.
    void touchEnded(CGFloat y, NSTimeInterval time, std::optional<NSInteger> tappedRow);
    void touchCancelled(NSTimeInterval time);
    /// One notch is one row, counted like `stepByRows`.
    ///
    /// Parts of a notch add up until the mouse wheel changes its direction, pauses, or the column
    /// is sent to an end. Returns false only for what is no finite number, while a finger holds the
    /// column, and without rows.
    bool scrollNotches(double notches, NSTimeInterval time);
    /// Moves by so many rows for the user, counted from the row that the column is already on its
    /// way to. So quick keys add up.
    ///
    /// Clamped to the rows there are; where that leaves nothing to move, nothing changes. A single
    /// row takes the time of a notch or, if the column would have been on its way for longer, the
    /// time that was left: a fling does not leap to its end. Returns false only while a finger
    /// holds the column, and without rows.
    bool stepByRows(NSInteger rows);
    /// The same, to a row.
    bool spinToRow(NSInteger row);
    /// Follows a trackpad by points, up to the ends.
    bool scrollPoints(CGFloat points, NSTimeInterval time, bool isFinished);

    /// Moves to where the column is at `time`. Returns whether it goes on moving.
    bool advanceToTime(NSTimeInterval time);
    /// Ends the movement at once, a user's gesture on its landing row.
    void finish();
    /// The same for a column that goes by itself; others, such as one under a finger, go on.
    /// Returns whether it has ended so.
    bool finishGoing();
    /// How many rows have passed the middle in a user's gesture since the last call.
    NSInteger takePassedRows();
    /// The row that a user's gesture has ended on, once; the column is at rest then.
    std::optional<NSInteger> takeLanding();

private:
    void anchorAt(NSInteger row);
    void setRange();
    NSInteger rowNear(double offset) const;
    void glideToRow(NSInteger row, NSTimeInterval duration, std::optional<NSTimeInterval> start, State state = State::Gliding);
    void snap(std::optional<NSTimeInterval> start);
    void beginGesture();
    bool hasMovedNothing() const;
    NSInteger stepStart() const;
    NSInteger rowAfter(NSInteger rows) const;
    bool isOnItsWayTo(NSInteger row) const;
    NSTimeInterval stepDuration() const;
    double releaseVelocityAt(NSTimeInterval time) const;

    NSInteger count_ = 0;
    CGFloat rowHeight_ = 1; // Any above 0, while there are no rows.
    CGFloat extent_ = 0;

    UIScrollAxis axis_{UIScrollFeel::wheelColumn};
    NSInteger anchor_ = 0;
    NSInteger passed_ = 0; // The nearest row when passed rows were last counted.
    std::optional<NSInteger> stepped_;

    NSTimeInterval touchTime_ = 0; // When the finger came down …
    // … and how fast the fling was that it caught, in rows per second.
    double caughtVelocity_ = 0;
    double notches_ = 0;           // Parts of a notch that have not made a row yet …
    NSTimeInterval lastNotch_ = 0; // … and when the last of them came.
    NSTimeInterval lastScroll_ = 0;
    NSTimeInterval lastFrame_ = 0;
};

} // namespace gx
