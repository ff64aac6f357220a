#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a heart or cadence rate in beats per minute: 0 to 230 in steps of 10, starting at 160.
class GX_EXPORT GXBpmPickerView : public GXBasePickerView {
public:
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXBpmPickerView();
    }
    /// Sets range, step, value and unit to those above.
    virtual void initGXBpmPickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::BeatsPerMinute; }
};

} // namespace gx
