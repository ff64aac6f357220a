#include "GXCaloriesPickerView.h"

#include "GXWheelOrders.h"

namespace gx {

bool GXCaloriesPickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXCaloriesPickerView();
    return true;
}

bool GXCaloriesPickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXCaloriesPickerView();
    return true;
}

bool GXCaloriesPickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXCaloriesPickerView();
    return true;
}

const Ref<GXCaloriesFormatter>& GXCaloriesPickerView::caloriesFormatter() {
    if (!caloriesFormatter_) caloriesFormatter_ = create<GXCaloriesFormatter>(0, isMetric(), true);
    return caloriesFormatter_;
}

void GXCaloriesPickerView::initGXCaloriesPickerView() {
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(100000));
    setStepSize(NSNumber::numberWithInt(10));
    setCurrentValue(NSNumber::numberWithInt(0));
    setRightLabelText(pickerView(), caloriesFormatter()->unit(NSNumber::numberWithInt(100)));
    if (const Ref<GXMultiValuePickerView> wheel = pickerView()) wheel->setDataSource(self());
}

// Answers to a screen reader

std::optional<std::string> GXCaloriesPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    return spokenQuantity({spokenTitle(component, {row, component}), {}, {}}, GXSpokenUnit::Kilocalorie);
}

} // namespace gx
