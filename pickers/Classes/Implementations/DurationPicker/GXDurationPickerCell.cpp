#include "GXDurationPickerCell.h"

#include "GXDurationPickerView.h"

namespace gx {

std::string GXDurationPickerCell::cellIdentifier() { return "GXDurationPickerCellIdentifier"; }

void GXDurationPickerCell::initGXDurationPickerCell() { showNewPicker<GXDurationPickerView>(); }

} // namespace gx
