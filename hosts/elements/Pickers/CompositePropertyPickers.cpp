#include "CompositePropertyPickers.h"

#include "OwnProperties.h"

#include <utility>

namespace gx::elements {

namespace {

/// A property of the whole as one of the range of an inner picker.
std::optional<PickerProperty> ofDistance(PickerProperty property) {
    switch (property) {
    case PickerProperty::MinDistance:
        return PickerProperty::Min;
    case PickerProperty::MaxDistance:
        return PickerProperty::Max;
    case PickerProperty::Distance:
        return PickerProperty::Value;
    default:
        return std::nullopt;
    }
}

std::optional<PickerProperty> ofDuration(PickerProperty property) {
    switch (property) {
    case PickerProperty::MinDuration:
        return PickerProperty::Min;
    case PickerProperty::MaxDuration:
        return PickerProperty::Max;
    case PickerProperty::Duration:
        return PickerProperty::Value;
    default:
        return std::nullopt;
    }
}

bool isMetric(PickerProperty property) { return property == PickerProperty::Metric; }

} // namespace

std::vector<Ref<UIPickerView>> DistanceAndDurationPropertyPicker::wheels() const {
    return {picker_->distancePicker()->pickerView(), picker_->durationPicker()->pickerView()};
}

std::optional<double> DistanceAndDurationPropertyPicker::get(PickerProperty property) const {
    const GXDistancePickerView& distance = *picker_->distancePicker();
    const GXDurationPickerView& duration = *picker_->durationPicker();
    if (const auto inner = ofDistance(property)) return rangeProperty(distance, *inner);
    if (const auto inner = ofDuration(property)) return rangeProperty(duration, *inner);
    const std::optional<double> own = ownProperty(distance, property);
    return own ? own : ownProperty(duration, property);
}

bool DistanceAndDurationPropertyPicker::set(PickerProperty property, double value) {
    GXDistancePickerView& distance = *picker_->distancePicker();
    GXDurationPickerView& duration = *picker_->durationPicker();
    if (const auto inner = ofDistance(property)) return setRangeProperty(distance, *inner, value);
    if (const auto inner = ofDuration(property)) return setRangeProperty(duration, *inner, value);
    if (isMetric(property)) {
        picker_->setIsMetric(value != 0);
    } else if (!setOwnProperty(distance, property, value) && !setOwnProperty(duration, property, value)) {
        return false;
    }
    selectAgain(distance);
    selectAgain(duration);
    return true;
}

void DistanceAndDurationPropertyPicker::reload() {
    picker_->reloadData();
    picker_->sizeFontsToFit();
}

std::vector<Ref<UIPickerView>> WeatherAndTemperaturePropertyPicker::wheels() const {
    return {picker_->weatherPicker()->pickerView(), picker_->temperaturePicker()->pickerView()};
}

std::optional<double> WeatherAndTemperaturePropertyPicker::get(PickerProperty property) const {
    const GXTemperaturePickerView& temperature = *picker_->temperaturePicker();
    switch (property) {
    case PickerProperty::Weather:
        return picker_->weatherPicker()->currentValue().doubleValue();
    case PickerProperty::Temperature:
        return temperature.currentValue().doubleValue();
    case PickerProperty::Value:
        return std::nullopt;
    default:
        break;
    }
    const std::optional<double> own = ownProperty(temperature, property);
    return own ? own : rangeProperty(temperature, property);
}

bool WeatherAndTemperaturePropertyPicker::set(PickerProperty property, double value) {
    GXTemperaturePickerView& temperature = *picker_->temperaturePicker();
    if (property == PickerProperty::Value) return false;
    if (property == PickerProperty::Weather) return setRangeProperty(*picker_->weatherPicker(), PickerProperty::Value, value);
    if (property == PickerProperty::Temperature) return setRangeProperty(temperature, PickerProperty::Value, value);
    if (isMetric(property)) {
        picker_->setIsMetric(value != 0);
    } else if (!setRangeProperty(temperature, property, value)) {
        return false;
    }
    selectAgain(temperature);
    return true;
}

void WeatherAndTemperaturePropertyPicker::setIcons(Ref<const GXIconPickerView::Images> icons) {
    picker_->weatherPicker()->setIconImages(std::move(icons));
    selectAgain(*picker_->weatherPicker());
}

void WeatherAndTemperaturePropertyPicker::setAccessibilityLabel(std::optional<std::string> label) {
    picker_->weatherPicker()->setAccessibilityLabel(label);
    PropertyPicker::setAccessibilityLabel(std::move(label));
}

void WeatherAndTemperaturePropertyPicker::reload() {
    picker_->reloadData();
    picker_->sizeFontsToFit();
}

} // namespace gx::elements
