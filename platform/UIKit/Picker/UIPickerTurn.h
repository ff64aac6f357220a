#pragma once

#include <cstdint>
#include <optional>

#include "CGGeometry.h"
#include "NSObject.h"
#include "UIScrollMotion.h"
#include "UIVelocityTracker.h"

namespace gx {

/// The movement of one column of a wheel: where it stands, what a finger, a mouse wheel or a request does to
/// it, and on which row it lands. It knows rows but no views, and asks nobody anything.
///
/// A position is a row and a part of one, kept as a whole row (the anchor) and an offset from it in rows, so
/// that the last of 10^18 rows is met as exactly as the first.
class UIPickerTurn {
public:
    enum class State {
        AtRest,    ///< on a row
        Touched,   ///< a finger lies on it and has not moved
        Dragged,   ///< it follows a finger
        Scrolled,  ///< it follows a trackpad
        Gliding,   ///< on its own to the row where the user's turn ends
        Requested, ///< on its way to the row that the program asked for
        Landed     ///< a user's turn has ended; whoever asks for the landing reports it
    };

    /// A finger that moved less has not moved: in points, what a resting finger trembles.
    static constexpr CGFloat touchSlop = 6;
    /// A trackpad that was silent for so long has let go.
    static constexpr NSTimeInterval scrollIdle = 0.12;
    /// A finger that catches a fling and lets go within this time, flinging on the same way, adds its speed to the fling's; later it
    /// has stopped the column. Chosen to be longer than a swipe and shorter than a look at the row.
    static constexpr NSTimeInterval flingSuccession = 0.25;
    /// Up to where flings add up, in rows per second: such a fling runs 125 rows, and faster rows only flicker.
    static constexpr double fastestSuccession = 250;
    /// How much parts of a notch may be short of a whole one that counts: far below the finest part that a mouse wheel tells (1/120), and
    /// far above what rounding makes of their sum.
    static constexpr double notchTolerance = 1e-6;
    /// After a pause longer than this a part of a notch that has not made a row is forgotten. Chosen to be longer than the pauses within a
    /// slow turn of the mouse wheel.
    static constexpr NSTimeInterval notchSuccession = 1;

    State state() const { return state_; }
    /// Whether the position changes with time alone.
    bool isMoving() const;
    /// Whether anything is going on, so that the column need not stand on the row it reports.
    bool isTurning() const { return state_ != State::AtRest; }
    bool isUsersTurn() const;
    /// The row that the movement ends on.
    NSInteger landingRow() const;

    NSInteger anchorRow() const { return anchor_; }
    /// From the anchor, in rows.
    double offset() const { return offset_; }
    /// The row nearest to the middle, held to the rows there are.
    NSInteger rowInBand() const;

    /// Takes the rows there are now. A movement whose landing row is gone ends: a user's turn then lands on
    /// `reportedRow`.
    void setRows_height_extent(NSInteger count, CGFloat rowHeight, CGFloat extent, NSInteger reportedRow);
    /// Stands on a row at once; whatever went on is over, and a finger that lies there turns nothing more.
    void standOnRow(NSInteger row);
    /// Goes there in the time of an animated request.
    void goToRow(NSInteger row);

    bool hasFinger(std::int64_t identifier) const { return finger_ == identifier; }
    /// Whether any finger lies on it.
    bool isHeld() const { return finger_.has_value(); }
    /// A moving column stops under the finger. Ignored while another finger holds it, and without rows.
    void touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time);
    void touchMoved(CGFloat y, NSTimeInterval time);
    /// `tappedRow`: the row under the finger, if it lies on one.
    void touchEnded(CGFloat y, NSTimeInterval time, std::optional<NSInteger> tappedRow);
    void touchCancelled(NSTimeInterval time);
    /// One notch is one row, counted like `stepByRows`; parts of one add up, until the mouse wheel turns the other way, pauses, or the
    /// column is sent to an end. Answers false only for what is no finite number, while a finger holds the column, and without rows.
    bool scrollNotches(double notches, NSTimeInterval time);
    /// A user's turn by so many rows, counted from the row that the column is already on its way to: so keys in quick succession add up.
    /// Held to the rows there are; where that leaves nothing to turn, nothing changes. A single row takes the time of a notch or, if the
    /// column would have been on its way for longer, the time that it had left: a fling does not leap to its end. Answers false only while
    /// a finger holds the column, and without rows.
    bool stepByRows(NSInteger rows);
    /// The same, to a row.
    bool turnToRow(NSInteger row);
    /// Follows a trackpad by points, up to the ends.
    bool scrollPoints(CGFloat points, NSTimeInterval time, bool isFinished);

    /// Moves to where the column is at `time`. Answers whether it moves on.
    bool advanceToTime(NSTimeInterval time);
    /// Ends the movement at once, a user's turn on its landing row.
    void finish();
    /// The same for a column that goes by itself; others, such as one under a finger, go on. Answers whether it has arrived so.
    bool arrive();
    /// How many rows have passed the band in a user's turn since the last call.
    NSInteger takePassedRows();
    /// The row that a user's turn has ended on, once; the column is at rest then.
    std::optional<NSInteger> takeLanding();

private:
    void anchorAt(NSInteger row);
    double firstOffset() const { return static_cast<double>(-anchor_); }
    double lastOffset() const { return static_cast<double>(count_ - 1 - anchor_); }
    NSInteger rowAtOffset(double offset) const;
    void follow(double raw);
    double bandedOffset(double raw) const;
    double rawOffset(double displayed) const;
    void glideToRow(NSInteger row, NSTimeInterval duration, std::optional<NSTimeInterval> start);
    void snap(std::optional<NSTimeInterval> start);
    NSInteger stepStart() const;
    NSInteger rowAfter(NSInteger rows) const;
    bool isOnItsWayTo(NSInteger row) const;
    NSTimeInterval stepDuration() const;
    double releaseVelocityAt(NSTimeInterval time) const;

    NSInteger count_ = 0;
    CGFloat rowHeight_ = 32;
    CGFloat extent_ = 0;

    State state_ = State::AtRest;
    NSInteger anchor_ = 0;
    double offset_ = 0;
    UIScrollMotion motion_;
    NSInteger landed_ = 0;
    NSInteger passed_ = 0; // The row in the band when last asked which have passed.

    std::optional<std::int64_t> finger_;
    bool stoppedMotion_ = false;   // The finger came down on a moving column.
    CGFloat touchStart_ = 0;       // Where it came down …
    NSTimeInterval touchTime_ = 0; // … and when …
    double caughtVelocity_ = 0;    // … and how fast the fling was that it caught, in rows per second.
    CGFloat lastTouch_ = 0;
    double raw_ = 0; // The offset that the finger asks for, ends or not.
    UIVelocityTracker velocity_;
    double notches_ = 0;           // Parts of a notch that have not made a row yet …
    NSTimeInterval lastNotch_ = 0; // … and when the last of them came.
    NSTimeInterval lastScroll_ = 0;
    NSTimeInterval lastFrame_ = 0;
};

} // namespace gx
