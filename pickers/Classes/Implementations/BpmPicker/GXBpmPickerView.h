#pragma once

#include "GXBasePickerView.h"

namespace gx {

/// Picks a heart or cadence rate in beats per minute: 0 to 230 in steps of 10, starting at 160.
class GXBpmPickerView : public GXBasePickerView {
public:
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;
    bool initWithFrame_rowHeight(CGRect frame, float rowHeight) override;

private:
    void initGXBpmPickerView();
};

} // namespace gx
