#include "GXSpeedPickerCell.h"

#include "GXSpeedPickerView.h"

namespace gx {

std::string GXSpeedPickerCell::cellIdentifier() { return "GXSpeedPickerCellIdentifier"; }

void GXSpeedPickerCell::initGXSpeedPickerCell() { showNewPicker<GXSpeedPickerView>(); }

} // namespace gx
