#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXHeartRatePickerView`.
class GX_EXPORT GXHeartRatePickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXHeartRatePickerCell();

protected:
    void makePicker() override { initGXHeartRatePickerCell(); }
};

} // namespace gx
