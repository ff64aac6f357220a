#include "GXDistancePickerView.h"

#include <algorithm>
#include <cmath>

#include "GXPickerAccessibility.h"
#include "GXPickerComponents.h"
#include "GXTitleReading.h"
#include "GXWheelCalls.h"
#include "NSArithmetic.h"

namespace gx {

namespace {

// The only conversion constants of this picker. Prescribed by the product: distances that were
// picked in miles must read back the same.
constexpr double feetPerMeter = 3.2808399;
constexpr double feetPerMile = 5280.0;

// The distance that the unit beside the wheel is named for.
constexpr std::int32_t labelledMeters = 10000;

std::int32_t lastDigit(std::int32_t number) { return remainder(number, std::int32_t{10}); }

} // namespace

void GXDistancePickerView::initGXDistancePickerView() {
    numberOfFractionUnits_ = 1;
    setMaxValue(NSNumber::numberWithInt(300000));
    setMinValue(NSNumber::numberWithInt(0));
    setCurrentValue(NSNumber::numberWithFloat(5000.0F));
    showTexts();
}

void GXDistancePickerView::showTexts() {
    const Ref<GXBasePickerView> keep = self();
    showUnit();
    showDecimalSeparator(pickerView());
}

// Properties

void GXDistancePickerView::setNumberOfFractionUnits(std::int32_t count) {
    if (count != 1 && count != 2) return;
    if (count == numberOfFractionUnits()) return;
    numberOfFractionUnits_ = count;
    reloadAllComponents(pickerView());
}

Ref<GXDistanceFormatter> GXDistancePickerView::distanceFormatter() {
    if (!distanceFormatter_) distanceFormatter_ = create<GXDistanceFormatter>(/*style=*/1, isMetric(), /*usingUnit=*/true);
    return distanceFormatter_;
}

void GXDistancePickerView::setIsMetric(bool metric) {
    if (metric == isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(metric);
    if (const Ref<GXDistanceFormatter> formatter = distanceFormatter()) formatter->setMetric(isMetric());
    reloadAllComponents(pickerView());
    showUnit();
    selectCurrentValue();
}

void GXDistancePickerView::showUnit() {
    const Ref<GXDistanceFormatter> formatter = distanceFormatter();
    if (formatter) setRightLabelText(pickerView(), formatter->unit(NSNumber::numberWithInt(labelledMeters)));
}

bool GXDistancePickerView::isFormatterMetric() {
    const Ref<GXDistanceFormatter> formatter = distanceFormatter();
    return formatter && formatter->metric();
}

void GXDistancePickerView::setCurrentValue(NSNumber value) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setCurrentValue(std::move(value));
    reloadAllComponents(pickerView());
}

float GXDistancePickerView::meterToMiles(double meters) const { return toBiggerFloat(meters * feetPerMeter / feetPerMile); }

float GXDistancePickerView::milesToMeter(double miles) const { return toBiggerFloat(miles * feetPerMile / feetPerMeter); }

// What the columns offer. Counts and digits follow the picker's unit system, the whole units'
// titles and the selection the formatter's.

std::int32_t GXDistancePickerView::wholeUnits(double meters) const {
    return isMetric() ? truncateTo<std::int32_t>(meters / 1000.0) : truncateTo<std::int32_t>(meterToMiles(meters));
}

bool GXDistancePickerView::isOnMinimumsWholeUnit() const {
    return wholeUnits(currentValue().doubleValue()) == wholeUnits(minValue().doubleValue());
}

/// 0, or the minimum's digit while the value lies in the minimum's whole unit. The hundredths do
/// not look at the tenths, so near the minimum they offer the same digits whatever tenth is
/// selected.
std::int32_t GXDistancePickerView::firstDigitOffered(NSInteger component) const {
    if (!isOnMinimumsWholeUnit()) return 0;
    const bool isTenths = component == tenthsComponent;
    if (isMetric()) {
        const auto units = quotient<NSInteger>(minValue().integerValue(), isTenths ? 100 : 10);
        return static_cast<std::int32_t>(remainder<NSInteger>(units, 10));
    }
    // The first digit that is not below the minimum; multiplied and rounded up as floats.
    const float units = meterToMiles(minValue().doubleValue()) * (isTenths ? 10.0F : 100.0F);
    return lastDigit(truncateTo<std::int32_t>(std::ceil(units)));
}

NSInteger GXDistancePickerView::wholeUnitRows() const {
    if (isMetric()) return truncateTo<NSInteger>(std::ceil((maxValue().doubleValue() - minValue().doubleValue()) / 1000.0));
    const NSInteger meters = wrappingSubtract(maxValue().integerValue(), minValue().integerValue());
    return truncateTo<std::int32_t>(meterToMiles(static_cast<double>(meters)));
}

NSInteger GXDistancePickerView::firstWholeUnit() {
    if (isFormatterMetric()) return minValue().intValue() / 1000;
    return truncateTo<std::int32_t>(meterToMiles(minValue().doubleValue()));
}

NSInteger GXDistancePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return NSInteger{numberOfFractionUnits()} + 2; }

NSInteger GXDistancePickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) {
    switch (component) {
    case wholeComponent:
        return wholeUnitRows();
    case tenthsComponent:
    case hundredthsComponent:
        return 10 - firstDigitOffered(component);
    default:
        return 1;
    }
}

std::optional<std::string> GXDistancePickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                     NSInteger component) {
    switch (component) {
    case wholeComponent:
        return std::to_string(narrowTo32Bits(wrappingAdd(firstWholeUnit(), row)));
    case tenthsComponent:
    case hundredthsComponent:
        return std::to_string(narrowTo32Bits(wrappingAdd<NSInteger>(firstDigitOffered(component), row)));
    default:
        return std::nullopt;
    }
}

CGFloat GXDistancePickerView::pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    switch (component) {
    case wholeComponent:
    case tenthsComponent:
    case hundredthsComponent:
        return widthOfDigits(pickerView, component);
    case separatorComponent:
        return decimalSeparatorWidth;
    default:
        return unknownComponentWidth;
    }
}

// From the wheel to the value

NSInteger GXDistancePickerView::selectedNumber(const Ref<UIPickerView>& pickerView, NSInteger component) {
    return integerValueOfTitle(selectedTitle(pickerView, component));
}

void GXDistancePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    // The digits are read from the titles, since near the minimum row 0 is not the digit 0.
    const NSInteger whole = selectedNumber(pickerView, wholeComponent);
    const NSInteger components = this->pickerView() ? this->pickerView()->numberOfComponents() : 0;
    const double tenths = components > tenthsComponent ? static_cast<double>(selectedNumber(pickerView, tenthsComponent)) * 100.0 : 0;
    const double hundredths =
        components > hundredthsComponent ? static_cast<double>(selectedNumber(pickerView, hundredthsComponent)) * 10.0 : 0;
    checkMetricAndInformDelegate(static_cast<double>(whole) * 1000.0 + tenths + hundredths);
    if (component == tenthsComponent) {
        for (NSInteger i = tenthsComponent; i <= NSInteger{numberOfFractionUnits()} + 1; ++i) reloadComponent(this->pickerView(), i);
    } else if (component == wholeComponent) {
        // One short of the last component, which the new value has reloaded already with all
        // others.
        for (NSInteger i = separatorComponent; i <= numberOfFractionUnits(); ++i) reloadComponent(this->pickerView(), i);
    }
    selectCurrentValue();
}

void GXDistancePickerView::checkMetricAndInformDelegate(double value) {
    const Ref<GXBasePickerView> keep = self();
    if (!isFormatterMetric()) value = milesToMeter(value / 1000.0);
    setClampedValueAndInformDelegate(value);
}

// From the value to the wheel

void GXDistancePickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    if (isFormatterMetric()) {
        selectCurrentKilometers();
    } else {
        selectCurrentMiles();
    }
}

/// Clamps no row: a value below the minimum requests rows before the first.
void GXDistancePickerView::selectCurrentKilometers() {
    const double meters = currentValue().doubleValue();
    const NSInteger minimum = minValue().integerValue();
    const auto steps = quotient<NSInteger>(truncateTo<std::int32_t>(meters / 1000.0), stepSize().integerValue());
    const NSInteger row = wrappingSubtract(steps, quotient<NSInteger>(minimum, 1000));
    selectRow_inComponent(pickerView(), row, wholeComponent);

    const std::int32_t tenths = lastDigit(truncateTo<std::int32_t>(meters / 100.0));
    const NSInteger firstTenths = row == 0 ? remainder<NSInteger>(quotient<NSInteger>(minimum, 100), 10) : 0;
    selectRow_inComponent(pickerView(), tenths - firstTenths, tenthsComponent);
    if (numberOfFractionUnits() < 2) return;

    // Here the digit of the tenths decides too, and not the whole unit alone as for the rows
    // offered: with a minimum of 1.23 km, 1.25 km is row 5 of those from 3 and shows as 1.28.
    const std::int32_t hundredths = lastDigit(truncateTo<std::int32_t>(meters / 10.0));
    const NSInteger firstHundredths = row == 0 && tenths == 0 ? remainder<NSInteger>(quotient<NSInteger>(minimum, 10), 10) : 0;
    selectRow_inComponent(pickerView(), hundredths - firstHundredths, hundredthsComponent);
}

/// Goes by the rows that the wheel then shows, clamps digits below the first one offered to
/// that, and works in doubles.
void GXDistancePickerView::selectCurrentMiles() {
    const float miles = meterToMiles(currentValue().doubleValue());
    const float minimum = meterToMiles(minValue().doubleValue());
    const auto steps = quotient<NSInteger>(truncateTo<std::int32_t>(miles), stepSize().integerValue());
    selectRow_inComponent(pickerView(), wrappingSubtract<NSInteger>(steps, truncateTo<std::int32_t>(minimum)), wholeComponent);

    const auto rowOfDigit = [&](double scale, bool isAtMinimum) {
        const std::int32_t digit = lastDigit(truncateTo<std::int32_t>(double{miles} * scale));
        if (!isAtMinimum) return digit;
        const std::int32_t first = lastDigit(truncateTo<std::int32_t>(std::ceil(double{minimum} * scale)));
        return std::max(digit - first, 0);
    };
    const bool isFirstMile = selectedRowInComponent(pickerView(), wholeComponent) == 0;
    selectRow_inComponent(pickerView(), rowOfDigit(10.0, isFirstMile), tenthsComponent);
    if (numberOfFractionUnits() < 2) return;

    const bool isFirstTenth =
        selectedRowInComponent(pickerView(), wholeComponent) == 0 && selectedRowInComponent(pickerView(), tenthsComponent) == 0;
    selectRow_inComponent(pickerView(), rowOfDigit(100.0, isFirstTenth), hundredthsComponent);
}

// Accessibility texts

std::optional<GXAccessibilityName> GXDistancePickerView::accessibilityPartOfComponent(NSInteger component) {
    switch (component) {
    case wholeComponent:
        return isFormatterMetric() ? GXAccessibilityName::Kilometres : GXAccessibilityName::Miles;
    case tenthsComponent:
        return GXAccessibilityName::Tenths;
    case hundredthsComponent:
        return GXAccessibilityName::Hundredths;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXDistancePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    const RowInComponent at = {row, component};
    std::string digits = reportedTitle(tenthsComponent, at);
    if (numberOfFractionUnits() > 1) digits += reportedTitle(hundredthsComponent, at);
    return accessibilityQuantity(reportedNumber(wholeComponent, std::move(digits), at),
                                 isFormatterMetric() ? GXAccessibilityUnit::Kilometre : GXAccessibilityUnit::Mile);
}

} // namespace gx
