#pragma once

#include "GXExport.h"
#include "NSNumber.h"
#include "NSObject.h"

namespace gx {

class GXBasePickerView;

/// Is notified of what the user picks.
class GX_EXPORT GXBasePickerViewDelegate {
public:
    virtual ~GXBasePickerViewDelegate() = default;

    /// Called when the user has selected a row, never after a setter. The value is in the picker's
    /// base unit, whatever unit it shows.
    ///
    /// The call may do anything to the picker, drop the last reference to it included.
    virtual void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                               NSInteger component) = 0;
};

} // namespace gx
