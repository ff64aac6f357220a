#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDurationPickerView`.
class GXDurationPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXDurationPickerCell();

protected:
    void makePicker() override { initGXDurationPickerCell(); }
};

} // namespace gx
