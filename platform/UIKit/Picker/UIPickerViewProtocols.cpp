#include "UIPickerViewProtocols.h"

#include "UIPickerView.h"

namespace gx {

CGFloat UIPickerViewDelegate::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) { return UIPickerView::automaticDimension; }
CGFloat UIPickerViewDelegate::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) {
    return UIPickerView::automaticDimension;
}
std::optional<std::string> UIPickerViewDelegate::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    return std::nullopt;
}
Ref<NSAttributedString> UIPickerViewDelegate::pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger,
                                                                                            NSInteger) {
    return nullptr;
}
Ref<UIView> UIPickerViewDelegate::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger, NSInteger,
                                                                                 const Ref<UIView>&) {
    return nullptr;
}
void UIPickerViewDelegate::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {}
std::optional<std::string> UIPickerViewDelegate::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger) {
    return std::nullopt;
}
std::optional<std::string> UIPickerViewDelegate::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger,
                                                                                                  NSInteger) {
    return std::nullopt;
}

} // namespace gx
