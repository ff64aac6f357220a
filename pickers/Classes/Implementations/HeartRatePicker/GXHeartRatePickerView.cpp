#include "GXHeartRatePickerView.h"

#include <algorithm>

#include "GXLocalization.h"
#include "GXValueText.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

constexpr NSInteger averageColumn = 0;
constexpr NSInteger spacerColumn = 1;
constexpr NSInteger maximumColumn = 2;
/// What delegates know the maximum by; it is not the number of its column.
constexpr NSInteger reportedMaximum = 1;
constexpr NSInteger reportedAverage = 0;

// A moderate effort, and what a wheel shows that is set to nothing.
constexpr NSInteger defaultAverage = 120;
constexpr NSInteger defaultMaximum = 160;
/// Of the row that picks 0.
constexpr const char* noValueTitle = "-";
/// Just enough to keep two columns of digits apart.
constexpr CGFloat spacerWidth = 5;

} // namespace

bool GXHeartRatePickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXHeartRatePickerView();
    return true;
}

bool GXHeartRatePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXHeartRatePickerView();
    return true;
}

bool GXHeartRatePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXHeartRatePickerView();
    return true;
}

void GXHeartRatePickerView::initGXHeartRatePickerView() {
    setShouldShowNullValue(true);
    setMinimumGapBetweenAvgAndMax(NSNumber::numberWithInteger(1));
    setMinValue(NSNumber::numberWithInteger(25));
    setMaxValue(NSNumber::numberWithInteger(230));
    setCurrentAvgHeartRate(NSNumber::numberWithInteger(defaultAverage));
    setCurrentMaxHeartRate(NSNumber::numberWithInteger(defaultMaximum));
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (!wheel) return;
    wheel->setLabelsFollowReading(false);
    wheel->setRightLabelText(GXLocalization::sharedLocalization()->localizedStringWithKey_comment("MAX", "MAX - Heartrate Unit"));
    wheel->setLeftLabelText(GXLocalization::sharedLocalization()->localizedStringWithKey_comment("AVG", "AVG - Heartrate Unit"));
    // At once: a fresh picker comes up on its rates, instead of turning to them before the user's eyes.
    const NSInteger minimum = minValue().integerValue();
    selectRow_inComponent(wheel, wrappingSubtract(currentAvgHeartRate_.integerValue(), minimum), averageColumn);
    selectRow_inComponent(wheel, wrappingSubtract(currentMaxHeartRate_.integerValue(), minimum), maximumColumn);
}

// The rates

void GXHeartRatePickerView::setCurrentAvgHeartRate(NSNumber rate) {
    const Ref<GXBasePickerView> keep = self();
    currentAvgHeartRate_ = rate ? std::move(rate) : NSNumber::numberWithInteger(defaultAverage);
    currentAvgHeartRate_ = storedRate(currentAvgHeartRate_, averageColumn);
}

void GXHeartRatePickerView::setCurrentMaxHeartRate(NSNumber rate) {
    const Ref<GXBasePickerView> keep = self();
    currentMaxHeartRate_ = rate ? std::move(rate) : NSNumber::numberWithInteger(defaultMaximum);
    currentMaxHeartRate_ = storedRate(currentMaxHeartRate_, maximumColumn);
}

/// Turns the column to the rate and answers what is kept of it.
NSNumber GXHeartRatePickerView::storedRate(NSNumber rate, NSInteger component) {
    const NSInteger distance = wrappingSubtract(rate.integerValue(), minValue().integerValue());
    // A range too small to offer an average offers no pair of rates, so the average's rows decide for both wheels.
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (wheel && wheel->numberOfRowsInComponent(averageColumn) != 0) {
        wheel->selectRow_inComponent_animated(std::max<NSInteger>(distance, 0), component, true);
    }
    // The row "-" stands where the minimum's would be.
    if (shouldShowNullValue_ && distance == 0) return NSNumber::numberWithInteger(0);
    return rate;
}

NSInteger GXHeartRatePickerView::valueOfRow(NSInteger row) const { return wrappingAdd(minValue().integerValue(), row); }

void GXHeartRatePickerView::selectCurrentValue() {
    selectRow_inComponent(pickerView(), quotient(currentValue().integerValue(), stepSize().integerValue()), averageColumn);
}

std::string GXHeartRatePickerView::textOfRate(const std::optional<std::string>& label, NSInteger component) {
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    const NSInteger row = selectedRowInComponent(wheel, component);
    const std::string title = pickerView_titleForRow_forComponent(wheel, row, component).value_or(std::string());
    return joinedBySpace(label.value_or(std::string()), title == noValueTitle ? "–" : title);
}

std::string GXHeartRatePickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (!wheel) return {};
    return textOfRate(wheel->leftLabelText(), averageColumn) + ", " + textOfRate(wheel->rightLabelText(), maximumColumn);
}

// Answers to the wheel

NSInteger GXHeartRatePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 3; }

NSInteger GXHeartRatePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger rows = GXBasePickerView::pickerView_numberOfRowsInComponent(pickerView, component);
    return component == averageColumn ? wrappingSubtract<NSInteger>(rows, 1) : rows;
}

std::optional<std::string> GXHeartRatePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                      NSInteger component) {
    if (component == spacerColumn) return std::nullopt;
    if (row == 0 && shouldShowNullValue_) return noValueTitle;
    return std::to_string(narrowTo32Bits(valueOfRow(row)));
}

CGFloat GXHeartRatePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return component == spacerColumn ? spacerWidth : GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// The user's turns

void GXHeartRatePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    if (component == averageColumn) {
        setCurrentAvgHeartRate(NSNumber::numberWithInteger(valueOfRow(row)));
        makeRoomAboveAverage();
    } else if (component == maximumColumn) {
        setCurrentMaxHeartRate(NSNumber::numberWithInteger(valueOfRow(row)));
        makeRoomBelowMaximum();
    } else {
        return;
    }
    informDelegateOfRate(currentMaxHeartRate_, reportedMaximum);
    informDelegateOfRate(currentAvgHeartRate_, reportedAverage);
}

void GXHeartRatePickerView::makeRoomAboveAverage() {
    const NSInteger gap = minimumGapBetweenAvgAndMax_.integerValue();
    const NSInteger top = maxValue().integerValue();
    const NSInteger needed = wrappingAdd(currentAvgHeartRate_.integerValue(), gap);
    if (currentMaxHeartRate_.integerValue() >= needed) return;
    if (needed < top) {
        setCurrentMaxHeartRate(NSNumber::numberWithInteger(needed));
        return;
    }
    // There is not that much room above: the maximum takes its last row, and the average gives way.
    setCurrentMaxHeartRate(NSNumber::numberWithInteger(wrappingSubtract<NSInteger>(top, 1)));
    setCurrentAvgHeartRate(NSNumber::numberWithInteger(wrappingSubtract(currentMaxHeartRate_.integerValue(), gap)));
}

void GXHeartRatePickerView::makeRoomBelowMaximum() {
    const NSInteger gap = minimumGapBetweenAvgAndMax_.integerValue();
    const NSInteger bottom = minValue().integerValue();
    const NSInteger needed = wrappingSubtract(currentMaxHeartRate_.integerValue(), gap);
    if (currentAvgHeartRate_.integerValue() <= needed) return;
    if (needed >= bottom) {
        setCurrentAvgHeartRate(NSNumber::numberWithInteger(needed));
        return;
    }
    setCurrentAvgHeartRate(NSNumber::numberWithInteger(bottom));
    // With the row "-" the average has just become "no value", which needs no room.
    if (shouldShowNullValue_) return;
    setCurrentMaxHeartRate(NSNumber::numberWithInteger(wrappingAdd(currentAvgHeartRate_.integerValue(), gap)));
}

void GXHeartRatePickerView::informDelegateOfRate(const NSNumber& rate, NSInteger reportedComponent) {
    // The delegate may set another one while it reads this. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const NSNumber value = rate;
    if (const Ref<GXBasePickerViewDelegate> told = delegate().lock()) {
        told->pickerView_didChangeCurrentValue_forComponent(self(), value, reportedComponent);
    }
}

// Answers to a screen reader

std::optional<std::string> GXHeartRatePickerView::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const bool isAverage = component == averageColumn;
    if (const std::optional<std::string> own = accessibilityLabel()) {
        return spokenLabel(own, std::nullopt, isAverage ? GXSpokenName::Average : GXSpokenName::Maximum);
    }
    return spokenLabel(std::nullopt, isAverage ? GXSpokenName::AverageHeartRate : GXSpokenName::MaximumHeartRate, std::nullopt);
}

std::optional<std::string> GXHeartRatePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                   NSInteger component) {
    if (row == 0 && shouldShowNullValue_) return spokenLabel(std::nullopt, GXSpokenName::NoValue, std::nullopt);
    return spokenQuantity({spokenTitle(component, {row, component}), {}, {}}, GXSpokenUnit::BeatPerMinute);
}

} // namespace gx
