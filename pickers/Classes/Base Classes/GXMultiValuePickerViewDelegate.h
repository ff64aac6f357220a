#pragma once

#include "UIPickerView.h"

namespace gx {

/// The delegate of a `GXMultiValuePickerView`. The wheel places its labels by titles and widths, so here both
/// are required. The wheel asks for them also outside a reload: whenever a label has to be placed.
class GXMultiValuePickerViewDelegate : public UIPickerViewDelegate {
public:
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override = 0;
    /// `row` is −1 when the wheel asks for the last title of a component without rows.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override = 0;
};

} // namespace gx
