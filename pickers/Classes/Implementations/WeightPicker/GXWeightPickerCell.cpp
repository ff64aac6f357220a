#include "GXWeightPickerCell.h"

#include "GXPickerPinning.h"
#include "GXWeightPickerView.h"

namespace gx {

std::string GXWeightPickerCell::cellIdentifier() { return "GXWeightPickerCell"; }

void GXWeightPickerCell::initGXWeightPickerCell() {
    const Ref<UIView> keep = refTo<UIView>(this);
    setPickerView(create<GXWeightPickerView>(bounds()));
    addPinnedPicker(contentView(), pickerView());
}

} // namespace gx
