#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a temperature in whole degrees: -20 to 55 °C in steps of 5, starting at 20 °C, or with
/// `isMetric` false (the default) the same range as -4 to 131 °F.
///
/// Minimum, maximum, step and current value are degrees Celsius in both units; only the wheel
/// changes with the unit. The bounds and the step are read by their integer parts. A value that was
/// picked is a boxed float.
///
/// The Fahrenheit rows begin at the Fahrenheit equivalent of the minimum and lie the step apart in
/// Fahrenheit degrees, so that their titles are as even as the Celsius ones. They do not lie where
/// the Celsius rows do:
/// - A value is shown on the row at or below it, and picking that row in the other unit can change
///   it by part of a step: 20 °C shows as 66 °F, and 66 °F, once picked, as 15 °C.
/// - Where the minimum is no whole degree of Fahrenheit, sums of fractions in single precision can
///   end below the row that was picked: the value stays as picked, and the wheel shows the row
///   before (from -16 °C in steps of 2, 65 °F goes back to 63).
///
/// Nothing is clamped: a value below the minimum requests a negative row of the wheel, one above
/// the maximum a row beyond the last.
class GX_EXPORT GXTemperaturePickerView : public GXBasePickerView {
public:
    /// Celsius or Fahrenheit. The current value stays what it is, in degrees Celsius. The flag that
    /// is set already does nothing.
    void setIsMetric(bool isMetric) override;
    /// Puts "°C" or "°F" beside the wheel, in the user's language of this moment.
    virtual void updateTemperaturUnitLabel();

    /// Turns the wheel to the row at or below the current value, fractions of a degree cut off in
    /// Celsius and kept in Fahrenheit.
    void selectCurrentValue() override;

    // What the wheel queries

    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// In Fahrenheit the whole part of the row's temperature, toward zero: a minimum of -0.4 °F
    /// gives 0, 4, 9 and so on.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    /// Stores the row's temperature, its fraction in Fahrenheit included, selects it and informs
    /// the delegate in degrees Celsius.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXTemperaturePickerView();
    }
    /// Sets range, step, value and unit to those above.
    virtual void initGXTemperaturePickerView();
    void showTexts() override;
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Temperature; }

private:
    float celsiusOfRow(NSInteger row) const;
    float fahrenheitOfRow(NSInteger row) const;
    float minimumInFahrenheit() const;
};

} // namespace gx
