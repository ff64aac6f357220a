#include "UIPickerColumnAxis.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"

namespace gx {

// Position

bool UIPickerColumnAxis::isMoving() const { return axis_.isGoing() || state() == State::Scrolled || state() == State::Landed; }

NSInteger UIPickerColumnAxis::rowNear(double offset) const {
    const NSInteger row = wrappingAdd(anchor_, truncateTo<NSInteger>(axis_.landingNear(offset)));
    return std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0));
}

NSInteger UIPickerColumnAxis::nearestRow() const { return count_ > 0 ? rowNear(offset()) : 0; }

NSInteger UIPickerColumnAxis::landingRow() const { return axis_.isGoing() || state() == State::Landed ? anchor_ : nearestRow(); }

void UIPickerColumnAxis::anchorAt(NSInteger row) {
    // Both lie in [0, count), so the difference is safe.
    axis_.moveOrigin(static_cast<double>(row - anchor_));
    anchor_ = row;
    setRange();
}

void UIPickerColumnAxis::setRange() {
    axis_.setRange({static_cast<double>(-anchor_), static_cast<double>(count_ - 1 - anchor_), extent_ / rowHeight_, rowHeight_});
}

void UIPickerColumnAxis::setRows_height_extent(NSInteger count, CGFloat rowHeight, CGFloat extent, NSInteger reportedRow) {
    const bool isGone = (axis_.isGoing() || state() == State::Landed) && landingRow() >= count;
    const bool isUsers = isUsersGesture();
    count_ = std::max<NSInteger>(count, 0);
    rowHeight_ = rowHeight;
    extent_ = extent;
    if (count_ == 0) {
        // Nothing is left to land on, so nothing is reported.
        restOnRow(0);
    } else if (isGone) {
        stepped_.reset();
        restOnRow(reportedRow);
        if (isUsers) axis_.landAt(0);
    } else {
        if (stepped_ && *stepped_ >= count_) stepped_.reset();
        anchorAt(std::min(anchor_, count_ - 1));
        axis_.adjustToRange();
    }
}

void UIPickerColumnAxis::restOnRow(NSInteger row) {
    anchor_ = std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0));
    setRange();
    axis_.restAt(0);
}

void UIPickerColumnAxis::requestRow(NSInteger row) {
    axis_.touchEnded();
    glideToRow(row, UIScrollMotion::requestDuration, std::nullopt, State::Requested);
}

void UIPickerColumnAxis::glideToRow(NSInteger row, NSTimeInterval duration, std::optional<NSTimeInterval> start, State state) {
    // Counted from the row that it lands on, the movement ends on exactly that row however far it
    // comes from.
    anchorAt(std::clamp<NSInteger>(row, 0, std::max<NSInteger>(count_ - 1, 0)));
    axis_.easeTo(0, duration, start, state);
}

void UIPickerColumnAxis::snap(std::optional<NSTimeInterval> start) { glideToRow(nearestRow(), UIScrollMotion::snapDuration, start); }

/// Rows that pass are counted from where the user's gesture begins, and its steps are its own.
void UIPickerColumnAxis::beginGesture() {
    if (isUsersGesture()) return;
    passed_ = nearestRow();
    stepped_.reset();
}

// The finger

bool UIPickerColumnAxis::hasMovedNothing() const { return state() == State::Touched && !axis_.hasCaughtMovement(); }

double UIPickerColumnAxis::releaseVelocityAt(NSTimeInterval time) const {
    const double fingers = axis_.releaseVelocityAt(time);
    // Only a finger that flings by itself, by a row at least, hastens a fling; one that guides the
    // column does not.
    const bool isFling = std::fabs(UIScrollMotion::travelOfVelocity(fingers)) >= 1;
    const bool isInTime = time - touchTime_ <= flingSuccession;
    if (!isFling || !isInTime || !(fingers * caughtVelocity_ > 0)) return fingers;
    // A finger that is faster alone keeps its speed.
    const double fastest = std::max(fastestSuccession, std::fabs(fingers));
    return std::clamp(fingers + caughtVelocity_, -fastest, fastest);
}

void UIPickerColumnAxis::touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time) {
    if (isHeld() || count_ == 0) return;
    caughtVelocity_ = axis_.flingVelocityAt(time);
    touchTime_ = time;
    beginGesture();
    axis_.touchBegan(identifier, y, time);
    notches_ = 0;
}

void UIPickerColumnAxis::touchEnded(CGFloat y, NSTimeInterval time, std::optional<NSInteger> tappedRow) {
    if (axis_.isMoveTo(y)) touchMoved(y, time);
    axis_.touchEnded();
    // 1. A finger that stopped the column and did not move: the column comes to rest where it was
    //    stopped.
    if (state() == State::Touched && axis_.hasCaughtMovement()) {
        snap(time);
        return;
    }
    // 2. A tap. On the centre row, and beside the rows, it moves nothing.
    if (state() == State::Touched) {
        axis_.restAt(offset());
        if (tappedRow && *tappedRow != nearestRow()) glideToRow(*tappedRow, UIScrollMotion::requestDuration, time);
        return;
    }
    // 3. Let go beyond an end: back to the end, whatever the speed.
    if (axis_.isBeyondEnd()) {
        snap(time);
        return;
    }
    // 4. A fling: first the row, then the curve that ends on it. Without speed this is the nearest
    //    row.
    const double velocity = releaseVelocityAt(time);
    anchorAt(rowNear(offset() + UIScrollMotion::travelOfVelocity(velocity)));
    axis_.flingTo(0, velocity, time);
}

void UIPickerColumnAxis::touchCancelled(NSTimeInterval time) {
    axis_.touchEnded();
    if (hasMovedNothing()) {
        axis_.restAt(offset());
    } else {
        snap(time);
    }
}

// The mouse wheel, the trackpad and the keys

NSInteger UIPickerColumnAxis::stepStart() const {
    // Each notch and key counts from the row that the last one is still on its way to, so none is
    // lost.
    return state() == State::Gliding ? landingRow() : nearestRow();
}

NSInteger UIPickerColumnAxis::rowAfter(NSInteger rows) const {
    const NSInteger from = stepStart();
    return from + std::clamp<NSInteger>(rows, -from, count_ - 1 - from);
}

/// Steps that go on at the end do not slow down the way there.
bool UIPickerColumnAxis::isOnItsWayTo(NSInteger row) const {
    return row == stepStart() && (state() == State::AtRest || state() == State::Gliding || state() == State::Landed);
}

NSTimeInterval UIPickerColumnAxis::stepDuration() const { return std::max(UIScrollMotion::notchDuration, axis_.timeLeftAt(lastFrame_)); }

bool UIPickerColumnAxis::scrollNotches(double notches, NSTimeInterval time) {
    if (isHeld() || count_ == 0 || !std::isfinite(notches)) return false;
    const bool isOnward = notches * notches_ >= 0 && time - lastNotch_ <= notchSuccession;
    lastNotch_ = time;
    notches_ = isOnward ? notches_ + notches : notches;
    const double whole = std::trunc(notches_ + std::copysign(notchTolerance, notches_));
    if (whole == 0) return true;
    notches_ -= whole;
    const NSInteger row = rowAfter(truncateTo<NSInteger>(whole));
    if (row == 0 || row == count_ - 1) notches_ = 0;
    if (isOnItsWayTo(row)) return true; // At the end there is nothing to move.
    beginGesture();
    glideToRow(row, stepDuration(), std::nullopt);
    return true;
}

bool UIPickerColumnAxis::stepByRows(NSInteger rows) { return !isHeld() && count_ > 0 && spinToRow(rowAfter(rows)); }

bool UIPickerColumnAxis::spinToRow(NSInteger row) {
    if (isHeld() || count_ == 0) return false;
    const NSInteger to = std::clamp<NSInteger>(row, 0, count_ - 1);
    if (isOnItsWayTo(to)) return true;
    const NSInteger from = stepStart();
    beginGesture();
    const bool isStep = to - from >= -1 && to - from <= 1;
    glideToRow(to, isStep ? stepDuration() : UIScrollMotion::requestDuration, std::nullopt);
    stepped_ = to;
    return true;
}

bool UIPickerColumnAxis::scrollPoints(CGFloat points, NSTimeInterval time, bool isFinished) {
    if (isHeld() || count_ == 0) return false;
    const double from = axis_.rawPosition();
    // A trackpad goes on after the fingers have left it. Beyond an end that is no pull, and would
    // take all rows out of sight.
    const double rows = std::isfinite(points) ? points / rowHeight_ : 0;
    const double to = std::clamp(from + rows, std::min(from, axis_.range().first), std::max(from, axis_.range().last));
    if (to == from && state() != State::Scrolled) return true; // There is nothing to move.
    beginGesture();
    axis_.scrollTo(to);
    lastScroll_ = time;
    if (isFinished) snap(time);
    return true;
}

// Time

bool UIPickerColumnAxis::advanceToTime(NSTimeInterval time) {
    lastFrame_ = time;
    if (state() == State::Scrolled) {
        lastScroll_ = UIScrollMotion::startSeenAt(lastScroll_, time);
        if (time - lastScroll_ >= scrollIdle) snap(time);
    }
    if (axis_.advanceToTime(time)) finish();
    return isMoving();
}

void UIPickerColumnAxis::finish() {
    const bool isReported = isUsersGesture() && !hasMovedNothing();
    restOnRow(landingRow());
    if (isReported) axis_.landAt(0);
}

bool UIPickerColumnAxis::finishGoing() {
    if (!axis_.isGoing()) return false;
    finish();
    return true;
}

NSInteger UIPickerColumnAxis::takePassedRows() {
    const NSInteger before = passed_;
    passed_ = nearestRow();
    if (!isUsersGesture()) return 0;
    return passed_ > before ? passed_ - before : before - passed_;
}

std::optional<NSInteger> UIPickerColumnAxis::takeLanding() {
    if (state() != State::Landed) return std::nullopt;
    axis_.restAt(0);
    return anchor_;
}

} // namespace gx
