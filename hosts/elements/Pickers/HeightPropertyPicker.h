#pragma once

#include "PropertyPicker.h"

namespace gx::elements {

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
    void follow() { picker_->setHeightDelegate(WeakRef<GXHeightPickerViewDelegate>(refTo(this))); }

private:
    Ref<GXHeightPickerView> picker_ = create<GXHeightPickerView>(CGRectZero);
};

} // namespace gx::elements
