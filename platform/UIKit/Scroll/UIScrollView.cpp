#include "UIScrollView.h"

#include <algorithm>
#include <cmath>

#include "UIGraphicsContext.h"
#include "UIKey.h"
#include "UIScrollAxis.h"
#include "UIScrollIndicator.h"
#include "UIWindow.h"

namespace gx {

UIScrollView::UIScrollView()
    : axis_(std::make_unique<UIScrollAxis>(UIScrollFeel::scrollView)), indicator_(std::make_unique<UIScrollIndicator>()) {}
UIScrollView::~UIScrollView() = default;

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

// The offset

CGFloat UIScrollView::highestOffset() const { return std::max(0.0, contentSize_.height - bounds().size.height); }

/// The axis, with the present range and offset.
UIScrollAxis& UIScrollView::axis() const {
    axis_->setRange({0, highestOffset(), bounds().size.height, 1});
    axis_->setPosition(offset());
    return *axis_;
}

CGFloat UIScrollView::clamped(CGFloat offset) const { return axis().clamped(offset); }

bool UIScrollView::isDragging() const { return axis_->state() == UIScrollAxis::State::Dragged; }
bool UIScrollView::isDecelerating() const { return axis_->state() == UIScrollAxis::State::Gliding; }
bool UIScrollView::hasFinger() const { return axis_->isHeld(); }

void UIScrollView::moveTo(CGFloat offset) {
    if (offset == this->offset()) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGRect area = bounds();
    UIView::setBounds({{area.origin.x, offset}, area.size});
    scrollViewDidScroll();
}

void UIScrollView::setContentSize(CGSize size) {
    if (!std::isfinite(size.width) || !std::isfinite(size.height)) return;
    const CGSize least = {std::max(0.0, size.width), std::max(0.0, size.height)};
    if (least == contentSize_) return;
    contentSize_ = least;
    setNeedsDisplay();
    fitToContent();
}

void UIScrollView::fitToContent() {
    axis().adjustToRange();
    moveTo(axis_->position());
}

void UIScrollView::setContentOffset(CGPoint offset) { setContentOffset_animated(offset, false); }

void UIScrollView::setContentOffset_animated(CGPoint offset, bool animated) {
    if (!std::isfinite(offset.y)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGFloat target = clamped(offset.y);
    if (target == this->offset() && !axis_->isGoing()) return;
    axis_->restAt(this->offset());
    endPress(PressEnd::Cancel, 0);
    if (!animated || target == this->offset() || !canGlide()) return moveTo(target);
    flashScrollIndicators();
    axis().easeTo(target, UIScrollMotion::requestDuration, std::nullopt, UIScrollAxis::State::Requested);
    startMoving();
}

void UIScrollView::scrollRectToVisible_animated(CGRect rect, bool animated) {
    const CGFloat top = CGRectGetMinY(rect);
    const CGFloat lowest = CGRectGetMaxY(rect) - bounds().size.height;
    if (!std::isfinite(top) || !std::isfinite(lowest)) return;
    const CGFloat present = axis().target();
    const CGFloat target = std::min(std::max(present, lowest), top);
    if (target != present) setContentOffset_animated({0, target}, animated);
}

void UIScrollView::setFrame(CGRect frame) {
    const CGFloat heightBefore = bounds().size.height;
    UIView::setFrame(frame);
    if (bounds().size.height != heightBefore) fitToContent();
}

void UIScrollView::setBounds(CGRect newBounds) {
    const Ref<UIView> keep = refTo<UIView>(this);
    const CGRect before = bounds();
    UIView::setBounds({before.origin, newBounds.size});
    fitToContent();
    if (newBounds.origin.y != before.origin.y) setContentOffset(newBounds.origin);
}

void UIScrollView::didMoveToWindow() {
    UIView::didMoveToWindow();
    // Without a window no time passes and no finger comes: what moves arrives.
    if (!window()) finishAnimations();
}

void UIScrollView::finishAnimations() {
    const Ref<UIView> keep = refTo<UIView>(this);
    const bool isGoing = axis_->isGoing();
    const CGFloat target = axis().target();
    stop();
    indicator_->hide();
    setNeedsDisplay();
    if (isGoing) moveTo(clamped(target));
}

void UIScrollView::stop() {
    const Ref<UIView> keep = refTo<UIView>(this);
    axis_->restAt(offset());
    endPress(PressEnd::Cancel, 0);
    moveTo(clamped(offset()));
}

void UIScrollView::revealDescendant(CGRect rect) {
    const Ref<UIView> keep = refTo<UIView>(this);
    scrollRectToVisible_animated(rect, true);
    // Views above need to know where it will be: the way there has only begun.
    UIView::revealDescendant(CGRectOffset(rect, 0, offset() - axis().target()));
}

// Fingers

bool UIScrollView::touchBegan(const UITouch& touch) {
    const CGPoint point = convertPointFromWindow(touch.locationInWindow);
    const bool isSecond = axis_->isHeld() && !axis_->hasFinger(touch.identifier);
    // Taken, so that no view above uses it.
    if (isSecond || !std::isfinite(touch.locationInWindow.y)) return true;
    const Ref<UIView> keep = refTo<UIView>(this);
    endPress(PressEnd::Cancel, touch.timestamp); // Of the same finger, whose end was not reported.
    const bool stopsMovement = axis_->isGoing();
    axis().touchBegan(touch.identifier, touch.locationInWindow.y, touch.timestamp);
    isPressed_ = !stopsMovement;
    if (isPressed_) pressBegan(point, touch.timestamp);
    return true;
}

void UIScrollView::touchMoved(const UITouch& touch) {
    if (!axis_->hasFinger(touch.identifier)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    const bool begins = axis().touchMoved(touch.locationInWindow.y, touch.timestamp);
    if (isDragging()) flashScrollIndicators();
    if (!begins) return moveTo(axis_->position());
    endPress(PressEnd::Cancel, touch.timestamp);
    if (isDragging()) scrollViewWillBeginDragging();
}

void UIScrollView::touchEnded(const UITouch& touch) {
    if (!axis_->hasFinger(touch.identifier)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    if (axis_->isMoveTo(touch.locationInWindow.y)) touchMoved(touch);
    if (!axis_->hasFinger(touch.identifier)) return; // A callback has ended the touch.
    const double velocity = isDragging() ? axis().releaseVelocityAt(touch.timestamp) : 0;
    axis_->restAt(offset());
    if (axis().isBeyondEnd()) {
        springBack(touch.timestamp);
    } else if (velocity != 0 && highestOffset() > 0 && !reducesMotion()) {
        throwAt(velocity, touch.timestamp);
    }
    endPress(PressEnd::Tap, touch.timestamp);
    if (indicator_->isVisible()) startMoving();
}

void UIScrollView::touchCancelled(const UITouch& touch) {
    if (!axis_->hasFinger(touch.identifier)) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    axis_->restAt(offset());
    if (axis().isBeyondEnd()) springBack(touch.timestamp);
    endPress(PressEnd::Cancel, touch.timestamp);
    if (indicator_->isVisible()) startMoving();
}

void UIScrollView::endPress(PressEnd end, NSTimeInterval time) {
    if (!isPressed_) return;
    isPressed_ = false;
    pressEnded(end == PressEnd::Tap, time);
}

/// Whether content may move by itself: without a window it has no clock.
bool UIScrollView::canGlide() const { return window() && !reducesMotion(); }

void UIScrollView::throwAt(double velocity, NSTimeInterval time) {
    const CGFloat target = axis().landingNear(offset() + UIScrollMotion::travelOfVelocity(velocity));
    if (!canGlide()) return moveTo(target);
    axis_->flingTo(target, velocity, time);
    startMoving();
}

void UIScrollView::springBack(NSTimeInterval time) {
    const CGFloat target = axis().landingNear(offset());
    if (!canGlide()) return moveTo(target);
    axis_->easeTo(target, UIScrollMotion::snapDuration, time);
    startMoving();
}

// The mouse wheel and the trackpad

bool UIScrollView::scrolled(const UIScroll& scroll) {
    if (scroll.isSideways() || highestOffset() <= 0) return UIView::scrolled(scroll);
    const CGFloat points = scroll.deltaY * (scroll.unit == UIScroll::Unit::Notches ? pointsPerNotch : 1);
    if (axis_->isHeld() || !std::isfinite(points) || points == 0) return true;
    axis_->restAt(offset());
    flashScrollIndicators();
    moveTo(clamped(offset() + points));
    return true;
}

// Keys

bool UIScrollView::keyPressed(const UIKey& key) {
    if (highestOffset() <= 0 || key.isCommand()) return UIView::keyPressed(key);
    const CGFloat page = std::max(pointsPerNotch, bounds().size.height - pointsPerNotch);
    CGFloat target = axis().target();
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
    if (hasFinger()) return true;
    flashScrollIndicators();
    setContentOffset_animated({0, target}, true);
    return true;
}

// Time

bool UIScrollView::isMoving() const { return axis_->isGoing() || (indicator_->isVisible() && !isDragging()); }

void UIScrollView::flashScrollIndicators() {
    if (!window() || highestOffset() <= 0) return; // Without a window no time passes.
    indicator_->show();
    setNeedsDisplay();
    startMoving();
}

void UIScrollView::startMoving() {
    if (const Ref<UIWindow> window = this->window()) window->animateView(refTo<UIView>(this));
}

bool UIScrollView::reducesMotion() const {
    const Ref<UIWindow> window = this->window();
    return window && window->reducesMotion();
}

bool UIScrollView::advanceToTime(NSTimeInterval time) {
    const Ref<UIView> keep = refTo<UIView>(this);
    if (indicator_->advanceToTime(time, axis_->isGoing() || isDragging(), !reducesMotion())) setNeedsDisplay();
    if (axis_->isGoing()) {
        const bool isOver = axis().advanceToTime(time) || reducesMotion();
        if (isOver) axis_->restAt(axis_->target());
        moveTo(axis_->position());
    }
    return isMoving();
}

// Drawing

void UIScrollView::drawScrolledViews(UIGraphicsContext& context) { UIView::drawSubviews(context); }

void UIScrollView::drawSubviews(UIGraphicsContext& context) {
    drawScrolledViews(context);
    indicator_->draw(context, bounds(), contentSize_.height);
}

} // namespace gx
