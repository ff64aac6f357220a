#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDistancePickerView`.
class GXDistancePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXDistancePickerCell(); }
    void initGXDistancePickerCell();
};

} // namespace gx
