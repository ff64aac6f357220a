#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDistanceAndDurationPicker`.
class GXDistanceAndDurationCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXDistanceAndDurationCell(); }
    void initGXDistanceAndDurationCell();
};

} // namespace gx
