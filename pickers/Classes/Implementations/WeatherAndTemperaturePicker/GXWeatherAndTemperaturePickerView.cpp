#include "GXWeatherAndTemperaturePickerView.h"

#include "GXStyleSheet.h"

namespace gx {

namespace {

/// Where before the middle the two pickers meet: an icon needs less room than a number and its unit. Prescribed by the product.
constexpr CGFloat seamBeforeMiddle = 30;

float imageRowHeight() { return static_cast<float>(GXStyleSheet::globalStyleSheet()->pickerImageRowHeight()); }

} // namespace

bool GXWeatherAndTemperaturePickerView::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXWeatherAndTemperaturePickerViewWithRowHeight(imageRowHeight());
    return true;
}

bool GXWeatherAndTemperaturePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXWeatherAndTemperaturePickerViewWithRowHeight(imageRowHeight());
    return true;
}

bool GXWeatherAndTemperaturePickerView::initWithFrame_rowHeight(CGRect frame, float rowHeight) {
    // The height is that of the inner pickers' rows; this one has none.
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXWeatherAndTemperaturePickerViewWithRowHeight(rowHeight);
    return true;
}

void GXWeatherAndTemperaturePickerView::initGXBasePickerView() {}

void GXWeatherAndTemperaturePickerView::initGXWeatherAndTemperaturePickerViewWithRowHeight(float rowHeight) {
    weatherPicker_ = create<GXIconPickerView>(weatherFrame(), rowHeight);
    temperaturePicker_ = create<GXTemperaturePickerView>(temperatureFrame(), rowHeight);
    addSubview(weatherPicker_);
    addSubview(temperaturePicker_);
}

std::vector<Ref<GXBasePickerView>> GXWeatherAndTemperaturePickerView::innerPickers() const {
    std::vector<Ref<GXBasePickerView>> pickers;
    if (weatherPicker_) pickers.push_back(weatherPicker_);
    if (temperaturePicker_) pickers.push_back(temperaturePicker_);
    return pickers;
}

CGRect GXWeatherAndTemperaturePickerView::weatherFrame() const {
    return CGRectMake(0, 0, CGRectGetMidX(bounds()) - seamBeforeMiddle, CGRectGetHeight(bounds()));
}

CGRect GXWeatherAndTemperaturePickerView::temperatureFrame() const {
    const CGFloat middle = CGRectGetMidX(bounds());
    return CGRectMake(middle - seamBeforeMiddle, 0, middle + seamBeforeMiddle, CGRectGetHeight(bounds()));
}

// In each of these the inner pickers are held by copies: what is told to the first may replace it, or the second.

void GXWeatherAndTemperaturePickerView::setFrame(CGRect frame) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setFrame(frame);
    if (const Ref<GXIconPickerView> picker = weatherPicker_) picker->setFrame(weatherFrame());
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker_) picker->setFrame(temperatureFrame());
}

void GXWeatherAndTemperaturePickerView::setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setDelegate(delegate);
    if (const Ref<GXIconPickerView> picker = weatherPicker_) picker->setDelegate(delegate);
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker_) picker->setDelegate(delegate);
}

void GXWeatherAndTemperaturePickerView::setIsMetric(bool isMetric) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    if (const Ref<GXIconPickerView> picker = weatherPicker_) picker->setIsMetric(isMetric);
    if (const Ref<GXTemperaturePickerView> picker = temperaturePicker_) picker->setIsMetric(isMetric);
}

} // namespace gx
