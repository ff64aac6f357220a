#include "GXHeartRatePickerView.h"

#include <algorithm>

#include "GXLocalization.h"
#include "GXPickerAccessibility.h"
#include "GXValueText.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

constexpr NSInteger averageComponent = 0;
constexpr NSInteger spacerComponent = 1;
constexpr NSInteger maximumComponent = 2;
// The component numbers that delegates get, which are not those of the wheel.
constexpr NSInteger reportedMaximum = 1;
constexpr NSInteger reportedAverage = 0;

// A moderate effort, and what a wheel shows that is set to nothing.
constexpr NSInteger defaultAverage = 120;
constexpr NSInteger defaultMaximum = 160;
/// Of the row that picks 0.
constexpr const char* noValueTitle = "-";
/// Just enough to keep two components of digits apart.
constexpr CGFloat spacerWidth = 5;

} // namespace

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
    showTexts();
    // Without animation: a new picker shows its rates at once, and does not spin to them.
    const NSInteger minimum = minValue().integerValue();
    selectRow_inComponent(wheel, wrappingSubtract(currentAvgHeartRate().integerValue(), minimum), averageComponent);
    selectRow_inComponent(wheel, wrappingSubtract(currentMaxHeartRate().integerValue(), minimum), maximumComponent);
}

void GXHeartRatePickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    setRightLabelText(pickerView(), localization->localizedStringWithKey_comment("MAX", "MAX - Heartrate Unit"));
    setLeftLabelText(pickerView(), localization->localizedStringWithKey_comment("AVG", "AVG - Heartrate Unit"));
}

// The rates

void GXHeartRatePickerView::setCurrentAvgHeartRate(NSNumber rate) {
    const Ref<GXBasePickerView> keep = self();
    currentAvgHeartRate_ = rate ? std::move(rate) : NSNumber::numberWithInteger(defaultAverage);
    currentAvgHeartRate_ = storedRate(currentAvgHeartRate_, averageComponent);
}

void GXHeartRatePickerView::setCurrentMaxHeartRate(NSNumber rate) {
    const Ref<GXBasePickerView> keep = self();
    currentMaxHeartRate_ = rate ? std::move(rate) : NSNumber::numberWithInteger(defaultMaximum);
    currentMaxHeartRate_ = storedRate(currentMaxHeartRate_, maximumComponent);
}

/// Selects the rate's row and returns what is kept of the rate.
NSNumber GXHeartRatePickerView::storedRate(NSNumber rate, NSInteger component) {
    const NSInteger distance = wrappingSubtract(rate.integerValue(), minValue().integerValue());
    // A range too small to offer an average offers no pair of rates, so the average's rows decide
    // for both wheels.
    const Ref<GXMultiValuePickerView> wheel = pickerView();
    if (wheel && wheel->numberOfRowsInComponent(averageComponent) != 0) {
        wheel->selectRow_inComponent_animated(std::max<NSInteger>(distance, 0), component, true);
    }
    // The row "-" stands where the minimum's would be.
    if (shouldShowNullValue() && distance == 0) return NSNumber::numberWithInteger(0);
    return rate;
}

NSInteger GXHeartRatePickerView::rateOfRow(NSInteger row) const { return wrappingAdd(minValue().integerValue(), row); }

void GXHeartRatePickerView::selectCurrentValue() {
    selectRow_inComponent(pickerView(), quotient(currentValue().integerValue(), stepSize().integerValue()), averageComponent);
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
    return joinedByComma(textOfRate(wheel->leftLabelText(), averageComponent), textOfRate(wheel->rightLabelText(), maximumComponent));
}

// What the wheel queries

NSInteger GXHeartRatePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 3; }

NSInteger GXHeartRatePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger rows = GXBasePickerView::pickerView_numberOfRowsInComponent(pickerView, component);
    return component == averageComponent ? wrappingSubtract<NSInteger>(rows, 1) : rows;
}

std::optional<std::string> GXHeartRatePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                      NSInteger component) {
    if (component == spacerComponent) return std::nullopt;
    if (row == 0 && shouldShowNullValue()) return noValueTitle;
    return std::to_string(narrowTo32Bits(rateOfRow(row)));
}

CGFloat GXHeartRatePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return component == spacerComponent ? spacerWidth : GXBasePickerView::pickerView_widthForComponent(pickerView, component);
}

// The user's selections

void GXHeartRatePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    if (component == averageComponent) {
        setCurrentAvgHeartRate(NSNumber::numberWithInteger(rateOfRow(row)));
        makeRoomAboveAverage();
    } else if (component == maximumComponent) {
        setCurrentMaxHeartRate(NSNumber::numberWithInteger(rateOfRow(row)));
        makeRoomBelowMaximum();
    } else {
        return;
    }
    informDelegateOfRate(currentMaxHeartRate(), reportedMaximum);
    informDelegateOfRate(currentAvgHeartRate(), reportedAverage);
}

void GXHeartRatePickerView::makeRoomAboveAverage() {
    const NSInteger gap = minimumGapBetweenAvgAndMax().integerValue();
    const NSInteger top = maxValue().integerValue();
    const NSInteger needed = wrappingAdd(currentAvgHeartRate().integerValue(), gap);
    if (currentMaxHeartRate().integerValue() >= needed) return;
    if (needed < top) {
        setCurrentMaxHeartRate(NSNumber::numberWithInteger(needed));
        return;
    }
    // There is not that much room above: the maximum takes its last row, and the average gives way.
    setCurrentMaxHeartRate(NSNumber::numberWithInteger(wrappingSubtract<NSInteger>(top, 1)));
    setCurrentAvgHeartRate(NSNumber::numberWithInteger(wrappingSubtract(currentMaxHeartRate().integerValue(), gap)));
}

void GXHeartRatePickerView::makeRoomBelowMaximum() {
    const NSInteger gap = minimumGapBetweenAvgAndMax().integerValue();
    const NSInteger bottom = minValue().integerValue();
    const NSInteger needed = wrappingSubtract(currentMaxHeartRate().integerValue(), gap);
    if (currentAvgHeartRate().integerValue() <= needed) return;
    if (needed >= bottom) {
        setCurrentAvgHeartRate(NSNumber::numberWithInteger(needed));
        return;
    }
    setCurrentAvgHeartRate(NSNumber::numberWithInteger(bottom));
    // With the row "-" the average has just become "no value", which needs no room.
    if (shouldShowNullValue()) return;
    setCurrentMaxHeartRate(NSNumber::numberWithInteger(wrappingAdd(currentAvgHeartRate().integerValue(), gap)));
}

void GXHeartRatePickerView::informDelegateOfRate(const NSNumber& rate, NSInteger reportedComponent) {
    // The delegate may set another one while it reads this.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const NSNumber value = rate;
    if (const Ref<GXBasePickerViewDelegate> receiver = delegate().lock()) {
        receiver->pickerView_didChangeCurrentValue_forComponent(self(), value, reportedComponent);
    }
}

// Accessibility texts

std::optional<std::string> GXHeartRatePickerView::pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) {
    const bool isAverage = component == averageComponent;
    if (const std::optional<std::string> own = accessibilityLabel()) {
        return accessibilityLabelText(own, std::nullopt, isAverage ? GXAccessibilityName::Average : GXAccessibilityName::Maximum);
    }
    return accessibilityLabelText(std::nullopt, isAverage ? GXAccessibilityName::AverageHeartRate : GXAccessibilityName::MaximumHeartRate,
                                  std::nullopt);
}

std::optional<std::string> GXHeartRatePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                   NSInteger component) {
    if (row == 0 && shouldShowNullValue()) return accessibilityLabelText(std::nullopt, GXAccessibilityName::NoValue, std::nullopt);
    return accessibilityQuantity({reportedTitle(component, {row, component}), {}, {}}, GXAccessibilityUnit::BeatPerMinute);
}

} // namespace gx
