#include "GXBpmPickerCell.h"

#include "GXBpmPickerView.h"

namespace gx {

std::string GXBpmPickerCell::cellIdentifier() { return "GXBpmPickerCellIdentifier"; }

void GXBpmPickerCell::initGXBpmPickerCell() { showNewPicker<GXBpmPickerView>(); }

} // namespace gx
