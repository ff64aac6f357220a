#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXDistanceAndDurationPicker`.
class GX_EXPORT GXDistanceAndDurationCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXDistanceAndDurationCell();

protected:
    void makePicker() override { initGXDistanceAndDurationCell(); }
};

} // namespace gx
