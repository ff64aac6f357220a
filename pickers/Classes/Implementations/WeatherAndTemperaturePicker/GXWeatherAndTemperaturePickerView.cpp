#include "GXWeatherAndTemperaturePickerView.h"

#include "GXStyleSheet.h"

namespace gx {

namespace {

/// Where before the middle the two pickers meet: an icon needs less room than a number and its
/// unit. Prescribed by the product.
constexpr CGFloat seamBeforeMiddle = 30;

} // namespace

void GXWeatherAndTemperaturePickerView::initGXBasePickerView() {}

void GXWeatherAndTemperaturePickerView::didInitialize() {
    GXBasePickerView::didInitialize();
    const auto imageRowHeight = [] { return static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerImageRowHeight()); };
    const std::optional<float> given = givenRowHeight();
    initGXWeatherAndTemperaturePickerViewWithRowHeight(given ? *given : imageRowHeight());
}

float GXWeatherAndTemperaturePickerView::initialRowHeight() const {
    return static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerRowHeight());
}

void GXWeatherAndTemperaturePickerView::initGXWeatherAndTemperaturePickerViewWithRowHeight(float rowHeight) {
    const Ref<GXIconPickerView> weather = create<GXIconPickerView>(weatherFrame(), rowHeight);
    setWeatherPicker(weather);
    const Ref<GXTemperaturePickerView> temperature = create<GXTemperaturePickerView>(temperatureFrame(), rowHeight);
    setTemperaturePicker(temperature);
    addSubview(weather);
    addSubview(temperature);
}

std::vector<Ref<GXBasePickerView>> GXWeatherAndTemperaturePickerView::innerPickers() const {
    std::vector<Ref<GXBasePickerView>> pickers;
    if (weatherPicker()) pickers.push_back(weatherPicker());
    if (temperaturePicker()) pickers.push_back(temperaturePicker());
    return pickers;
}

CGRect GXWeatherAndTemperaturePickerView::weatherFrame() const {
    return CGRectMake(0, 0, CGRectGetMidX(bounds()) - seamBeforeMiddle, CGRectGetHeight(bounds()));
}

CGRect GXWeatherAndTemperaturePickerView::temperatureFrame() const {
    const CGFloat middle = CGRectGetMidX(bounds());
    return CGRectMake(middle - seamBeforeMiddle, 0, middle + seamBeforeMiddle, CGRectGetHeight(bounds()));
}

// In each of these the inner pickers are held by copies: what is told to the first may replace it,
// or the second.

void GXWeatherAndTemperaturePickerView::setFrame(CGRect frame) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setFrame(frame);
    if (const Ref<GXIconPickerView> picker = weatherPicker()) picker->setFrame(weatherFrame());
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker()) picker->setFrame(temperatureFrame());
}

void GXWeatherAndTemperaturePickerView::setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setDelegate(delegate);
    if (const Ref<GXIconPickerView> picker = weatherPicker()) picker->setDelegate(delegate);
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker()) picker->setDelegate(delegate);
}

void GXWeatherAndTemperaturePickerView::setIsMetric(bool isMetric) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    if (const Ref<GXIconPickerView> picker = weatherPicker()) picker->setIsMetric(isMetric);
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker()) picker->setIsMetric(isMetric);
}

} // namespace gx
