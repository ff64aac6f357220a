#include "UIAccessibility.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"
#include "NSLocale.h"

namespace gx {

bool UIAccessibilityAnnouncements::add(UIAccessibilityAnnouncement announcement) {
    if (announcement.text.empty()) return false;
    if (waiting_.size() == highestCount) waiting_.erase(waiting_.begin());
    waiting_.push_back(std::move(announcement));
    return true;
}

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

std::optional<bool> UIAccessibilityElement::isExpanded() const {
    const Ref<UIViewNode> view = this->view();
    return view ? view->isAccessibilityExpanded() : std::nullopt;
}

// The tree

NSInteger UIAccessibilityElement::indexOfChild(const UIAccessibilityElement& child) const {
    const NSInteger count = childCount();
    for (NSInteger i = 0; i < count; ++i) {
        const Ref<UIAccessibilityElement> found = this->child(i);
        if (found && found->isSameAs(child)) return i;
    }
    return -1;
}

// The focus

bool UIAccessibilityElement::isFocusable() const {
    const Ref<UIViewNode> view = this->view();
    return view && isEnabled() && view->takesInput() && view->canBecomeFirstResponder();
}

bool UIAccessibilityElement::isFocused() const {
    const Ref<UIViewNode> view = this->view();
    const Ref<UIViewRoot> root = view ? view->viewRoot() : nullptr;
    return root && root->receivesKeys() && view->isFirstResponder();
}

bool UIAccessibilityElement::focus() const {
    const Ref<UIViewNode> view = this->view();
    if (!view || !isEnabled() || (!view->isFirstResponder() && !view->becomeFirstResponder())) return false;
    view->revealDescendant(view->bounds());
    if (const Ref<UIViewRoot> root = view->viewRoot()) root->showFocusMark();
    return view->isFirstResponder();
}

// Numbers and actions

std::optional<UIAccessibilityNumbers> UIAccessibilityElement::numbers() const {
    const std::optional<NSInteger> index = this->index();
    if (!index) return std::nullopt;
    return UIAccessibilityNumbers{static_cast<double>(*index), 0, static_cast<double>(std::max<NSInteger>(count() - 1, 0)), 1};
}

void UIAccessibilityElement::setNumber(double number) {
    if (!std::isnan(number)) setIndex(truncateTo<NSInteger>(std::round(number)));
}

void UIAccessibilityElement::activateAtTime(NSTimeInterval time) const {
    const Ref<UIViewNode> view = this->view();
    const Ref<UIViewRoot> root = view ? view->viewRoot() : nullptr;
    if (!root || !isEnabled()) return;
    const CGRect area = view->clippedByViewsAbove(frame());
    if (CGRectIsEmpty(area)) return;
    root->tapView_atPoint_time(view, {CGRectGetMidX(area), CGRectGetMidY(area)}, time);
}

void UIAccessibilityElement::perform(const UIAccessibilityAction& action) {
    using Kind = UIAccessibilityAction::Kind;
    switch (action.kind) {
    case Kind::Increment:
        return increment();
    case Kind::Decrement:
        return decrement();
    case Kind::SetNumber:
        return setNumber(action.number);
    case Kind::Focus:
        focus();
        return;
    case Kind::Activate:
        return activateAtTime(action.timestamp);
    }
}

UIAccessibilityElements wholeAccessibilityElement(const Ref<UIViewNode>& view, UIAccessibilityRole role) {
    const std::optional<std::string> label = view ? view->accessibilityLabel() : std::nullopt;
    if (!label || label->empty()) return {};
    return {std::make_shared<UIAccessibilityElement>(view, view->accessibilityRole().value_or(role))};
}

UIAccessibilityElements outermostAccessibilityElements(const UIAccessibilityElements& elements) {
    UIAccessibilityElements outermost;
    for (Ref<UIAccessibilityElement> element : elements) {
        while (const Ref<UIAccessibilityElement> container = element->container()) element = container;
        // What one list holds lies together, so that the last one is the only candidate.
        if (outermost.empty() || !outermost.back()->isSameAs(*element)) outermost.push_back(element);
    }
    return outermost;
}

Ref<UIAccessibilityElement> sameAccessibilityElement(const UIAccessibilityElements& elements, const Ref<UIAccessibilityElement>& element) {
    const auto same = std::find_if(elements.begin(), elements.end(), [&element](const auto& each) { return each->isSameAs(*element); });
    return same == elements.end() ? element : *same;
}

Ref<UIAccessibilityElement> focusedAccessibilityElement(const UIAccessibilityElements& elements) {
    for (const Ref<UIAccessibilityElement>& element : elements) {
        const bool isSearched = element->role() != UIAccessibilityRole::List;
        for (NSInteger i = 0; isSearched && i < element->childCount(); ++i) {
            const Ref<UIAccessibilityElement> child = element->child(i);
            if (Ref<UIAccessibilityElement> focused = child ? focusedAccessibilityElement({child}) : nullptr) return focused;
        }
        if (element->isFocused()) return element;
    }
    return nullptr;
}

std::optional<std::string> joinedAccessibilityLabels(const UIAccessibilityElements& elements) {
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    std::optional<std::string> joined;
    for (const Ref<UIAccessibilityElement>& element : elements) {
        const std::optional<std::string> label = element->label();
        if (!label || label->empty()) continue;
        joined = joined ? *joined + locale->listSeparator() + *label : *label;
    }
    return joined;
}

} // namespace gx
