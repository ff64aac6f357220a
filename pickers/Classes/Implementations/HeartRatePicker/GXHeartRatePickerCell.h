#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXHeartRatePickerView`.
class GXHeartRatePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXHeartRatePickerCell();

protected:
    void makePicker() override { initGXHeartRatePickerCell(); }
};

} // namespace gx
