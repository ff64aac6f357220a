#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXCaloriesPickerView`.
class GXCaloriesPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXCaloriesPickerCell(); }
    void initGXCaloriesPickerCell();
};

} // namespace gx
