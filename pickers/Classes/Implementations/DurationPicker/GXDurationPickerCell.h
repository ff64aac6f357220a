#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDurationPickerView`.
class GXDurationPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXDurationPickerCell(); }
    void initGXDurationPickerCell();
};

} // namespace gx
