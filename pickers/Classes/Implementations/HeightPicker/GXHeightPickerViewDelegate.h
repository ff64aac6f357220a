#pragma once

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

class GXHeightPickerView;

/// Is notified of the height that the user picks.
class GX_EXPORT GXHeightPickerViewDelegate {
public:
    virtual ~GXHeightPickerViewDelegate() = default;

    /// Called once after each selection by the user, also of a unit, never after a setter. `height`
    /// is in centimetres whatever the unit; `metric` is false for feet and inches.
    ///
    /// The call may do anything to the picker, drop the last reference to it included.
    virtual void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>& pickerView, CGFloat height, bool metric) = 0;
};

} // namespace gx
