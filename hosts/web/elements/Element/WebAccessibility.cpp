#include "WebAccessibility.h"

#include <algorithm>

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
    const auto numbers = element->numbers();
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
        return numbers ? std::optional(numbers->value) : std::nullopt;
    case Number::Minimum:
        return numbers ? std::optional(numbers->minimum) : std::nullopt;
    case Number::Maximum:
        return numbers ? std::optional(numbers->maximum) : std::nullopt;
    case Number::IsFocused:
        return element->isFocused() ? 1 : 0;
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
        element->focus();
        break;
    case Action::Step:
        if (argument > 0) {
            element->increment();
        } else {
            element->decrement();
        }
        break;
    case Action::SetNumber:
        element->setNumber(argument);
        break;
    }
}

} // namespace gx::web
