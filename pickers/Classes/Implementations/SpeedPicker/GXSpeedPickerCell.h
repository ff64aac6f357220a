#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXSpeedPickerView`.
class GXSpeedPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXSpeedPickerCell();

protected:
    void makePicker() override { initGXSpeedPickerCell(); }
};

} // namespace gx
