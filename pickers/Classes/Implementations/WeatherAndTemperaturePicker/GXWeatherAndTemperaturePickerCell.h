#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXWeatherAndTemperaturePickerView`.
class GXWeatherAndTemperaturePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

protected:
    void makePicker() override { initGXWeatherAndTemperatureCell(); }
    void initGXWeatherAndTemperatureCell();
};

} // namespace gx
