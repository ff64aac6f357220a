#pragma once

#include "GXBasePickerCell.h"
#include "GXExport.h"

namespace gx {

/// A table cell with a `GXWeatherAndTemperaturePickerView`.
class GX_EXPORT GXWeatherAndTemperaturePickerCell : public GXBasePickerCell {
public:
    /// What an application registers the class under. Subclasses declare one of their own.
    static std::string cellIdentifier();

    /// Makes the picker and shows it.
    virtual void initGXWeatherAndTemperatureCell();

protected:
    void makePicker() override { initGXWeatherAndTemperatureCell(); }
};

} // namespace gx
