#include "GXBpmPickerCell.h"

#include "GXBpmPickerView.h"

namespace gx {

std::string GXBpmPickerCell::cellIdentifier() { return "GXBpmPickerCellIdentifier"; }

void GXBpmPickerCell::initGXBpmPickerCell() { showPicker(create<GXBpmPickerView>(bounds())); }

} // namespace gx
