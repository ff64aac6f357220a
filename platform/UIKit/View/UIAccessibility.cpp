#include "UIAccessibility.h"

#include <limits>

#include "UIView.h"
#include "UIWindow.h"

namespace gx {

namespace {

// A finger of its own, unlike any that a host counts.
constexpr std::int64_t activatingFinger = std::numeric_limits<std::int64_t>::min();

bool isDrawn(const UIView& view) { return !view.isHidden() && view.alpha() > 0 && !CGRectIsEmpty(view.frame()); }

} // namespace

bool UIAccessibilityElement::isSameAs(const UIAccessibilityElement& other) const {
    return part_ == other.part_ && !view_.owner_before(other.view_) && !other.view_.owner_before(view_);
}

bool UIAccessibilityElement::exists() const {
    const Ref<UIView> view = this->view();
    for (Ref<UIView> above = view; above; above = above->superview()) {
        if (above->isHidden() || above->alpha() == 0) return false;
    }
    return view != nullptr;
}

std::optional<std::string> UIAccessibilityElement::label() const {
    const Ref<UIView> view = this->view();
    return view ? view->accessibilityLabel() : std::nullopt;
}

CGRect UIAccessibilityElement::frame() const {
    const Ref<UIView> view = this->view();
    if (!view || !exists()) return CGRectNull;
    const CGPoint origin = view->convertPointFromWindow({});
    return CGRectOffset(view->bounds(), -origin.x, -origin.y);
}

bool UIAccessibilityElement::isEnabled() const {
    for (Ref<UIView> view = this->view(); view; view = view->superview()) {
        if (!view->isUserInteractionEnabled()) return false;
    }
    return exists();
}

void UIAccessibilityElement::activateAtTime(NSTimeInterval time) const {
    const Ref<UIView> view = this->view();
    const Ref<UIWindow> window = view ? view->window() : nullptr;
    if (!window || !isEnabled()) return;
    CGRect area = frame();
    for (Ref<UIView> above = view->superview(); above; above = above->superview()) {
        if (above->clipsToBounds()) area = CGRectIntersection(area, window->convertRect_fromView(above->bounds(), above));
    }
    const CGPoint middle = {CGRectGetMidX(area), CGRectGetMidY(area)};
    // What is scrolled out of sight or covered is not pressed, and nothing else in its place.
    const Ref<UIView> pressed = CGRectIsEmpty(area) ? nullptr : window->hitTest(middle);
    if (!pressed || !pressed->isDescendantOfView(view)) return;
    window->touchBegan_at_time(activatingFinger, middle, time);
    window->touchEnded_at_time(activatingFinger, middle, time);
}

UIAccessibilityElements wholeAccessibilityElement(const Ref<UIView>& view, UIAccessibilityRole role) {
    const std::optional<std::string> label = view ? view->accessibilityLabel() : std::nullopt;
    if (!label || label->empty()) return {};
    return {std::make_shared<UIAccessibilityElement>(view, role)};
}

UIAccessibilityElements accessibilityElementsOfSubviews(const Ref<UIView>& view) {
    UIAccessibilityElements elements;
    if (!view) return elements;
    const std::vector<Ref<UIView>> below = view->subviewsInReadingOrder();
    for (const Ref<UIView>& subview : below) {
        if (!isDrawn(*subview)) continue;
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

std::optional<std::string> joinedAccessibilityLabels(const UIAccessibilityElements& elements) {
    std::optional<std::string> joined;
    for (const Ref<UIAccessibilityElement>& element : elements) {
        const std::optional<std::string> label = element->label();
        if (!label || label->empty()) continue;
        joined = joined ? *joined + ", " + *label : *label;
    }
    return joined;
}

} // namespace gx
