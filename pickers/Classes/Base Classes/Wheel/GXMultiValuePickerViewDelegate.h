#pragma once

#include "GXExport.h"
#include "UIPickerView.h"

namespace gx {

/// The delegate of a `GXMultiValuePickerView`.
///
/// The wheel places its labels by titles and widths, so here both are required. The wheel
/// queries them also outside a reload: whenever it places a label.
///
/// It queries the last row of the first and of the last component, whether they exist or not. A
/// wheel without components queries its data source and this delegate for the components -1 and 0:
/// the last one of none, and the first. Return anything there, such as a width of 0 and no title.
class GX_EXPORT GXMultiValuePickerViewDelegate : public UIPickerViewDelegate {
public:
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override = 0;
    /// `row` is -1 for the last title of a component without rows.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override = 0;
};

} // namespace gx
