#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXCaloriesPickerView`.
class GXCaloriesPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXCaloriesPickerCell();

protected:
    void makePicker() override { initGXCaloriesPickerCell(); }
};

} // namespace gx
