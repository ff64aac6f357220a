#include "GXTemperaturePickerView.h"

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXUnitConverter.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

float inFahrenheit(const NSNumber& wholeCelsius) {
    return GXUnitConverter::temperatureCtoF(static_cast<float>(wholeCelsius.integerValue()));
}

} // namespace

void GXTemperaturePickerView::initGXTemperaturePickerView() {
    setMinValue(NSNumber::numberWithInteger(-20));
    setMaxValue(NSNumber::numberWithInteger(60));
    setStepSize(NSNumber::numberWithInteger(5));
    setCurrentValue(NSNumber::numberWithFloat(20.0F));
    updateTemperaturUnitLabel();
}

void GXTemperaturePickerView::updateTemperaturUnitLabel() {
    const Ref<GXBasePickerView> keep = self();
    const std::string unit = isMetric() ? "°C" : "°F";
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment(unit, unit));
}

void GXTemperaturePickerView::showTexts() { updateTemperaturUnitLabel(); }

void GXTemperaturePickerView::setIsMetric(bool isMetric) {
    if (isMetric == this->isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    updateTemperaturUnitLabel();
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

// Rows and temperatures

float GXTemperaturePickerView::minimumInFahrenheit() const { return inFahrenheit(minValue()); }

float GXTemperaturePickerView::celsiusOfRow(NSInteger row) const {
    return static_cast<float>(wrappingAdd(minValue().integerValue(), wrappingMultiply(stepSize().integerValue(), row)));
}

float GXTemperaturePickerView::fahrenheitOfRow(NSInteger row) const {
    return minimumInFahrenheit() + static_cast<float>(wrappingMultiply(stepSize().integerValue(), row));
}

void GXTemperaturePickerView::selectCurrentValue() {
    NSInteger distance = 0;
    if (isMetric()) {
        distance = wrappingSubtract(currentValue().integerValue(), minValue().integerValue());
    } else {
        const float fahrenheit = GXUnitConverter::temperatureCtoF(currentValue().floatValue());
        distance = truncateTo<NSInteger>(fahrenheit - minimumInFahrenheit());
    }
    selectRow_inComponent(pickerView(), quotient(distance, stepSize().integerValue()), 0);
}

// What the wheel queries

NSInteger GXTemperaturePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    if (isMetric()) return GXBasePickerView::pickerView_numberOfRowsInComponent(pickerView, component);
    return quotient(truncateTo<NSInteger>(inFahrenheit(maxValue()) - minimumInFahrenheit()), stepSize().integerValue());
}

std::optional<std::string> GXTemperaturePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                        NSInteger component) {
    if (isMetric()) return GXBasePickerView::pickerView_titleForRow_forComponent(pickerView, row, component);
    return std::to_string(truncateTo<std::int32_t>(fahrenheitOfRow(row)));
}

void GXTemperaturePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    const Ref<GXBasePickerView> keep = self();
    const float celsius = isMetric() ? celsiusOfRow(row) : GXUnitConverter::temperatureFtoC(fahrenheitOfRow(row));
    setCurrentValue(NSNumber::numberWithFloat(celsius));
    informDelegateOfValueChange();
}

// Accessibility texts

std::optional<std::string> GXTemperaturePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&,
                                                                                                     NSInteger row, NSInteger component) {
    return accessibilityQuantity({reportedTitle(component, {row, component}), {}, {}},
                                 isMetric() ? GXAccessibilityUnit::DegreeCelsius : GXAccessibilityUnit::DegreeFahrenheit);
}

} // namespace gx
