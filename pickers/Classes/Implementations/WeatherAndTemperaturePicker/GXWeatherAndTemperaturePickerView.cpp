#include "GXWeatherAndTemperaturePickerView.h"

#include "GXStyleSheet.h"

namespace gx {

namespace {

/// Where before the middle the two pickers meet: an icon needs less room than a number and its
/// unit. Prescribed by the product.
constexpr CGFloat seamBeforeMiddle = 30;

} // namespace

void GXWeatherAndTemperaturePickerView::didInitialize() {
    GXCompositePickerView::didInitialize();
    const auto imageRowHeight = [] { return static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerImageRowHeight()); };
    const std::optional<float> given = givenRowHeight();
    initGXWeatherAndTemperaturePickerViewWithRowHeight(given ? *given : imageRowHeight());
    updateStacking();
}

float GXWeatherAndTemperaturePickerView::initialRowHeight() const {
    return static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
}

void GXWeatherAndTemperaturePickerView::initGXWeatherAndTemperaturePickerViewWithRowHeight(float rowHeight) {
    const Ref<GXIconPickerView> weather = create<GXIconPickerView>(frameSideBySide(Place::First, bounds()), rowHeight);
    setWeatherPicker(weather);
    const Ref<GXTemperaturePickerView> temperature = create<GXTemperaturePickerView>(frameSideBySide(Place::Second, bounds()), rowHeight);
    setTemperaturePicker(temperature);
    addSubview(weather);
    addSubview(temperature);
}

Ref<GXBasePickerView> GXWeatherAndTemperaturePickerView::innerPicker(Place place) const {
    if (place == Place::First) return weatherPicker();
    return temperaturePicker();
}

CGRect GXWeatherAndTemperaturePickerView::frameSideBySide(Place place, CGRect bounds) const {
    const CGFloat middle = CGRectGetMidX(bounds);
    if (place == Place::First) return CGRectMake(0, 0, middle - seamBeforeMiddle, CGRectGetHeight(bounds));
    return CGRectMake(middle - seamBeforeMiddle, 0, middle + seamBeforeMiddle, CGRectGetHeight(bounds));
}

} // namespace gx
