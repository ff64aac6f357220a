#include "FuzzListener.h"

#include "UILabel.h"
#include "UITableView.h"

using namespace gx;

bool FuzzListener::react(unsigned odds) const {
    if (world_) world_->react(odds);
    return world_ != nullptr;
}

Ref<UIView> FuzzListener::someView() const { return (*views_)[world_->bytes().below(3)]; }

void FuzzListener::changeAnswers(FuzzBytes& bytes) {
    switch (bytes.below(3)) {
    case 0:
        rows_ = bytes.integer();
        return;
    case 1:
        width_ = bytes.number();
        return;
    default:
        height_ = bytes.number();
    }
}

// Pickers

void FuzzListener::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) { react(1); }
void FuzzListener::heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat, bool) { react(1); }

// Wheels

NSInteger FuzzListener::numberOfComponentsInPickerView(const Ref<UIPickerView>&) {
    return react(8) ? world_->bytes().below(7) - NSInteger{1} : 3;
}
NSInteger FuzzListener::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) {
    react(8);
    return rows_;
}
CGFloat FuzzListener::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) {
    react(16);
    return width_;
}
CGFloat FuzzListener::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) {
    react(16);
    return height_;
}
std::optional<std::string> FuzzListener::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    react(16);
    return std::to_string(row);
}
Ref<NSAttributedString> FuzzListener::pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    if (row % 4 != 1) return nullptr;
    react(16);
    return NSAttributedString::attributedStringWithString_attributes(std::to_string(row), {});
}
Ref<UIView> FuzzListener::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger, NSInteger,
                                                                         const Ref<UIView>& view) {
    if (!react(16)) return nullptr;
    switch (world_->bytes().below(16)) {
    case 0:
        return view ? view : create<UILabel>();
    case 1:
        return someView(); // One that shows something else already, perhaps the wheel itself.
    default:
        return nullptr;
    }
}
void FuzzListener::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) { react(1); }
std::optional<std::string> FuzzListener::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger) {
    react(4);
    return std::nullopt;
}
std::optional<std::string> FuzzListener::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    react(4);
    return std::nullopt;
}

// Tables

NSInteger FuzzListener::tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) {
    react(16);
    return 6;
}
Ref<UITableViewCell> FuzzListener::tableView_cellForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    if (!react(8)) return nullptr;
    const Ref<UIView> view = (*views_)[static_cast<std::size_t>(path.row) % views_->size()];
    if (const auto cell = std::dynamic_pointer_cast<UITableViewCell>(view)) return cell;
    auto cell = create<UITableViewCell>();
    cell->contentView()->addSubview(view);
    return cell;
}
CGFloat FuzzListener::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    react(16);
    return 120;
}
void FuzzListener::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) { react(1); }
void FuzzListener::tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>&, NSIndexPath) {
    react(2);
}
