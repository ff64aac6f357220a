#include "GXPacePickerView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "GXLocalization.h"
#include "GXTitleReading.h"
#include "GXValueText.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

constexpr NSInteger minutesComponent = 0;
constexpr NSInteger secondsComponent = 2;

constexpr double metersPerKilometer = 1000.0;
constexpr double metersPerMile = 1609.344; // By definition.
constexpr CGFloat separatorWidth = 5;      // Prescribed by the product.

/// With a 0 before every number below 10.
std::string twoDigits(std::int32_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

} // namespace

bool GXPacePickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXPacePickerView();
    return true;
}

bool GXPacePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXPacePickerView();
    return true;
}

bool GXPacePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXPacePickerView();
    return true;
}

void GXPacePickerView::initGXPacePickerView() {
    minutesStepSize_ = 1;
    secondsStepSize_ = 5;
    setMaxValue(NSNumber::numberWithDouble(0.2777777777777778)); // 60:00 per kilometre
    setMinValue(NSNumber::numberWithDouble(11.11111111111111));  // 1:30
    setCurrentValue(NSNumber::numberWithDouble(10.0));           // 1:40
    updatePaceUnitLabel();
    setSeparatorText_afterComponent(pickerView(), ":", minutesComponent);
    reloadAllComponents(pickerView());
}

// Properties

void GXPacePickerView::storeStep(std::int32_t& step, std::int32_t value) {
    const std::int32_t checked = checkStepSize(value);
    if (checked == step) return;
    step = checked;
    reloadAllComponents(pickerView());
}

void GXPacePickerView::setMinutesStepSize(std::int32_t step) { storeStep(minutesStepSize_, step); }

void GXPacePickerView::setSecondsStepSize(std::int32_t step) { storeStep(secondsStepSize_, step); }

std::int32_t GXPacePickerView::checkStepSize(std::int32_t step) const { return std::max(step, 1); }

void GXPacePickerView::setIsMetric(bool metric) {
    if (metric == isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(metric);
    updatePaceUnitLabel();
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

void GXPacePickerView::updatePaceUnitLabel() {
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), isMetric()
                                        ? localization->localizedStringWithKey_comment("min/km", "unit min/km (minutes per kilometer)")
                                        : localization->localizedStringWithKey_comment("min/mi", "unit min/mi (minutes per mile)"));
}

void GXPacePickerView::setCurrentValue(NSNumber value) {
    const Ref<GXBasePickerView> keep = self();
    // A bound is taken as it is: it lies within the range or, with crossed bounds, would lead to the other one for ever.
    const bool isBound = std::exchange(isSettingBound_, false);
    if (!isBound) {
        const double speed = value.doubleValue();
        if (speed < maxValue().doubleValue()) return setCurrentValueToBound(maxValue());
        if (speed > minValue().doubleValue()) return setCurrentValueToBound(minValue());
    }
    GXBasePickerView::setCurrentValue(std::move(value));
    reloadComponent(pickerView(), secondsComponent); // Their rows depend on the minute.
}

/// Through the object, so that a subclass hears of the value that is stored.
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

// What the columns offer

NSInteger GXPacePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 3; }

std::int32_t GXPacePickerView::rowsOfSeconds() const {
    const Pace current = paceOfValue(currentValue());
    const Pace minimum = paceOfValue(minValue());
    // 1. The minimum's minute goes first: a maximum in the same minute does not shorten it.
    if (current.minutes == minimum.minutes) return quotient(wrappingSubtract(60, minimum.seconds), secondsStepSize_);
    // 2. The maximum's second is offered.
    const Pace maximum = paceOfValue(maxValue());
    if (current.minutes == maximum.minutes) return wrappingAdd(quotient(maximum.seconds, secondsStepSize_), 1);
    // 3. Any other minute.
    return 60 / secondsStepSize_;
}

NSInteger GXPacePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    if (component == secondsComponent) return rowsOfSeconds();
    if (component != minutesComponent) return 1;
    const std::int32_t range = wrappingSubtract(paceOfValue(maxValue()).minutes, paceOfValue(minValue()).minutes);
    return wrappingAdd(quotient(range, minutesStepSize_), 1);
}

std::optional<std::string> GXPacePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                 NSInteger component) {
    if (component != minutesComponent && component != secondsComponent) return std::nullopt;
    const Pace minimum = paceOfValue(minValue());
    NSInteger first = minimum.minutes;
    NSInteger step = minutesStepSize_;
    if (component == secondsComponent) {
        first = paceOfValue(currentValue()).minutes == minimum.minutes ? minimum.seconds : 0;
        step = secondsStepSize_;
    }
    return twoDigits(narrowTo32Bits(wrappingAdd(first, wrappingMultiply(step, row))));
}

CGFloat GXPacePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    if (component != minutesComponent && component != secondsComponent) return separatorWidth;
    return GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// From the wheel to the value

/// Per kilometre or mile.
double GXPacePickerView::secondsTurnedTo() {
    // The value is still that of before the turn, whose seconds the user saw.
    const Pace current = paceOfValue(currentValue());
    const Pace minimum = paceOfValue(minValue());
    const NSInteger minutesRow = selectedRowInComponent(pickerView(), minutesComponent);
    const NSInteger secondsRow = selectedRowInComponent(pickerView(), secondsComponent);
    // The step of the minutes multiplies the minimum's minutes as well, unlike in the titles.
    const double minutes = static_cast<double>(wrappingAdd<NSInteger>(minimum.minutes, minutesRow)) * 60.0 * minutesStepSize_;
    const double seconds = minutes + static_cast<double>(wrappingMultiply<NSInteger>(secondsRow, secondsStepSize_));
    return current.minutes == minimum.minutes ? seconds + minimum.seconds : seconds;
}

void GXPacePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    const Ref<GXBasePickerView> keep = self();
    const double secondsPerMeter = secondsTurnedTo() / (isMetric() ? metersPerKilometer : pacePerMeterToPacePerMile(1.0));
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
    const std::int32_t minutesRow = quotient(wrappingSubtract(current.minutes, minimum.minutes), minutesStepSize_);
    selectRow_inComponent(pickerView(), std::max(minutesRow, 0), minutesComponent);
    const std::int32_t firstSecond = current.minutes == minimum.minutes ? minimum.seconds : 0;
    const std::int32_t secondsRow = quotient(wrappingSubtract(current.seconds, firstSecond), secondsStepSize_);
    selectRow_inComponent(pickerView(), std::max(secondsRow, 0), secondsComponent);
}

std::string GXPacePickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (!wheel) return {};
    return joinedBySpace(withoutLeadingZero(textOfSelectedRows(wheel, *this)), wheel->rightLabelText().value_or(std::string()));
}

// Answers to a screen reader

std::optional<GXSpokenName> GXPacePickerView::spokenPartOfComponent(NSInteger component) {
    switch (component) {
    case minutesComponent:
        return GXSpokenName::Minutes;
    case secondsComponent:
        return GXSpokenName::Seconds;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXPacePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                              NSInteger component) {
    const SpokenRow at = {row, component};
    const auto time = spokenSum({{integerValueOfTitle(spokenTitle(minutesComponent, at)), GXSpokenUnit::Minute},
                                 {integerValueOfTitle(spokenTitle(secondsComponent, at)), GXSpokenUnit::Second}});
    return spokenPattern(isMetric() ? GXSpokenName::PerKilometre : GXSpokenName::PerMile, time);
}

} // namespace gx
