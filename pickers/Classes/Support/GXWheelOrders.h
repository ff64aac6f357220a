#pragma once

#include "GXMultiValuePickerView.h"

namespace gx {

/// What pickers of several columns ask and order of their wheel. An absent wheel takes no orders and answers 0, so a picker is safe to
/// use before it has its wheel and after that was taken away.

void reloadAllComponents(Ref<GXMultiValuePickerView> wheel);
void reloadComponent(Ref<UIPickerView> wheel, NSInteger component);
/// Without animation.
void selectRow_inComponent(Ref<UIPickerView> wheel, NSInteger row, NSInteger component);
NSInteger selectedRowInComponent(Ref<UIPickerView> wheel, NSInteger component);
void setRightLabelText(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text);
void setSeparatorText_afterComponent(Ref<GXMultiValuePickerView> wheel, std::optional<std::string> text, NSUInteger component);

/// A column's width, held to a third of the wheel in whole points: a number of many digits then leaves room for the other columns.
CGFloat widthWithinAThirdOfWheel(CGFloat width, const Ref<UIPickerView>& wheel);

} // namespace gx
