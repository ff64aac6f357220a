#include "GXBpmPickerView.h"

#include "GXLocalization.h"
#include "GXWheelOrders.h"

namespace gx {

bool GXBpmPickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXBpmPickerView();
    return true;
}

bool GXBpmPickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXBpmPickerView();
    return true;
}

bool GXBpmPickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXBpmPickerView();
    return true;
}

void GXBpmPickerView::initGXBpmPickerView() {
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(240));
    setStepSize(NSNumber::numberWithInt(10));
    setCurrentValue(NSNumber::numberWithInt(160));
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment("bpm", "unit bpm (beats per minute)"));
    reloadAllComponents(pickerView());
}

// Answers to a screen reader

std::optional<std::string> GXBpmPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                             NSInteger component) {
    return spokenQuantity({spokenTitle(component, {row, component}), {}, {}}, GXSpokenUnit::BeatPerMinute);
}

} // namespace gx
