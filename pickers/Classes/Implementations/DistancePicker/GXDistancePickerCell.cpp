#include "GXDistancePickerCell.h"

#include "GXDistancePickerView.h"

namespace gx {

std::string GXDistancePickerCell::cellIdentifier() { return "GXDistancePickerCellIdentifier"; }

void GXDistancePickerCell::initGXDistancePickerCell() { showPicker(create<GXDistancePickerView>(bounds())); }

} // namespace gx
