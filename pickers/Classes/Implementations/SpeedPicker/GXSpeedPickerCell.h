#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXSpeedPickerView`.
class GXSpeedPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXSpeedPickerCell(); }
    void initGXSpeedPickerCell();
};

} // namespace gx
