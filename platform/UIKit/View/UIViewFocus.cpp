// Keys and the focus, and views that nobody sees any more.

#include "UIKey.h"
#include "UIWindow.h"

namespace gx {

// Keys

bool UIView::keyPressed(const UIKey& key) {
    const Ref<UIView> above = superview();
    return above && above->keyPressed(key);
}

bool UIView::canBecomeFirstResponder() { return false; }

bool UIView::takesInput() const {
    for (const UIView* view = this; view; view = view->superview_) {
        if (view->isHidden_ || !view->isInteractive_ || view->alpha_ < lowestTouchableAlpha) return false;
    }
    return true;
}

bool UIView::becomeFirstResponder() {
    const Ref<UIView> keep = refTo(this);
    const Ref<UIWindow> window = this->window();
    if (!keep || !window || !takesInput() || !canBecomeFirstResponder()) return false;
    window->setFirstResponder(keep);
    return isFirstResponder();
}

bool UIView::resignFirstResponder() {
    const Ref<UIView> keep = refTo(this); // Who hears of it may drop the view.
    const Ref<UIWindow> window = this->window();
    if (!isFirstResponder()) return false;
    window->setFirstResponder(nullptr);
    return !isFirstResponder();
}

bool UIView::isFirstResponder() const {
    const Ref<UIWindow> window = this->window();
    return window && window->firstResponder().get() == this;
}

void UIView::focusDidChange() { setNeedsDisplay(); }

void UIView::revealDescendant(CGRect rect) {
    if (const Ref<UIView> above = superview()) above->revealDescendant(convertRect_toView(rect, above));
}

void UIView::collectFocusable(std::vector<Ref<UIView>>& found) {
    if (isHidden_ || !isInteractive_ || alpha_ < lowestTouchableAlpha) return;
    if (const Ref<UIView> self = refTo(this); self && canBecomeFirstResponder()) found.push_back(self);
    const std::vector<Ref<UIView>> below = subviewsInReadingOrder();
    for (const Ref<UIView>& view : below) {
        if (view->superview_ == this) view->collectFocusable(found);
    }
}

// Out of sight

void UIView::finishAnimations() {}

void UIView::finishAnimationsInTree() {
    const Ref<UIView> keep = refTo(this);
    finishAnimations();
    // Without a copy of the list, since rows that scroll are hidden in passing; who is told may change it.
    std::size_t i = 0;
    for (std::size_t steps = subviews_.size(); steps > 0 && i < subviews_.size(); --steps) {
        const Ref<UIView> view = subviews_[i];
        view->finishAnimationsInTree();
        if (i < subviews_.size() && subviews_[i] == view) ++i;
    }
}

void UIView::setHidden(bool hidden) {
    if (hidden == isHidden_) return;
    isHidden_ = hidden;
    setNeedsDisplay();
    if (!hidden) return;
    const Ref<UIView> keep = refTo(this);
    if (const Ref<UIWindow> window = this->window()) window->resignFirstResponderWithin(keep);
    finishAnimationsInTree();
}

} // namespace gx
