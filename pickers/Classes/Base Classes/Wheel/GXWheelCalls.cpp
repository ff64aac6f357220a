#include "GXWheelCalls.h"

#include <algorithm>
#include <cmath>

#include "GXPickerComponents.h"
#include "NSLocale.h"

namespace gx {

// The wheel is passed by value: a callback may take it away from its picker during the call.
// NOLINTBEGIN(performance-unnecessary-value-param)

void reloadAllComponents(Ref<GXMultiValuePickerView> wheel) {
    if (wheel) wheel->reloadAllComponents();
}

void reloadComponent(Ref<UIPickerView> wheel, NSInteger component) {
    if (wheel) wheel->reloadComponent(component);
}

void selectRow_inComponent(Ref<UIPickerView> wheel, NSInteger row, NSInteger component) {
    if (wheel) wheel->selectRow_inComponent_animated(row, component, false);
}

NSInteger selectedRowInComponent(Ref<UIPickerView> wheel, NSInteger component) {
    return wheel ? wheel->selectedRowInComponent(component) : 0;
}

void setRightLabelText(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text) {
    if (wheel) wheel->setRightLabelText(std::move(text));
}

void setLeftLabelText(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text) {
    if (wheel) wheel->setLeftLabelText(std::move(text));
}

void setSeparatorText_afterComponent(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text, NSUInteger component) {
    if (wheel) wheel->setSeparatorText_afterComponent(std::move(text), component);
}

void showDecimalSeparator(Ref<GXMultiValuePickerView> wheel) {
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    setSeparatorText_afterComponent(std::move(wheel), locale->objectForKey(NSLocaleDecimalSeparator), wholeComponent);
}

// NOLINTEND(performance-unnecessary-value-param)

CGFloat widthWithinAThirdOfWheel(CGFloat width, const Ref<UIPickerView>& wheel) {
    const CGFloat wheelWidth = wheel ? wheel->bounds().size.width : 0;
    return std::min(width, std::floor(wheelWidth / 3.0));
}

} // namespace gx
