#include "WebAccessibility.h"

#include <algorithm>

#include <GXUIPickers/NSArithmetic.h>

namespace gx::web {

NSInteger WebAccessibility::refresh(UIView& view) {
    columns_ = view.accessibilityElements();
    const auto isOther = [](const Ref<UIAccessibilityElement>& element) { return element->role() != UIAccessibilityRole::Adjustable; };
    columns_.erase(std::remove_if(columns_.begin(), columns_.end(), isOther), columns_.end());
    return static_cast<NSInteger>(columns_.size());
}

Ref<UIAccessibilityElement> WebAccessibility::at(NSInteger column) const {
    return column >= 0 && column < static_cast<NSInteger>(columns_.size()) ? columns_[static_cast<std::size_t>(column)] : nullptr;
}

std::optional<double> WebAccessibility::number_ofColumn(Number number, NSInteger column) const {
    const Ref<UIAccessibilityElement> element = at(column);
    if (!element) return std::nullopt;
    const CGRect frame = element->frame();
    const std::optional<NSInteger> index = element->index();
    switch (number) {
    case Number::X:
        return frame.origin.x;
    case Number::Y:
        return frame.origin.y;
    case Number::Width:
        return frame.size.width;
    case Number::Height:
        return frame.size.height;
    case Number::Value:
        return index ? std::optional(static_cast<double>(*index)) : std::nullopt;
    case Number::Minimum:
        return 0;
    case Number::Maximum:
        return static_cast<double>(element->count() - 1);
    case Number::IsFocused:
        return 0;
    }
    return std::nullopt;
}

std::optional<std::string> WebAccessibility::text_ofColumn(Text text, NSInteger column) const {
    const Ref<UIAccessibilityElement> element = at(column);
    if (!element) return std::nullopt;
    return text == Text::Label ? element->label() : element->value();
}

void WebAccessibility::act_onColumn(Action action, NSInteger column, double argument) const {
    const Ref<UIAccessibilityElement> element = at(column);
    if (!element) return;
    switch (action) {
    case Action::Focus:
        if (const Ref<UIViewNode> view = element->view()) view->becomeFirstResponder();
        break;
    case Action::Step:
        if (argument > 0) {
            element->increment();
        } else {
            element->decrement();
        }
        break;
    case Action::SetNumber:
        element->setIndex(truncateTo<NSInteger>(argument));
        break;
    }
}

} // namespace gx::web
