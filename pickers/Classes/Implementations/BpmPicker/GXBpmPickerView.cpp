#include "GXBpmPickerView.h"

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXWheelCalls.h"

namespace gx {

void GXBpmPickerView::initGXBpmPickerView() {
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(240));
    setStepSize(NSNumber::numberWithInt(10));
    setCurrentValue(NSNumber::numberWithInt(160));
    showTexts();
    reloadAllComponents(pickerView());
}

void GXBpmPickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment("bpm", "unit bpm (beats per minute)"));
}

// Accessibility texts

std::optional<std::string> GXBpmPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                             NSInteger component) {
    return accessibilityQuantity({reportedTitle(component, {row, component}), {}, {}}, GXAccessibilityUnit::BeatPerMinute);
}

} // namespace gx
