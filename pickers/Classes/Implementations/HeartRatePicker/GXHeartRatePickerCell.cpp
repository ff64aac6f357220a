#include "GXHeartRatePickerCell.h"

#include "GXHeartRatePickerView.h"

namespace gx {

std::string GXHeartRatePickerCell::cellIdentifier() { return "GXHeartRatePickerCellIdentifier"; }

void GXHeartRatePickerCell::initGXHeartRatePickerCell() { showNewPicker<GXHeartRatePickerView>(); }

} // namespace gx
