#include "UIScrollView.h"

#include <algorithm>
#include <cmath>

#include "UIGraphicsContext.h"
#include "UIKey.h"
#include "UIWindow.h"

namespace gx {

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
    if (animated && target != this->offset()) {
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
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGRect before = bounds();
    UIView::setBounds({before.origin, newBounds.size});
    holdToContent();
    if (newBounds.origin.y != before.origin.y) setContentOffset(newBounds.origin);
}

void UIScrollView::didMoveToWindow() {
    UIView::didMoveToWindow();
    // Without a window no time passes and no finger comes: what moves arrives.
    if (!window()) finishAnimations();
}

void UIScrollView::finishAnimations() {
    const Ref<UIView> keep = refTo<UIView>(this);
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

void UIScrollView::revealDescendant(CGRect rect) {
    const Ref<UIView> keep = refTo<UIView>(this);
    scrollRectToVisible_animated(rect, true);
    // For who is above, where it will be: the way there has only begun.
    UIView::revealDescendant(CGRectOffset(rect, 0, offset() - offsetAtRest()));
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
