// What fingers, the mouse wheel and the trackpad do to content that scrolls.

#include <algorithm>
#include <cmath>

#include "UIScrollView.h"

namespace gx {

namespace {

// Further than any finger pulls. The bound keeps sums finite.
constexpr CGFloat furthestPull = 1e15;

} // namespace

// Fingers

CGFloat UIScrollView::bandedOffset(CGFloat raw) const {
    const CGFloat highest = highestOffset();
    const CGFloat extent = bounds().size.height;
    if (highest <= 0) return 0; // What fits stays where it is.
    if (raw < 0) return -UIScrollMotion::rubberBand(-raw, extent);
    if (raw > highest) return highest + UIScrollMotion::rubberBand(raw - highest, extent);
    return raw;
}

CGFloat UIScrollView::rawOffset(CGFloat displayed) const {
    const CGFloat highest = highestOffset();
    const CGFloat extent = bounds().size.height;
    if (displayed < 0) return -UIScrollMotion::rubberBandInverse(-displayed, extent);
    if (displayed > highest) return highest + UIScrollMotion::rubberBandInverse(displayed - highest, extent);
    return displayed;
}

bool UIScrollView::touchBegan(const UITouch& touch) {
    const CGPoint point = convertPointFromWindow(touch.locationInWindow);
    const bool isSecond = finger_ && *finger_ != touch.identifier;
    if (isSecond || !std::isfinite(touch.locationInWindow.y)) return true; // Nobody else's either.
    const Ref<UIView> keep = refTo<UIView>(this);
    endPress(false, touch.timestamp); // The same finger anew: how it ended before, nobody told.
    const bool stopsMotion = UIScrollView::isMoving();
    finger_ = touch.identifier;
    state_ = State::Touched;
    touchStart_ = lastTouch_ = touch.locationInWindow.y;
    raw_ = rawOffset(offset());
    velocity_.reset();
    velocity_.add(touch.timestamp, touchStart_);
    isPressed_ = !stopsMotion;
    if (isPressed_) pressBegan(point, touch.timestamp);
    return true;
}

void UIScrollView::touchMoved(const UITouch& touch) {
    const CGFloat y = touch.locationInWindow.y;
    if (finger_ != touch.identifier || !std::isfinite(y)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    velocity_.add(touch.timestamp, y);
    if (state_ != State::Dragged) {
        if (std::fabs(y - touchStart_) <= touchSlop) return;
        // The content starts where the finger is found beyond the slop, so that it does not jump.
        state_ = State::Dragged;
        lastTouch_ = y;
        endPress(false, touch.timestamp);
        if (state_ == State::Dragged) scrollViewWillBeginDragging();
        return;
    }
    raw_ = std::clamp(raw_ + (lastTouch_ - y), -furthestPull, furthestPull);
    lastTouch_ = y;
    moveTo(bandedOffset(raw_));
}

void UIScrollView::touchEnded(const UITouch& touch) {
    if (finger_ != touch.identifier) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    // The release itself is no movement, but some systems report the last piece of one only with it.
    if (touch.locationInWindow.y != lastTouch_) touchMoved(touch);
    if (finger_ != touch.identifier) return; // Whoever was told has ended it.
    finger_.reset();
    const bool wasDragged = state_ == State::Dragged;
    state_ = State::AtRest;
    const double velocity = wasDragged ? -velocity_.velocityAt(touch.timestamp) : 0;
    const CGFloat highest = highestOffset();
    if (offset() != held(offset())) {
        springBack(touch.timestamp);
    } else if (velocity != 0 && highest > 0 && !reducesMotion()) {
        const CGFloat target = held(offset() + UIScrollMotion::travelOfVelocity(velocity));
        const CGFloat end = velocity < 0 ? 0 : highest;
        glide(State::Gliding, target,
              UIScrollMotion::fling((offset() - target) / motionRow, velocity / motionRow, 0, (end - target) / motionRow, touch.timestamp));
    }
    endPress(true, touch.timestamp);
}

void UIScrollView::touchCancelled(const UITouch& touch) {
    if (finger_ != touch.identifier) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    finger_.reset();
    state_ = State::AtRest;
    if (offset() != held(offset())) springBack(touch.timestamp);
    endPress(false, touch.timestamp);
}

void UIScrollView::endPress(bool isTap, NSTimeInterval time) {
    if (!isPressed_) return;
    isPressed_ = false;
    pressEnded(isTap, time);
}

void UIScrollView::springBack(NSTimeInterval time) {
    const CGFloat target = held(offset());
    glide(State::Gliding, target, UIScrollMotion::ease((offset() - target) / motionRow, 0, UIScrollMotion::snapDuration, time));
}

// The mouse wheel and the trackpad

bool UIScrollView::scrolled(const UIScroll& scroll) {
    if (scroll.isSideways() || highestOffset() <= 0) return UIView::scrolled(scroll);
    const CGFloat points = scroll.deltaY * (scroll.unit == UIScroll::Unit::Notches ? pointsPerNotch : 1);
    if (finger_ || !std::isfinite(points) || points == 0) return true; // The finger goes before.
    state_ = State::AtRest;
    moveTo(held(offset() + points));
    return true;
}

} // namespace gx
