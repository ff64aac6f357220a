#include "UIScrollAxis.h"

#include <algorithm>
#include <cmath>

namespace gx {

// The range

double UIScrollAxis::clamped(double position) const { return std::clamp(position, range_.first, range_.last); }

double UIScrollAxis::landingNear(double position) const {
    const double nearest = clamped(position);
    return feel_.landing == UIScrollFeel::Landing::NearestRow ? std::round(nearest) : nearest;
}

void UIScrollAxis::adjustToRange() {
    switch (state_) {
    case State::Touched:
        break; // What lies beyond an end springs back when the finger leaves.
    case State::Dragged:
    case State::Scrolled:
        position_ = shown(raw_);
        break;
    case State::Gliding:
    case State::Requested:
        if (target_ == clamped(target_)) break;
        state_ = State::AtRest;
        [[fallthrough]];
    case State::AtRest:
    case State::Landed:
        position_ = clamped(position_);
        break;
    }
}

void UIScrollAxis::moveOrigin(double distance) {
    position_ -= distance;
    raw_ -= distance;
    target_ -= distance;
}

double UIScrollAxis::shown(double raw) const {
    const double first = range_.first;
    const double last = range_.last;
    if (!feel_.pullsWhenAllFits && last <= first) return first;
    if (raw < first) return first - UIScrollMotion::rubberBand(first - raw, range_.extent);
    if (raw > last) return last + UIScrollMotion::rubberBand(raw - last, range_.extent);
    return raw;
}

double UIScrollAxis::rawOf(double shown) const {
    const double first = range_.first;
    const double last = range_.last;
    if (shown < first) return first - UIScrollMotion::rubberBandInverse(first - shown, range_.extent);
    if (shown > last) return last + UIScrollMotion::rubberBandInverse(shown - last, range_.extent);
    return shown;
}

// Rest

void UIScrollAxis::restAt(double position) {
    position_ = position;
    finger_.reset();
    state_ = State::AtRest;
}

void UIScrollAxis::landAt(double position) {
    restAt(position);
    state_ = State::Landed;
}

// Fingers

void UIScrollAxis::touchBegan(std::int64_t identifier, CGFloat y, NSTimeInterval time) {
    hasCaughtMovement_ = state_ != State::AtRest;
    finger_ = identifier;
    touchStart_ = lastTouch_ = y;
    raw_ = rawOf(position_);
    velocity_.reset();
    velocity_.add(time, y);
    state_ = State::Touched;
}

bool UIScrollAxis::touchMoved(CGFloat y, NSTimeInterval time) {
    if (!std::isfinite(y)) return false;
    velocity_.add(time, y);
    const bool begins = state_ == State::Touched;
    if (begins) {
        const CGFloat way = y - touchStart_;
        if (std::fabs(way) <= feel_.touchSlop) return false;
        state_ = State::Dragged;
        lastTouch_ = feel_.startsAtSlop ? touchStart_ + std::copysign(feel_.touchSlop, way) : y;
        if (!feel_.startsAtSlop) return true;
    }
    follow(raw_ + (lastTouch_ - y) / range_.pointsPerPosition);
    lastTouch_ = y;
    return begins;
}

bool UIScrollAxis::isMoveTo(CGFloat y) const {
    return y != lastTouch_ && (state_ == State::Dragged || std::fabs(y - touchStart_) > feel_.touchSlop);
}

void UIScrollAxis::touchEnded() { finger_.reset(); }

double UIScrollAxis::releaseVelocityAt(NSTimeInterval time) const { return -velocity_.velocityAt(time) / range_.pointsPerPosition; }

void UIScrollAxis::follow(double raw) {
    const double bounded = std::clamp(raw, -feel_.furthestPull, feel_.furthestPull);
    if (!std::isfinite(bounded)) return;
    raw_ = bounded;
    position_ = shown(raw_);
}

// The trackpad

void UIScrollAxis::scrollTo(double rawPosition) {
    state_ = State::Scrolled;
    follow(rawPosition);
}

// Movement

void UIScrollAxis::easeTo(double target, NSTimeInterval duration, std::optional<NSTimeInterval> start, State state) {
    motion_ = UIScrollMotion::ease((position_ - target) / feel_.positionsPerRow, 0, duration, start);
    target_ = target;
    state_ = state;
}

void UIScrollAxis::flingTo(double target, double velocity, NSTimeInterval start) {
    const double end = velocity < 0 ? range_.first : range_.last;
    const double row = feel_.positionsPerRow;
    motion_ = UIScrollMotion::fling((position_ - target) / row, velocity / row, 0, (end - target) / row, start);
    target_ = target;
    state_ = State::Gliding;
}

double UIScrollAxis::flingVelocityAt(NSTimeInterval time) const {
    return state_ == State::Gliding ? motion_.flingVelocityAt(time) * feel_.positionsPerRow : 0;
}

NSTimeInterval UIScrollAxis::timeLeftAt(NSTimeInterval time) const { return state_ == State::Gliding ? motion_.timeLeftAt(time) : 0; }

bool UIScrollAxis::advanceToTime(NSTimeInterval time) {
    if (!isGoing()) return false;
    motion_.beginAt(time);
    const bool isOver = motion_.isOverAt(time);
    position_ = isOver ? target_ : target_ + feel_.positionsPerRow * motion_.positionAt(time);
    return isOver;
}

} // namespace gx
