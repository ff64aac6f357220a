#include "GXBasePickerCell.h"

#include "GXStyleSheet.h"

namespace gx {

std::string GXBasePickerCell::cellIdentifier() { return "GXBasePickerCellIdentifier"; }

bool GXBasePickerCell::initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    if (!UITableViewCell::initWithStyle_reuseIdentifier(style, reuseIdentifier)) return false;
    setUp();
    return true;
}

bool GXBasePickerCell::initWithFrame(CGRect frame) {
    if (!UITableViewCell::initWithFrame(frame)) return false;
    setUp();
    return true;
}

void GXBasePickerCell::awakeFromNib() {
    UITableViewCell::awakeFromNib();
    setUp();
}

void GXBasePickerCell::setUp() {
    // An application's wheels are made with the picker.
    const Ref<UIView> keep = refTo<UIView>(this);
    initGXBasePickerCell();
    if (!pickerView()) makePicker();
}

void GXBasePickerCell::initGXBasePickerCell() { styleGXBasePickerCell(); }

void GXBasePickerCell::styleGXBasePickerCell() {
    const Ref<UIView> keep = refTo<UIView>(this);
    contentView()->setBackgroundColor(UIColor::clearColor());
    setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
}

void GXBasePickerCell::makePicker() {}

void GXBasePickerCell::showPicker(const Ref<GXBasePickerView>& picker) {
    setPickerView(picker);
    contentView()->addSubview(picker);
}

void GXBasePickerCell::setFrame(CGRect frame) {
    const Ref<UIView> keep = refTo<UIView>(this);
    UITableViewCell::setFrame(frame);
    fillWithPicker();
}

void GXBasePickerCell::setBounds(CGRect newBounds) {
    const Ref<UIView> keep = refTo<UIView>(this);
    UITableViewCell::setBounds(newBounds);
    fillWithPicker();
}

void GXBasePickerCell::fillWithPicker() {
    if (const Ref<GXBasePickerView> picker = pickerView()) picker->setFrame(bounds());
}

} // namespace gx
