#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXSpeedPickerView`.
class GX_EXPORT GXSpeedPickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXSpeedPickerCell();

protected:
    void makePicker() override { initGXSpeedPickerCell(); }
};

} // namespace gx
