#include "GXWeatherAndTemperaturePickerCell.h"

#include "GXWeatherAndTemperaturePickerView.h"

namespace gx {

std::string GXWeatherAndTemperaturePickerCell::cellIdentifier() { return "GXWeatherAndTemperaturePickerCellIdentifier"; }

void GXWeatherAndTemperaturePickerCell::initGXWeatherAndTemperatureCell() { showNewPicker<GXWeatherAndTemperaturePickerView>(); }

} // namespace gx
