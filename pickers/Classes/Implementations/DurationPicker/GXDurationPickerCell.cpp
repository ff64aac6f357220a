#include "GXDurationPickerCell.h"

#include "GXDurationPickerView.h"

namespace gx {

std::string GXDurationPickerCell::cellIdentifier() { return "GXDurationPickerCellIdentifier"; }

void GXDurationPickerCell::initGXDurationPickerCell() { showPicker(create<GXDurationPickerView>(bounds())); }

} // namespace gx
