#include "GXHeightPickerCell.h"

#include "GXPickerPinning.h"

namespace gx {

std::string GXHeightPickerCell::cellIdentifier() { return "GXHeightPickerCell"; }

bool GXHeightPickerCell::initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    if (!UITableViewCell::initWithStyle_reuseIdentifier(style, reuseIdentifier)) return false;
    initPicker();
    return true;
}

bool GXHeightPickerCell::initWithFrame(CGRect frame) {
    if (!UITableViewCell::initWithFrame(frame)) return false;
    initPicker();
    return true;
}

void GXHeightPickerCell::awakeFromNib() {
    UITableViewCell::awakeFromNib();
    initPicker();
}

void GXHeightPickerCell::initPicker() {
    if (pickerView()) return;
    const Ref<UIView> keep = refTo<UIView>(this);
    pickerView_ = create<GXHeightPickerView>(bounds());
    addPinnedPicker(contentView(), pickerView());
}

} // namespace gx
