#include "UIPickerTurn.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"

namespace gx {

// Position

bool UIPickerTurn::isMoving() const {
    return state_ == State::Gliding || state_ == State::Requested || state_ == State::Scrolled || state_ == State::Landed;
}

bool UIPickerTurn::isUsersTurn() const { return isTurning() && state_ != State::Requested; }

NSInteger UIPickerTurn::rowAtOffset(double offset) const {
    const NSInteger row = wrappingAdd(anchor_, truncateTo<NSInteger>(std::round(std::clamp(offset, firstOffset(), lastOffset()))));
    return std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0));
}

NSInteger UIPickerTurn::rowInBand() const { return count_ > 0 ? rowAtOffset(offset_) : 0; }

NSInteger UIPickerTurn::landingRow() const {
    switch (state_) {
    case State::Gliding:
    case State::Requested:
        return wrappingAdd(anchor_, truncateTo<NSInteger>(std::round(motion_.landing())));
    case State::Landed:
        return landed_;
    default:
        return rowInBand();
    }
}

void UIPickerTurn::anchorAt(NSInteger row) {
    const auto rows = static_cast<double>(row - anchor_); // Both lie in [0, count), so the difference is safe.
    anchor_ = row;
    offset_ -= rows;
    raw_ -= rows;
    motion_.shiftOrigin(rows);
}

void UIPickerTurn::setRows_height_extent(NSInteger count, CGFloat rowHeight, CGFloat extent, NSInteger reportedRow) {
    const bool hasLanding = state_ == State::Gliding || state_ == State::Requested || state_ == State::Landed;
    const NSInteger landing = landingRow();
    const bool isUsers = isUsersTurn();
    count_ = std::max<NSInteger>(count, 0);
    rowHeight_ = rowHeight;
    extent_ = extent;
    if (count_ == 0) {
        // Nothing is left to land on, so nothing is reported.
        standOnRow(0);
        return;
    }
    if (hasLanding && landing >= count_) {
        standOnRow(reportedRow);
        if (isUsers) {
            state_ = State::Landed;
            landed_ = anchor_;
        }
        return;
    }
    if (anchor_ >= count_) anchorAt(count_ - 1);
    if (state_ == State::Dragged || state_ == State::Scrolled) offset_ = bandedOffset(raw_);
}

void UIPickerTurn::standOnRow(NSInteger row) {
    anchor_ = std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0));
    offset_ = 0;
    finger_.reset();
    state_ = State::AtRest;
}

void UIPickerTurn::goToRow(NSInteger row) {
    glideToRow(row, UIScrollMotion::requestDuration, std::nullopt);
    finger_.reset();
    state_ = State::Requested;
}

void UIPickerTurn::glideToRow(NSInteger row, NSTimeInterval duration, std::optional<NSTimeInterval> start) {
    // Counted from the row that it lands on, the movement ends on exactly that row however far it comes from.
    anchorAt(std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0)));
    motion_ = UIScrollMotion::ease(offset_, 0, duration, start);
    state_ = State::Gliding;
}

void UIPickerTurn::snap(std::optional<NSTimeInterval> start) { glideToRow(rowInBand(), UIScrollMotion::snapDuration, start); }

// The finger

double UIPickerTurn::bandedOffset(double raw) const {
    const double extent = extent_ / rowHeight_;
    if (raw < firstOffset()) return firstOffset() - UIScrollMotion::rubberBand(firstOffset() - raw, extent);
    if (raw > lastOffset()) return lastOffset() + UIScrollMotion::rubberBand(raw - lastOffset(), extent);
    return raw;
}

double UIPickerTurn::rawOffset(double displayed) const {
    const double extent = extent_ / rowHeight_;
    if (displayed < firstOffset()) {
        return firstOffset() - UIScrollMotion::rubberBandInverse(firstOffset() - displayed, extent);
    }
    if (displayed > lastOffset()) return lastOffset() + UIScrollMotion::rubberBandInverse(displayed - lastOffset(), extent);
    return displayed;
}

void UIPickerTurn::follow(double raw) {
    if (!std::isfinite(raw)) return;
    raw_ = raw;
    offset_ = bandedOffset(raw_);
}

double UIPickerTurn::releaseVelocityAt(NSTimeInterval time) const {
    const double fingers = -velocity_.velocityAt(time) / rowHeight_;
    // Only a finger that flings by itself, by a row at least, hastens a fling; one that guides the column does not.
    const bool isFling = std::fabs(UIScrollMotion::travelOfVelocity(fingers)) >= 1;
    const bool isInTime = time - touchTime_ <= flingSuccession;
    if (!isFling || !isInTime || !(fingers * caughtVelocity_ > 0)) return fingers;
    // A finger that is faster alone keeps its speed.
    const double fastest = std::max(fastestSuccession, std::fabs(fingers));
    return std::clamp(fingers + caughtVelocity_, -fastest, fastest);
}

void UIPickerTurn::touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time) {
    if (finger_ || count_ == 0) return;
    stoppedMotion_ = isTurning();
    caughtVelocity_ = state_ == State::Gliding ? motion_.flingVelocityAt(time) : 0;
    touchTime_ = time;
    if (!isUsersTurn()) passed_ = rowInBand();
    finger_ = identifier;
    touchStart_ = lastTouch_ = y;
    raw_ = rawOffset(offset_);
    velocity_.reset();
    velocity_.add(time, y);
    notches_ = 0;
    state_ = State::Touched;
}

void UIPickerTurn::touchMoved(CGFloat y, NSTimeInterval time) {
    if (!std::isfinite(y)) return;
    velocity_.add(time, y);
    if (state_ == State::Touched) {
        if (std::fabs(y - touchStart_) <= touchSlop) return;
        state_ = State::Dragged;
        // The column starts where the finger crossed the slop, so that it does not jump.
        lastTouch_ = touchStart_ + std::copysign(touchSlop, y - touchStart_);
    }
    follow(raw_ + (lastTouch_ - y) / rowHeight_);
    lastTouch_ = y;
}

void UIPickerTurn::touchEnded(CGFloat y, NSTimeInterval time, std::optional<NSInteger> tappedRow) {
    // The release itself is no movement, but some systems report the last piece of one only with it.
    if (y != lastTouch_ && (state_ == State::Dragged || std::fabs(y - touchStart_) > touchSlop)) touchMoved(y, time);
    finger_.reset();
    // 1. A finger that stopped the column and did not move: the column sits down where it was stopped.
    if (state_ == State::Touched && stoppedMotion_) {
        snap(time);
        return;
    }
    // 2. A tap. On the centre row, and beside the rows, it turns nothing.
    if (state_ == State::Touched) {
        state_ = State::AtRest;
        if (tappedRow && *tappedRow != rowInBand()) glideToRow(*tappedRow, UIScrollMotion::requestDuration, time);
        return;
    }
    // 3. Let go beyond an end: back to the end, whatever the speed.
    if (offset_ < firstOffset() || offset_ > lastOffset()) {
        snap(time);
        return;
    }
    // 4. A fling: first the row, then the curve that ends on it. Without speed this is the nearest row.
    const double velocity = releaseVelocityAt(time);
    anchorAt(rowAtOffset(offset_ + UIScrollMotion::travelOfVelocity(velocity)));
    motion_ = UIScrollMotion::fling(offset_, velocity, 0, velocity < 0 ? firstOffset() : lastOffset(), time);
    state_ = State::Gliding;
}

void UIPickerTurn::touchCancelled(NSTimeInterval time) {
    finger_.reset();
    const bool turnedNothing = state_ == State::Touched && !stoppedMotion_;
    if (turnedNothing) {
        state_ = State::AtRest;
    } else {
        snap(time);
    }
}

// The mouse wheel, the trackpad and the keys

NSInteger UIPickerTurn::stepStart() const {
    // Each notch and key counts from the row that the last one is still on its way to, so none is lost.
    return state_ == State::Gliding ? landingRow() : rowInBand();
}

NSInteger UIPickerTurn::rowAfter(NSInteger rows) const {
    const NSInteger from = stepStart();
    return from + std::clamp<NSInteger>(rows, -from, count_ - 1 - from);
}

/// What comes on and on at the end does not slow down the way there.
bool UIPickerTurn::isOnItsWayTo(NSInteger row) const {
    return row == stepStart() && (state_ == State::AtRest || state_ == State::Gliding || state_ == State::Landed);
}

NSTimeInterval UIPickerTurn::stepDuration() const {
    const NSTimeInterval left = state_ == State::Gliding ? motion_.timeLeftAt(lastFrame_) : 0;
    return std::max(UIScrollMotion::notchDuration, left);
}

bool UIPickerTurn::scrollNotches(double notches, NSTimeInterval time) {
    if (finger_ || count_ == 0 || !std::isfinite(notches)) return false;
    const bool isOnward = notches * notches_ >= 0 && time - lastNotch_ <= notchSuccession;
    lastNotch_ = time;
    notches_ = isOnward ? notches_ + notches : notches;
    const double whole = std::trunc(notches_ + std::copysign(notchTolerance, notches_));
    if (whole == 0) return true;
    notches_ -= whole;
    const NSInteger row = rowAfter(truncateTo<NSInteger>(whole));
    if (row == 0 || row == count_ - 1) notches_ = 0;
    if (isOnItsWayTo(row)) return true; // At the end there is nothing to turn.
    if (!isUsersTurn()) passed_ = rowInBand();
    glideToRow(row, stepDuration(), std::nullopt);
    return true;
}

bool UIPickerTurn::stepByRows(NSInteger rows) { return !finger_ && count_ > 0 && turnToRow(rowAfter(rows)); }

bool UIPickerTurn::turnToRow(NSInteger row) {
    if (finger_ || count_ == 0) return false;
    const NSInteger held = std::clamp<NSInteger>(row, 0, count_ - 1);
    if (isOnItsWayTo(held)) return true;
    const NSInteger from = stepStart();
    if (!isUsersTurn()) passed_ = rowInBand();
    const bool isStep = held - from >= -1 && held - from <= 1;
    glideToRow(held, isStep ? stepDuration() : UIScrollMotion::requestDuration, std::nullopt);
    return true;
}

bool UIPickerTurn::scrollPoints(CGFloat points, NSTimeInterval time, bool isFinished) {
    if (finger_ || count_ == 0) return false;
    const bool isScrolled = state_ == State::Scrolled;
    const double from = isScrolled ? raw_ : rawOffset(offset_);
    // A trackpad glides on after the fingers have left it: beyond an end that is no pull, and would take all rows out of sight.
    const double rows = std::isfinite(points) ? points / rowHeight_ : 0;
    const double to = std::clamp(from + rows, std::min(from, firstOffset()), std::max(from, lastOffset()));
    if (to == from && !isScrolled) return true; // There is nothing to turn.
    if (!isUsersTurn()) passed_ = rowInBand();
    state_ = State::Scrolled;
    follow(to);
    lastScroll_ = time;
    if (isFinished) snap(time);
    return true;
}

// Time

bool UIPickerTurn::advanceToTime(NSTimeInterval time) {
    lastFrame_ = time;
    if (state_ == State::Scrolled) {
        lastScroll_ = UIScrollMotion::startSeenAt(lastScroll_, time);
        if (time - lastScroll_ >= scrollIdle) snap(time);
    }
    if (state_ != State::Gliding && state_ != State::Requested) return isMoving();
    motion_.beginAt(time);
    offset_ = motion_.positionAt(time);
    if (motion_.isOverAt(time)) finish();
    return isMoving();
}

void UIPickerTurn::finish() {
    const bool turnedNothing = state_ == State::Touched && !stoppedMotion_;
    const bool isReported = isUsersTurn() && !turnedNothing;
    standOnRow(landingRow());
    if (!isReported) return;
    state_ = State::Landed;
    landed_ = anchor_;
}

bool UIPickerTurn::arrive() {
    if (state_ != State::Gliding && state_ != State::Requested) return false;
    finish();
    return true;
}

NSInteger UIPickerTurn::takePassedRows() {
    const NSInteger before = passed_;
    passed_ = rowInBand();
    if (!isUsersTurn()) return 0;
    return passed_ > before ? passed_ - before : before - passed_;
}

std::optional<NSInteger> UIPickerTurn::takeLanding() {
    if (state_ != State::Landed) return std::nullopt;
    state_ = State::AtRest;
    return landed_;
}

} // namespace gx
