#include "UIAccessibility.h"

namespace gx {

bool UIAccessibilityElement::isSameAs(const UIAccessibilityElement& other) const {
    return part_ == other.part_ && !view_.owner_before(other.view_) && !other.view_.owner_before(view_);
}

bool UIAccessibilityElement::exists() const {
    const Ref<UIViewNode> view = this->view();
    return view && view->isShown();
}

std::optional<std::string> UIAccessibilityElement::label() const {
    const Ref<UIViewNode> view = this->view();
    return view ? view->accessibilityLabel() : std::nullopt;
}

CGRect UIAccessibilityElement::frame() const {
    const Ref<UIViewNode> view = this->view();
    if (!view || !exists()) return CGRectNull;
    const CGPoint origin = view->convertPointFromWindow({});
    return CGRectOffset(view->bounds(), -origin.x, -origin.y);
}

bool UIAccessibilityElement::isEnabled() const {
    const Ref<UIViewNode> view = this->view();
    return view && view->isInteractive() && exists();
}

void UIAccessibilityElement::activateAtTime(NSTimeInterval time) const {
    const Ref<UIViewNode> view = this->view();
    const Ref<UIViewRoot> root = view ? view->viewRoot() : nullptr;
    if (!root || !isEnabled()) return;
    const CGRect area = view->clippedByViewsAbove(frame());
    if (CGRectIsEmpty(area)) return;
    root->tapView_atPoint_time(view, {CGRectGetMidX(area), CGRectGetMidY(area)}, time);
}

UIAccessibilityElements wholeAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role) {
    const std::optional<std::string> label = view ? view->accessibilityLabel() : std::nullopt;
    if (!label || label->empty()) return {};
    return {std::make_shared<UIAccessibilityElement>(view, role)};
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
