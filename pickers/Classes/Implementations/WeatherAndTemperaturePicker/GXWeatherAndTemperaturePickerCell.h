#pragma once

#include "GXBasePickerCell.h"

namespace gx {

/// A table cell with a `GXWeatherAndTemperaturePickerView`.
class GXWeatherAndTemperaturePickerCell : public GXBasePickerCell {
public:
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    void initGXWeatherAndTemperatureCell();

protected:
    void makePicker() override { initGXWeatherAndTemperatureCell(); }
};

} // namespace gx
