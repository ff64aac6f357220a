#pragma once

#include "GXMultiValuePickerView.h"

namespace gx {

// Calls to a picker's wheel, which are no-ops or return 0 while it is absent: so a picker is safe
// to use before it has its wheel and after that was taken away. Each holds the wheel until it
// returns.

void reloadAllComponents(Ref<GXMultiValuePickerView> wheel);
void reloadComponent(Ref<UIPickerView> wheel, NSInteger component);
/// Without animation.
void selectRow_inComponent(Ref<UIPickerView> wheel, NSInteger row, NSInteger component);
NSInteger selectedRowInComponent(Ref<UIPickerView> wheel, NSInteger component);
void setRightLabelText(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text);
void setLeftLabelText(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text);
void setSeparatorText_afterComponent(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text, NSUInteger component);

/// Shows the current locale's decimal separator after the component of the whole number.
void showDecimalSeparator(Ref<GXMultiValuePickerView> wheel);

/// The width, but at most a third of the wheel in whole points: so a number of many digits leaves
/// room for the other components.
CGFloat widthWithinAThirdOfWheel(CGFloat width, const Ref<UIPickerView>& wheel);

} // namespace gx
