#pragma once

#include "WebPicker.h"

namespace gx::web {

/// The height: centimetres in either unit.
class WebHeightPicker final : public WebPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override { return {picker_}; }
    std::optional<double> get(WebProperty property) const override;
    bool set(WebProperty property, double value) override;
    void reload() override { picker_->reloadData(); }
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void follow() { picker_->setHeightDelegate(WeakRef<GXHeightPickerViewDelegate>(refTo(this))); }

private:
    Ref<GXHeightPickerView> picker_ = create<GXHeightPickerView>(CGRectZero);
};

} // namespace gx::web
