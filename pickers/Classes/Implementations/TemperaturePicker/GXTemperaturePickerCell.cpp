#include "GXTemperaturePickerCell.h"

#include "GXStyleSheet.h"
#include "GXTemperaturePickerView.h"

namespace gx {

std::string GXTemperaturePickerCell::cellIdentifier() { return "GXTemperaturePickerCellIdentifier"; }

void GXTemperaturePickerCell::initGXTemperaturePickerCell() {
    const Ref<UIView> keep = refTo<UIView>(this);
    const auto rowHeight = static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
    showPicker(create<GXTemperaturePickerView>(bounds(), rowHeight));
}

} // namespace gx
