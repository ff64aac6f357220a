#include "GXDurationPickerView.h"

#include <algorithm>
#include <array>

#include "GXLocalization.h"
#include "GXTitleReading.h"
#include "GXValueText.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

// The components of values, from the highest unit to the lowest.
constexpr NSInteger firstComponent = 0;
constexpr NSInteger secondComponent = 2;
constexpr NSInteger thirdComponent = 4;

// Prescribed by the product; the middle one of three columns is as narrow as its two digits allow.
constexpr CGFloat separatorWidth = 5;
constexpr CGFloat middleWidth = 30;

bool holdsValues(NSInteger component) { return component == firstComponent || component == secondComponent || component == thirdComponent; }

/// With at least two characters, as in "%02ld".
std::string twoDigits(NSInteger value) {
    const std::string digits = std::to_string(value);
    return digits.size() < 2 ? "0" + digits : digits;
}

} // namespace

bool GXDurationPickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXDurationPickerView();
    return true;
}

bool GXDurationPickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXDurationPickerView();
    return true;
}

bool GXDurationPickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXDurationPickerView();
    return true;
}

void GXDurationPickerView::initGXDurationPickerView() {
    type_ = GXDurationTypeHoursMinutes;
    hoursStepSize_ = 1;
    minutesStepSize_ = 1;
    secondsStepSize_ = 5;
    setMinValue(NSNumber::numberWithInt(0));
    setMaxValue(NSNumber::numberWithInt(356400000));
    setCurrentValue(NSNumber::numberWithInt(300000));
    showLayout();
    reloadAllComponents(pickerView());
}

// Layout and steps

bool GXDurationPickerView::hasHours() const { return type_ == GXDurationTypeHoursMinutes || type_ == GXDurationTypeHoursMinutesSeconds; }

void GXDurationPickerView::setType(NSInteger type) {
    if (type == type_) return;
    const Ref<GXBasePickerView> keep = self();
    type_ = type;
    showLayout();
    reloadAllComponents(pickerView());
    selectCurrentValue();
}

void GXDurationPickerView::showLayout() {
    static constexpr std::array names = {"hh:mm", "hh:mm:ss", "mm:ss"};
    if (type_ < GXDurationTypeHoursMinutes || type_ > GXDurationTypeMinutesSeconds) return;
    const std::string name = names[static_cast<std::size_t>(type_)];
    const bool hasThree = type_ == GXDurationTypeHoursMinutesSeconds;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment(name, name));
    setSeparatorText_afterComponent(pickerView(), ":", firstComponent);
    // A separator once shown stays, so a layout without the third column empties it.
    setSeparatorText_afterComponent(pickerView(), hasThree ? ":" : "", secondComponent);
}

void GXDurationPickerView::storeStep(std::int32_t& step, std::int32_t value) {
    const std::int32_t checked = checkStepSize(value);
    if (checked == step) return;
    step = checked;
    reloadAllComponents(pickerView());
}

void GXDurationPickerView::setHoursStepSize(std::int32_t step) { storeStep(hoursStepSize_, step); }

void GXDurationPickerView::setMinutesStepSize(std::int32_t step) { storeStep(minutesStepSize_, step); }

void GXDurationPickerView::setSecondsStepSize(std::int32_t step) { storeStep(secondsStepSize_, step); }

std::int32_t GXDurationPickerView::checkStepSize(std::int32_t step) const { return std::max(step, 1); }

std::string GXDurationPickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    const std::string time = withoutLeadingZero(textOfSelectedRows(wheel, *this));
    if (time.empty()) return time;
    if (type_ == GXDurationTypeHoursMinutes) return joinedBySpace(time, "h");
    return type_ == GXDurationTypeMinutesSeconds ? joinedBySpace(time, "min") : time;
}

// Units

std::int32_t GXDurationPickerView::hoursFromMilliseconds(NSInteger milliseconds) const { return narrowTo32Bits(milliseconds / 3600000); }

std::int32_t GXDurationPickerView::minutesFromMilliseconds(NSInteger milliseconds) const {
    return narrowTo32Bits(milliseconds / 60000 % 60);
}

std::int32_t GXDurationPickerView::secondsFromMilliseconds(NSInteger milliseconds) const {
    return narrowTo32Bits(milliseconds / 1000 % 60);
}

std::optional<GXDurationPickerView::Unit> GXDurationPickerView::unitOfComponent(NSInteger component) const {
    if (hasHours()) {
        if (component == firstComponent) return Unit::Hours;
        return component == secondComponent ? Unit::Minutes : Unit::Seconds;
    }
    if (type_ == GXDurationTypeMinutesSeconds) return component == firstComponent ? Unit::Minutes : Unit::Seconds;
    return std::nullopt;
}

std::int32_t GXDurationPickerView::value_forComponent(NSInteger milliseconds, NSInteger component) const {
    const std::optional<Unit> unit = unitOfComponent(component);
    if (!unit) return 0;
    switch (*unit) {
    case Unit::Hours:
        return std::max(hoursFromMilliseconds(milliseconds), 0);
    case Unit::Minutes:
        return std::max(minutesFromMilliseconds(milliseconds), 0);
    case Unit::Seconds:
        return std::max(secondsFromMilliseconds(milliseconds), 0);
    }
    return 0;
}

std::int32_t GXDurationPickerView::stepSizeForComponent(NSInteger component) const {
    const std::optional<Unit> unit = unitOfComponent(component);
    if (!unit) return 1;
    switch (*unit) {
    case Unit::Hours:
        return std::max(hoursStepSize_, 1);
    case Unit::Minutes:
        return std::max(minutesStepSize_, 1);
    case Unit::Seconds:
        return std::max(secondsStepSize_, 1);
    }
    return 1;
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

bool GXDurationPickerView::isOnMinimum(NSInteger component) const {
    return currentValueForComponent(component) == minValueForComponent(component);
}

bool GXDurationPickerView::isOnMaximum(NSInteger component) const {
    return currentValueForComponent(component) == maxValueForComponent(component);
}

// What the columns offer

NSInteger GXDurationPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) {
    return type_ == GXDurationTypeHoursMinutesSeconds ? 5 : 3;
}

NSInteger GXDurationPickerView::rowsOfHighestUnit() const {
    const std::int32_t range = wrappingSubtract(maxValueForComponent(firstComponent), minValueForComponent(firstComponent));
    const std::int32_t rows = quotient(range, stepSizeForComponent(firstComponent));
    return maxValueForComponent(secondComponent) != 0 ? wrappingAdd(rows, 1) : rows;
}

NSInteger GXDurationPickerView::rowsOfMiddleUnit() const {
    const bool isHighestTheMaximums = isOnMaximum(firstComponent);
    std::int32_t end = isHighestTheMaximums ? maxValueForComponent(secondComponent) : 60;
    if (isOnMinimum(firstComponent)) end = wrappingSubtract(end, minValueForComponent(secondComponent));
    const std::int32_t rows = quotient(end, stepSizeForComponent(secondComponent));
    const bool isMaximumsOffered =
        isHighestTheMaximums && type_ == GXDurationTypeHoursMinutesSeconds && maxValueForComponent(thirdComponent) != 0;
    return isMaximumsOffered ? wrappingAdd(rows, 1) : rows;
}

NSInteger GXDurationPickerView::rowsOfLowestUnit() const {
    const bool areHigherTheMaximums = isOnMaximum(firstComponent) && isOnMaximum(secondComponent);
    std::int32_t end = areHigherTheMaximums ? maxValueForComponent(thirdComponent) : 60;
    if (isOnMinimum(firstComponent) && isOnMinimum(secondComponent)) end = wrappingSubtract(end, minValueForComponent(thirdComponent));
    return quotient(end, stepSizeForComponent(thirdComponent));
}

NSInteger GXDurationPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case firstComponent:
        return rowsOfHighestUnit();
    case secondComponent:
        return rowsOfMiddleUnit();
    case thirdComponent:
        return rowsOfLowestUnit();
    default:
        return 1;
    }
}

std::optional<std::string> GXDurationPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                     NSInteger component) {
    if (!holdsValues(component)) return std::nullopt;
    bool isFromMinimum = false;
    switch (component) {
    // Minutes above seconds are titled from 0: with a minimum of 1:30 their first row reads 00.
    case firstComponent:
        isFromMinimum = hasHours();
        break;
    case secondComponent:
        isFromMinimum = isOnMinimum(firstComponent);
        break;
    default:
        isFromMinimum = isOnMinimum(firstComponent) && isOnMinimum(secondComponent);
        break;
    }
    const NSInteger first = isFromMinimum ? minValueForComponent(component) : 0;
    return twoDigits(wrappingAdd(wrappingMultiply<NSInteger>(stepSizeForComponent(component), row), first));
}

CGFloat GXDurationPickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    if (component % 2 != 0) return separatorWidth;
    if (component == secondComponent && type_ == GXDurationTypeHoursMinutesSeconds) return middleWidth;
    return GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// From the wheel to the value

/// The number that a column stands on. In single precision, as all sums that follow: each operation rounds.
float GXDurationPickerView::valueTurnedTo(NSInteger component, float minimum) {
    const auto row = static_cast<float>(selectedRowInComponent(pickerView(), component));
    return row * static_cast<float>(stepSizeForComponent(component)) + minimum;
}

float GXDurationPickerView::secondsTurnedTo() {
    const NSInteger minimum = minValue().integerValue();
    const auto hours = static_cast<float>(hoursFromMilliseconds(minimum));
    const auto minutes = static_cast<float>(minutesFromMilliseconds(minimum));
    const auto seconds = static_cast<float>(secondsFromMilliseconds(minimum));
    // The value is still that of before the turn, whose columns the user saw.
    const bool isHighestTheMinimums = isOnMinimum(firstComponent);
    const bool isMiddleTheMinimums = isOnMinimum(secondComponent);

    if (type_ == GXDurationTypeMinutesSeconds) {
        const float total = valueTurnedTo(firstComponent, minutes) * 60.0F;
        return total + valueTurnedTo(secondComponent, isHighestTheMinimums ? seconds : 0.0F);
    }
    if (!hasHours()) return 0;

    float total = valueTurnedTo(firstComponent, hours) * 3600.0F;
    total += valueTurnedTo(secondComponent, isHighestTheMinimums ? minutes : 0.0F) * 60.0F;
    // 1. With seconds: they start at the minimum's wherever the minutes are the minimum's, whatever the hours.
    if (type_ == GXDurationTypeHoursMinutesSeconds) return total + valueTurnedTo(thirdComponent, isMiddleTheMinimums ? seconds : 0.0F);
    // 2. Without: there the minimum's seconds go along unseen, so that its own minute is not below it.
    return isMiddleTheMinimums ? total + seconds : total;
}

void GXDurationPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    setCurrentValue(NSNumber::numberWithFloat(secondsTurnedTo() * 1000.0F));
    informDelegateOfValueChange();
    const bool hasThree = type_ == GXDurationTypeHoursMinutesSeconds;
    if (component == firstComponent) reloadComponent(pickerView, secondComponent);
    if ((component == firstComponent || component == secondComponent) && hasThree) reloadComponent(pickerView, thirdComponent);
    selectCurrentValue();
}

// From the value to the wheel

/// The bounds are applied in turn, each by the setter, which comes back here; so with the minimum above the maximum one would lead to the
/// other for ever. A bound is therefore not tested again within itself, nor the minimum within the maximum: the maximum is the last word.
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
    if (hasHours()) {
        selectUnits(milliseconds);
    } else if (type_ == GXDurationTypeMinutesSeconds) {
        selectMinutesAndSeconds(milliseconds);
    }
}

/// Asks for the row that a unit's value stands on, at least the first.
void GXDurationPickerView::selectRowOfUnit(std::int32_t value, NSInteger component) {
    selectRow_inComponent(pickerView(), std::max(quotient(value, stepSizeForComponent(component)), 0), component);
}

void GXDurationPickerView::selectUnits(NSInteger milliseconds) {
    const std::int32_t hours = wrappingSubtract(hoursFromMilliseconds(milliseconds), minValueForComponent(firstComponent));
    selectRowOfUnit(hours, firstComponent);

    std::int32_t minutes = minutesFromMilliseconds(milliseconds);
    if (isOnMinimum(firstComponent)) minutes = wrappingSubtract(minutes, minValueForComponent(secondComponent));
    // Once more: the minutes' rows depend on the hours.
    selectRowOfUnit(hours, firstComponent);
    selectRowOfUnit(minutes, secondComponent);
    if (type_ != GXDurationTypeHoursMinutesSeconds) return;

    std::int32_t seconds = secondsFromMilliseconds(milliseconds);
    if (isOnMinimum(secondComponent)) seconds = wrappingSubtract(seconds, minValueForComponent(thirdComponent));
    selectRowOfUnit(seconds, thirdComponent);
}

void GXDurationPickerView::selectMinutesAndSeconds(NSInteger milliseconds) {
    // Divided before the minimum is taken off, unlike the hours: with a step of 5 and a minimum of 10 minutes, 20 minutes ask for row 4 −
    // 10, and so stand on the first.
    const std::int32_t steps = quotient(minutesFromMilliseconds(milliseconds), stepSizeForComponent(firstComponent));
    selectRow_inComponent(pickerView(), std::max(wrappingSubtract(steps, minValueForComponent(firstComponent)), 0), firstComponent);

    std::int32_t seconds = secondsFromMilliseconds(milliseconds);
    if (isOnMinimum(firstComponent)) seconds = wrappingSubtract(seconds, minValueForComponent(secondComponent));
    selectRowOfUnit(seconds, secondComponent);
}

// Answers to a screen reader

std::optional<GXSpokenName> GXDurationPickerView::spokenPartOfComponent(NSInteger component) {
    const std::optional<Unit> unit = holdsValues(component) ? unitOfComponent(component) : std::nullopt;
    if (!unit) return std::nullopt;
    switch (*unit) {
    case Unit::Hours:
        return GXSpokenName::Hours;
    case Unit::Minutes:
        return GXSpokenName::Minutes;
    case Unit::Seconds:
        return GXSpokenName::Seconds;
    }
    return std::nullopt;
}

std::optional<std::string> GXDurationPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    const auto number = [this, row, component](NSInteger column) { return integerValueOfTitle(spokenTitle(column, {row, component})); };
    switch (type_) {
    case GXDurationTypeHoursMinutes:
        return spokenSum({{number(firstComponent), GXSpokenUnit::Hour}, {number(secondComponent), GXSpokenUnit::Minute}});
    case GXDurationTypeHoursMinutesSeconds:
        return spokenSum({{number(firstComponent), GXSpokenUnit::Hour},
                          {number(secondComponent), GXSpokenUnit::Minute},
                          {number(thirdComponent), GXSpokenUnit::Second}});
    case GXDurationTypeMinutesSeconds:
        return spokenSum({{number(firstComponent), GXSpokenUnit::Minute}, {number(secondComponent), GXSpokenUnit::Second}});
    default:
        return std::nullopt;
    }
}

} // namespace gx
