#include "ColumnsPropertyPicker.h"

#include <algorithm>

#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/NSArithmetic.h>

namespace gx::elements {

void ColumnsPropertyPicker::becomeDelegate() {
    const Ref<ColumnsPropertyPicker> self = refTo(this);
    wheel_->setDelegate(self);
    wheel_->setDataSource(WeakRef<UIPickerViewDataSource>(self));
}

const ColumnsPropertyPicker::Column* ColumnsPropertyPicker::columnAt(NSInteger column) const {
    return column >= 0 && column < static_cast<NSInteger>(columns_.size()) ? &columns_[static_cast<std::size_t>(column)] : nullptr;
}

void ColumnsPropertyPicker::setRowCounts(const std::vector<double>& counts) {
    columns_.clear();
    for (const double count : counts) {
        Column column;
        column.rows = truncateTo<NSInteger>(std::clamp(count, 0.0, highestCount));
        columns_.push_back(std::move(column));
    }
    wheel_->reloadAllComponents();
}

void ColumnsPropertyPicker::setWidth_ofColumn(double width, NSInteger column) {
    if (!columnAt(column)) return;
    columns_[static_cast<std::size_t>(column)].width = width > 0 ? width : UIPickerView::automaticDimension;
    wheel_->reloadAllComponents();
}

void ColumnsPropertyPicker::setLabel_ofColumn(std::string label, NSInteger column) {
    if (columnAt(column)) columns_[static_cast<std::size_t>(column)].label = std::move(label);
}

double ColumnsPropertyPicker::rowOfColumn(NSInteger column) const { return static_cast<double>(wheel_->selectedRowInComponent(column)); }

double ColumnsPropertyPicker::shownRowOfColumn(NSInteger column) const {
    return static_cast<double>(wheel_->rowInSelectionIndicatorOfComponent(column));
}

void ColumnsPropertyPicker::setRow_ofColumn(double row, NSInteger column) {
    wheel_->selectRow_inComponent_animated(truncateTo<NSInteger>(std::clamp(row, 0.0, highestCount)), column, false);
}

std::optional<std::string> ColumnsPropertyPicker::titleOfExistingRow(NSInteger row, NSInteger column) const {
    const Column* const shown = columnAt(column);
    const bool exists = shown != nullptr && row >= 0 && row < shown->rows;
    return exists ? titleOfRow_ofColumn(static_cast<double>(row), column) : std::nullopt;
}

std::string ColumnsPropertyPicker::text() const {
    std::string text;
    for (NSInteger i = 0; i < static_cast<NSInteger>(columns_.size()); ++i) {
        const std::optional<std::string> title = titleOfExistingRow(wheel_->selectedRowInComponent(i), i);
        if (!title || title->empty()) continue;
        if (!text.empty()) text += ' ';
        text += *title;
    }
    return text;
}

NSInteger ColumnsPropertyPicker::numberOfComponentsInPickerView(const Ref<UIPickerView>&) {
    return static_cast<NSInteger>(columns_.size());
}

NSInteger ColumnsPropertyPicker::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    const Column* column = columnAt(component);
    return column ? column->rows : 0;
}

std::optional<std::string> ColumnsPropertyPicker::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                      NSInteger component) {
    return titleOfExistingRow(row, component);
}

CGFloat ColumnsPropertyPicker::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const Column* column = columnAt(component);
    return column ? column->width : UIPickerView::automaticDimension;
}

CGFloat ColumnsPropertyPicker::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) {
    return GXStyleSheet::globalStyleSheet()->pickerRowHeight();
}

Ref<UIView> ColumnsPropertyPicker::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                  NSInteger component, const Ref<UIView>& view) {
    // Only labels are ever given, so only labels come back.
    const Ref<UILabel> label = view ? std::static_pointer_cast<UILabel>(view) : create<UILabel>(CGRectZero);
    label->setTextAlignment(NSTextAlignmentCenter);
    setStyleSheetFont(label, GXStyleSheet::globalStyleSheet()->pickerValueFont());
    label->setText(pickerView_titleForRow_forComponent(pickerView, row, component));
    return label;
}

void ColumnsPropertyPicker::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    if (didChange) didChange();
}

std::optional<std::string> ColumnsPropertyPicker::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const Column* column = columnAt(component);
    return column && !column->label.empty() ? std::optional(column->label) : std::nullopt;
}

} // namespace gx::elements
