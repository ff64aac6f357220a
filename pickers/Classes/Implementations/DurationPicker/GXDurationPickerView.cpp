#include "GXDurationPickerView.h"

#include <algorithm>

#include "GXDurationLayout.h"
#include "GXLocalization.h"
#include "GXPickerComponents.h"
#include "GXTitleReading.h"
#include "GXValueText.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

constexpr NSInteger highest = GXDurationLayout::highest;
constexpr NSInteger middle = GXDurationLayout::middle;
constexpr NSInteger lowest = GXDurationLayout::lowest;

constexpr std::int32_t millisecondsPerSecond = 1000;
constexpr std::int32_t millisecondsPerMinute = 60 * millisecondsPerSecond;
constexpr std::int32_t millisecondsPerHour = 60 * millisecondsPerMinute;

/// The middle one of three is as narrow as its two digits allow. Prescribed by the product.
constexpr CGFloat middleWidth = 30;

} // namespace

void GXDurationPickerView::initGXDurationPickerView() {
    type_ = GXDurationTypeHoursMinutes;
    hoursStepSize_ = 1;
    minutesStepSize_ = 1;
    secondsStepSize_ = 5;
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(99 * millisecondsPerHour));
    setCurrentValue(NSNumber::numberWithInt(5 * millisecondsPerMinute));
    showTexts();
    reloadAllComponents(pickerView());
}

// Layout and steps

GXDurationLayout GXDurationPickerView::layout() const { return GXDurationLayout(type()); }

void GXDurationPickerView::setType(NSInteger type) {
    if (type == this->type()) return;
    const Ref<GXBasePickerView> keep = self();
    type_ = type;
    showTexts();
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

void GXDurationPickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    const std::optional<std::string> name = layout().name();
    if (!name) return;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment(*name, *name));
    setSeparatorText_afterComponent(pickerView(), ":", highest);
    // A separator once shown stays, so a layout of two units empties it.
    setSeparatorText_afterComponent(pickerView(), layout().hasThreeUnits() ? ":" : "", middle);
}

std::int32_t GXDurationPickerView::checkStepSize(std::int32_t step) const { return stepOfAtLeastOne(step); }

std::string GXDurationPickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    std::string time = withoutLeadingZero(textOfSelectedRows(wheel, *this));
    if (time.empty()) return time;
    if (type() == GXDurationTypeHoursMinutes) return joinedBySpace(time, localizedText("h"));
    return layout().hasMinutesAndSecondsAlone() ? joinedBySpace(time, localizedText("min")) : time;
}

// Units

std::int32_t GXDurationPickerView::hoursFromMilliseconds(NSInteger milliseconds) const {
    return narrowTo32Bits(milliseconds / millisecondsPerHour);
}

std::int32_t GXDurationPickerView::minutesFromMilliseconds(NSInteger milliseconds) const {
    return narrowTo32Bits(milliseconds / millisecondsPerMinute % 60);
}

std::int32_t GXDurationPickerView::secondsFromMilliseconds(NSInteger milliseconds) const {
    return narrowTo32Bits(milliseconds / millisecondsPerSecond % 60);
}

std::int32_t GXDurationPickerView::value_forComponent(NSInteger milliseconds, NSInteger component) const {
    const std::optional<GXDurationUnit> unit = layout().unitOfComponent(component);
    if (!unit) return 0;
    if (*unit == GXDurationUnit::Hours) return std::max(hoursFromMilliseconds(milliseconds), 0);
    const bool isMinutes = *unit == GXDurationUnit::Minutes;
    return std::max(isMinutes ? minutesFromMilliseconds(milliseconds) : secondsFromMilliseconds(milliseconds), 0);
}

std::int32_t GXDurationPickerView::stepSizeForComponent(NSInteger component) const {
    const std::optional<GXDurationUnit> unit = layout().unitOfComponent(component);
    if (!unit) return 1;
    if (*unit == GXDurationUnit::Hours) return stepOfAtLeastOne(hoursStepSize());
    return stepOfAtLeastOne(*unit == GXDurationUnit::Minutes ? minutesStepSize() : secondsStepSize());
}

std::int32_t GXDurationPickerView::minValueForComponent(NSInteger component) const {
    return value_forComponent(minValue().integerValue(), component);
}

std::int32_t GXDurationPickerView::maxValueForComponent(NSInteger component) const {
    return value_forComponent(maxValue().integerValue(), component);
}

std::int32_t GXDurationPickerView::currentValueForComponent(NSInteger component) const {
    return value_forComponent(currentValue().integerValue(), component);
}

// What the components offer

NSInteger GXDurationPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return layout().hasThreeUnits() ? 5 : 3; }

NSInteger GXDurationPickerView::rowsOfHighestUnit() const {
    const std::int32_t range = wrappingSubtract(maxValueForComponent(highest), minValueForComponent(highest));
    const std::int32_t rows = quotient(range, stepSizeForComponent(highest));
    return maxValueForComponent(middle) != 0 ? wrappingAdd(rows, 1) : rows;
}

NSInteger GXDurationPickerView::rowsOfMiddleUnit() const {
    const bool isHighestAtMaximum = isOnMaximum(highest);
    std::int32_t end = isHighestAtMaximum ? maxValueForComponent(middle) : 60;
    if (isOnMinimum(highest)) end = wrappingSubtract(end, minValueForComponent(middle));
    const std::int32_t rows = quotient(end, stepSizeForComponent(middle));
    const bool isMaximumOffered = isHighestAtMaximum && layout().hasThreeUnits() && maxValueForComponent(lowest) != 0;
    return isMaximumOffered ? wrappingAdd(rows, 1) : rows;
}

NSInteger GXDurationPickerView::rowsOfLowestUnit() const {
    const bool areHigherAtMaximum = isOnMaximum(highest) && isOnMaximum(middle);
    std::int32_t end = areHigherAtMaximum ? maxValueForComponent(lowest) : 60;
    if (isOnMinimum(highest) && isOnMinimum(middle)) end = wrappingSubtract(end, minValueForComponent(lowest));
    return quotient(end, stepSizeForComponent(lowest));
}

NSInteger GXDurationPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case highest:
        return rowsOfHighestUnit();
    case middle:
        return rowsOfMiddleUnit();
    case lowest:
        return rowsOfLowestUnit();
    default:
        return 1;
    }
}

std::optional<std::string> GXDurationPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                     NSInteger component) {
    if (!GXDurationLayout::holdsValues(component)) return std::nullopt;
    // Minutes above seconds are titled from 0: with a minimum of 1:30 their first row reads 00.
    const bool isFromMinimum =
        component == highest ? layout().hasHours() : isOnMinimum(highest) && (component == middle || isOnMinimum(middle));
    const NSInteger first = isFromMinimum ? minValueForComponent(component) : 0;
    return paddedToTwoCharacters(wrappingAdd(wrappingMultiply<NSInteger>(stepSizeForComponent(component), row), first));
}

CGFloat GXDurationPickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    if (component % 2 != 0) return colonWidth;
    if (component == middle && layout().hasThreeUnits()) return middleWidth;
    return GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// From the wheel to the value

/// The number that a component has selected. In single precision, as all sums that follow: each
/// operation rounds.
float GXDurationPickerView::selectedValue(NSInteger component, float minimum) {
    const auto row = static_cast<float>(selectedRowInComponent(pickerView(), component));
    return row * static_cast<float>(stepSizeForComponent(component)) + minimum;
}

float GXDurationPickerView::selectedSeconds() {
    const NSInteger minimum = minValue().integerValue();
    const auto hours = static_cast<float>(hoursFromMilliseconds(minimum));
    const auto minutes = static_cast<float>(minutesFromMilliseconds(minimum));
    const auto seconds = static_cast<float>(secondsFromMilliseconds(minimum));
    // The value is still that of before the selection, whose rows the user saw.
    const bool isHighestAtMinimum = isOnMinimum(highest);
    const bool isMiddleAtMinimum = isOnMinimum(middle);

    if (layout().hasMinutesAndSecondsAlone()) {
        const float total = selectedValue(highest, minutes) * 60.0F;
        return total + selectedValue(middle, isHighestAtMinimum ? seconds : 0.0F);
    }
    if (!layout().hasHours()) return 0;

    float total = selectedValue(highest, hours) * 3600.0F;
    total += selectedValue(middle, isHighestAtMinimum ? minutes : 0.0F) * 60.0F;
    // 1. With seconds: they start at the minimum's wherever the minutes are the minimum's, whatever
    //    the hours.
    if (layout().hasThreeUnits()) return total + selectedValue(lowest, isMiddleAtMinimum ? seconds : 0.0F);
    // 2. Without: there the minimum's seconds go along unseen, so that its own minute is not below
    //    it.
    return isMiddleAtMinimum ? total + seconds : total;
}

void GXDurationPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    setCurrentValue(NSNumber::numberWithFloat(selectedSeconds() * 1000.0F));
    informDelegateOfValueChange();
    const bool hasThree = layout().hasThreeUnits();
    if (component == highest) reloadComponent(pickerView, middle);
    if ((component == highest || component == middle) && hasThree) reloadComponent(pickerView, lowest);
    selectCurrentValue();
}

// From the value to the wheel

/// The bounds are applied in turn, each by the setter, which comes back here. With the minimum
/// above the maximum one would lead to the other for ever, so a bound is not tested again within
/// itself, nor the minimum within the maximum: the maximum is the last word.
void GXDurationPickerView::clampCurrentValue() {
    if (clamping_ == Clamping::None && currentValue().integerValue() < minValue().integerValue()) {
        setCurrentValueToBound(minValue().integerValue(), Clamping::ToMinimum);
    }
    if (clamping_ != Clamping::ToMaximum && currentValue().integerValue() > maxValue().integerValue()) {
        setCurrentValueToBound(maxValue().integerValue(), Clamping::ToMaximum);
    }
}

void GXDurationPickerView::setCurrentValueToBound(NSInteger bound, Clamping clamping) {
    const Ref<GXBasePickerView> keep = self();
    const Clamping outer = clamping_;
    clamping_ = clamping;
    setCurrentValue(NSNumber::numberWithInteger(bound));
    clamping_ = outer;
}

void GXDurationPickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    clampCurrentValue();
    const NSInteger milliseconds = currentValue().integerValue();
    if (layout().hasHours()) {
        selectUnits(milliseconds);
    } else if (layout().hasMinutesAndSecondsAlone()) {
        selectMinutesAndSeconds(milliseconds);
    }
}

/// Requests the row that shows a unit's value, at least the first.
void GXDurationPickerView::selectRowOfUnit(std::int32_t value, NSInteger component) {
    selectRow_inComponent(pickerView(), std::max(quotient(value, stepSizeForComponent(component)), 0), component);
}

void GXDurationPickerView::selectUnits(NSInteger milliseconds) {
    const std::int32_t hours = wrappingSubtract(hoursFromMilliseconds(milliseconds), minValueForComponent(highest));
    selectRowOfUnit(hours, highest);

    std::int32_t minutes = minutesFromMilliseconds(milliseconds);
    if (isOnMinimum(highest)) minutes = wrappingSubtract(minutes, minValueForComponent(middle));
    // Once more: the minutes' rows depend on the hours.
    selectRowOfUnit(hours, highest);
    selectRowOfUnit(minutes, middle);
    if (!layout().hasThreeUnits()) return;

    std::int32_t seconds = secondsFromMilliseconds(milliseconds);
    if (isOnMinimum(middle)) seconds = wrappingSubtract(seconds, minValueForComponent(lowest));
    selectRowOfUnit(seconds, lowest);
}

void GXDurationPickerView::selectMinutesAndSeconds(NSInteger milliseconds) {
    // Divided before the minimum is subtracted, unlike the hours: with a step of 5 and a minimum of
    // 10 minutes, 20 minutes are row 4 - 10, and so select the first.
    const std::int32_t steps = quotient(minutesFromMilliseconds(milliseconds), stepSizeForComponent(highest));
    selectRow_inComponent(pickerView(), std::max(wrappingSubtract(steps, minValueForComponent(highest)), 0), highest);

    std::int32_t seconds = secondsFromMilliseconds(milliseconds);
    if (isOnMinimum(highest)) seconds = wrappingSubtract(seconds, minValueForComponent(middle));
    selectRowOfUnit(seconds, middle);
}

// Accessibility texts

std::optional<GXAccessibilityName> GXDurationPickerView::accessibilityPartOfComponent(NSInteger component) {
    return layout().accessibilityPartOfComponent(component);
}

std::optional<std::string> GXDurationPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    const auto number = [this, row, component](NSInteger index) { return integerValueOfTitle(reportedTitle(index, {row, component})); };
    return layout().accessibilityText(number(highest), number(middle), number(lowest));
}

} // namespace gx
