#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a heart or cadence rate in beats per minute: 0 to 230 in steps of 10, starting at 160.
class GX_EXPORT GXBpmPickerView : public GXBasePickerView {
public:
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;
    bool initWithFrame_rowHeight(CGRect frame, float rowHeight) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    std::optional<GXSpokenName> spokenMeasurement() const override { return GXSpokenName::BeatsPerMinute; }

private:
    void initGXBpmPickerView();
};

} // namespace gx
