#include "GXDistancePickerView.h"

#include <algorithm>
#include <cmath>

#include "GXTitleReading.h"
#include "GXWheelOrders.h"
#include "NSArithmetic.h"
#include "NSLocale.h"

namespace gx {

namespace {

constexpr NSInteger wholeComponent = 0;
constexpr NSInteger separatorComponent = 1;
constexpr NSInteger tenthsComponent = 2;
constexpr NSInteger hundredthsComponent = 3;

// Of a separator column, and of one that does not exist. Prescribed by the product.
constexpr CGFloat separatorWidth = 3;
constexpr CGFloat unknownWidth = 40;

// The only conversion constants of this picker. Prescribed by the product: distances that were picked in miles must read back the same.
constexpr double feetPerMeter = 3.2808399;
constexpr double feetPerMile = 5280.0;

// The distance that the unit beside the wheel is named for.
constexpr std::int32_t labelledMeters = 10000;

std::int32_t lastDigit(std::int32_t number) { return remainder(number, std::int32_t{10}); }

} // namespace

bool GXDistancePickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXDistancePickerView();
    return true;
}

bool GXDistancePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXDistancePickerView();
    return true;
}

bool GXDistancePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    if (!GXBasePickerView::initWithFrame_rowHeight(frame, rowHeight)) return false;
    initGXDistancePickerView();
    return true;
}

void GXDistancePickerView::initGXDistancePickerView() {
    numberOfFractionUnits_ = 1;
    setMaxValue(NSNumber::numberWithInt(300000));
    setMinValue(NSNumber::numberWithInt(0));
    setCurrentValue(NSNumber::numberWithFloat(5000.0F));
    showUnit();
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    setSeparatorText_afterComponent(pickerView(), locale->objectForKey(NSLocaleDecimalSeparator), wholeComponent);
}

// Properties

void GXDistancePickerView::setNumberOfFractionUnits(std::int32_t count) {
    if (count != 1 && count != 2) return;
    if (count == numberOfFractionUnits_) return;
    numberOfFractionUnits_ = count;
    reloadAllComponents(pickerView());
}

const Ref<GXDistanceFormatter>& GXDistancePickerView::distanceFormatter() {
    if (!distanceFormatter_) distanceFormatter_ = create<GXDistanceFormatter>(1, isMetric(), true);
    return distanceFormatter_;
}

void GXDistancePickerView::setIsMetric(bool metric) {
    if (metric == isMetric()) return;
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(metric);
    const Ref<GXDistanceFormatter> formatter = distanceFormatter();
    formatter->setMetric(isMetric());
    reloadAllComponents(pickerView());
    showUnit();
    selectCurrentValue();
}

void GXDistancePickerView::showUnit() {
    const Ref<GXDistanceFormatter> formatter = distanceFormatter();
    setRightLabelText(pickerView(), formatter->unit(NSNumber::numberWithInt(labelledMeters)));
}

void GXDistancePickerView::setCurrentValue(NSNumber value) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setCurrentValue(std::move(value));
    reloadAllComponents(pickerView());
}

float GXDistancePickerView::meterToMiles(double meters) const { return toBiggerFloat(meters * feetPerMeter / feetPerMile); }

float GXDistancePickerView::milesToMeter(double miles) const { return toBiggerFloat(miles * feetPerMile / feetPerMeter); }

// What the columns offer. Counts and digits follow the picker's unit system, the whole units' titles and the selection the formatter's.

std::int32_t GXDistancePickerView::wholeUnits(double meters) const {
    return isMetric() ? truncateTo<std::int32_t>(meters / 1000.0) : truncateTo<std::int32_t>(meterToMiles(meters));
}

bool GXDistancePickerView::isOnMinimumsWholeUnit() const {
    return wholeUnits(currentValue().doubleValue()) == wholeUnits(minValue().doubleValue());
}

/// 0, or the minimum's digit while the value lies in the minimum's whole unit. The hundredths do not look at the tenths, so near the
/// minimum they offer the same digits whatever tenth is selected.
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
    if (distanceFormatter()->metric()) return minValue().intValue() / 1000;
    return truncateTo<std::int32_t>(meterToMiles(minValue().doubleValue()));
}

NSInteger GXDistancePickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return NSInteger{numberOfFractionUnits_} + 2; }

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
        return widthWithinAThirdOfWheel(GXBasePickerView::pickerView_widthForComponent(pickerView, component),
                                        pickerView ? pickerView : this->pickerView());
    case separatorComponent:
        return separatorWidth;
    default:
        return unknownWidth;
    }
}

// From the wheel to the value

NSInteger GXDistancePickerView::numberSelectedInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) {
    const NSInteger row = selectedRowInComponent(pickerView, component);
    return integerValueOfTitle(pickerView_titleForRow_forComponent(pickerView, row, component));
}

void GXDistancePickerView::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger, NSInteger component) {
    const Ref<GXBasePickerView> keep = self();
    // The digits are read from the titles, since near the minimum row 0 is not the digit 0.
    const NSInteger whole = numberSelectedInComponent(pickerView, wholeComponent);
    const NSInteger components = this->pickerView() ? this->pickerView()->numberOfComponents() : 0;
    const double tenths = components >= 3 ? static_cast<double>(numberSelectedInComponent(pickerView, tenthsComponent)) * 100.0 : 0;
    const double hundredths = components > 3 ? static_cast<double>(numberSelectedInComponent(pickerView, hundredthsComponent)) * 10.0 : 0;
    checkMetricAndInformDelegate(static_cast<double>(whole) * 1000.0 + tenths + hundredths);
    if (component == tenthsComponent) {
        for (NSInteger i = 2; i <= NSInteger{numberOfFractionUnits_} + 1; ++i) reloadComponent(this->pickerView(), i);
    } else if (component == wholeComponent) {
        // One short of the last column, which the new value has reloaded already with all others.
        for (NSInteger i = 1; i <= numberOfFractionUnits_; ++i) reloadComponent(this->pickerView(), i);
    }
    selectCurrentValue();
}

void GXDistancePickerView::checkMetricAndInformDelegate(double value) {
    const Ref<GXBasePickerView> keep = self();
    if (!distanceFormatter()->metric()) value = milesToMeter(value / 1000.0);
    const double maximum = maxValue().doubleValue();
    const double minimum = minValue().doubleValue();
    if (value > maximum) value = maximum;
    if (value < minimum) value = minimum;
    setCurrentValue(NSNumber::numberWithDouble(value));
    informDelegateOfValueChange();
}

// From the value to the wheel

void GXDistancePickerView::selectCurrentValue() {
    const Ref<GXBasePickerView> keep = self();
    if (distanceFormatter()->metric()) {
        selectCurrentKilometers();
    } else {
        selectCurrentMiles();
    }
}

/// Holds no row to those there are: a value below the minimum asks for rows before the first.
void GXDistancePickerView::selectCurrentKilometers() {
    const double meters = currentValue().doubleValue();
    const NSInteger minimum = minValue().integerValue();
    const auto steps = quotient<NSInteger>(truncateTo<std::int32_t>(meters / 1000.0), stepSize().integerValue());
    const NSInteger row = wrappingSubtract(steps, quotient<NSInteger>(minimum, 1000));
    selectRow_inComponent(pickerView(), row, wholeComponent);

    const std::int32_t tenths = lastDigit(truncateTo<std::int32_t>(meters / 100.0));
    const NSInteger firstTenths = row == 0 ? remainder<NSInteger>(quotient<NSInteger>(minimum, 100), 10) : 0;
    selectRow_inComponent(pickerView(), tenths - firstTenths, tenthsComponent);
    if (numberOfFractionUnits_ < 2) return;

    // Here the digit of the tenths decides too, and not the whole unit alone as for the rows offered: with a minimum of 1.23 km, 1.25 km
    // is row 5 of those from 3 and shows as 1.28.
    const std::int32_t hundredths = lastDigit(truncateTo<std::int32_t>(meters / 10.0));
    const NSInteger firstHundredths = row == 0 && tenths == 0 ? remainder<NSInteger>(quotient<NSInteger>(minimum, 10), 10) : 0;
    selectRow_inComponent(pickerView(), hundredths - firstHundredths, hundredthsComponent);
}

/// Goes by the rows that the wheel then stands on, holds digits below the first one offered to that, and works in doubles.
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
    if (numberOfFractionUnits_ < 2) return;

    const bool isFirstTenth =
        selectedRowInComponent(pickerView(), wholeComponent) == 0 && selectedRowInComponent(pickerView(), tenthsComponent) == 0;
    selectRow_inComponent(pickerView(), rowOfDigit(100.0, isFirstTenth), hundredthsComponent);
}

// Answers to a screen reader

std::optional<GXSpokenName> GXDistancePickerView::spokenPartOfComponent(NSInteger component) {
    switch (component) {
    case wholeComponent:
        return distanceFormatter()->metric() ? GXSpokenName::Kilometres : GXSpokenName::Miles;
    case tenthsComponent:
        return GXSpokenName::Tenths;
    case hundredthsComponent:
        return GXSpokenName::Hundredths;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> GXDistancePickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                                  NSInteger component) {
    const SpokenRow at = {row, component};
    std::string digits = spokenTitle(tenthsComponent, at);
    if (numberOfFractionUnits_ > 1) digits += spokenTitle(hundredthsComponent, at);
    return spokenQuantity(spokenNumber(wholeComponent, std::move(digits), at),
                          distanceFormatter()->metric() ? GXSpokenUnit::Kilometre : GXSpokenUnit::Mile);
}

} // namespace gx
