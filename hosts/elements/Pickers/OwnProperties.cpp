#include "OwnProperties.h"

#include <GXUIPickers/NSArithmetic.h>

namespace gx::elements {

namespace {

/// For the pickers that have two unit systems.
std::optional<double> metric(const GXBasePickerView& picker, PickerProperty property) {
    return property == PickerProperty::Metric ? std::optional<double>(picker.isMetric()) : std::nullopt;
}

bool setMetric(GXBasePickerView& picker, PickerProperty property, double value) {
    if (property != PickerProperty::Metric) return false;
    picker.setIsMetric(value != 0);
    return true;
}

} // namespace

std::int32_t integerOf(double value) { return truncateTo<std::int32_t>(value); }

std::optional<double> rangeProperty(const GXBasePickerView& picker, PickerProperty property) {
    switch (property) {
    case PickerProperty::Min:
        return picker.minValue().doubleValue();
    case PickerProperty::Max:
        return picker.maxValue().doubleValue();
    case PickerProperty::Step:
        return picker.stepSize().doubleValue();
    case PickerProperty::Value:
        return picker.currentValue().doubleValue();
    default:
        return std::nullopt;
    }
}

bool setRangeProperty(GXBasePickerView& picker, PickerProperty property, double value) {
    const NSNumber number = NSNumber::numberWithDouble(value);
    switch (property) {
    case PickerProperty::Min:
        picker.setMinValue(number);
        return true;
    case PickerProperty::Max:
        picker.setMaxValue(number);
        return true;
    case PickerProperty::Step:
        picker.setStepSize(number);
        return true;
    case PickerProperty::Value:
        picker.setCurrentValue(number);
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXBasePickerView&, PickerProperty) { return std::nullopt; }
bool setOwnProperty(GXBasePickerView&, PickerProperty, double) { return false; }

std::optional<double> ownProperty(const GXDistancePickerView& picker, PickerProperty property) {
    if (property == PickerProperty::FractionDigits) return picker.numberOfFractionUnits();
    return metric(picker, property);
}

bool setOwnProperty(GXDistancePickerView& picker, PickerProperty property, double value) {
    if (property != PickerProperty::FractionDigits) return setMetric(picker, property, value);
    picker.setNumberOfFractionUnits(integerOf(value));
    return true;
}

std::optional<double> ownProperty(const GXDurationPickerView& picker, PickerProperty property) {
    switch (property) {
    case PickerProperty::Layout:
        return static_cast<double>(picker.type());
    case PickerProperty::HoursStep:
        return picker.hoursStepSize();
    case PickerProperty::MinutesStep:
        return picker.minutesStepSize();
    case PickerProperty::SecondsStep:
        return picker.secondsStepSize();
    default:
        return std::nullopt;
    }
}

bool setOwnProperty(GXDurationPickerView& picker, PickerProperty property, double value) {
    switch (property) {
    case PickerProperty::Layout:
        picker.setType(integerOf(value));
        return true;
    case PickerProperty::HoursStep:
        picker.setHoursStepSize(integerOf(value));
        return true;
    case PickerProperty::MinutesStep:
        picker.setMinutesStepSize(integerOf(value));
        return true;
    case PickerProperty::SecondsStep:
        picker.setSecondsStepSize(integerOf(value));
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXHeartRatePickerView& picker, PickerProperty property) {
    switch (property) {
    case PickerProperty::NullRow:
        return picker.shouldShowNullValue() ? 1 : 0;
    case PickerProperty::Gap:
        return picker.minimumGapBetweenAvgAndMax().doubleValue();
    case PickerProperty::Average:
        return picker.currentAvgHeartRate().doubleValue();
    case PickerProperty::Maximum:
        return picker.currentMaxHeartRate().doubleValue();
    default:
        return std::nullopt;
    }
}

bool setOwnProperty(GXHeartRatePickerView& picker, PickerProperty property, double value) {
    const NSNumber number = NSNumber::numberWithInt(integerOf(value));
    switch (property) {
    case PickerProperty::NullRow:
        picker.setShouldShowNullValue(value != 0);
        picker.reloadData();
        return true;
    case PickerProperty::Gap:
        picker.setMinimumGapBetweenAvgAndMax(number);
        return true;
    case PickerProperty::Average:
        picker.setCurrentAvgHeartRate(number);
        return true;
    case PickerProperty::Maximum:
        picker.setCurrentMaxHeartRate(number);
        return true;
    default:
        return false;
    }
}

std::optional<double> ownProperty(const GXPacePickerView& picker, PickerProperty property) {
    if (property == PickerProperty::MinutesStep) return picker.minutesStepSize();
    if (property == PickerProperty::SecondsStep) return picker.secondsStepSize();
    return metric(picker, property);
}

bool setOwnProperty(GXPacePickerView& picker, PickerProperty property, double value) {
    if (property == PickerProperty::MinutesStep) {
        picker.setMinutesStepSize(integerOf(value));
    } else if (property == PickerProperty::SecondsStep) {
        picker.setSecondsStepSize(integerOf(value));
    } else {
        return setMetric(picker, property, value);
    }
    return true;
}

std::optional<double> ownProperty(const GXSpeedPickerView& picker, PickerProperty property) { return metric(picker, property); }
bool setOwnProperty(GXSpeedPickerView& picker, PickerProperty property, double value) { return setMetric(picker, property, value); }
std::optional<double> ownProperty(const GXTemperaturePickerView& picker, PickerProperty property) { return metric(picker, property); }
bool setOwnProperty(GXTemperaturePickerView& picker, PickerProperty property, double value) { return setMetric(picker, property, value); }

std::optional<double> ownProperty(const GXWeightPickerView& picker, PickerProperty property) {
    if (property == PickerProperty::WeightUnit) return picker.weightUnit();
    if (property == PickerProperty::UnitSelectable) return picker.weightUnitSelectable() ? 1 : 0;
    return std::nullopt;
}

bool setOwnProperty(GXWeightPickerView& picker, PickerProperty property, double value) {
    if (property == PickerProperty::WeightUnit) {
        picker.setWeightUnit(truncateTo<NSUInteger>(value));
        picker.updateMinMaxWeight();
    } else if (property == PickerProperty::UnitSelectable) {
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

} // namespace gx::elements
