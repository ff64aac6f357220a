#include "UIView.h"

#include <algorithm>

#include "UIGraphicsContext.h"

namespace gx {

UIView::~UIView() {
    for (const Ref<UIView>& view : subviews_) view->setNodeAbove(nullptr);
}

// The tree

// Only views are set as nodes above views.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast)
UIView* UIView::above() const { return static_cast<UIView*>(nodeAbove()); }

Ref<UIView> UIView::superview() const { return refTo(above()); }

void UIView::addSubview(const Ref<UIView>& view) { insertSubview_atIndex(view, static_cast<NSInteger>(subviews_.size())); }

void UIView::insertSubview_atIndex(const Ref<UIView>& view, NSInteger index) {
    if (!view || view->contains(*this)) return;
    const Ref<UIView> keep = refTo(this);
    // The argument may be an entry of a list that changes here.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Ref<UIView> added = view;
    const bool isNew = added->above() != this;
    if (isNew) {
        added->removeFromSuperview();
        // A callback of that may have put the view elsewhere, or this one below it.
        if (added->above() || added->contains(*this)) return;
    } else {
        subviews_.erase(std::find(subviews_.begin(), subviews_.end(), added));
    }
    const UIColor tintBefore = added->tintColor();
    const auto size = static_cast<NSInteger>(subviews_.size());
    const auto place = static_cast<std::ptrdiff_t>(std::clamp<NSInteger>(index, 0, size));
    subviews_.insert(subviews_.begin() + place, added);
    added->setNodeAbove(this);
    if (added->needsLayout_ || added->needsLayoutBelow_) added->setNeedsLayout();
    setNeedsLayout();
    setNeedsDisplay();
    if (isNew) added->noteTreeChange(tintBefore, nullptr);
}

void UIView::removeFromSuperview() {
    if (!above()) return;
    const Ref<UIView> keep = refTo(this);
    // While the views above still get it, since they may have been handed the finger.
    if (UIViewRoot* const root = rawViewRoot()) root->cancelTouchesWithin(keep);
    if (!above()) return;
    UIView& holder = *above();
    const auto entry =
        std::find_if(holder.subviews_.begin(), holder.subviews_.end(), [this](const Ref<UIView>& view) { return view.get() == this; });
    const UIColor tintBefore = tintColor();
    // Kept during the callbacks. A window that is being torn down cannot be kept, and outlasts
    // this.
    UIViewRoot* const rootBefore = rawViewRoot();
    const Ref<UIViewRoot> keepRoot = viewRoot();
    holder.setNeedsDisplay();
    holder.subviews_.erase(entry);
    const auto isOnThis = [&keep](const Ref<NSLayoutConstraint>& constraint) { return constraint->firstItem() == keep; };
    holder.constraints_.erase(std::remove_if(holder.constraints_.begin(), holder.constraints_.end(), isOnThis), holder.constraints_.end());
    setNodeAbove(nullptr);
    if (rootBefore) rootBefore->resignFirstResponderWithin(keep);
    if (above()) return; // A callback has put the view elsewhere, which has notified of it.
    noteTreeChange(tintBefore, rootBefore);
}

void UIView::noteTreeChange(const UIColor& tintBefore, const UIViewRoot* rootBefore) {
    if (tintColor() != tintBefore) notifyTint();
    if (rawViewRoot() != rootBefore) notifyWindow();
}

// In both walks down the tree, callbacks may change the list of subviews. Views that come or go
// meanwhile are notified by that.

void UIView::notifyTint() {
    const Ref<UIView> keep = refTo(this);
    const std::vector<Ref<UIView>> below = subviews_;
    UIViewNode::notifyTint();
    for (const Ref<UIView>& view : below) {
        if (view->above() == this && !view->hasOwnTint()) view->notifyTint();
    }
}

void UIView::notifyWindow() {
    const Ref<UIView> keep = refTo(this);
    const std::vector<Ref<UIView>> below = subviews_;
    didMoveToWindow();
    for (const Ref<UIView>& view : below) {
        if (view->above() == this) view->notifyWindow();
    }
}

void UIView::didMoveToWindow() {}

/// Calls with each subview, while the calls may change the list: no more often than there were
/// subviews at first. Without a copy of the list, since scrolling rows are laid out and hidden in
/// every frame.
template <class Call>
void UIView::callOnSubviews(Call call) {
    std::size_t i = 0;
    for (std::size_t steps = subviews_.size(); steps > 0 && i < subviews_.size(); --steps) {
        const Ref<UIView> view = subviews_[i];
        call(*view);
        if (i < subviews_.size() && subviews_[i] == view) ++i;
    }
}

// Layout

void UIView::boundsSizeDidChange() { setNeedsLayout(); }

void UIView::setNeedsLayout() {
    needsLayout_ = true;
    for (UIView* view = above(); view && !view->needsLayoutBelow_; view = view->above()) view->needsLayoutBelow_ = true;
    setNeedsDisplay();
}

void UIView::layoutIfNeeded() {
    if (isLayingOut_) return;
    const Ref<UIView> keep = refTo(this);
    if (needsLayout_) {
        needsLayout_ = false;
        isLayingOut_ = true;
        layoutSubviews();
        isLayingOut_ = false;
    }
    if (!needsLayoutBelow_) return;
    needsLayoutBelow_ = false;
    callOnSubviews([](UIView& view) { view.layoutIfNeeded(); });
    // A view that the walk missed, that invalidates again, or that is in the middle of its own
    // layout, waits for the next pass.
    needsLayoutBelow_ = std::any_of(subviews_.begin(), subviews_.end(),
                                    [](const Ref<UIView>& view) { return view->needsLayout_ || view->needsLayoutBelow_; });
}

void UIView::layoutSubviews() {
    for (const NSLayoutPins& pins : NSLayoutPins::pinsOfConstraints(constraints_)) {
        // Placing a view may change the list.
        const auto item = std::find(subviews_.begin(), subviews_.end(), pins.item.lock());
        if (item == subviews_.end()) continue;
        const Ref<UIView> view = *item;
        view->setFrame(pins.frameInBounds_from(bounds(), view->frame()));
    }
}

CGSize UIView::sizeThatFits(CGSize) const { return bounds().size; }

void UIView::sizeToFit() {
    const CGPoint origin = CGRectIsNull(frame()) ? CGPoint{} : frame().origin;
    setFrame({origin, sizeThatFits(bounds().size)});
}

void UIView::addConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    for (const Ref<NSLayoutConstraint>& constraint : constraints) {
        if (constraint) constraints_.push_back(constraint);
    }
    setNeedsLayout();
}

// Drawing

void UIView::renderInContext(UIGraphicsContext& context) {
    if (context.beginView(drawing(), {}, 1)) return;
    context.saveState();
    drawContent(context);
    context.restoreState();
    context.endView();
}

void UIView::drawView(UIView& view, UIGraphicsContext& context) {
    const CGPoint origin = {CGRectGetMinX(view.frame()), CGRectGetMinY(view.frame())};
    if (context.beginView(view.drawing(), origin, view.alpha())) return;
    if (!view.isHidden() && view.alpha() > 0 && !CGRectIsEmpty(view.frame())) {
        context.saveState();
        context.translate(origin.x, origin.y);
        if (view.alpha() < 1) context.multiplyAlpha(view.alpha());
        view.drawContent(context);
        context.restoreState();
    }
    context.endView();
}

void UIView::drawContent(UIGraphicsContext& context) {
    const CGRect area = {{}, bounds().size};
    const CGPoint origin = bounds().origin;
    if (clipsToBounds()) context.clipToRect(area);
    if (const std::optional<UIColor> color = backgroundColor()) context.fillRect(area, *color, cornerRadius());
    if (origin != CGPoint{}) context.translate(-origin.x, -origin.y);
    drawRect(context, bounds());
    drawSubviews(context);
}

bool UIView::showsSomething() const { return true; }

void UIView::drawRect(UIGraphicsContext&, CGRect) {}

void UIView::drawSubviews(UIGraphicsContext& context) {
    const UIDrawingVersion version = drawing();
    const std::uint64_t recorded = context.beginSubviews(version, subviews_.size());
    for (std::size_t i = 0; i < subviews_.size();) {
        std::size_t end = i;
        // Drawing may change the list. That invalidates this view, and no subview is repeated then.
        while (drawing().view == version.view && end < subviews_.size() && subviews_[end]->drawing().tree <= recorded) ++end;
        if (end > i) {
            context.repeatSubviews(end - i);
            i = end;
        } else {
            const Ref<UIView> view = subviews_[i++];
            drawView(*view, context);
        }
    }
}

// Input and time

Ref<UIView> UIView::hitTest(CGPoint point) {
    if (!takesInputItself() || !CGRectContainsPoint(bounds(), point)) return nullptr;
    for (auto entry = subviews_.rbegin(); entry != subviews_.rend(); ++entry) {
        UIView& view = **entry;
        const CGPoint origin = view.bounds().origin;
        const CGPoint inside = {point.x - CGRectGetMinX(view.frame()) + origin.x, point.y - CGRectGetMinY(view.frame()) + origin.y};
        if (Ref<UIView> hit = view.hitTest(inside)) return hit;
    }
    return refTo(this);
}

void UIView::collectFocusable(std::vector<Ref<UIView>>& found) {
    if (!takesInputItself()) return;
    if (const Ref<UIView> self = refTo(this); self && canBecomeFirstResponder()) found.push_back(self);
    const std::vector<Ref<UIView>> below = subviewsInReadingOrder();
    for (const Ref<UIView>& view : below) {
        if (view->above() == this) view->collectFocusable(found);
    }
}

void UIView::finishAnimationsInTree() {
    const Ref<UIView> keep = refTo(this);
    finishAnimations();
    callOnSubviews([](UIView& view) { view.finishAnimationsInTree(); });
}

bool UIView::advanceToTime(NSTimeInterval) { return false; }

// Accessibility

UIAccessibilityElements UIView::accessibilityElements() { return accessibilityElementsOfSubviews(refTo(this)); }

Ref<UIAccessibilityElement> UIView::focusedAccessibilityElement() { return gx::focusedAccessibilityElement(accessibilityElements()); }

UIAccessibilityElements accessibilityElementsOfSubviews(const Ref<UIView>& view) {
    UIAccessibilityElements elements;
    if (!view) return elements;
    const std::vector<Ref<UIView>> below = view->subviewsInReadingOrder();
    for (const Ref<UIView>& subview : below) {
        if (subview->isHidden() || subview->alpha() == 0 || CGRectIsEmpty(subview->frame())) continue;
        const UIAccessibilityElements more = subview->accessibilityElements();
        elements.insert(elements.end(), more.begin(), more.end());
    }
    return elements;
}

UIAccessibilityElements accessibilityElementAndSubviews(const Ref<UIView>& view, UIAccessibilityRole role) {
    UIAccessibilityElements elements = wholeAccessibilityElement(view, role);
    const UIAccessibilityElements below = accessibilityElementsOfSubviews(view);
    elements.insert(elements.end(), below.begin(), below.end());
    return elements;
}

} // namespace gx
