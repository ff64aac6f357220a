#include "UIWindow.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "UIPointerTracking.h"

namespace gx {

namespace {

// Unlike any finger that a host counts.
constexpr std::int64_t accessibilityFinger = std::numeric_limits<std::int64_t>::min();

} // namespace

UIWindow::UIWindow() : pointer_(std::make_unique<UIPointerTracking>()) {}

UIWindow::~UIWindow() {
    // Views that outlive the window are notified that they have left it, and end their movements.
    while (!subviews().empty()) {
        const Ref<UIView> view = subviews().back();
        view->removeFromSuperview();
    }
}

void UIWindow::setHost(UIWindowHost* host) {
    host_ = host;
    if (host_ && needsFrame_) host_->windowNeedsFrame();
}

void UIWindow::setUserInterfaceStyle(UIUserInterfaceStyle style) {
    if (style == style_) return;
    style_ = style;
    setNeedsDisplay();
}

void UIWindow::setAccessibilityContrast(UIAccessibilityContrast contrast) {
    if (contrast == contrast_) return;
    contrast_ = contrast;
    setNeedsDisplay();
}

std::vector<UIWindow::Touch>::iterator UIWindow::findTouch(std::int64_t identifier) {
    return std::find_if(touches_.begin(), touches_.end(),
                        [identifier](const Touch& entry) { return entry.touch.identifier == identifier; });
}

NSTimeInterval UIWindow::finiteTime(NSTimeInterval time) {
    // A movement that began at no time would never end.
    if (std::isfinite(time)) latestTime_ = time;
    return latestTime_;
}

void UIWindow::cancelTouchesWithin(const Ref<UIViewNode>& view) {
    const Ref<UIView> keep = refTo<UIView>(this);
    const auto isWithin = [view](const Touch& entry) { // A copy: a callback may clear the argument.
        const Ref<UIView> touched = entry.view.lock();
        return touched && touched->isDescendantOfView(view);
    };
    // Callbacks may modify touches_. The number of rounds is bounded, in case they bring fingers
    // down again.
    for (std::size_t rounds = touches_.size(); rounds > 0; --rounds) {
        const auto entry = std::find_if(touches_.begin(), touches_.end(), isWithin);
        if (entry == touches_.end()) return;
        touchCancelled_at_time(entry->touch.identifier, entry->touch.timestamp);
    }
}

bool UIWindow::touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    const Ref<UIView> keep = refTo<UIView>(this);
    time = finiteTime(time);
    touchCancelled_at_time(identifier, time);
    showFocus(false);
    layoutIfNeeded(); // The finger is meant for what the next frame would show.
    const UITouch touch = {identifier, time, location};
    const Ref<UIView> view = hitTest(location);
    if (!view) return false;
    touches_.push_back({touch, view});
    const bool isTaken = view->touchBegan(touch);
    if (identifier == UITouch::pointerIdentifier) updatePointer();
    return isTaken;
}

void UIWindow::touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    const auto entry = findTouch(identifier);
    if (entry == touches_.end()) return;
    entry->touch.locationInWindow = location;
    entry->touch.timestamp = finiteTime(time);
    const UITouch touch = entry->touch;
    if (const Ref<UIView> view = entry->view.lock()) view->touchMoved(touch);
}

void UIWindow::touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    const auto entry = findTouch(identifier);
    if (entry == touches_.end()) return;
    const UITouch touch = {identifier, finiteTime(time), location};
    const Ref<UIView> view = entry->view.lock();
    touches_.erase(entry);
    if (view) view->touchEnded(touch);
}

void UIWindow::touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time) {
    const auto entry = findTouch(identifier);
    if (entry == touches_.end()) return;
    UITouch touch = entry->touch;
    touch.timestamp = finiteTime(time);
    const Ref<UIView> view = entry->view.lock();
    touches_.erase(entry);
    if (view) view->touchCancelled(touch);
}

bool UIWindow::scroll(const UIScroll& scroll) {
    const Ref<UIView> keep = refTo<UIView>(this);
    layoutIfNeeded();
    const Ref<UIView> view = hitTest(scroll.locationInWindow);
    UIScroll timed = scroll;
    timed.timestamp = finiteTime(scroll.timestamp);
    return view && view->scrolled(timed);
}

// The pointer

void UIWindow::pointerMoved(CGPoint location) {
    const Ref<UIView> keep = refTo<UIView>(this);
    pointer_->setLocation(location);
    layoutIfNeeded();
    updatePointer();
}

void UIWindow::pointerLeft() {
    const Ref<UIView> keep = refTo<UIView>(this);
    pointer_->setLocation(std::nullopt);
    updatePointer();
}

UIPointerStyle UIWindow::pointerStyle() const { return pointer_->style(); }

void UIWindow::updatePointer() {
    const std::optional<CGPoint> location = pointer_->location();
    const auto pressed = findTouch(UITouch::pointerIdentifier);
    const Ref<UIView> topmost = !location ? nullptr : pressed != touches_.end() ? pressed->view.lock() : hitTest(*location);
    if (pointer_->hover(topmost) && host_ != nullptr) host_->pointerStyleDidChange(pointer_->style());
}

// Keys

bool UIWindow::keyDown(const UIKey& key) {
    if (!std::isfinite(key.timestamp)) {
        UIKey timed = key;
        timed.timestamp = latestTime_;
        return keyDown(timed);
    }
    const Ref<UIView> keep = refTo<UIView>(this);
    latestTime_ = key.timestamp;
    layoutIfNeeded(); // Which views take keys may depend on what they show.
    if (const Ref<UIView> first = firstResponder(); first && !first->takesInput()) setFirstResponder(nullptr);
    const Ref<UIView> first = firstResponder();
    const bool isTab = key.code == UIKey::Code::Tab || key.code == UIKey::Code::BackTab;
    bool isUsed = first && first->keyPressed(key);
    if (!isUsed && isTab && !key.isCommand()) isUsed = moveFocus(key.code == UIKey::Code::BackTab);
    if (isUsed) showFocus(true);
    return isUsed;
}

bool UIWindow::moveFocus(bool isBackward) {
    std::vector<Ref<UIView>> views;
    collectFocusable(views);
    if (isBackward) std::reverse(views.begin(), views.end());
    const auto present = std::find(views.begin(), views.end(), firstResponder());
    for (auto next = present == views.end() ? views.begin() : present + 1; next != views.end(); ++next) {
        if (!(*next)->becomeFirstResponder()) continue;
        (*next)->revealDescendant((*next)->bounds());
        return true;
    }
    setFirstResponder(nullptr);
    return false;
}

void UIWindow::setFirstResponder(const Ref<UIView>& view) {
    const Ref<UIView> before = firstResponder();
    if (view == before) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    // The argument may be this window's own entry.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Ref<UIView> after = view;
    firstResponder_ = after;
    if (before) before->focusDidChange();
    if (after && firstResponder() == after) after->focusDidChange();
}

void UIWindow::resignFirstResponderWithin(const Ref<UIViewNode>& view) {
    const Ref<UIView> first = firstResponder();
    if (first && first->isDescendantOfView(view)) setFirstResponder(nullptr);
}

void UIWindow::notifyFocus() const {
    if (const Ref<UIView> first = firstResponder()) first->focusDidChange();
}

void UIWindow::showFocus(bool shows) {
    if (shows == isFocusShown_) return;
    isFocusShown_ = shows;
    notifyFocus();
}

void UIWindow::setReceivesKeys(bool receives) {
    if (receives == receivesKeys_) return;
    receivesKeys_ = receives;
    notifyFocus();
}

// Accessibility

Ref<UIAccessibilityElement> UIWindow::focusedAccessibilityElement() {
    const Ref<UIView> first = firstResponder();
    const Ref<UIAccessibilityElement> focused = first && receivesKeys_ ? first->focusedAccessibilityElement() : nullptr;
    // What holds it is known to what offers it.
    return focused ? sameAccessibilityElement(accessibilityElements(), focused) : nullptr;
}

void UIWindow::performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) {
    const Ref<UIView> keep = refTo<UIView>(this);
    if (element) Ref<UIAccessibilityElement>(element)->perform(action); // The copy keeps it alive.
}

// Time

void UIWindow::finishAnimations() {
    const Ref<UIView> keep = refTo<UIView>(this);
    const std::vector<Ref<UIView>> below = subviews(); // A report may change the list.
    for (const Ref<UIView>& view : below) {
        if (view->superview() == keep) view->finishAnimationsInTree();
    }
}

bool UIWindow::tick(NSTimeInterval time) {
    if (isTicking_) return true; // A tick within a tick is a no-op.
    const Ref<UIView> keep = refTo<UIView>(this);
    time = finiteTime(time);
    isTicking_ = true;
    // Views may start or stop moving while others advance; those that start now advance in the next
    // frame.
    const std::size_t count = moving_.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Ref<UIView> view = moving_[i].lock();
        const bool isHere = view && view->isDescendantOfView(keep);
        if (isHere) invalidateDrawing(*view); // It need not say that it looks different.
        if (!isHere || !view->advanceToTime(time)) moving_[i].reset();
    }
    moving_.erase(std::remove_if(moving_.begin(), moving_.end(), [](const WeakRef<UIView>& view) { return view.expired(); }),
                  moving_.end());
    layoutIfNeeded();
    updatePointer(); // What lies below it may have changed.
    const bool draws = needsFrame_ || !moving_.empty();
    needsFrame_ = false;
    isTicking_ = false;
    return draws;
}

void UIWindow::draw(UIGraphicsContext& context) {
    const Ref<UIView> keep = refTo<UIView>(this);
    layoutIfNeeded();
    context.setUserInterfaceStyle(style_);
    context.setAccessibilityContrast(contrast_);
    renderInContext(context);
}

void UIWindow::animateView(const Ref<UIView>& view) {
    const auto isView = [&view](const WeakRef<UIView>& entry) { return entry.lock() == view; };
    if (!view || std::any_of(moving_.begin(), moving_.end(), isView)) return;
    moving_.push_back(view);
    requestFrame();
}

bool UIWindow::isFocusedOn(const UIViewNode& view) const { return firstResponder().get() == &view; }

void UIWindow::moveFocusTo(const Ref<UIViewNode>& view) { setFirstResponder(std::static_pointer_cast<UIView>(view)); }

void UIWindow::tapView_atPoint_time(const Ref<UIViewNode>& view, CGPoint point, NSTimeInterval time) {
    const Ref<UIView> pressed = hitTest(point);
    if (!pressed || !pressed->isDescendantOfView(view)) return;
    touchBegan_at_time(accessibilityFinger, point, time);
    touchEnded_at_time(accessibilityFinger, point, time);
}

Ref<UIWindow> windowOf(const UIViewNode& view) { return std::static_pointer_cast<UIWindow>(view.viewRoot()); }

void UIWindow::giveFeedback(UIFeedback feedback) {
    if (host_ && isFeedbackEnabled_) host_->giveFeedback(feedback);
}

void UIWindow::requestFrame() {
    const bool wasRequested = needsFrame_;
    needsFrame_ = true;
    if (!wasRequested && host_) host_->windowNeedsFrame();
}

} // namespace gx
