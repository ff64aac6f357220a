#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXDurationPickerView`.
class GX_EXPORT GXDurationPickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXDurationPickerCell();

protected:
    void makePicker() override { initGXDurationPickerCell(); }
};

} // namespace gx
