#pragma once

#include <GXUIPickers/GXDistanceAndDurationPicker.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerView.h>

#include "WebPicker.h"

namespace gx::web {

/// Distance and duration side by side: the properties of both, and a range for each.
class WebDistanceAndDurationPicker final : public WebPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override;
    std::optional<double> get(WebProperty property) const override;
    bool set(WebProperty property, double value) override;
    void reload() override;
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void follow() { picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this))); }

private:
    Ref<GXDistanceAndDurationPicker> picker_ = create<GXDistanceAndDurationPicker>(CGRectZero);
};

/// Weather, as one of the page's pictures, and temperature, whose range `Min`, `Max` and `Step`
/// are.
class WebWeatherAndTemperaturePicker final : public WebPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override;
    std::optional<double> get(WebProperty property) const override;
    bool set(WebProperty property, double value) override;
    void setIcons(Ref<const GXIconPickerView::Images> icons) override;
    Ref<const GXIconPickerView::Images> icons() const override { return picker_->weatherPicker()->iconImages(); }
    void reload() override;
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void follow() { picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this))); }

private:
    Ref<GXWeatherAndTemperaturePickerView> picker_ = create<GXWeatherAndTemperaturePickerView>(CGRectZero);
};

} // namespace gx::web
