#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXCaloriesPickerView`.
class GX_EXPORT GXCaloriesPickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXCaloriesPickerCell();

protected:
    void makePicker() override { initGXCaloriesPickerCell(); }
};

} // namespace gx
