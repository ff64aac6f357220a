#include "ChoiceElements.h"

using namespace gx;

namespace gallery {

ChoiceGroupElement::ChoiceGroupElement(const Ref<UIView>& view)
    : UIAccessibilityElement(view, UIAccessibilityRole::RadioGroup), group_(view) {}

Ref<ChoiceGroupElement> ChoiceGroupElement::around(const Ref<UIView>& view) {
    Ref<UIView> group = view;
    while (group && group->accessibilityRole() != UIAccessibilityRole::RadioGroup) group = group->superview();
    return group ? std::make_shared<ChoiceGroupElement>(group) : nullptr;
}

UIAccessibilityElements ChoiceGroupElement::choices() const {
    const Ref<UIView> group = group_.lock();
    return group ? group->accessibilityElements() : UIAccessibilityElements();
}

NSInteger ChoiceGroupElement::childCount() const { return static_cast<NSInteger>(choices().size()); }

Ref<UIAccessibilityElement> ChoiceGroupElement::child(NSInteger index) const {
    const UIAccessibilityElements found = choices();
    return index >= 0 && index < static_cast<NSInteger>(found.size()) ? found[static_cast<std::size_t>(index)] : nullptr;
}

ChoiceElement::ChoiceElement(const Ref<UIView>& view, NSInteger part)
    : UIAccessibilityElement(view, UIAccessibilityRole::RadioButton, part), choice_(view) {}

Ref<UIAccessibilityElement> ChoiceElement::container() const { return ChoiceGroupElement::around(choice_.lock()); }

std::optional<UIAccessibilityPlace> ChoiceElement::place() const {
    const Ref<UIAccessibilityElement> group = container();
    if (!group) return std::nullopt;
    return UIAccessibilityPlace{group->indexOfChild(*this), group->childCount()};
}

} // namespace gallery
