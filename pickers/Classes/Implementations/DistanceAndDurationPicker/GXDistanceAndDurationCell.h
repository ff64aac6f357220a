#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDistanceAndDurationPicker`.
class GXDistanceAndDurationCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXDistanceAndDurationCell();

protected:
    void makePicker() override { initGXDistanceAndDurationCell(); }
};

} // namespace gx
