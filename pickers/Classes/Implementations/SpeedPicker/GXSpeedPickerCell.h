#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXSpeedPickerView`.
class GX_EXPORT GXSpeedPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXSpeedPickerCell();

protected:
    void makePicker() override { initGXSpeedPickerCell(); }
};

} // namespace gx
