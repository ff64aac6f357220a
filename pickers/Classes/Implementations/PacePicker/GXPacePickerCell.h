#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXPacePickerView`.
class GXPacePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXPacePickerCell(); }
    void initGXPacePickerCell();
};

} // namespace gx
