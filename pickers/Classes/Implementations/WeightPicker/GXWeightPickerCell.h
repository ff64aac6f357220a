#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXWeightPickerView`, pinned to the content view: whatever moves it, the
/// next layout makes it fill that again.
class GX_EXPORT GXWeightPickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXWeightPickerCell();

protected:
    void makePicker() override { initGXWeightPickerCell(); }
};

} // namespace gx
