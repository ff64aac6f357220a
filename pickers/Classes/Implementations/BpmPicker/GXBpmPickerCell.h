#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXBpmPickerView`.
class GX_EXPORT GXBpmPickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXBpmPickerCell();

protected:
    void makePicker() override { initGXBpmPickerCell(); }
};

} // namespace gx
