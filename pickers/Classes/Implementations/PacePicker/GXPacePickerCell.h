#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXPacePickerView`.
class GXPacePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXPacePickerCell();

protected:
    void makePicker() override { initGXPacePickerCell(); }
};

} // namespace gx
