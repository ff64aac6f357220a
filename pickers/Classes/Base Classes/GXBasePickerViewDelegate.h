#pragma once

#include "NSNumber.h"
#include "NSObject.h"

namespace gx {

class GXBasePickerView;

/// Is told when the user has turned a picker's wheel.
class GXBasePickerViewDelegate {
public:
    virtual ~GXBasePickerViewDelegate() = default;

    /// Called after a turn by the user, never after a setter; the value is in the picker's base unit, whatever
    /// unit it shows. The call may do anything to the picker, drop the last reference to it included.
    virtual void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                               NSInteger component) = 0;
};

} // namespace gx
