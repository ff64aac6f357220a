#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXDistancePickerView`.
class GX_EXPORT GXDistancePickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXDistancePickerCell();

protected:
    void makePicker() override { initGXDistancePickerCell(); }
};

} // namespace gx
