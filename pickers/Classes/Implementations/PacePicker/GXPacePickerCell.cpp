#include "GXPacePickerCell.h"

#include "GXPacePickerView.h"

namespace gx {

std::string GXPacePickerCell::cellIdentifier() { return "GXPacePickerCellIdentifier"; }

void GXPacePickerCell::initGXPacePickerCell() { showNewPicker<GXPacePickerView>(); }

} // namespace gx
