#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXBpmPickerView`.
class GX_EXPORT GXBpmPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXBpmPickerCell();

protected:
    void makePicker() override { initGXBpmPickerCell(); }
};

} // namespace gx
