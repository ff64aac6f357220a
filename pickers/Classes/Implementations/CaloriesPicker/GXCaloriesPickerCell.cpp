#include "GXCaloriesPickerCell.h"

#include "GXCaloriesPickerView.h"

namespace gx {

std::string GXCaloriesPickerCell::cellIdentifier() { return "GXCaloriesPickerCellIdentifier"; }

void GXCaloriesPickerCell::initGXCaloriesPickerCell() { showNewPicker<GXCaloriesPickerView>(); }

} // namespace gx
