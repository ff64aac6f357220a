#include "GXDistancePickerCell.h"

#include "GXDistancePickerView.h"

namespace gx {

std::string GXDistancePickerCell::cellIdentifier() { return "GXDistancePickerCellIdentifier"; }

void GXDistancePickerCell::initGXDistancePickerCell() { showNewPicker<GXDistancePickerView>(); }

} // namespace gx
