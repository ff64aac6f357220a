#pragma once

#include <GXUIPickers/GXDistanceAndDurationPicker.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerView.h>

#include "PropertyPicker.h"

namespace gx::elements {

/// Distance and duration side by side: the properties of both, and a range for each.
class DistanceAndDurationPropertyPicker final : public PropertyPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override;
    std::optional<double> get(PickerProperty property) const override;
    bool set(PickerProperty property, double value) override;
    void reload() override;
    std::string text() const override { return picker_->currentValueText(); }

    /// To be called once: the picker holds its delegate weakly.
    void becomeDelegate() { picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this))); }

private:
    Ref<GXDistanceAndDurationPicker> picker_ = create<GXDistanceAndDurationPicker>(CGRectZero);
};

/// Weather, as one of the host's pictures, and temperature, whose range `Min`, `Max` and `Step`
/// are.
class WeatherAndTemperaturePropertyPicker final : public PropertyPicker {
public:
    Ref<UIView> view() const override { return picker_; }
    std::vector<Ref<UIPickerView>> wheels() const override;
    std::optional<double> get(PickerProperty property) const override;
    bool set(PickerProperty property, double value) override;
    void setIcons(Ref<const GXIconPickerView::Images> icons) override;
    Ref<const GXIconPickerView::Images> icons() const override { return picker_->weatherPicker()->iconImages(); }
    void reload() override;
    std::string text() const override { return picker_->currentValueText(); }
    /// The label of the pictures, whose own default names no measurement.
    void setAccessibilityLabel(std::optional<std::string> label) override;

    /// To be called once: the picker holds its delegate weakly.
    void becomeDelegate() { picker_->setDelegate(WeakRef<GXBasePickerViewDelegate>(refTo(this))); }

private:
    Ref<GXWeatherAndTemperaturePickerView> picker_ = create<GXWeatherAndTemperaturePickerView>(CGRectZero);
};

} // namespace gx::elements
