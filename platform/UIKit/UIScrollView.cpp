#include "UIScrollView.h"

#include <algorithm>
#include <cmath>

#include "UIGraphicsContext.h"
#include "UIKey.h"
#include "UIWindow.h"

namespace gx {

namespace {

// The curves count in rows; so many points are one, the height of a row of a list.
constexpr CGFloat motionRow = 44;
// Further than any finger pulls. The bound keeps sums finite.
constexpr CGFloat furthestPull = 1e15;

} // namespace

bool UIScrollView::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setClipsToBounds(true);
    return true;
}

bool UIScrollView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    setClipsToBounds(true);
    return true;
}

// Where the content stands

CGFloat UIScrollView::highestOffset() const { return std::max(0.0, contentSize_.height - bounds().size.height); }

/// Where it is heading for, or else where it is.
CGFloat UIScrollView::offsetAtRest() const { return UIScrollView::isMoving() ? target_ : offset(); }

CGFloat UIScrollView::held(CGFloat offset) const { return std::clamp(offset, 0.0, highestOffset()); }

void UIScrollView::moveTo(CGFloat offset) {
    if (offset == this->offset()) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGRect area = bounds();
    UIView::setBounds({{area.origin.x, offset}, area.size});
    scrollViewDidScroll();
}

void UIScrollView::setContentSize(CGSize size) {
    if (!std::isfinite(size.width) || !std::isfinite(size.height)) return;
    const CGSize taken = {std::max(0.0, size.width), std::max(0.0, size.height)};
    if (taken == contentSize_) return;
    contentSize_ = taken;
    setNeedsDisplay();
    holdToContent();
}

void UIScrollView::holdToContent() {
    switch (state_) {
    case State::AtRest:
        moveTo(held(offset()));
        break;
    case State::Touched:
        break; // What lies beyond an end springs back when the finger leaves.
    case State::Dragged:
        moveTo(bandedOffset(raw_));
        break;
    case State::Gliding:
    case State::Requested:
        if (target_ == held(target_)) break;
        state_ = State::AtRest;
        moveTo(held(offset()));
        break;
    }
}

void UIScrollView::setContentOffset(CGPoint offset) { setContentOffset_animated(offset, false); }

void UIScrollView::setContentOffset_animated(CGPoint offset, bool animated) {
    if (!std::isfinite(offset.y)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGFloat target = held(offset.y);
    if (target == this->offset() && !UIScrollView::isMoving()) return;
    finger_.reset();
    state_ = State::AtRest;
    endPress(false, 0);
    if (animated) {
        glide(State::Requested, target,
              UIScrollMotion::ease((this->offset() - target) / motionRow, 0, UIScrollMotion::requestDuration, std::nullopt));
    } else {
        moveTo(target);
    }
}

void UIScrollView::scrollRectToVisible_animated(CGRect rect, bool animated) {
    const CGFloat top = CGRectGetMinY(rect);
    const CGFloat lowest = CGRectGetMaxY(rect) - bounds().size.height;
    if (!std::isfinite(top) || !std::isfinite(lowest)) return;
    const CGFloat target = std::min(std::max(offsetAtRest(), lowest), top);
    if (target != offsetAtRest()) setContentOffset_animated({0, target}, animated);
}

void UIScrollView::setFrame(CGRect frame) {
    const CGFloat heightBefore = bounds().size.height;
    UIView::setFrame(frame);
    if (bounds().size.height != heightBefore) holdToContent();
}

void UIScrollView::setBounds(CGRect newBounds) {
    const CGRect before = bounds();
    UIView::setBounds({before.origin, newBounds.size});
    holdToContent();
    if (newBounds.origin.y != before.origin.y) setContentOffset(newBounds.origin);
}

void UIScrollView::didMoveToWindow() {
    UIView::didMoveToWindow();
    // Without a window no time passes and no finger comes: what moves arrives.
    if (window()) return;
    const bool isUnderway = UIScrollView::isMoving();
    const CGFloat target = target_;
    stop();
    if (isUnderway) moveTo(held(target));
}

void UIScrollView::stop() {
    const Ref<UIView> keep = refTo<UIView>(this);
    finger_.reset();
    state_ = State::AtRest;
    endPress(false, 0);
    moveTo(held(offset()));
}

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

void UIScrollView::touchBegan(const UITouch& touch) {
    const CGPoint point = convertPointFromWindow(touch.locationInWindow);
    const bool isSecond = finger_ && *finger_ != touch.identifier;
    if (isSecond || !std::isfinite(touch.locationInWindow.y)) return;
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

// The mouse wheel and the trackpad

void UIScrollView::revealDescendant(CGRect rect) {
    const Ref<UIView> keep = refTo<UIView>(this);
    scrollRectToVisible_animated(rect, true);
    // For who is above, where it will be: the way there has only begun.
    UIView::revealDescendant(CGRectOffset(rect, 0, offset() - offsetAtRest()));
}

bool UIScrollView::scrolled(const UIScroll& scroll) {
    if (highestOffset() <= 0) return UIView::scrolled(scroll);
    const CGFloat points = scroll.deltaY * (scroll.unit == UIScroll::Unit::Notches ? pointsPerNotch : 1);
    if (finger_ || !std::isfinite(points) || points == 0) return true; // The finger goes before.
    state_ = State::AtRest;
    moveTo(held(offset() + points));
    return true;
}

// Keys

bool UIScrollView::keyPressed(const UIKey& key) {
    if (highestOffset() <= 0 || key.isCommand()) return UIView::keyPressed(key);
    const CGFloat page = std::max(pointsPerNotch, bounds().size.height - pointsPerNotch);
    CGFloat target = offsetAtRest();
    switch (key.code) {
    case UIKey::Code::Up:
        target -= pointsPerNotch;
        break;
    case UIKey::Code::Down:
        target += pointsPerNotch;
        break;
    case UIKey::Code::PageUp:
        target -= page;
        break;
    case UIKey::Code::PageDown:
        target += page;
        break;
    case UIKey::Code::Home:
        target = 0;
        break;
    case UIKey::Code::End:
        target = highestOffset();
        break;
    default:
        return UIView::keyPressed(key);
    }
    if (!finger_) setContentOffset_animated({0, target}, true);
    return true;
}

// Time

bool UIScrollView::isMoving() const { return state_ == State::Gliding || state_ == State::Requested; }

void UIScrollView::startMoving() {
    if (const Ref<UIWindow> window = this->window()) window->animateView(refTo<UIView>(this));
}

bool UIScrollView::reducesMotion() const {
    const Ref<UIWindow> window = this->window();
    return window && window->reducesMotion();
}

void UIScrollView::glide(State state, CGFloat target, const UIScrollMotion& motion) {
    if (!window() || reducesMotion()) {
        moveTo(target);
        return;
    }
    state_ = state;
    target_ = target;
    motion_ = motion;
    startMoving();
}

void UIScrollView::springBack(NSTimeInterval time) {
    const CGFloat target = held(offset());
    glide(State::Gliding, target, UIScrollMotion::ease((offset() - target) / motionRow, 0, UIScrollMotion::snapDuration, time));
}

bool UIScrollView::advanceToTime(NSTimeInterval time) {
    const Ref<UIView> keep = refTo<UIView>(this);
    if (UIScrollView::isMoving()) {
        motion_.beginAt(time);
        const bool isOver = motion_.isOverAt(time) || reducesMotion();
        if (isOver) state_ = State::AtRest;
        moveTo(isOver ? target_ : target_ + motionRow * motion_.positionAt(time));
    }
    return isMoving();
}

// For subclasses

void UIScrollView::scrollViewDidScroll() {}
void UIScrollView::scrollViewWillBeginDragging() {}
void UIScrollView::pressBegan(CGPoint, NSTimeInterval) {}
void UIScrollView::pressEnded(bool, NSTimeInterval) {}

// Drawing

void UIScrollView::drawScrolledViews(UIGraphicsContext& context) { UIView::drawSubviews(context); }

void UIScrollView::drawSubviews(UIGraphicsContext& context) {
    drawScrolledViews(context);
    drawScrollBar(context);
}

void UIScrollView::drawScrollBar(UIGraphicsContext& context) const {
    const CGFloat highest = highestOffset();
    if (highest <= 0) return;
    // A thin bar in the margin tells where the content stands.
    constexpr CGFloat thickness = 4;
    constexpr CGFloat inset = 4;
    constexpr CGFloat shortest = 32;
    const CGRect area = bounds();
    const CGFloat room = area.size.height - 2 * inset;
    const CGFloat length = std::min(room, std::max(shortest, area.size.height * area.size.height / contentSize_.height));
    const CGFloat y = CGRectGetMinY(area) + inset + (room - length) * held(offset()) / highest;
    context.fillRect(CGRectMake(CGRectGetMaxX(area) - inset - thickness, y, thickness, length), UIColor::tertiarySystemFillColor(),
                     0.5 * thickness);
}

} // namespace gx
