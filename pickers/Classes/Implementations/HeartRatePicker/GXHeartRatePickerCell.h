#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXHeartRatePickerView`.
class GXHeartRatePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXHeartRatePickerCell(); }
    void initGXHeartRatePickerCell();
};

} // namespace gx
