#include "GXSpeedPickerCell.h"

#include "GXSpeedPickerView.h"

namespace gx {

std::string GXSpeedPickerCell::cellIdentifier() { return "GXSpeedPickerCellIdentifier"; }

void GXSpeedPickerCell::initGXSpeedPickerCell() { showPicker(create<GXSpeedPickerView>(bounds())); }

} // namespace gx
