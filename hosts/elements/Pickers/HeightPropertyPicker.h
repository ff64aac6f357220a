#pragma once

#include "PropertyPicker.h"

namespace gx::elements {

/// A height picker in the looks of the style sheet, as all other pickers are: its font and colour,
/// and rows and columns in proportion to it.
///
/// The base class has sizes of its own, and black texts. At the usual text size both are as large.
class HeightWheel final : public GXHeightPickerView {
public:
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    Ref<NSAttributedString> styleString(std::optional<std::string> text) const override;

protected:
    Ref<UIFont> titleFont() override;

private:
    /// The style sheet's, or the largest that there is room for.
    double scale() const;

    // Made again when the style sheet's font or the scale has changed.
    Ref<UIFont> fittedFont_;
    Ref<UIFont> fittedFrom_;
    double fittedScale_ = 0;
};

/// The height: centimetres in either unit.
class HeightPropertyPicker final : public PropertyPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override { return {picker_}; }
    std::optional<double> get(PickerProperty property) const override;
    bool set(PickerProperty property, double value) override;
    void reload() override { picker_->reloadData(); }
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void becomeDelegate() { picker_->setHeightDelegate(WeakRef<GXHeightPickerViewDelegate>(refTo(this))); }

private:
    Ref<GXHeightPickerView> picker_ = create<HeightWheel>(CGRectZero);
};

} // namespace gx::elements
