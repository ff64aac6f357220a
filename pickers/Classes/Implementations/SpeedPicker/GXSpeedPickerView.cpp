#include "GXSpeedPickerView.h"

#include <algorithm>
#include <cmath>

#include "GXPickerAccessibility.h"
#include "GXPickerComponents.h"
#include "GXTitleReading.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

// Prescribed by the product, as rounded as they are; none is the exact reciprocal of another.
constexpr double kphPerMps = 3.6;
constexpr double mphPerMps = 2.23693629;
constexpr double mpsPerKph = 0.277777778;
constexpr double mpsPerMph = 0.44704;

// The quantity that the unit beside the wheel is named for.
constexpr NSInteger labelledQuantity = 1;

NSInteger wholePart(double speed) { return truncateTo<NSInteger>(speed); }

std::int32_t tenthsDigit(double speed) { return truncateTo<std::int32_t>(std::round(speed * 10)) % 10; }

} // namespace

void GXSpeedPickerView::initGXSpeedPickerView() {
    setMaxValue(NSNumber::numberWithDouble(13.8888889)); // 50 km/h
    setMinValue(NSNumber::numberWithDouble(0.0));
    setCurrentValue(NSNumber::numberWithDouble(2.7777777799999996)); // 10 km/h
    showTexts();
}

void GXSpeedPickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    showUnit();
    showDecimalSeparator(pickerView());
}

// Properties

Ref<GXSpeedFormatter> GXSpeedPickerView::speedFormatter() {
    if (!speedFormatter_) speedFormatter_ = create<GXSpeedFormatter>(/*style=*/1, isMetric(), /*usingUnit=*/true);
    return speedFormatter_;
}

void GXSpeedPickerView::showUnit() {
    const Ref<GXSpeedFormatter> formatter = speedFormatter();
    if (formatter) setRightLabelText(pickerView(), formatter->unit(NSNumber::numberWithInteger(labelledQuantity)));
}

double GXSpeedPickerView::displayed(const NSNumber& value) const {
    return isMetric() ? mpsToKph(value.doubleValue()) : mpsToMph(value.doubleValue());
}

// The copies go first, since the base class's setters reload and select by them.

void GXSpeedPickerView::setMinValue(NSNumber value) {
    setMinSpeedInMphOrKph(displayed(value));
    GXBasePickerView::setMinValue(std::move(value));
}

void GXSpeedPickerView::setMaxValue(NSNumber value) {
    setMaxSpeedInMphOrKph(displayed(value));
    GXBasePickerView::setMaxValue(std::move(value));
}

void GXSpeedPickerView::setCurrentValue(NSNumber value) {
    setCurrentSpeedInMphOrKph(displayed(value));
    GXBasePickerView::setCurrentValue(std::move(value));
}

void GXSpeedPickerView::setIsMetric(bool metric) {
    if (metric == isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(metric);
    setMaxSpeedInMphOrKph(displayed(maxValue()));
    setMinSpeedInMphOrKph(displayed(minValue()));
    setCurrentSpeedInMphOrKph(displayed(currentValue()));
    reloadAllComponents(pickerView());
    if (const Ref<GXSpeedFormatter> formatter = speedFormatter_) formatter->setMetric(isMetric());
    showUnit();
    selectCurrentValue();
}

double GXSpeedPickerView::mpsToKph(double speed) const { return speed * kphPerMps; }

double GXSpeedPickerView::mpsToMph(double speed) const { return speed * mphPerMps; }

double GXSpeedPickerView::kphToMps(double speed) const { return speed * mpsPerKph; }

double GXSpeedPickerView::mphToMps(double speed) const { return speed * mpsPerMph; }

// What the components offer

bool GXSpeedPickerView::isOnMinimumsWholeNumber() const { return wholePart(currentSpeedInMphOrKph()) == wholePart(minSpeedInMphOrKph()); }

NSInteger GXSpeedPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 3; }

NSInteger GXSpeedPickerView::rowsOfTenths() const {
    // 1. The minimum's whole number goes first: a maximum with the same one does not shorten it.
    if (isOnMinimumsWholeNumber()) return 10 - tenthsDigit(minSpeedInMphOrKph());
    // 2. The maximum's tenth is offered.
    if (wholePart(currentSpeedInMphOrKph()) == wholePart(maxSpeedInMphOrKph())) return tenthsDigit(maxSpeedInMphOrKph()) + 1;
    // 3. Any other whole number.
    return 10;
}

NSInteger GXSpeedPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case wholeComponent:
        return wrappingAdd<NSInteger>(wholePart(std::floor(maxSpeedInMphOrKph() - minSpeedInMphOrKph())), 1);
    case tenthsComponent:
        return rowsOfTenths();
    default:
        return 1;
    }
}

std::optional<std::string> GXSpeedPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                  NSInteger component) {
    NSInteger first = 0;
    switch (component) {
    case wholeComponent:
        first = wholePart(minSpeedInMphOrKph());
        break;
    case tenthsComponent:
        first = isOnMinimumsWholeNumber() ? tenthsDigit(minSpeedInMphOrKph()) : 0;
        break;
    default:
        return std::nullopt;
    }
    return std::to_string(narrowTo32Bits(wrappingAdd(first, row)));
}

CGFloat GXSpeedPickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    switch (component) {
    case wholeComponent:
    case tenthsComponent:
        return widthOfDigits(pickerView, component);
    case separatorComponent:
        return decimalSeparatorWidth;
    default:
        return unknownComponentWidth;
    }
}

// From the wheel to the value

double GXSpeedPickerView::selectedNumber(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return doubleValueOfTitle(selectedTitle(pickerView, component));
}

void GXSpeedPickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger, NSInteger) {
    const Ref<GXBasePickerView> keep = self();
    // The tenths are titled for the value before the selection, as the user saw them.
    const double whole = selectedNumber(pickerView, wholeComponent);
    const double tenths = selectedNumber(pickerView, tenthsComponent);
    checkMetricAndInformDelegate(whole + tenths / 10.0);
    reloadComponent(this->pickerView(), tenthsComponent);
    selectCurrentValue();
}

void GXSpeedPickerView::checkMetricAndInformDelegate(double speed) {
    setClampedValueAndInformDelegate(isMetric() ? kphToMps(speed) : mphToMps(speed));
}

// From the value to the wheel

void GXSpeedPickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    // The difference is cut off, not the two speeds: 6.2 above a minimum of 5.5 is on the row of 5.
    const NSInteger above = wholePart(std::max(currentSpeedInMphOrKph() - minSpeedInMphOrKph(), 0.0));
    const NSInteger wholeRow = quotient(above, stepSize().integerValue());
    selectRow_inComponent(pickerView(), wholeRow, wholeComponent);
    std::int32_t tenthsRow = tenthsDigit(currentSpeedInMphOrKph());
    // On the first row the minimum is divided by ten here, and not multiplied as for the tenths
    // offered: with the minimum 5.5, 6.2 is on row 2 − 1.
    if (wholeRow == 0) tenthsRow -= truncateTo<std::int32_t>(std::round(minSpeedInMphOrKph() / 10.0)) % 10;
    selectRow_inComponent(pickerView(), tenthsRow, tenthsComponent);
}

// Accessibility texts

std::optional<GXAccessibilityName> GXSpeedPickerView::accessibilityPartOfComponent(NSInteger component) {
    switch (component) {
    case wholeComponent:
        return isMetric() ? GXAccessibilityName::KilometresPerHour : GXAccessibilityName::MilesPerHour;
    case tenthsComponent:
        return GXAccessibilityName::Tenths;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXSpeedPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                               NSInteger component) {
    const RowInComponent at = {row, component};
    return accessibilityQuantity(reportedNumber(wholeComponent, reportedTitle(tenthsComponent, at), at),
                                 isMetric() ? GXAccessibilityUnit::KilometrePerHour : GXAccessibilityUnit::MilePerHour);
}

} // namespace gx
