#include "WebOwnProperties.h"

#include <GXUIPickers/NSArithmetic.h>

namespace gx::web {

namespace {

/// For the pickers that have two unit systems.
std::optional<double> metric(const GXBasePickerView& picker, WebProperty property) {
    return property == WebProperty::Metric ? std::optional<double>(picker.isMetric()) : std::nullopt;
}

bool setMetric(GXBasePickerView& picker, WebProperty property, double value) {
    if (property != WebProperty::Metric) return false;
    picker.setIsMetric(value != 0);
    return true;
}

} // namespace

std::int32_t integerOf(double value) { return truncateTo<std::int32_t>(value); }

std::optional<double> rangeProperty(const GXBasePickerView& picker, WebProperty property) {
    switch (property) {
    case WebProperty::Min:
        return picker.minValue().doubleValue();
    case WebProperty::Max:
        return picker.maxValue().doubleValue();
    case WebProperty::Step:
        return picker.stepSize().doubleValue();
    case WebProperty::Value:
        return picker.currentValue().doubleValue();
    default:
        return std::nullopt;
    }
}

bool setRangeProperty(GXBasePickerView& picker, WebProperty property, double value) {
    const NSNumber number = NSNumber::numberWithDouble(value);
    switch (property) {
    case WebProperty::Min:
        picker.setMinValue(number);
        return true;
    case WebProperty::Max:
        picker.setMaxValue(number);
        return true;
    case WebProperty::Step:
        picker.setStepSize(number);
        return true;
    case WebProperty::Value:
        picker.setCurrentValue(number);
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXBasePickerView&, WebProperty) { return std::nullopt; }
bool setOwnProperty(GXBasePickerView&, WebProperty, double) { return false; }

std::optional<double> ownProperty(const GXDistancePickerView& picker, WebProperty property) {
    if (property == WebProperty::FractionDigits) return picker.numberOfFractionUnits();
    return metric(picker, property);
}

bool setOwnProperty(GXDistancePickerView& picker, WebProperty property, double value) {
    if (property != WebProperty::FractionDigits) return setMetric(picker, property, value);
    picker.setNumberOfFractionUnits(integerOf(value));
    return true;
}

std::optional<double> ownProperty(const GXDurationPickerView& picker, WebProperty property) {
    switch (property) {
    case WebProperty::Layout:
        return static_cast<double>(picker.type());
    case WebProperty::HoursStep:
        return picker.hoursStepSize();
    case WebProperty::MinutesStep:
        return picker.minutesStepSize();
    case WebProperty::SecondsStep:
        return picker.secondsStepSize();
    default:
        return std::nullopt;
    }
}

bool setOwnProperty(GXDurationPickerView& picker, WebProperty property, double value) {
    switch (property) {
    case WebProperty::Layout:
        picker.setType(integerOf(value));
        return true;
    case WebProperty::HoursStep:
        picker.setHoursStepSize(integerOf(value));
        return true;
    case WebProperty::MinutesStep:
        picker.setMinutesStepSize(integerOf(value));
        return true;
    case WebProperty::SecondsStep:
        picker.setSecondsStepSize(integerOf(value));
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXHeartRatePickerView& picker, WebProperty property) {
    switch (property) {
    case WebProperty::NullRow:
        return picker.shouldShowNullValue() ? 1 : 0;
    case WebProperty::Gap:
        return picker.minimumGapBetweenAvgAndMax().doubleValue();
    case WebProperty::Average:
        return picker.currentAvgHeartRate().doubleValue();
    case WebProperty::Maximum:
        return picker.currentMaxHeartRate().doubleValue();
    default:
        return std::nullopt;
    }
}

bool setOwnProperty(GXHeartRatePickerView& picker, WebProperty property, double value) {
    const NSNumber number = NSNumber::numberWithInt(integerOf(value));
    switch (property) {
    case WebProperty::NullRow:
        picker.setShouldShowNullValue(value != 0);
        picker.reloadData();
        return true;
    case WebProperty::Gap:
        picker.setMinimumGapBetweenAvgAndMax(number);
        return true;
    case WebProperty::Average:
        picker.setCurrentAvgHeartRate(number);
        return true;
    case WebProperty::Maximum:
        picker.setCurrentMaxHeartRate(number);
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXPacePickerView& picker, WebProperty property) {
    if (property == WebProperty::MinutesStep) return picker.minutesStepSize();
    if (property == WebProperty::SecondsStep) return picker.secondsStepSize();
    return metric(picker, property);
}

bool setOwnProperty(GXPacePickerView& picker, WebProperty property, double value) {
    if (property == WebProperty::MinutesStep) {
        picker.setMinutesStepSize(integerOf(value));
    } else if (property == WebProperty::SecondsStep) {
        picker.setSecondsStepSize(integerOf(value));
    } else {
        return setMetric(picker, property, value);
    }
    return true;
}

std::optional<double> ownProperty(const GXSpeedPickerView& picker, WebProperty property) { return metric(picker, property); }
bool setOwnProperty(GXSpeedPickerView& picker, WebProperty property, double value) { return setMetric(picker, property, value); }
std::optional<double> ownProperty(const GXTemperaturePickerView& picker, WebProperty property) { return metric(picker, property); }
bool setOwnProperty(GXTemperaturePickerView& picker, WebProperty property, double value) { return setMetric(picker, property, value); }

std::optional<double> ownProperty(const GXWeightPickerView& picker, WebProperty property) {
    if (property == WebProperty::WeightUnit) return picker.weightUnit();
    if (property == WebProperty::UnitSelectable) return picker.weightUnitSelectable() ? 1 : 0;
    return std::nullopt;
}

bool setOwnProperty(GXWeightPickerView& picker, WebProperty property, double value) {
    if (property == WebProperty::WeightUnit) {
        picker.setWeightUnit(truncateTo<NSUInteger>(value));
        picker.updateMinMaxWeight();
    } else if (property == WebProperty::UnitSelectable) {
        picker.setWeightUnitSelectable(value != 0);
    } else {
        return false;
    }
    return true;
}

void selectAgain(GXBasePickerView& picker) { picker.setCurrentValue(picker.currentValue()); }

void selectAgain(GXHeartRatePickerView& picker) {
    picker.setCurrentAvgHeartRate(picker.currentAvgHeartRate());
    picker.setCurrentMaxHeartRate(picker.currentMaxHeartRate());
}

} // namespace gx::web
