#include "WebCompositePickers.h"

#include "WebOwnProperties.h"

namespace gx::web {

namespace {

/// A property of the whole as one of the range of an inner picker.
std::optional<WebProperty> ofDistance(WebProperty property) {
    switch (property) {
    case WebProperty::MinDistance:
        return WebProperty::Min;
    case WebProperty::MaxDistance:
        return WebProperty::Max;
    case WebProperty::Distance:
        return WebProperty::Value;
    default:
        return std::nullopt;
    }
}

std::optional<WebProperty> ofDuration(WebProperty property) {
    switch (property) {
    case WebProperty::MinDuration:
        return WebProperty::Min;
    case WebProperty::MaxDuration:
        return WebProperty::Max;
    case WebProperty::Duration:
        return WebProperty::Value;
    default:
        return std::nullopt;
    }
}

bool isMetric(WebProperty property) { return property == WebProperty::Metric; }

} // namespace

std::vector<Ref<UIPickerView>> WebDistanceAndDurationPicker::wheels() const {
    return {picker_->distancePicker()->pickerView(), picker_->durationPicker()->pickerView()};
}

std::optional<double> WebDistanceAndDurationPicker::get(WebProperty property) const {
    const GXDistancePickerView& distance = *picker_->distancePicker();
    const GXDurationPickerView& duration = *picker_->durationPicker();
    if (const auto inner = ofDistance(property)) return rangeProperty(distance, *inner);
    if (const auto inner = ofDuration(property)) return rangeProperty(duration, *inner);
    const std::optional<double> own = ownProperty(distance, property);
    return own ? own : ownProperty(duration, property);
}

bool WebDistanceAndDurationPicker::set(WebProperty property, double value) {
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

void WebDistanceAndDurationPicker::reload() {
    picker_->reloadData();
    picker_->sizeFontsToFit();
}

std::vector<Ref<UIPickerView>> WebWeatherAndTemperaturePicker::wheels() const {
    return {picker_->weatherPicker()->pickerView(), picker_->temperaturePicker()->pickerView()};
}

std::optional<double> WebWeatherAndTemperaturePicker::get(WebProperty property) const {
    const GXTemperaturePickerView& temperature = *picker_->temperaturePicker();
    switch (property) {
    case WebProperty::Weather:
        return picker_->weatherPicker()->currentValue().doubleValue();
    case WebProperty::Temperature:
        return temperature.currentValue().doubleValue();
    case WebProperty::Value:
        return std::nullopt;
    default:
        break;
    }
    const std::optional<double> own = ownProperty(temperature, property);
    return own ? own : rangeProperty(temperature, property);
}

bool WebWeatherAndTemperaturePicker::set(WebProperty property, double value) {
    GXTemperaturePickerView& temperature = *picker_->temperaturePicker();
    if (property == WebProperty::Value) return false;
    if (property == WebProperty::Weather) return setRangeProperty(*picker_->weatherPicker(), WebProperty::Value, value);
    if (property == WebProperty::Temperature) return setRangeProperty(temperature, WebProperty::Value, value);
    if (isMetric(property)) {
        picker_->setIsMetric(value != 0);
    } else if (!setRangeProperty(temperature, property, value)) {
        return false;
    }
    selectAgain(temperature);
    return true;
}

void WebWeatherAndTemperaturePicker::setIcons(Ref<const GXIconPickerView::Images> icons) {
    picker_->weatherPicker()->setIconImages(std::move(icons));
    selectAgain(*picker_->weatherPicker());
}

void WebWeatherAndTemperaturePicker::reload() {
    picker_->reloadData();
    picker_->sizeFontsToFit();
}

} // namespace gx::web
