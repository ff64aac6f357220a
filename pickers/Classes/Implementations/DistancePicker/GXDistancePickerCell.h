#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXDistancePickerView`.
class GXDistancePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXDistancePickerCell();

protected:
    void makePicker() override { initGXDistancePickerCell(); }
};

} // namespace gx
