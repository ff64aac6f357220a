#include "GXCaloriesPickerView.h"

#include "GXPickerAccessibility.h"
#include "GXWheelCalls.h"

namespace gx {

namespace {

/// The quantity that the unit beside the wheel is named for.
constexpr std::int32_t labelledCalories = 100;

} // namespace

Ref<GXCaloriesFormatter> GXCaloriesPickerView::caloriesFormatter() {
    if (!caloriesFormatter_) caloriesFormatter_ = create<GXCaloriesFormatter>(/*style=*/0, isMetric(), /*usingUnit=*/true);
    return caloriesFormatter_;
}

void GXCaloriesPickerView::initGXCaloriesPickerView() {
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(100000));
    setStepSize(NSNumber::numberWithInt(10));
    setCurrentValue(NSNumber::numberWithInt(0));
    showTexts();
    if (const Ref<GXMultiValuePickerView> wheel = pickerView()) wheel->setDataSource(self());
}

void GXCaloriesPickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXCaloriesFormatter> formatter = caloriesFormatter();
    if (formatter) setRightLabelText(pickerView(), formatter->unit(NSNumber::numberWithInt(labelledCalories)));
}

// Accessibility texts

std::optional<std::string> GXCaloriesPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    return accessibilityQuantity({reportedTitle(component, {row, component}), {}, {}}, GXAccessibilityUnit::Kilocalorie);
}

} // namespace gx
