#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXBpmPickerView`.
class GXBpmPickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXBpmPickerCell(); }
    void initGXBpmPickerCell();
};

} // namespace gx
