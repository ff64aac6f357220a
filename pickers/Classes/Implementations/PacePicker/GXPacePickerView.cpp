#include "GXPacePickerView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXPickerComponents.h"
#include "GXTitleReading.h"
#include "GXValueText.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

constexpr NSInteger minutesComponent = 0;
constexpr NSInteger secondsComponent = 2;

constexpr double metersPerKilometer = 1000.0;
constexpr double metersPerMile = 1609.344; // By definition.

} // namespace

void GXPacePickerView::initGXPacePickerView() {
    minutesStepSize_ = 1;
    secondsStepSize_ = 5;
    setMaxValue(NSNumber::numberWithDouble(0.2777777777777778)); // 60:00 per kilometre
    setMinValue(NSNumber::numberWithDouble(11.11111111111111));  // 1:30
    setCurrentValue(NSNumber::numberWithDouble(10.0));           // 1:40
    showTexts();
    reloadAllComponents(pickerView());
}

void GXPacePickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    updatePaceUnitLabel();
    setSeparatorText_afterComponent(pickerView(), ":", minutesComponent);
}

// Properties

void GXPacePickerView::setMinutesStepSize(std::int32_t step) { storeStep(minutesStepSize_, checkStepSize(step)); }

void GXPacePickerView::setSecondsStepSize(std::int32_t step) { storeStep(secondsStepSize_, checkStepSize(step)); }

std::int32_t GXPacePickerView::checkStepSize(std::int32_t step) const { return stepOfAtLeastOne(step); }

void GXPacePickerView::setIsMetric(bool metric) {
    if (metric == isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(metric);
    updatePaceUnitLabel();
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

void GXPacePickerView::updatePaceUnitLabel() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), isMetric()
                                        ? localization->localizedStringWithKey_comment("min/km", "unit min/km (minutes per kilometer)")
                                        : localization->localizedStringWithKey_comment("min/mi", "unit min/mi (minutes per mile)"));
}

void GXPacePickerView::setCurrentValue(NSNumber value) {
    const Ref<GXBasePickerView> keep = self();
    // A bound is taken as it is: it lies within the range or, with crossed bounds, would lead to
    // the other one for ever.
    const bool isBound = std::exchange(isSettingBound_, false);
    if (!isBound) {
        const double speed = value.doubleValue();
        if (speed < maxValue().doubleValue()) return setCurrentValueToBound(maxValue());
        if (speed > minValue().doubleValue()) return setCurrentValueToBound(minValue());
    }
    GXBasePickerView::setCurrentValue(std::move(value));
    reloadComponent(pickerView(), secondsComponent); // Their rows depend on the minute.
}

/// Through the object, so that a subclass sees the value that is stored.
void GXPacePickerView::setCurrentValueToBound(NSNumber bound) {
    const Ref<GXBasePickerView> keep = self();
    isSettingBound_ = true;
    setCurrentValue(std::move(bound));
    isSettingBound_ = false;
}

// Pace and speed

double GXPacePickerView::pacePerMeterToPacePerMile(double pace) const { return pace * metersPerMile; }

std::optional<GXPacePickerView::Components> GXPacePickerView::componentsFromValue(const NSNumber& value) const {
    const double speed = value.doubleValue();
    return components(NSNumber::numberWithDouble(speed == 0 ? 0 : 1 / speed));
}

std::optional<GXPacePickerView::Components> GXPacePickerView::components(const NSNumber& secondsPerMeter) const {
    const double pace = secondsPerMeter.doubleValue();
    if (pace < 0) return std::nullopt;
    // Rounded before it is split, so that 3599.6 seconds are 60:00 and not 59:60.
    const double seconds = std::round(isMetric() ? pace * metersPerKilometer : pacePerMeterToPacePerMile(pace));
    return Components{NSNumber::numberWithInt(truncateTo<std::int32_t>(seconds / 60.0)),
                      NSNumber::numberWithInt(truncateTo<std::int32_t>(seconds) % 60)};
}

GXPacePickerView::Pace GXPacePickerView::paceOfValue(const NSNumber& value) const {
    const std::optional<Components> components = componentsFromValue(value);
    if (!components) return {};
    return {components->minutes.intValue(), components->seconds.intValue()};
}

// What the components offer

NSInteger GXPacePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 3; }

std::int32_t GXPacePickerView::rowsOfSeconds() const {
    const Pace current = paceOfValue(currentValue());
    const Pace minimum = paceOfValue(minValue());
    // 1. The minimum's minute goes first: a maximum in the same minute does not shorten it.
    if (current.minutes == minimum.minutes) return quotient(wrappingSubtract(60, minimum.seconds), secondsStepSize());
    // 2. The maximum's second is offered.
    const Pace maximum = paceOfValue(maxValue());
    if (current.minutes == maximum.minutes) return wrappingAdd(quotient(maximum.seconds, secondsStepSize()), 1);
    // 3. Any other minute.
    return quotient(60, secondsStepSize());
}

NSInteger GXPacePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    if (component == secondsComponent) return rowsOfSeconds();
    if (component != minutesComponent) return 1;
    const std::int32_t range = wrappingSubtract(paceOfValue(maxValue()).minutes, paceOfValue(minValue()).minutes);
    return wrappingAdd(quotient(range, minutesStepSize()), 1);
}

std::optional<std::string> GXPacePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                 NSInteger component) {
    if (component != minutesComponent && component != secondsComponent) return std::nullopt;
    const Pace minimum = paceOfValue(minValue());
    NSInteger first = minimum.minutes;
    NSInteger step = minutesStepSize();
    if (component == secondsComponent) {
        first = paceOfValue(currentValue()).minutes == minimum.minutes ? minimum.seconds : 0;
        step = secondsStepSize();
    }
    return withZeroBelowTen(narrowTo32Bits(wrappingAdd(first, wrappingMultiply(step, row))));
}

CGFloat GXPacePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    if (component != minutesComponent && component != secondsComponent) return colonWidth;
    return GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// From the wheel to the value

/// Per kilometre or mile.
double GXPacePickerView::selectedSeconds() {
    // The value is still that of before the selection, whose seconds the user saw.
    const Pace current = paceOfValue(currentValue());
    const Pace minimum = paceOfValue(minValue());
    const NSInteger minutesRow = selectedRowInComponent(pickerView(), minutesComponent);
    const NSInteger secondsRow = selectedRowInComponent(pickerView(), secondsComponent);
    // The step of the minutes multiplies the minimum's minutes as well, unlike in the titles.
    const double minutes = static_cast<double>(wrappingAdd<NSInteger>(minimum.minutes, minutesRow)) * 60.0 * minutesStepSize();
    const double seconds = minutes + static_cast<double>(wrappingMultiply<NSInteger>(secondsRow, secondsStepSize()));
    return current.minutes == minimum.minutes ? seconds + minimum.seconds : seconds;
}

void GXPacePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    const Ref<GXBasePickerView> keep = self();
    const double secondsPerMeter = selectedSeconds() / (isMetric() ? metersPerKilometer : pacePerMeterToPacePerMile(1.0));
    // 0 seconds make an infinite speed, which the range turns into the minimum.
    setCurrentValue(NSNumber::numberWithDouble(1.0 / secondsPerMeter));
    informDelegateOfValueChange();
    reloadComponent(pickerView(), secondsComponent);
    selectCurrentValue();
}

// From the value to the wheel

void GXPacePickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    const Pace current = paceOfValue(currentValue());
    const Pace minimum = paceOfValue(minValue());
    const std::int32_t minutesRow = quotient(wrappingSubtract(current.minutes, minimum.minutes), minutesStepSize());
    selectRow_inComponent(pickerView(), std::max(minutesRow, 0), minutesComponent);
    const std::int32_t firstSecond = current.minutes == minimum.minutes ? minimum.seconds : 0;
    const std::int32_t secondsRow = quotient(wrappingSubtract(current.seconds, firstSecond), secondsStepSize());
    selectRow_inComponent(pickerView(), std::max(secondsRow, 0), secondsComponent);
}

std::string GXPacePickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (!wheel) return {};
    return joinedBySpace(withoutLeadingZero(textOfSelectedRows(wheel, *this)), wheel->rightLabelText().value_or(std::string()));
}

// Accessibility texts

std::optional<GXAccessibilityName> GXPacePickerView::accessibilityPartOfComponent(NSInteger component) {
    switch (component) {
    case minutesComponent:
        return GXAccessibilityName::Minutes;
    case secondsComponent:
        return GXAccessibilityName::Seconds;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXPacePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                              NSInteger component) {
    const RowInComponent at = {row, component};
    const auto time = accessibilitySum({{integerValueOfTitle(reportedTitle(minutesComponent, at)), GXAccessibilityUnit::Minute},
                                        {integerValueOfTitle(reportedTitle(secondsComponent, at)), GXAccessibilityUnit::Second}});
    return accessibilityPattern(isMetric() ? GXAccessibilityName::PerKilometre : GXAccessibilityName::PerMile, time);
}

} // namespace gx
