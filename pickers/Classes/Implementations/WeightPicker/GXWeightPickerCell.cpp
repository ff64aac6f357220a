#include "GXWeightPickerCell.h"

#include "GXPickerPinning.h"
#include "GXWeightPickerView.h"

namespace gx {

std::string GXWeightPickerCell::cellIdentifier() { return "GXWeightPickerCell"; }

void GXWeightPickerCell::initGXWeightPickerCell() {
    setPickerView(create<GXWeightPickerView>(bounds()));
    addPinnedPicker(contentView(), pickerView());
}

} // namespace gx
