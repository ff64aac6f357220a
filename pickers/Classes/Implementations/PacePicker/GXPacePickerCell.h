#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXPacePickerView`.
class GX_EXPORT GXPacePickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXPacePickerCell();

protected:
    void makePicker() override { initGXPacePickerCell(); }
};

} // namespace gx
