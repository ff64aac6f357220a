#include "GalleryMeasurements.h"
#include "GalleryWeatherIcons.h"
#include "Translations.h"
#include "WheelReading.h"
#include <GXUIPickers/GXTemperaturePickerCell.h>
#include <GXUIPickers/GXTemperaturePickerView.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerCell.h>
#include <GXUIPickers/GXWeatherAndTemperaturePickerView.h>

using namespace gx;

namespace gallery {

namespace {

using Weather = GalleryPickerMeasurement<GXWeatherAndTemperaturePickerCell, GXWeatherAndTemperaturePickerView>;
using Temperature = GalleryPickerMeasurement<GXTemperaturePickerCell, GXTemperaturePickerView>;

void prepareTemperature(GXTemperaturePickerView& picker, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    if (picker.stepSize().integerValue() != 1) picker.setStepSize(NSNumber::numberWithInt(1));
}

void configureWeather(GXWeatherAndTemperaturePickerView& picker, const GalleryWorkout& workout, const GallerySettings& settings) {
    picker.setIsMetric(settings.isMetric);
    picker.weatherPicker()->setAccessibilityLabel(Translations::text("Weather"));
    const auto images = GalleryWeatherIcons::images();
    for (std::size_t i = 0; i < images->size(); ++i) (*images)[i]->setAccessibilityLabel(Translations::text(GalleryWeatherIcons::name(i)));
    picker.weatherPicker()->setIconImages(images);
    picker.weatherPicker()->setCurrentValue(NSNumber::numberWithInteger(static_cast<NSInteger>(workout.weather)));
    prepareTemperature(*picker.temperaturePicker(), settings);
    picker.temperaturePicker()->setCurrentValue(NSNumber::numberWithDouble(workout.temperature));
}

/// The inner pickers report themselves: who has sent it tells what it is.
void takeWeather(GalleryWorkout& workout, const GXWeatherAndTemperaturePickerView& picker, const Ref<GXBasePickerView>& sender,
                 const NSNumber& value) {
    if (sender == picker.weatherPicker()) workout.weather = static_cast<std::size_t>(value.integerValue());
    if (sender == picker.temperaturePicker()) workout.temperature = value.doubleValue();
}

std::string weatherInWords(const Ref<GXWeatherAndTemperaturePickerView>& picker) {
    const auto index = static_cast<std::size_t>(picker->weatherPicker()->currentValue().integerValue());
    return Translations::text(GalleryWeatherIcons::name(index)) + ", " + WheelReading::amountOnWheel(picker->temperaturePicker());
}

std::string waterInWords(const Ref<GXTemperaturePickerView>& picker) { return WheelReading::amountOnWheel(picker); }

} // namespace

GalleryMeasurementGroup weatherMeasurements(const std::shared_ptr<GalleryWorkout>& workout, const GallerySettings& settings) {
    return {"Conditions",
            {Weather::measurement("Weather", workout, settings, configureWeather, takeWeather, weatherInWords),
             Temperature::measurementOfValue("Water temperature", workout, settings, &GalleryWorkout::waterTemperature, prepareTemperature,
                                             waterInWords)}};
}

} // namespace gallery
