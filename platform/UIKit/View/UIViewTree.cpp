// Which views lie in which, and who hears of it.

#include <algorithm>

#include "NSLayoutConstraint.h"
#include "UIWindow.h"

namespace gx {

UIView* UIView::root() const {
    const UIView* view = this;
    while (view->superview_) view = view->superview_;
    return const_cast<UIView*>(view); // NOLINT(cppcoreguidelines-pro-type-const-cast): views above are not const because this one is
}

Ref<UIView> UIView::superview() const { return refTo(superview_); }

Ref<UIWindow> UIView::window() const { return refTo(root()->asWindow()); }

bool UIView::contains(const UIView& view) const {
    for (const UIView* above = &view; above; above = above->superview_) {
        if (above == this) return true;
    }
    return false;
}

bool UIView::isDescendantOfView(const Ref<UIView>& view) const { return view && view->contains(*this); }

void UIView::addSubview(const Ref<UIView>& view) { insertSubview_atIndex(view, static_cast<NSInteger>(subviews_.size())); }

void UIView::insertSubview_atIndex(const Ref<UIView>& view, NSInteger index) {
    if (!view || view->contains(*this)) return;
    const Ref<UIView> keep = refTo(this);
    // The argument may be an entry of a list that changes here. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Ref<UIView> added = view;
    const bool isNew = added->superview_ != this;
    if (isNew) {
        added->removeFromSuperview();
        // Who was told of that may have put the view elsewhere, or this one below it.
        if (added->superview_ || added->contains(*this)) return;
    } else {
        subviews_.erase(std::find(subviews_.begin(), subviews_.end(), added));
    }
    const UIColor tintBefore = added->tintColor();
    const auto size = static_cast<NSInteger>(subviews_.size());
    subviews_.insert(subviews_.begin() + std::clamp<NSInteger>(index, 0, size), added);
    added->superview_ = this;
    if (added->needsLayout_ || added->isLayoutDueBelow_) added->setNeedsLayout();
    setNeedsLayout();
    setNeedsDisplay();
    if (isNew) added->noteTreeChange(tintBefore, nullptr);
}

void UIView::removeFromSuperview() {
    if (!superview_) return;
    const Ref<UIView> keep = refTo(this);
    // While those above can still hear of it, since they may have been handed the finger.
    if (UIWindow* const shownIn = root()->asWindow()) shownIn->cancelTouchesWithin(keep);
    if (!superview_) return;
    UIView& above = *superview_;
    const auto entry =
        std::find_if(above.subviews_.begin(), above.subviews_.end(), [this](const Ref<UIView>& view) { return view.get() == this; });
    const UIColor tintBefore = tintColor();
    UIWindow* const windowBefore = root()->asWindow();
    above.setNeedsDisplay();
    above.subviews_.erase(entry);
    above.constraints_.erase(std::remove_if(above.constraints_.begin(), above.constraints_.end(),
                                            [&keep](const Ref<NSLayoutConstraint>& constraint) { return constraint->firstItem() == keep; }),
                             above.constraints_.end());
    superview_ = nullptr;
    // Held while views hear of the lost focus; a window that is being torn down is kept by nobody, and outlasts this.
    const Ref<UIWindow> keepWindow = refTo(windowBefore);
    if (windowBefore) windowBefore->resignFirstResponderWithin(keep);
    if (superview_) return; // Who was told has put the view elsewhere, and with that told of it.
    noteTreeChange(tintBefore, windowBefore);
}

void UIView::noteTreeChange(const UIColor& tintBefore, const UIWindow* windowBefore) {
    if (tintColor() != tintBefore) notifyTint();
    if (root()->asWindow() != windowBefore) notifyWindow();
}

// In each of the walks down the tree, who is called may change the list of subviews. Whoever comes or goes meanwhile is
// told by that.

void UIView::notifyWindow() {
    const Ref<UIView> keep = refTo(this);
    const std::vector<Ref<UIView>> below = subviews_;
    didMoveToWindow();
    for (const Ref<UIView>& view : below) {
        if (view->superview_ == this) view->notifyWindow();
    }
}

void UIView::didMoveToWindow() {}

} // namespace gx
