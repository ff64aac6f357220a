#pragma once

#include <string>
#include <vector>

#include <GXUIPickers/GXMultiValuePickerView.h>

#include "PropertyPicker.h"

namespace gx::elements {

/// A wheel of a host's own columns: it has counts of rows, widths and labels, and a subclass says
/// the title of each row that comes into sight.
///
/// Values are rows. Hosts number them as doubles, so a column has 2^53 rows at most.
class ColumnsPropertyPicker : public PropertyPicker, public UIPickerViewDataSource, public GXMultiValuePickerViewDelegate {
public:
    /// 2^53, the last integer up to which all are doubles.
    static constexpr double highestCount = 9007199254740992;

    NSInteger columnCount() const { return static_cast<NSInteger>(columns_.size()); }
    /// Replaces all columns. Counts are clamped to what a double counts.
    void setRowCounts(const std::vector<double>& counts);

    // Setters are no-ops for a column that does not exist.

    /// In points; a width that is not above 0 leaves it to the wheel, as is the default.
    void setWidth_ofColumn(double width, NSInteger column);
    /// What a screen reader calls the column; empty, the default, for the wheel's own label.
    void setLabel_ofColumn(std::string label, NSInteger column);
    /// The selected row: 0 in a column without rows, −1 for a column that does not exist.
    double rowOfColumn(NSInteger column) const;
    /// Selects a row without animation and without a call of `didChange`. A fraction is cut off and
    /// NaN is 0. A row beyond the last one is remembered, and shows the last one.
    void setRow_ofColumn(double row, NSInteger column);
    /// The row in the selection indicator, also while the column spins; −1 for a column that does
    /// not exist.
    double shownRowOfColumn(NSInteger column) const;

    Ref<UIView> view() const override { return wheel_; }
    std::vector<Ref<UIPickerView>> wheels() const override { return {wheel_}; }
    std::optional<double> get(PickerProperty) const override { return std::nullopt; }
    bool set(PickerProperty, double) override { return false; }
    void reload() override { wheel_->reloadAllComponents(); }
    /// The titles of the selected rows.
    std::string text() const override;
    /// To be called once: the wheel holds its delegate weakly.
    void becomeDelegate();

    /// Nothing for a row without a title. Called for rows that exist alone.
    virtual std::optional<std::string> titleOfRow_ofColumn(double row, NSInteger column) const = 0;

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component,
                                                               const Ref<UIView>& view) override;
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;

private:
    struct Column {
        NSInteger rows = 0;
        CGFloat width = UIPickerView::automaticDimension;
        std::string label;
    };
    const Column* columnAt(NSInteger column) const;
    /// A wheel queries a row of columns without rows too.
    std::optional<std::string> titleOfExistingRow(NSInteger row, NSInteger column) const;

    std::vector<Column> columns_;
    Ref<GXMultiValuePickerView> wheel_ = GXMultiValuePickerView::wheelWithFrame(CGRectZero);
};

} // namespace gx::elements
