#include "WebAccessibility.h"

#include <algorithm>

#include <GXUIPickers/NSArithmetic.h>

namespace gx::web {

NSInteger WebAccessibility::refresh(UIView& view, std::vector<Ref<UIPickerView>> wheels) {
    wheels_ = std::move(wheels);
    columns_ = view.accessibilityElements();
    const auto isOther = [](const Ref<UIAccessibilityElement>& element) { return element->role() != UIAccessibilityRole::Adjustable; };
    columns_.erase(std::remove_if(columns_.begin(), columns_.end(), isOther), columns_.end());
    return static_cast<NSInteger>(columns_.size());
}

Ref<UIAccessibilityElement> WebAccessibility::at(NSInteger column) const {
    return column >= 0 && column < static_cast<NSInteger>(columns_.size()) ? columns_[static_cast<std::size_t>(column)] : nullptr;
}

Ref<UIPickerView> WebAccessibility::wheelOf(const UIAccessibilityElement& element) const {
    const Ref<UIViewNode> view = element.view();
    const auto wheel = std::find_if(wheels_.begin(), wheels_.end(), [&view](const Ref<UIPickerView>& known) { return known == view; });
    return wheel == wheels_.end() ? nullptr : *wheel;
}

/// Gives the wheel the focus, and goes to the column as the keys would.
void WebAccessibility::focus(const UIAccessibilityElement& element) const {
    const Ref<UIPickerView> wheel = wheelOf(element);
    const Ref<UIWindow> window = wheel ? wheel->window() : nullptr;
    if (!window || !wheel->becomeFirstResponder()) return;
    UIKey key;
    for (NSInteger left = wheel->numberOfComponents(); left > 0 && wheel->componentOfKeys() != element.part(); --left) {
        key.code = wheel->componentOfKeys() < element.part() ? UIKey::Code::Right : UIKey::Code::Left;
        window->keyDown(key);
    }
}

std::optional<double> WebAccessibility::number_ofColumn(Number number, NSInteger column) const {
    const Ref<UIAccessibilityElement> element = at(column);
    if (!element) return std::nullopt;
    const CGRect frame = element->frame();
    const std::optional<NSInteger> index = element->index();
    const Ref<UIPickerView> wheel = wheelOf(*element);
    const bool isFocused = wheel && wheel->isFirstResponder() && wheel->componentOfKeys() == element->part();
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
        return isFocused ? 1 : 0;
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
        focus(*element);
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
