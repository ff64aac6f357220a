#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXTemperaturePickerView`, its rows as high as the style sheet says when the
/// cell is made.
class GX_EXPORT GXTemperaturePickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXTemperaturePickerCell();

protected:
    void makePicker() override { initGXTemperaturePickerCell(); }
};

} // namespace gx
